#include "kernel/point.h"

#include <numbers>

#include "test_support.h"

namespace mero {

TEST(point, moves_angles_and_turns) {
  EXPECT_NE(point(0.1 + 0.2, 0.0), point(0.3, 0.0));  // equality is exact
  EXPECT_EQ(point(1.0, 2.0).distance(point(4.0, 6.0)), 5.0);
  EXPECT_EQ(point(1.0, 2.0).rotate90(point(1.0, 1.0)), point(0.0, 1.0));  // left about (1,1)
  // The angle turns counter-clockwise from the first arm.
  point o(1.0, 1.0);
  EXPECT_DOUBLE_EQ(o.angle(point(2.0, 1.0), point(1.0, 5.0)), std::numbers::pi / 2);
  EXPECT_DOUBLE_EQ(o.angle(point(1.0, 5.0), point(2.0, 1.0)), 3 * std::numbers::pi / 2);
  EXPECT_EQ(o.angle(point(2.0, 2.0), point(3.0, 3.0)), 0.0);
  EXPECT_KERNEL_ERROR(o.angle(o, point(2.0, 2.0)), "point::angle:  zero vector input.");
  point a(0.0, 0.0), b(4.0, 0.0), c(2.5, 7.0);
  EXPECT_EQ(orientation(a, b, c), 1);
  EXPECT_EQ(orientation(b, a, c), -1);
  EXPECT_EQ(orientation(a, a, c), 0);
}

}  // namespace mero
