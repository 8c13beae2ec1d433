#include "gauge/gauge_test_support.h"
#include "line/line_geometry.h"
#include "line_fixtures.h"

namespace mero::testing {
namespace {

const std::vector<point> hexagon_points{{2, 0}, {1, 1.5}, {-1, 1.5}, {-2, 0}, {-1, -1.5}, {1, -1.5}};
const std::vector<point> octagon_points{{3, 0},  {2, 2},   {0, 3},  {-2, 2},
                                        {-3, 0}, {-2, -2}, {0, -3}, {2, -2}};

distance polygon_gauge(const std::vector<point>& corners) {
  return [corners](double dx, double dy) { return gauge_by_facets(corners, dx, dy); };
}

// The dual of the gauge at the normal n: the support function max over corners of n.e.
std::function<double(double, double)> support(const std::vector<point>& corners) {
  return [corners](double nx, double ny) {
    double value = -1e50;
    for (const point& e : corners) value = std::max(value, nx * e.xcoord() + ny * e.ycoord());
    return value;
  };
}

weighted_point wp(double x, double y) { return {x, y, 1.0}; }

TEST(line_block, distance_is_the_least_gauge_distance_to_a_point_of_the_line) {
  const std::vector<std::vector<point>> gauges{
      hexagon_points, octagon_points, rectilinear_gauge().extreme_points(),
      chebyshev_gauge().extreme_points(), {{2, 0}, {-1, 1}, {-1, -1}}};
  unsigned state = 7;
  auto next = [&state] {
    state = state * 1103515245u + 12345u;
    return static_cast<double>((state >> 8) % 2001) / 100.0 - 10.0;
  };
  for (const std::vector<point>& corners : gauges) {
    const distance gamma = polygon_gauge(corners);
    // The measure runs from the location to the line: gamma(y - c), so the fixture's vector
    // from the line to the point is turned round.
    const distance towards_line = [gamma](double dx, double dy) { return gamma(-dx, -dy); };
    for (int trial = 0; trial < 40; ++trial) {
      const weighted_point a = wp(next(), next()), b = wp(next(), next()), c = wp(next(), next());
      const double expected = norm_distance(towards_line, {a.x, a.y}, {b.x - a.x, b.y - a.y},
                                            {c.x, c.y});
      EXPECT_NEAR(block_line_distance(a, b, c, corners), expected, 1e-7 * (1.0 + expected))
          << corners.size() << " corners, trial " << trial;
    }
  }
}

TEST(line_block, distance_hand_cases) {
  const std::vector<point> square = chebyshev_gauge().extreme_points();
  const std::vector<point> diamond = rectilinear_gauge().extreme_points();
  // The line y = x through the origin: (3, 0) is 3 away rectilinearly (straight up) and 1.5
  // in the maximum norm (to (1.5, 1.5)).
  EXPECT_DOUBLE_EQ(block_line_distance(wp(0, 0), wp(1, 1), wp(3, 0), diamond), 3.0);
  EXPECT_DOUBLE_EQ(block_line_distance(wp(0, 0), wp(1, 1), wp(3, 0), square), 1.5);
  // A horizontal line: the horizontal rays of the diamond are parallel and skipped.
  EXPECT_DOUBLE_EQ(block_line_distance(wp(0, 2), wp(5, 2), wp(7, -1), diamond), 3.0);
  // A point on the line, and one just off it by less than the tolerance.
  EXPECT_EQ(block_line_distance(wp(0, 0), wp(1, 1), wp(4, 4), diamond), 0.0);
  EXPECT_EQ(block_line_distance(wp(0, 0), wp(0, 1), wp(5e-11, 3), diamond), 0.0);
  EXPECT_GT(block_line_distance(wp(0, 0), wp(0, 1), wp(5e-10, 3), diamond), 0.0);
}

// The rectilinear gauge gives the rectilinear lines, the Chebyshev gauge the maximum-norm ones.
TEST(line_block, l1_and_linf_gauges_give_the_norm_lines) {
  const std::vector<polygauge> gauges{rectilinear_gauge(), chebyshev_gauge()};
  for (unsigned seed = 1; seed <= 5; ++seed) {
    facilities f = random_problem(200 + seed, 5 + static_cast<int>(seed));
    const double l1_sum = f.L_l1_sum_M3(), linf_sum = f.L_linf_sum_M3();
    EXPECT_NEAR(f.L_block_sum_M3(gauges, {0}), l1_sum, 1e-9 * l1_sum) << seed;
    EXPECT_NEAR(reported_objective(f, l1, true), l1_sum, 1e-7 * l1_sum) << seed;
    EXPECT_NEAR(f.L_block_sum_M3(gauges, {1, 0}), linf_sum, 1e-9 * linf_sum) << seed;
    EXPECT_NEAR(reported_objective(f, linf, true), linf_sum, 1e-7 * linf_sum) << seed;
    const double l1_max = f.L_l1_max_M4();
    EXPECT_NEAR(f.L_block_max_M4(gauges, {0}), l1_max, 1e-9 * l1_max) << seed;
    EXPECT_NEAR(reported_objective(f, l1, false), l1_max, 1e-7 * l1_max) << seed;
  }
}

// Against brute force: for the sum all lines through two locations measured by the edge formula
// of the gauge, for both a fine grid of directions with the exact offset (no direction does
// better, and the grid comes close).
TEST(line_block, sum_and_max_match_the_brute_force_over_pairs_and_directions) {
  for (const std::vector<point>* corners : {&hexagon_points, &octagon_points}) {
    const std::vector<polygauge> gauges{polygauge(*corners)};
    const distance gamma = polygon_gauge(*corners);
    for (unsigned seed = 1; seed <= 4; ++seed) {
      facilities f = random_problem(300 + seed, 6 + static_cast<int>(seed));
      const double value = f.L_block_sum_M3(gauges, {0});
      EXPECT_NEAR(value, brute_pair_sum(f, gamma), 1e-7 * value) << seed;
      EXPECT_NEAR(reported_objective(f, gamma, true), value, 1e-7 * value) << seed;
      const double grid = direction_grid(f, support(*corners), true, 20000);
      EXPECT_LE(value, grid + 1e-9) << seed;
      EXPECT_GT(value, grid - 0.05 * value) << seed;
      facilities g = random_problem(400 + seed, 5 + static_cast<int>(seed));
      const double max = g.L_block_max_M4(gauges, {0});
      EXPECT_NEAR(reported_objective(g, gamma, false), max, 1e-7 * max) << seed;
      const double max_grid = direction_grid(g, support(*corners), false, 20000);
      EXPECT_LE(max, max_grid + 1e-9) << seed;
      EXPECT_GT(max, max_grid - 0.01 * max) << seed;
    }
  }
}

TEST(line_block, hand_cases) {
  const std::vector<polygauge> gauges{rectilinear_gauge(), polygauge(hexagon_points)};
  // All on a line parallel to a fundamental direction: 0.0, and the first pair stays.
  facilities row = problem({at(0, 1, 2), at(3, 1), at(-2, 1), at(7, 1)});
  EXPECT_EQ(row.L_block_sum_M3(gauges, {1}), 0.0);
  EXPECT_EQ(row.optima(), (std::list<location>{at(0, 1, 1), at(3, 1, 1)}));
  // Two equal locations: the pair is skipped, and the line along the first extreme point of the
  // gauge through the first location is taken.
  facilities twice = problem({at(1, 1, 3), at(1, 1, 2)});
  EXPECT_EQ(twice.L_block_sum_M3(gauges, {1}), 0.0);
  EXPECT_EQ(twice.optima(), (std::list<location>{at(1, 1, 1), at(3, 1, 1)}));
  // Three corners of the unit square, equal weights, rectilinear: the diagonal through (1,0) and
  // (0,1) leaves (0,0) at 1, as do the sides; the first pair in order wins.
  facilities corner = problem({at(0, 0), at(1, 0), at(0, 1)});
  EXPECT_DOUBLE_EQ(corner.L_block_sum_M3(gauges, {0}), 1.0);
  EXPECT_EQ(corner.optima(), (std::list<location>{at(0, 0, 1), at(1, 0, 1)}));
  // Max: the rectilinear half-height 0.5; fewer than three locations give no line.
  EXPECT_DOUBLE_EQ(corner.L_block_max_M4(gauges, {0}), 0.5);
  facilities pair = problem({at(0, 0), at(1, 2)});
  EXPECT_EQ(pair.L_block_max_M4(gauges, {0}), 1e50);
  EXPECT_TRUE(pair.optima().empty());
}

}  // namespace
}  // namespace mero::testing
