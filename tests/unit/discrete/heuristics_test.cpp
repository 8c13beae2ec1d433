// The three heuristics on instances small enough to trace by hand; the traces are in the
// comments, and every expected value was checked against the value of the open set itself.

#include <gtest/gtest.h>

#include "discrete_test_support.h"
#include "test_support.h"

namespace mero {
namespace {

using testing::make_discrete;
using testing::open_indices;
using testing::served_by;

// Instance A. Alone, facilities 0, 1, 2 cost 25, 28, 25: Greedy opens 0 (first of the tie),
// nearest (2, 9, 9); savings 1 for facility 1 and 1 for facility 2, the first wins: z = 24.
// Then facility 2 saves exactly 0, which does not pay. The optimum is 24 (also {0,1,2}, {0,2}).
discrete_problem instance_a() {
  return make_discrete({{2, 10, 8}, {9, 3, 8}, {9, 10, 4}}, {5, 5, 5});
}

// Instance B. Greedy: alone 21, 21, 22, so facility 0 first (z = 21, nearest 6 0 8 1); saving
// of 1 is 4 - 2 = 2, of 2 is 0: open 1, z = 19; then 2 saves 0 and stops. Stingy from all open
// (z = 8 + 11 = 19): closing 0 changes z by 5 - 6 = -1, closing 1 by 4 - 2, closing 2 by 0, so 0
// goes (z = 18); then closing 1 or 2 would cost 4 or 3. The optimum is {1,2} with 2 + 16 = 18.
discrete_problem instance_b() {
  return make_discrete({{6, 6, 7}, {0, 3, 3}, {8, 4, 9}, {1, 6, 3}}, {6, 2, 0});
}

TEST(ufl_greedy, stops_when_the_best_saving_is_zero) {
  discrete_problem a = instance_a();
  EXPECT_DOUBLE_EQ(a.UFL_Greedy(), 24.0);
  EXPECT_EQ(open_indices(a), (std::vector<int>{0, 1}));
  EXPECT_EQ(served_by(a), (std::vector<int>{0, 1, 0}));  // demand 2: 9 from both, first wins

  discrete_problem b = instance_b();
  EXPECT_DOUBLE_EQ(b.UFL_Greedy(), 19.0);
  EXPECT_EQ(open_indices(b), (std::vector<int>{0, 1}));
  EXPECT_EQ(served_by(b), (std::vector<int>{0, 0, 1, 0}));
}

TEST(ufl_greedy, opens_one_facility_when_all_fixed_costs_are_infinite) {
  discrete_problem p = make_discrete({{5, 1}, {5, 1}}, {1e50, 1e50});
  EXPECT_EQ(p.UFL_Greedy(), 1e50);
  EXPECT_EQ(open_indices(p), (std::vector<int>{0}));

  discrete_problem single = make_discrete({{3}, {4}}, {10});
  EXPECT_DOUBLE_EQ(single.UFL_Greedy(), 17.0);
  EXPECT_EQ(open_indices(single), (std::vector<int>{0}));
}

TEST(ufl_stingy, drops_while_a_drop_pays) {
  discrete_problem b = instance_b();
  EXPECT_DOUBLE_EQ(b.UFL_Stingy(), 18.0);
  EXPECT_EQ(open_indices(b), (std::vector<int>{1, 2}));
  EXPECT_EQ(served_by(b), (std::vector<int>{1, 1, 1, 2}));  // demand 1: 3 from both, first wins

  // Instance A: closing 0, 1 or 2 changes z by 6 - 5, 5 - 5 and 5 - 5; none is negative, so
  // Stingy stops at once with everything open.
  discrete_problem a = instance_a();
  EXPECT_DOUBLE_EQ(a.UFL_Stingy(), 24.0);
  EXPECT_EQ(open_indices(a), (std::vector<int>{0, 1, 2}));
}

TEST(ufl_stingy, may_drop_the_last_facility) {
  // Closing the only facility changes nothing in service (1e50 either way) and saves 5: it is
  // dropped, the open set is empty and the value stays the start value 5 + 1e50.
  discrete_problem p = make_discrete({{1e50}}, {5});
  EXPECT_EQ(p.UFL_Stingy(), 1e50);
  EXPECT_TRUE(p.opt.empty());
  EXPECT_EQ(served_by(p), (std::vector<int>{-1}));
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

TEST(ufl_interchange, exchange_improves_the_greedy_start) {
  // From Greedy's {0,1} (19) the first open facility with a profitable exchange is 0: against
  // facility 2 the saving is 0 - 3 + 0 - 2 + 6 - 0 = 1, so z = 18 with {1,2}. Stingy also ends at
  // 18 with {1,2}; the tie goes to the Stingy start, which is the same set.
  discrete_problem b = instance_b();
  EXPECT_DOUBLE_EQ(b.UFL_Interchange(), 18.0);
  EXPECT_EQ(open_indices(b), (std::vector<int>{1, 2}));
  EXPECT_EQ(served_by(b), (std::vector<int>{1, 1, 1, 2}));
}

TEST(ufl_interchange, tie_goes_to_the_stingy_start) {
  // Greedy ends at {0,1} (24), Stingy keeps all three open (24); neither exchange pays, and the
  // tie keeps Stingy's set.
  discrete_problem a = instance_a();
  EXPECT_DOUBLE_EQ(a.UFL_Interchange(), 24.0);
  EXPECT_EQ(open_indices(a), (std::vector<int>{0, 1, 2}));
  EXPECT_EQ(served_by(a), (std::vector<int>{0, 1, 2}));
}

TEST(discrete_solvers, refuse_an_empty_problem) {
  discrete_problem empty;
  EXPECT_REPORT(empty.UFL_Greedy(), 3108,
                "Discrete problem without demand or supply points: give a discrete file with -d.");
  EXPECT_REPORT(empty.UFL_Stingy(), 3108,
                "Discrete problem without demand or supply points: give a discrete file with -d.");
  EXPECT_REPORT(empty.UFL_Interchange(), 3108,
                "Discrete problem without demand or supply points: give a discrete file with -d.");
  EXPECT_REPORT(empty.UFL_Dualoc(), 3108,
                "Discrete problem without demand or supply points: give a discrete file with -d.");
}

}  // namespace
}  // namespace mero
