#include "network/graph_median.h"

#include <cmath>
#include <memory>
#include <numeric>
#include <vector>

#include "kernel/index.h"
#include "network/landmark_bounds.h"
#include "network/network_messages.h"

namespace mero {

namespace {

// The score of the midpoint of an edge of length l between a and b, from the rows of D of a and
// b: each node is served from the nearer end (b on a tie) and half the edge further.
double midpoint_score(const double* da, const double* db, const std::vector<double>& w, double l) {
  double s = 0.0;
  for (std::size_t i = 0; i < w.size(); ++i) {
    double near = da[i] >= db[i] ? db[i] : da[i];
    s = (l * 0.5 + near) * w[i] + s;
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

// Above this many nodes an undirected median reads its distances one row at a time even when
// they are not exact sums (the matrix would take 512 MB or more). A row gives D(x,j) only, and
// the score doubles it: the same as D(x,j) + D(j,x) wherever the two read alike, and otherwise
// off by the rounding of the two sums.
constexpr int matrix_node_limit = 8192;

// The score s is the best one so far or ties with it: keep x.
void take_score(graphpointset& result, double& value, int x, double s) {
  if (s < value) {
    result.clear();
    result.push_back({x, x, 0.0});
    value = s;
  } else if (s == value) {
    result.push_back({x, x, 0.0});
  }
}

// The scores of an undirected graph from one Dijkstra row per node. With finite non-negative
// weights a row is given up once a bound shows its score above the best one: the nodes not yet
// settled lie at least as far as the one just settled, and rounded sums of larger non-negative
// terms are never smaller, so the bound is below the score the whole row would give. With exact
// path sums as well, landmark bounds order the nodes and end the search at the first node whose
// bound exceeds the best score. Either way the result is every node of least score, in order.
void median_by_rows(shortest_path_rows& rows, const std::vector<double>& w, bool exact,
                    graphpointset& result, double& value) {
  const int n = rows.size();
  bool bounded = true;
  for (double x : w) bounded = bounded && x >= 0.0 && std::isfinite(x);
  // The score with each node not yet settled put at its least possible distance: floor, or its
  // landmark difference where that is larger (every term at most the row's own).
  std::vector<double> least(at(n), 0.0);
  auto fold = [&](double floor) {
    double s = 0.0;
    for (int j = 0; j < n; ++j) {
      double d = rows.settled(j) ? cap_distance(rows.distance(j)) : std::max(floor, least[at(j)]);
      s = (d + d) * w[at(j)] + s;
    }
    return s;
  };
  std::vector<int> order(at(n));
  std::iota(order.begin(), order.end(), 0);
  std::vector<double> bound;
  std::unique_ptr<landmark_bounds> marks;
  if (bounded && exact && n > 0) {
    marks = std::make_unique<landmark_bounds>(rows, w, landmark_count);
    if (!marks->complete()) marks.reset();
  }
  if (marks) {
    bound = marks->doubled_sum();
    order = order_by(bound);
  }
  std::vector<double> score(at(n));
  std::vector<char> scored(at(n), 0);
  for (int x : order) {
    if (marks) {
      if (bound[at(x)] > value) break;
      marks->differences(x, least);
      double s = 0.0;
      for (int j = 0; j < n; ++j) s = (least[at(j)] + least[at(j)]) * w[at(j)] + s;
      if (s > value) continue;
    }
    int settled = 0, check = n / 8;
    bool dropped = false;
    rows.run(x, [&](int, double d) {
      if (!bounded || ++settled < check || settled == n) return true;
      check = settled + n / 16 + 1;
      dropped = fold(cap_distance(d)) > value;
      return !dropped;
    });
    if (dropped) continue;
    score[at(x)] = fold(0.0);
    scored[at(x)] = 1;
    if (score[at(x)] < value) value = score[at(x)];
  }
  for (int x = 0; x < n; ++x)
    if (scored[at(x)] && score[at(x)] == value) result.push_back({x, x, 0.0});
}

// The undirected median from rows: `force` takes them whatever the lengths.
bool median_from_rows(location_graph& g, bool force, graphpointset& result, double& value) {
  if (!g.is_undirected()) return false;
  shortest_path_rows rows = distance_rows(g);
  const bool exact = exact_path_sums(g);
  if (!rows.usable() || !(force || rows.size() > matrix_node_limit || exact)) return false;
  value = network_infinity;
  median_by_rows(rows, head_weights(g), exact, result, value);
  value = value * 0.5;
  return true;
}

}  // namespace

graphpointset graph_median_by_rows(location_graph& g, double& value) {
  connection_repair(g, network_messages::median_not_connected);
  location_graph copy(g);
  graphpointset result;
  if (median_from_rows(copy, true, result, value)) return result;
  return graph_median(g, 'u', value);
}

graphpointset graph_median(location_graph& g, char mode, double& value) {
  connection_repair(g, network_messages::median_not_connected);
  location_graph copy(g);
  graphpointset result;
  if (mode == 'u' && median_from_rows(copy, false, result, value)) return result;
  value = network_infinity;
  matrix d = distance_matrix(copy);
  std::vector<double> w = head_weights(copy);
  int n = d.dim1();
  for (int x = 0; x < n; ++x) {
    double s = 0.0;
    for (int j = 0; j < n; ++j) s = (d(x, j) + d(j, x)) * w[at(j)] + s;
    take_score(result, value, x, s);
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
  // The test reads the rows of optimal nodes only: with no negative length they are Dijkstra
  // runs of their own (a's once, b's for each pair joined by an edge), not the whole matrix.
  shortest_path_rows rows = distance_rows(copy);
  matrix d;
  if (!rows.usable()) d = distance_matrix(copy);
  if (nodes.size() <= 1) return nodes;
  std::vector<double> w = head_weights(copy);
  std::vector<node> by_number = copy.all_nodes();
  std::vector<double> row_a(w.size()), row_b(w.size());
  auto row_of = [&](int x, std::vector<double>& out) {
    if (rows.usable()) {
      rows.row(x, out.data(), 0.0);
      for (double& y : out) y = cap_distance(y);
    } else {
      for (std::size_t j = 0; j < out.size(); ++j) out[j] = d(x, static_cast<int>(j));
    }
  };
  graphpointset edges;
  for (const graph_point& a : nodes) {
    row_of(a.first, row_a);
    for (const graph_point& b : nodes) {
      edge e = stored_edge_into(copy, by_number[at(b.first)], by_number[at(a.first)]);
      if (e == nullptr) continue;
      row_of(b.first, row_b);
      if (midpoint_score(row_a.data(), row_b.data(), w, copy.inf(e)) == value)
        edges.push_back({a.first, b.first, 0.0});
    }
  }
  nodes.splice(nodes.end(), edges);
  return nodes;
}

}  // namespace mero
