#include "planar/single_facility_messages.h"
#include "single_facility_fixtures.h"
#include "test_support.h"

namespace mero {
namespace {

using testing::at;
using testing::max_objective;

TEST(linf_max, weights_one_and_three_on_the_x_axis) {
  facilities f;
  f.push_back(at(0, 0, 1));
  f.push_back(at(4, 0, 3));
  // The cones meet at x = 3 with value 3; in y every point within 1 of the axis reaches both.
  EXPECT_DOUBLE_EQ(f.linf_max(true), 3.0);
  const std::list<location> expected{location(2.0, 1.0, 3.0, -1.0, 1.0),
                                     location(2.0, 1.0, 3.0, 1.0, 1.0)};
  EXPECT_EQ(f.optima(), expected);
}

// The value at each optimum (and the middle of a segment) is the returned one, and no point of a
// coarse or a fine grid around it does better.
void expect_optimal_center(const facilities& f, double value, const testing::distance& d,
                           unsigned seed) {
  auto objective = [&](double x, double y) { return max_objective(f, d, x, y); };
  std::vector<std::pair<double, double>> points;
  for (const location& o : f.optima()) points.emplace_back(testing::x_of(o), testing::y_of(o));
  if (points.size() == 2)
    points.emplace_back((points[0].first + points[1].first) / 2,
                        (points[0].second + points[1].second) / 2);
  for (auto [x, y] : points) {
    EXPECT_NEAR(objective(x, y), value, 1e-9 * value) << seed;
    EXPECT_LE(value, testing::grid_minimum(objective, x, y, 0.5) + 1e-9 * value) << seed;
    EXPECT_LE(value, testing::grid_minimum(objective, x, y, 0.001) + 1e-9 * value) << seed;
  }
}

TEST(linf_max, random_instances_match_the_grid) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    facilities f = testing::random_problem(seed, 12);
    expect_optimal_center(f, f.linf_max(true), testing::linf, seed);
  }
}

TEST(l1_max, random_instances_match_the_grid) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    facilities f = testing::random_problem(seed, 12);
    expect_optimal_center(f, f.l1_max(true), testing::l1, seed);
  }
}

TEST(linf_max, all_locations_at_one_place) {
  facilities f;
  f.push_back(at(1, 2, 0));
  f.push_back(at(1, 2, 5));
  f.push_back(at(1, 2, 7));
  EXPECT_DOUBLE_EQ(f.linf_max(true), 0.0);
  ASSERT_EQ(f.optima().size(), 1u);
  EXPECT_EQ(f.optima().front(), at(1, 2, 5));  // the first with a weight other than 0.0

  facilities zero;
  zero.push_back(at(1, 2, 0));
  zero.push_back(at(4, 6, 0));
  EXPECT_REPORT(zero.linf_max(true), 0, single_facility_messages::linf_max_whole_plane);
}

}  // namespace
}  // namespace mero
