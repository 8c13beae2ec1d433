// Barrier distances against hand values and against a shortest path on a visibility graph
// computed here (for convex barriers the two agree), and the barrier median against the free
// optimum, an independent recomputation of its value, and a grid.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>

#include "planar/planar_fixtures.h"
#include "restriction/barrier_problem.h"
#include "restriction/restriction.h"
#include "restriction/restriction_fixtures.h"

namespace mero {
namespace {

using testing::at;

constexpr double pi = 3.141592653589793;

// True when some of 500 sample points strictly between u and w lies in the open set.
template <typename Inside>
bool blocked_by_sampling(const point& u, const point& w, Inside inside) {
  for (int s = 1; s < 500; ++s) {
    const double t = s / 500.0;
    if (inside(point(u.xcoord() + t * (w.xcoord() - u.xcoord()),
                     u.ycoord() + t * (w.ycoord() - u.ycoord()))))
      return true;
  }
  return false;
}

// Shortest path from a to p over the given corners, where blocked(u, w) says that the straight
// step is not allowed: Floyd's method on the small graph.
template <typename Blocked>
double visibility_path(const point& a, const point& p, const std::vector<point>& corners,
                       Blocked blocked) {
  std::vector<point> nodes = {a};
  nodes.insert(nodes.end(), corners.begin(), corners.end());
  nodes.push_back(p);
  const std::size_t n = nodes.size();
  const double none = std::numeric_limits<double>::infinity();
  std::vector<std::vector<double>> d(n, std::vector<double>(n, none));
  for (std::size_t i = 0; i < n; ++i)
    for (std::size_t j = 0; j < n; ++j)
      if (i == j || !blocked(nodes[i], nodes[j])) d[i][j] = nodes[i].distance(nodes[j]);
  for (std::size_t k = 0; k < n; ++k)
    for (std::size_t i = 0; i < n; ++i)
      for (std::size_t j = 0; j < n; ++j) d[i][j] = std::min(d[i][j], d[i][k] + d[k][j]);
  return d[0][n - 1];
}

// Strictly inside the polygon and more than 1e-7 from every edge, so that samples along an edge
// do not count whatever the rounding.
bool deep_inside(const std::vector<point>& v, const point& q) {
  return polygon(v).inside(q) && testing::off_ring(v, q) > 1e-7;
}

TEST(BarrierDistance, CircleByHand) {
  const circle_barrier c(point(0, 0), 1.0);
  // Symmetric: two tangents of length sqrt(3) and the arc of 60 degrees between them.
  EXPECT_NEAR(c.distance(point(-2, 0), point(2, 0)), 2 * std::sqrt(3.0) + pi / 3, 1e-9);
  EXPECT_DOUBLE_EQ(c.distance(point(-2, 0), point(0, 2)), std::sqrt(8.0));  // not blocked
  EXPECT_EQ(c.distance(point(0.5, 0), point(3, 0)), 1e9);
  EXPECT_EQ(c.barrier_objective({at(-2, 0)}, point(1, 0)), 1e13);
  // Random blocked pairs: tangent lengths plus the shorter arc between the tangent points.
  std::mt19937 gen(7);
  std::uniform_real_distribution<double> angle(0.0, 2 * pi), radius(1.2, 6.0);
  int tried = 0;
  while (tried < 200) {
    const double ta = angle(gen), ra = radius(gen), tp = angle(gen), rp = radius(gen);
    const point a(ra * std::cos(ta), ra * std::sin(ta)), p(rp * std::cos(tp), rp * std::sin(tp));
    if (!blocked_by_sampling(a, p, [](const point& q) { return q.distance(point(0, 0)) < 1.0; }))
      continue;
    ++tried;
    const double turn = std::fmod(tp - ta + 4 * pi, 2 * pi);
    const double bent = std::acos(1.0 / ra) + std::acos(1.0 / rp);
    const double arc = std::min(turn, 2 * pi - turn) - bent;
    const double expected = std::sqrt(ra * ra - 1) + std::sqrt(rp * rp - 1) + arc;
    EXPECT_NEAR(c.distance(a, p), expected, 1e-9) << ta << " " << ra << " " << tp << " " << rp;
  }
}

TEST(BarrierDistance, LineAgainstVisibilityGraph) {
  const line_barrier l(point(0, -1), point(0, 2));
  EXPECT_NEAR(l.distance(point(-1, 0), point(1, 0)), 2 * std::sqrt(2.0), 1e-12);
  EXPECT_DOUBLE_EQ(l.distance(point(-1, 3), point(1, 3)), 2.0);
  std::mt19937 gen(3);
  std::uniform_real_distribution<double> coordinate(-5.0, 5.0);
  const segment s(l.start, l.end);
  auto blocked = [&](const point& u, const point& w) {
    // A proper crossing of the open barrier: the ends of u w on strictly opposite sides of it
    // and the barrier's ends on strictly opposite sides of u w.
    return orientation(l.start, l.end, u) * orientation(l.start, l.end, w) < 0 &&
           orientation(u, w, l.start) * orientation(u, w, l.end) < 0;
  };
  for (int k = 0; k < 300; ++k) {
    const point a(coordinate(gen), coordinate(gen)), p(coordinate(gen), coordinate(gen));
    EXPECT_NEAR(l.distance(a, p), visibility_path(a, p, {l.start, l.end}, blocked), 1e-9);
  }
}

TEST(BarrierDistance, ConvexPolygonAgainstVisibilityGraph) {
  const polygon_barrier square({{-1, -1}, {-1, 1}, {1, 1}, {1, -1}});
  EXPECT_NEAR(square.distance(point(-3, 0), point(3, 0)), 2 * std::sqrt(5.0) + 2, 1e-12);
  EXPECT_EQ(square.distance(point(-3, 0), point(0, 0.5)), 1e8);
  std::mt19937 gen(11);
  std::uniform_real_distribution<double> coordinate(-40.0, 40.0);
  for (int k = 0; k < 12; ++k) {
    const std::vector<point> v = testing::convex_around(gen, point(0, 0), 3.0, 15.0, 3, 6);
    const polygon_barrier b(v);
    auto blocked = [&](const point& u, const point& w) {
      return blocked_by_sampling(u, w, [&](const point& q) { return deep_inside(v, q); });
    };
    const polygon shape(v);
    for (int j = 0; j < 10; ++j) {
      const point a(coordinate(gen), coordinate(gen)), p(coordinate(gen), coordinate(gen));
      if (!shape.outside(a) || !shape.outside(p)) continue;
      EXPECT_NEAR(b.distance(a, p), visibility_path(a, p, v, blocked), 1e-7) << k << " " << j;
    }
  }
}

// Sixteen locations on a circle of radius 9 about (5, 0), weights 1, 2, 3 in turn.
facilities ring() {
  facilities f;
  for (int k = 0; k < 16; ++k) {
    const double t = 2 * pi * k / 16 + 0.1;
    f.push_back(at(5 + 9 * std::cos(t), 9 * std::sin(t), 1 + k % 3));
  }
  return f;
}

restriction_list just(std::unique_ptr<restriction> r) {
  restriction_list list;
  list.push_back(std::move(r));
  return list;
}

TEST(BarrierMedian, VisibleOptimumStands) {
  facilities f = ring(), free = ring();
  const double z = free.l2_sum(0, 0.001, true);
  const double v = f.barr_l2_sum(just(std::make_unique<circle_barrier>(point(40, 40), 2.0)));
  EXPECT_DOUBLE_EQ(v, z);
  EXPECT_EQ(point(f.optima_view().front()), point(free.optima_view().front()));
  EXPECT_EQ(f.optima_view().front().weight(0), 0.0);
}

// The value at q with distances from the visibility graph of this file.
double independent_value(const facilities& f, const std::vector<point>& v, const point& q) {
  auto blocked = [&](const point& u, const point& w) {
    return blocked_by_sampling(u, w, [&](const point& s) { return deep_inside(v, s); });
  };
  double sum = 0.0;
  for (const location& l : f) sum += l.weight(0) * visibility_path(point(l), q, v, blocked);
  return sum;
}

TEST(BarrierMedian, BlockedOptimumGivesAFeasiblePointOfItsValue) {
  const std::vector<point> v = {{4, -2}, {4, 2}, {7, 2}, {7, -2}};
  facilities f = ring(), free = ring();
  const double z = free.l2_sum(0, 0.001, true);
  ASSERT_TRUE(polygon(v).inside(point(free.optima_view().front())));
  const double value = f.barr_l2_sum(just(std::make_unique<polygon_barrier>(v)));
  const point q(f.optima_view().front());
  EXPECT_FALSE(polygon(v).inside(q));
  EXPECT_LT(value, 1e10);
  EXPECT_GE(value, z - 1e-6);
  EXPECT_NEAR(value, independent_value(f, v, q), 1e-6 * value);
  // The heuristic against a grid of step 0.25 over [-5, 15] x [-10, 10]: logged, not asserted.
  const polygon_barrier b(v);
  double grid = 1e300;
  for (int i = 0; i <= 80; ++i)
    for (int j = 0; j <= 80; ++j) {
      const point g(-5 + 0.25 * i, -10 + 0.25 * j);
      if (!polygon(v).inside(g)) grid = std::min(grid, b.barrier_objective(f, g));
    }
  std::printf("barrier median: heuristic %.6f, grid minimum %.6f, free %.6f\n", value, grid, z);
}

TEST(BarrierMedian, ForbiddenRegionBecomesItsBarrier) {
  facilities f = ring(), g = ring();
  const std::vector<point> v = {{4, -2}, {4, 2}, {7, 2}, {7, -2}};
  const double as_region = f.barr_l2_sum(just(std::make_unique<restr_polygon>(v)));
  const double as_barrier = g.barr_l2_sum(just(std::make_unique<polygon_barrier>(v)));
  EXPECT_DOUBLE_EQ(as_region, as_barrier);
}

TEST(BarrierMedian, CellCodes) {
  // Locations left, right and above a vertical barrier; the point right of it is seen by the
  // right and the top location; the left one goes round over the lower end, on the right of its
  // way; from (-1, 0.5) the right one goes over the upper end, again on its right.
  const std::vector<location> three = {at(-2, 0), at(2, 0), at(0, 5)};
  const line_barrier l(point(0, -1), point(0, 1));
  SBO sbo(three, l, {});
  EXPECT_EQ(sbo.signature(point(1, -0.5)), (std::vector<int>{-1, 0, 0}));
  EXPECT_EQ(sbo.cell_code(point(1, -0.5)), 2 * 9);
  EXPECT_EQ(sbo.cell_code(point(0.5, 3)), 0);
  EXPECT_EQ(sbo.signature(point(-1, 0.5)), (std::vector<int>{0, -1, 0}));
  EXPECT_EQ(sbo.cell_code(point(-1, 0.5)), 2 * 3);
}

TEST(BarrierMedian, ShadowSegmentsRunFromTheTangentPointsAwayFromTheLocation) {
  // A vertical barrier inside the square of the locations. From (-4,-4) the shadow behind the end
  // (0,1) runs along (4,5) to the top side at (2.4,4), that behind (0,-1) along (4,3) to the
  // right side at (4,2); the other corners mirror this.
  const std::vector<location> corners = {at(-4, -4), at(4, -4), at(4, 4), at(-4, 4)};
  const line_barrier l(point(0, -1), point(0, 1));
  const std::vector<segment> shadows = SBO(corners, l, {}).cpt_shdw_segs();
  ASSERT_EQ(shadows.size(), 8u);
  std::vector<std::pair<double, double>> first;
  for (int k = 0; k < 2; ++k) {
    EXPECT_EQ(shadows[k].source().xcoord(), 0.0);
    first.emplace_back(shadows[k].target().xcoord(), shadows[k].target().ycoord());
  }
  std::sort(first.begin(), first.end());
  EXPECT_NEAR(first[0].first, 2.4, 1e-12);
  EXPECT_NEAR(first[0].second, 4.0, 1e-12);
  EXPECT_NEAR(first[1].first, 4.0, 1e-12);
  EXPECT_NEAR(first[1].second, 2.0, 1e-12);
  // Every segment continues the way from its location past the tangent point.
  auto a = corners.begin();
  for (std::size_t k = 0; k < shadows.size(); ++k) {
    if (k > 0 && k % 2 == 0) ++a;
    const point t = shadows[k].source(), e = shadows[k].target(), from(*a);
    const double ux = t.xcoord() - from.xcoord(), uy = t.ycoord() - from.ycoord();
    const double vx = e.xcoord() - t.xcoord(), vy = e.ycoord() - t.ycoord();
    EXPECT_NEAR(ux * vy - uy * vx, 0.0, 1e-9) << k;
    EXPECT_GT(ux * vx + uy * vy, 0.0) << k;
  }
}

// The run with too few candidates and the messages and errors of the barrier median are shown
// end to end by tests/cli/barrier.t.

}  // namespace
}  // namespace mero
