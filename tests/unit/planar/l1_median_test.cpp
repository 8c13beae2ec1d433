#include <set>

#include "model/model_messages.h"
#include "planar_fixtures.h"

namespace mero::testing {
namespace {

using corner_list = std::vector<std::pair<double, double>>;

corner_list corners(const facilities& f) {
  corner_list out;
  for (const location& l : f.optima_view()) out.emplace_back(l.coordinate(0), l.coordinate(1));
  return out;
}

TEST(l1_median, optima_carry_the_solved_column_as_group) {
  facilities f = problem({site(0, 0, {1, 3}), site(4, 2, {1, 1})});
  f.l1_sum(0, true);
  f.l1_sum(1, false);  // appended behind the first result
  std::vector<double> groups;
  for (const location& l : f.optima_view()) groups.push_back(l.weight(0));
  EXPECT_EQ(groups, (std::vector<double>{0, 0, 0, 0, 1}));
  EXPECT_EQ(f.optima().back().coordinates(), Loc_Vector(2.0, 0.0, 0.0));
  f.l1_sum(1, true);
  EXPECT_EQ(f.optima().size(), 1u);
}

TEST(l1_median, the_skip_test_reads_column_zero) {
  // Solving column 1: the location at x = 1 weighs 0 there but 1 in column 0, so it ends the
  // segment although x = 2 would be optimal as well.
  facilities f = problem({site(0, 0, {1, 1}), site(1, 0, {1, 0}), site(2, 0, {1, 1})});
  EXPECT_EQ(f.l1_sum(1, true), 2.0);
  EXPECT_EQ(corners(f), (corner_list{{0, 0}, {1, 0}}));
}

TEST(l1_median, weights_cancelling_to_zero_or_no_location_mean_the_whole_plane) {
  for (const auto& locations :
       std::vector<std::vector<location>>{{at(1, 1, 2), at(2, 3, -2)}, {}}) {
    facilities f = problem(locations);
    EXPECT_REPORT(f.l1_sum(0, true), 0, model_messages::l1_all_zero.text);
    EXPECT_TRUE(f.optima_view().empty());
  }
}

// The smallest and largest minimiser of one axis among the coordinates of positive weight; with
// integer data every sum is exact, so ties are real ties.
std::pair<double, double> axis_optimum(const facilities& f, int axis) {
  std::set<double> candidates;
  for (const location& l : f)
    if (l.weight(0) > 0) candidates.insert(l.coordinate(axis));
  double best = INFINITY;
  std::vector<double> minimisers;
  for (double c : candidates) {
    double sum = 0.0;
    for (const location& l : f) sum += std::fabs(l.coordinate(axis) - c) * l.weight(0);
    if (sum < best) minimisers.clear();
    if (sum <= best) {
      best = sum;
      minimisers.push_back(c);
    }
  }
  return {minimisers.front(), minimisers.back()};
}

TEST(l1_median, matches_brute_force_on_random_instances) {
  std::mt19937 random(20261121);
  std::uniform_int_distribution<int> coordinate(-6, 6), weight(0, 4), count(1, 14);
  for (int round = 0; round < 400; ++round) {
    facilities f;
    for (int i = count(random); i > 0; --i)
      f.push_back(at(coordinate(random), coordinate(random), weight(random)));
    f.front().weight_ref(0) += 1;  // at least one positive weight
    const auto [x0, x1] = axis_optimum(f, 0);
    const auto [y0, y1] = axis_optimum(f, 1);
    corner_list expected{{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}};
    if (x0 == x1 || y0 == y1) expected = {{x0, y0}, {x1, y1}};
    if (x0 == x1 && y0 == y1) expected = {{x0, y0}};
    // The objective is separable, so the axis optima together are optimal.
    EXPECT_EQ(f.l1_sum(0, true), objective_of(f, l1, x0, y0)) << "round " << round;
    EXPECT_EQ(corners(f), expected) << "round " << round;
  }
}

}  // namespace
}  // namespace mero::testing
