#include "lp/l1_model.h"

#include <gtest/gtest.h>

#include <vector>

namespace mero {
namespace {

TEST(l1_model, a_heavy_tie_joins_two_facilities_unless_its_row_is_left_at_most) {
  // Facility 1 weighs A = (-10, -4) by 1, facility 2 weighs B = (0, 0) by 1, tied by 100.
  // Rows: (f1, A), (f1, B), (f2, A), (f2, B), then the pair; columns x1, x2 and two deviation
  // columns per row.
  const std::vector<double> objective{0, 0, 0, 1, 1, 0, 0, 0, 0, 1, 1, 100, 100};
  const std::vector<double> rhs_x{0, -10, 0, -10, 0, 0}, rhs_y{0, -4, 0, -4, 0, 0};
  ASSERT_EQ(l1_model_rows(2, 2), 5);
  std::vector<double> x, y;
  // All rows equal: the cheapest meeting costs the rectilinear distance 14 of A and B.
  EXPECT_NEAR(solve_l1_model(2, 2, 5, objective, rhs_x, rhs_y, x, y), 14, 1e-9);
  ASSERT_EQ(x.size(), 2u);
  EXPECT_NEAR(x[0], x[1], 1e-9);
  EXPECT_NEAR(y[0], y[1], 1e-9);
  EXPECT_GE(x[0], -10 - 1e-9);
  EXPECT_LE(x[0], 1e-9);
  // The pair row left at most reads x1 - x2 - e+ + e- <= 0, which facility 1 left of facility 2
  // satisfies at no cost; each sits on its location, below zero (the coordinates are free).
  EXPECT_NEAR(solve_l1_model(2, 2, 4, objective, rhs_x, rhs_y, x, y), 0, 1e-9);
  EXPECT_NEAR(x[0], -10, 1e-9);
  EXPECT_NEAR(y[0], -4, 1e-9);
  EXPECT_NEAR(x[1], 0, 1e-9);
  EXPECT_NEAR(y[1], 0, 1e-9);
}

}  // namespace
}  // namespace mero
