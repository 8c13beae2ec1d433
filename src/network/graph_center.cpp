#include "network/graph_center.h"

#include <vector>

#include "kernel/error_handler.h"
#include "kernel/graph_array.h"
#include "kernel/index.h"
#include "network/network_messages.h"
#include "network/tent_envelope.h"

namespace mero {

namespace {

// Keeps the candidates of least value: a smaller one replaces the set, an equal one joins it
// unless it repeats the last point kept.
void offer(graphpointset& result, double& value, const graph_point& candidate, double y) {
  if (y < value) {
    result.clear();
    result.push_back(candidate);
    value = y;
  } else if (y == value && !(!result.empty() && result.back() == candidate)) {
    result.push_back(candidate);
  }
}

}  // namespace

graphpointset node_center(location_graph& g, double& value) {
  connection_repair(g, network_messages::center_not_connected);
  location_graph copy(g);
  matrix d = distance_matrix(copy);
  std::vector<double> w = head_weights(copy);
  int n = d.dim1();
  if (n == 0) empty_list_error(network_messages::empty_weights);
  std::vector<double> farthest;
  for (int x = 0; x < n; ++x) {
    double m = d(x, 0) * w[0];
    for (int j = 1; j < n; ++j)
      if (d(x, j) * w[at(j)] > m) m = d(x, j) * w[at(j)];
    farthest.push_back(m);
  }
  double best = farthest[0];
  graphpointset result;
  for (int k = 0; k < n; ++k) {
    if (farthest[at(k)] == best) {
      result.push_back({k, k, 0.0});
    } else if (farthest[at(k)] < best) {
      result.clear();
      result.push_back({k, k, 0.0});
      best = farthest[at(k)];
    }
  }
  value = best;
  return result;
}

graphpointset abs_center(location_graph& g, double& value) {
  connection_repair(g, network_messages::center_not_connected);
  location_graph copy(g);
  value = network_infinity;
  matrix d = distance_matrix(copy);
  std::vector<double> w = head_weights(copy);
  int n = d.dim1();
  node_array<int> number(copy, 0);
  int k = 0;
  for (node v = copy.first_node(); v != nullptr; v = graph::succ_node(v)) number[v] = k++;
  std::vector<tent> tents(at(n));
  graphpointset result;
  for (edge e = copy.first_edge(); e != nullptr; e = graph::succ_edge(e)) {
    int u = number[graph::source(e)], v = number[graph::target(e)];
    for (int i = 0; i < n; ++i) tents[at(i)] = node_tent(d(u, i), d(v, i), w[at(i)], copy.inf(e));
    for (const point& p : envelope_minima(tents)) {
      graph_point candidate{u, v, p.xcoord()};
      if (p.xcoord() == 0.0) candidate = {u, u, 0.0};
      if (p.xcoord() == 1.0) candidate = {v, v, 0.0};
      offer(result, value, candidate, p.ycoord());
    }
  }
  return result;
}

}  // namespace mero
