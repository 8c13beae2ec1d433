#include "kernel/vector.h"

#include <cmath>
#include <numbers>

#include "test_support.h"

namespace mero {

TEST(vector, arithmetic_and_checked_access) {
  vector a{1.0, 2.0, 3.0}, b{4.0, -5.0, 6.0};
  EXPECT_EQ(a - 2.0 * b, (vector{-7.0, 12.0, -9.0}));
  EXPECT_EQ(a * b, 4.0 - 10.0 + 18.0);
  EXPECT_KERNEL_ERROR(vector(-1), "vector: negative dimension.");
  EXPECT_KERNEL_ERROR(a[3], "vector: index out of range");
  EXPECT_KERNEL_ERROR(a[-1], "vector: index out of range");
  EXPECT_KERNEL_ERROR(a + vector(2), "vector arguments have different dimensions.");
}

TEST(vector, rotations_and_angles_in_the_plane) {
  EXPECT_EQ(vector(1.0, 2.0).rotate90(), vector(-2.0, 1.0));  // exact and counter-clockwise
  vector s = vector(2.0, 0.0).rotate(std::numbers::pi / 3);
  EXPECT_NEAR(s[0], 1.0, 1e-15);
  EXPECT_NEAR(s[1], std::sqrt(3.0), 1e-15);
  EXPECT_KERNEL_ERROR(vector(3).rotate(1.0), "vector::rotate: dimension must be two.");
  EXPECT_KERNEL_ERROR(vector(1).rotate90(), "vector::rotate90: dimension must be two.");
  EXPECT_DOUBLE_EQ(vector(1.0, 0.0).angle(vector(-2.0, 0.0)), std::numbers::pi);
  // The rounded cosine of these parallel vectors is 1 + 2^-52: acos must not give NaN.
  EXPECT_EQ(vector(0.1, 0.6).angle(vector(0.2, 1.2)), 0.0);
  EXPECT_KERNEL_ERROR(vector(0.0, 0.0).angle(vector(1.0, 0.0)), "angle: zero argument\n");
}

}  // namespace mero
