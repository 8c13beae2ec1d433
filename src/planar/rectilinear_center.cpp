// Weighted single-facility centers under the maximum and the rectilinear norm.

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "kernel/error_handler.h"
#include "kernel/reporters.h"
#include "model/facilities.h"
#include "model/model_messages.h"
#include "planar/planar_messages.h"
#include "planar/weighted_points.h"

namespace mero {

namespace {

// Bounds closer than this are taken as equal: they describe one point that rounding split.
constexpr double same_bound = 1e-14;

constexpr double infinity = std::numeric_limits<double>::infinity();

// The meeting value of two locations in one coordinate: their distance times u v / (u + v), the
// weighted distance at which their cones meet. The operands commute exactly, so the order of the
// pair does not change the double.
// Weights near the double range overflow u v, and the factor is then taken in its harmonic form.
double meeting_value(double a, double u, double b, double v) {
  double factor = u * v / (u + v);
  if (std::isinf(u * v)) factor = 1.0 / (1.0 / u + 1.0 / v);
  return std::fabs(a - b) * factor;
}

// The largest meeting value over all pairs, by scanning every pair. Pairs whose factor is no
// number (weights summing to zero, infinite weights) leave the value alone.
double largest_pair_value_by_scan(const std::vector<double>& a, const std::vector<double>& w) {
  double z = 0.0;
  for (std::size_t i = 0; i < a.size(); ++i)
    for (std::size_t j = i + 1; j < a.size(); ++j)
      z = std::max(z, meeting_value(a[i], w[i], a[j], w[j]));
  return z;
}

// Positive weights and coordinates of moderate size: there the rounding bounds of
// largest_pair_value hold.
bool is_well_scaled(const std::vector<double>& a, const std::vector<double>& w) {
  for (std::size_t k = 0; k < a.size(); ++k)
    if (!(w[k] >= 1e-100 && w[k] <= 1e100 && std::fabs(a[k]) <= 1e100)) return false;
  return true;
}

// The point x where the largest weighted distance to the left, max w (x - a), meets the largest to
// the right, max w (a - x): the one-dimensional weighted center, found by bisection.
double one_dimensional_center(const std::vector<double>& a, const std::vector<double>& w) {
  double lo = *std::min_element(a.begin(), a.end());
  double hi = *std::max_element(a.begin(), a.end());
  for (int step = 0; step < 200; ++step) {
    const double mid = lo + (hi - lo) * 0.5;
    if (mid == lo || mid == hi) break;
    double left = -infinity, right = -infinity;
    for (std::size_t k = 0; k < a.size(); ++k) {
      left = std::max(left, w[k] * (mid - a[k]));
      right = std::max(right, w[k] * (a[k] - mid));
    }
    (left < right ? lo : hi) = mid;
  }
  return lo;
}

// The largest meeting value over all pairs, the same double as the scan gives, in about
// O(n log(range)). For any x, a pair's meeting value is at most the larger of the two weighted
// distances g = w |x - a| (its distance is at most the sum of the two distances to x). So with
// z0 the meeting value of one pair, only pairs with a member whose g reaches z0 can reach z0, and
// only those are scanned; a margin far above the rounding error of g and of the meeting values
// keeps every such member. At the center x few members reach z0; when many do (symmetric data),
// or the data are badly scaled, all pairs are scanned.
double largest_pair_value(const std::vector<double>& a, const std::vector<double>& w) {
  if (a.size() < 64 || !is_well_scaled(a, w)) return largest_pair_value_by_scan(a, w);
  const double x = one_dimensional_center(a, w);
  std::size_t left = 0, right = 0;
  for (std::size_t k = 0; k < a.size(); ++k) {
    if (w[k] * (x - a[k]) > w[left] * (x - a[left])) left = k;
    if (w[k] * (a[k] - x) > w[right] * (a[right] - x)) right = k;
  }
  const double z0 = meeting_value(a[left], w[left], a[right], w[right]);
  std::vector<std::size_t> members;
  for (std::size_t k = 0; k < a.size(); ++k)
    if (w[k] * std::fabs(x - a[k]) >= z0 * (1.0 - 1e-9)) members.push_back(k);
  if (members.size() * members.size() > a.size()) return largest_pair_value_by_scan(a, w);
  double z = 0.0;
  for (std::size_t m : members)
    for (std::size_t k = 0; k < a.size(); ++k)
      if (k != m) z = std::max(z, meeting_value(a[m], w[m], a[k], w[k]));
  return z;
}

// The optimal value: the largest meeting value over all pairs, in either coordinate.
double largest_pair_value(const std::vector<weighted_point>& points) {
  std::vector<double> x(points.size()), y(points.size()), w(points.size());
  for (std::size_t k = 0; k < points.size(); ++k) {
    x[k] = points[k].x;
    y[k] = points[k].y;
    w[k] = points[k].w;
  }
  return std::max(largest_pair_value(x, w), largest_pair_value(y, w));
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
// (O(n log n) in practice, O(n^2) on symmetric or badly scaled data), the optima the box that every
// location reaches within it, which in the maximum norm is a point or a segment. optima receives
// one point or the segment's two ends, weight entry 0 = 1.0. All locations at one place: the first
// with non-zero weight; no non-zero weight at all ends the run with the whole-plane message; a
// negative weight is an error (no optimum).
double facilities::linf_max(bool clear) {
  if (clear) optima_.clear();
  if (empty()) empty_list_error(model_messages::empty_list);
  const std::vector<weighted_point> points = weighted_points(*this, 0);
  for (const weighted_point& p : points)
    if (p.w < 0.0) report_error(single_facility_messages::negative_center_weight);
  const double z = largest_pair_value(points);
  if (z == 0.0) {
    for (const location& l : *this)
      if (l.weight(0) != 0.0) {
        optima_.push_back(l);
        return z;
      }
    report_message(single_facility_messages::linf_max_whole_plane, false);
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
