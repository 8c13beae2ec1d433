// Weighted single-facility centers under the maximum and the rectilinear norm.

#include <algorithm>
#include <cmath>
#include <vector>

#include "kernel/error_handler.h"
#include "kernel/reporters.h"
#include "model/facilities.h"
#include "model/model_messages.h"
#include "planar/single_facility_messages.h"
#include "planar/weighted_points.h"

namespace mero {

namespace {

// Bounds closer than this are taken as equal: they describe one point that rounding split.
constexpr double same_bound = 1e-14;

// The optimal value: the largest, over all pairs, of a coordinate distance times u v / (u + v),
// the weighted distance at which the two locations' cones meet. Pairs whose factor is no number
// (weights summing to zero, infinite weights) leave the value alone.
double largest_pair_value(const std::vector<weighted_point>& points) {
  double z = 0.0;
  for (std::size_t i = 0; i < points.size(); ++i) {
    const weighted_point& a = points[i];
    for (std::size_t j = i + 1; j < points.size(); ++j) {
      const weighted_point& b = points[j];
      const double t = a.w * b.w / (a.w + b.w);
      z = std::max(z, std::fabs(a.x - b.x) * t);
      z = std::max(z, std::fabs(a.y - b.y) * t);
    }
  }
  return z;
}

// The box of points within weighted distance z of every location: its lower corner is the
// largest a - z / w, its upper corner the smallest a + z / w. A zero weight gives an infinite
// bound, which never wins.
void optimal_box(const std::vector<weighted_point>& points, double z, weighted_point& lower,
                 weighted_point& upper) {
  const weighted_point& head = points.front();
  lower = {head.x - z / head.w, head.y - z / head.w, 1.0};
  upper = {head.x + z / head.w, head.y + z / head.w, 1.0};
  for (const weighted_point& a : points) {
    lower.x = std::max(lower.x, a.x - z / a.w);
    lower.y = std::max(lower.y, a.y - z / a.w);
    upper.x = std::min(upper.x, a.x + z / a.w);
    upper.y = std::min(upper.y, a.y + z / a.w);
  }
  if (std::fabs(lower.x - upper.x) < same_bound) lower.x = upper.x;
  if (std::fabs(lower.y - upper.y) < same_bound) lower.y = upper.y;
}

}  // namespace

// Weighted maximum-norm center: the optimal value is the largest pairwise meeting distance
// (O(n^2) pairs), the optima the box that every location reaches within it, which in the maximum
// norm is a point or a segment. optima receives one point or the segment's two ends, weight
// entry 0 = 1.0. All locations at one place: the first with non-zero weight; no non-zero weight
// at all ends the run with the whole-plane message.
double facilities::linf_max(bool clear) {
  if (clear) optima_.clear();
  if (empty()) empty_list_error(model_messages::empty_list);
  const std::vector<weighted_point> points = weighted_points(*this, 0);
  const double z = largest_pair_value(points);
  if (z == 0.0) {
    for (const location& l : *this)
      if (l.weight(0) != 0.0) {
        optima_.push_back(l);
        return z;
      }
    report_message(single_facility_messages::linf_max_whole_plane, false, windowed_mode);
    return z;
  }
  weighted_point lower, upper;
  optimal_box(points, z, lower, upper);
  optima_.push_back(result_location(lower.x, lower.y, 1.0));
  if (lower.x != upper.x || lower.y != upper.y)
    optima_.push_back(result_location(upper.x, upper.y, 1.0));
  return z;
}

double facilities::solve_in_rotated_plane(double (facilities::*linf_solver)(bool), bool clear) {
  facilities scratch = *this;
  scratch.linf_to_l1();
  const double value = (scratch.*linf_solver)(clear);
  optima_ = scratch.optima_;
  l1_to_linf(optima_);
  return value;
}

// Weighted rectilinear center: linf_max in the rotated plane, optima mapped back. The value
// needs no new evaluation. Degenerate cases as in linf_max.
double facilities::l1_max(bool clear) {
  return solve_in_rotated_plane(&facilities::linf_max, clear);
}

}  // namespace mero
