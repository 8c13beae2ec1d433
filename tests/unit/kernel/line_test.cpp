#include "kernel/line.h"

#include <numbers>

#include "test_support.h"

namespace mero {

TEST(line, side_containment_and_projection) {
  line l(point(0.0, 0.0), point(2.0, 1.0));
  EXPECT_EQ(l.side_of(point(0.0, 1.0)), 1);
  EXPECT_EQ(line(point(2.0, 1.0), point(0.0, 0.0)).side_of(point(0.0, 1.0)), -1);
  EXPECT_TRUE(l.contains(point(-4.0, -2.0)));  // beyond the defining points
  EXPECT_FALSE(l.contains(point(8.0, 4.5)));
  EXPECT_LT(line(point(1.0, 1.0), std::numbers::pi / 4).distance(point(3.0, 3.0)), 1e-15);
  line d(point(0, 0), point(1, 1));
  EXPECT_EQ(d.projection(point(2, 0)), point(1.0, 1.0));
  EXPECT_DOUBLE_EQ(d.sqr_dist(point(2, 0)), 2.0);
  line perp = line(point(0, 0), point(1, 0)).perpendicular(point(3, 5));
  EXPECT_TRUE(perp.contains(point(3, -100)));
  EXPECT_EQ(perp.dy(), 1.0);  // the direction turned left
}

TEST(line, crossings_against_hand_values) {
  point p;
  EXPECT_TRUE(line(point(0, 0), point(1, 1)).intersection(line(point(0, 2), point(2, 0)), p));
  EXPECT_EQ(p, point(1.0, 1.0));
  // x = 1 against y = 2x + 1, in both orders.
  EXPECT_TRUE(line(point(1, 0), point(1, 1)).intersection(line(point(0, 1), point(1, 3)), p));
  EXPECT_EQ(p, point(1.0, 3.0));
  EXPECT_TRUE(line(point(0, 1), point(1, 3)).intersection(line(point(1, 0), point(1, 1)), p));
  EXPECT_EQ(p, point(1.0, 3.0));
  p = point(9, 9);
  EXPECT_FALSE(line(point(0, 0), point(1, 2)).intersection(line(point(5, 0), point(7, 4)), p));
  EXPECT_FALSE(line(point(0, 0), point(1, 2)).intersection(line(point(2, 4), point(3, 6)), p));
  EXPECT_EQ(p, point(9.0, 9.0));
  line x_axis(point(0, 0), point(1, 0));
  EXPECT_TRUE(x_axis.intersection(segment(point(3, -1), point(5, 3)), p));
  EXPECT_EQ(p, point(3.5, 0.0));
  EXPECT_TRUE(x_axis.intersection(segment(point(3, 2), point(4, 0)), p));
  EXPECT_EQ(p, point(4.0, 0.0));  // an end on the line
  EXPECT_FALSE(x_axis.intersection(segment(point(3, 2), point(4, 1)), p));
  EXPECT_TRUE(x_axis.intersection(segment(point(6, 0), point(9, 0)), p));
  EXPECT_EQ(p, point(6.0, 0.0));  // a segment on the line gives its start
}

}  // namespace mero
