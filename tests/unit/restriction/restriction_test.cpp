// The figures of the restriction family: inside tests, crossing lists, projections, tangents
// and the errors of their constructors and operations, against hand-computed values and the
// kernel's own point-in-polygon test.

#include "restriction/restriction.h"

#include <algorithm>
#include <cmath>
#include <random>

#include "restriction/restriction_messages.h"
#include "test_support.h"

namespace mero {
namespace {

namespace msg = restriction_messages;

const std::vector<point> square = {{0, 0}, {0, 2}, {2, 2}, {2, 0}};
// Counter-clockwise, with a concave corner at (2, 2) between two horns.
const std::vector<point> notched = {{0, 0}, {4, 0}, {4, 4}, {2, 2}, {0, 4}};

void expect_points(const std::vector<point>& got, const std::vector<point>& want) {
  ASSERT_EQ(got.size(), want.size());
  for (std::size_t i = 0; i < want.size(); ++i) {
    EXPECT_NEAR(got[i].xcoord(), want[i].xcoord(), 1e-12) << "point " << i;
    EXPECT_NEAR(got[i].ycoord(), want[i].ycoord(), 1e-12) << "point " << i;
  }
}

TEST(RestrPolygon, VerticesAreInsideAndEdgesFollowTheUpwardCount) {
  const restr_polygon p(square);
  for (const point& v : square) EXPECT_TRUE(p.inside(v));
  EXPECT_FALSE(p.inside(point(1, 0)));  // lower edge: crossed twice
  EXPECT_TRUE(p.inside(point(1, 2)));   // upper edge: crossed once
  EXPECT_FALSE(p.inside(point(0, 1)));  // side edges: the run's neighbours are not opposite
  EXPECT_FALSE(p.inside(point(2, 1)));
  EXPECT_TRUE(p.inside(point(1, 1)));
  for (const point& q : {point(3, 1), point(1, 3), point(1, -1), point(-1, 1), point(0, 3)})
    EXPECT_FALSE(p.inside(q)) << q;
}

TEST(RestrPolygon, ConcaveCorner) {
  const restr_polygon p(notched);
  EXPECT_TRUE(p.inside(point(2, 1)));    // the ray passes the concave vertex between horns
  EXPECT_FALSE(p.inside(point(2, 3)));   // in the notch above it
  EXPECT_TRUE(p.inside(point(1, 3)));    // on the upper edge (2,2)-(0,4)
  EXPECT_TRUE(p.inside(point(1, 2.5)));  // below that edge
  EXPECT_FALSE(p.inside(point(1, 3.5)));
  EXPECT_TRUE(p.inside(point(2, 2)));
  EXPECT_FALSE(p.is_convex());
  EXPECT_TRUE(restr_polygon(square).is_convex());
}

// Away from the boundary the rule agrees with the kernel's test, also on the vertical lines
// through vertices, where it counts runs of vertices.
TEST(RestrPolygon, AgreesWithTheKernelOffTheBoundary) {
  const std::vector<point> star = {{0, 0}, {3, 1}, {6, 0}, {5, 3}, {6, 6},
                                   {3, 4}, {3, 8}, {1, 5}, {0, 6}, {1, 3}};
  const restr_polygon p(star);
  const polygon kernel(star);
  int checked = 0;
  for (int i = -1; i <= 7; ++i)
    for (int j = -2; j <= 18; ++j) {
      const point q(i, j * 0.5 - 0.25);
      if (kernel.side_of(q) == 0) continue;
      EXPECT_EQ(p.inside(q), kernel.inside(q)) << q;
      ++checked;
    }
  std::mt19937 gen(7);
  std::uniform_real_distribution<double> u(-1.0, 9.0);
  for (int k = 0; k < 2000; ++k, ++checked) {
    const point q(u(gen), u(gen));
    EXPECT_EQ(p.inside(q), kernel.inside(q)) << q;
  }
  EXPECT_GT(checked, 2100);
}

TEST(RestrPolygon, ConstructionKeepsTheRingClockwiseAndRefusesNonSimpleRings) {
  const restr_polygon p(notched);  // given counter-clockwise
  const std::vector<point> v = p.vertices();
  EXPECT_EQ(v, std::vector<point>(notched.rbegin(), notched.rend()));
  EXPECT_EQ(restr_polygon(square).vertices(), square);  // already clockwise
  EXPECT_REPORT(restr_polygon({{0, 0}, {1, 1}}), 1402, "polygon: must be simple");
  EXPECT_REPORT(restr_polygon({{0, 0}, {0, 1}, {0, 1}, {1, 0}}), 1403, "polygon: must be simple");
  EXPECT_REPORT(restr_polygon({{0, 0}, {0, 1}, {1, 0}, {0, 0}}), 1404, "polygon: must be simple");
}

TEST(RestrPolygon, CrossingListsNameASharedVertexOnce) {
  const restr_polygon p(square);
  expect_points(p.hit_segment(point(-1, -1), point(3, 3)), {{0, 0}, {2, 2}});
  expect_points(p.hit_line(line(point(5, 1), point(6, 1))), {{0, 1}, {2, 1}});
  expect_points(p.hit_segment(segment(point(1, 1), point(1, 5))), {{1, 2}});
  // A ray that ends inside is stretched tenfold: (1,1) -> (1,1.5) becomes (1,1) -> (1,6).
  expect_points(p.hit_ray(point(1, 1), point(1, 1.5)), {{1, 2}});
  expect_points(p.hit_ray(point(1, 1), point(1, 1.05)), {});  // tenfold reaches only 1.5
  const auto round = p.hit_circle(circle(point(0, 0), 1.0));
  expect_points(round, {{0, 1}, {1, 0}});
  const auto across = p.hit_polygon(polygon({point(1, -1), point(3, 1), point(1, 3)}));
  EXPECT_EQ(across.size(), 4u);
}

TEST(RestrPolygon, ProjectionCandidates) {
  const restr_polygon p({{0, 0}, {0, 4}, {4, 4}, {4, 0}});
  const location inner(2.0, 1.0, 1.0, 3.0, 7.0);
  std::vector<point> feet;
  for (const location& l : p.proj_l2sqr(inner)) {
    feet.push_back(point(l));
    EXPECT_EQ(l.weight(0), 7.0);
  }
  expect_points(feet, {{0, 3}, {1, 4}, {4, 3}, {1, 0}});
  std::vector<point> outer;
  for (const location& l : p.proj_l2sqr(location(2.0, 1.0, 2.0, 6.0))) outer.push_back(point(l));
  expect_points(outer, {{2, 4}, {2, 0}, {0, 0}, {0, 4}, {4, 4}, {4, 0}});
}

TEST(RestrRectangle, CornersDimsAndInside) {
  const double quarter = 90 * 0.017453292519943295;
  const restr_rectangle r(point(1, 1), 2.0, 1.0, quarter);
  expect_points(r.corners, {{1, 1}, {0, 1}, {0, 3}, {1, 3}});
  EXPECT_EQ(r.dims, (std::vector<double>{2.0, 1.0}));
  const restr_rectangle flat(point(0, 0), 2.0, 1.0, 0.0);
  expect_points(flat.corners, {{0, 0}, {0, 1}, {2, 1}, {2, 0}});
  EXPECT_TRUE(flat.inside(point(2, 1)));
  EXPECT_TRUE(flat.inside(point(1, 0.5)));
  EXPECT_FALSE(flat.inside(point(1, 0)));
  EXPECT_FALSE(flat.inside(point(2.5, 0.5)));
  const restr_rectangle given(point(0, 0), point(0, 3), point(4, 3), point(4, 0));
  EXPECT_EQ(given.dims, (std::vector<double>{3.0, 4.0}));
  expect_points(flat.hit_ray(point(1, 0.5), point(1, 9)), {{1, 1}});
  EXPECT_KERNEL_ERROR(flat.hit_ray(point(1, 0.5), point(1, 0.6)), "dlist::head(): empty list");
  std::vector<point> outer;
  for (const location& l : flat.proj_l2sqr(location(2.0, 1.0, 3.0, 0.5))) outer.push_back(point(l));
  expect_points(outer, {{0, 0.5}, {2, 0.5}, {0, 0}, {0, 1}, {2, 1}, {2, 0}});
}

TEST(RestrCircle, InsideCrossingsAndProjection) {
  const restr_circle c(point(0, 0), 5.0);
  EXPECT_FALSE(c.inside(point(3, 4)));  // on the circle: outside
  EXPECT_TRUE(c.inside(point(3, 3.99)));
  expect_points(c.hit_circle(circle(point(8, 0), 5.0)), {{4, 3}, {4, -3}});
  expect_points(c.hit_circle(circle(point(10, 0), 5.0)), {{5, 0}});
  EXPECT_TRUE(c.hit_circle(circle(point(11, 0), 5.0)).empty());
  EXPECT_TRUE(c.hit_circle(circle(point(1, 0), 1.0)).empty());  // inside, apart
  expect_points(c.hit_segment(point(-10, 0), point(0, 0)), {{-5, 0}});
  expect_points(c.hit_ray(point(0, 0), point(0, 9)), {{0, 5}});
  const auto near = c.proj_l2sqr(location(2.0, 1.0, 6.0, 8.0));
  ASSERT_EQ(near.size(), 1u);
  EXPECT_NEAR(near.front().coordinate(0), 3.0, 1e-12);
  EXPECT_NEAR(near.front().coordinate(1), 4.0, 1e-12);
  testing::messages().clear();
  const auto top = c.proj_l2sqr(location(2.0, 1.0, 0.0, 0.0));
  ASSERT_EQ(top.size(), 1u);
  EXPECT_EQ(point(top.front()), point(0, 5));
  ASSERT_EQ(testing::messages().size(), 1u);
  EXPECT_EQ(testing::messages()[0].text, msg::whole_boundary_optimal.text);
  location any(2.0, 1.0, 0.0, 0.0);
  EXPECT_REPORT(c.proj_l2max(any, {}, 0.0), 1411, "Not implemented for this kind of restriction.");
}

TEST(Barriers, InsideTests) {
  const circle_barrier c(point(0, 0), 1.0);
  EXPECT_FALSE(c.inside(point(1, 0)));
  EXPECT_TRUE(c.inside(point(0.5, 0.5)));
  const circle_barrier empty(point(3, 3), -1.0);
  EXPECT_EQ(empty.center, point(0, 0));
  EXPECT_FALSE(empty.inside(point(0, 0)));
  const line_barrier l(point(0, 0), point(2, 0));
  EXPECT_TRUE(l.inside(point(1, 0.001)));  // detour about 1e-6
  EXPECT_FALSE(l.inside(point(1, 0.1)));   // detour about 0.01
  EXPECT_FALSE(l.inside(segment(point(0, 0), point(1, 0))));
  const polygon_barrier p(square);
  EXPECT_FALSE(p.inside(point(0, 0)));  // a vertex is outside a barrier
  EXPECT_FALSE(p.inside(point(1, 0)));
  EXPECT_TRUE(p.inside(point(1, 1)));
  EXPECT_EQ(p.midpoints.size(), 4u);
  EXPECT_REPORT(polygon_barrier({{0, 0}, {2, 2}, {2, 0}, {0, 2}}), 1413,
                "polygon_barrier: Polygon is not simple");
  EXPECT_EQ(c.kind() * 10 + c.shape(), 21);
  EXPECT_EQ(l.shape(), 2);
  EXPECT_EQ(p.shape(), 3);
  EXPECT_TRUE(c.proj_l2sqr(location(2, 1)).empty());
  EXPECT_TRUE(p.hit_ray(point(5, 5), point(0, 0)).empty());
  expect_points(l.hit_segment(point(1, -1), point(1, 1)), {{1, 0}});
  std::vector<point> up = p.hit_segment(segment(point(1, -1), point(1, 3)));
  std::sort(up.begin(), up.end(),
            [](const point& a, const point& b) { return a.ycoord() < b.ycoord(); });
  expect_points(up, {{1, 0}, {1, 2}});
}

// Seen from p the system's left tangent is the one on the right hand: the same side for all
// three barriers.
TEST(Barriers, Tangents) {
  const circle_barrier c(point(0, 0), 1.0);
  const double h = std::sqrt(3.0) / 2.0;
  expect_points({c.left_tangent(point(2, 0)), c.right_tangent(point(2, 0))}, {{0.5, h}, {0.5, -h}});
  EXPECT_EQ(c.left_tangent(point(0.5, 0)), point(0.5, 0));
  const line_barrier l(point(0, -1), point(0, 1));
  EXPECT_EQ(l.left_tangent(point(2, 0)), point(0, 1));
  EXPECT_EQ(l.right_tangent(point(2, 0)), point(0, -1));
  EXPECT_EQ(l.left_tangent(point(-2, 0)), point(0, -1));
  const polygon_barrier p({{-1, -1}, {1, -1}, {1, 1}, {-1, 1}});
  EXPECT_EQ(p.left_tangent(point(3, 0)), point(1, 1));
  EXPECT_EQ(p.right_tangent(point(3, 0)), point(1, -1));
  EXPECT_EQ(p.left_tangent(point(0, 0)), point(0, 0));
}

TEST(Halfspace, SidesOfGeneralAndAxisLines) {
  EXPECT_REPORT(halfspace(point(1, 1), point(1, 1)), 1803,
                "halfspace::compute(): Not a hyperplane");
  const halfspace slanted(point(0, 0), point(2, 1));
  EXPECT_EQ(slanted.n1, -1.0);
  EXPECT_EQ(slanted.n2, 2.0);
  EXPECT_EQ(slanted.slope, 0.5);
  EXPECT_EQ(slanted.side(point(0, 1)), 1);
  EXPECT_EQ(slanted.side(point(1, 0)), -1);
  EXPECT_EQ(slanted.side(point(4, 2)), -1);  // on the line: never in the half
  const halfspace right_side(point(0, 0), point(2, 1), -5);
  EXPECT_EQ(right_side.sign, -1);
  EXPECT_EQ(right_side.side(point(1, 0)), -1);
  EXPECT_EQ(right_side.side(point(0, 1)), 1);
  EXPECT_EQ(right_side.side(point(4, 2)), 1);
  const halfspace up(point(0, 0), point(0, 1)), down(point(0, 1), point(0, 0));
  EXPECT_EQ(up.slope, 1000000000.0);
  EXPECT_EQ(up.direction * 10 + down.direction, 10);
  EXPECT_EQ(up.side(point(-1, 5)), 1);
  EXPECT_EQ(down.side(point(-1, 5)), -1);
  const halfspace east(point(0, 0), point(1, 0)), west(point(1, 0), point(0, 0));
  EXPECT_TRUE(east.horizontal);
  EXPECT_EQ(east.side(point(5, 1)), 1);
  EXPECT_EQ(west.side(point(5, 1)), -1);
}

TEST(RestrictionList, FirstContainingAndInsideAll) {
  restriction_list list;
  EXPECT_EQ(first_containing(list, location(2.0, 1.0, 1.0, 1.0)), nullptr);
  list.push_back(std::make_unique<restr_circle>(point(0, 0), 1.0));
  list.push_back(std::make_unique<restr_polygon>(square));
  const std::list<location> both = {location(2.0, 1.0, 5.0, 5.0), location(2.0, 1.0, 1.0, 1.0),
                                    location(2.0, 1.0, 0.1, 0.1)};
  EXPECT_EQ(first_containing(list, both.back()), list[0].get());
  EXPECT_EQ(first_containing(list, both.front()), nullptr);
  EXPECT_EQ(first_containing_any(both, list), list[1].get());
  EXPECT_FALSE(inside_all(both, list[1].get()));
  EXPECT_TRUE(inside_all({*std::next(both.begin()), both.back()}, list[1].get()));
  EXPECT_REPORT(inside_all(both, nullptr), 1412, "Restriction is empty in inside_all");
  EXPECT_EQ(list[1]->barrier_objective({both.begin(), both.end()}, point(0, 0)), 0.0);
}

}  // namespace
}  // namespace mero
