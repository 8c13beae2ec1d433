#pragma once
// Instances and independent checks shared by the tests of the single-facility solvers: random
// location sets, objectives evaluated from scratch, and a brute-force look at a fine grid.

#include <algorithm>
#include <cmath>
#include <functional>
#include <random>

#include "model/facilities.h"

namespace mero::testing {

inline location at(double x, double y, double w = 1.0) { return location(2.0, 1.0, x, y, w); }

// n locations uniform in [0, side)^2 with weights uniform in [w_lo, w_hi] (equal when equal).
inline facilities random_problem(unsigned seed, int n, double side = 100.0, double w_lo = 1.0,
                                 double w_hi = 10.0) {
  std::mt19937 gen(seed);
  std::uniform_real_distribution<double> coordinate(0.0, side), weight(w_lo, w_hi);
  facilities f;
  for (int i = 0; i < n; ++i) {
    const double x = coordinate(gen), y = coordinate(gen);
    f.push_back(at(x, y, weight(gen)));
  }
  return f;
}

// Distances written out here rather than taken from the model.
inline double l1(double dx, double dy) { return std::fabs(dx) + std::fabs(dy); }
inline double l2(double dx, double dy) { return std::sqrt(dx * dx + dy * dy); }
inline double linf(double dx, double dy) { return std::max(std::fabs(dx), std::fabs(dy)); }
inline std::function<double(double, double)> lp(double p) {
  return [p](double dx, double dy) {
    return std::pow(std::pow(std::fabs(dx), p) + std::pow(std::fabs(dy), p), 1.0 / p);
  };
}

using distance = std::function<double(double, double)>;

inline double sum_objective(const facilities& f, const distance& d, double x, double y) {
  double s = 0.0;
  for (const location& l : f) s += l.weight(0) * d(l.coordinate(0) - x, l.coordinate(1) - y);
  return s;
}

inline double max_objective(const facilities& f, const distance& d, double x, double y) {
  double s = 0.0;
  for (const location& l : f)
    s = std::max(s, l.weight(0) * d(l.coordinate(0) - x, l.coordinate(1) - y));
  return s;
}

// The smallest value of objective on a (2k+1)^2 grid of spacing h centred at (x, y).
inline double grid_minimum(const std::function<double(double, double)>& objective, double x,
                           double y, double h, int k = 20) {
  double best = objective(x, y);
  for (int i = -k; i <= k; ++i)
    for (int j = -k; j <= k; ++j) best = std::min(best, objective(x + i * h, y + j * h));
  return best;
}

inline double x_of(const location& l) { return l.coordinate(0); }
inline double y_of(const location& l) { return l.coordinate(1); }

}  // namespace mero::testing
