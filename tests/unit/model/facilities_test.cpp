#include "model/facilities.h"

#include <sstream>

#include "test_support.h"

namespace mero {
namespace {

location at(double x, double y, double w = 1.0) { return location(2.0, 1.0, x, y, w); }

facilities three() {
  facilities f;
  for (auto l : {at(0, 0, 1), at(4, 1, 2), at(2, 5, 3)}) f.push_back(l);
  f.names = {"a", "b", "c"};
  return f;
}

TEST(facilities, remove_by_value) {
  facilities f = three();
  EXPECT_TRUE(f.contains(at(4, 1, 99)));  // contains ignores weights, remove does not
  EXPECT_FALSE(f.contains(at(4, 2)));
  f.remove(at(4, 1, 99));
  EXPECT_EQ(f.size(), 3u);
  // The head alone goes when it matches; otherwise every inner match goes.
  f = facilities();
  for (auto l : {at(1, 1), at(2, 2), at(1, 1), at(2, 2), at(3, 3)}) f.push_back(l);
  f.remove(at(1, 1));
  ASSERT_EQ(f.size(), 4u);
  EXPECT_EQ(f.front(), at(2, 2));
  f.insert(f.begin(), at(9, 9));
  f.remove(at(2, 2));
  f.remove(at(7, 7));  // no match, no error
  EXPECT_EQ((std::vector<location>(f)), (std::vector<location>{at(9, 9), at(1, 1), at(3, 3)}));
}

TEST(facilities, get_and_remove_by_index) {
  facilities f = three();
  EXPECT_EQ(f.get(1), at(4, 1, 2));
  EXPECT_EQ(f.get(-1), location(2, 1));  // out of range: a zero location
  EXPECT_EQ(f.get(3), location(2, 1));
  EXPECT_EQ(facilities().get(0), location(2, 1));
  f.remove(1);
  ASSERT_EQ(f.size(), 2u);
  EXPECT_EQ(f.get(1), at(2, 5, 3));
  EXPECT_EQ(f.names.size(), 3u);  // names are not adjusted
  const char* text = "facilities::remove(): There is no corresponding location for idx";
  EXPECT_REPORT(f.remove(-1), 1305, text);
  EXPECT_REPORT(f.remove(2), 1305, text);
}

TEST(facilities, refname_walks_in_step_and_drifts_after_remove) {
  facilities f = three();
  auto second = std::next(f.begin());
  f.refname(*second) = "B";
  EXPECT_EQ(f.names, (std::list<std::string>{"a", "B", "c"}));
  f.remove(0);
  // The location that was second now stands first and gets the first name.
  EXPECT_EQ(f.refname(f.front()), "a");
  location foreign = at(0, 0);
  EXPECT_REPORT(f.refname(foreign), 1334,
                "facilities::refname(): location isn't an item of this object");
  f.names.clear();  // missing names are appended as empty ones
  EXPECT_EQ(f.refname(f.back()), "");
  EXPECT_EQ(f.names.size(), 2u);
}

TEST(facilities, sums_ranges_and_objective) {
  facilities f = three();
  EXPECT_EQ(f.weight_sums(), Loc_Vector(1.0, 6.0));
  EXPECT_EQ(f.coordinate_max(0), 4.0);
  EXPECT_EQ(f.coordinate_min(1), 0.0);
  EXPECT_EQ(f.coordinate_range(1), 5.0);
  // From (1,1): l1 distances 2, 3, 5 and linf distances 1, 3, 4, with weights 1, 2, 3.
  EXPECT_EQ(f.objective(1, at(1, 1), 0), 2 + 6 + 15);
  EXPECT_EQ(f.objective(-1, at(1, 1), 0), 1 + 6 + 12);
  EXPECT_REPORT(f.objective(1, 0), 1303, "Solve a problem first.");
  std::ostringstream out;
  EXPECT_REPORT(f.write_optima(out), 1304, "Solve a problem first.");
  facilities empty;
  EXPECT_KERNEL_ERROR(empty.coordinate_max(0), "dlist::head(): empty list");
  EXPECT_KERNEL_ERROR(empty.weight_sums(), "dlist::head(): empty list");
}

TEST(facilities, sort_by_coordinate_is_stable) {
  std::list<location> L{at(3, 0, 1), at(1, 5, 2), at(3, -1, 3), at(1, 2, 4)};
  auto order = [&L] {
    std::vector<double> w;
    for (const location& l : L) w.push_back(l.weight(0));
    return w;
  };
  sort_by_coordinate(L, 0);
  EXPECT_EQ(order(), (std::vector<double>{2, 4, 1, 3}));
  sort_by_coordinate(L, 1);
  EXPECT_EQ(order(), (std::vector<double>{3, 1, 4, 2}));
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
  EXPECT_EQ(f.sorted_merged(0, 1).back(), location(2.0, 2.0, 2.0, 0.0, 1.0, 50.0));
}

}  // namespace
}  // namespace mero
