#include "kernel/circle.h"

#include <cmath>

#include "kernel/geometry_texts.h"
#include "test_support.h"

namespace mero {
namespace {

void expect_near(const point& p, double x, double y) {
  EXPECT_NEAR(p.xcoord(), x, 1e-12) << p;
  EXPECT_NEAR(p.ycoord(), y, 1e-12) << p;
}

TEST(circle, centre_and_radius_of_three_points) {
  circle unit(point(1, 0), point(0, 1), point(-1, 0));
  EXPECT_EQ(unit.center(), point(0.0, 0.0));
  EXPECT_EQ(unit.radius(), 1.0);
  // Right angle at the origin: the centre is the hypotenuse's midpoint.
  circle c(point(0, 0), point(4, 0), point(0, 2));
  EXPECT_EQ(c.center(), point(2.0, 1.0));
  EXPECT_DOUBLE_EQ(c.radius(), std::sqrt(5.0));
  circle clockwise(point(0, 2), point(4, 0), point(0, 0));
  EXPECT_EQ(clockwise.center(), point(2.0, 1.0));
  circle dot(point(2, 3), point(2, 3), point(2, 3));
  EXPECT_EQ(dot.center(), point(2.0, 3.0));
  EXPECT_EQ(dot.radius(), 0.0);
  circle given(point(1, 1), 2.0);
  EXPECT_EQ(given.center(), point(1.0, 1.0));
  EXPECT_EQ(given.radius(), 2.0);
}

TEST(circle, collinear_and_inadmissible_triples) {
  circle flat(point(0, 0), point(1, 1), point(2, 2));  // accepted: a line
  EXPECT_TRUE(flat.is_degenerate());
  EXPECT_KERNEL_ERROR(flat.center(), "circle::center(): points are collinear.");
  EXPECT_KERNEL_ERROR(flat.radius(), texts::circle_collinear);
  EXPECT_TRUE(flat.contains(point(5, 5)));
  EXPECT_FALSE(flat.contains(point(5, 4)));
  const char* text = "circle::circle: non-admissable triple";
  EXPECT_KERNEL_ERROR(circle(point(0, 0), point(0, 0), point(1, 1)), text);
  EXPECT_KERNEL_ERROR(circle(point(0, 0), point(1, 1), point(0, 0)), text);
  EXPECT_KERNEL_ERROR(circle(point(1, 1), point(0, 0), point(0, 0)), text);
  EXPECT_KERNEL_ERROR(circle(point(0, 0), -1.0), text);
}

TEST(circle, side_of_points) {
  for (const circle& c : {circle(point(1, 0), point(0, 1), point(-1, 0)),
                          circle(point(-1, 0), point(0, 1), point(1, 0))}) {
    EXPECT_EQ(c.side_of(point(0.0, 0.5)), 1);
    EXPECT_EQ(c.side_of(point(0.0, -1.0)), 0);
    EXPECT_TRUE(c.contains(point(0.0, -1.0)));
    EXPECT_EQ(c.side_of(point(1.0, 1.0)), -1);
    EXPECT_TRUE(c.inside(point(0.5, 0.5)));
    EXPECT_TRUE(c.outside(point(0.0, 1.5)));
  }
  circle dot(point(2, 3), point(2, 3), point(2, 3));
  EXPECT_TRUE(dot.contains(point(2, 3)));
  EXPECT_TRUE(dot.outside(point(2, 3.5)));
}

TEST(circle, crossings_with_lines_and_segments) {
  circle c(point(0, 0), 1.0);
  std::vector<point> two = c.intersection(line(point(-5, 0), point(5, 0)));
  ASSERT_EQ(two.size(), 2u);
  expect_near(two[0], -1.0, 0.0);  // in the line's direction
  expect_near(two[1], 1.0, 0.0);
  std::vector<point> back = c.intersection(line(point(5, 0), point(-5, 0)));
  ASSERT_EQ(back.size(), 2u);
  expect_near(back[0], 1.0, 0.0);
  std::vector<point> touch = c.intersection(line(point(-3, 1), point(3, 1)));
  ASSERT_EQ(touch.size(), 1u);
  EXPECT_EQ(touch[0], point(0.0, 1.0));
  EXPECT_TRUE(c.intersection(line(point(-3, 2), point(3, 2))).empty());
  // x + y = 1 meets the unit circle at (1,0) and (0,1).
  std::vector<point> diag = c.intersection(line(point(2, -1), point(-1, 2)));
  ASSERT_EQ(diag.size(), 2u);
  expect_near(diag[0], 1.0, 0.0);
  expect_near(diag[1], 0.0, 1.0);
  std::vector<point> half = c.intersection(segment(point(0, 0), point(5, 0)));
  ASSERT_EQ(half.size(), 1u);
  expect_near(half[0], 1.0, 0.0);
  EXPECT_TRUE(c.intersection(segment(point(-0.5, 0), point(0.5, 0))).empty());
}

TEST(circle, crossings_of_two_circles) {
  circle a(point(0, 0), 1.0);
  std::vector<point> two = a.intersection(circle(point(1, 0), 1.0));
  ASSERT_EQ(two.size(), 2u);
  expect_near(two[0], 0.5, std::sqrt(3.0) / 2);  // left of the centre line first
  expect_near(two[1], 0.5, -std::sqrt(3.0) / 2);
  std::vector<point> touch = a.intersection(circle(point(2, 0), 1.0));
  ASSERT_EQ(touch.size(), 1u);
  EXPECT_EQ(touch[0], point(1.0, 0.0));
  std::vector<point> inner = a.intersection(circle(point(0.5, 0), 0.5));
  ASSERT_EQ(inner.size(), 1u);
  EXPECT_EQ(inner[0], point(1.0, 0.0));
  EXPECT_TRUE(a.intersection(circle(point(3, 0), 1.0)).empty());
  EXPECT_TRUE(a.intersection(circle(point(0.1, 0), 0.2)).empty());
  EXPECT_TRUE(a.intersection(circle(point(0, 0), 1.0)).empty());
}

TEST(circle, tangent_points_touch_at_right_angles) {
  circle c(point(1, 1), 1.0);
  std::vector<point> t = c.tangent_points(point(3, 1));
  ASSERT_EQ(t.size(), 2u);
  expect_near(t[0], 1.5, 1.0 + std::sqrt(3.0) / 2);
  expect_near(t[1], 1.5, 1.0 - std::sqrt(3.0) / 2);
  for (const point& q : t) {
    EXPECT_NEAR(q.distance(point(1, 1)), 1.0, 1e-12);
    double dot = (q - point(1, 1)) * (q - point(3, 1));
    EXPECT_NEAR(dot, 0.0, 1e-12);
  }
  EXPECT_TRUE(c.tangent_points(point(1.5, 1)).empty());
  std::vector<point> on = c.tangent_points(point(2, 1));
  ASSERT_EQ(on.size(), 1u);
  EXPECT_EQ(on[0], point(2.0, 1.0));
}

}  // namespace
}  // namespace mero
