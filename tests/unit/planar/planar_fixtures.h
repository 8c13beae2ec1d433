#pragma once
// Instances and independent measures shared by the planar solver tests: locations, random
// location sets, and objectives evaluated from scratch rather than taken from the model.

#include <algorithm>
#include <cmath>
#include <functional>
#include <random>
#include <vector>

#include "model/facilities.h"
#include "test_support.h"

namespace mero::testing {

inline location at(double x, double y, double w = 1.0) { return location(2.0, 1.0, x, y, w); }

// A location with one weight column per entry of w (one per new facility in chain N).
inline location site(double x, double y, const std::vector<double>& w) {
  location l(2, static_cast<int>(w.size()));
  l.coordinate_ref(0) = x;
  l.coordinate_ref(1) = y;
  for (std::size_t k = 0; k < w.size(); ++k) l.weight_ref(static_cast<int>(k)) = w[k];
  return l;
}

inline facilities problem(const std::vector<location>& locations) {
  facilities f;
  f.insert(f.end(), locations.begin(), locations.end());
  return f;
}

// n locations uniform in [0, 100)^2 with weights uniform in [w_lo, w_hi] (equal when equal).
inline facilities random_problem(unsigned seed, int n, double w_lo = 1.0, double w_hi = 10.0) {
  std::mt19937 gen(seed);
  std::uniform_real_distribution<double> coordinate(0.0, 100.0), weight(w_lo, w_hi);
  facilities f;
  for (int i = 0; i < n; ++i) {
    const double x = coordinate(gen), y = coordinate(gen);
    f.push_back(at(x, y, weight(gen)));
  }
  return f;
}

// The dependency matrix of two new facilities tied by v.
inline matrix tie(double v) {
  matrix V(2, 2);
  V(0, 1) = v;
  return V;
}

using distance = std::function<double(double, double)>;

inline double l1(double dx, double dy) { return std::fabs(dx) + std::fabs(dy); }
inline double l2(double dx, double dy) { return std::sqrt(dx * dx + dy * dy); }
inline double linf(double dx, double dy) { return std::max(std::fabs(dx), std::fabs(dy)); }
inline distance lp(double p) {
  return [p](double dx, double dy) {
    return std::pow(std::pow(std::fabs(dx), p) + std::pow(std::fabs(dy), p), 1.0 / p);
  };
}

// The weighted distances of column 0 from (x, y), summed (a median) or the largest (a center).
inline double objective_of(const facilities& f, const distance& d, double x, double y,
                           bool is_max = false) {
  double s = 0.0;
  for (const location& l : f) {
    const double term = l.weight(0) * d(l.coordinate(0) - x, l.coordinate(1) - y);
    s = is_max ? std::max(s, term) : s + term;
  }
  return s;
}

}  // namespace mero::testing
