#include "kernel/polygon.h"

#include <cmath>
#include <numbers>
#include <random>

#include "integer_geometry.h"
#include "test_support.h"

namespace mero {
namespace {

using points = std::vector<point>;

const points square{point(0, 0), point(2, 0), point(2, 2), point(0, 2)};

TEST(polygon, orientation_area_and_checked_construction) {
  polygon p(std::list<point>(square.begin(), square.end()));
  EXPECT_EQ(p.segments()[3], segment(point(0, 2), point(0, 0)));  // the closing side
  points clockwise = {point(0, 0), point(0, 2), point(2, 2), point(2, 0)};
  EXPECT_EQ(polygon(clockwise).vertices(),
            (points{point(2, 0), point(2, 2), point(0, 2), point(0, 0)}));
  EXPECT_EQ(polygon(clockwise, polygon::NO_CHECK, true).area(), -4.0);
  // An L shape: three unit squares.
  EXPECT_EQ(polygon({point(0, 0), point(2, 0), point(2, 1), point(1, 1), point(1, 2), point(0, 2)})
                .area(),
            3.0);
  points bowtie = {point(0, 0), point(2, 2), point(2, 0), point(0, 2)};
  EXPECT_KERNEL_ERROR(polygon(bowtie, polygon::WEAKLY_SIMPLE),
                      "POLYGON: POLYGON is not weakly simple");
  // Two triangles touching at (1,1) without crossing there: weakly simple only.
  points touching = {point(0, 0), point(1, 1), point(2, 0), point(2, 2), point(1, 1), point(0, 2)};
  EXPECT_EQ(polygon(touching, polygon::WEAKLY_SIMPLE).size(), 6);
  EXPECT_KERNEL_ERROR(polygon(touching, polygon::SIMPLE), "POLYGON: POLYGON is not simple");
}

// Simple: sides that are not neighbours never meet, neighbours meet only at their shared corner.
bool simple_by_definition(const std::vector<testing::int_segment>& s) {
  std::size_t n = s.size();
  for (std::size_t i = 0; i < n; ++i)
    for (std::size_t j = i + 1; j < n; ++j) {
      bool wrap = i == 0 && j == n - 1;
      const auto& a = wrap ? s[j] : s[i];  // a ends where b starts
      const auto& b = wrap ? s[i] : s[j];
      if (j == i + 1 || wrap
              ? testing::on_segment(a, b[2], b[3]) || testing::on_segment(b, a[0], a[1])
              : testing::meet(a, b))
        return false;
    }
  return true;
}

bool crossing_free(const std::vector<testing::int_segment>& s) {
  for (std::size_t i = 0; i < s.size(); ++i)
    for (std::size_t j = i + 1; j < s.size(); ++j)
      if (testing::cross_properly(s[i], s[j])) return false;
  return true;
}

// Winding number by summing the turning angles seen from p: 2 pi inside a simple polygon, 0
// outside.
bool inside_by_winding(const points& v, const point& p) {
  double total = 0.0;
  for (std::size_t i = 0; i < v.size(); ++i) {
    vector a = v[i] - p, b = v[(i + 1) % v.size()] - p;
    total += std::atan2(a[0] * b[1] - a[1] * b[0], a * b);
  }
  return std::fabs(total) > std::numbers::pi;
}

// Random chains of 3 to 7 corners on a 6 by 6 grid, kept in the given orientation.
TEST(polygon, simplicity_and_sides_agree_with_definitions_on_random_chains) {
  std::mt19937 random(11);
  std::uniform_int_distribution<int> coord(0, 5), quarter(-4, 24);
  int simple = 0, weak = 0, neither = 0, inside = 0, boundary = 0, outside = 0;
  for (int trial = 0; trial < 20000; ++trial) {
    int n = 3 + trial % 5;
    std::vector<std::int64_t> x(n), y(n);
    points v;
    for (int i = 0; i < n; ++i) v.emplace_back(x[i] = coord(random), y[i] = coord(random));
    std::vector<testing::int_segment> sides;
    for (int i = 0; i < n; ++i) sides.push_back({x[i], y[i], x[(i + 1) % n], y[(i + 1) % n]});
    polygon p(v, polygon::NO_CHECK, true);
    bool expected_simple = simple_by_definition(sides), expected_weak = crossing_free(sides);
    ASSERT_EQ(p.is_simple(), expected_simple) << p;
    ASSERT_EQ(p.is_weakly_simple(), expected_weak) << p;
    simple += expected_simple;
    weak += expected_weak && !expected_simple;
    neither += !expected_weak;
    if (!expected_simple) continue;
    for (int k = 0; k < 5; ++k) {
      // Query points on a grid of quarters; scaled by 4 the boundary test is exact on integers.
      int qx = quarter(random), qy = quarter(random);
      point q(qx / 4.0, qy / 4.0);
      bool on = false;
      for (auto s : sides) {
        for (auto& c : s) c *= 4;
        on = on || testing::on_segment(s, qx, qy);
      }
      int expected = on ? 0 : (inside_by_winding(v, q) ? 1 : -1);
      ASSERT_EQ(p.side_of(q), expected) << p << " " << q;
      ASSERT_EQ(p.contains(q), on) << p << " " << q;
      (expected > 0 ? inside : expected == 0 ? boundary : outside)++;
    }
  }
  for (int count : {simple, weak, neither, inside, outside}) EXPECT_GT(count, 1000);
  EXPECT_GT(boundary, 200);
}

TEST(polygon, crossings_with_segments_and_lines) {
  polygon sq(square);
  EXPECT_EQ(sq.intersection(segment(point(-1, 1), point(3, 1))),
            (points{point(2, 1), point(0, 1)}));
  // Through two corners: each corner once.
  EXPECT_EQ(sq.intersection(segment(point(-1, -1), point(3, 3))),
            (points{point(0, 0), point(2, 2)}));
  // Overlapping the bottom side: the overlap's ends.
  EXPECT_EQ(sq.intersection(segment(point(1, 0), point(3, 0))), (points{point(2, 0), point(1, 0)}));
  EXPECT_TRUE(sq.intersection(segment(point(0.5, 0.5), point(1.5, 1.5))).empty());
  EXPECT_EQ(sq.intersection(line(point(1, -5), point(1, 5))), (points{point(1, 0), point(1, 2)}));
}

}  // namespace
}  // namespace mero
