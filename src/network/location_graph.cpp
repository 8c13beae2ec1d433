#include "network/location_graph.h"

#include <cstdio>
#include <istream>
#include <vector>

#include "kernel/error_handler.h"
#include "kernel/graph_array.h"
#include "kernel/graph_connectivity.h"
#include "kernel/reporters.h"
#include "kernel/shortest_paths.h"
#include "network/network_messages.h"

namespace mero {

void graph_info_io<node_weights>::write(std::ostream& out, const node_weights& x) {
  const char* separator = "";
  for (double w : x.weights) {
    out << separator << w;
    separator = " ";
  }
}

void graph_info_io<node_weights>::read(std::istream& in, node_weights& x) {
  x.weights.clear();
  x.scratch.clear();
  for (double w; in >> w;) x.weights.push_back(w);
}

double head_weight(const location_graph& g, node v) {
  const std::list<double>& weights = g.inf(v).weights;
  if (weights.empty()) empty_list_error(network_messages::empty_weights);
  return weights.front();
}

std::vector<double> head_weights(const location_graph& g) {
  std::vector<double> w;
  for (node v = g.first_node(); v != nullptr; v = graph::succ_node(v))
    w.push_back(head_weight(g, v));
  return w;
}

bool is_tree(const graph& g) {
  return g.number_of_nodes() == g.number_of_edges() + 1 && is_connected(g);
}

matrix distance_matrix(const location_graph& g) {
  location_graph copy(g);
  edge_array<double> lengths(copy);
  for (edge e = copy.first_edge(); e != nullptr; e = graph::succ_edge(e)) lengths[e] = copy.inf(e);
  std::vector<std::vector<double>> table;
  if (!all_pairs_shortest_paths(copy, lengths, table))
    report_error(network_messages::negative_cycle);
  std::vector<node> nodes = copy.all_nodes();
  int n = static_cast<int>(nodes.size());
  matrix d(n, n);
  for (int i = 0; i < n; ++i) {
    const std::vector<double>& row = table[static_cast<std::size_t>(graph::index(nodes[i]))];
    for (int j = 0; j < n; ++j) {
      double x = row[static_cast<std::size_t>(graph::index(nodes[j]))];
      d(i, j) = x > network_infinity ? network_infinity : x;
    }
  }
  return d;
}

edge find_edge(const location_graph& g, node u, node v) {
  for (node around : {u, v})
    for (int list = 0; list < 2; ++list)
      for (edge e = g.first_adj_edge(around, list); e != nullptr;
           e = g.next_adj_edge(e, around, list)) {
        node s = graph::source(e), t = graph::target(e);
        if ((s == u && t == v) || (s == v && t == u)) return e;
      }
  report_error(network_messages::not_adjacent);
}

void connection_repair(location_graph& g, const message& question) {
  while (!is_connected(g)) {
    report_question(question, 1, true);
    make_connected(g);
  }
}

location_graph directed_form(const location_graph& g) { return g; }

location_graph undirected_form(const location_graph& g) {
  location_graph copy(g);
  copy.make_undirected();
  return copy;
}

location_graph tree_form(const location_graph& g) {
  location_graph copy = undirected_form(g);
  if (!is_tree(copy)) report_error(network_messages::not_a_tree);
  return copy;
}

void write_graphpointset(std::ostream& out, const graphpointset& points) {
  out << "begin {graphpointset}\n";
  char line[128];
  for (const graph_point& p : points) {
    if (p.first == p.second)
      std::snprintf(line, sizeof line, "Node [%d]", p.first + 1);
    else if (p.position == 0.0)
      std::snprintf(line, sizeof line, "Edge [%d][%d]", p.first + 1, p.second + 1);
    else
      std::snprintf(line, sizeof line, "Point [%d][%d] %lf", p.first + 1, p.second + 1, p.position);
    out << line << '\n';
  }
  out << "end {graphpointset}\n";
}

}  // namespace mero
