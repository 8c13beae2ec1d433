#include "lp/two_variable_model.h"

#include <gtest/gtest.h>

#include <vector>

namespace mero {
namespace {

// x + y <= 4, x + 3y <= 6, 0 <= x <= 3, 0 <= y <= 10. Vertices: (0,0), (3,0), (3,1), (0,2).
struct polygon_model {
  std::vector<double> rhs{0, 4, 6}, a1{0, 1, 1}, a2{0, 1, 3}, lower{0, 0, 0}, upper{0, 3, 10};
};

TEST(two_variable_model, maximum_at_a_vertex) {
  const polygon_model m;
  // 3x + 2y: 0, 9, 11, 4 at the vertices.
  const auto r = solve_two_variable_model(2, m.rhs, m.a1, m.a2, m.lower, m.upper, {0, 3, 2}, true);
  EXPECT_NEAR(r[0], 3.0, 1e-9);
  EXPECT_NEAR(r[1], 1.0, 1e-9);
  EXPECT_NEAR(r[2], 11.0, 1e-9);
}

TEST(two_variable_model, minimum_at_a_vertex) {
  const polygon_model m;
  // x - y: 0, 3, 2, -2 at the vertices.
  const auto r =
      solve_two_variable_model(2, m.rhs, m.a1, m.a2, m.lower, m.upper, {0, 1, -1}, false);
  EXPECT_NEAR(r[0], 0.0, 1e-9);
  EXPECT_NEAR(r[1], 2.0, 1e-9);
  EXPECT_NEAR(r[2], -2.0, 1e-9);
}

TEST(two_variable_model, bounds_bind_when_the_rows_do_not) {
  const polygon_model m;
  // Lower bounds 1 and 0.5 and minimising x + y: the corner of the bounds.
  const auto r =
      solve_two_variable_model(2, m.rhs, m.a1, m.a2, {0, 1, 0.5}, m.upper, {0, 1, 1}, false);
  EXPECT_NEAR(r[0], 1.0, 1e-9);
  EXPECT_NEAR(r[1], 0.5, 1e-9);
  EXPECT_NEAR(r[2], 1.5, 1e-9);
}

}  // namespace
}  // namespace mero
