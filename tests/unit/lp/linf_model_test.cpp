#include "lp/linf_model.h"

#include <gtest/gtest.h>

#include <vector>

namespace mero {
namespace {

struct point2 {
  double x, y;
};

// The maximum-norm center model: rows per facility and location, then per pair.
struct linf_instance {
  std::vector<double> rhs_x{0.0}, rhs_y{0.0}, z{0.0};
};

linf_instance make_instance(const std::vector<point2>& locations,
                            const std::vector<std::vector<double>>& weights,
                            const std::vector<std::vector<double>>& v) {
  const std::size_t n = weights.size();
  linf_instance in;
  for (std::size_t j = 0; j < n; ++j)
    for (std::size_t i = 0; i < locations.size(); ++i) {
      in.rhs_x.insert(in.rhs_x.end(), {locations[i].x, -locations[i].x});
      in.rhs_y.insert(in.rhs_y.end(), {locations[i].y, -locations[i].y});
      in.z.insert(in.z.end(), 2, 1.0 / weights[j][i]);
    }
  for (std::size_t j = 0; j < n; ++j)
    for (std::size_t k = j + 1; k < n; ++k) {
      in.rhs_x.insert(in.rhs_x.end(), 2, 0.0);
      in.rhs_y.insert(in.rhs_y.end(), 2, 0.0);
      in.z.insert(in.z.end(), 2, 1.0 / v[j][k]);
    }
  return in;
}

TEST(linf_model, one_facility_balances_the_weighted_extremes_of_each_axis) {
  // x axis: max(|x|, 2 |x - 6|) is least at x = 4 with 4. y axis: values 0 and 3, weights 1
  // and 2: max(|y|, 2 |y - 3|) is least at y = 2 with 2. The larger axis gives 4.
  const auto in = make_instance({{0, 0}, {6, 3}}, {{1, 2}}, {{0}});
  std::vector<double> x, y;
  const double value = solve_linf_model(1, 4, 2, in.rhs_x, in.rhs_y, in.z, x, y);
  ASSERT_EQ(x.size(), 1u);
  EXPECT_NEAR(value, 4.0, 1e-9);
  EXPECT_NEAR(x[0], 4.0, 1e-9);
  EXPECT_NEAR(y[0], 2.0, 1e-9);
}

TEST(linf_model, two_tied_facilities_share_the_bound) {
  // Locations 0 and 12 on the x axis. Facility 1 weighs them 1 and 0.5, facility 2 0.5 and 1,
  // tie 1. z < 4 is infeasible (x1 <= z and x1 >= 12 - 2z); z = 4 forces x1 = 4, x2 = 8.
  // On the y axis all locations lie at 0, so both y are 0 and the axis value is 0.
  const auto in = make_instance({{0, 0}, {12, 0}}, {{1, 0.5}, {0.5, 1}}, {{0, 1}, {0, 0}});
  ASSERT_EQ(linf_model_rows(2, 2), 10);
  std::vector<double> x, y;
  const double value = solve_linf_model(2, 4, 2, in.rhs_x, in.rhs_y, in.z, x, y);
  ASSERT_EQ(x.size(), 2u);
  EXPECT_NEAR(value, 4.0, 1e-9);
  EXPECT_NEAR(x[0], 4.0, 1e-9);
  EXPECT_NEAR(x[1], 8.0, 1e-9);
  EXPECT_NEAR(y[0], 0.0, 1e-9);
  EXPECT_NEAR(y[1], 0.0, 1e-9);
}

TEST(linf_model, the_larger_axis_is_reported_and_coordinates_may_be_negative) {
  // x: -10 and -2 with equal weights: -6, value 4. y: -1 and 29: 14, value 15.
  const auto in = make_instance({{-10, -1}, {-2, 29}}, {{1, 1}}, {{0}});
  std::vector<double> x, y;
  const double value = solve_linf_model(1, 4, 2, in.rhs_x, in.rhs_y, in.z, x, y);
  EXPECT_NEAR(value, 15.0, 1e-9);
  EXPECT_NEAR(x[0], -6.0, 1e-9);
  EXPECT_NEAR(y[0], 14.0, 1e-9);
}

}  // namespace
}  // namespace mero
