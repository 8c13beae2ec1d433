// Squared Euclidean and Euclidean single-facility medians.

#include <cmath>
#include <vector>

#include "model/facilities.h"
#include "planar/planar_messages.h"
#include "planar/weighted_points.h"

namespace mero {

namespace {

// Closer than this to a location, the iteration asks whether that location is the optimum: an
// iterate can creep towards an optimal location for ever without reaching it.
constexpr double near_location = 0.1;
// Locations closer than this to the tested one are left out of its subgradient sum.
constexpr double same_place = 0.001;

double euclidean(const weighted_point& a, double x, double y) {
  const double dx = a.x - x, dy = a.y - y;
  return std::sqrt(dx * dx + dy * dy);
}

// One Weiszfeld step from (x, y). On the way, every location that the iterate is near for the
// first time is tested once; a location that passes the test ends the iteration.
struct weiszfeld_step {
  const location* optimal = nullptr;
  double x = 0.0;
  double y = 0.0;
};

weiszfeld_step step_from(const facilities& problem, const std::vector<weighted_point>& points,
                         std::vector<bool>& tested, double x, double y, int w) {
  double sx = 0.0, sy = 0.0, sw = 0.0;
  std::size_t i = 0;
  for (const location& l : problem) {
    const weighted_point& a = points[i];
    const double d = euclidean(a, x, y);
    if (d < near_location && !tested[i]) {
      tested[i] = true;
      if (problem.is_l2_optimal(l, w)) return {&l};
    }
    // An iterate exactly on a rejected location divides by zero here; the non-finite iterate
    // that follows ends the iteration.
    sx += a.w * a.x / d;
    sy += a.w * a.y / d;
    sw += a.w / d;
    ++i;
  }
  return {nullptr, sx / sw, sy / sw};
}

}  // namespace

// Squared Euclidean median of column w: the centre of gravity, in closed form, O(n). optima
// receives that point with weight entry 0 = w. A zero weight sum is not checked.
double facilities::l2sqr_sum(int w, bool clear) {
  if (clear) optima_.clear();
  const weighted_point g = centre_of_gravity(weighted_points(*this, w));
  optima_.push_back(result_location(g.x, g.y, w));
  // The value weighs by column 0 whatever column was solved: callers that solve several columns
  // compare the centres under the first weighting.
  double value = 0.0;
  for (const location& l : *this) {
    const double dx = l.coordinate(0) - g.x, dy = l.coordinate(1) - g.y;
    value += (dx * dx + dy * dy) * l.weight(0);
  }
  return value;
}

// Whether loc minimises the Euclidean sum: the subgradient test, O(n).
bool facilities::is_l2_optimal(const location& loc, int w) const {
  const double x = loc.coordinate(0), y = loc.coordinate(1);
  double sx = 0.0, sy = 0.0;
  // The pull of all other locations, weighted by column 0; the location's own weight in column w
  // has to hold it. The mix of columns is deliberate and kept.
  for (const location& a : *this) {
    const double dx = x - a.coordinate(0), dy = y - a.coordinate(1);
    const double d = std::sqrt(dx * dx + dy * dy);
    if (d > same_place) {
      sx += dx * a.weight(0) / d;
      sy += dy * a.weight(0) / d;
    }
  }
  const double own = loc.weight(w);
  return sx * sx + sy * sy <= own * own;
}

// Euclidean median of column w: Weiszfeld's iteration (Weiszfeld 1937) from the centre of gravity,
// O(n) per step, stopped when the objective falls by less than eps relatively; a location that
// the iterate comes near and that passes the subgradient test is returned exactly. optima receives
// one point with weight entry 0 = w. eps not positive: error 1308.
double facilities::l2_sum(int w, double eps, bool clear) {
  if (!(eps > 0.0)) report_error(single_facility_messages::l2_eps);
  std::vector<bool> tested(size(), false);
  if (clear) optima_.clear();
  const std::vector<weighted_point> points = weighted_points(*this, w);
  const weighted_point start = centre_of_gravity(points);
  double x = start.x, y = start.y;
  double f = weighted_objective(points, x, y, 2);
  for (;;) {
    const weiszfeld_step next = step_from(*this, points, tested, x, y, w);
    if (next.optimal) {
      optima_.push_back(
          result_location(next.optimal->coordinate(0), next.optimal->coordinate(1), w));
      return objective(2, w);
    }
    const double g = weighted_objective(points, next.x, next.y, 2);
    // Stops on a relative decrease below eps, on an increase, and on a value that is no number
    // (an iterate that landed on a location): none of them can improve any more.
    if (!((f - g) / f >= eps)) {
      optima_.push_back(result_location(next.x, next.y, w));
      return objective(2, w);
    }
    f = g;
    x = next.x;
    y = next.y;
  }
}

}  // namespace mero
