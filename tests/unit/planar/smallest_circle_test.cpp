#include "planar/smallest_circle.h"

#include <cmath>

#include "kernel/convex_hull.h"
#include "single_facility_fixtures.h"
#include "test_support.h"

namespace mero {
namespace {

using testing::at;

weighted_point wp(double x, double y, double w = 1.0) { return {x, y, w}; }

TEST(circle_of_two, weighted_mean_and_meeting_radius) {
  const weighted_circle c = circle_of_two(wp(0, 0, 1), wp(4, 0, 3));
  EXPECT_DOUBLE_EQ(c.centre.xcoord(), 3.0);
  EXPECT_DOUBLE_EQ(c.centre.ycoord(), 0.0);
  EXPECT_DOUBLE_EQ(c.radius, 3.0);
}

TEST(circle_of_three, equal_weights_give_the_circumcircle) {
  const auto c = circle_of_three(wp(0, 0), wp(2, 0), wp(0, 2));
  ASSERT_TRUE(c);
  EXPECT_NEAR(c->centre.xcoord(), 1.0, 1e-15);
  EXPECT_NEAR(c->centre.ycoord(), 1.0, 1e-15);
  EXPECT_NEAR(c->radius, std::sqrt(2.0), 1e-15);
  EXPECT_FALSE(circle_of_three(wp(0, 0), wp(1, 1), wp(3, 3)));  // collinear
}

TEST(circle_of_three, weighted_centre_is_at_equal_weighted_distance) {
  std::mt19937 gen(7);
  std::uniform_real_distribution<double> coordinate(-10, 10), weight(0.5, 3);
  int found = 0;
  for (int trial = 0; trial < 200; ++trial) {
    const weighted_point a = wp(coordinate(gen), coordinate(gen), weight(gen));
    const weighted_point b = wp(coordinate(gen), coordinate(gen), weight(gen));
    const weighted_point c = wp(coordinate(gen), coordinate(gen), weight(gen));
    const auto circle = circle_of_three(a, b, c);
    if (!circle) continue;
    ++found;
    for (const weighted_point& p : {a, b, c})
      EXPECT_NEAR(weighted_distance(*circle, p), circle->radius, 1e-9 * (1 + circle->radius));
  }
  EXPECT_GT(found, 60);  // with unequal weights the Apollonius circles often miss each other
}

// The smallest circle through two or three of the points that contains all of them, by trying
// every pair (as a diameter) and every triple (circumcircle).
weighted_circle brute_force_circle(const std::vector<weighted_point>& p) {
  weighted_circle best{point(), 1e300};
  auto try_circle = [&](double cx, double cy, double r) {
    for (const weighted_point& q : p)
      if (testing::l2(q.x - cx, q.y - cy) > r * (1 + 1e-12)) return;
    if (r < best.radius) best = {point(cx, cy), r};
  };
  for (std::size_t i = 0; i < p.size(); ++i)
    for (std::size_t j = i + 1; j < p.size(); ++j) {
      try_circle((p[i].x + p[j].x) / 2, (p[i].y + p[j].y) / 2,
                 testing::l2(p[i].x - p[j].x, p[i].y - p[j].y) / 2);
      for (std::size_t k = j + 1; k < p.size(); ++k) {
        const double bx = p[j].x - p[i].x, by = p[j].y - p[i].y;
        const double cx = p[k].x - p[i].x, cy = p[k].y - p[i].y;
        const double d = 2 * (bx * cy - by * cx);
        if (d == 0) continue;
        const double ux = (cy * (bx * bx + by * by) - by * (cx * cx + cy * cy)) / d;
        const double uy = (bx * (cx * cx + cy * cy) - cx * (bx * bx + by * by)) / d;
        try_circle(p[i].x + ux, p[i].y + uy, testing::l2(ux, uy));
      }
    }
  return best;
}

void expect_smallest_circle(const facilities& f, const std::vector<weighted_point>& candidates,
                            unsigned seed) {
  facilities solved = f;
  const double r = solved.l2_v1_max(true);
  ASSERT_EQ(solved.optima().size(), 1u);
  const location c = solved.optima().front();
  EXPECT_EQ(c.weight(0), 0.0);
  const weighted_circle expected = brute_force_circle(candidates);
  EXPECT_NEAR(r, expected.radius, 1e-3) << seed;
  EXPECT_NEAR(testing::x_of(c), expected.centre.xcoord(), 0.05) << seed;
  EXPECT_NEAR(testing::y_of(c), expected.centre.ycoord(), 0.05) << seed;
  for (const location& l : f)
    EXPECT_LE(testing::l2(l.coordinate(0) - testing::x_of(c), l.coordinate(1) - testing::y_of(c)),
              r + 0.001 + 1e-9);
}

std::vector<weighted_point> all_points(const facilities& f) {
  std::vector<weighted_point> p;
  for (const location& l : f) p.push_back(wp(l.coordinate(0), l.coordinate(1)));
  return p;
}

TEST(l2_v1_max, random_sets_match_the_brute_force_circle) {
  unsigned seed = 0;
  for (int n : {2, 3, 4, 5, 8, 13, 30, 60}) {
    for (int repeat = 0; repeat < 12; ++repeat) {
      facilities f = testing::random_problem(++seed, n, 100.0, 1.0, 1.0);
      expect_smallest_circle(f, all_points(f), seed);
    }
  }
}

// Far more locations than any fixed support array would hold: the smallest circle is that of the
// hull's corners, which the brute force can afford.
TEST(l2_v1_max, many_locations_match_the_circle_of_the_hull) {
  for (unsigned seed = 100; seed < 104; ++seed) {
    facilities f = testing::random_problem(seed, 5000, 100.0, 1.0, 1.0);
    std::vector<point> points;
    for (const location& l : f) points.emplace_back(l.coordinate(0), l.coordinate(1));
    std::vector<weighted_point> hull;
    for (const point& p : convex_hull(points)) hull.push_back(wp(p.xcoord(), p.ycoord()));
    expect_smallest_circle(f, hull, seed);
  }
}

TEST(l2_v1_max, collinear_locations_keep_the_extreme_ones) {
  facilities f;
  f.push_back(at(1, 0));
  f.push_back(at(0, 0));
  f.push_back(at(5, 0));
  EXPECT_DOUBLE_EQ(f.l2_v1_max(true), 2.5);
  EXPECT_EQ(f.optima().front(), location(2.0, 1.0, 2.5, 0.0, 0.0));
}

TEST(l2_v1_max, weighted_center_matches_the_grid) {
  for (unsigned seed = 1; seed <= 10; ++seed) {
    facilities f = testing::random_problem(seed, 9, 100.0, 1.0, 4.0);
    const double r = f.l2_v1_max(true);
    const double x = testing::x_of(f.optima().front()), y = testing::y_of(f.optima().front());
    auto objective = [&](double px, double py) {
      return testing::max_objective(f, testing::l2, px, py);
    };
    EXPECT_NEAR(objective(x, y), r, 1e-3) << seed;
    EXPECT_LE(r, testing::grid_minimum(objective, x, y, 0.5) + 1e-3) << seed;
    EXPECT_LE(r, testing::grid_minimum(objective, x, y, 0.001) + 1e-3) << seed;
  }
}

TEST(l2_v1_max, duplicate_with_a_larger_weight_lends_it_to_the_support) {
  facilities f;
  f.push_back(at(0, 0, 1));
  f.push_back(at(10, 0, 3));
  f.push_back(at(10, 0, 1));
  // Start with (0,0) and the last (10,0) of weight 1: centre 5; the duplicate of weight 3 is
  // outside and raises the support's weight, and the weighted meeting point is 7.5.
  EXPECT_DOUBLE_EQ(f.l2_v1_max(true), 7.5);
  EXPECT_EQ(f.optima().front(), location(2.0, 1.0, 7.5, 0.0, 0.0));
}

TEST(l2_v1_max, one_location_is_its_own_center) {
  facilities f;
  f.push_back(at(3, 4, 2));
  EXPECT_DOUBLE_EQ(f.l2_v1_max(true), 0.0);
  EXPECT_EQ(f.optima().front(), location(2.0, 1.0, 3.0, 4.0, 0.0));
}

}  // namespace
}  // namespace mero
