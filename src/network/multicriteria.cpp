#include "network/multicriteria.h"

#include <algorithm>
#include <vector>

#include "kernel/error_handler.h"
#include "kernel/reporters.h"
#include "network/network_messages.h"

namespace mero {

void pareto_result::append(const pareto_piece& p, const vector& from_value,
                           const vector& to_value) {
  pieces.push_back(p);
  at_from.push_back(from_value);
  at_to.push_back(to_value);
}

int criteria_count(const location_graph& g) {
  node first = g.first_node();
  return first == nullptr ? 0 : static_cast<int>(g.inf(first).weights.size());
}

matrix criteria_weights(const location_graph& g, int q_count) {
  matrix w(q_count, g.number_of_nodes());
  int i = 0;
  for (node v = g.first_node(); v != nullptr; v = graph::succ_node(v), ++i) {
    auto weight = g.inf(v).weights.begin();
    for (int q = 0; q < q_count; ++q, ++weight) {
      if (weight == g.inf(v).weights.end()) empty_list_error(network_messages::empty_weights);
      w(q, i) = *weight;
    }
  }
  return w;
}

matrix objective_matrix(const matrix& d, const matrix& w, bool directed, bool center) {
  const int n = d.dim1();
  matrix f(w.dim1(), n);
  for (int q = 0; q < w.dim1(); ++q)
    for (int x = 0; x < n; ++x) {
      double value = 0.0;
      for (int i = 0; i < n; ++i) {
        const double distance = directed ? d(x, i) + d(i, x) : d(i, x);
        const double term = distance * w(q, i);
        value = center ? std::max(value, term) : value + term;
      }
      f(q, x) = value;
    }
  return f;
}

std::vector<vector> columns_of(const matrix& f) {
  std::vector<vector> columns;
  for (int x = 0; x < f.dim2(); ++x) columns.push_back(f.col(x));
  return columns;
}

bool dominates(const vector& a, const vector& b) {
  bool smaller = false;
  for (int q = 0; q < a.dim(); ++q) {
    if (a[q] > b[q]) return false;
    if (a[q] < b[q]) smaller = true;
  }
  return smaller;
}

vector point_objective(const matrix& d, const matrix& w, int u, int v, double l, double t) {
  vector value(w.dim1());
  for (int i = 0; i < d.dim1(); ++i) {
    const double distance = std::min(t * l + d(i, u), (1 - t) * l + d(i, v));
    for (int q = 0; q < w.dim1(); ++q) value[q] = std::max(value[q], distance * w(q, i));
  }
  return value;
}

namespace {

// The first arc from c to d in c's outgoing list, or nullptr.
edge arc_between(const location_graph& g, node c, node d) {
  for (edge e = g.first_adj_edge(c, 0); e != nullptr; e = g.next_adj_edge(e, c, 0))
    if (graph::target(e) == d) return e;
  return nullptr;
}

// dir_cenPareto: a whole arc between two Pareto nodes of equal columns is optimal when its
// midpoint scores the same. Every ordered pair is tried, so an arc may be reported from both ends.
void add_whole_arcs(const location_graph& g, const matrix& d, const matrix& w,
                    const std::vector<vector>& f, const std::vector<int>& candidates,
                    pareto_result& result) {
  const std::vector<node> by_number = g.all_nodes();
  for (int c : candidates)
    for (int e : candidates) {
      if (c == e) continue;
      edge arc = arc_between(g, by_number[c], by_number[e]);
      if (arc == nullptr) arc = arc_between(g, by_number[e], by_number[c]);
      if (arc == nullptr || !(f[c] == f[e])) continue;
      if (point_objective(d, w, c, e, g.inf(arc), 0.5) == f[e])
        result.append({c, e, 0.0, 1.0}, f[c], f[c]);
    }
}

}  // namespace

pareto_result pareto_nodes(location_graph& g, bool directed, bool absolute, bool center) {
  if (!directed && absolute) report_error(network_messages::unsupported_problem);
  connection_repair(g, network_messages::multicriteria_not_connected);
  location_graph copy(g);
  const matrix d = distance_matrix(copy);
  const matrix w = criteria_weights(copy, criteria_count(copy));
  const std::vector<vector> f = columns_of(objective_matrix(d, w, directed, center));
  // Dominance is transitive, so testing each node against all nodes equals deleting the
  // dominated ones one by one from the list.
  std::vector<int> candidates;
  for (int c = 0; c < d.dim1(); ++c) {
    bool dominated = false;
    for (int o = 0; o < d.dim1() && !dominated; ++o) dominated = dominates(f[o], f[c]);
    if (!dominated) candidates.push_back(c);
  }
  pareto_result result;
  for (int c : candidates) result.append({c, c, 0.0, 0.0}, f[c], f[c]);
  if (directed && absolute && center) add_whole_arcs(copy, d, w, f, candidates, result);
  return result;
}

}  // namespace mero
