#include "planar/planar_messages.h"
#include "planar_fixtures.h"

namespace mero::testing {
namespace {

TEST(lp_step, hand_computed_step) {
  facilities f = problem({at(0, 0), at(2, 0)});
  // p = 2, no smoothing, from (1, 1): every t_i is sqrt(2), so both coordinates are plain means.
  EXPECT_EQ(f.lp_step(at(1, 1, 5), 2, 0.0, 0), location(2.0, 1.0, 1.0, 0.0, 0.0));
}

TEST(is_lp_optimal, dual_norm_of_the_pull) {
  facilities f = problem({at(0, 0, 1.6), at(1, 0), at(0, 1)});
  // p = 3: the pull on the origin is (-1, -1), its q-norm (q = 3/2) is 2^(2/3) = 1.587...
  EXPECT_TRUE(f.is_lp_optimal(3, f.cbegin(), 0));
  f.front().weight_ref(0) = 1.58;
  EXPECT_FALSE(f.is_lp_optimal(3, f.cbegin(), 0));
}

TEST(lp_sum, one_step_keeps_the_better_of_start_and_first_iterate) {
  for (unsigned seed = 1; seed <= 10; ++seed) {
    facilities f = random_problem(seed, 8, 1.0, 1.0);
    double sx = 0, sy = 0;
    for (const location& l : f) {
      sx += l.coordinate(0);
      sy += l.coordinate(1);
    }
    sx /= 8;
    sy /= 8;
    const location start = at(sx, sy), first = f.lp_step(start, 3, 1e-4, 0);
    const double at_start = objective_of(f, lp(3), sx, sy);
    const double at_first = objective_of(f, lp(3), first.coordinate(0), first.coordinate(1));
    const double value = f.lp_sum(3, 1e-4, 1e-4, 1, 0, true);
    EXPECT_NEAR(value, std::min(at_start, at_first), 1e-9 * value);
    EXPECT_EQ(f.optima().front().coordinates(),
              (at_start < at_first ? start : first).coordinates());
  }
}

TEST(lp_sum, exponent_and_stopping_rule_are_checked) {
  facilities f = problem({at(0, 0), at(5, 1), at(2, 6)});
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
}  // namespace mero::testing
