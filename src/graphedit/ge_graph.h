#pragma once
// The graph that the editor shows: a kernel graph whose nodes and edges carry a data text (the
// "string" information of the native file) and their drawing attributes, with the settings of
// the drawing as a whole. The GE and GML files and the PostScript writer work on this.

#include <map>
#include <string>
#include <vector>

#include "kernel/graph.h"
#include "kernel/point.h"

namespace mero {

// Colours are 24-bit RGB values, written as integers in GE and as "#rrggbb" in GML.
enum class node_shape { oval, rectangle };
enum class label_kind { text, index, data };
// Where a label stands relative to its item: centre or one of the eight compass directions.
enum class label_anchor { c, n, s, e, w, ne, nw, se, sw };
enum class edge_shape { poly, bezier, spline, circle };
enum class edge_style { solid, dashed, dotted };
enum class edge_arrow { none, last, first, both };

struct ge_node {
  std::string data;  // the native file's node information
  point position;
  node_shape shape = node_shape::oval;
  int border_color = 0x000000;
  double border_width = 1;
  double radius1 = 10;  // horizontal half extent
  double radius2 = 10;  // vertical half extent
  int color = 0xffffff;
  label_kind label_type = label_kind::index;
  int label_color = 0x000000;
  label_anchor label_position = label_anchor::c;
  std::string label;
  // Numeric keys of a GML node that the editor does not draw (a weight or a demand written by
  // another tool); kept so that a GML file keeps them and the converter can use them.
  std::map<std::string, double> values;
  bool operator==(const ge_node&) const = default;
};

struct ge_edge {
  std::string data;  // the native file's edge information
  double width = 1;
  int color = 0x000000;
  edge_shape shape = edge_shape::poly;
  edge_style style = edge_style::solid;
  edge_arrow direction = edge_arrow::last;
  label_kind label_type = label_kind::text;
  int label_color = 0x000000;
  label_anchor label_position = label_anchor::c;
  point source_anchor;  // offsets from the end nodes' centres
  point target_anchor;
  std::vector<point> bends;
  std::string label;
  std::map<std::string, double> values;  // numeric GML keys of the edge, as for nodes
  bool operator==(const ge_edge&) const = default;
};

template <>
struct graph_info_io<ge_node> {
  static std::string name() { return "string"; }
  static void write(std::ostream& out, const ge_node& x) { out << x.data; }
  static void read(std::istream& in, ge_node& x) { graph_info_io<std::string>::read(in, x.data); }
};
template <>
struct graph_info_io<ge_edge> {
  static std::string name() { return "string"; }
  static void write(std::ostream& out, const ge_edge& x) { out << x.data; }
  static void read(std::istream& in, ge_edge& x) { graph_info_io<std::string>::read(in, x.data); }
};

// Settings of the whole drawing; the GE file keeps all but label and directed, GML only those.
struct ge_settings {
  double version = 1.0;
  double scaling = 1;
  double wxmin = 0, wymin = 0, wxmax = 100, wymax = 100;
  std::string node_font = "T";
  int node_font_size = 12;
  std::string edge_font = "T";
  int edge_font_size = 10;
  std::string node_index_format = "%d";
  std::string edge_index_format = "%d";
  double multi_edge_distance = 4;
  std::string label;
  bool directed = true;
  bool operator==(const ge_settings&) const = default;
};

struct ge_graph {
  GRAPH<ge_node, ge_edge> g;
  ge_settings settings;
};

// The edges in the order of the files: by the nodes in list order, each node's leaving edges in
// the order of its adjacency list.
std::vector<edge> edges_in_file_order(const graph& g);

// Equal structure (node count, ends and reversals of the edges in file order) and equal node and
// edge attributes, item by item; the settings are compared apart.
bool same_drawing(const ge_graph& a, const ge_graph& b);

}  // namespace mero
