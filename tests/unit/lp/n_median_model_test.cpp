#include "lp/n_median_model.h"

#include <gtest/gtest.h>

namespace mero {
namespace {

TEST(n_median_model, one_two_and_three_medians_on_a_path_of_three) {
  // Path 1 - 2 - 3 with edge lengths 1 and 3 and node weights 1, 2, 1. Column (i - 1) * 3 + j
  // costs w_j * d(i, j), so row i of the matrix reads 0 2 4, 1 0 3, 4 6 0.
  const std::vector<double> objective{0, 0, 2, 4, 1, 0, 3, 4, 6, 0};
  struct expectation {
    int p;
    double value;
    std::vector<int> result;
  };
  for (const expectation& e : std::vector<expectation>{
           // Node 1: 2 + 4, node 2: 1 + 3, node 3: 4 + 6; node 2 serves all.
           {1, 4, {0, 0, 0, 1, 1, 1, 0, 0, 0}},
           // {1, 2}: node 3 costs 3; {1, 3}: node 2 costs 2; {2, 3}: node 1 costs 1.
           {2, 1, {0, 0, 0, 1, 1, 0, 0, 0, 1}},
           {3, 0, {1, 0, 0, 0, 1, 0, 0, 0, 1}},
       }) {
    std::vector<int> result;
    EXPECT_NEAR(solve_n_median_model(3, 9, e.p, objective, result), e.value, 1e-9) << e.p;
    EXPECT_EQ(result, e.result) << e.p;
  }
}

}  // namespace
}  // namespace mero
