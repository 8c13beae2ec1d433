#include "kernel/segment.h"

#include <algorithm>
#include <cmath>
#include <random>

#include "integer_geometry.h"
#include "test_support.h"

namespace mero {
namespace {

TEST(segment, measures) {
  segment s(point(1.0, 1.0), point(4.0, 5.0));
  EXPECT_EQ(s.dx(), 3.0);
  EXPECT_EQ(s.dy(), 4.0);
  EXPECT_EQ(s.length(), 5.0);
  segment t(point(1.0, 3.0), point(3.0, 7.0));  // y = 2x + 1
  EXPECT_EQ(t.slope(), 2.0);
  EXPECT_EQ(t.y_abs(), 1.0);
  EXPECT_EQ(t.y_proj(10.0), 21.0);
  EXPECT_TRUE(segment(point(2.0, 0.0), point(2.0, 5.0)).is_vertical());
  EXPECT_TRUE(segment(point(0.0, 5.0), point(2.0, 5.0)).is_horizontal());
  EXPECT_DOUBLE_EQ(segment(point(), point(-1.0, 1.0)).angle(), 3 * std::atan(1.0));
}

TEST(segment, trivial_segments) {
  segment s(point(2.0, 3.0), point(2.0, 3.0));
  EXPECT_TRUE(s.is_trivial());
  EXPECT_EQ(s.length(), 0.0);
  EXPECT_TRUE(s.contains(point(2.0, 3.0)));
  EXPECT_FALSE(s.contains(point(2.0, 3.5)));
  point p;
  EXPECT_TRUE(s.intersection(segment(point(0.0, 0.0), point(4.0, 6.0)), p));
  EXPECT_EQ(p, point(2.0, 3.0));
  p = point(9.0, 9.0);
  EXPECT_TRUE(segment(point(0.0, 0.0), point(4.0, 6.0)).intersection(s, p));
  EXPECT_EQ(p, point(2.0, 3.0));
  EXPECT_TRUE(s.intersection(s));
  EXPECT_FALSE(s.intersection(segment(point(2.0, 4.0), point(2.0, 4.0))));
}

TEST(segment, default_segment_meets_only_what_contains_the_origin) {
  segment origin;
  EXPECT_TRUE(origin.is_trivial());
  EXPECT_EQ(origin.source(), point());
  point p(5.0, 5.0);
  EXPECT_TRUE(origin.intersection(segment(point(-1.0, -1.0), point(1.0, 1.0)), p));
  EXPECT_EQ(p, point());
  EXPECT_TRUE(origin.intersection(segment(point(0.0, 0.0), point(0.0, 3.0))));
  EXPECT_FALSE(origin.intersection(segment(point(1.0, 1.0), point(2.0, 2.0))));
  EXPECT_FALSE(origin.intersection(segment(point(-1.0, 1.0), point(1.0, 1.0))));
  EXPECT_FALSE(segment(point(1.0, -1.0), point(3.0, 1.0)).intersection(origin));
}

TEST(segment, contains_tests_line_and_range) {
  segment s(point(0.0, 0.0), point(4.0, 2.0));
  EXPECT_TRUE(s.contains(point(0.0, 0.0)));
  EXPECT_TRUE(s.contains(point(4.0, 2.0)));
  EXPECT_TRUE(s.contains(point(2.0, 1.0)));
  EXPECT_FALSE(s.contains(point(6.0, 3.0)));    // on the line, beyond the end
  EXPECT_FALSE(s.contains(point(-2.0, -1.0)));  // before the start
  EXPECT_FALSE(s.contains(point(2.0, 1.5)));
  // Exact: 0.1 + 0.2 lies just beyond 0.3.
  segment t(point(0.0, 0.0), point(0.3, 0.0));
  EXPECT_TRUE(t.contains(point(0.3, 0.0)));
  EXPECT_FALSE(t.contains(point(0.1 + 0.2, 0.0)));
  EXPECT_FALSE(t.intersection(segment(point(0.1 + 0.2, 0.0), point(0.1 + 0.2, 1.0))));
}

TEST(segment, crossing_points_against_hand_values) {
  point p;
  EXPECT_TRUE(segment(point(0, 0), point(2, 2)).intersection(segment(point(0, 2), point(2, 0)), p));
  EXPECT_EQ(p, point(1.0, 1.0));
  // This segment vertical: x from it, y from the other line y = x / 2.
  EXPECT_TRUE(
      segment(point(1, -1), point(1, 3)).intersection(segment(point(0, 0), point(4, 2)), p));
  EXPECT_EQ(p, point(1.0, 0.5));
  // The other vertical: an end of it touching the interior of this one (a T).
  EXPECT_TRUE(segment(point(0, 0), point(2, 0)).intersection(segment(point(1, 0), point(1, 5)), p));
  EXPECT_EQ(p, point(1.0, 0.0));
  // y = x + 1 and y = -2x + 7 cross at (2, 3).
  EXPECT_TRUE(
      segment(point(0, 1), point(5, 6)).intersection(segment(point(1, 5), point(4, -1)), p));
  EXPECT_EQ(p, point(2.0, 3.0));
  p = point(7.0, 7.0);
  EXPECT_FALSE(
      segment(point(0, 0), point(1, 1)).intersection(segment(point(2, 0), point(3, -4)), p));
  EXPECT_EQ(p, point(7.0, 7.0));  // untouched
  EXPECT_FALSE(segment(point(0, 0), point(0, 1)).intersection(segment(point(1, 0), point(1, 1))));
}

TEST(segment, shared_ends_are_taken_exactly) {
  point p;
  EXPECT_TRUE(segment(point(0, 0), point(1, 1)).intersection(segment(point(1, 1), point(2, 0)), p));
  EXPECT_EQ(p, point(1.0, 1.0));
  // Collinear overlap with a shared end gives that end.
  EXPECT_TRUE(segment(point(0, 0), point(2, 0)).intersection(segment(point(0, 0), point(3, 0)), p));
  EXPECT_EQ(p, point(0.0, 0.0));
  // Both ends shared: this segment's start is tested first.
  EXPECT_TRUE(segment(point(0, 0), point(1, 0)).intersection(segment(point(1, 0), point(0, 0)), p));
  EXPECT_EQ(p, point(0.0, 0.0));
  EXPECT_TRUE(segment(point(5, 5), point(1, 0)).intersection(segment(point(1, 0), point(0, 0)), p));
  EXPECT_EQ(p, point(1.0, 0.0));
}

TEST(segment, collinear_overlap_without_shared_end) {
  segment a(point(0, 0), point(2, 0));
  segment b(point(1, 0), point(3, 0));
  EXPECT_TRUE(a.intersection(b));
  point p;
  EXPECT_TRUE(a.intersection(b, p));
  EXPECT_FALSE(std::isfinite(p.xcoord()));  // equal slopes: the formula divides by zero
  EXPECT_FALSE(a.intersection(segment(point(2.5, 0), point(3, 0))));
  EXPECT_TRUE(segment(point(0, 0), point(0, 4)).intersection(segment(point(0, 1), point(0, 2))));
  EXPECT_FALSE(segment(point(0, 0), point(0, 4)).intersection(segment(point(0, 5), point(0, 6))));
}

// Distance of p from the segment's supporting line, plus how far it lies outside the segment's
// bounding box.
double line_distance(const segment& s, const point& p) {
  double cross = s.dx() * (p.ycoord() - s.ycoord1()) - s.dy() * (p.xcoord() - s.xcoord1());
  double outside = std::max({0.0, std::min(s.xcoord1(), s.xcoord2()) - p.xcoord(),
                             p.xcoord() - std::max(s.xcoord1(), s.xcoord2()),
                             std::min(s.ycoord1(), s.ycoord2()) - p.ycoord(),
                             p.ycoord() - std::max(s.ycoord1(), s.ycoord2())});
  return std::fabs(cross) / std::hypot(s.dx(), s.dy()) + outside;
}

TEST(segment, agrees_with_exact_integer_test_on_random_segments) {
  std::mt19937 random(7);
  std::uniform_int_distribution<int> coord(-4, 4);
  int crossings = 0;
  for (int trial = 0; trial < 20000; ++trial) {
    testing::int_segment s, t;
    for (auto& c : s) c = coord(random);
    for (auto& c : t) c = coord(random);
    segment a(point(s[0], s[1]), point(s[2], s[3]));
    segment b(point(t[0], t[1]), point(t[2], t[3]));
    bool expected = testing::meet(s, t);
    ASSERT_EQ(a.intersection(b), expected) << a << " " << b;
    point p;
    bool collinear = testing::sign_of_turn(s[0], s[1], s[2], s[3], t[0], t[1]) == 0 &&
                     testing::sign_of_turn(s[0], s[1], s[2], s[3], t[2], t[3]) == 0;
    if (!expected || collinear || a.is_trivial() || b.is_trivial()) continue;
    ASSERT_TRUE(a.intersection(b, p));
    // The crossing point lies on both segments up to rounding.
    ++crossings;
    EXPECT_LT(line_distance(a, p), 1e-9);
    EXPECT_LT(line_distance(b, p), 1e-9);
  }
  EXPECT_GT(crossings, 1000);
}

}  // namespace
}  // namespace mero
