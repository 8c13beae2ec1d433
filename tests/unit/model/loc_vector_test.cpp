#include "model/loc_vector.h"

#include <cmath>

#include "test_support.h"

namespace mero {
namespace {

TEST(loc_vector, construction_truncates_the_size_and_ignores_surplus_values) {
  EXPECT_EQ(Loc_Vector(3), Loc_Vector(3.0, 0.0, 0.0, 0.0));
  EXPECT_EQ(Loc_Vector(2.9, 1.5, -2.0, 7.0), Loc_Vector(2.0, 1.5, -2.0));
}

TEST(loc_vector, arithmetic) {
  Loc_Vector a(2.0, 1.0, 2.0);
  Loc_Vector b(2.0, 3.0, -1.0);
  EXPECT_EQ(a + b, Loc_Vector(2.0, 4.0, 1.0));
  EXPECT_EQ(a - b, Loc_Vector(2.0, -2.0, 3.0));
  EXPECT_EQ(a.dot(b), 1.0);
  EXPECT_EQ(a * 3.0, Loc_Vector(2.0, 3.0, 6.0));
  EXPECT_EQ(a + 1.0, Loc_Vector(2.0, 2.0, 3.0));
  EXPECT_EQ(a - 1.0, Loc_Vector(2.0, 0.0, 1.0));
  a *= 2.0;
  a /= 8.0;
  EXPECT_EQ(a, Loc_Vector(2.0, 0.25, 0.5));
  a /= 0.0;  // no test for zero here
  EXPECT_TRUE(std::isinf(a[0]));
}

TEST(loc_vector, mismatched_sizes_are_silent_and_less_is_componentwise) {
  Loc_Vector a(2.0, 1.0, 2.0);
  Loc_Vector b(3.0, 1.0, 1.0, 1.0);
  EXPECT_EQ(a + b, Loc_Vector(3));  // zero vector of the argument's size
  EXPECT_EQ(a - b, Loc_Vector(3));
  a += b;
  a -= b;
  EXPECT_EQ(a, Loc_Vector(2.0, 1.0, 2.0));
  EXPECT_EQ(a.dot(b), 0.0);
  EXPECT_TRUE(a != Loc_Vector(3.0, 1.0, 2.0, 0.0));
  EXPECT_FALSE(Loc_Vector(1) < Loc_Vector(2));
  // Less means every component smaller.
  EXPECT_TRUE(Loc_Vector(0) < Loc_Vector(0));
  EXPECT_TRUE(Loc_Vector(2.0, 1.0, 2.0) < Loc_Vector(2.0, 2.0, 3.0));
  EXPECT_FALSE(Loc_Vector(2.0, 1.0, 3.0) < Loc_Vector(2.0, 2.0, 3.0));
}

TEST(loc_vector, norms) {
  Loc_Vector v(2.0, 3.0, -4.0);
  EXPECT_EQ(v.norm(1), 7.0);
  EXPECT_NEAR(v.norm(2), 5.0, 1e-15);
  EXPECT_NEAR(v.norm(3), std::cbrt(27.0 + 64.0), 1e-12);
  EXPECT_EQ(v.norm(-1), 4.0);
  EXPECT_EQ(v.norm(0), 0.0);
  EXPECT_EQ(v.norm(-2), 0.0);
  EXPECT_EQ(Loc_Vector(0).norm(-1), 0.0);
}

TEST(loc_vector, rotation_turns_clockwise) {
  // A quarter turn takes the x axis to the negative y axis, and the y axis to the x axis.
  Loc_Vector r = Loc_Vector(2.0, 1.0, 0.0).rotate(M_PI / 2);
  EXPECT_NEAR(r[0], 0.0, 1e-15);
  EXPECT_NEAR(r[1], -1.0, 1e-15);
  r = Loc_Vector(2.0, 0.0, 2.0).rotate(M_PI / 2);
  EXPECT_NEAR(r[0], 2.0, 1e-15);
  EXPECT_NEAR(r[1], 0.0, 1e-15);
  EXPECT_REPORT(Loc_Vector(3).rotate(1.0), 1101,
                "Loc_Vector::rotate():To rotate the dimension must be 2.");
}

}  // namespace
}  // namespace mero
