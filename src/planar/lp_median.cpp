// The single-facility median under an lp norm with integer p >= 1: a test at every location,
// then a smoothed Weiszfeld-type iteration.

#include <cmath>
#include <cstddef>
#include <iterator>
#include <vector>

#include "model/facilities.h"
#include "planar/lp_pull_bound.h"
#include "planar/planar_messages.h"
#include "planar/weighted_points.h"

namespace mero {

namespace {

// Whether point `at` of the list satisfies the subgradient condition: the pull of all other
// points, measured in the dual norm q = p / (p - 1), is not above its own weight. Other points
// are left out by position, so a duplicate of the tested point still pulls.
bool is_optimal_at(const std::vector<weighted_point>& points, std::size_t at, int p) {
  const weighted_point& a = points[at];
  double rx = 0.0, ry = 0.0;
  for (std::size_t j = 0; j < points.size(); ++j) {
    if (j == at) continue;
    const weighted_point& b = points[j];
    const double dx = a.x - b.x, dy = a.y - b.y;
    const double n = std::pow(lp_distance(dx, dy, p), p - 1);
    rx += std::pow(std::fabs(dx), p - 1) * (dx < 0.0 ? -1.0 : 1.0) * b.w / n;
    ry += std::pow(std::fabs(dy), p - 1) * (dy < 0.0 ? -1.0 : 1.0) * b.w / n;
  }
  const double q = static_cast<double>(p) / (p - 1);
  const double pull = std::pow(std::pow(std::fabs(rx), q) + std::pow(std::fabs(ry), q),
                               static_cast<double>(p - 1) / p);
  return pull <= a.w;
}

// One step of the smoothed iteration: each coordinate is a weighted mean of the locations'
// coordinates, with weights that make (x, y) a fixed point exactly where the smoothed gradient
// vanishes. The smoothing keeps the weights finite at a location.
weighted_point step_at(const std::vector<weighted_point>& points, double x, double y, int p,
                       double smoothing) {
  const double half_p = p / 2.0;
  double num_x = 0.0, den_x = 0.0, num_y = 0.0, den_y = 0.0;
  for (const weighted_point& a : points) {
    const double sx = (x - a.x) * (x - a.x) + smoothing;
    const double sy = (y - a.y) * (y - a.y) + smoothing;
    const double d = std::pow(std::pow(sx, half_p) + std::pow(sy, half_p), 1.0 - 1.0 / p);
    const double tx = std::pow(sx, 1.0 - half_p) * d;
    const double ty = std::pow(sy, 1.0 - half_p) * d;
    num_x += a.w * a.x / tx;
    den_x += a.w / tx;
    num_y += a.w * a.y / ty;
    den_y += a.w / ty;
  }
  return {num_x / den_x, num_y / den_y, 0.0};
}

}  // namespace

bool facilities::is_lp_optimal(int p, const_iterator node, int w) const {
  const auto at = static_cast<std::size_t>(std::distance(cbegin(), node));
  return is_optimal_at(weighted_points(*this, w), at, p);
}

location facilities::lp_step(const location& loc, int p, double smoothing, int w) const {
  const weighted_point next =
      step_at(weighted_points(*this, w), loc.coordinate(0), loc.coordinate(1), p, smoothing);
  return result_location(next.x, next.y, 0.0);
}

// lp median of column w: the first location that passes the subgradient test (the pull bound
// rules out most locations in O(log n) each; the rest take the exact O(n) test), else the
// smoothed iteration from the centre of gravity, O(n) per step, until a step is
// shorter than eps or max_iterations steps were made (then the better of the last two iterates).
// optima receives one point with weight entry 0 = w. p below 1: error 1310; no positive eps and
// no positive bound: error 1309.
double facilities::lp_sum(int p, double eps, double smoothing, int max_iterations, int w,
                          bool clear) {
  if (p < 1) report_error(single_facility_messages::lp_exponent);
  if (!(eps > 0.0) && max_iterations <= 0) report_error(single_facility_messages::lp_stop);
  if (clear) optima_.clear();
  const std::vector<weighted_point> points = weighted_points(*this, w);
  const lp_pull_bound bound(points, p);
  for (std::size_t i = 0; i < points.size(); ++i)
    if (!bound.proves_failure(i) && is_optimal_at(points, i, p)) {
      optima_.push_back(result_location(points[i].x, points[i].y, w));
      return objective(p, w);
    }

  weighted_point current = centre_of_gravity(points), previous = current;
  long long steps = 0;  // a bound of 0 or below is never met
  bool by_count = false;
  do {
    previous = current;
    current = step_at(points, previous.x, previous.y, p, smoothing);
    if (++steps == max_iterations) {
      by_count = true;
      break;
    }
    // A step that is no number ends the iteration as a small one would: it cannot recover.
  } while (lp_distance(current.x - previous.x, current.y - previous.y, p) >= eps);

  if (!by_count) {
    optima_.push_back(result_location(current.x, current.y, w));
    return objective(p, w);
  }
  // Stopped by the count, the last step may have made things worse: keep the better of the last
  // two iterates, the later one on a tie.
  const double at_previous = weighted_objective(points, previous.x, previous.y, p);
  const double at_current = weighted_objective(points, current.x, current.y, p);
  const bool take_previous = at_previous < at_current;
  const weighted_point& best = take_previous ? previous : current;
  optima_.push_back(result_location(best.x, best.y, w));
  return take_previous ? at_previous : at_current;
}

}  // namespace mero
