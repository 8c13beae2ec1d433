#include "kernel/line.h"

#include <cmath>
#include <numbers>

#include "test_support.h"

namespace mero {
namespace {

TEST(line, side_and_containment) {
  line l(point(0.0, 0.0), point(2.0, 1.0));
  EXPECT_EQ(l.side_of(point(0.0, 1.0)), 1);
  EXPECT_EQ(l.side_of(point(0.0, -1.0)), -1);
  EXPECT_TRUE(l.contains(point(-4.0, -2.0)));  // beyond the defining points
  EXPECT_TRUE(l.contains(point(8.0, 4.0)));
  EXPECT_FALSE(l.contains(point(8.0, 4.5)));
  line r(point(2.0, 1.0), point(0.0, 0.0));  // reversed direction swaps the sides
  EXPECT_EQ(r.side_of(point(0.0, 1.0)), -1);
  line through(point(1.0, 1.0), std::numbers::pi / 4);
  EXPECT_LT(through.distance(point(3.0, 3.0)), 1e-15);
}

TEST(line, crossing_of_lines_against_hand_values) {
  point p;
  EXPECT_TRUE(line(point(0, 0), point(1, 1)).intersection(line(point(0, 2), point(2, 0)), p));
  EXPECT_EQ(p, point(1.0, 1.0));
  EXPECT_TRUE(line(point(1, 0), point(1, 1)).intersection(line(point(0, 1), point(1, 3)), p));
  EXPECT_EQ(p, point(1.0, 3.0));  // x = 1 against y = 2x + 1
  EXPECT_TRUE(line(point(0, 1), point(1, 3)).intersection(line(point(1, 0), point(1, 1)), p));
  EXPECT_EQ(p, point(1.0, 3.0));
  p = point(9, 9);
  EXPECT_FALSE(line(point(0, 0), point(1, 2)).intersection(line(point(5, 0), point(7, 4)), p));
  EXPECT_FALSE(line(point(0, 0), point(1, 2)).intersection(line(point(2, 4), point(3, 6)), p));
  EXPECT_EQ(p, point(9.0, 9.0));
  EXPECT_TRUE(line(point(0, 0), point(0, 1)).is_parallel(line(point(3, 3), point(3, -1))));
}

TEST(line, crossing_with_segments) {
  line l(point(0, 0), point(1, 0));  // the x axis
  point p;
  EXPECT_TRUE(l.intersection(segment(point(3, -1), point(5, 3)), p));
  EXPECT_EQ(p, point(3.5, 0.0));
  EXPECT_TRUE(l.intersection(segment(point(3, 2), point(4, 0)), p));
  EXPECT_EQ(p, point(4.0, 0.0));  // an end on the line
  EXPECT_FALSE(l.intersection(segment(point(3, 2), point(4, 1)), p));
  EXPECT_TRUE(l.intersection(segment(point(6, 0), point(9, 0)), p));
  EXPECT_EQ(p, point(6.0, 0.0));  // a segment on the line gives its start
}

TEST(line, perpendicular_and_projection) {
  line l(point(0, 0), point(1, 0));
  line perp = l.perpendicular(point(3, 5));
  EXPECT_TRUE(perp.is_vertical());
  EXPECT_TRUE(perp.contains(point(3, -100)));
  EXPECT_EQ(perp.dy(), 1.0);  // the direction turned left
  EXPECT_EQ(l.projection(point(3, 5)), point(3.0, 0.0));
  EXPECT_EQ(l.distance(point(3, -5)), 5.0);
  line d(point(0, 0), point(1, 1));
  EXPECT_EQ(d.projection(point(2, 0)), point(1.0, 1.0));
  EXPECT_DOUBLE_EQ(d.sqr_dist(point(2, 0)), 2.0);
  point foot;
  EXPECT_TRUE(d.intersection(d.perpendicular(point(4, 0)), foot));
  EXPECT_EQ(foot, point(2.0, 2.0));
}

}  // namespace
}  // namespace mero
