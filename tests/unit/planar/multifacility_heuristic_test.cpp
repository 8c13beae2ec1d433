// The one-by-one heuristic N_lp_sum_v1 and its maximum-norm use N_linf_sum_v1, on instances
// whose single-facility medians are known by hand (a weight of more than half the total pins
// the median to its location).

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "planar/multifacility.h"
#include "test_support.h"

namespace mero {
namespace {

facilities two_columns(const std::vector<std::vector<double>>& rows) {
  facilities f;
  for (const auto& r : rows) f.push_back(location(2, 2, r[0], r[1], r[2], r[3]));
  return f;
}

// (1, 1), (4, 2) and (-2, 3); facility 0 weighs them 5, 1, 1 and facility 1 weighs 1, 7, 1.
// The Euclidean optimality test at a location weighs the other locations' pull by column 0
// whatever column is solved; 7 holds (4, 2) against that pull too (5.9).
facilities pinned() { return two_columns({{1, 1, 5, 1}, {4, 2, 1, 7}, {-2, 3, 1, 1}}); }

matrix tie(double v) {
  matrix V(2, 2);
  V(0, 1) = v;
  return V;
}

TEST(N_lp_sum_v1, rectilinear_costs_and_their_ratio) {
  facilities f = pinned();
  const auto [total, ratio] = f.N_lp_sum_v1(2, 1, tie(2.0), true);
  // c = (1 * 4 + 1 * 5) + (1 * 4 + 1 * 7) = 20, d = 2 * 4 = 8.
  EXPECT_NEAR(total, 28.0, 1e-9);
  EXPECT_NEAR(ratio, 8.0 / 20.0, 1e-12);
  const auto& o = f.optima_view();
  ASSERT_EQ(o.size(), 2u);
  EXPECT_EQ(o.front().coordinate(0), 1.0);
  EXPECT_EQ(o.front().coordinate(1), 1.0);
  EXPECT_EQ(o.back().coordinate(0), 4.0);
  EXPECT_EQ(o.back().weight(0), 1.0);
}

TEST(N_lp_sum_v1, euclidean_costs_at_pinned_medians) {
  facilities f = pinned();
  const auto [total, ratio] = f.N_lp_sum_v1(2, 2, tie(2.0), true);
  const double s10 = std::sqrt(10.0), s13 = std::sqrt(13.0), s37 = std::sqrt(37.0);
  // c = (sqrt 10 + sqrt 13) + (sqrt 10 + sqrt 37), d = 2 sqrt 10.
  const double c = 2 * s10 + s13 + s37, d = 2 * s10;
  EXPECT_NEAR(total, c + d, 1e-6);
  EXPECT_NEAR(ratio, d / c, 1e-6);
}

TEST(N_linf_sum_v1, maximum_norm_costs_at_pinned_medians) {
  facilities f = pinned();
  // c = (3 + 3) + (3 + 6) = 15, d = 2 * 3 = 6.
  EXPECT_NEAR(f.N_linf_sum_v1(2, tie(2.0)), 21.0, 1e-9);
  const auto& o = f.optima_view();
  ASSERT_EQ(o.size(), 2u);
  EXPECT_NEAR(o.front().coordinate(0), 1.0, 1e-9);
  EXPECT_NEAR(o.front().coordinate(1), 1.0, 1e-9);
  EXPECT_NEAR(o.back().coordinate(0), 4.0, 1e-9);
  EXPECT_NEAR(o.back().coordinate(1), 2.0, 1e-9);
}

TEST(N_lp_sum_v1, equal_columns_meet_whatever_the_tie) {
  facilities f = two_columns({{0, 0, 3, 3}, {6, 4, 1, 1}});
  const auto [total, ratio] = f.N_lp_sum_v1(2, 1, tie(50.0), true);
  EXPECT_NEAR(total, 2 * 10.0, 1e-9);  // both at (0, 0), each paying 1 * 10
  EXPECT_EQ(ratio, 0.0);
}

TEST(N_lp_sum_v1, a_segment_of_optima_is_represented_by_its_first_point) {
  // Two locations of equal weight: every point of the box between them is a rectilinear
  // median, and the heuristic keeps one point per facility whatever shape the solver returns.
  facilities f = two_columns({{0, 0, 1, 1}, {4, 0, 1, 1}});
  const auto [total, ratio] = f.N_lp_sum_v1(2, 1, tie(1.0), true);
  ASSERT_EQ(f.optima_view().size(), 2u);
  EXPECT_NEAR(total, 8.0 + (f.optima_view().front() - f.optima_view().back()).norm(1), 1e-9);
  EXPECT_EQ(f.optima_view().back().weight(0), 1.0);
  (void)ratio;
}

TEST(N_lp_sum_v1, a_non_square_matrix_is_cut_to_its_upper_left_part) {
  testing::messages().clear();
  facilities f = pinned();
  matrix V(2, 3);
  V(0, 1) = 2.0;
  const auto [total, ratio] = f.N_lp_sum_v1(2, 1, V, true);
  ASSERT_EQ(testing::messages().size(), 1u);
  EXPECT_EQ(testing::messages()[0].text,
            "facilities::N_lp_sum_v1(): Matrix of interdependencies is non-quadratic: We are "
            "taking the upperleft submatrix of dimension 2 in account");
  EXPECT_TRUE(testing::messages()[0].go_on);
  EXPECT_NEAR(total, 28.0, 1e-9);
  (void)ratio;
}

TEST(N_lp_sum_v1, cannot_place_more_facilities_than_the_data_supports) {
  facilities f = pinned();
  const char* text = "Cannot compute more optima than there is provided data.";
  EXPECT_REPORT(f.N_lp_sum_v1(3, 1, matrix(3, 3), true), 1306, text);  // n above the weights
  EXPECT_REPORT(f.N_lp_sum_v1(2, 1, matrix(1, 1), true), 1306, text);  // n above the matrix
  EXPECT_REPORT(f.N_lp_sum_v1(1, 1, matrix(1, 1), true), 1306, text);  // weights above it
}

TEST(N_lp_sum_v1, only_defined_norms_are_accepted) {
  facilities f = pinned();
  for (int p : {0, -2})
    EXPECT_REPORT(f.N_lp_sum_v1(2, p, tie(1.0), true), 1201,
                  "Bad p-Norm argument in location::norm(int p).");
}

}  // namespace
}  // namespace mero
