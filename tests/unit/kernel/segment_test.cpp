#include "kernel/segment.h"

#include <algorithm>
#include <cmath>
#include <random>

#include "integer_geometry.h"
#include "kernel/line.h"
#include "test_support.h"

namespace mero {
namespace {

TEST(segment, measures_and_exact_containment) {
  EXPECT_EQ(segment(point(1.0, 3.0), point(4.0, 9.0)).y_proj(10.0), 21.0);  // y = 2x + 1
  EXPECT_DOUBLE_EQ(segment(point(), point(-1.0, 1.0)).angle(), 3 * std::atan(1.0));
  // No tolerance: 0.1 + 0.2 lies just beyond 0.3.
  segment s(point(0.0, 0.0), point(0.3, 0.0));
  EXPECT_TRUE(s.contains(point(0.3, 0.0)));
  EXPECT_FALSE(s.contains(point(0.1 + 0.2, 0.0)));
}

// Distance of p from the closed segment s.
double gap(const segment& s, const point& p) {
  double along = ((p.xcoord() - s.xcoord1()) * s.dx() + (p.ycoord() - s.ycoord1()) * s.dy()) /
                 (s.dx() * s.dx() + s.dy() * s.dy());
  along = s.is_trivial() ? 0.0 : std::clamp(along, 0.0, 1.0);
  return std::hypot(s.xcoord1() + along * s.dx() - p.xcoord(),
                    s.ycoord1() + along * s.dy() - p.ycoord());
}

bool is_end(const segment& s, const point& p) { return p == s.source() || p == s.target(); }

// The point given for a common point of two segments: the trivial segment's own point, else the
// first of this segment's ends that is also an end of the other, else the crossing of the two
// lines, which the lines themselves give bit for bit. A line meets a segment unless both ends
// lie strictly on one side.
TEST(segment, segments_and_lines_agree_with_exact_integer_tests) {
  std::mt19937 random(7);
  std::uniform_int_distribution<int> coord(-4, 4);
  int crossings = 0, shared_ends = 0;
  for (int trial = 0; trial < 20000; ++trial) {
    testing::int_segment s, t;
    for (auto& c : s) c = coord(random);
    for (auto& c : t) c = coord(random);
    segment a(point(s[0], s[1]), point(s[2], s[3])), b(point(t[0], t[1]), point(t[2], t[3]));
    int qx = coord(random), qy = coord(random);
    ASSERT_EQ(a.contains(point(qx, qy)), testing::on_segment(s, qx, qy)) << a << " " << qx;
    bool expected = testing::meet(s, t);
    point p(99, 99), q(99, 99);
    ASSERT_EQ(a.intersection(b), expected) << a << " " << b;
    ASSERT_EQ(a.intersection(b, p), expected) << a << " " << b;
    if (!a.is_trivial()) {
      bool hits = testing::turn(s, t[0], t[1]) * testing::turn(s, t[2], t[3]) <= 0;
      ASSERT_EQ(line(a).intersection(b, q), hits) << a << " " << b;
      EXPECT_TRUE(hits ? gap(b, q) < 1e-9 && line(a).distance(q) < 1e-9 : q == point(99, 99))
          << a << " " << b;
    }
    if (!expected) {
      EXPECT_EQ(p, point(99, 99));
    } else if (a.is_trivial() || b.is_trivial()) {
      EXPECT_EQ(p, a.is_trivial() ? a.source() : b.source());
    } else if (is_end(b, a.source()) || is_end(b, a.target())) {
      EXPECT_EQ(p, is_end(b, a.source()) ? a.source() : a.target());
      ++shared_ends;
    } else if (testing::turn(s, t[0], t[1]) == 0 && testing::turn(s, t[2], t[3]) == 0) {
      // An overlap of collinear segments: the lines' slopes are equal.
      EXPECT_FALSE(std::isfinite(p.xcoord()) && std::isfinite(p.ycoord())) << a << " " << b;
    } else {
      EXPECT_TRUE(gap(a, p) < 1e-9 && gap(b, p) < 1e-9) << a << " " << b << " " << p;
      ASSERT_TRUE(line(a).intersection(line(b), q));
      EXPECT_EQ(q, p);
      ++crossings;
    }
  }
  EXPECT_GT(crossings, 1000);
  EXPECT_GT(shared_ends, 100);
}

}  // namespace
}  // namespace mero
