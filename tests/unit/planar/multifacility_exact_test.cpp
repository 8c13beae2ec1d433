// The exact multifacility methods against answers found without linear programming: a
// brute-force search over the candidate coordinates (rectilinear sum), a bisection on the
// bound (maximum-norm center, which the rectilinear center shares), the stationarity of the
// quadratic objective (squared sum). The first two are the tests of the linear programs in
// src/lp/l1_model and src/lp/linf_model as well.

#include <random>

#include "planar/multifacility.h"
#include "planar_fixtures.h"

namespace mero::testing {
namespace {

using sites = std::vector<location>;

std::vector<location> optima_of(const facilities& f) {
  return {f.optima_view().begin(), f.optima_view().end()};
}

// The two-facility objective with the facilities at (x0, y0) and (x1, y1): the weighted
// distances to the locations and the tie's, summed for a median or the largest for a center.
double objective_at(const sites& s, double v, const distance& d, bool is_max, double x0, double y0,
                    double x1, double y1) {
  double value = v * d(x0 - x1, y0 - y1);
  for (const location& l : s)
    for (auto [j, x, y] : {std::tuple{0, x0, y0}, {1, x1, y1}}) {
      const double term = l.weight(j) * d(x - l.coordinate(0), y - l.coordinate(1));
      value = is_max ? std::max(value, term) : value + term;
    }
  return value;
}

double objective_at(const sites& s, double v, const distance& d, bool is_max,
                    const std::vector<location>& o) {
  return objective_at(s, v, d, is_max, o[0].coordinate(0), o[0].coordinate(1), o[1].coordinate(0),
                      o[1].coordinate(1));
}

TEST(N_l1_sum_v1, matches_the_brute_force_over_the_coordinate_grid) {
  // Below zero on both axes, where the coordinates must be free variables.
  const sites five{site(-12, -9, {3, 1}), site(-2, -8, {1, 2}), site(-8, -1, {1, 1}),
                   site(-5, -12, {0, 2}), site(-14, -4, {2, 0})};
  // From no tie, through ties that pull the facilities partly together, to one that joins them.
  std::vector<std::pair<sites, double>> cases;
  for (double v : {0.0, 0.5, 1.0, 2.5, 4.0, 100.0}) cases.emplace_back(five, v);
  // Alone, facility 0 would sit at one location and facility 1 at the other; a tie of 1.5 beats
  // each single weight and only a meeting point reaches the value 10, whichever side is left.
  cases.emplace_back(sites{site(0, 0, {1, 0}), site(10, 0, {0, 1})}, 1.5);
  cases.emplace_back(sites{site(10, 0, {1, 0}), site(0, 0, {0, 1})}, 1.5);
  for (const auto& [s, v] : cases) {
    // An optimum lies on the grid of the locations' coordinates.
    double best = INFINITY;
    for (const location& a : s)
      for (const location& b : s)
        for (const location& c : s)
          for (const location& e : s)
            best = std::min(best, objective_at(s, v, l1, false, a.coordinate(0), b.coordinate(1),
                                               c.coordinate(0), e.coordinate(1)));
    facilities f = problem(s);
    const double value = f.N_l1_sum_v1(2, tie(v), true);
    EXPECT_NEAR(value, best, 1e-7) << "v = " << v;
    // The reported points achieve it, each tagged with its facility's index.
    const auto o = optima_of(f);
    ASSERT_EQ(o.size(), 2u);
    EXPECT_NEAR(objective_at(s, v, l1, false, o), value, 1e-7) << "v = " << v;
    EXPECT_EQ(o[0].weight(0), 0.0);
    EXPECT_EQ(o[1].weight(0), 1.0);
  }
}

// Three facilities tied to each other and to seven random locations (weights 0 to 4, ties 0 to
// 3): the value is the least of the objective over every choice of location coordinates for the
// three facilities on each axis, and the reported points reach it.
TEST(N_l1_sum_v1, matches_the_brute_force_on_random_instances) {
  std::mt19937 random(20);
  std::uniform_int_distribution<int> coordinate(-20, 20), weight(0, 4), tie_of(0, 3);
  constexpr int n = 3, m = 7;
  for (int round = 0; round < 25; ++round) {
    sites s;
    for (int i = 0; i < m; ++i)
      s.push_back(site(coordinate(random), coordinate(random),
                       {double(weight(random)), double(weight(random)), double(weight(random))}));
    matrix V(n, n);
    for (int j = 0; j < n; ++j)
      for (int k = j + 1; k < n; ++k) V(j, k) = V(k, j) = tie_of(random);
    // The objective on one axis with the facilities at c[0], c[1], c[2].
    const auto axis_value = [&](int axis, const double* c) {
      double value = 0.0;
      for (int j = 0; j < n; ++j) {
        for (const location& a : s) value += a.weight(j) * std::fabs(c[j] - a.coordinate(axis));
        for (int k = j + 1; k < n; ++k) value += V(j, k) * std::fabs(c[j] - c[k]);
      }
      return value;
    };
    double best = 0.0;
    for (int axis = 0; axis < 2; ++axis) {
      double least = INFINITY;
      for (const location& a : s)
        for (const location& b : s)
          for (const location& e : s) {
            const double c[n] = {a.coordinate(axis), b.coordinate(axis), e.coordinate(axis)};
            least = std::min(least, axis_value(axis, c));
          }
      best += least;
    }
    facilities f = problem(s);
    const double value = f.N_l1_sum_v1(n, V, true);
    EXPECT_NEAR(value, best, 1e-7 * std::max(1.0, best)) << "round " << round;
    const auto o = optima_of(f);
    ASSERT_EQ(o.size(), std::size_t{n});
    double reached = 0.0;
    for (int axis = 0; axis < 2; ++axis) {
      const double c[n] = {o[0].coordinate(axis), o[1].coordinate(axis), o[2].coordinate(axis)};
      reached += axis_value(axis, c);
    }
    EXPECT_NEAR(reached, best, 1e-7 * std::max(1.0, best)) << "round " << round;
  }
}

TEST(N_l1_sum_v1, one_facility_and_the_dimension_checks) {
  facilities f = problem({site(1, 2, {1}), site(5, 6, {1}), site(9, 9, {1})});
  f.N_l1_sum_v1(1, matrix(1, 1), true);
  EXPECT_NEAR(f.N_l1_sum_v1(1, matrix(1, 1), false), 8.0 + 7.0, 1e-9);  // the median (5, 6)
  EXPECT_EQ(f.optima_view().size(), 2u);  // without clear the earlier optimum stays
  // Checked in this order: the matrix, the matrix against n, the weights against n.
  EXPECT_REPORT(f.N_l1_sum_v1(2, matrix(2, 3), true), 1331, "Unequal matrix dimensions.");
  EXPECT_REPORT(f.N_l1_sum_v1(2, matrix(3, 3), true), 1332,
                "Matrix dimensions and number of new locations do not fit.");
  EXPECT_REPORT(f.N_l1_sum_v1(3, matrix(3, 3), true), 1333,
                "Weight dimensions and number of new location do not fit.");
}

// Whether bound z can hold on one axis: each facility within z / w of every location it
// weighs, and the two within z / v of each other.
bool linf_axis_feasible(const sites& s, double v, int c, double z) {
  std::vector<double> lo(2, -1e300), hi(2, 1e300);
  for (int j = 0; j < 2; ++j)
    for (const location& l : s) {
      lo[j] = std::max(lo[j], l.coordinate(c) - z / l.weight(j));
      hi[j] = std::min(hi[j], l.coordinate(c) + z / l.weight(j));
    }
  if (lo[0] > hi[0] || lo[1] > hi[1]) return false;
  return std::max({0.0, lo[1] - hi[0], lo[0] - hi[1]}) <= z / v;
}

TEST(N_linf_max, matches_a_bisection_on_the_bound) {
  const sites s{site(-12, -9, {3, 1}), site(-2, -8, {1, 2}), site(-8, -1, {1, 1}),
                site(-5, -12, {0.5, 2}), site(-14, -4, {2, 0.25})};
  for (double v : {0.01, 0.5, 1.0, 3.0, 50.0}) {
    // Bisection on the bound, axis by axis; the maximum norm takes the larger axis.
    double expected = 0.0;
    for (int c = 0; c < 2; ++c) {
      double lo = 0.0, hi = 1e4;
      for (int step = 0; step < 200; ++step)
        (linf_axis_feasible(s, v, c, 0.5 * (lo + hi)) ? hi : lo) = 0.5 * (lo + hi);
      expected = std::max(expected, hi);
    }
    facilities f = problem(s);
    const double value = f.N_linf_max(2, tie(v), true);
    EXPECT_NEAR(value, expected, 1e-7) << "v = " << v;
    // The reported points achieve it.
    const auto o = optima_of(f);
    ASSERT_EQ(o.size(), 2u);
    EXPECT_NEAR(objective_at(s, v, linf, true, o), value, 1e-7) << "v = " << v;
  }
}

TEST(N_l2sqr_sum, the_gradient_vanishes_at_the_result) {
  const sites s{site(0, 0, {3, 1, 0}), site(10, 1, {1, 2, 0}), site(4, 8, {1, 1, 1}),
                site(7, -3, {0, 2, 0})};
  matrix V(3, 3);
  V(0, 1) = 2.0;
  V(1, 2) = 0.5;
  V(0, 2) = 1.5;
  V(2, 0) = 99.0;  // the lower triangle is never read
  facilities f = problem(s);
  const double value = f.N_l2sqr_sum(3, V, true);
  const auto o = optima_of(f);
  ASSERT_EQ(o.size(), 3u);
  // Axis by axis: the gradient of facility j, and its share of the objective.
  double objective = 0.0;
  for (int j = 0; j < 3; ++j)
    for (int c = 0; c < 2; ++c) {
      const double t = o[j].coordinate(c);
      double gradient = 0.0;
      for (const location& l : s) {
        gradient += 2 * l.weight(j) * (t - l.coordinate(c));
        objective += l.weight(j) * std::pow(t - l.coordinate(c), 2);
      }
      for (int k = 0; k < 3; ++k) {
        if (k == j) continue;
        const double u = o[k].coordinate(c), w = V(std::min(j, k), std::max(j, k));
        gradient += 2 * w * (t - u);
        if (k > j) objective += w * std::pow(t - u, 2);
      }
      EXPECT_NEAR(gradient, 0.0, 1e-9) << j << " " << c;
    }
  EXPECT_NEAR(value, objective, 1e-9);
}

TEST(N_l2sqr_sum, facilities_without_weight_are_anchored_by_their_ties) {
  // Facilities 1 and 2 weigh no location, but 1 is tied to 0 and 2 to 1: all three at (2, 0).
  facilities f = problem({site(0, 0, {1, 0, 0}), site(4, 0, {1, 0, 0})});
  matrix V(3, 3);
  V(0, 1) = V(1, 2) = 1.0;
  EXPECT_NEAR(f.N_l2sqr_sum(3, V, true), 8.0, 1e-9);
}

}  // namespace
}  // namespace mero::testing
