#include "kernel/convex_hull.h"

#include <algorithm>
#include <random>

#include "test_support.h"

namespace mero {

TEST(convex_hull, degenerate_sets_and_repeated_points) {
  using points = std::vector<point>;
  EXPECT_TRUE(convex_hull({}).empty());
  EXPECT_EQ(convex_hull({point(1, 1), point(1, 1)}), points{point(1, 1)});
  EXPECT_EQ(convex_hull({point(3, 3), point(1, 1), point(2, 2), point(0, 0)}),
            (points{point(0, 0), point(3, 3)}));
  EXPECT_EQ(convex_hull({point(2, 2), point(1, 1), point(0, 2), point(1, 0), point(0, 0),
                         point(2, 0), point(2, 2), point(0, 1)}),
            (points{point(0, 0), point(2, 0), point(2, 2), point(0, 2)}));
}

// Every hull edge has all points on its left or on it, every corner is an input point, and the
// turn at every corner is strictly counter-clockwise.
TEST(convex_hull, random_sets_are_enclosed_counter_clockwise) {
  std::mt19937 gen(3);
  std::uniform_int_distribution<int> coordinate(0, 30);  // small integers: many ties
  for (int trial = 0; trial < 50; ++trial) {
    std::vector<point> input;
    for (int i = 0; i < 60; ++i) input.emplace_back(coordinate(gen), coordinate(gen));
    const std::vector<point> hull = convex_hull(input);
    ASSERT_GE(hull.size(), 3u);
    for (std::size_t i = 0; i < hull.size(); ++i) {
      const point &a = hull[i], &b = hull[(i + 1) % hull.size()];
      EXPECT_EQ(orientation(a, b, hull[(i + 2) % hull.size()]), 1);
      EXPECT_NE(std::find(input.begin(), input.end(), a), input.end());
      for (const point& p : input) EXPECT_GE(orientation(a, b, p), 0);
    }
  }
}

}  // namespace mero
