#include "kernel/polygon.h"

#include <cmath>
#include <numbers>
#include <random>

#include "integer_geometry.h"
#include "kernel/geometry_texts.h"
#include "test_support.h"

namespace mero {
namespace {

std::vector<point> square() { return {point(0, 0), point(2, 0), point(2, 2), point(0, 2)}; }

TEST(polygon, segments_close_the_ring) {
  polygon p(square());
  EXPECT_EQ(p.size(), 4);
  ASSERT_EQ(p.segments().size(), 4u);
  EXPECT_EQ(p.segments()[1], segment(point(2, 0), point(2, 2)));
  EXPECT_EQ(p.segments()[3], segment(point(0, 2), point(0, 0)));
  EXPECT_EQ(p.area(), 4.0);
  std::vector<point> corners = square();
  std::list<point> as_list(corners.begin(), corners.end());
  EXPECT_EQ(polygon(as_list).vertices(), square());
}

TEST(polygon, clockwise_input_is_turned_round_unless_kept) {
  std::vector<point> clockwise = {point(0, 0), point(0, 2), point(2, 2), point(2, 0)};
  polygon turned(clockwise);
  EXPECT_EQ(turned.vertices(),
            (std::vector<point>{point(2, 0), point(2, 2), point(0, 2), point(0, 0)}));
  EXPECT_EQ(turned.area(), 4.0);
  EXPECT_EQ(turned.segments()[0], segment(point(2, 0), point(2, 2)));
  polygon kept(clockwise, polygon::NO_CHECK, true);
  EXPECT_EQ(kept.vertices(), clockwise);
  EXPECT_EQ(kept.area(), -4.0);
  // An L shape: area 3 by counting unit squares.
  polygon l({point(0, 0), point(2, 0), point(2, 1), point(1, 1), point(1, 2), point(0, 2)});
  EXPECT_EQ(l.area(), 3.0);
}

TEST(polygon, simplicity_of_hand_made_chains) {
  std::vector<point> bowtie = {point(0, 0), point(2, 2), point(2, 0), point(0, 2)};
  EXPECT_FALSE(polygon(bowtie).is_simple());
  EXPECT_FALSE(polygon(bowtie).is_weakly_simple());
  EXPECT_KERNEL_ERROR(polygon(bowtie, polygon::SIMPLE), "POLYGON: POLYGON is not simple");
  EXPECT_KERNEL_ERROR(polygon(bowtie, polygon::WEAKLY_SIMPLE),
                      "POLYGON: POLYGON is not weakly simple");
  // Two triangles touching at (1,1) without crossing there.
  std::vector<point> touching = {point(0, 0), point(1, 1), point(2, 0),
                                 point(2, 2), point(1, 1), point(0, 2)};
  EXPECT_FALSE(polygon(touching).is_simple());
  EXPECT_TRUE(polygon(touching).is_weakly_simple());
  EXPECT_EQ(polygon(touching, polygon::WEAKLY_SIMPLE).size(), 6);
  EXPECT_KERNEL_ERROR(polygon(touching, polygon::SIMPLE), texts::polygon_not_simple);
  EXPECT_TRUE(polygon(square(), polygon::SIMPLE).is_simple());
  EXPECT_FALSE(polygon({point(0, 0), point(1, 0), point(2, 0)}).is_simple());  // flat
  EXPECT_FALSE(polygon({point(0, 0), point(1, 0), point(1, 0), point(1, 1)}).is_simple());
  EXPECT_FALSE(polygon({point(0, 0), point(2, 0), point(1, 0), point(1, 1)}).is_simple());
  EXPECT_FALSE(polygon({point(0, 0), point(1, 1)}).is_simple());
  EXPECT_FALSE(polygon({point(0, 0), point(1, 1)}).is_weakly_simple());
  // A vertex on a non-adjacent edge.
  EXPECT_FALSE(
      polygon({point(0, 0), point(4, 0), point(4, 4), point(2, 0), point(0, 4)}).is_simple());
}

// The definition of simplicity, pair by pair, on exact integers.
bool simple_by_definition(const std::vector<testing::int_segment>& s) {
  std::size_t n = s.size();
  for (std::size_t i = 0; i < n; ++i) {
    for (std::size_t j = i + 1; j < n; ++j) {
      bool adjacent = j == i + 1 || (i == 0 && j == n - 1);
      if (!adjacent) {
        if (testing::meet(s[i], s[j])) return false;
        continue;
      }
      const auto& first = j == i + 1 ? s[i] : s[j];  // first ends where second starts
      const auto& second = j == i + 1 ? s[j] : s[i];
      bool trivial = (first[0] == first[2] && first[1] == first[3]) ||
                     (second[0] == second[2] && second[1] == second[3]);
      // Collinear arms pointing the same way from the shared vertex overlap.
      std::int64_t ax = first[0] - first[2], ay = first[1] - first[3];
      std::int64_t bx = second[2] - second[0], by = second[3] - second[1];
      if (trivial || (ax * by - ay * bx == 0 && ax * bx + ay * by > 0)) return false;
    }
  }
  return true;
}

bool crossing_free(const std::vector<testing::int_segment>& s) {
  for (std::size_t i = 0; i < s.size(); ++i)
    for (std::size_t j = i + 1; j < s.size(); ++j) {
      const auto &a = s[i], &b = s[j];
      if (testing::sign_of_turn(a[0], a[1], a[2], a[3], b[0], b[1]) *
                  testing::sign_of_turn(a[0], a[1], a[2], a[3], b[2], b[3]) <
              0 &&
          testing::sign_of_turn(b[0], b[1], b[2], b[3], a[0], a[1]) *
                  testing::sign_of_turn(b[0], b[1], b[2], b[3], a[2], a[3]) <
              0)
        return false;
    }
  return true;
}

struct random_chain {
  std::vector<point> vertices;
  std::vector<testing::int_segment> segments;
};

random_chain make_chain(std::mt19937& random, int n, int span) {
  std::uniform_int_distribution<int> coord(0, span);
  random_chain c;
  std::vector<std::pair<int, int>> xy;
  for (int i = 0; i < n; ++i) xy.emplace_back(coord(random), coord(random));
  for (int i = 0; i < n; ++i) {
    auto [x1, y1] = xy[i];
    auto [x2, y2] = xy[(i + 1) % n];
    c.vertices.emplace_back(x1, y1);
    c.segments.push_back({x1, y1, x2, y2});
  }
  return c;
}

TEST(polygon, simplicity_agrees_with_the_definition_on_random_chains) {
  std::mt19937 random(11);
  int simple = 0, weak = 0, neither = 0;
  for (int trial = 0; trial < 20000; ++trial) {
    random_chain c = make_chain(random, 3 + trial % 5, 4);
    polygon p(c.vertices, polygon::NO_CHECK, true);
    bool expected_simple = simple_by_definition(c.segments);
    bool expected_weak = crossing_free(c.segments);
    ASSERT_EQ(p.is_simple(), expected_simple) << p;
    ASSERT_EQ(p.is_weakly_simple(), expected_weak) << p;
    simple += expected_simple;
    weak += expected_weak && !expected_simple;
    neither += !expected_weak;
  }
  EXPECT_GT(simple, 1000);
  EXPECT_GT(weak, 1000);
  EXPECT_GT(neither, 1000);
}

TEST(polygon, side_of_hand_placed_points) {
  polygon sq(square());
  EXPECT_EQ(sq.side_of(point(1, 1)), 1);
  EXPECT_EQ(sq.side_of(point(2, 1)), 0);
  EXPECT_EQ(sq.side_of(point(0, 0)), 0);
  EXPECT_EQ(sq.side_of(point(3, 1)), -1);
  EXPECT_TRUE(sq.contains(point(1, 2)));
  EXPECT_FALSE(sq.contains(point(1, 1)));
  // Rays through vertices of a diamond.
  polygon diamond({point(1, 0), point(2, 1), point(1, 2), point(0, 1)});
  EXPECT_TRUE(diamond.inside(point(0.5, 1)));
  EXPECT_TRUE(diamond.outside(point(-1, 1)));
  EXPECT_TRUE(diamond.outside(point(-1, 0)));
  EXPECT_TRUE(diamond.outside(point(-1, 2)));
  // The notch of an L is outside.
  polygon l({point(0, 0), point(2, 0), point(2, 1), point(1, 1), point(1, 2), point(0, 2)});
  EXPECT_TRUE(l.outside(point(1.5, 1.5)));
  EXPECT_TRUE(l.inside(point(0.5, 1.5)));
  EXPECT_TRUE(l.inside(point(1.5, 0.5)));
}

// Winding number by summing the turning angles seen from p: 2 pi inside a simple polygon, 0
// outside.
bool inside_by_winding(const std::vector<point>& v, const point& p) {
  double total = 0.0;
  for (std::size_t i = 0; i < v.size(); ++i) {
    vector a = v[i] - p, b = v[(i + 1) % v.size()] - p;
    total += std::atan2(a[0] * b[1] - a[1] * b[0], a * b);
  }
  return std::fabs(total) > std::numbers::pi;
}

TEST(polygon, side_of_agrees_with_winding_on_random_simple_polygons) {
  std::mt19937 random(5);
  std::uniform_int_distribution<int> quarter(-4, 24);
  int inside = 0, boundary = 0, outside = 0;
  for (int trial = 0; trial < 3000; ++trial) {
    random_chain c = make_chain(random, 3 + trial % 6, 5);
    if (!simple_by_definition(c.segments)) continue;
    polygon p(c.vertices);
    for (int k = 0; k < 20; ++k) {
      // Query points on a grid of quarters; scaled by 4 the boundary test is exact on integers.
      int qx = quarter(random), qy = quarter(random);
      point q(qx / 4.0, qy / 4.0);
      bool on = false;
      for (auto s : c.segments) {
        for (auto& x : s) x *= 4;
        on = on || testing::on_segment(s, qx, qy);
      }
      int expected = on ? 0 : (inside_by_winding(c.vertices, q) ? 1 : -1);
      ASSERT_EQ(p.side_of(q), expected) << p << " " << q;
      (expected > 0 ? inside : expected == 0 ? boundary : outside)++;
    }
  }
  EXPECT_GT(inside, 500);
  EXPECT_GT(boundary, 100);
  EXPECT_GT(outside, 500);
}

TEST(polygon, crossings_with_segments_and_lines) {
  polygon sq(square());
  EXPECT_EQ(sq.intersection(segment(point(-1, 1), point(3, 1))),
            (std::vector<point>{point(2, 1), point(0, 1)}));
  // Through two corners: each corner once.
  EXPECT_EQ(sq.intersection(segment(point(-1, -1), point(3, 3))),
            (std::vector<point>{point(0, 0), point(2, 2)}));
  // Overlapping the bottom edge: the overlap's ends.
  EXPECT_EQ(sq.intersection(segment(point(1, 0), point(3, 0))),
            (std::vector<point>{point(2, 0), point(1, 0)}));
  EXPECT_TRUE(sq.intersection(segment(point(0.5, 0.5), point(1.5, 1.5))).empty());
  EXPECT_EQ(sq.intersection(line(point(-5, 0), point(5, 0))),
            (std::vector<point>{point(0, 0), point(2, 0)}));
  EXPECT_EQ(sq.intersection(line(point(1, -5), point(1, 5))),
            (std::vector<point>{point(1, 0), point(1, 2)}));
}

TEST(polygon, moves_keep_shape_and_order) {
  polygon sq(square());
  polygon moved = sq.translate(1.0, -1.0);
  EXPECT_EQ(moved.vertices()[2], point(3, 1));
  EXPECT_EQ(moved.area(), 4.0);
  EXPECT_EQ(sq.translate(vector(1.0, -1.0)).vertices(), moved.vertices());
  polygon turned = sq.rotate(point(1, 1), std::numbers::pi / 2);
  EXPECT_NEAR(turned.vertices()[0].xcoord(), 2.0, 1e-15);
  EXPECT_NEAR(turned.vertices()[0].ycoord(), 0.0, 1e-15);
  EXPECT_NEAR(turned.area(), 4.0, 1e-14);
}

}  // namespace
}  // namespace mero
