#include "kernel/convex_intersection.h"

#include <random>

#include "kernel/convex_hull.h"
#include "test_support.h"

namespace mero::testing {
namespace {

// The signed distance-like slack of p against the counter-clockwise convex polygon: positive
// inside, by the smallest margin over its edges. Degenerate polygons have no inside.
double margin(const std::vector<point>& poly, const point& p) {
  double m = HUGE_VAL;
  for (std::size_t k = 0; k < poly.size(); ++k) {
    const point& a = poly[k];
    const point& b = poly[(k + 1) % poly.size()];
    const double len = a.distance(b);
    const double cross = (b.xcoord() - a.xcoord()) * (p.ycoord() - a.ycoord()) -
                         (b.ycoord() - a.ycoord()) * (p.xcoord() - a.xcoord());
    m = std::fmin(m, cross / len);
  }
  return m;
}

std::vector<point> random_convex(std::mt19937& gen, double cx, double cy) {
  std::uniform_real_distribution<double> d(-5.0, 5.0);
  std::vector<point> p;
  for (int i = 0; i < 8; ++i) p.emplace_back(cx + d(gen), cy + d(gen));
  return convex_hull(p);
}

TEST(convex_polygon_intersection, agrees_with_membership_on_a_grid) {
  std::mt19937 gen(7);
  std::uniform_real_distribution<double> shift(-6.0, 6.0);
  for (int trial = 0; trial < 40; ++trial) {
    const std::vector<point> a = random_convex(gen, 0, 0);
    const std::vector<point> b = random_convex(gen, shift(gen), shift(gen));
    const std::vector<point> r = convex_polygon_intersection(a, b);
    for (const point& v : r) {
      EXPECT_GT(margin(a, v), -1e-9);
      EXPECT_GT(margin(b, v), -1e-9);
    }
    for (double x = -12; x <= 12; x += 0.25)
      for (double y = -12; y <= 12; y += 0.25) {
        const point p(x, y);
        const double inside = std::fmin(margin(a, p), margin(b, p));
        if (inside > 1e-6) {
          ASSERT_GE(r.size(), 3u);
          EXPECT_GT(margin(r, p), 0.0) << trial;
        } else if (inside < -1e-6 && r.size() >= 3) {
          EXPECT_LT(margin(r, p), 0.0) << trial;
        }
      }
  }
}

TEST(convex_polygon_intersection, touching_disjoint_and_clipped_by_hand) {
  const std::vector<point> unit{point(0, 0), point(1, 0), point(1, 1), point(0, 1)};
  const std::vector<point> right{point(1, 0), point(2, 0), point(2, 1), point(1, 1)};
  const std::vector<point> corner{point(1, 1), point(2, 1), point(2, 2), point(1, 2)};
  const std::vector<point> far{point(3, 3), point(4, 3), point(4, 4)};
  EXPECT_EQ(convex_polygon_intersection(unit, right),
            (std::vector<point>{point(1, 0), point(1, 1)}));
  EXPECT_EQ(convex_polygon_intersection(unit, corner), std::vector<point>{point(1, 1)});
  EXPECT_TRUE(convex_polygon_intersection(unit, far).empty());
  // A point inside a triangle: the polygons change roles.
  EXPECT_EQ(convex_polygon_intersection(unit, {point(0.5, 0.5)}),
            std::vector<point>{point(0.5, 0.5)});
  labeled_convex_polygon square{{point(0, 0), point(2, 0), point(2, 2), point(0, 2)}, {0, 1, 2, 3}};
  // Cut off x > 1: the new right edge from (1, 0) to (1, 2) carries label 9.
  const labeled_convex_polygon cut = clip(square, {1.0, 0.0, 1.0}, 9);
  EXPECT_EQ(cut.vertices, (std::vector<point>{point(0, 0), point(1, 0), point(1, 2), point(0, 2)}));
  EXPECT_EQ(cut.edge_labels, (std::vector<int>{0, 9, 2, 3}));
}

}  // namespace
}  // namespace mero::testing
