#include <algorithm>
#include <cmath>
#include <random>
#include <set>
#include <vector>

#include "model/facilities.h"
#include "test_support.h"

namespace mero {
namespace {

location at(double x, double y, double w = 1.0) { return location(2.0, 1.0, x, y, w); }

std::vector<std::pair<double, double>> corners(const facilities& f) {
  std::vector<std::pair<double, double>> out;
  for (const location& l : f.optima_view()) out.emplace_back(l.coordinate(0), l.coordinate(1));
  return out;
}

using corner_list = std::vector<std::pair<double, double>>;

TEST(l1_median, hand_computed_shapes) {
  facilities f;
  f.push_back(at(0, 0));
  f.push_back(at(2, 4));
  EXPECT_EQ(f.l1_sum(0, true), 6.0);
  EXPECT_EQ(corners(f), (corner_list{{0, 0}, {2, 0}, {2, 4}, {0, 4}}));

  facilities vertical;
  vertical.push_back(at(1, 0));
  vertical.push_back(at(1, 2));
  EXPECT_EQ(vertical.l1_sum(0, true), 2.0);
  EXPECT_EQ(corners(vertical), (corner_list{{1, 0}, {1, 2}}));

  facilities horizontal;
  horizontal.push_back(at(3, 7));
  horizontal.push_back(at(-1, 7));
  EXPECT_EQ(horizontal.l1_sum(0, true), 4.0);
  EXPECT_EQ(corners(horizontal), (corner_list{{-1, 7}, {3, 7}}));

  facilities three;
  three.push_back(at(0, 0));
  three.push_back(at(5, 1));
  three.push_back(at(2, 7));
  EXPECT_EQ(three.l1_sum(0, true), 12.0);  // the coordinate-wise median (2, 1)
  EXPECT_EQ(corners(three), (corner_list{{2, 1}}));
}

TEST(l1_median, optima_carry_the_solved_column_as_group) {
  facilities f;
  f.push_back(location(2.0, 2.0, 0.0, 0.0, 1.0, 3.0));
  f.push_back(location(2.0, 2.0, 4.0, 2.0, 1.0, 1.0));
  f.l1_sum(0, true);
  f.l1_sum(1, false);  // appended behind the first result
  std::vector<double> groups;
  for (const location& l : f.optima_view()) groups.push_back(l.weight(0));
  EXPECT_EQ(groups, (std::vector<double>{0, 0, 0, 0, 1}));
  EXPECT_EQ(f.optima().back().coordinates(), Loc_Vector(2.0, 0.0, 0.0));
  f.l1_sum(1, true);
  EXPECT_EQ(f.optima().size(), 1u);
}

TEST(l1_median, zero_weights_are_stepped_over) {
  facilities f;
  f.push_back(at(0, 0, 1));
  f.push_back(at(1, 5, 0));
  f.push_back(at(3, 0, 1));
  EXPECT_EQ(f.l1_sum(0, true), 3.0);
  EXPECT_EQ(corners(f), (corner_list{{0, 0}, {3, 0}}));
}

TEST(l1_median, the_skip_test_reads_column_zero) {
  // Solving column 1: the location at x = 1 weighs 0 there but 1 in column 0, so it ends the
  // segment although x = 2 would be optimal as well.
  facilities f;
  f.push_back(location(2.0, 2.0, 0.0, 0.0, 1.0, 1.0));
  f.push_back(location(2.0, 2.0, 1.0, 0.0, 1.0, 0.0));
  f.push_back(location(2.0, 2.0, 2.0, 0.0, 1.0, 1.0));
  EXPECT_EQ(f.l1_sum(1, true), 2.0);
  EXPECT_EQ(corners(f), (corner_list{{0, 0}, {1, 0}}));
}

TEST(l1_median, duplicates_merge) {
  facilities f;
  f.push_back(at(0, 0, 1));
  f.push_back(at(0, 0, 1));
  f.push_back(at(4, 4, 2));
  EXPECT_EQ(f.l1_sum(0, true), 16.0);
  EXPECT_EQ(corners(f), (corner_list{{0, 0}, {4, 0}, {4, 4}, {0, 4}}));
}

// The message ends the run (go_on false); the test sink throws it.
void expect_whole_plane_message(facilities& f) {
  try {
    f.l1_sum(0, true);
    ADD_FAILURE() << "no message";
  } catch (const testing::reported& r) {
    EXPECT_EQ(r.what.what, report::kind::message);
    EXPECT_FALSE(r.what.go_on);
    EXPECT_EQ(r.what.text,
              "facilities::l1_sum(): All weights are equal zero:The whole plane is optimal");
  }
  EXPECT_TRUE(f.optima_view().empty());
}

TEST(l1_median, all_weights_zero_ends_with_the_message) {
  facilities zero;
  zero.push_back(at(1, 1, 0));
  zero.push_back(at(2, 3, 0));
  expect_whole_plane_message(zero);
  facilities cancelling;  // weights that sum to exactly 0.0 count as all zero
  cancelling.push_back(at(1, 1, 2));
  cancelling.push_back(at(2, 3, -2));
  expect_whole_plane_message(cancelling);
  facilities none;
  expect_whole_plane_message(none);
}

// Objective by its definition, independent of the solver's own evaluation.
double l1_cost(const std::vector<location>& pts, double x, double y) {
  double sum = 0.0;
  for (const location& l : pts)
    sum += (std::fabs(l.coordinate(0) - x) + std::fabs(l.coordinate(1) - y)) * l.weight(0);
  return sum;
}

// The smallest and largest minimiser of one axis among the coordinates of positive weight; with
// integer data every sum is exact, so ties are real ties.
std::pair<double, double> axis_optimum(const std::vector<location>& pts, int axis) {
  std::set<double> candidates;
  for (const location& l : pts)
    if (l.weight(0) > 0) candidates.insert(l.coordinate(axis));
  double best = INFINITY;
  std::vector<double> minimisers;
  for (double c : candidates) {
    double sum = 0.0;
    for (const location& l : pts) sum += std::fabs(l.coordinate(axis) - c) * l.weight(0);
    if (sum < best) minimisers.clear();
    if (sum <= best) {
      best = sum;
      minimisers.push_back(c);
    }
  }
  return {minimisers.front(), minimisers.back()};
}

corner_list expected_set(const std::vector<location>& pts) {
  auto [x0, x1] = axis_optimum(pts, 0);
  auto [y0, y1] = axis_optimum(pts, 1);
  if (x0 == x1 && y0 == y1) return {{x0, y0}};
  if (x0 == x1) return {{x0, y0}, {x0, y1}};
  if (y0 == y1) return {{x0, y0}, {x1, y0}};
  return {{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}};
}

TEST(l1_median, matches_brute_force_on_random_instances) {
  std::mt19937 random(20261121);
  std::uniform_int_distribution<int> coordinate(-6, 6);
  std::uniform_int_distribution<int> weight(0, 4);
  std::uniform_int_distribution<int> count(1, 14);
  for (int round = 0; round < 400; ++round) {
    std::vector<location> pts;
    const int n = count(random);
    for (int i = 0; i < n; ++i)
      pts.push_back(at(coordinate(random), coordinate(random), weight(random)));
    pts.front().weight_ref(0) += 1;  // at least one positive weight
    facilities f;
    f.insert(f.end(), pts.begin(), pts.end());

    const double value = f.l1_sum(0, true);
    const corner_list expected = expected_set(pts);
    ASSERT_EQ(corners(f), expected) << "round " << round;
    // The brute-force minimum over every pair of data coordinates.
    double best = INFINITY;
    for (const location& a : pts)
      for (const location& b : pts)
        best = std::min(best, l1_cost(pts, a.coordinate(0), b.coordinate(1)));
    EXPECT_EQ(value, best) << "round " << round;
    for (auto [x, y] : expected) EXPECT_EQ(l1_cost(pts, x, y), best) << "round " << round;
  }
}

}  // namespace
}  // namespace mero
