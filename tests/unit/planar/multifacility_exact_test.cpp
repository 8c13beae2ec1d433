// The exact multifacility methods against answers found without linear programming: a
// brute-force search over the candidate coordinates (rectilinear sum), a bisection on the
// bound (maximum-norm center), the stationarity of the quadratic objective (squared sum).

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "planar/multifacility.h"
#include "test_support.h"

namespace mero {
namespace {

using std::fabs;

struct site {
  double x, y;
  std::vector<double> w;  // weight of each new facility
};

facilities make_problem(const std::vector<site>& sites) {
  facilities f;
  for (const site& s : sites) {
    location l(2, static_cast<int>(s.w.size()));
    l.coordinate_ref(0) = s.x;
    l.coordinate_ref(1) = s.y;
    for (std::size_t j = 0; j < s.w.size(); ++j) l.weight_ref(static_cast<int>(j)) = s.w[j];
    f.push_back(l);
  }
  return f;
}

matrix pair_matrix(double v01) {
  matrix V(2, 2);
  V(0, 1) = v01;
  return V;
}

std::vector<location> optima_of(const facilities& f) {
  const auto& o = f.optima_view();
  return {o.begin(), o.end()};
}

double axis(const site& s, int c) { return c == 0 ? s.x : s.y; }

// One axis of the rectilinear two-facility sum for given coordinates.
double l1_axis_cost(const std::vector<site>& sites, double v, int c, double t0, double t1) {
  double cost = v * fabs(t0 - t1);
  for (const site& s : sites)
    cost += s.w[0] * fabs(t0 - axis(s, c)) + s.w[1] * fabs(t1 - axis(s, c));
  return cost;
}

// Brute force: an optimum of the rectilinear multifacility sum lies on the grid of the
// locations' coordinates, axis by axis.
double l1_brute_force(const std::vector<site>& sites, double v) {
  double total = 0.0;
  for (int c = 0; c < 2; ++c) {
    double best = std::numeric_limits<double>::infinity();
    for (const site& s0 : sites)
      for (const site& s1 : sites)
        best = std::min(best, l1_axis_cost(sites, v, c, axis(s0, c), axis(s1, c)));
    total += best;
  }
  return total;
}

const std::vector<site> k_sites{
    {0, 0, {3, 1}}, {10, 1, {1, 2}}, {4, 8, {1, 1}}, {7, -3, {0, 2}}, {-2, 5, {2, 0}}};

TEST(N_l1_sum_v1, matches_the_brute_force_over_the_coordinate_grid) {
  // From no tie, through ties that pull the facilities partly together, to one that joins them.
  for (double v : {0.0, 0.5, 1.0, 2.5, 4.0, 100.0}) {
    facilities f = make_problem(k_sites);
    const double value = f.N_l1_sum_v1(2, pair_matrix(v), true);
    EXPECT_NEAR(value, l1_brute_force(k_sites, v), 1e-7) << "v = " << v;
    const auto o = optima_of(f);
    ASSERT_EQ(o.size(), 2u);
    // The reported points achieve the reported value.
    double at_points = 0.0;
    for (int c = 0; c < 2; ++c)
      at_points += l1_axis_cost(k_sites, v, c, o[0].coordinate(c), o[1].coordinate(c));
    EXPECT_NEAR(at_points, value, 1e-7) << "v = " << v;
    EXPECT_EQ(o[0].weight(0), 0.0);
    EXPECT_EQ(o[1].weight(0), 1.0);
  }
}

TEST(N_l1_sum_v1, a_tie_pulls_in_either_direction) {
  // Facility 0 sits at 0 alone, facility 1 at 10 alone; a tie of 1.5 beats each single weight,
  // whichever side is left. The brute force says 10 for both orders.
  const std::vector<site> left_first{{0, 0, {1, 0}}, {10, 0, {0, 1}}};
  const std::vector<site> right_first{{10, 0, {1, 0}}, {0, 0, {0, 1}}};
  for (const auto& sites : {left_first, right_first}) {
    facilities f = make_problem(sites);
    EXPECT_NEAR(f.N_l1_sum_v1(2, pair_matrix(1.5), true), 10.0, 1e-9);
    const auto o = optima_of(f);
    EXPECT_NEAR(o[0].coordinate(0), o[1].coordinate(0), 1e-9);
  }
}

TEST(N_l1_sum_v1, checks_the_dimensions_in_order) {
  facilities f = make_problem(k_sites);
  EXPECT_REPORT(f.N_l1_sum_v1(2, matrix(2, 3), true), 1331, "Unequal matrix dimensions.");
  EXPECT_REPORT(f.N_l1_sum_v1(2, matrix(3, 3), true), 1332,
                "Matrix dimensions and number of new locations do not fit.");
  EXPECT_REPORT(f.N_l1_sum_v1(3, matrix(3, 3), true), 1333,
                "Weight dimensions and number of new location do not fit.");
}

TEST(N_l1_sum_v1, keeps_earlier_optima_without_clear) {
  facilities f = make_problem({{1, 2, {1}}, {5, 6, {1}}, {9, 9, {1}}});
  f.N_l1_sum_v1(1, matrix(1, 1), true);
  const double value = f.N_l1_sum_v1(1, matrix(1, 1), false);
  EXPECT_NEAR(value, 8.0 + 7.0, 1e-9);  // the median (5, 6)
  const auto o = optima_of(f);
  ASSERT_EQ(o.size(), 2u);
  EXPECT_NEAR(o[1].coordinate(0), 5.0, 1e-9);
  EXPECT_NEAR(o[1].coordinate(1), 6.0, 1e-9);
}

// Whether bound z can hold on one axis: each facility within z / w of every location it
// weighs, and the two within z / v of each other.
bool linf_axis_feasible(const std::vector<site>& sites, double v, int c, double z) {
  double lo[2] = {-1e300, -1e300}, hi[2] = {1e300, 1e300};
  for (int j = 0; j < 2; ++j)
    for (const site& s : sites) {
      lo[j] = std::max(lo[j], axis(s, c) - z / s.w[j]);
      hi[j] = std::min(hi[j], axis(s, c) + z / s.w[j]);
    }
  if (lo[0] > hi[0] || lo[1] > hi[1]) return false;
  const double gap = std::max({0.0, lo[1] - hi[0], lo[0] - hi[1]});
  return gap <= z / v;
}

// Bisection on the bound, axis by axis; the maximum norm takes the larger axis.
double linf_max_by_bisection(const std::vector<site>& sites, double v) {
  double value = 0.0;
  for (int c = 0; c < 2; ++c) {
    double lo = 0.0, hi = 1e4;
    for (int step = 0; step < 200; ++step) {
      const double mid = 0.5 * (lo + hi);
      (linf_axis_feasible(sites, v, c, mid) ? hi : lo) = mid;
    }
    value = std::max(value, hi);
  }
  return value;
}

double linf_max_at(const std::vector<site>& sites, double v, const std::vector<location>& o) {
  auto dist = [](double x0, double y0, double x1, double y1) {
    return std::max(fabs(x0 - x1), fabs(y0 - y1));
  };
  double worst =
      v * dist(o[0].coordinate(0), o[0].coordinate(1), o[1].coordinate(0), o[1].coordinate(1));
  for (int j = 0; j < 2; ++j)
    for (const site& s : sites)
      worst = std::max(worst, s.w[j] * dist(o[j].coordinate(0), o[j].coordinate(1), s.x, s.y));
  return worst;
}

const std::vector<site> k_positive_sites{
    {0, 0, {3, 1}}, {10, 1, {1, 2}}, {4, 8, {1, 1}}, {7, -3, {0.5, 2}}, {-2, 5, {2, 0.25}}};

TEST(N_linf_max, matches_a_bisection_on_the_bound) {
  for (double v : {0.01, 0.5, 1.0, 3.0, 50.0}) {
    facilities f = make_problem(k_positive_sites);
    const double value = f.N_linf_max(2, pair_matrix(v), true);
    EXPECT_NEAR(value, linf_max_by_bisection(k_positive_sites, v), 1e-7) << "v = " << v;
    const auto o = optima_of(f);
    ASSERT_EQ(o.size(), 2u);
    EXPECT_NEAR(linf_max_at(k_positive_sites, v, o), value, 1e-7) << "v = " << v;
  }
}

TEST(N_linf_max, zero_weights_and_zero_ties_are_refused) {
  facilities f = make_problem(k_sites);  // facility 1 has weight 0 at (7, -3)
  EXPECT_REPORT(f.N_linf_max(2, pair_matrix(1.0), true), 1336,
                "facilities::N_linf_max(): Every weight must be unequal to zero");
  facilities g = make_problem(k_positive_sites);
  EXPECT_REPORT(g.N_linf_max(2, pair_matrix(0.0), true), 1337,
                "facilities::N_linf_max(): The entries of the dependency matrix must be unequal "
                "to zero");
}

TEST(N_l1_max, is_the_rectilinear_center) {
  // A tie of 1e-9 leaves the two facilities all but independent. Facility 0 weighs (0, 0) and
  // (6, 2) equally: the l1 center is halfway in l1 distance, value 4. Facility 1 weighs (0, 0)
  // by 1 and (6, 2) by 3: value 8 * 3 / 4 = 6.
  const std::vector<site> sites{{0, 0, {1, 1}}, {6, 2, {1, 3}}};
  facilities f = make_problem(sites);
  const double value = f.N_l1_max(2, pair_matrix(1e-9), true);
  EXPECT_NEAR(value, 6.0, 1e-7);
  const auto o = optima_of(f);
  ASSERT_EQ(o.size(), 2u);
  auto l1 = [](const location& a, double x, double y) {
    return fabs(a.coordinate(0) - x) + fabs(a.coordinate(1) - y);
  };
  EXPECT_NEAR(3.0 * l1(o[1], 6, 2), 6.0, 1e-7);
  EXPECT_NEAR(l1(o[1], 0, 0), 6.0, 1e-7);
  EXPECT_LE(l1(o[0], 0, 0), 6.0 + 1e-7);
  EXPECT_LE(l1(o[0], 6, 2), 6.0 + 1e-7);
}

TEST(N_l1_max, a_strong_tie_joins_the_facilities) {
  // Joined, the two would form one center of (0, 0) at weight 1 and (6, 2) at weight 3, value 6.
  // A gap g <= z / 1e6 between them helps a little: z + g + z / 3 >= 8, the l1 distance, so
  // z = 8 / (4 / 3 + 1e-6).
  const std::vector<site> sites{{0, 0, {1, 0.5}}, {6, 2, {0.5, 3}}};
  facilities f = make_problem(sites);
  const double value = f.N_l1_max(2, pair_matrix(1e6), true);
  const auto o = optima_of(f);
  ASSERT_EQ(o.size(), 2u);
  const double gap =
      fabs(o[0].coordinate(0) - o[1].coordinate(0)) + fabs(o[0].coordinate(1) - o[1].coordinate(1));
  EXPECT_LE(1e6 * gap, value + 1e-6);
  EXPECT_NEAR(value, 8.0 / (4.0 / 3.0 + 1e-6), 1e-9);
}

// Gradient of the squared objective for facility j along axis c; zero at the optimum.
double gradient(const std::vector<site>& sites, const matrix& V, const std::vector<location>& o,
                int j, int c) {
  double g = 0.0;
  for (const site& s : sites) g += 2.0 * s.w[j] * (o[j].coordinate(c) - axis(s, c));
  for (int k = 0; k < static_cast<int>(o.size()); ++k)
    if (k != j) g += 2.0 * (j < k ? V(j, k) : V(k, j)) * (o[j].coordinate(c) - o[k].coordinate(c));
  return g;
}

TEST(N_l2sqr_sum, the_gradient_vanishes_at_the_result) {
  const std::vector<site> sites{
      {0, 0, {3, 1, 0}}, {10, 1, {1, 2, 0}}, {4, 8, {1, 1, 1}}, {7, -3, {0, 2, 0}}};
  matrix V(3, 3);
  V(0, 1) = 2.0;
  V(1, 2) = 0.5;
  V(0, 2) = 1.5;
  V(2, 0) = 99.0;  // the lower triangle is never read
  facilities f = make_problem(sites);
  const double value = f.N_l2sqr_sum(3, V, true);
  const auto o = optima_of(f);
  ASSERT_EQ(o.size(), 3u);
  double objective = 0.0;
  for (int j = 0; j < 3; ++j) {
    for (int c = 0; c < 2; ++c) EXPECT_NEAR(gradient(sites, V, o, j, c), 0.0, 1e-9);
    for (const site& s : sites)
      objective +=
          s.w[j] * (std::pow(o[j].coordinate(0) - s.x, 2) + std::pow(o[j].coordinate(1) - s.y, 2));
    for (int k = j + 1; k < 3; ++k)
      objective += V(j, k) * (std::pow(o[j].coordinate(0) - o[k].coordinate(0), 2) +
                              std::pow(o[j].coordinate(1) - o[k].coordinate(1), 2));
  }
  EXPECT_NEAR(value, objective, 1e-9);
}

TEST(N_l2sqr_sum, one_facility_is_the_centre_of_gravity) {
  facilities f = make_problem({{0, 0, {1}}, {4, 0, {1}}, {0, 8, {2}}});
  // (0 + 4 + 0) / 4 = 1, (0 + 0 + 16) / 4 = 4; value 17 + 25 + 2 * 17 = 76.
  EXPECT_NEAR(f.N_l2sqr_sum(1, matrix(1, 1), true), 76.0, 1e-9);
  EXPECT_NEAR(f.optima_view().front().coordinate(0), 1.0, 1e-12);
  EXPECT_NEAR(f.optima_view().front().coordinate(1), 4.0, 1e-12);
}

TEST(N_l2sqr_sum, a_facility_without_weight_or_link_is_singular) {
  facilities f = make_problem({{0, 0, {1, 0, 0}}, {4, 0, {1, 0, 0}}});
  matrix V(3, 3);
  V(1, 2) = 1.0;  // facilities 1 and 2 hold on to each other, but nothing holds them
  EXPECT_REPORT(f.N_l2sqr_sum(3, V, true), 1335, multifacility_messages::singular_system.text);
  // Linked to facility 0, the two are anchored.
  V(0, 1) = 1.0;
  EXPECT_NEAR(f.N_l2sqr_sum(3, V, true), 8.0, 1e-9);  // all three at (2, 0)
}

}  // namespace
}  // namespace mero
