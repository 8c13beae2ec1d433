#include "kernel/point.h"

#include <numbers>

#include "kernel/geometry_texts.h"
#include "test_support.h"

namespace mero {

TEST(point, exact_equality_distances_and_moves) {
  EXPECT_NE(point(0.1 + 0.2, 0.0), point(0.3, 0.0));
  point p(1.0, 2.0);
  EXPECT_EQ(p.sqr_dist(point(4.0, 6.0)), 25.0);
  EXPECT_EQ(p.distance(point(4.0, 6.0)), 5.0);
  EXPECT_EQ(p.translate(2.0, -3.0), point(3.0, -1.0));
  EXPECT_EQ(p.rotate90(point(1.0, 1.0)), point(0.0, 1.0));  // a quarter turn left about (1,1)
  point q = point(2.0, 1.0).rotate(point(1.0, 1.0), std::numbers::pi);
  EXPECT_NEAR(q.xcoord(), 0.0, 1e-15);
  EXPECT_NEAR(q.ycoord(), 1.0, 1e-15);
}

TEST(point, angle_is_counter_clockwise_from_first_arm) {
  point o(1.0, 1.0);
  EXPECT_DOUBLE_EQ(o.angle(point(2.0, 1.0), point(1.0, 5.0)), std::numbers::pi / 2);
  EXPECT_DOUBLE_EQ(o.angle(point(1.0, 5.0), point(2.0, 1.0)), 3 * std::numbers::pi / 2);
  EXPECT_DOUBLE_EQ(o.angle(point(2.0, 1.0), point(0.0, 1.0)), std::numbers::pi);
  EXPECT_EQ(o.angle(point(2.0, 2.0), point(3.0, 3.0)), 0.0);
  EXPECT_KERNEL_ERROR(o.angle(o, point(2.0, 2.0)), "point::angle:  zero vector input.");
  EXPECT_KERNEL_ERROR(o.angle(point(2.0, 2.0), o), texts::point_angle_zero);
}

TEST(orientation, sign_of_the_turn) {
  point a(0.0, 0.0), b(4.0, 0.0), c(2.5, 7.0);
  EXPECT_EQ(orientation(a, b, c), 1);
  EXPECT_EQ(orientation(b, a, c), -1);
  EXPECT_EQ(orientation(b, c, a), 1);
  EXPECT_EQ(orientation(a, b, point(9.0, 0.0)), 0);
  EXPECT_EQ(orientation(a, a, c), 0);
}

}  // namespace mero
