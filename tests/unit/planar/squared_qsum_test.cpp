#include "planar_fixtures.h"

namespace mero::testing {
namespace {

location corner(double x, double y) { return location(2.0, 1.0, x, y, 0.0); }

TEST(l2sqr_qsum, hull_of_the_column_centres_of_gravity) {
  struct instance {
    std::vector<location> locations;
    std::list<location> corners;
  };
  const std::vector<instance> instances{
      // Identical columns: one point.
      {{site(0, 0, {2, 2, 2}), site(6, 3, {1, 1, 1})}, {corner(2, 1)}},
      // Each of the first four columns puts all weight on one location; the fifth weighs all
      // equally, and its centre (1, 1) inside the hull is dropped. Corners run counter-clockwise.
      {{site(0, 0, {1, 0, 0, 0, 1}), site(2, 0, {0, 1, 0, 0, 1}), site(2, 2, {0, 0, 1, 0, 1}),
        site(0, 2, {0, 0, 0, 1, 1})},
       {corner(0, 0), corner(2, 0), corner(2, 2), corner(0, 2)}},
  };
  for (const instance& in : instances) {
    facilities f = problem(in.locations);
    f.l2sqr_sum(0, true);  // an earlier result is replaced whatever the clear flag says
    EXPECT_EQ(f.l2sqr_qsum(false), 0.0);
    EXPECT_EQ(f.optima(), in.corners);
  }
}

}  // namespace
}  // namespace mero::testing
