#include "gauge/polygauge.h"

#include "gauge/gauge_messages.h"
#include "gauge_test_support.h"

namespace mero::testing {
namespace {

namespace msg = gauge_messages;

TEST(polygauge, l1_and_linf_gauges_measure_the_norms) {
  std::mt19937 gen(3);
  std::uniform_real_distribution<double> c(-50.0, 50.0);
  const polygauge l1 = rectilinear_gauge(), linf = chebyshev_gauge();
  for (int i = 0; i < 500; ++i) {
    const point x(c(gen), c(gen)), y(c(gen), c(gen));
    const double dx = y.xcoord() - x.xcoord(), dy = y.ycoord() - x.ycoord();
    EXPECT_NEAR(l1.dist(x, y), std::fabs(dx) + std::fabs(dy), 1e-9);
    EXPECT_NEAR(linf.dist(x, y), std::max(std::fabs(dx), std::fabs(dy)), 1e-9);
  }
  bool interior = true;
  EXPECT_EQ(l1.dist(point(0, 0), point(1, 1)), 2.0);
  EXPECT_EQ(l1.cone_of(point(0, 0), point(1, 1), interior), 4);
  EXPECT_TRUE(interior);
  EXPECT_EQ(l1.dist(point(0, 0), point(1, 0)), 1.0);
  l1.cone_of(point(0, 0), point(1, 0), interior);
  EXPECT_FALSE(interior);
  EXPECT_EQ(linf.dist(point(0, 0), point(1, 1)), 1.0);
  EXPECT_EQ(l1.cone_of(point(2, 2), point(2, 2), interior), 0);
  EXPECT_FALSE(interior);
}

TEST(polygauge, random_gauges_measure_by_their_definition) {
  std::mt19937 gen(11);
  std::uniform_real_distribution<double> c(-20.0, 20.0);
  for (int trial = 0; trial < 40; ++trial) {
    const std::vector<point> ball = random_ball(gen, 3 + trial % 6);
    const polygauge g(ball);
    for (int i = 0; i < 20; ++i) {
      const point x(c(gen), c(gen)), y(c(gen), c(gen));
      const double expected =
          gauge_by_definition(ball, y.xcoord() - x.xcoord(), y.ycoord() - x.ycoord());
      EXPECT_NEAR(g.dist(x, y), expected, 1e-9 * (1.0 + expected)) << trial;
    }
  }
}

TEST(polygauge, triangle_gauge_is_asymmetric) {
  // Cheap towards the east: (2, 0) is on the ball, (-1, 0) on its western edge.
  const std::vector<point> ball{point(2, 0), point(-1, 1), point(-1, -1)};
  const polygauge g(ball);
  EXPECT_DOUBLE_EQ(g.dist(point(0, 0), point(4, 0)), 2.0);
  EXPECT_DOUBLE_EQ(g.dist(point(4, 0), point(0, 0)), 4.0);
  EXPECT_DOUBLE_EQ(g.dist(point(1, 1), point(0, 3)), gauge_by_definition(ball, -1, 2));
}

TEST(polygauge, construction_checks_in_order) {
  EXPECT_REPORT(polygauge({point(0, 1), point(1, 0), point(-1, -1)}), msg::counterclockwise.code,
                msg::counterclockwise.text);
  // The origin lies outside: a gap of more than pi between the first two rays.
  EXPECT_REPORT(polygauge({point(1, 0), point(-1, -0.1), point(0, -1)}), msg::alpha_pi.code,
                msg::alpha_pi.text);
  // Exactly pi fails here and passes the mixed gauge.
  EXPECT_REPORT(polygauge({point(1, 0), point(-1, 0), point(0, -1)}), msg::alpha_pi.code,
                msg::alpha_pi.text);
  EXPECT_EQ(mixgauge({point(1, 0), point(-1, 0), point(0, -1)}, {false, false, false}).cones(), 3);
  // A square with a further point in the middle of an edge.
  EXPECT_REPORT(polygauge({point(1, -1), point(1, 0), point(1, 1), point(-1, 1), point(-1, -1)}),
                msg::not_convex.code, msg::not_convex.text);
  EXPECT_REPORT(polygauge({point(1, 0), point(0, 1)}), msg::not_convex.code, msg::not_convex.text);
  EXPECT_REPORT(polygauge({point(1, 0), point(0, 0), point(0, 1)}), msg::origin_point.code,
                msg::origin_point.text);
}

TEST(polygauge, operations_and_their_checks) {
  const polygauge g({point(2, 0), point(0, 1), point(-1, 1), point(-1, -3)});
  bool interior = true;
  EXPECT_REPORT(g.in_cone(point(), 0, point(1, 1), interior), msg::cone_in_cone.code,
                msg::cone_in_cone.text);
  EXPECT_REPORT(g.fundamental_directions(point(), 5), msg::cone_directions.code,
                msg::cone_directions.text);
  EXPECT_REPORT(g.max(point(), 2), msg::max_index.code, msg::max_index.text);
  EXPECT_REPORT(g.mini(point(), -1), msg::mini_index.code, msg::mini_index.text);
  EXPECT_REPORT(g.max_diff(3), msg::max_diff_index.code, msg::max_diff_index.text);

  EXPECT_EQ(g.fundamental_directions(point(1, 1), 4), std::make_pair(point(0, -2), point(3, 1)));
  // The first of equal coordinates stays: (0,1) and (-1,1) both have y = 1.
  EXPECT_EQ(g.max(point(10, 0), 1), point(10, 1));
  EXPECT_EQ(g.mini(point(), 0), point(-1, 1));
  EXPECT_EQ(g.max_diff(0), 3.0);
  EXPECT_EQ(g.max_diff(1), 4.0);
  EXPECT_DOUBLE_EQ(g.max_length(), std::sqrt(10.0));
  EXPECT_EQ(g.extreme_points(point(1, 2)).back(), point(0, -1));
  const polygauge m = g.moved(point(5, 5));
  EXPECT_EQ(m.dirs()[1].source(), point(5, 5));
  EXPECT_EQ(m.dirs()[1].target(), point(5, 6));
  EXPECT_TRUE(g.in_cone(point(), 4, point(1, -1), interior));
  EXPECT_TRUE(interior);
  EXPECT_TRUE(g.in_cone(point(), 1, point(2, 0), interior));
  EXPECT_FALSE(interior);
  EXPECT_FALSE(g.in_cone(point(), 2, point(1, -1), interior));
}

TEST(mixgauge, drops_inner_round_points_and_checks) {
  // Flags T T T F F: the second and third points are inner points of one arc.
  const mixgauge a({point(1, 0), point(0.7, 0.7), point(0, 1), point(-1, 0.1), point(0, -1)},
                   {true, true, true, false, false});
  EXPECT_EQ(a.cones(), 3);
  EXPECT_EQ(a.extreme_points()[1], point(-1, 0.1));
  EXPECT_EQ(a.conetyps(), (std::vector<bool>{true, false, false}));
  // First and last kept flags true: the last kept entry goes.
  const mixgauge b({point(1, 0), point(0, 1), point(-1, 0), point(0, -1), point(1, -1)},
                   {true, false, false, false, true});
  EXPECT_EQ(b.cones(), 4);
  EXPECT_EQ(b.conetyps(), (std::vector<bool>{true, false, false, false}));

  EXPECT_REPORT(mixgauge({point(1, 0)}, {true, false}), msg::mix_sizes.code, msg::mix_sizes.text);
  EXPECT_REPORT(mixgauge({point(0, 1), point(1, 0), point(-1, -1)}, {false, false, false}),
                msg::mix_counterclockwise.code, msg::mix_counterclockwise.text);
  EXPECT_REPORT(mixgauge({point(1, 0), point(-1, -0.1), point(0, -1)}, {false, false, false}),
                msg::mix_alpha_pi.code, msg::mix_alpha_pi.text);
  EXPECT_REPORT(mixgauge({point(1, -1), point(1, 0), point(1, 1), point(-1, 1), point(-1, -1)},
                         {false, false, false, false, false}),
                msg::mix_not_convex.code, msg::mix_not_convex.text);
}

}  // namespace
}  // namespace mero::testing
