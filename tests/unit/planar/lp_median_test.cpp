#include <cmath>

#include "planar/single_facility_messages.h"
#include "single_facility_fixtures.h"
#include "test_support.h"

namespace mero {
namespace {

using testing::at;
using testing::sum_objective;

TEST(lp_step, hand_computed_step) {
  facilities f;
  f.push_back(at(0, 0));
  f.push_back(at(2, 0));
  // p = 2, no smoothing, from (1, 1): every t_i is sqrt(2), so both coordinates are plain means.
  const location next = f.lp_step(at(1, 1, 5), 2, 0.0, 0);
  EXPECT_EQ(next, location(2.0, 1.0, 1.0, 0.0, 0.0));
}

TEST(is_lp_optimal, dual_norm_of_the_pull) {
  facilities f;
  f.push_back(at(0, 0, 1.6));
  f.push_back(at(1, 0));
  f.push_back(at(0, 1));
  // p = 3: the pull on the origin is (-1, -1), its q-norm (q = 3/2) is 2^(2/3) = 1.587...
  EXPECT_TRUE(f.is_lp_optimal(3, f.cbegin(), 0));
  f.front().weight_ref(0) = 1.58;
  EXPECT_FALSE(f.is_lp_optimal(3, f.cbegin(), 0));
}

TEST(lp_sum, dominant_weight_gives_the_location_exactly) {
  facilities f;
  f.push_back(at(3, 7));
  f.push_back(at(0, 0, 10));
  f.push_back(at(6, 0));
  const double value = f.lp_sum(3, 1e-4, 1e-4, 50, 0, true);
  ASSERT_EQ(f.optima().size(), 1u);
  EXPECT_EQ(f.optima().front(), location(2.0, 1.0, 0.0, 0.0, 0.0));
  EXPECT_NEAR(value, sum_objective(f, testing::lp(3), 0, 0), 1e-12);
}

TEST(lp_sum, random_instances_no_grid_point_is_better) {
  // p = 3 only: for larger p the smoothed step is no descent method and can settle into a
  // two-cycle, from which the better of the last two iterates is kept.
  for (int p : {3}) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
      facilities f = testing::random_problem(seed, 20);
      const double value = f.lp_sum(p, 1e-11, 1e-12, 100000, 0, true);
      const double x = testing::x_of(f.optima().front()), y = testing::y_of(f.optima().front());
      auto objective = [&](double px, double py) {
        return sum_objective(f, testing::lp(p), px, py);
      };
      EXPECT_NEAR(value, objective(x, y), 1e-9 * value);
      EXPECT_LE(value, testing::grid_minimum(objective, x, y, 1.0) + 1e-8 * value) << seed;
      EXPECT_LE(value, testing::grid_minimum(objective, x, y, 0.001) + 1e-8 * value) << seed;
    }
  }
}

TEST(lp_sum, one_step_keeps_the_better_of_start_and_first_iterate) {
  for (unsigned seed = 1; seed <= 10; ++seed) {
    facilities f = testing::random_problem(seed, 8, 100.0, 1.0, 1.0);
    const int p = 3;
    double sx = 0, sy = 0;
    for (const location& l : f) {
      sx += l.coordinate(0);
      sy += l.coordinate(1);
    }
    const location start = at(sx / 8, sy / 8);
    const location first = f.lp_step(start, p, 1e-4, 0);
    const double at_start = sum_objective(f, testing::lp(p), sx / 8, sy / 8);
    const double at_first =
        sum_objective(f, testing::lp(p), testing::x_of(first), testing::y_of(first));
    const double value = f.lp_sum(p, 1e-4, 1e-4, 1, 0, true);
    const location kept = f.optima().front();
    EXPECT_NEAR(value, std::min(at_start, at_first), 1e-9 * value);
    if (at_start < at_first)
      EXPECT_EQ(kept.coordinates(), start.coordinates());
    else
      EXPECT_EQ(kept.coordinates(), first.coordinates());
  }
}

TEST(lp_sum, exponent_and_stopping_rule_are_checked) {
  facilities f;
  f.push_back(at(0, 0));
  f.push_back(at(5, 1));
  f.push_back(at(2, 6));
  const auto& exponent = single_facility_messages::lp_exponent;
  const auto& stop = single_facility_messages::lp_stop;
  EXPECT_REPORT(f.lp_sum(0, 1e-4, 1e-4, 50, 0, true), exponent.code, exponent.text);
  EXPECT_REPORT(f.lp_sum(-1, 1e-4, 1e-4, 50, 0, true), exponent.code, exponent.text);
  EXPECT_REPORT(f.lp_sum(3, 0.0, 1e-4, 0, 0, true), stop.code, stop.text);
  // A bound on the steps alone is enough to end the run.
  f.lp_sum(3, 0.0, 1e-4, 5, 0, true);
  EXPECT_EQ(f.optima().size(), 1u);
}

}  // namespace
}  // namespace mero
