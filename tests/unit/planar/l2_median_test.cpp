#include <cmath>

#include "planar/single_facility_messages.h"
#include "single_facility_fixtures.h"
#include "test_support.h"

namespace mero {
namespace {

using testing::at;
using testing::l2;
using testing::sum_objective;

location two_weights(double x, double y, double w0, double w1) {
  return location(2.0, 2.0, x, y, w0, w1);
}

TEST(l2sqr_sum, centre_of_the_solved_column_valued_by_column_zero) {
  facilities f;
  f.push_back(two_weights(0, 0, 1, 3));
  f.push_back(two_weights(4, 0, 3, 1));
  // Column 0: (0 * 1 + 4 * 3) / 4 = 3; value 1 * 9 + 3 * 1.
  EXPECT_DOUBLE_EQ(f.l2sqr_sum(0, true), 12.0);
  // Column 1: (0 * 3 + 4 * 1) / 4 = 1; the value still weighs by column 0: 1 * 1 + 3 * 9.
  EXPECT_DOUBLE_EQ(f.l2sqr_sum(1, false), 28.0);
  ASSERT_EQ(f.optima().size(), 2u);
  EXPECT_EQ(f.optima().front(), location(2.0, 1.0, 3.0, 0.0, 0.0));
  EXPECT_EQ(f.optima().back(), location(2.0, 1.0, 1.0, 0.0, 1.0));
}

TEST(is_l2_optimal, own_weight_against_the_pull_of_the_others) {
  facilities f;
  f.push_back(two_weights(0, 0, 1.0, 1.5));
  f.push_back(two_weights(1, 0, 1, 1));
  f.push_back(two_weights(0, 1, 1, 1));
  // A location 0.0005 away counts as the same place and does not pull.
  f.push_back(two_weights(0.0005, 0, 100, 100));
  // Pull of (1, 0) and (0, 1) on the origin: |(-1, -1)| = sqrt(2) = 1.414...
  EXPECT_TRUE(f.is_l2_optimal(f.front(), 1));   // 1.5 holds it
  EXPECT_FALSE(f.is_l2_optimal(f.front(), 0));  // 1.0 does not
  EXPECT_TRUE(f.is_l2_optimal(at(0, 0, 1.42), 0));
  EXPECT_FALSE(f.is_l2_optimal(at(0, 0, 1.41), 0));
}

TEST(l2_sum, dominant_weight_gives_the_location_exactly) {
  facilities f;
  f.push_back(at(0, 0, 10));
  f.push_back(at(10, 0));
  f.push_back(at(0, 10));
  f.push_back(at(10, 10));
  const double value = f.l2_sum(0, 0.001, true);
  ASSERT_EQ(f.optima().size(), 1u);
  EXPECT_EQ(f.optima().front(), location(2.0, 1.0, 0.0, 0.0, 0.0));
  EXPECT_DOUBLE_EQ(value, 20.0 + std::sqrt(200.0));
}

TEST(l2_sum, large_eps_stops_after_one_weiszfeld_step) {
  facilities f;
  f.push_back(at(0, 0));
  f.push_back(at(4, 0));
  f.push_back(at(0, 3));
  // Start at the centre of gravity (4/3, 1); one step of the Weiszfeld map written out.
  const double x = 4.0 / 3.0, y = 1.0;
  double sx = 0, sy = 0, sw = 0;
  for (const location& l : f) {
    const double d = l2(l.coordinate(0) - x, l.coordinate(1) - y);
    sx += l.coordinate(0) / d;
    sy += l.coordinate(1) / d;
    sw += 1.0 / d;
  }
  const double value = f.l2_sum(0, 0.99, true);
  ASSERT_EQ(f.optima().size(), 1u);
  EXPECT_NEAR(testing::x_of(f.optima().front()), sx / sw, 1e-12);
  EXPECT_NEAR(testing::y_of(f.optima().front()), sy / sw, 1e-12);
  EXPECT_NEAR(value, sum_objective(f, l2, sx / sw, sy / sw), 1e-9);
}

TEST(l2_sum, random_instances_no_grid_point_is_better) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    facilities f = testing::random_problem(seed, 25);
    const double value = f.l2_sum(0, 1e-12, true);
    const double x = testing::x_of(f.optima().front()), y = testing::y_of(f.optima().front());
    auto objective = [&](double px, double py) { return sum_objective(f, l2, px, py); };
    EXPECT_NEAR(value, objective(x, y), 1e-9 * value) << "seed " << seed;
    EXPECT_LE(value, testing::grid_minimum(objective, x, y, 1.0) + 1e-9 * value) << seed;
    EXPECT_LE(value, testing::grid_minimum(objective, x, y, 0.001) + 1e-9 * value) << seed;
  }
}

TEST(l2_sum, eps_must_be_positive) {
  facilities f;
  f.push_back(at(0, 0));
  f.push_back(at(1, 1));
  const auto& m = single_facility_messages::l2_eps;
  EXPECT_REPORT(f.l2_sum(0, 0.0, true), m.code, m.text);
  EXPECT_REPORT(f.l2_sum(0, -1.0, true), m.code, m.text);
  EXPECT_REPORT(f.l2_sum(0, std::nan(""), true), m.code, m.text);
}

}  // namespace
}  // namespace mero
