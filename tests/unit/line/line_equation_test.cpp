// The construction rules of the line record, with values worked out by hand.

#include "line/line_equation.h"

#include <gtest/gtest.h>

namespace mero {
namespace {

TEST(line_equation, vertical_and_horizontal_lines_keep_the_normal_of_their_points) {
  const line_equation up(point(2, 1), point(2, 5));
  EXPECT_TRUE(up.vertical);
  EXPECT_EQ(up.slope, 1e50);
  EXPECT_EQ(up.a, -4.0);  // (y1 - y2, x2 - x1) = (-4, 0), c = -4 * 2
  EXPECT_EQ(up.b, 0.0);
  EXPECT_EQ(up.c, -8.0);
  EXPECT_EQ(up.offset(point(2, -30)), 0.0);

  const line_equation flat(point(4, 3), point(1, 3));
  EXPECT_FALSE(flat.vertical);
  EXPECT_EQ(flat.slope, 0.0);
  EXPECT_EQ(flat.a, 0.0);
  EXPECT_EQ(flat.b, -3.0);  // not 1.0: a slope of exactly 0.0 keeps the normal
  EXPECT_EQ(flat.c, -9.0);
  EXPECT_GT(flat.offset(point(0, 2)), 0.0);  // below the line, against the normal (0, -3)

  // A quotient that underflows to 0.0 is treated as horizontal and still holds the line.
  const line_equation tiny(point(0, 0), point(1e300, 1e-300));
  EXPECT_EQ(tiny.slope, 0.0);
  EXPECT_EQ(tiny.offset(point(1e300, 1e-300)), 0.0);
  EXPECT_NE(tiny.b, 0.0);
}

TEST(line_equation, general_line_has_y_coefficient_one_and_the_constant_of_its_first_point) {
  // Slope (5 - 1) / (4 - 2) = 2 whichever point comes first; -2 x + y = -3.
  for (const line_equation& l :
       {line_equation(point(4, 5), point(2, 1)), line_equation(point(2, 1), point(4, 5))}) {
    EXPECT_FALSE(l.vertical);
    EXPECT_EQ(l.slope, 2.0);
    EXPECT_EQ(l.a, -2.0);
    EXPECT_EQ(l.b, 1.0);
    EXPECT_EQ(l.c, -3.0);
    EXPECT_EQ(l.offset(point(3, 3)), 0.0);
    EXPECT_EQ(l.offset(point(0, 0)), 3.0);
    EXPECT_EQ(l.first().xcoord() + l.second().xcoord(), 6.0);
  }
  // Here the two points give constants that differ in the last digit: the first one counts.
  const point p(2.5, -8.7), q(-9.7, 6.7);
  const line_equation forward(p, q), backward(q, p);
  EXPECT_EQ(forward.slope, backward.slope);
  EXPECT_EQ(forward.c, -forward.slope * 2.5 + -8.7);
  EXPECT_EQ(backward.c, -backward.slope * -9.7 + 6.7);
  EXPECT_NE(forward.c, backward.c);
}

}  // namespace
}  // namespace mero
