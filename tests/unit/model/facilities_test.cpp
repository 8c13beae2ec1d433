#include "model/facilities.h"

#include <sstream>

#include "test_support.h"

namespace mero {
namespace {

location at(double x, double y, double w = 1.0) { return location(2.0, 1.0, x, y, w); }

facilities three() {
  facilities f;
  f.push_back(at(0, 0, 1));
  f.push_back(at(4, 1, 2));
  f.push_back(at(2, 5, 3));
  f.names = {"a", "b", "c"};
  return f;
}

TEST(facilities, get_out_of_range_gives_zero_location) {
  facilities f = three();
  EXPECT_EQ(f.get(1), at(4, 1, 2));
  EXPECT_EQ(f.get(-1), location(2, 1));
  EXPECT_EQ(f.get(3), location(2, 1));
  EXPECT_EQ(facilities().get(0), location(2, 1));
}

TEST(facilities, contains_ignores_weights_but_remove_does_not) {
  facilities f = three();
  EXPECT_TRUE(f.contains(at(4, 1, 99)));
  EXPECT_FALSE(f.contains(at(4, 2)));
  f.remove(at(4, 1, 99));
  EXPECT_EQ(f.size(), 3u);
  f.remove(at(4, 1, 2));
  EXPECT_EQ(f.size(), 2u);
  EXPECT_FALSE(f.contains(at(4, 1)));
}

TEST(facilities, remove_by_value_takes_the_head_only_or_every_inner_match) {
  facilities f;
  for (auto l : {at(1, 1), at(2, 2), at(1, 1), at(2, 2), at(3, 3)}) f.push_back(l);
  f.remove(at(1, 1));  // the head matches: only it goes
  ASSERT_EQ(f.size(), 4u);
  EXPECT_EQ(f.front(), at(2, 2));
  f.push_front(at(9, 9));
  f.remove(at(2, 2));  // neither end matches: every match goes
  ASSERT_EQ(f.size(), 3u);
  EXPECT_EQ(f.get(0), at(9, 9));
  EXPECT_EQ(f.get(1), at(1, 1));
  EXPECT_EQ(f.get(2), at(3, 3));
  f.remove(at(7, 7));  // no match, no error
  EXPECT_EQ(f.size(), 3u);
}

TEST(facilities, remove_by_index) {
  facilities f = three();
  f.remove(1);
  ASSERT_EQ(f.size(), 2u);
  EXPECT_EQ(f.get(1), at(2, 5, 3));
  EXPECT_EQ(f.names.size(), 3u);  // names are not adjusted
  f.remove(1);
  f.remove(0);
  EXPECT_TRUE(f.empty());
  facilities g = three();
  const char* text = "facilities::remove(): There is no corresponding location for idx";
  EXPECT_REPORT(g.remove(-1), 1305, text);
  EXPECT_REPORT(g.remove(3), 1305, text);
}

TEST(facilities, refname_walks_in_step_and_drifts_after_remove) {
  facilities f = three();
  auto second = std::next(f.begin());
  EXPECT_EQ(f.refname(*second), "b");
  f.refname(*second) = "B";
  EXPECT_EQ(*std::next(f.names.begin()), "B");
  f.remove(0);
  // The location that was second now stands first and gets the first name.
  EXPECT_EQ(f.refname(f.front()), "a");
  location foreign = at(0, 0);
  EXPECT_REPORT(f.refname(foreign), 1334,
                "facilities::refname(): location isn't an item of this object");
}

TEST(facilities, refname_appends_missing_names) {
  facilities f = three();
  f.names.clear();
  EXPECT_EQ(f.refname(f.back()), "");
  EXPECT_EQ(f.names.size(), 3u);
}

TEST(facilities, sums_and_ranges) {
  facilities f = three();
  EXPECT_EQ(f.weight_sums(), Loc_Vector(1.0, 6.0));
  EXPECT_EQ(f.coordinate_max(0), 4.0);
  EXPECT_EQ(f.coordinate_min(1), 0.0);
  EXPECT_EQ(f.coordinate_range(1), 5.0);
  facilities empty;
  EXPECT_KERNEL_ERROR(empty.coordinate_max(0), "dlist::head(): empty list");
  EXPECT_KERNEL_ERROR(empty.weight_sums(), "dlist::head(): empty list");
}

TEST(facilities, objective_at_a_point) {
  facilities f = three();
  // l1 distances from (1,1): 2, 3, 5 with weights 1, 2, 3.
  EXPECT_EQ(f.objective(1, at(1, 1), 0), 2 + 6 + 15);
  // linf distances: 1, 3, 4.
  EXPECT_EQ(f.objective(-1, at(1, 1), 0), 1 + 6 + 12);
  EXPECT_REPORT(f.objective(1, 0), 1303, "Solve a problem first.");
  std::ostringstream out;
  EXPECT_REPORT(f.write_optima(out), 1304, "Solve a problem first.");
}

TEST(facilities, transforms_on_the_own_list) {
  facilities f = three();
  f.l1_to_linf();
  EXPECT_EQ(f.get(1).coordinates(), Loc_Vector(2.0, 2.5, -1.5));
  f.linf_to_l1();
  EXPECT_EQ(f.get(1).coordinates(), Loc_Vector(2.0, 4.0, 1.0));
}

TEST(facilities, sort_by_coordinate_is_stable) {
  std::list<location> L{at(3, 0, 1), at(1, 5, 2), at(3, -1, 3), at(1, 2, 4)};
  sort_by_coordinate(L, 0);
  std::vector<double> order;
  for (const location& l : L) order.push_back(l.weight(0));
  EXPECT_EQ(order, (std::vector<double>{2, 4, 1, 3}));
  sort_by_coordinate(L, 1);
  order.clear();
  for (const location& l : L) order.push_back(l.weight(0));
  EXPECT_EQ(order, (std::vector<double>{3, 1, 4, 2}));
}

TEST(facilities, sorted_merged_adds_the_solved_column_only) {
  facilities f;
  f.push_back(location(2.0, 2.0, 2.0, 0.0, 1.0, 10.0));
  f.push_back(location(2.0, 2.0, 1.0, 1.0, 2.0, 20.0));
  f.push_back(location(2.0, 2.0, 2.0, 2.0, 4.0, 40.0));
  auto merged = f.sorted_merged(0, 0);
  ASSERT_EQ(merged.size(), 2u);
  EXPECT_EQ(merged.front(), location(2.0, 2.0, 1.0, 1.0, 2.0, 20.0));
  // The two entries at x = 2 merge into the first of them; column 1 stays its own.
  EXPECT_EQ(merged.back(), location(2.0, 2.0, 2.0, 0.0, 5.0, 10.0));
  EXPECT_EQ(f.size(), 3u);  // the object's list is untouched
  merged = f.sorted_merged(0, 1);
  EXPECT_EQ(merged.back(), location(2.0, 2.0, 2.0, 0.0, 1.0, 50.0));
}

}  // namespace
}  // namespace mero
