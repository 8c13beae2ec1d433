// The median with a polygonal gauge at every location, on the grid of the gauges' rays.

#include <vector>

#include "gauge/gauge_messages.h"
#include "gauge/gauge_sites.h"
#include "kernel/convex_hull.h"
#include "kernel/error_handler.h"
#include "planar/weighted_points.h"

namespace mero {

namespace {

// A subgradient of the objective at x: on each location's cone holding x the gauge is linear,
// and the weighted gradients add up. A location at x itself adds nothing.
point subgradient(const std::vector<gauge_site>& sites, const point& x) {
  double gx = 0.0, gy = 0.0;
  for (const gauge_site& s : sites) {
    bool interior = false;
    const int cone = s.gauge->cone_of(s.a, x, interior);
    if (cone == 0) continue;
    const auto [p1, p2] = s.gauge->fundamental_directions(s.a, cone);
    const point g = cone_gradient(point(p1.xcoord() - s.a.xcoord(), p1.ycoord() - s.a.ycoord()),
                                  point(p2.xcoord() - s.a.xcoord(), p2.ycoord() - s.a.ycoord()));
    gx += s.w[0] * g.xcoord();
    gy += s.w[0] * g.ycoord();
  }
  return point(gx, gy);
}

}  // namespace

double facilities::gauge_value(const std::vector<polygauge>& gauges,
                               const std::vector<int>& gauge_numbers, const point& x, int w) const {
  double sum = 0.0;
  std::size_t i = 0;
  for (const location& l : *this) sum += l.weight(w) * gauges[gauge_numbers[i++]].dist(point(l), x);
  return sum;
}

// Weighted sum of gauge distances: since each distance is linear within the cones of its gauge,
// the objective is linear on the cells of the grid of all rays. The rays are cut where no optimum
// can lie (gauge distance z / w from location i, z the value at the centre of gravity), their
// crossings are found by a sweep, and those not cut off by a subgradient at the centre are
// evaluated: O(R log R + B + K n) for R rays, B box pairs of the sweep, K crossings.
// optima: the best crossing, or the hull of all crossings of exactly the best value (weight entry
// 0 = 0.0). Only crossings are candidates, so an optimum at a location alone is not found; without
// any crossing the run ends with the kernel's empty-list error.
double facilities::gauge_median(const std::vector<polygauge>& gauges,
                                const std::vector<int>& gauge_numbers, bool clear) {
  if (clear) optima_.clear();
  const std::vector<gauge_site> sites =
      checked_sites(*this, gauges, gauge_numbers, 1, median_checks);
  l2sqr_sum(0, false);
  // The solver appended its optimum; it is the start x0.
  const point x0(optima_.back());
  const double z = gauge_sum(sites, x0, 0);

  std::vector<std::size_t> owner;
  const std::vector<segment> rays = ray_grid(
      sites, [z](const gauge_site& s, const point&) { return z / s.w[0]; }, owner);
  const point g = subgradient(sites, x0);

  double best = z;
  std::vector<point> ties;
  for (const point& c : grid_crossings(rays, owner)) {
    // The objective is convex: a point on the rising side of the subgradient cannot beat x0.
    if (g.xcoord() * (c.xcoord() - x0.xcoord()) + g.ycoord() * (c.ycoord() - x0.ycoord()) > 0.0)
      continue;
    const double value = gauge_sum(sites, c, 0);
    if (value < best) {
      ties.assign(1, c);
      best = value;
    } else if (value == best) {
      ties.push_back(c);
    }
  }
  if (ties.size() > 1) ties = convex_hull(ties);

  optima_.clear();
  if (ties.empty()) empty_list_error(gauge_messages::no_crossing);
  const double value = gauge_sum(sites, ties.front(), 0);
  for (const point& p : ties) optima_.push_back(result_location(p.xcoord(), p.ycoord(), 0.0));
  return value;
}

}  // namespace mero
