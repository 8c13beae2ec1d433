// The three heuristics on instances small enough to trace by hand; the traces are in the
// comments, and every expected value was checked against the value of the open set itself.

#include <gtest/gtest.h>

#include "discrete_test_support.h"
#include "test_support.h"

namespace mero {
namespace {

using namespace testing;

// Instance A. Alone, facilities 0, 1, 2 cost 25, 28, 25: Greedy opens 0 (first of the tie),
// nearest (2, 9, 9); savings 1 for facility 1 and 1 for facility 2, the first wins: z = 24.
// Then facility 2 saves exactly 0, which does not pay. Stingy: closing 0, 1 or 2 changes z by
// 6 - 5, 5 - 5 and 5 - 5; none is negative, so it stops at once with everything open (24).
// Interchange: neither exchange pays, and the tie keeps Stingy's set. The optimum is 24.
discrete_problem instance_a() {
  return make_discrete({{2, 10, 8}, {9, 3, 8}, {9, 10, 4}}, {5, 5, 5});
}

// Instance B. Greedy: alone 21, 21, 22, so facility 0 first (z = 21, nearest 6 0 8 1); saving
// of 1 is 4 - 2 = 2, of 2 is 0: open 1, z = 19; then 2 saves 0 and stops. Stingy from all open
// (z = 8 + 11 = 19): closing 0 changes z by 5 - 6 = -1, closing 1 by 4 - 2, closing 2 by 0, so 0
// goes (z = 18); then closing 1 or 2 would cost 4 or 3. Interchange from Greedy's {0,1}: against
// facility 2 the saving of 0 is 0 - 3 + 0 - 2 + 6 - 0 = 1, so z = 18 with {1,2}, the optimum
// (2 + 16); the tie with Stingy's start keeps the same set. Ties in service go to the first.
discrete_problem instance_b() {
  return make_discrete({{6, 6, 7}, {0, 3, 3}, {8, 4, 9}, {1, 6, 3}}, {6, 2, 0});
}

TEST(ufl_heuristics, hand_traced_instances) {
  const struct {
    discrete_problem (*instance)();
    ufl_solver solve;
    double value;
    std::vector<int> open, served;
  } cases[] = {
      {instance_a, &discrete_problem::UFL_Greedy, 24, {0, 1}, {0, 1, 0}},
      {instance_a, &discrete_problem::UFL_Stingy, 24, {0, 1, 2}, {0, 1, 2}},
      {instance_a, &discrete_problem::UFL_Interchange, 24, {0, 1, 2}, {0, 1, 2}},
      {instance_b, &discrete_problem::UFL_Greedy, 19, {0, 1}, {0, 0, 1, 0}},
      {instance_b, &discrete_problem::UFL_Stingy, 18, {1, 2}, {1, 1, 1, 2}},
      {instance_b, &discrete_problem::UFL_Interchange, 18, {1, 2}, {1, 1, 1, 2}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.value);
    discrete_problem p = c.instance();
    EXPECT_DOUBLE_EQ((p.*c.solve)(), c.value);
    EXPECT_EQ(open_indices(p), c.open);
    EXPECT_EQ(served_by(p), c.served);
  }
}

TEST(ufl_heuristics, infinite_costs) {
  // Greedy opens one facility even when every fixed cost is infinite.
  discrete_problem p = make_discrete({{5, 1}, {5, 1}}, {1e50, 1e50});
  EXPECT_EQ(p.UFL_Greedy(), 1e50);
  EXPECT_EQ(open_indices(p), (std::vector<int>{0}));
  // Stingy: closing the only facility changes nothing in service (1e50 either way) and saves 5:
  // it is dropped, the open set is empty and the value stays the start value 5 + 1e50.
  discrete_problem q = make_discrete({{1e50}}, {5});
  EXPECT_EQ(q.UFL_Stingy(), 1e50);
  EXPECT_TRUE(q.opt.empty());
  EXPECT_EQ(served_by(q), (std::vector<int>{-1}));
}

TEST(ufl_stingy, supply_is_demand_leaves_out_the_start_service_cost) {
  // Square matrix with zero diagonal: the start value is the fixed costs alone, 3 + 3 + 3 = 9,
  // which here is also the true value of opening everything. Closing 0 or 1 changes z by 1 - 3;
  // 0 goes (z = 7); then closing 1 changes by 9 - 3 = 6 and closing 2 by 2 - 3 = -1: z = 6,
  // the true value of {1}: 3 + 1 + 0 + 2.
  discrete_problem p = make_discrete({{0, 1, 5}, {1, 0, 5}, {5, 2, 0}}, {3, 3, 3});
  p.supply_is_demand = true;
  EXPECT_DOUBLE_EQ(p.UFL_Stingy(), 6.0);
  EXPECT_EQ(open_indices(p), (std::vector<int>{1}));
  EXPECT_EQ(served_by(p), (std::vector<int>{1, 1, 1}));
  // With a non-zero diagonal the shortcut starts too low, and the result shows it: the true value
  // of the all-open set is 3 + 3 = 6 in fixed costs plus 1 + 1 = 2 in service.
  discrete_problem q = make_discrete({{1, 9}, {9, 1}}, {3, 3});
  q.supply_is_demand = true;
  EXPECT_DOUBLE_EQ(q.UFL_Stingy(), 6.0);
  EXPECT_EQ(open_indices(q), (std::vector<int>{0, 1}));
}

TEST(discrete_solvers, refuse_an_empty_problem) {
  for (ufl_solver solve : ufl_solvers) {
    discrete_problem empty;
    EXPECT_REPORT(
        (empty.*solve)(), 3108,
        "Discrete problem without demand or supply points: give a discrete file with -d.");
  }
}

}  // namespace
}  // namespace mero
