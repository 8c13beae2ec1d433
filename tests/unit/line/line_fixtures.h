#pragma once
// Independent measures for the line tests: the distance of a point from a line by a direct
// one-dimensional minimisation in the norm itself (not the dual-norm formula of the solvers), the
// objective of a reported line, and brute-force searches over candidate lines and directions.

#include <algorithm>
#include <cmath>
#include <functional>
#include <list>
#include <numbers>
#include <vector>

#include "planar/planar_fixtures.h"

namespace mero::testing {

struct xy {
  double x, y;
};

inline std::vector<xy> coordinates(const facilities& f) {
  std::vector<xy> c;
  for (const location& l : f) c.push_back({l.coordinate(0), l.coordinate(1)});
  return c;
}
inline std::vector<double> weights(const facilities& f) {
  std::vector<double> w;
  for (const location& l : f) w.push_back(l.weight(0));
  return w;
}

// min over t of norm(b - (p + t d)): the norm along the line is convex in t, so a ternary search
// on a bracket wide enough for the data finds it.
inline double norm_distance(const distance& norm, xy p, xy d, xy b) {
  const double length = std::hypot(d.x, d.y);
  d = {d.x / length, d.y / length};
  const double centre = (b.x - p.x) * d.x + (b.y - p.y) * d.y;
  double lo = centre - 1e3, hi = centre + 1e3;
  for (int k = 0; k < 200; ++k) {
    const double m1 = lo + (hi - lo) / 3, m2 = hi - (hi - lo) / 3;
    const double f1 = norm(b.x - p.x - m1 * d.x, b.y - p.y - m1 * d.y);
    const double f2 = norm(b.x - p.x - m2 * d.x, b.y - p.y - m2 * d.y);
    (f1 < f2 ? hi : lo) = f1 < f2 ? m2 : m1;
  }
  const double t = (lo + hi) / 2;
  return norm(b.x - p.x - t * d.x, b.y - p.y - t * d.y);
}

// Weighted sum or largest distance of the locations from the line through p with direction d.
inline double line_objective(const facilities& f, const distance& norm, xy p, xy d, bool sum) {
  double value = 0.0;
  for (const location& l : f) {
    const double term = l.weight(0) * norm_distance(norm, p, d, {l.coordinate(0), l.coordinate(1)});
    value = sum ? value + term : std::max(value, term);
  }
  return value;
}

// The objective of the line that a solver left in optima (exactly two points).
inline double reported_objective(const facilities& f, const distance& norm, bool sum) {
  const std::list<location> line = f.optima();
  EXPECT_EQ(line.size(), 2u);
  if (line.size() != 2) return -1.0;
  const xy p{line.front().coordinate(0), line.front().coordinate(1)};
  const xy q{line.back().coordinate(0), line.back().coordinate(1)};
  return line_objective(f, norm, p, {q.x - p.x, q.y - p.y}, sum);
}

// The least sum over the lines through two distinct locations.
inline double brute_pair_sum(const facilities& f, const distance& norm) {
  const std::vector<xy> c = coordinates(f);
  double best = 1e50;
  for (std::size_t i = 0; i < c.size(); ++i)
    for (std::size_t j = i + 1; j < c.size(); ++j)
      if (c[i].x != c[j].x || c[i].y != c[j].y)
        best =
            std::min(best, line_objective(f, norm, c[i], {c[j].x - c[i].x, c[j].y - c[i].y}, true));
  return best;
}

// For every direction of a fine grid, the best offset found exactly: the weighted median of the
// projections on the normal for the sum, and for the max the largest
// w_i w_j |s_i - s_j| / (w_i + w_j) over pairs. Distances to a line of normal n are the
// projections divided by the dual norm of n, passed in as dual(nx, ny). Returns the least value
// over the grid, an upper bound of the optimum that is close to it.
inline double direction_grid(const facilities& f, const std::function<double(double, double)>& dual,
                             bool sum, int steps = 20000) {
  const std::vector<xy> c = coordinates(f);
  const std::vector<double> w = weights(f);
  double best = 1e50;
  for (int s = 0; s < steps; ++s) {
    const double angle = std::numbers::pi * s / steps;
    const double nx = std::cos(angle), ny = std::sin(angle);
    std::vector<std::pair<double, double>> proj;
    for (std::size_t k = 0; k < c.size(); ++k) proj.push_back({nx * c[k].x + ny * c[k].y, w[k]});
    double value = 0.0;
    if (sum) {
      std::sort(proj.begin(), proj.end());
      double total = 0.0, run = 0.0;
      for (auto& p : proj) total += p.second;
      double median = proj.back().first;
      for (auto& p : proj)
        if ((run += p.second) >= total / 2) {
          median = p.first;
          break;
        }
      for (auto& p : proj) value += p.second * std::fabs(p.first - median);
    } else {
      for (std::size_t i = 0; i < proj.size(); ++i)
        for (std::size_t j = i + 1; j < proj.size(); ++j)
          value = std::max(value, proj[i].second * proj[j].second *
                                      std::fabs(proj[i].first - proj[j].first) /
                                      (proj[i].second + proj[j].second));
    }
    best = std::min(best, value / dual(nx, ny));
  }
  return best;
}

inline double dual_l2(double x, double y) { return std::hypot(x, y); }
inline double dual_l1(double x, double y) { return std::max(std::fabs(x), std::fabs(y)); }
inline double dual_linf(double x, double y) { return std::fabs(x) + std::fabs(y); }

// The same set with every weight 1.0.
inline facilities unit_weights(facilities f) {
  for (location& l : f) l.weight_ref(0) = 1.0;
  return f;
}

}  // namespace mero::testing
