// The restricted medians and centers against a brute-force minimum over a fine sampling of the
// feasible region (a grid, plus the boundary of the forbidden region sampled densely), on random
// instances with one convex region around the unrestricted optimum: the case where the methods
// are exact.

#include <algorithm>
#include <cmath>
#include <random>

#include "kernel/convex_hull.h"
#include "planar/planar_fixtures.h"
#include "restriction/restriction.h"
#include "restriction/restriction_fixtures.h"

namespace mero {
namespace {

using testing::at;
using testing::objective_of;

// A random convex polygon of 5 to 8 corners around c, at distances 5 to 30.
std::vector<point> convex_around(std::mt19937& gen, const point& c) {
  return testing::convex_around(gen, c, 5.0, 30.0, 5, 4);
}

// An axis-parallel rectangle around c, as its four corners.
std::vector<point> box_around(std::mt19937& gen, const point& c) {
  std::uniform_real_distribution<double> reach(3.0, 25.0);
  const double x0 = c.xcoord() - reach(gen), x1 = c.xcoord() + reach(gen);
  const double y0 = c.ycoord() - reach(gen), y1 = c.ycoord() + reach(gen);
  return {{x0, y0}, {x0, y1}, {x1, y1}, {x1, y0}};
}

// The samples: a grid of step 1 over [-30, 130]^2 and 3000 points on each edge of the region.
// keep_out: the samples not strictly inside the region; otherwise those not strictly outside.
std::vector<point> feasible_samples(const std::vector<point>& region, bool keep_out) {
  const polygon shape(region);
  std::vector<point> out;
  for (int i = -30; i <= 130; ++i)
    for (int j = -30; j <= 130; ++j) {
      const point q(i, j);
      if (keep_out ? !shape.inside(q) : !shape.outside(q)) out.push_back(q);
    }
  for (std::size_t k = 0; k < region.size(); ++k) {
    const point& a = region[k];
    const point& b = region[(k + 1) % region.size()];
    for (int s = 0; s <= 3000; ++s) out.push_back(a + (b - a) * (s / 3000.0));
  }
  return out;
}

double brute_minimum(const facilities& f, const testing::distance& d,
                     const std::vector<point>& samples, bool is_max, bool squared = false) {
  double best = 1e300;
  for (const point& q : samples) {
    double v = 0.0;
    for (const location& l : f) {
      const double term = d(l.coordinate(0) - q.xcoord(), l.coordinate(1) - q.ycoord());
      const double weighted = l.weight(0) * (squared ? term * term : term);
      v = is_max ? std::max(v, weighted) : v + weighted;
    }
    best = std::min(best, v);
  }
  return best;
}

double total_weight(const facilities& f) {
  double s = 0.0;
  for (const location& l : f) s += l.weight(0);
  return s;
}

double largest_weight(const facilities& f) {
  double s = 0.0;
  for (const location& l : f) s = std::max(s, l.weight(0));
  return s;
}

restriction_list one_region(const std::vector<point>& v, bool as_rectangle, bool forbidden_inside) {
  restriction_list list;
  if (as_rectangle)
    list.push_back(std::make_unique<restr_rectangle>(v[0], v[1], v[2], v[3]));
  else
    list.push_back(std::make_unique<restr_polygon>(v));
  if (forbidden_inside) list.front()->set_forbidden_inside();
  return list;
}

// Solver value v against the brute-force minimum b: never clearly above it, and below it by no
// more than the sampling step can hide (the boundary step times the Lipschitz constant).
void expect_matches(double v, double b, double slack, const char* what, unsigned seed) {
  EXPECT_LE(v, b + 1e-9 * std::max(1.0, std::fabs(b))) << what << " seed " << seed;
  EXPECT_GE(v, b - slack) << what << " seed " << seed;
}

double boundary_step(const std::vector<point>& region) {
  double longest = 0.0;
  for (std::size_t k = 0; k < region.size(); ++k)
    longest = std::max(longest, region[k].distance(region[(k + 1) % region.size()]));
  return longest / 3000.0;
}

// Each optimum the solver reports has the value it returns.
void expect_optima_have_value(const facilities& f, const testing::distance& d, double v,
                              bool is_max, bool squared = false) {
  for (const location& o : f.optima_view()) {
    const std::vector<point> only = {point(o)};
    EXPECT_NEAR(brute_minimum(f, d, only, is_max, squared), v, 1e-7 * std::max(1.0, v));
  }
}

// One convex region around the unrestricted optimum of the given solver.
void expect_grid_median_matches(double (facilities::*unrestricted)(int, bool),
                                double (facilities::*restricted)(const restriction_list&),
                                const testing::distance& d, const char* what) {
  for (unsigned seed = 1; seed <= 12; ++seed) {
    std::mt19937 gen(seed);
    facilities f = testing::random_problem(seed, 7);
    facilities plain = f;
    (plain.*unrestricted)(0, true);
    const bool rectangle = seed % 3 == 0;
    const point centre(plain.optima_view().front());
    const std::vector<point> region =
        rectangle ? box_around(gen, centre) : convex_around(gen, centre);
    const restriction_list list = one_region(region, rectangle, true);
    const std::vector<point> samples = feasible_samples(region, true);
    const double slack = total_weight(f) * 2.0 * boundary_step(region);
    const double v = (f.*restricted)(list);
    expect_matches(v, brute_minimum(f, d, samples, false), slack, what, seed);
    expect_optima_have_value(f, d, v, false);
  }
}

TEST(RestrictedMedian, L1AndLinfMatchBruteForceOnOneConvexRegion) {
  expect_grid_median_matches(&facilities::l1_sum, &facilities::in_l1_sum, testing::l1, "l1");
  expect_grid_median_matches(&facilities::linf_sum, &facilities::in_linf_sum, testing::linf,
                             "linf");
}

TEST(RestrictedMedian, L2sqrIsTheNearestBoundaryPointToTheCentreOfGravity) {
  for (unsigned seed = 1; seed <= 12; ++seed) {
    std::mt19937 gen(seed + 100);
    facilities f = testing::random_problem(seed + 100, 6);
    const double sx = [&] {
      double s = 0.0;
      for (const location& l : f) s += l.weight(0) * l.coordinate(0);
      return s / total_weight(f);
    }();
    const double sy = [&] {
      double s = 0.0;
      for (const location& l : f) s += l.weight(0) * l.coordinate(1);
      return s / total_weight(f);
    }();
    const bool rectangle = seed % 2 == 0;
    const std::vector<point> region =
        rectangle ? box_around(gen, point(sx, sy)) : convex_around(gen, point(sx, sy));
    const restriction_list list = one_region(region, rectangle, true);
    const std::vector<point> samples = feasible_samples(region, true);
    const double v = f.in_l2sqr_sum(list);
    const double slack = total_weight(f) * 2.0 * 200.0 * boundary_step(region);
    expect_matches(v, brute_minimum(f, testing::l2, samples, false, true), slack, "l2sqr", seed);
    ASSERT_EQ(f.optima_view().size(), 1u);
    expect_optima_have_value(f, testing::l2, v, false, true);
  }
}

// The "out" form: the facility must stand in the region, which lies away from the optimum.
TEST(RestrictedMedian, OutFormsKeepToTheRegion) {
  for (unsigned seed = 1; seed <= 8; ++seed) {
    std::mt19937 gen(seed + 200);
    facilities f = testing::random_problem(seed + 200, 6);
    const std::vector<point> region = convex_around(gen, point(-40.0, 50.0 + seed));
    const restriction_list list = one_region(region, false, false);
    const std::vector<point> samples = feasible_samples(region, false);
    const double slack = total_weight(f) * 2.0 * boundary_step(region);
    facilities g = f, h = f;
    expect_matches(f.in_l1_sum(list), brute_minimum(f, testing::l1, samples, false), slack,
                   "out l1", seed);
    expect_matches(g.in_linf_sum(list), brute_minimum(g, testing::linf, samples, false), slack,
                   "out linf", seed);
    const double v = h.in_l2sqr_sum(list);
    expect_matches(v, brute_minimum(h, testing::l2, samples, false, true),
                   total_weight(h) * 2.0 * 300.0 * boundary_step(region), "out l2sqr", seed);
  }
}

TEST(RestrictedMedian, FeasibleOptimumStandsAndTiesAreNumbered) {
  // Two locations: the l1 median set is the rectangle between them; a region elsewhere leaves
  // it whole.
  facilities f = testing::problem({at(0, 0), at(4, 2)});
  restriction_list far = one_region({{10, 10}, {10, 12}, {12, 12}, {12, 10}}, false, true);
  EXPECT_EQ(f.in_l1_sum(far), 6.0);
  EXPECT_EQ(f.optima_view().size(), 4u);
  // One location at the middle of a square: two nearest feet of equal distance... all four.
  facilities g = testing::problem({at(2, 2)});
  restriction_list square = one_region({{0, 0}, {0, 4}, {4, 4}, {4, 0}}, false, true);
  EXPECT_EQ(g.in_l2sqr_sum(square), 4.0);
  std::vector<double> numbers;
  for (const location& o : g.optima_view()) numbers.push_back(o.weight(0));
  EXPECT_EQ(numbers, (std::vector<double>{0, 1, 2, 3}));
  EXPECT_EQ(g.in_l1_sum(square), 2.0);
  EXPECT_EQ(g.optima_view().size(), 4u);  // (0,2), (4,2), (2,0), (2,4), each once
  restriction_list none;
  EXPECT_KERNEL_ERROR(g.in_l1_sum(none), "dlist::head(): empty list");
}

TEST(RestrictedMedian, LpWalksToTheBoundaryMinimum) {
  for (unsigned seed = 1; seed <= 6; ++seed) {
    std::mt19937 gen(seed + 300);
    facilities f = testing::random_problem(seed + 300, 6);
    facilities unrestricted = f;
    unrestricted.lp_sum(3, 1e-6, 1e-4, 200, 0, true);
    const point centre(unrestricted.optima_view().front());
    const std::vector<point> region = box_around(gen, centre);
    const restriction_list list = one_region(region, seed % 2 == 0, true);
    const double v = f.in_lp_sum(list, 3, 1e-6, 1e-4, 200);
    const double b = brute_minimum(f, testing::lp(3), feasible_samples(region, true), false);
    EXPECT_NEAR(v, b, 1e-4 * b + total_weight(f) * 2.0 * boundary_step(region)) << seed;
    expect_optima_have_value(f, testing::lp(3), v, false);
  }
}

TEST(RestrictedCenter, L2MaxMatchesBruteForceOnAnAxisParallelRectangle) {
  for (unsigned seed = 1; seed <= 12; ++seed) {
    std::mt19937 gen(seed + 400);
    facilities f = testing::random_problem(seed + 400, 6, 1.0, seed % 2 ? 1.0 : 5.0);
    facilities unrestricted = f;
    unrestricted.l2_v1_max(true);
    const std::vector<point> region = box_around(gen, point(unrestricted.optima_view().front()));
    const restriction_list list = one_region(region, seed % 3 == 0, true);
    const double v = f.in_l2_max(list);
    const double slack = largest_weight(f) * 2.0 * boundary_step(region);
    expect_matches(v, brute_minimum(f, testing::l2, feasible_samples(region, true), true), slack,
                   "l2 max", seed);
    expect_optima_have_value(f, testing::l2, v, true);
  }
}

TEST(RestrictedCenter, LinfAndL1MaxMatchBruteForceWithEqualWeights) {
  for (unsigned seed = 1; seed <= 12; ++seed) {
    std::mt19937 gen(seed + 500);
    facilities f = testing::random_problem(seed + 500, 6, 2.0, 2.0);
    facilities unrestricted = f;
    unrestricted.linf_max(true);
    const std::vector<point> region = convex_around(gen, point(unrestricted.optima_view().front()));
    const restriction_list list = one_region(region, false, true);
    const double slack = largest_weight(f) * 2.0 * boundary_step(region);
    const std::vector<point> samples = feasible_samples(region, true);
    facilities g = f;
    const double v = f.in_convex_linf_max(list);
    expect_matches(v, brute_minimum(f, testing::linf, samples, true), slack, "linf max", seed);
    expect_optima_have_value(f, testing::linf, v, true);

    unrestricted = g;
    unrestricted.l1_max(true);
    std::vector<point> l1_region = convex_around(gen, point(unrestricted.optima_view().front()));
    const restriction_list l1_list = one_region(l1_region, false, true);
    const double w = g.in_convex_l1_max(l1_list);
    expect_matches(w, brute_minimum(g, testing::l1, feasible_samples(l1_region, true), true),
                   slack * 2.0, "l1 max", seed);
    expect_optima_have_value(g, testing::l1, w, true);
  }
}

TEST(RestrictedCenter, ErrorsOfTheFigures) {
  facilities f = testing::problem({at(0, 0), at(4, 0), at(2, 3)});
  restriction_list circle_list;
  circle_list.push_back(std::make_unique<restr_circle>(point(2, 1), 3.0));
  EXPECT_REPORT(f.in_l2_max(circle_list), 1411, "Not implemented for this kind of restriction.");
  restriction_list notch;
  notch.push_back(std::make_unique<restr_polygon>(
      std::vector<point>{{-5, -5}, {9, -5}, {9, 9}, {2, 1.5}, {-5, 9}}));
  EXPECT_REPORT(f.in_l2_max(notch), 1405,
                "The restriction for this algorithm must be a convex polyeder");
}

// The linf optima of (0,0), (10,0), (5,1) are the segment (5,-4)-(5,5). A diamond with its
// lowest vertex at (5,-4) contains that end (a vertex is inside) and meets the segment at
// (5,-4) and at its top vertex (5,2): two crossings, so two pieces stand at the value 5, the
// first (5,-4)-(5,-4) numbered 0, the second (5,5)-(5,2) numbered 1.
TEST(RestrictedCenter, LinfSegmentCrossingTheFigureKeepsItsOutsideParts) {
  facilities f = testing::problem({at(0, 0), at(10, 0), at(5, 1)});
  restriction_list list = one_region({{5, -4}, {7, -1}, {5, 2}, {3, -1}}, false, true);
  EXPECT_EQ(f.in_convex_linf_max(list), 5.0);
  const std::vector<point> want = {{5, -4}, {5, -4}, {5, 5}, {5, 2}};
  const std::vector<double> numbers = {0, 0, 1, 1};
  ASSERT_EQ(f.optima_view().size(), 4u);
  auto o = f.optima_view().begin();
  for (std::size_t i = 0; i < 4; ++i, ++o) {
    EXPECT_EQ(point(*o), want[i]) << i;
    EXPECT_EQ(o->weight(0), numbers[i]) << i;
  }
  // Moved away, the segment keeps clear of the figure and stands whole.
  restriction_list apart = one_region({{15, -4}, {17, -1}, {15, 2}, {13, -1}}, false, true);
  EXPECT_EQ(f.in_convex_linf_max(apart), 5.0);
  EXPECT_EQ(f.optima_view().size(), 2u);
}

}  // namespace
}  // namespace mero
