#include "network/graph_center.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <vector>

#include "kernel/error_handler.h"
#include "kernel/graph_array.h"
#include "kernel/index.h"
#include "network/landmark_bounds.h"
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
  shortest_path_rows rows = distance_rows(copy);
  matrix d;
  if (!rows.usable()) d = distance_matrix(copy);
  std::vector<double> w = head_weights(copy);
  int n = static_cast<int>(w.size());
  if (n == 0) empty_list_error(network_messages::empty_weights);
  // The farthest weighted distance of each node, from its own row (the first entry of greatest
  // value), and every node of least value in order. With no negative length the row is a
  // Dijkstra run that stops once a node it settles is weighted above the best value so far: the
  // node cannot win or tie then. With finite weights no value is NaN and the best one is the
  // least; with exact path sums and no negative weight, landmark bounds order the nodes and end
  // the search at the first node whose bound exceeds the best value.
  bool finite = true, signed_weights = false;
  for (double x : w) finite = finite && std::isfinite(x), signed_weights = signed_weights || x < 0;
  std::vector<int> order(at(n));
  std::iota(order.begin(), order.end(), 0);
  std::vector<double> bound;
  if (rows.usable() && finite && !signed_weights && copy.is_undirected() && exact_path_sums(copy)) {
    landmark_bounds marks(rows, w, landmark_count);
    if (marks.complete()) bound = marks.farthest();
    if (marks.complete()) order = order_by(bound);
  }
  std::vector<double> farthest(at(n));
  std::vector<char> scored(at(n), 0);
  double best = std::numeric_limits<double>::infinity();
  std::vector<double> row(at(n));
  for (int x : order) {
    if (!bound.empty() && bound[at(x)] > best) break;
    if (rows.usable()) {
      bool dropped = false;
      rows.run(x, [&](int v, double dv) {
        dropped = finite && cap_distance(dv) * w[at(v)] > best;
        return !dropped;
      });
      if (dropped) continue;
      for (int j = 0; j < n; ++j)
        row[at(j)] = rows.reached(j) ? cap_distance(rows.distance(j)) : 0.0;
    } else {
      for (int j = 0; j < n; ++j) row[at(j)] = d(x, j);
    }
    double m = row[0] * w[0];
    for (int j = 1; j < n; ++j)
      if (row[at(j)] * w[at(j)] > m) m = row[at(j)] * w[at(j)];
    farthest[at(x)] = m;
    scored[at(x)] = 1;
    if (m < best) best = m;
  }
  // As the nodes are taken in turn: the first node's value is the start (the least one when
  // every value is a number, and then nodes left out lie above it), a smaller one replaces the
  // winners and an equal one joins them.
  graphpointset result;
  if (!finite) best = farthest[0];
  for (int k = 0; k < n; ++k) {
    if (!scored[at(k)]) continue;
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
  const std::vector<double> table = distance_table(copy);
  std::vector<double> w = head_weights(copy);
  int n = copy.number_of_nodes();
  auto d = [&](int i, int j) { return table[at(i) * at(n) + at(j)]; };
  node_array<int> number(copy, 0);
  int k = 0;
  for (node v = copy.first_node(); v != nullptr; v = graph::succ_node(v)) number[v] = k++;
  std::vector<tent> tents(at(n));
  graphpointset result;
  // With one finite non-negative weight for all nodes an edge is passed over when no point of it
  // can reach the final value: that value is at most the farthest weighted distance of every
  // edge's source (the walk starts there), and no point of an edge lies below the highest of
  // the tents' low ends, w min(D(u,i), D(v,i)). The envelope's points are crossings of a rising
  // and a falling line of slopes +-L w, computed within a few units in the last place of the
  // largest height; the margin of 1e-9 of that height covers them many times over.
  double limit = std::numeric_limits<double>::infinity();
  const bool equal_weights = n > 0 && std::isfinite(w[0]) && w[0] >= 0.0 &&
                             std::all_of(w.begin(), w.end(), [&](double x) { return x == w[0]; });
  if (equal_weights) {
    std::vector<char> seen(at(n), 0);
    for (edge e = copy.first_edge(); e != nullptr; e = graph::succ_edge(e)) {
      int u = number[graph::source(e)];
      if (seen[at(u)]++) continue;
      double far = d(u, 0) * w[0];
      for (int i = 1; i < n; ++i) far = std::max(far, d(u, i) * w[at(i)]);
      limit = std::min(limit, far);
    }
  }
  for (edge e = copy.first_edge(); e != nullptr; e = graph::succ_edge(e)) {
    int u = number[graph::source(e)], v = number[graph::target(e)];
    if (equal_weights) {
      double low = 0.0, height = 0.0;
      for (int i = 0; i < n; ++i) {
        low = std::max(low, std::min(d(u, i), d(v, i)));
        height = std::max(height, std::max(d(u, i), d(v, i)) + copy.inf(e));
      }
      if (low * w[0] > std::min(limit, value) + 1e-9 * height * w[0]) continue;
    }
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
