// The one-by-one heuristic N_lp_sum_v1: its cost ratio, its representative points and its
// dimension checks, on instances whose single-facility medians are known by hand (a weight of
// more than half the total pins the median to its location).

#include "planar/multifacility.h"
#include "planar_fixtures.h"

namespace mero::testing {
namespace {

// (1, 1), (4, 2) and (-2, 3); facility 0 weighs them 5, 1, 1 and facility 1 weighs 1, 7, 1.
// The Euclidean optimality test at a location weighs the other locations' pull by column 0
// whatever column is solved; 7 holds (4, 2) against that pull too (5.9).
facilities pinned() {
  return problem({site(1, 1, {5, 1}), site(4, 2, {1, 7}), site(-2, 3, {1, 1})});
}

TEST(N_lp_sum_v1, costs_and_their_ratio_at_pinned_medians) {
  const double s10 = std::sqrt(10.0), s13 = std::sqrt(13.0), s37 = std::sqrt(37.0);
  // Location costs c and tie costs d: rectilinear c = (4 + 5) + (4 + 7), d = 2 * 4; Euclidean
  // c = (sqrt 10 + sqrt 13) + (sqrt 10 + sqrt 37), d = 2 sqrt 10.
  for (auto [p, c, d] : {std::tuple{1, 20.0, 8.0}, {2, 2 * s10 + s13 + s37, 2 * s10}}) {
    facilities f = pinned();
    const auto [total, ratio] = f.N_lp_sum_v1(2, p, tie(2.0), true);
    EXPECT_NEAR(total, c + d, 1e-6) << p;
    EXPECT_NEAR(ratio, d / c, 1e-6) << p;
  }
}

TEST(N_lp_sum_v1, a_segment_of_optima_is_represented_by_one_point) {
  // Two locations of equal weight: every point of the box between them is a rectilinear
  // median, and the heuristic keeps one point per facility whatever shape the solver returns.
  facilities f = problem({site(0, 0, {1, 1}), site(4, 0, {1, 1})});
  const double total = f.N_lp_sum_v1(2, 1, tie(1.0), true).first;
  ASSERT_EQ(f.optima_view().size(), 2u);
  EXPECT_NEAR(total, 8.0 + (f.optima_view().front() - f.optima_view().back()).norm(1), 1e-9);
  EXPECT_EQ(f.optima_view().back().weight(0), 1.0);
}

TEST(N_lp_sum_v1, matrix_and_weight_dimensions) {
  // A non-square matrix is cut to its upper left part, with a message that lets the run go on.
  messages().clear();
  facilities f = pinned();
  matrix V(2, 3);
  V(0, 1) = 2.0;
  EXPECT_NEAR(f.N_lp_sum_v1(2, 1, V, true).first, 28.0, 1e-9);
  ASSERT_EQ(messages().size(), 1u);
  EXPECT_EQ(messages()[0].text,
            "facilities::N_lp_sum_v1(): Matrix of interdependencies is non-quadratic: We are "
            "taking the upperleft submatrix of dimension 2 in account");
  EXPECT_TRUE(messages()[0].go_on);
  // n above the weights, n above the matrix, weights above it.
  const char* text = "Cannot compute more optima than there is provided data.";
  EXPECT_REPORT(f.N_lp_sum_v1(3, 1, matrix(3, 3), true), 1306, text);
  EXPECT_REPORT(f.N_lp_sum_v1(2, 1, matrix(1, 1), true), 1306, text);
  EXPECT_REPORT(f.N_lp_sum_v1(1, 1, matrix(1, 1), true), 1306, text);
}

}  // namespace
}  // namespace mero::testing
