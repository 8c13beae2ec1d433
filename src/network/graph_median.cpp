#include "network/graph_median.h"

#include <vector>

#include "kernel/index.h"
#include "network/network_messages.h"

namespace mero {

namespace {

// The score of the midpoint of an edge of length l between a and b: each node is served from the
// nearer end (b on a tie) and half the edge further.
double midpoint_score(const matrix& d, const std::vector<double>& w, int a, int b, double l) {
  double s = 0.0;
  for (int i = 0; i < d.dim1(); ++i) {
    double near = d(a, i) >= d(b, i) ? d(b, i) : d(a, i);
    s = (l * 0.5 + near) * w[at(i)] + s;
  }
  return s;
}

// The first edge of b's adjacency list (list 0, then list 1) that ends in a.
edge stored_edge_into(const location_graph& g, node b, node a) {
  for (int list = 0; list < 2; ++list)
    for (edge e = g.first_adj_edge(b, list); e != nullptr; e = g.next_adj_edge(e, b, list))
      if (graph::target(e) == a) return e;
  return nullptr;
}

}  // namespace

graphpointset graph_median(location_graph& g, char mode, double& value) {
  connection_repair(g, network_messages::median_not_connected);
  location_graph copy(g);
  value = network_infinity;
  matrix d = distance_matrix(copy);
  std::vector<double> w = head_weights(copy);
  graphpointset result;
  int n = d.dim1();
  for (int x = 0; x < n; ++x) {
    double s = 0.0;
    for (int j = 0; j < n; ++j) s = (d(x, j) + d(j, x)) * w[at(j)] + s;
    if (s < value) {
      result.clear();
      result.push_back({x, x, 0.0});
      value = s;
    } else if (s == value) {
      result.push_back({x, x, 0.0});
    }
  }
  if (mode == 'u') value = value * 0.5;
  return result;
}

graphpointset abs_graph_median(location_graph& g, double& value) {
  // The node medians come from a repaired copy; the midpoint test reads the distances of the
  // graph as given, where components apart count at distance 0.
  location_graph median_copy(g);
  graphpointset nodes = graph_median(median_copy, 'u', value);
  location_graph copy(g);
  matrix d = distance_matrix(copy);
  if (nodes.size() <= 1) return nodes;
  std::vector<double> w = head_weights(copy);
  std::vector<node> by_number = copy.all_nodes();
  graphpointset edges;
  for (const graph_point& a : nodes)
    for (const graph_point& b : nodes) {
      edge e = stored_edge_into(copy, by_number[at(b.first)], by_number[at(a.first)]);
      if (e == nullptr) continue;
      if (midpoint_score(d, w, a.first, b.first, copy.inf(e)) == value)
        edges.push_back({a.first, b.first, 0.0});
    }
  nodes.splice(nodes.end(), edges);
  return nodes;
}

}  // namespace mero
