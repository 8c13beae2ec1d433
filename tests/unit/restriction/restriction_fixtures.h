#pragma once
// Random forbidden regions and samples of their boundaries, shared by the restricted solver tests.

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

#include "kernel/convex_hull.h"
#include "kernel/polygon.h"

namespace mero::testing {

// A random convex polygon of fewest to fewest + spread - 1 corners drawn around c at distances
// r_lo to r_hi, drawn again until it has at least 3 corners and contains c.
inline std::vector<point> convex_around(std::mt19937& gen, const point& c, double r_lo, double r_hi,
                                        int fewest, int spread) {
  std::uniform_real_distribution<double> angle(0.0, 6.283185307179586), radius(r_lo, r_hi);
  for (;;) {
    std::vector<point> v;
    const int n = fewest + static_cast<int>(gen() % spread);
    for (int i = 0; i < n; ++i) {
      const double t = angle(gen), r = radius(gen);
      v.emplace_back(c.xcoord() + r * std::cos(t), c.ycoord() + r * std::sin(t));
    }
    v = convex_hull(v);
    if (v.size() >= 3 && polygon(v).inside(c)) return v;
  }
}

// n + 1 points on each edge of the ring, its ends included.
inline std::vector<point> ring_samples(const std::vector<point>& ring, int n) {
  std::vector<point> out;
  for (std::size_t k = 0; k < ring.size(); ++k) {
    const point& a = ring[k];
    const point& b = ring[(k + 1) % ring.size()];
    for (int s = 0; s <= n; ++s) out.push_back(a + (b - a) * (static_cast<double>(s) / n));
  }
  return out;
}

// Distance of q from the ring's edges (0 when q is on the boundary).
inline double off_ring(const std::vector<point>& ring, const point& q) {
  double best = 1e50;
  for (std::size_t k = 0; k < ring.size(); ++k) {
    const point& a = ring[k];
    const point& b = ring[(k + 1) % ring.size()];
    const double dx = b.xcoord() - a.xcoord(), dy = b.ycoord() - a.ycoord();
    double t = ((q.xcoord() - a.xcoord()) * dx + (q.ycoord() - a.ycoord()) * dy) /
               (dx * dx + dy * dy);
    t = std::clamp(t, 0.0, 1.0);
    best = std::min(best, std::hypot(q.xcoord() - a.xcoord() - t * dx,
                                     q.ycoord() - a.ycoord() - t * dy));
  }
  return best;
}

}  // namespace mero::testing
