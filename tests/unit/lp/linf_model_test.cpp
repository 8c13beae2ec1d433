#include "lp/linf_model.h"

#include <gtest/gtest.h>

#include <vector>

namespace mero {
namespace {

TEST(linf_model, two_tied_facilities_below_zero) {
  // A = (-12, -3) and B = (0, 27). Facility 1 weighs them 1 and 0.5, facility 2 0.5 and 1, tie 1.
  // Rows |x_j - a_i| <= z / w as the pairs x_j + z / w >= a_i, -x_j + z / w >= -a_i, per
  // facility and location, then the two rows of the tie.
  const std::vector<double> rhs_x{0, -12, 12, 0, 0, -12, 12, 0, 0, 0, 0};
  const std::vector<double> rhs_y{0, -3, 3, 27, -27, -3, 3, 27, -27, 0, 0};
  const std::vector<double> z{0, 1, 1, 2, 2, 2, 2, 1, 1, 1, 1};
  ASSERT_EQ(linf_model_rows(2, 2), 10);
  std::vector<double> x, y;
  // x: x1 in [-12 - z, -12 + z] and [-2z, 2z] needs z >= 4, where x1 = -8 and likewise x2 = -4.
  // y: y1 <= -3 + z and y1 >= 27 - 2z need z >= 10, where y1 = 7 and y2 = 17. The larger axis
  // is the value.
  EXPECT_NEAR(solve_linf_model(2, 4, 2, rhs_x, rhs_y, z, x, y), 10, 1e-9);
  ASSERT_EQ(x.size(), 2u);
  EXPECT_NEAR(x[0], -8, 1e-9);
  EXPECT_NEAR(x[1], -4, 1e-9);
  EXPECT_NEAR(y[0], 7, 1e-9);
  EXPECT_NEAR(y[1], 17, 1e-9);
}

}  // namespace
}  // namespace mero
