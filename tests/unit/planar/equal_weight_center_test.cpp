#include "planar/planar_messages.h"
#include "planar_fixtures.h"

namespace mero::testing {
namespace {

TEST(v1_max, the_radius_is_not_scaled_by_the_common_weight) {
  // Rectangle 4 by 2 of weight 2: r = 2, not scaled by the weight; x is pinned at 2, y may range
  // over [0, 2].
  facilities rectangle = problem({at(0, 0, 2), at(4, 0, 2), at(4, 2, 2), at(0, 2, 2)});
  EXPECT_DOUBLE_EQ(rectangle.linf_v1_max(true), 2.0);
  EXPECT_EQ(rectangle.optima(), (std::list<location>{location(2.0, 1.0, 2.0, 0.0, 0.0),
                                                     location(2.0, 1.0, 2.0, 2.0, 0.0)}));
}

TEST(v1_max, a_weight_off_by_the_last_bit_is_refused) {
  facilities f = problem({at(0, 0, 1.0), at(1, 0, std::nextafter(1.0, 2.0))});
  const auto& m = single_facility_messages::unequal_weights;
  EXPECT_REPORT(f.linf_v1_max(true), m.code, m.text);
  EXPECT_REPORT(f.l1_v1_max(true), m.code, m.text);
  EXPECT_TRUE(f.optima().empty());
}

}  // namespace
}  // namespace mero::testing
