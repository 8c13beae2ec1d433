#include "kernel/circle.h"

#include <cmath>

#include "test_support.h"

namespace mero {
namespace {

// Touching points are exact, so their cases ask for a tolerance of 0.
void expect_points(const std::vector<point>& got, const std::vector<point>& want,
                   double tolerance = 1e-12) {
  ASSERT_EQ(got.size(), want.size());
  for (std::size_t i = 0; i < got.size(); ++i) {
    EXPECT_NEAR(got[i].xcoord(), want[i].xcoord(), tolerance) << got[i];
    EXPECT_NEAR(got[i].ycoord(), want[i].ycoord(), tolerance) << got[i];
  }
}

TEST(circle, three_points_centre_radius_and_sides) {
  // right angle at the origin: the centre is the hypotenuse's midpoint, in either orientation
  for (const circle& c : {circle(point(0, 0), point(4, 0), point(0, 2)),
                          circle(point(0, 2), point(4, 0), point(0, 0))}) {
    EXPECT_EQ(c.center(), point(2.0, 1.0));
    EXPECT_DOUBLE_EQ(c.radius(), std::sqrt(5.0));
    EXPECT_EQ(c.side_of(point(1, 1)), 1);
    EXPECT_EQ(c.side_of(point(4, 2)), 0);
    EXPECT_EQ(c.side_of(point(5, 1)), -1);
  }
  circle dot(point(2, 3), point(2, 3), point(2, 3));
  EXPECT_EQ(dot.radius(), 0.0);
  EXPECT_TRUE(dot.contains(point(2, 3)));
  EXPECT_TRUE(dot.outside(point(2, 3.5)));
}

TEST(circle, collinear_and_inadmissible_triples) {
  circle flat(point(0, 0), point(1, 1), point(2, 2));  // accepted: a line
  EXPECT_KERNEL_ERROR(flat.center(), "circle::center(): points are collinear.");
  EXPECT_TRUE(flat.contains(point(5, 5)));
  EXPECT_FALSE(flat.contains(point(5, 4)));
  const char* text = "circle::circle: non-admissable triple";
  EXPECT_KERNEL_ERROR(circle(point(0, 0), point(0, 0), point(1, 1)), text);
  EXPECT_KERNEL_ERROR(circle(point(1, 1), point(0, 0), point(0, 0)), text);
  EXPECT_KERNEL_ERROR(circle(point(0, 0), -1.0), text);
}

TEST(circle, crossings_and_tangent_points_against_hand_values) {
  circle c(point(0, 0), 1.0);
  const double h = std::sqrt(3.0) / 2;
  // Crossings with a line come in the line's direction.
  expect_points(c.intersection(line(point(5, 0), point(-5, 0))), {point(1, 0), point(-1, 0)});
  expect_points(c.intersection(line(point(2, -1), point(-1, 2))), {point(1, 0), point(0, 1)});
  expect_points(c.intersection(line(point(-3, 1), point(3, 1))), {point(0, 1)}, 0.0);
  expect_points(c.intersection(line(point(-3, 2), point(3, 2))), {});
  expect_points(c.intersection(segment(point(0, 0), point(5, 0))), {point(1, 0)});
  expect_points(c.intersection(segment(point(-0.5, 0), point(0.5, 0))), {});
  // Two circles: the crossing left of the line between the centres first.
  expect_points(c.intersection(circle(point(1, 0), 1.0)), {point(0.5, h), point(0.5, -h)});
  expect_points(c.intersection(circle(point(2, 0), 1.0)), {point(1, 0)}, 0.0);
  expect_points(c.intersection(circle(point(0.5, 0), 0.5)), {point(1, 0)}, 0.0);
  for (const circle& d : {circle(point(3, 0), 1.0), circle(point(0.1, 0), 0.2), c})
    EXPECT_TRUE(c.intersection(d).empty());
  circle e(point(1, 1), 1.0);
  expect_points(e.tangent_points(point(3, 1)), {point(1.5, 1 + h), point(1.5, 1 - h)});
  expect_points(e.tangent_points(point(2, 1)), {point(2, 1)}, 0.0);
  expect_points(e.tangent_points(point(1.5, 1)), {});
}

}  // namespace
}  // namespace mero
