#include "lp/n_median_model.h"

#include <gtest/gtest.h>

#include <vector>

namespace mero {
namespace {

// Path 1 - 2 - 3 with edge lengths 1 and 3 and node weights 1, 2, 1. Column (i - 1) * 3 + j
// costs w_j * d(i, j).
std::vector<double> path_objective() {
  const double d[3][3] = {{0, 1, 4}, {1, 0, 3}, {4, 3, 0}};
  const double w[3] = {1, 2, 1};
  std::vector<double> objective{0.0};
  for (int i = 0; i < 3; ++i)
    for (int j = 0; j < 3; ++j) objective.push_back(w[j] * d[i][j]);
  return objective;
}

TEST(n_median_model, one_median_on_a_path_of_three) {
  // Totals: node 1: 2 + 4 = 6, node 2: 1 + 3 = 4, node 3: 4 + 6 = 10.
  std::vector<int> result;
  const double value = solve_n_median_model(3, 9, 1, path_objective(), result);
  EXPECT_NEAR(value, 4.0, 1e-9);
  const std::vector<int> expected{0, 0, 0, 1, 1, 1, 0, 0, 0};  // node 2 serves all
  EXPECT_EQ(result, expected);
}

TEST(n_median_model, two_medians_on_a_path_of_three) {
  // {1, 2}: node 3 costs 3; {1, 3}: node 2 costs 2; {2, 3}: node 1 costs 1.
  std::vector<int> result;
  const double value = solve_n_median_model(3, 9, 2, path_objective(), result);
  EXPECT_NEAR(value, 1.0, 1e-9);
  const std::vector<int> expected{0, 0, 0, 1, 1, 0, 0, 0, 1};
  EXPECT_EQ(result, expected);
}

TEST(n_median_model, as_many_medians_as_nodes_cost_nothing) {
  std::vector<int> result;
  const double value = solve_n_median_model(3, 9, 3, path_objective(), result);
  EXPECT_NEAR(value, 0.0, 1e-9);
  const std::vector<int> expected{1, 0, 0, 0, 1, 0, 0, 0, 1};
  EXPECT_EQ(result, expected);
}

}  // namespace
}  // namespace mero
