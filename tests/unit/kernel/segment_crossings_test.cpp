#include "kernel/segment_crossings.h"

#include <algorithm>
#include <random>
#include <set>
#include <utility>

#include "integer_geometry.h"
#include "test_support.h"

namespace mero::testing {
namespace {

segment to_segment(const int_segment& s) {
  return segment(point(static_cast<double>(s[0]), static_cast<double>(s[1])),
                 point(static_cast<double>(s[2]), static_cast<double>(s[3])));
}

// Small integer coordinates make shared ends, collinear overlaps, trivial segments and several
// segments through one point common.
std::vector<int_segment> random_segments(unsigned seed, int n, int range) {
  std::mt19937 gen(seed);
  std::uniform_int_distribution<int> c(0, range);
  std::vector<int_segment> out;
  for (int i = 0; i < n; ++i) out.push_back({c(gen), c(gen), c(gen), c(gen)});
  return out;
}

bool collinear(const int_segment& s, const int_segment& t) {
  const bool s_point = s[0] == s[2] && s[1] == s[3], t_point = t[0] == t[2] && t[1] == t[3];
  return !s_point && !t_point && turn(s, t[0], t[1]) == 0 && turn(s, t[2], t[3]) == 0;
}

TEST(segment_crossings, pairs_agree_with_all_pairs_of_an_exact_test) {
  for (unsigned seed = 1; seed <= 30; ++seed) {
    const std::vector<int_segment> ints = random_segments(seed, 40, seed % 2 ? 6 : 40);
    std::vector<segment> segments;
    for (const int_segment& s : ints) segments.push_back(to_segment(s));
    const std::vector<segment_crossing> found = segment_crossings(segments);

    std::set<std::pair<std::size_t, std::size_t>> expected, got;
    for (std::size_t i = 0; i < ints.size(); ++i)
      for (std::size_t j = i + 1; j < ints.size(); ++j)
        if (meet(ints[i], ints[j])) expected.insert({i, j});
    for (const segment_crossing& c : found) {
      got.insert({c.first, c.second});
      ASSERT_LT(c.first, c.second);
      // The point lies on both segments (exactly for shared ends and overlaps).
      const int_segment& s = ints[c.first];
      const int_segment& t = ints[c.second];
      if (collinear(s, t)) {
        EXPECT_TRUE(segments[c.first].contains(c.where) && segments[c.second].contains(c.where));
      } else {
        for (const segment& u : {segments[c.first], segments[c.second]}) {
          const double cross =
              u.dx() * (c.where.ycoord() - u.ycoord1()) - u.dy() * (c.where.xcoord() - u.xcoord1());
          EXPECT_NEAR(cross, 0.0, 1e-9 * (1.0 + u.length() * u.length())) << seed;
        }
      }
    }
    EXPECT_EQ(got, expected) << "seed " << seed;
    EXPECT_TRUE(std::is_sorted(found.begin(), found.end(), [](const auto& a, const auto& b) {
      return a.where.xcoord() < b.where.xcoord() ||
             (a.where.xcoord() == b.where.xcoord() && a.where.ycoord() < b.where.ycoord());
    }));
  }
}

TEST(segment_crossings, overlap_ends_filter_and_distinct_points_by_hand) {
  // Two rays along the x-axis pointing at each other: they overlap between their starts.
  const std::vector<segment> s{segment(point(0, 0), point(10, 0)),
                               segment(point(2, 0), point(-8, 0))};
  const std::vector<segment_crossing> overlap = segment_crossings(s);
  ASSERT_EQ(overlap.size(), 2u);
  EXPECT_EQ(overlap[0].where, point(0, 0));
  EXPECT_EQ(overlap[1].where, point(2, 0));
  // Three segments through (1, 1); the first two come from the same owner and are not tested.
  const std::vector<segment> t{segment(point(0, 0), point(2, 2)), segment(point(0, 2), point(2, 0)),
                               segment(point(1, 0), point(1, 3)),
                               segment(point(5, 5), point(6, 5))};
  const auto c =
      segment_crossings(t, [](std::size_t i, std::size_t j) { return !(i == 0 && j == 1); });
  ASSERT_EQ(c.size(), 2u);
  EXPECT_EQ(c[0].first, 0u);
  EXPECT_EQ(c[0].second, 2u);
  EXPECT_EQ(c[1].first, 1u);
  EXPECT_EQ(crossing_points(c), std::vector<point>{point(1, 1)});
  EXPECT_TRUE(segment_crossings({}).empty());
}

}  // namespace
}  // namespace mero::testing
