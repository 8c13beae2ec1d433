#include "kernel/line.h"

#include "test_support.h"

namespace mero {

// Crossings on random lines and segments are checked with the segments.
TEST(line, sides_projection_and_hand_made_crossings) {
  line l(point(0.0, 0.0), point(2.0, 1.0));
  EXPECT_EQ(l.side_of(point(0.0, 1.0)), 1);
  EXPECT_EQ(line(point(2.0, 1.0), point(0.0, 0.0)).side_of(point(0.0, 1.0)), -1);
  EXPECT_TRUE(l.contains(point(-4.0, -2.0)));  // beyond the defining points
  line d(point(0, 0), point(1, 1));
  EXPECT_EQ(d.projection(point(2, 0)), point(1.0, 1.0));
  EXPECT_DOUBLE_EQ(d.sqr_dist(point(2, 0)), 2.0);
  line perp = line(point(0, 0), point(1, 0)).perpendicular(point(3, 5));
  EXPECT_TRUE(perp.contains(point(3, -100)));
  EXPECT_EQ(perp.dy(), 1.0);  // the direction turned left
  point p(9, 9);
  EXPECT_FALSE(d.intersection(line(point(5, 5), point(6, 6)), p));  // identical lines
  EXPECT_EQ(p, point(9, 9));
  EXPECT_TRUE(d.intersection(segment(point(3, 3), point(-1, -1)), p));
  EXPECT_EQ(p, point(3, 3));  // a segment on the line gives its start
}

}  // namespace mero
