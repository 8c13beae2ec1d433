#include "model/location.h"

#include <cmath>
#include <sstream>

#include "test_support.h"

namespace mero {
namespace {

location at(double x, double y, double w = 1.0) { return location(2.0, 1.0, x, y, w); }

std::string polygon_list(const std::list<location>& L) {
  std::ostringstream out;
  location::WriteAsPolygonList(out, L);
  return out.str();
}

TEST(location, copies_need_a_coordinate_and_a_weight) {
  location no_weights(2, 0);
  EXPECT_EQ(location(no_weights).dim(), 0);
  location no_coordinates(0, 1);
  EXPECT_EQ(location(no_coordinates).weight_dim(), 0);
  // Results by value pass through the same rule.
  EXPECT_EQ((no_weights + no_weights).dim(), 0);
  EXPECT_EQ((no_weights * 2.0).dim(), 0);
  EXPECT_EQ((no_weights / 2.0).dim(), 0);
  location full = at(1, 2, 3);
  EXPECT_EQ(location(full), full);
}

TEST(location, checked_access_codes) {
  location l(2, 1);
  EXPECT_REPORT(l.coordinate(2), 1208, "Index out of range.");
  EXPECT_REPORT(l.coordinate_ref(-1), 1207, "Index out of range.");
  EXPECT_REPORT(l.weight(1), 1210, "Index out of range.");
  EXPECT_REPORT(l.weight_ref(1), 1209, "Index out of range.");
  l.coordinate_ref(1) = 7.0;
  l.weight_ref(0) = 2.0;
  EXPECT_EQ(l, at(0, 7, 2));
}

TEST(location, arithmetic_keeps_the_weights_of_the_left_operand) {
  location a = at(1, 2, 5);
  location b = at(3, -1, 9);
  EXPECT_EQ(a + b, at(4, 1, 5));
  EXPECT_EQ(a - b, at(-2, 3, 5));
  EXPECT_EQ(a * 2.0, at(2, 4, 5));
  EXPECT_EQ(a / 2.0, at(0.5, 1, 5));
  EXPECT_EQ(a.dot(b), 1.0);
  location c(3, 1);
  EXPECT_REPORT(a + c, 1205, "Incompatible dimension.");
  EXPECT_REPORT(a - c, 1205, "Incompatible dimension.");
  EXPECT_REPORT(a.dot(c), 1205, "Incompatible dimension.");
  EXPECT_REPORT(a / 0.0, 1211, "Division by zero.");
}

TEST(location, norms_and_angles) {
  location l = at(-3, 4);
  EXPECT_EQ(l.norm(1), 7.0);
  EXPECT_NEAR(l.norm(2), 5.0, 1e-15);
  EXPECT_EQ(l.norm(-1), 4.0);
  EXPECT_REPORT(l.norm(0), 1201, "Bad p-Norm argument in location::norm(int p).");
  EXPECT_REPORT(l.norm(-2), 1201, "Bad p-Norm argument in location::norm(int p).");
  EXPECT_NEAR(at(2, 0).r_angle(at(0, 3)), M_PI / 2, 1e-15);
  EXPECT_NEAR(at(2, 0).r_angle(at(1, 1)), M_PI / 4, 1e-15);
  EXPECT_REPORT(at(2, 0).r_angle(location(2, 1)), 1202,
                "Zero length location in location::r_angle().");
}

TEST(location, rectilinear_transforms_are_inverse) {
  location l = at(3, 1);
  l.l1_to_linf();
  EXPECT_EQ(l, at(2, -1));
  l.linf_to_l1();
  EXPECT_EQ(l, at(3, 1));
  // The l1 distance of two points, |3| + |5|, is the linf distance of their images times two.
  location a = at(0, 0);
  location b = at(3, 5);
  a.l1_to_linf();
  b.l1_to_linf();
  EXPECT_EQ((a - b).norm(-1) * 2.0, 8.0);
}

TEST(location, point_conversion_and_streams) {
  EXPECT_EQ(point(at(1.5, -2)), point(1.5, -2.0));
  location back(point(3.0, 4.0));
  EXPECT_EQ(location(back).coordinates(), Loc_Vector(2.0, 3.0, 4.0));  // survives a copy
  EXPECT_REPORT(static_cast<point>(location(3, 1)), 1203,
                "Conversion to only possible for dimension 2.");
  std::ostringstream out;
  out << location(2.0, 2.0, 1.0, 2.5, 3.0, 1e50);
  EXPECT_EQ(out.str(), "1 2.5  3 1e+50 ");
  location l(2, 2);
  std::istringstream("4 5 6 7") >> l;
  EXPECT_EQ(l, location(2.0, 2.0, 4.0, 5.0, 6.0, 7.0));
}

TEST(location, polygon_list_groups_neighbours_of_equal_weight) {
  EXPECT_EQ(polygon_list({}), "begin {polygonlist}\nend {polygonlist}\n");
  // Two neighbours of group 0 form a polygon; the third, of group 1, is a lone point.
  EXPECT_EQ(polygon_list({at(0, 0, 0), at(1, 2, 0), at(3, 4, 1)}),
            "begin {polygonlist}\nbegin {polygon}\n0 0 \n1 2 \nend {polygon}\n3 4 \n"
            "end {polygonlist}\n");
  // Groups count only between neighbours: 0, 1, 0 are three lone points.
  EXPECT_EQ(polygon_list({at(1, 1, 0), at(2, 2, 1), at(0.5, 3, 0)}),
            "begin {polygonlist}\n1 1 \n2 2 \n0.5 3 \nend {polygonlist}\n");
  std::list<location> no_weights;
  no_weights.emplace_back(2, 0);  // built in place: a copy would lose the coordinates as well
  EXPECT_REPORT(polygon_list(no_weights), 1212,
                "Can't happen: L in location::WriteAsPolygonList is not a polygon list?");
}

}  // namespace
}  // namespace mero
