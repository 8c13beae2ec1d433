#include "network/pareto_median.h"

#include <algorithm>
#include <tuple>

#include "kernel/graph_array.h"
#include "lp/two_variable_model.h"
#include "network/network_messages.h"

namespace mero {

sum_objectives::sum_objectives(const location_graph& g)
    : d(distance_matrix(g)),
      w(criteria_weights(g, criteria_count(g))),
      f(objective_matrix(d, w, false, false)) {}

vector sum_objectives::at(int u, int v, double l, double s) const {
  // The ends are the nodes' own columns, so that a node and the end of an edge compare equal.
  if (s == 0.0) return f.col(u);
  if (s == l) return f.col(v);
  vector value(w.dim1());
  for (int q = 0; q < w.dim1(); ++q)
    for (int i = 0; i < d.dim1(); ++i)
      value[q] = value[q] + std::min(s + d(u, i), (l - s) + d(v, i)) * w(q, i);
  return value;
}

std::vector<edge_stretch> edge_pieces(const sum_objectives& objectives, int edge, int u, int v,
                                      double l) {
  std::vector<edge_stretch> pieces;
  if (!(l > 0.0)) return pieces;
  std::vector<double> breaks{0.0, l};
  for (int i = 0; i < objectives.d.dim1(); ++i) {
    const double s = (l + objectives.d(v, i) - objectives.d(u, i)) / 2;
    if (s > 0.0 && s < l) breaks.push_back(s);
  }
  std::sort(breaks.begin(), breaks.end());
  breaks.erase(std::unique(breaks.begin(), breaks.end()), breaks.end());
  vector start = objectives.at(u, v, l, 0.0);
  for (std::size_t k = 0; k + 1 < breaks.size(); ++k) {
    vector end = objectives.at(u, v, l, breaks[k + 1]);
    pieces.push_back({edge, u, v, l, breaks[k], breaks[k + 1], start, end});
    start = end;
  }
  return pieces;
}

namespace {

// A stretch is read as p(lambda) = at_from + lambda * (at_to - at_from), lambda in [0, 1]; the
// two ends are returned as stored, so that shared ends compare exactly.
vector value_at(const edge_stretch& a, double lambda) {
  if (lambda == 0.0) return a.at_from;
  if (lambda == 1.0) return a.at_to;
  return a.at_from + (a.at_to - a.at_from) * lambda;
}

double position_at(const edge_stretch& a, double lambda) {
  if (lambda == 1.0) return a.to;
  return a.from + (a.to - a.from) * lambda;
}

edge_stretch part(const edge_stretch& a, double lo, double hi) {
  edge_stretch p = a;
  p.from = position_at(a, lo);
  p.to = position_at(a, hi);
  p.at_from = value_at(a, lo);
  p.at_to = value_at(a, hi);
  return p;
}

struct range {
  bool empty = true;
  double lo = 0.0;
  double hi = 1.0;
};

// The lambdas in [0, 1] with c + lambda * g <= 0 in every entry.
range feasible_range(const vector& c, const vector& g) {
  range r{false, 0.0, 1.0};
  for (int q = 0; q < c.dim(); ++q) {
    if (g[q] > 0.0)
      r.hi = std::min(r.hi, -c[q] / g[q]);
    else if (g[q] < 0.0)
      r.lo = std::max(r.lo, -c[q] / g[q]);
    else if (c[q] > 0.0)
      return {};
  }
  if (r.lo > r.hi) return {};
  return r;
}

// Whether some point of b dominates the vector a (is no greater anywhere and not equal).
bool dominated_by(const vector& a, const edge_stretch& b) {
  const range r = feasible_range(b.at_from - a, b.at_to - b.at_from);
  if (r.empty) return false;
  if (r.lo < r.hi && !(b.at_from == b.at_to)) return true;
  return !(value_at(b, r.lo) == a);
}

// The lambdas of a at which some point of b is no greater, from two linear programs over
// (lambda_a, lambda_b): b(lambda_b) <= a(lambda_a), least and greatest lambda_a.
range weakly_dominated_range(const edge_stretch& a, const edge_stretch& b) {
  if (b.is_point()) return feasible_range(b.at_from - a.at_from, a.at_from - a.at_to);
  const int rows = a.at_from.dim();
  std::vector<double> rhs(rows + 1), ca(rows + 1), cb(rows + 1);
  for (int q = 0; q < rows; ++q) {
    rhs[q + 1] = a.at_from[q] - b.at_from[q];
    ca[q + 1] = a.at_from[q] - a.at_to[q];
    cb[q + 1] = b.at_to[q] - b.at_from[q];
  }
  const std::vector<double> lower{0, 0, 0}, upper{0, 1, 1}, objective{0, 1, 0};
  bool found = false;
  const auto least =
      solve_two_variable_model(rows, rhs, ca, cb, lower, upper, objective, false, &found);
  if (!found) return {};
  const auto greatest =
      solve_two_variable_model(rows, rhs, ca, cb, lower, upper, objective, true, &found);
  if (!found) return {};
  range r{false, std::clamp(least[0], 0.0, 1.0), std::clamp(greatest[0], 0.0, 1.0)};
  if (r.lo > r.hi) return {};
  return r;
}

// No point of b can be below every objective of a point of a: b is higher somewhere throughout.
bool out_of_reach(const edge_stretch& a, const edge_stretch& b) {
  for (int q = 0; q < a.at_from.dim(); ++q)
    if (std::min(b.at_from[q], b.at_to[q]) > std::max(a.at_from[q], a.at_to[q])) return true;
  return false;
}

// An end of b dominates the entrywise least vector of a: then all of a is dominated.
bool end_dominates_all(const edge_stretch& a, const edge_stretch& b) {
  vector least = a.at_from;
  for (int q = 0; q < least.dim(); ++q) least[q] = std::min(least[q], a.at_to[q]);
  return dominates(b.at_from, least) || dominates(b.at_to, least);
}

// What remains of a after cutting what b dominates: zero, one or two parts. The weakly
// dominated range is cut except its ends where a point of b only equals a; when even its middle
// is only equalled, the two stretches coincide there and nothing is cut.
std::vector<edge_stretch> cut_by(const edge_stretch& a, const edge_stretch& b) {
  if (out_of_reach(a, b)) return {a};
  if (a.is_point())
    return dominated_by(a.at_from, b) ? std::vector<edge_stretch>{} : std::vector<edge_stretch>{a};
  if (end_dominates_all(a, b)) return {};
  const range r = weakly_dominated_range(a, b);
  if (r.empty) return {a};
  if (r.lo < r.hi && !dominated_by(value_at(a, (r.lo + r.hi) / 2), b)) return {a};
  std::vector<edge_stretch> parts;
  if (r.lo > 0.0 || !dominated_by(value_at(a, r.lo), b)) parts.push_back(part(a, 0.0, r.lo));
  if (r.hi < 1.0 || !dominated_by(value_at(a, r.hi), b)) parts.push_back(part(a, r.hi, 1.0));
  if (parts.size() == 2 && r.lo == r.hi) parts = {a};  // a single point, equalled only
  return parts;
}

void keep_parts(const std::vector<edge_stretch>& parts, std::vector<edge_stretch>& out) {
  for (const edge_stretch& p : parts)
    if (!at_edge_end(p)) out.push_back(p);
}

}  // namespace

edge_stretch best_end(const edge_stretch& a) {
  if (dominates(a.at_from, a.at_to)) return part(a, 0.0, 0.0);
  if (dominates(a.at_to, a.at_from)) return part(a, 1.0, 1.0);
  return a;
}

std::vector<edge_stretch> prune_pieces(const std::vector<edge_stretch>& pieces) {
  // Every dominated point is dominated by a point of the final set, so each new stretch is cut
  // by the survivors so far, and what is left of it cuts the survivors in turn.
  std::vector<edge_stretch> survivors;
  for (const edge_stretch& piece : pieces) {
    std::vector<edge_stretch> rest;
    keep_parts({best_end(piece)}, rest);
    for (std::size_t k = 0; k < survivors.size() && !rest.empty(); ++k) {
      std::vector<edge_stretch> cut;
      for (const edge_stretch& r : rest) keep_parts(cut_by(r, survivors[k]), cut);
      rest = std::move(cut);
    }
    if (rest.empty()) continue;
    std::vector<edge_stretch> next;
    for (const edge_stretch& s : survivors) {
      std::vector<edge_stretch> left{s};
      for (const edge_stretch& r : rest) {
        std::vector<edge_stretch> cut;
        for (const edge_stretch& l : left) keep_parts(cut_by(l, r), cut);
        left = std::move(cut);
      }
      next.insert(next.end(), left.begin(), left.end());
    }
    next.insert(next.end(), rest.begin(), rest.end());
    survivors = std::move(next);
  }
  return survivors;
}

std::vector<edge_stretch> network_stretches(location_graph& copy,
                                            const sum_objectives& objectives) {
  std::vector<edge_stretch> pieces;
  const pareto_result nodes = pareto_nodes(copy, false, false, false);
  for (const pareto_piece& p : nodes.pieces) {
    const vector value = objectives.f.col(p.first);
    pieces.push_back({-1, p.first, p.first, 0.0, 0.0, 0.0, value, value});
  }
  node_array<int> number(copy, 0);
  int k = 0;
  for (node v = copy.first_node(); v != nullptr; v = graph::succ_node(v)) number[v] = k++;
  k = 0;
  for (edge e = copy.first_edge(); e != nullptr; e = graph::succ_edge(e), ++k)
    for (edge_stretch& s : edge_pieces(objectives, k, number[graph::source(e)],
                                       number[graph::target(e)], copy.inf(e)))
      pieces.push_back(std::move(s));
  return pieces;
}

bool at_edge_end(const edge_stretch& a) {
  return a.edge >= 0 && a.is_point() && (a.from == 0.0 || a.from == a.length);
}

pareto_result pareto_output(std::vector<edge_stretch> stretches) {
  auto key = [](const edge_stretch& a) {
    return std::make_tuple(a.edge >= 0, a.u, a.v, a.edge, a.from, a.to);
  };
  std::sort(stretches.begin(), stretches.end(),
            [&](const edge_stretch& a, const edge_stretch& b) { return key(a) < key(b); });
  pareto_result result;
  for (const edge_stretch& a : stretches) {
    const double scale = a.edge >= 0 ? a.length : 1.0;
    result.append({a.u, a.v, a.from / scale, a.to / scale}, a.at_from, a.at_to);
  }
  return result;
}

pareto_result pareto_median(location_graph& g) {
  connection_repair(g, network_messages::multicriteria_not_connected);
  location_graph copy = undirected_form(g);
  const sum_objectives objectives(copy);
  return pareto_output(prune_pieces(network_stretches(copy, objectives)));
}

}  // namespace mero
