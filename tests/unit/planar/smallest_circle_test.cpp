#include "kernel/convex_hull.h"
#include "planar_fixtures.h"

namespace mero::testing {
namespace {

TEST(l2_v1_max, hand_computed_centers) {
  struct instance {
    std::vector<location> locations;
    double radius, x, y;
  };
  const std::vector<instance> instances{
      {{at(1, 0), at(0, 0), at(5, 0)}, 2.5, 2.5, 0},  // collinear: the extreme ones count
      // Start with (0,0) and the last (10,0) of weight 1: centre 5; the duplicate of weight 3 is
      // outside and raises the support's weight, and the weighted meeting point is 7.5.
      {{at(0, 0, 1), at(10, 0, 3), at(10, 0, 1)}, 7.5, 7.5, 0},
      {{at(3, 4, 2)}, 0, 3, 4},  // one location is its own center
      // The circumcircle of a right triangle has its hypotenuse as diameter.
      {{at(0, 0), at(2, 0), at(0, 2)}, std::sqrt(2.0), 1, 1},
  };
  for (const instance& in : instances) {
    facilities f = problem(in.locations);
    EXPECT_DOUBLE_EQ(f.l2_v1_max(true), in.radius);
    EXPECT_EQ(f.optima(), std::list<location>{location(2.0, 1.0, in.x, in.y, 0.0)});
  }
}

// Far more locations than any fixed support array would hold: the circle is that of the hull's
// corners, a set small enough for the instances checked against the grid.
TEST(l2_v1_max, many_locations_have_the_circle_of_their_hull) {
  for (unsigned seed = 100; seed < 104; ++seed) {
    facilities all = random_problem(seed, 5000, 1.0, 1.0);
    std::vector<point> points;
    for (const location& l : all) points.emplace_back(l.coordinate(0), l.coordinate(1));
    facilities hull;
    for (const point& p : convex_hull(points)) hull.push_back(at(p.xcoord(), p.ycoord()));
    ASSERT_LT(hull.size(), 100u);
    EXPECT_NEAR(all.l2_v1_max(true), hull.l2_v1_max(true), 1e-3) << seed;
    for (int c : {0, 1})
      EXPECT_NEAR(all.optima().front().coordinate(c), hull.optima().front().coordinate(c), 0.05);
  }
}

}  // namespace
}  // namespace mero::testing
