#include "kernel/vector.h"

#include <cmath>
#include <numbers>

#include "kernel/geometry_texts.h"
#include "test_support.h"

namespace mero {

TEST(vector, arithmetic_and_checked_access) {
  vector a{1.0, 2.0, 3.0}, b{4.0, -5.0, 6.0};
  EXPECT_EQ(a + b, (vector{5.0, -3.0, 9.0}));
  EXPECT_EQ(a - b, (vector{-3.0, 7.0, -3.0}));
  EXPECT_EQ(a * b, 4.0 - 10.0 + 18.0);
  EXPECT_EQ(-2.0 * a, (vector{-2.0, -4.0, -6.0}));
  EXPECT_EQ(vector(3.0, 4.0).length(), 5.0);
  EXPECT_EQ(vector(2), (vector{0.0, 0.0}));
  EXPECT_KERNEL_ERROR(vector(-1), texts::vector_negative_dimension);
  EXPECT_KERNEL_ERROR(a[3], "vector: index out of range");
  EXPECT_KERNEL_ERROR(a[-1], "vector: index out of range");
  const char* text = "vector arguments have different dimensions.";
  EXPECT_KERNEL_ERROR(a + vector(2), text);
  EXPECT_KERNEL_ERROR(a - vector(2), text);
  EXPECT_KERNEL_ERROR(a * vector(2), text);
}

TEST(vector, rotations_and_angles_in_the_plane) {
  EXPECT_EQ(vector(1.0, 2.0).rotate90(), vector(-2.0, 1.0));  // exact and counter-clockwise
  vector s = vector(2.0, 0.0).rotate(std::numbers::pi / 3);
  EXPECT_NEAR(s[0], 1.0, 1e-15);
  EXPECT_NEAR(s[1], std::sqrt(3.0), 1e-15);
  EXPECT_KERNEL_ERROR(vector(3).rotate(1.0), "vector::rotate: dimension must be two.");
  EXPECT_KERNEL_ERROR(vector(1).rotate90(), "vector::rotate90: dimension must be two.");
  EXPECT_DOUBLE_EQ(vector(1.0, 0.0).angle(vector(0.0, 3.0)), std::numbers::pi / 2);
  EXPECT_DOUBLE_EQ(vector(1.0, 0.0).angle(vector(-2.0, 0.0)), std::numbers::pi);
  // The rounded cosine of these parallel vectors is 1 + 2^-52: acos must not give NaN.
  vector v(0.1, 0.6);
  EXPECT_EQ(v.angle(v * 2.0), 0.0);
  EXPECT_KERNEL_ERROR(vector(0.0, 0.0).angle(vector(1.0, 0.0)), "angle: zero argument\n");
  EXPECT_KERNEL_ERROR(vector(2).angle(vector(3)), texts::vector_dimensions);
}

}  // namespace mero
