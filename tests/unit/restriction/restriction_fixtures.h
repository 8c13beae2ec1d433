#pragma once
// Random forbidden regions shared by the restricted solver tests.

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

}  // namespace mero::testing
