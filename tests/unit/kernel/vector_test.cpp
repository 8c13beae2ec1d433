#include "kernel/vector.h"

#include <cmath>
#include <numbers>

#include "kernel/geometry_texts.h"
#include "test_support.h"

namespace mero {
namespace {

TEST(vector, construction_and_checked_index) {
  vector v(3);
  EXPECT_EQ(v.dim(), 3);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(v[i], 0.0);
  v[2] = 7.5;
  EXPECT_EQ(v[2], 7.5);
  EXPECT_EQ(vector().dim(), 0);
  EXPECT_KERNEL_ERROR(vector(-1), texts::vector_negative_dimension);
  EXPECT_KERNEL_ERROR(v[3], "vector: index out of range");
  EXPECT_KERNEL_ERROR(v[-1], "vector: index out of range");
  const vector empty;
  EXPECT_KERNEL_ERROR(empty[0], "vector: index out of range");
}

TEST(vector, arithmetic_against_hand_values) {
  vector a{1.0, 2.0, 3.0};
  vector b{4.0, -5.0, 6.0};
  EXPECT_EQ(a + b, (vector{5.0, -3.0, 9.0}));
  EXPECT_EQ(a - b, (vector{-3.0, 7.0, -3.0}));
  EXPECT_EQ(a * b, 4.0 - 10.0 + 18.0);
  EXPECT_EQ(2.0 * a, (vector{2.0, 4.0, 6.0}));
  EXPECT_EQ(-a, (vector{-1.0, -2.0, -3.0}));
  EXPECT_EQ(vector(3.0, 4.0).length(), 5.0);
}

TEST(vector, different_dimensions_are_a_fault) {
  vector a(2), b(3);
  const char* text = "vector arguments have different dimensions.";
  EXPECT_KERNEL_ERROR(a + b, text);
  EXPECT_KERNEL_ERROR(a - b, text);
  EXPECT_KERNEL_ERROR(a * b, text);
  EXPECT_KERNEL_ERROR(a.angle(b), text);
}

TEST(vector, rotations_in_the_plane) {
  // A quarter turn is exact and counter-clockwise.
  EXPECT_EQ(vector(1.0, 2.0).rotate90(), vector(-2.0, 1.0));
  vector r = vector(1.0, 0.0).rotate(std::numbers::pi / 2);
  EXPECT_NEAR(r[0], 0.0, 1e-15);
  EXPECT_NEAR(r[1], 1.0, 1e-15);
  vector s = vector(2.0, 0.0).rotate(std::numbers::pi / 3);
  EXPECT_NEAR(s[0], 1.0, 1e-15);
  EXPECT_NEAR(s[1], std::sqrt(3.0), 1e-15);
  EXPECT_KERNEL_ERROR(vector(3).rotate(1.0), "vector::rotate: dimension must be two.");
  EXPECT_KERNEL_ERROR(vector(1).rotate90(), "vector::rotate90: dimension must be two.");
}

TEST(vector, angle_between_vectors) {
  EXPECT_DOUBLE_EQ(vector(1.0, 0.0).angle(vector(0.0, 3.0)), std::numbers::pi / 2);
  EXPECT_DOUBLE_EQ(vector(1.0, 0.0).angle(vector(-2.0, 0.0)), std::numbers::pi);
  EXPECT_NEAR(vector(1.0, 0.0).angle(vector(1.0, std::sqrt(3.0))), std::numbers::pi / 3, 1e-15);
  // The rounded cosine of these parallel vectors is 1 + 2^-52: acos must not give NaN.
  vector v(0.1, 0.6);
  EXPECT_EQ(v.angle(v * 2.0), 0.0);
  EXPECT_KERNEL_ERROR(vector(0.0, 0.0).angle(vector(1.0, 0.0)), "angle: zero argument\n");
  EXPECT_KERNEL_ERROR(vector(1.0, 0.0).angle(vector(2)), "angle: zero argument\n");
}

}  // namespace
}  // namespace mero
