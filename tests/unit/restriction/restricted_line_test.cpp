// The restricted sum lines against brute force: on random instances whose unrestricted line cuts a
// convex forbidden polygon, the solver's value must equal the least value over every line through
// a location and a vertex, or two vertices, that leaves the whole polygon on one side, and must
// not be above the least value over a fine fan of supporting lines. Distances are recomputed here
// from the normal form of the line.

#include <algorithm>
#include <cmath>
#include <random>

#include "gauge/polygauge.h"
#include "kernel/convex_hull.h"
#include "planar/planar_fixtures.h"
#include "restriction/restriction.h"
#include "restriction/restriction_fixtures.h"

namespace mero {
namespace {

using testing::at;

// The block norm of these tests (p = 0): a symmetric hexagon as unit ball.
const std::vector<point> hexagon{{2, 0}, {1, 1.5}, {-1, 1.5}, {-2, 0}, {-1, -1.5}, {1, -1.5}};
const std::vector<polygauge>& hexagon_gauge() {
  static const std::vector<polygauge> gauges{polygauge(hexagon)};
  return gauges;
}

// Weighted sum of the distances in norm p (2, 1, -1 for the maximum, 0 for the hexagon, or another
// p >= 1) from the line through (x1, y1) and (x2, y2): |n.(c - a)| over the dual norm of the
// normal n, for the hexagon its support function max over the corners e of n.e.
double line_objective(const facilities& f, double x1, double y1, double x2, double y2, int p) {
  const double nx = std::fabs(y1 - y2), ny = std::fabs(x2 - x1);
  double dual = 0.0;
  if (p == 0)
    for (const point& e : hexagon)
      dual = std::max(dual, (y1 - y2) * e.xcoord() + (x2 - x1) * e.ycoord());
  else if (p == 1)
    dual = std::max(nx, ny);
  else if (p == -1)
    dual = nx + ny;
  else {
    const double q = p / (p - 1.0);
    dual = std::pow(std::pow(nx, q) + std::pow(ny, q), 1.0 / q);
  }
  double sum = 0.0;
  for (const location& l : f) {
    const double cx = l.coordinate(0) - x1, cy = l.coordinate(1) - y1;
    sum += l.weight(0) * std::fabs((y1 - y2) * cx + (x2 - x1) * cy) / dual;
  }
  return sum;
}

double value_of_optima(const facilities& f, int p) {
  const location& a = f.optima_view().front();
  const location& b = f.optima_view().back();
  return line_objective(f, a.coordinate(0), a.coordinate(1), b.coordinate(0), b.coordinate(1), p);
}

// Signed area test of c against the line a b, scaled by the length of a b.
double side(const point& a, const point& b, const point& c) {
  const double cross = (b.xcoord() - a.xcoord()) * (c.ycoord() - a.ycoord()) -
                       (b.ycoord() - a.ycoord()) * (c.xcoord() - a.xcoord());
  return cross / a.distance(b);
}

// True when no vertex lies clearly on either side of the line through a and b (so both sides are
// touched): the line cuts the polygon.
bool cuts(const std::vector<point>& polygon_vertices, const point& a, const point& b) {
  bool left = false, right = false;
  for (const point& v : polygon_vertices) {
    const double s = side(a, b, v);
    left = left || s > 1e-9;
    right = right || s < -1e-9;
  }
  return left && right;
}

double best_touching_pair(const facilities& f, const std::vector<point>& v, int p) {
  std::vector<point> ends(v);
  for (const location& l : f)
    if (polygon(v).outside(point(l))) ends.emplace_back(l);
  double best = 1e300;
  for (std::size_t i = 0; i < ends.size(); ++i)
    for (std::size_t j = 0; j < v.size(); ++j) {
      if (ends[i] == v[j] || cuts(v, ends[i], v[j])) continue;
      best = std::min(best, line_objective(f, ends[i].xcoord(), ends[i].ycoord(), v[j].xcoord(),
                                           v[j].ycoord(), p));
    }
  return best;
}

// The two supporting lines of the polygon for each of `steps` directions in [0, pi).
double best_supporting_line(const facilities& f, const std::vector<point>& v, int p, int steps) {
  double best = 1e300;
  for (int s = 0; s < steps; ++s) {
    const double t = 3.141592653589793 * s / steps, dx = std::cos(t), dy = std::sin(t);
    const auto normal = [&](const point& q) { return -dy * q.xcoord() + dx * q.ycoord(); };
    const auto [lo, hi] = std::minmax_element(
        v.begin(), v.end(), [&](const point& a, const point& b) { return normal(a) < normal(b); });
    for (const point& q : {*lo, *hi})
      best = std::min(
          best, line_objective(f, q.xcoord(), q.ycoord(), q.xcoord() + dx, q.ycoord() + dy, p));
  }
  return best;
}

std::vector<point> convex_around(std::mt19937& gen, const point& c) {
  return testing::convex_around(gen, c, 3.0, 20.0, 3, 6);
}

restriction_list one_polygon(const std::vector<point>& v) {
  restriction_list list;
  list.push_back(std::make_unique<restr_polygon>(v));
  list.front()->set_forbidden_inside();
  return list;
}

using unrestricted_solver = double (*)(facilities&);
using restricted_solver = double (*)(facilities&, const restriction_list&);

struct norm_case {
  const char* name;
  int p;
  unrestricted_solver plain;
  restricted_solver restricted;
};

const norm_case norm_cases[] = {
    {"l2", 2, [](facilities& f) { return f.L_l2_sum_M3(); },
     [](facilities& f, const restriction_list& r) { return f.L_RkonvPoly_l2_sum(r); }},
    {"l3", 3, [](facilities& f) { return f.L_lp_sum_M3(3); },
     [](facilities& f, const restriction_list& r) { return f.L_RkonvPoly_lp_sum(r, 3); }},
    {"l1", 1, [](facilities& f) { return f.L_l1_sum_M3(); },
     [](facilities& f, const restriction_list& r) { return f.L_RkonvPoly_l1_sum(r); }},
    {"linf", -1, [](facilities& f) { return f.L_linf_sum_M3(); },
     [](facilities& f, const restriction_list& r) { return f.L_RkonvPoly_linf_sum(r); }},
    {"block", 0, [](facilities& f) { return f.L_block_sum_M3(hexagon_gauge(), {0}); },
     [](facilities& f, const restriction_list& r) {
       return f.L_RkonvPoly_block_sum(r, hexagon_gauge(), {0});
     }},
};

TEST(RestrictedLine, BlockedLineMatchesBruteForceOverTouchingLines) {
  for (const norm_case& c : norm_cases)
    for (unsigned seed = 1; seed <= 10; ++seed) {
      std::mt19937 gen(seed);
      facilities f = testing::random_problem(seed, 8);
      facilities plain = f;
      const double z = c.plain(plain);
      const point a(plain.optima_view().front()), b(plain.optima_view().back());
      const std::vector<point> v = convex_around(gen, a + (b - a) * 0.5);
      const double value = c.restricted(f, one_polygon(v));
      ASSERT_EQ(f.optima_view().size(), 2u) << c.name << " seed " << seed;
      const double brute = best_touching_pair(f, v, c.p);
      EXPECT_NEAR(value, brute, 1e-9 * std::max(1.0, brute)) << c.name << " seed " << seed;
      EXPECT_NEAR(value_of_optima(f, c.p), value, 1e-9 * std::max(1.0, value)) << c.name;
      const point o1(f.optima_view().front()), o2(f.optima_view().back());
      EXPECT_FALSE(cuts(v, o1, o2)) << c.name << " seed " << seed;
      EXPECT_GE(value, z - 1e-9) << c.name << " seed " << seed;
      EXPECT_LE(value, best_supporting_line(f, v, c.p, 20000) + 1e-9) << c.name << " " << seed;
    }
}

// A far square, a square with a side parallel to y = 0, the diamond cut by y = 0 in every norm,
// and the errors of a circle first and of an empty file are shown end to end by
// tests/cli/restricted_line.t.
TEST(RestrictedLine, HandCases) {
  // (0,0), (10,0), (5,1) of weight 1: unrestricted, the best line is y = 0 with value 1.
  facilities f = testing::problem({at(0, 0), at(10, 0), at(5, 1)});
  // The triangle stands on (4, 0): the line y = 0 meets it in that one point. It is kept as it
  // is: through (0,0) and (10,0), not the equally good tangent over (4,0).
  EXPECT_DOUBLE_EQ(f.L_RkonvPoly_l2_sum(one_polygon({{4, 0}, {3, -2}, {7, -3}})), 1.0);
  EXPECT_EQ(f.optima_view().back().coordinate(0), 10.0);
  EXPECT_REPORT(f.L_RkonvPoly_lp_sum(one_polygon({{4, 0}, {5, 1}, {6, 0}}), 0), 1360,
                "facilities::L_lp_sum_M3(): p must be at least 1, or -1 for the maximum norm.");
  // One location leaves no line.
  facilities one = testing::problem({at(1, 1)});
  EXPECT_EQ(one.L_RkonvPoly_l2_sum(one_polygon({{0, 0}, {0, 2}, {2, 2}, {2, 0}})), 1e50);
  EXPECT_TRUE(one.optima_view().empty());
}

}  // namespace
}  // namespace mero
