#include <algorithm>
#include <iostream>

#include "kernel/reporters.h"
#include "network/network_messages.h"
#include "network/pareto_median.h"

namespace mero {

namespace {

// In the plane of the two objectives a stretch runs from its left end (least first objective)
// to its right end; on a Pareto chain the second objective falls from left to right.
bool left_is_from(const edge_stretch& a) { return a.at_from[0] <= a.at_to[0]; }
const vector& left(const edge_stretch& a) { return left_is_from(a) ? a.at_from : a.at_to; }
const vector& right(const edge_stretch& a) { return left_is_from(a) ? a.at_to : a.at_from; }

bool chain_order(const edge_stretch& a, const edge_stretch& b) {
  if (left(a)[0] != left(b)[0]) return left(a)[0] < left(b)[0];
  return right(a)[0] < right(b)[0];
}

// A chain with, for each element, the largest first objective that it or an earlier element
// reaches: the elements before i cannot cover an x beyond reach[i].
struct chain_view {
  explicit chain_view(const std::vector<edge_stretch>& c) : elements(c) {
    double most = -1e300;
    for (const edge_stretch& e : c) reach.push_back(most = std::max(most, right(e)[0]));
  }
  const std::vector<edge_stretch>& elements;
  std::vector<double> reach;
};

// The second objective of e's segment at first objective x, inside its range.
double on_segment(const edge_stretch& e, double x) {
  const vector &l = left(e), &r = right(e);
  if (x == l[0]) return l[1];
  if (x == r[0]) return r[1];
  return l[1] + (x - l[0]) * (r[1] - l[1]) / (r[0] - l[0]);
}

// How one element bounds the second objective over a range of first objective: along its
// segment where it covers the range (cover), otherwise at the level of its right end.
struct bound {
  const edge_stretch* e;
  bool cover;
  double at(double x) const { return cover ? on_segment(*e, x) : right(*e)[1]; }
};

// The elements that may bound the chain over [x, x_end]: those starting at or before x that
// reach x, and the last one starting at or before x (on a chain the later elements are the
// lower ones, so no earlier gap matters). Elements only touch at equal points.
std::vector<bound> bounds_over(const chain_view& chain, double x, double x_end) {
  const std::vector<edge_stretch>& c = chain.elements;
  auto it = std::upper_bound(c.begin(), c.end(), x,
                             [](double v, const edge_stretch& e) { return v < left(e)[0]; });
  std::vector<bound> found;
  for (auto i = it - c.begin() - 1; i >= 0; --i) {
    if (right(c[i])[0] >= x || i == it - c.begin() - 1)
      found.push_back({&c[i], right(c[i])[0] >= x_end});
    if (i > 0 && chain.reach[i - 1] < x) break;
  }
  return found;
}

// Whether a chain point dominates the vector p: one on a covering segment that is lower, or an
// end further left that is not higher.
bool point_dominated(const vector& p, const chain_view& chain) {
  for (const bound& b : bounds_over(chain, p[0], p[0]))
    if (b.cover ? b.at(p[0]) < p[1] : b.at(p[0]) <= p[1]) return true;
  return false;
}

struct span {
  double x0, x1;
};

// The span of first objective in [x0, x1] where the segment a is not dominated by the chain.
// No element starts or ends strictly inside, so the lowest bound at the middle is the bound all
// along, and its difference to a is linear.
void free_span(const edge_stretch& a, double x0, double x1, const chain_view& chain,
               std::vector<span>& spans) {
  const std::vector<bound> candidates = bounds_over(chain, x0, x1);
  if (candidates.empty()) {
    spans.push_back({x0, x1});
    return;
  }
  const double middle = (x0 + x1) / 2;
  bound b = candidates.front();
  for (const bound& c : candidates)
    if (c.at(middle) < b.at(middle)) b = c;
  const double d0 = on_segment(a, x0) - b.at(x0), d1 = on_segment(a, x1) - b.at(x1);
  // On a covering segment equality is the same point, which stays; below a gap it is dominated.
  const bool keep0 = b.cover ? d0 <= 0 : d0 < 0, keep1 = b.cover ? d1 <= 0 : d1 < 0;
  if (keep0 && keep1) spans.push_back({x0, x1});
  if (keep0 == keep1) return;
  const double cross = x0 + (x1 - x0) * d0 / (d0 - d1);
  spans.push_back(keep0 ? span{x0, cross} : span{cross, x1});
}

// a's pieces that the chain does not dominate, with positions and vectors taken anew.
void clip(const sum_objectives& objectives, const edge_stretch& a, const chain_view& chain,
          std::vector<edge_stretch>& out) {
  const double l0 = left(a)[0], r0 = right(a)[0];
  if (l0 == r0) {
    if (!point_dominated(left(a), chain)) out.push_back(a);
    return;
  }
  std::vector<double> xs{l0, r0};
  for (const edge_stretch& e : chain.elements)
    for (double x : {left(e)[0], right(e)[0]})
      if (x > l0 && x < r0) xs.push_back(x);
  std::sort(xs.begin(), xs.end());
  xs.erase(std::unique(xs.begin(), xs.end()), xs.end());
  std::vector<span> spans;
  for (std::size_t k = 0; k + 1 < xs.size(); ++k) {
    std::vector<span> found;
    free_span(a, xs[k], xs[k + 1], chain, found);
    for (const span& s : found)
      if (!spans.empty() && spans.back().x1 >= s.x0)
        spans.back().x1 = s.x1;
      else
        spans.push_back(s);
  }
  const double s_left = left_is_from(a) ? a.from : a.to, s_right = left_is_from(a) ? a.to : a.from;
  auto position = [&](double x) {
    if (x == l0) return s_left;
    if (x == r0) return s_right;
    return s_left + (x - l0) / (r0 - l0) * (s_right - s_left);
  };
  for (const span& s : spans) {
    edge_stretch p = a;
    p.from = std::min(position(s.x0), position(s.x1));
    p.to = std::max(position(s.x0), position(s.x1));
    p.at_from = objectives.at(a.u, a.v, a.length, p.from);
    p.at_to = objectives.at(a.u, a.v, a.length, p.to);
    if (!at_edge_end(p)) out.push_back(p);
  }
}

// Every element of a chain falls from left to right; anything else is a state the merge should
// never meet, and is told on standard output.
void check_chain(const std::vector<edge_stretch>& chain) {
  for (const edge_stretch& e : chain)
    if (left(e)[1] < right(e)[1]) {
      std::cout << network_messages::merge_internal_state << std::endl;
      return;
    }
}

std::vector<edge_stretch> pareto_chain(const sum_objectives& objectives,
                                       const std::vector<edge_stretch>& pieces, std::size_t begin,
                                       std::size_t end) {
  if (end - begin == 0) return {};
  if (end - begin == 1) return {pieces[begin]};
  const std::size_t half = begin + (end - begin) / 2;
  return merge_pareto(objectives, pareto_chain(objectives, pieces, begin, half),
                      pareto_chain(objectives, pieces, half, end));
}

}  // namespace

std::vector<edge_stretch> merge_pareto(const sum_objectives& objectives,
                                       const std::vector<edge_stretch>& a,
                                       const std::vector<edge_stretch>& b) {
  check_chain(a);
  check_chain(b);
  std::vector<edge_stretch> merged;
  const chain_view view_a(a), view_b(b);
  for (const edge_stretch& e : a) clip(objectives, e, view_b, merged);
  for (const edge_stretch& e : b) clip(objectives, e, view_a, merged);
  std::stable_sort(merged.begin(), merged.end(), chain_order);
  return merged;
}

pareto_result bicriteria_median(location_graph& g) {
  connection_repair(g, network_messages::multicriteria_not_connected);
  location_graph copy = undirected_form(g);
  if (criteria_count(copy) != 2) report_error(network_messages::unsupported_problem);
  const sum_objectives objectives(copy);
  std::vector<edge_stretch> pieces;
  for (const edge_stretch& s : network_stretches(copy, objectives)) {
    const edge_stretch best = best_end(s);
    if (!at_edge_end(best)) pieces.push_back(best);
  }
  return pareto_output(pareto_chain(objectives, pieces, 0, pieces.size()));
}

}  // namespace mero
