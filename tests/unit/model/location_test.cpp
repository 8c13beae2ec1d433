#include "model/location.h"

#include <cmath>
#include <sstream>

#include "model/model_messages.h"
#include "test_support.h"

namespace mero {
namespace {

namespace msg = model_messages;

std::string polygon_list(const std::list<location>& L) {
  std::ostringstream out;
  location::WriteAsPolygonList(out, L);
  return out.str();
}

TEST(location, construction) {
  location l(2.0, 1.0, 3.0, 4.0, 5.0);
  EXPECT_EQ(l.dim(), 2);
  EXPECT_EQ(l.weight_dim(), 1);
  EXPECT_EQ(l.coordinate(1), 4.0);
  EXPECT_EQ(l.weight(0), 5.0);
  location z(3, 2);
  EXPECT_EQ(z.coordinates(), Loc_Vector(3));
  EXPECT_EQ(z.weights(), Loc_Vector(2));
}

TEST(location, copy_without_weights_is_empty) {
  location no_weights(2, 0);
  location copy(no_weights);
  EXPECT_EQ(copy.dim(), 0);
  EXPECT_EQ(copy.weight_dim(), 0);
  location no_coordinates(0, 1);
  EXPECT_EQ(location(no_coordinates).weight_dim(), 0);
  // Results by value pass through the same rule.
  EXPECT_EQ((no_weights + no_weights).dim(), 0);
  EXPECT_EQ((no_weights * 2.0).dim(), 0);
  EXPECT_EQ((no_weights / 2.0).dim(), 0);
  location full(2.0, 1.0, 1.0, 2.0, 3.0);
  location copy2(full);
  EXPECT_EQ(copy2, full);
}

TEST(location, assignment_skips_equal_values) {
  location a(2.0, 1.0, 1.0, 2.0, 3.0);
  location b(2, 1);
  b = a;
  EXPECT_EQ(b, a);
  location c(3, 2);
  c = a;
  EXPECT_EQ(c.dim(), 2);
  EXPECT_EQ(c.weight_dim(), 1);
}

TEST(location, checked_access_codes) {
  location l(2, 1);
  EXPECT_REPORT(l.coordinate(2), 1208, "Index out of range.");
  EXPECT_REPORT(l.coordinate_ref(-1), 1207, "Index out of range.");
  EXPECT_REPORT(l.weight(1), 1210, "Index out of range.");
  EXPECT_REPORT(l.weight_ref(1), 1209, "Index out of range.");
  l.coordinate_ref(1) = 7.0;
  l.weight_ref(0) = 2.0;
  EXPECT_EQ(l.coordinate(1), 7.0);
  EXPECT_EQ(l.weight(0), 2.0);
}

TEST(location, arithmetic_keeps_weights) {
  location a(2.0, 1.0, 1.0, 2.0, 5.0);
  location b(2.0, 1.0, 3.0, -1.0, 9.0);
  EXPECT_EQ(a + b, location(2.0, 1.0, 4.0, 1.0, 5.0));
  EXPECT_EQ(a - b, location(2.0, 1.0, -2.0, 3.0, 5.0));
  EXPECT_EQ(a * 2.0, location(2.0, 1.0, 2.0, 4.0, 5.0));
  EXPECT_EQ(a / 2.0, location(2.0, 1.0, 0.5, 1.0, 5.0));
  EXPECT_EQ(a.dot(b), 1.0);
  location c(3, 1);
  EXPECT_REPORT(a + c, msg::incompatible_dimension.code, "Incompatible dimension.");
  EXPECT_REPORT(a - c, 1205, "Incompatible dimension.");
  EXPECT_REPORT(a.dot(c), 1205, "Incompatible dimension.");
  EXPECT_REPORT(a / 0.0, 1211, "Division by zero.");
}

TEST(location, norms_and_angles) {
  location l(2.0, 1.0, -3.0, 4.0, 1.0);
  EXPECT_EQ(l.norm(1), 7.0);
  EXPECT_NEAR(l.norm(2), 5.0, 1e-15);
  EXPECT_EQ(l.norm(-1), 4.0);
  EXPECT_REPORT(l.norm(0), 1201, "Bad p-Norm argument in location::norm(int p).");
  EXPECT_REPORT(l.norm(-2), 1201, "Bad p-Norm argument in location::norm(int p).");
  location x(2.0, 1.0, 2.0, 0.0, 1.0);
  location y(2.0, 1.0, 0.0, 3.0, 1.0);
  EXPECT_NEAR(x.r_angle(y), M_PI / 2, 1e-15);
  EXPECT_NEAR(x.r_angle(location(2.0, 1.0, 1.0, 1.0, 1.0)), M_PI / 4, 1e-15);
  EXPECT_REPORT(x.r_angle(location(2, 1)), 1202, "Zero length location in location::r_angle().");
}

TEST(location, rectilinear_transforms_are_inverse) {
  location l(2.0, 1.0, 3.0, 1.0, 1.0);
  l.l1_to_linf();
  EXPECT_EQ(l.coordinates(), Loc_Vector(2.0, 2.0, -1.0));
  l.linf_to_l1();
  EXPECT_EQ(l.coordinates(), Loc_Vector(2.0, 3.0, 1.0));
  // The l1 distance of two points is the linf distance of their images, times two.
  location a(2.0, 1.0, 0.0, 0.0, 1.0);
  location b(2.0, 1.0, 3.0, 5.0, 1.0);
  a.l1_to_linf();
  b.l1_to_linf();
  EXPECT_EQ((a - b).norm(-1) * 2.0, 8.0);
}

TEST(location, point_conversion) {
  point p(location(2.0, 1.0, 1.5, -2.0, 1.0));
  EXPECT_EQ(p, point(1.5, -2.0));
  location back(point(3.0, 4.0));
  EXPECT_EQ(back.coordinates(), Loc_Vector(2.0, 3.0, 4.0));
  EXPECT_EQ(location(back).dim(), 2);  // survives a copy
  EXPECT_REPORT(static_cast<point>(location(3, 1)), 1203,
                "Conversion to only possible for dimension 2.");
}

TEST(location, stream_output_and_input) {
  std::ostringstream out;
  out << location(2.0, 2.0, 1.0, 2.5, 3.0, 1e50);
  EXPECT_EQ(out.str(), "1 2.5  3 1e+50 ");
  location l(2, 2);
  std::istringstream in("4 5 6 7");
  in >> l;
  EXPECT_EQ(l, location(2.0, 2.0, 4.0, 5.0, 6.0, 7.0));
}

TEST(location, polygon_list_grouping) {
  EXPECT_EQ(polygon_list({}), "begin {polygonlist}\nend {polygonlist}\n");
  // Two neighbours of group 0 form a polygon; the third, of group 1, is a lone point.
  std::list<location> L{location(2.0, 1.0, 0.0, 0.0, 0.0), location(2.0, 1.0, 1.0, 2.0, 0.0),
                        location(2.0, 1.0, 3.0, 4.0, 1.0)};
  EXPECT_EQ(polygon_list(L),
            "begin {polygonlist}\nbegin {polygon}\n0 0 \n1 2 \nend {polygon}\n3 4 \n"
            "end {polygonlist}\n");
  // Groups count only between neighbours: 0, 1, 0 are three lone points.
  std::list<location> M{location(2.0, 1.0, 1.0, 1.0, 0.0), location(2.0, 1.0, 2.0, 2.0, 1.0),
                        location(2.0, 1.0, 0.5, 3.0, 0.0)};
  EXPECT_EQ(polygon_list(M), "begin {polygonlist}\n1 1 \n2 2 \n0.5 3 \nend {polygonlist}\n");
}

TEST(location, polygon_list_needs_weights) {
  std::list<location> L;
  L.emplace_back(2, 0);
  EXPECT_REPORT(polygon_list(L), 1212,
                "Can't happen: L in location::WriteAsPolygonList is not a polygon list?");
}

}  // namespace
}  // namespace mero
