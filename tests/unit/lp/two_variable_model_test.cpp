#include "lp/two_variable_model.h"

#include <gtest/gtest.h>

#include "test_support.h"

namespace mero {
namespace {

TEST(two_variable_model, optimum_at_a_vertex_or_a_bound) {
  // x + y <= 4, x + 3y <= 6, 0 <= x <= 3, 0 <= y <= 10. Vertices: (0,0), (3,0), (3,1), (0,2).
  const std::vector<double> rhs{0, 4, 6}, a1{0, 1, 1}, a2{0, 1, 3}, upper{0, 3, 10};
  struct instance {
    std::vector<double> lower, objective;
    bool maximise;
    std::array<double, 3> expected;
  };
  for (const instance& in : std::vector<instance>{
           {{0, 0, 0}, {0, 3, 2}, true, {3, 1, 11}},        // 3x + 2y: 0, 9, 11, 4
           {{0, 0, 0}, {0, 1, -1}, false, {0, 2, -2}},      // x - y: 0, 3, 2, -2
           {{0, 1, 0.5}, {0, 1, 1}, false, {1, 0.5, 1.5}},  // the corner of the lower bounds
       }) {
    const auto r =
        solve_two_variable_model(2, rhs, a1, a2, in.lower, upper, in.objective, in.maximise);
    for (int k = 0; k < 3; ++k) EXPECT_NEAR(r[k], in.expected[k], 1e-9) << k;
  }
}

// A model without an optimum is an error, not a report of lp_solve's last numbers.
TEST(two_variable_model, no_optimum_is_reported) {
  const std::vector<double> rhs{0, 4, 6}, a1{0, 1, 1}, a2{0, 1, 3}, upper{0, 3, 10};
  // x >= 5 against x <= 3.
  EXPECT_REPORT(solve_two_variable_model(2, rhs, a1, a2, {0, 5, 0}, {0, 1e30, 10}, {0, 1, 1},
                                         false),
                1371, "The linear program has no feasible solution.");
  // Maximise x + y with x + y <= 4 gone (a row of zeros) and no upper bounds.
  EXPECT_REPORT(solve_two_variable_model(2, rhs, {0, 0, 0}, {0, 0, 0}, {0, 0, 0}, {0, 1e30, 1e30},
                                         {0, 1, 1}, true),
                1370, "The linear program is unbounded: the data give no optimal location.");
}

}  // namespace
}  // namespace mero
