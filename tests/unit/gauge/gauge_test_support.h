#pragma once
// Random convex gauges and gauge measures computed from the unit ball's definition, written
// independently of polygauge.

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>
#include <vector>

#include "gauge/polygauge.h"
#include "test_support.h"

namespace mero::testing {

// The gauge of d from the edges of the counter-clockwise ball: the largest n.d / n.e over the
// edges e e' with outer normal n. Closed form, apart from polygauge::dist (which works with the
// cones); for dense sampling where the bisection below would be slow.
inline double gauge_by_facets(const std::vector<point>& ball, double dx, double dy) {
  double value = 0.0;
  for (std::size_t k = 0; k < ball.size(); ++k) {
    const point& e = ball[k];
    const point& f = ball[(k + 1) % ball.size()];
    const double nx = f.ycoord() - e.ycoord(), ny = e.xcoord() - f.xcoord();
    value = std::max(value, (nx * dx + ny * dy) / (nx * e.xcoord() + ny * e.ycoord()));
  }
  return value;
}

// The gauge of d by its definition: the smallest t >= 0 with d / t in the ball, found by
// bisection on the membership of d / t in the counter-clockwise convex polygon.
inline double gauge_by_definition(const std::vector<point>& ball, double dx, double dy) {
  auto inside = [&](double t) {
    for (std::size_t k = 0; k < ball.size(); ++k) {
      const point& a = ball[k];
      const point& b = ball[(k + 1) % ball.size()];
      const double cross = (b.xcoord() - a.xcoord()) * (dy / t - a.ycoord()) -
                           (b.ycoord() - a.ycoord()) * (dx / t - a.xcoord());
      if (cross < 0.0) return false;
    }
    return true;
  };
  if (dx == 0.0 && dy == 0.0) return 0.0;
  double low = 0.0, high = 1.0;
  while (!inside(high)) high *= 2.0;
  for (int i = 0; i < 200; ++i) {
    const double mid = 0.5 * (low + high);
    (inside(mid) ? high : low) = mid;
  }
  return high;
}

// A convex polygon with k corners around the origin, counter-clockwise from a random first
// corner: angles spread evenly with a jitter that keeps consecutive rays well below pi apart.
inline std::vector<point> random_ball(std::mt19937& gen, int k) {
  std::uniform_real_distribution<double> unit(0.0, 1.0);
  const double step = 2.0 * std::numbers::pi / k, start = unit(gen) * 6.0;
  for (;;) {
    std::vector<point> p;
    for (int i = 0; i < k; ++i) {
      const double angle = start + step * (i + 0.4 * (unit(gen) - 0.5));
      const double radius = 0.5 + 1.5 * unit(gen);
      p.emplace_back(radius * std::cos(angle), radius * std::sin(angle));
    }
    bool convex = true;
    for (int i = 0; i < k && convex; ++i) {
      const point& a = p[i];
      const point& b = p[(i + 1) % k];
      const point& c = p[(i + 2) % k];
      convex = (b.xcoord() - a.xcoord()) * (c.ycoord() - a.ycoord()) -
                   (b.ycoord() - a.ycoord()) * (c.xcoord() - a.xcoord()) >
               1e-3;
    }
    if (convex) return p;
  }
}

}  // namespace mero::testing
