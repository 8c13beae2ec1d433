#include "planar/single_facility_messages.h"
#include "planar_fixtures.h"

namespace mero::testing {
namespace {

TEST(l2sqr_sum, centre_of_the_solved_column_valued_by_column_zero) {
  facilities f = problem({site(0, 0, {1, 3}), site(4, 0, {3, 1})});
  // Column 0: (0 * 1 + 4 * 3) / 4 = 3; value 1 * 9 + 3 * 1.
  EXPECT_DOUBLE_EQ(f.l2sqr_sum(0, true), 12.0);
  // Column 1: (0 * 3 + 4 * 1) / 4 = 1; the value still weighs by column 0: 1 * 1 + 3 * 9.
  EXPECT_DOUBLE_EQ(f.l2sqr_sum(1, false), 28.0);
  EXPECT_EQ(f.optima(), (std::list<location>{location(2.0, 1.0, 3.0, 0.0, 0.0),
                                             location(2.0, 1.0, 1.0, 0.0, 1.0)}));
}

TEST(is_l2_optimal, own_weight_against_the_pull_of_the_others) {
  // A location 0.0005 away counts as the same place and does not pull. The pull of (1, 0) and
  // (0, 1) on the origin is |(-1, -1)| = sqrt(2) = 1.414...
  facilities f = problem(
      {site(0, 0, {1, 1.5}), site(1, 0, {1, 1}), site(0, 1, {1, 1}), site(0.0005, 0, {100, 100})});
  EXPECT_TRUE(f.is_l2_optimal(f.front(), 1));   // 1.5 holds it
  EXPECT_FALSE(f.is_l2_optimal(f.front(), 0));  // 1.0 does not
  EXPECT_TRUE(f.is_l2_optimal(at(0, 0, 1.42), 0));
  EXPECT_FALSE(f.is_l2_optimal(at(0, 0, 1.41), 0));
}

TEST(l2_sum, large_eps_stops_after_one_weiszfeld_step) {
  facilities f = problem({at(0, 0), at(4, 0), at(0, 3)});
  // Start at the centre of gravity (4/3, 1); one step of the Weiszfeld map written out.
  double sx = 0, sy = 0, sw = 0;
  for (const location& l : f) {
    const double d = l2(l.coordinate(0) - 4.0 / 3.0, l.coordinate(1) - 1.0);
    sx += l.coordinate(0) / d;
    sy += l.coordinate(1) / d;
    sw += 1.0 / d;
  }
  const double value = f.l2_sum(0, 0.99, true);
  ASSERT_EQ(f.optima().size(), 1u);
  EXPECT_NEAR(x_of(f.optima().front()), sx / sw, 1e-12);
  EXPECT_NEAR(y_of(f.optima().front()), sy / sw, 1e-12);
  EXPECT_NEAR(value, sum_objective(f, l2, sx / sw, sy / sw), 1e-9);
}

TEST(l2_sum, eps_must_be_positive) {
  facilities f = problem({at(0, 0), at(1, 1)});
  const auto& m = single_facility_messages::l2_eps;
  for (double eps : {0.0, -1.0, std::nan("")})
    EXPECT_REPORT(f.l2_sum(0, eps, true), m.code, m.text);
}

}  // namespace
}  // namespace mero::testing
