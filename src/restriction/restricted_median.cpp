// Restricted median problems: the rectilinear, Chebyshev and squared Euclidean medians when the
// new facility must keep out of (or, in the "out" forms, keep to) the regions of a list.

#include <cmath>
#include <vector>

#include "kernel/error_handler.h"
#include "model/facilities.h"
#include "model/model_messages.h"
#include "restriction/boundary.h"
#include "restriction/restriction.h"

namespace mero {

namespace {

constexpr double infinity_value = 1e50;

// The unrestricted optima U stand when they are feasible: for forbidden insides, when no
// restriction contains any of them; for forbidden outsides, when the first region to contain
// one contains them all. Only the head of the list is asked for the sense.
bool unrestricted_stands(const restriction_list& restrictions, const std::list<location>& U,
                         const restriction* hit) {
  const bool forbidden_inside = head_of(restrictions).is_forbidden_inside();
  if (!hit && forbidden_inside) return true;
  return hit && !forbidden_inside && inside_all(U, hit);
}

bool is_convex_polygon(const restriction& r) {
  const auto* p = dynamic_cast<const restr_polygon*>(&r);
  return p && p->is_convex();
}

// Candidates of the grid of a rectilinear-type metric: where the lines through each location
// in the two directions cross the boundary, plus the corners where the grid can miss the
// optimum. Both directions are exact vectors, so a grid line through a vertex meets it exactly.
std::list<location> grid_candidates(const facilities& problem, const restriction_list& list,
                                    const restriction* hit, const vector& first,
                                    const vector& second) {
  location like(2, problem.front().weight_dim());
  like.weight_ref(0) = 1.0;
  std::list<location> candidates;
  auto add_crossings = [&](const line& l) {
    auto add_from = [&](const restriction& r) {
      for (const point& q : r.hit_line(l)) candidates.push_back(located_like(q, like));
    };
    if (hit) {
      add_from(*hit);
    } else {
      for (const auto& r : list) add_from(*r);
    }
  };
  for (const location& a : problem) {
    const point pa(a);
    add_crossings(line(pa, pa + first));
    add_crossings(line(pa, pa + second));
  }
  auto add_corners = [&](const restriction& r) {
    for (const point& q : region_vertices(r)) candidates.push_back(located_like(q, like));
  };
  if (!hit) {
    for (const auto& r : list) add_corners(*r);
  } else if (hit->shape() == 0 && !is_convex_polygon(*hit)) {
    add_corners(*hit);
  }
  return candidates;
}

// The best candidates under the norm code p, without repeated points; running numbers in
// weight 0 among equally good ones. Returns the best value (1e50 without candidates).
double best_candidates(const facilities& problem, std::list<location>& candidates, int p,
                       std::list<location>& opt) {
  double best = infinity_value;
  int k = 0;
  opt.clear();
  for (location& c : candidates) {
    c.weight_ref(0) = k;
    const double value = problem.objective(p, c, 0);
    if (value < best) {
      best = value;
      k = 0;
      c.weight_ref(0) = 0.0;
      opt = {c};
    } else if (value == best) {
      bool repeated = false;
      for (const location& o : opt)
        if (o.coordinates() == c.coordinates()) repeated = true;
      if (repeated) continue;
      c.weight_ref(0) = ++k;
      opt.push_back(c);
    }
  }
  return best;
}

// Shared by in_l1_sum and in_linf_sum: the unrestricted optima are kept when feasible, otherwise
// the best point of the candidate grid in the directions first and second, evaluated under norm
// code p. Exact for one convex region, where the optimum lies on a grid line or a corner.
double restricted_grid_median(facilities& problem, std::list<location>& optima,
                              const restriction_list& restrictions, double z, int p,
                              const vector& first, const vector& second) {
  const restriction* hit = first_containing_any(optima, restrictions);
  if (unrestricted_stands(restrictions, optima, hit)) return z;
  std::list<location> candidates = grid_candidates(problem, restrictions, hit, first, second);
  return best_candidates(problem, candidates, p, optima);
}

}  // namespace

// Weighted rectilinear median (l1) outside (or inside) the regions of a list: the unrestricted
// median set if feasible, else the best crossings of the horizontal and vertical lines through
// the locations with the boundary, plus corners. O(n (n e + log n)) for n locations, e edges.
// optima: every best candidate once, running numbers in weight 0.
double facilities::in_l1_sum(const restriction_list& restrictions) {
  facilities copy = *this;
  const double z = copy.l1_sum(0, true);
  optima_ = copy.optima();
  return restricted_grid_median(*this, optima_, restrictions, z, 1, mero::vector(1.0, 0.0),
                                mero::vector(0.0, 1.0));
}

// Weighted Chebyshev median (linf): as in_l1_sum with the diagonal grid lines.
double facilities::in_linf_sum(const restriction_list& restrictions) {
  facilities copy = *this;
  const double z = copy.linf_sum(0, true);
  optima_ = copy.optima();
  return restricted_grid_median(*this, optima_, restrictions, z, -1, mero::vector(1.0, 1.0),
                                mero::vector(-1.0, 1.0));
}

// Weighted squared Euclidean median with restrictions: the centre of gravity if feasible, else
// the nearest of the boundary candidates (proj_l2sqr) to it, since the level curves are circles
// about it. O(n + e). optima: the nearest candidates (ties numbered 0, 1, ... in weight 0).
double facilities::in_l2sqr_sum(const restriction_list& restrictions) {
  facilities copy = *this;
  const double z = copy.l2sqr_sum(0, true);
  optima_ = copy.optima();
  const location p = optima_.front();
  const bool forbidden_inside = head_of(restrictions).is_forbidden_inside();
  const restriction* hit = first_containing(restrictions, p);
  if ((!hit && forbidden_inside) || (hit && !forbidden_inside)) return z;
  std::list<location> candidates;
  if (hit) {
    candidates = hit->proj_l2sqr(p);
  } else {
    for (const auto& r : restrictions) candidates.splice(candidates.end(), r->proj_l2sqr(p));
  }
  double best = infinity_value;
  std::list<location> result;
  for (location& c : candidates) {
    const double d = point(c).distance(point(p));
    if (d < best) {
      best = d;
      c.weight_ref(0) = 0.0;
      result = {c};
    } else if (d == best && c.coordinates() != result.front().coordinates()) {
      c.weight_ref(0) = result.back().weight(0) + 1.0;
      result.push_back(c);
    }
  }
  // A figure without boundary (a circle of negative radius) offers nothing: U stays.
  if (result.empty()) return z;
  optima_ = result;
  double value = 0.0;
  const point head(result.front());
  for (const location& a : *this) {
    const double d = point(a).distance(head);
    value += a.weight(0) * d * d;
  }
  return value;
}

}  // namespace mero
