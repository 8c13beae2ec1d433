#include "planar/planar_messages.h"
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

// The stop compares the objective's fall with the objective itself, so it does not depend on the
// unit of the coordinates: multiplied by 1024 (exact in binary) every iterate, every fall and the
// point where it stops scale exactly, down to the last bit. A stop on the absolute fall would run
// the larger instance longer. eps is 0.001, the run's value when it has no lpinfo.
TEST(l2_sum, stop_is_relative_so_scaling_the_plane_scales_the_result_exactly) {
  for (unsigned seed = 1; seed <= 10; ++seed) {
    SCOPED_TRACE(::testing::Message() << "seed " << seed);
    facilities f = random_problem(seed, 12);
    facilities big;
    for (const location& l : f)
      big.push_back(at(l.coordinate(0) * 1024, l.coordinate(1) * 1024, l.weight(0)));
    const double value = f.l2_sum(0, 0.001, true);
    const double big_value = big.l2_sum(0, 0.001, true);
    ASSERT_EQ(f.optima_view().size(), 1u);
    ASSERT_EQ(big.optima_view().size(), 1u);
    const location o = f.optima_view().front();
    const location b = big.optima_view().front();
    // The iteration stopped by eps, not at a location (which would scale whatever the stop).
    ASSERT_FALSE(f.contains(o));
    EXPECT_EQ(b.coordinate(0), o.coordinate(0) * 1024);
    EXPECT_EQ(b.coordinate(1), o.coordinate(1) * 1024);
    EXPECT_EQ(big_value, value * 1024);
  }
}

TEST(l2_sum, eps_must_be_positive) {
  facilities f = problem({at(0, 0), at(1, 1)});
  const auto& m = single_facility_messages::l2_eps;
  for (double eps : {0.0, -1.0, std::nan("")})
    EXPECT_REPORT(f.l2_sum(0, eps, true), m.code, m.text);
}

}  // namespace
}  // namespace mero::testing
