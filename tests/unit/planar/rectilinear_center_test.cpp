#include "planar_fixtures.h"

namespace mero::testing {
namespace {

TEST(linf_max, hand_computed_centers) {
  // The cones of (0, 0) weight 1 and (4, 0) weight 3 meet at x = 3 with value 3; in y every point
  // within 1 of the axis reaches both.
  facilities f = problem({at(0, 0, 1), at(4, 0, 3)});
  EXPECT_DOUBLE_EQ(f.linf_max(true), 3.0);
  EXPECT_EQ(f.optima(), (std::list<location>{location(2.0, 1.0, 3.0, -1.0, 1.0),
                                             location(2.0, 1.0, 3.0, 1.0, 1.0)}));

  facilities one_place = problem({at(1, 2, 0), at(1, 2, 5), at(1, 2, 7)});
  EXPECT_DOUBLE_EQ(one_place.linf_max(true), 0.0);
  EXPECT_EQ(one_place.optima(), std::list<location>{at(1, 2, 5)});  // the first weight not 0
}

}  // namespace
}  // namespace mero::testing
