// The restricted medians and centers against a brute-force minimum over a fine sampling of the
// feasible region (a grid, plus the boundary of the forbidden region sampled densely), on random
// instances with one convex region around the unrestricted optimum: the case where the methods
// are exact.

#include <algorithm>
#include <cmath>
#include <functional>
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
  const std::vector<point> edges = testing::ring_samples(region, 3000);
  out.insert(out.end(), edges.begin(), edges.end());
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

// One solver on random instances with one convex region, a box or a polygon, around the optimum
// of its unrestricted form.
struct restricted_case {
  const char* name;
  std::function<facilities(unsigned seed)> instance;
  std::function<void(facilities&)> free;  // leaves the unrestricted optimum first in optima
  std::function<double(facilities&, const restriction_list&)> solve;
  testing::distance d;
  bool is_max, squared;
  unsigned seed0;
  unsigned box_every, rectangle_every;  // a box, given as a rectangle, on seeds divisible by these
  double slack;     // in boundary steps (the Lipschitz constant is taken into account)
  double relative;  // the iterative lp median may lie this fraction off the minimum
};

bool every(unsigned k, unsigned seed) { return k != 0 && seed % k == 0; }

facilities seven(unsigned seed) { return testing::random_problem(seed, 7); }
facilities six(unsigned seed) { return testing::random_problem(seed, 6); }

const restricted_case restricted_cases[] = {
    {"l1", seven, [](facilities& f) { f.l1_sum(0, true); },
     [](facilities& f, const restriction_list& r) { return f.in_l1_sum(r); }, testing::l1, false,
     false, 0, 3, 3, 1, 0},
    {"linf", seven, [](facilities& f) { f.linf_sum(0, true); },
     [](facilities& f, const restriction_list& r) { return f.in_linf_sum(r); }, testing::linf,
     false, false, 0, 3, 3, 1, 0},
    // The nearest boundary point to the centre of gravity.
    {"l2sqr", six, [](facilities& f) { f.l2sqr_sum(0, true); },
     [](facilities& f, const restriction_list& r) { return f.in_l2sqr_sum(r); }, testing::l2,
     false, true, 100, 2, 2, 200, 0},
    {"lp", six, [](facilities& f) { f.lp_sum(3, 1e-6, 1e-4, 200, 0, true); },
     [](facilities& f, const restriction_list& r) { return f.in_lp_sum(r, 3, 1e-6, 1e-4, 200); },
     testing::lp(3), false, false, 300, 1, 2, 1, 1e-4},
    {"l2 max", [](unsigned s) { return testing::random_problem(s, 6, 1.0, s % 2 ? 1.0 : 5.0); },
     [](facilities& f) { f.l2_v1_max(true); },
     [](facilities& f, const restriction_list& r) { return f.in_l2_max(r); }, testing::l2, true,
     false, 400, 1, 3, 1, 0},
    // The convex linf and l1 centers with equal weights.
    {"linf max", [](unsigned s) { return testing::random_problem(s, 6, 2.0, 2.0); },
     [](facilities& f) { f.linf_max(true); },
     [](facilities& f, const restriction_list& r) { return f.in_convex_linf_max(r); },
     testing::linf, true, false, 500, 0, 0, 1, 0},
    {"l1 max", [](unsigned s) { return testing::random_problem(s, 6, 2.0, 2.0); },
     [](facilities& f) { f.l1_max(true); },
     [](facilities& f, const restriction_list& r) { return f.in_convex_l1_max(r); }, testing::l1,
     true, false, 600, 0, 0, 2, 0},
};

TEST(RestrictedSolvers, MatchBruteForceOnOneConvexRegionAroundTheFreeOptimum) {
  for (const restricted_case& c : restricted_cases)
    for (unsigned seed = c.seed0 + 1; seed <= c.seed0 + 12; ++seed) {
      std::mt19937 gen(seed);
      facilities f = c.instance(seed), plain = f;
      c.free(plain);
      const point centre(plain.optima_view().front());
      const bool box = every(c.box_every, seed);
      const std::vector<point> region = box ? box_around(gen, centre) : convex_around(gen, centre);
      const double v = c.solve(f, one_region(region, box && every(c.rectangle_every, seed), true));
      const double b = brute_minimum(f, c.d, feasible_samples(region, true), c.is_max, c.squared);
      const double weight = c.is_max ? largest_weight(f) : total_weight(f);
      const double slack = weight * 2.0 * c.slack * boundary_step(region);
      if (c.relative > 0) {  // the walk stops near, not at, the boundary minimum
        EXPECT_NEAR(v, b, c.relative * b + slack) << c.name << " seed " << seed;
      } else {
        expect_matches(v, b, slack, c.name, seed);
      }
      if (c.squared) {
        EXPECT_EQ(f.optima_view().size(), 1u) << seed;
      }
      expect_optima_have_value(f, c.d, v, c.is_max, c.squared);
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

// The errors of a circle and of a polygon that is not convex are shown end to end by
// tests/cli/restriction.t.

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
