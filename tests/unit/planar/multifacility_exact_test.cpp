// The exact multifacility methods against answers found without linear programming: a
// brute-force search over the candidate coordinates (rectilinear sum), a bisection on the
// bound (maximum-norm center), the stationarity of the quadratic objective (squared sum).

#include "planar/multifacility.h"
#include "planar_fixtures.h"

namespace mero::testing {
namespace {

using std::fabs;
using sites = std::vector<location>;

std::vector<location> optima_of(const facilities& f) {
  return {f.optima_view().begin(), f.optima_view().end()};
}

// One axis of the rectilinear two-facility sum for given coordinates.
double l1_axis_cost(const sites& s, double v, int c, double t0, double t1) {
  double cost = v * fabs(t0 - t1);
  for (const location& l : s)
    cost += l.weight(0) * fabs(t0 - l.coordinate(c)) + l.weight(1) * fabs(t1 - l.coordinate(c));
  return cost;
}

// An optimum of the rectilinear multifacility sum lies on the grid of the locations'
// coordinates, axis by axis.
double l1_brute_force(const sites& s, double v) {
  double total = 0.0;
  for (int c = 0; c < 2; ++c) {
    double best = INFINITY;
    for (const location& a : s)
      for (const location& b : s)
        best = std::min(best, l1_axis_cost(s, v, c, a.coordinate(c), b.coordinate(c)));
    total += best;
  }
  return total;
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
    facilities f = problem(s);
    const double value = f.N_l1_sum_v1(2, tie(v), true);
    EXPECT_NEAR(value, l1_brute_force(s, v), 1e-7) << "v = " << v;
    const auto o = optima_of(f);
    ASSERT_EQ(o.size(), 2u);
    // The reported points achieve the reported value, each tagged with its facility's index.
    double at_points = 0.0;
    for (int c = 0; c < 2; ++c)
      at_points += l1_axis_cost(s, v, c, o[0].coordinate(c), o[1].coordinate(c));
    EXPECT_NEAR(at_points, value, 1e-7) << "v = " << v;
    EXPECT_EQ(o[0].weight(0), 0.0);
    EXPECT_EQ(o[1].weight(0), 1.0);
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
    auto d = [](const location& a, double x, double y) {
      return linf(a.coordinate(0) - x, a.coordinate(1) - y);
    };
    double worst = v * d(o[0], o[1].coordinate(0), o[1].coordinate(1));
    for (int j = 0; j < 2; ++j)
      for (const location& l : s)
        worst = std::max(worst, l.weight(j) * d(o[j], l.coordinate(0), l.coordinate(1)));
    EXPECT_NEAR(worst, value, 1e-7) << "v = " << v;
  }
}

TEST(N_l1_max, a_strong_tie_joins_the_facilities) {
  // Joined, the two would form one center of (0, 0) at weight 1 and (6, 2) at weight 3, value 6.
  // A gap g <= z / 1e6 between them helps a little: z + g + z / 3 >= 8, the l1 distance, so
  // z = 8 / (4 / 3 + 1e-6).
  facilities f = problem({site(0, 0, {1, 0.5}), site(6, 2, {0.5, 3})});
  const double value = f.N_l1_max(2, tie(1e6), true);
  EXPECT_NEAR(value, 8.0 / (4.0 / 3.0 + 1e-6), 1e-9);
  const auto o = optima_of(f);
  ASSERT_EQ(o.size(), 2u);
  const double gap =
      l1(o[0].coordinate(0) - o[1].coordinate(0), o[0].coordinate(1) - o[1].coordinate(1));
  EXPECT_LE(1e6 * gap, value + 1e-6);
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
