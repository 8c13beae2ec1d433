#include <cmath>

#include "planar/single_facility_messages.h"
#include "single_facility_fixtures.h"
#include "test_support.h"

namespace mero {
namespace {

using testing::at;
using testing::max_objective;

TEST(linf_v1_max, rectangle_four_by_two_gives_a_vertical_segment) {
  facilities f;
  for (auto [x, y] : {std::pair{0, 0}, {4, 0}, {4, 2}, {0, 2}}) f.push_back(at(x, y, 2));
  // r = 2, not scaled by the weight; x is pinned at 2, y may range over [0, 2].
  EXPECT_DOUBLE_EQ(f.linf_v1_max(true), 2.0);
  const std::list<location> expected{location(2.0, 1.0, 2.0, 0.0, 0.0),
                                     location(2.0, 1.0, 2.0, 2.0, 0.0)};
  EXPECT_EQ(f.optima(), expected);
}

TEST(l1_v1_max, diamond_has_its_centre_as_the_only_optimum) {
  facilities f;
  for (auto [x, y] : {std::pair{0, 3}, {3, 0}, {0, -3}, {-3, 0}, {1, 1}}) f.push_back(at(x, y));
  EXPECT_DOUBLE_EQ(f.l1_v1_max(true), 3.0);
  const std::list<location> expected{location(2.0, 1.0, 0.0, 0.0, 0.0)};
  EXPECT_EQ(f.optima(), expected);
}

TEST(v1_max, a_weight_off_by_the_last_bit_is_refused) {
  facilities f;
  f.push_back(at(0, 0, 1.0));
  f.push_back(at(1, 0, std::nextafter(1.0, 2.0)));
  const auto& m = single_facility_messages::unequal_weights;
  EXPECT_REPORT(f.linf_v1_max(true), m.code, m.text);
  EXPECT_REPORT(f.l1_v1_max(true), m.code, m.text);
  EXPECT_TRUE(f.optima().empty());
}

TEST(v1_max, random_instances_match_the_grid) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    facilities f = testing::random_problem(seed, 12, 100.0, 1.0, 1.0);
    for (bool l1 : {false, true}) {
      const double r = l1 ? f.l1_v1_max(true) : f.linf_v1_max(true);
      const testing::distance d = l1 ? testing::distance(testing::l1) : testing::linf;
      auto objective = [&](double x, double y) { return max_objective(f, d, x, y); };
      for (const location& o : f.optima()) {
        const double x = testing::x_of(o), y = testing::y_of(o);
        EXPECT_NEAR(objective(x, y), r, 1e-9 * r) << seed;
        EXPECT_LE(r, testing::grid_minimum(objective, x, y, 0.5) + 1e-9 * r) << seed;
        EXPECT_LE(r, testing::grid_minimum(objective, x, y, 0.001) + 1e-9 * r) << seed;
      }
    }
  }
}

}  // namespace
}  // namespace mero
