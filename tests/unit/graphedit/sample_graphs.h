#pragma once
// Graphs for the tests: any graph from its edge list, and one with a non-default value in
// every attribute of every kind.

#include <utility>
#include <vector>

#include "graphedit/ge_graph.h"

namespace mero::testing {

// n nodes and an edge from node a to node b (places in list order) for each pair, in order.
inline ge_graph graph_of(int n, const std::vector<std::pair<int, int>>& edges) {
  ge_graph x;
  std::vector<node> v;
  for (int k = 0; k < n; ++k) v.push_back(x.g.new_node());
  for (auto [a, b] : edges) x.g.new_edge(v[a], v[b]);
  return x;
}

// Three nodes, four edges (one pair of reversals, a loop), every shape, label kind, anchor,
// edge shape, style and arrow, bends, and labels with blanks, backslashes, quotes and line ends.
inline ge_graph every_attribute_graph(bool with_reversal) {
  ge_graph x;
  ge_node a;
  a.data = "first node";
  a.position = point(0.1, -2.5e17);
  a.shape = node_shape::rectangle;
  a.border_color = 0x123456;
  a.border_width = 2.75;
  a.radius1 = 1e-300;
  a.radius2 = 33.3;
  a.color = 0xabcdef;
  a.label_type = label_kind::text;
  a.label_color = 0xff0000;
  a.label_position = label_anchor::nw;
  a.label = " two  blanks \\ and \"quotes\" & more";
  ge_node b;
  b.position = point(1.0 / 3, 7);
  b.label_type = label_kind::data;
  b.label_position = label_anchor::se;
  b.label = "line one\nline two";
  ge_node c;
  c.data = "x";
  c.label_type = label_kind::index;
  c.label_position = label_anchor::s;
  c.shape = node_shape::oval;
  node u = x.g.new_node(a);
  node v = x.g.new_node(b);
  node w = x.g.new_node(c);
  ge_edge e1;
  e1.data = "length 5";
  e1.width = 0.5;
  e1.color = 0x00ff00;
  e1.shape = edge_shape::bezier;
  e1.style = edge_style::dashed;
  e1.direction = edge_arrow::both;
  e1.label_type = label_kind::index;
  e1.label_color = 0x0000ff;
  e1.label_position = label_anchor::e;
  e1.source_anchor = point(-1, 0.25);
  e1.target_anchor = point(3, -4);
  e1.bends = {point(1, 2), point(-3.125, 1e10)};
  e1.label = "bent edge";
  ge_edge e2;
  e2.shape = edge_shape::spline;
  e2.style = edge_style::dotted;
  e2.direction = edge_arrow::first;
  e2.label_type = label_kind::data;
  e2.label = "back\\n";
  ge_edge e3;
  e3.shape = edge_shape::circle;
  e3.direction = edge_arrow::none;
  e3.label_position = label_anchor::w;
  ge_edge e4;
  e4.label_position = label_anchor::n;
  e4.bends = {point(5, 5)};
  edge f = x.g.new_edge(u, v, e1);
  edge r = x.g.new_edge(v, u, e2);
  if (with_reversal) graph::set_reversal(f, r);
  x.g.new_edge(w, w, e3);
  x.g.new_edge(v, w, e4);
  x.settings.version = 2.5;
  x.settings.scaling = 0.1;
  x.settings.wxmin = -7;
  x.settings.wymin = 1e-5;
  x.settings.wxmax = 123.456;
  x.settings.wymax = 9e9;
  x.settings.node_font = "Helvetica Bold";
  x.settings.node_font_size = 14;
  x.settings.edge_font = "Courier";
  x.settings.edge_font_size = 8;
  x.settings.node_index_format = "v%d";
  x.settings.edge_index_format = "e[%d]";
  x.settings.multi_edge_distance = 6.5;
  return x;
}

}  // namespace mero::testing
