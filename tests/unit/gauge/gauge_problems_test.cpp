#include <random>

#include "gauge/gauge_messages.h"
#include "gauge_test_support.h"
#include "planar/planar_fixtures.h"

namespace mero::testing {
namespace {

namespace msg = gauge_messages;

struct instance {
  std::vector<point> sites;
  std::vector<std::vector<double>> weights;  // per site, one or two columns
  std::vector<std::vector<point>> balls;     // per site
};

facilities problem_of(const instance& in) {
  facilities f;
  for (std::size_t i = 0; i < in.sites.size(); ++i)
    f.push_back(site(in.sites[i].xcoord(), in.sites[i].ycoord(), in.weights[i]));
  return f;
}

std::vector<polygauge> gauges_of(const instance& in) {
  std::vector<polygauge> g;
  for (const auto& b : in.balls) g.emplace_back(b);
  return g;
}

std::vector<int> numbers_of(const instance& in) {
  std::vector<int> n;
  for (std::size_t i = 0; i < in.sites.size(); ++i) n.push_back(static_cast<int>(i));
  return n;
}

instance random_instance(std::mt19937& gen, int n, int columns) {
  std::uniform_real_distribution<double> c(0.0, 10.0), w(1.0, 5.0);
  std::uniform_int_distribution<int> corners(3, 6);
  instance in;
  for (int i = 0; i < n; ++i) {
    in.sites.emplace_back(c(gen), c(gen));
    in.weights.push_back(columns == 1 ? std::vector<double>{w(gen)}
                                      : std::vector<double>{w(gen), w(gen)});
    in.balls.push_back(random_ball(gen, corners(gen)));
  }
  return in;
}

// The weighted gauge distances of column `column` to x, summed or the largest.
double value_of(const instance& in, const point& x, int column, bool is_max) {
  double v = 0.0;
  for (std::size_t i = 0; i < in.sites.size(); ++i) {
    const double term =
        in.weights[i][column] * gauge_by_facets(in.balls[i], x.xcoord() - in.sites[i].xcoord(),
                                                x.ycoord() - in.sites[i].ycoord());
    v = is_max ? std::max(v, term) : v + term;
  }
  return v;
}
double sum_of(const instance& in, const point& x, int column = 0) {
  return value_of(in, x, column, false);
}
double max_of(const instance& in, const point& x) { return value_of(in, x, 0, true); }

// The crossings of the full rays of different sites, by the test's own parametric solve.
std::vector<point> ray_crossings(const instance& in) {
  std::vector<point> out;
  for (std::size_t i = 0; i < in.sites.size(); ++i)
    for (std::size_t j = i + 1; j < in.sites.size(); ++j)
      for (const point& e : in.balls[i])
        for (const point& f : in.balls[j]) {
          // a + s e = b + t f, s, t >= 0
          const double det = e.xcoord() * (-f.ycoord()) + f.xcoord() * e.ycoord();
          if (det == 0.0) continue;
          const double rx = in.sites[j].xcoord() - in.sites[i].xcoord();
          const double ry = in.sites[j].ycoord() - in.sites[i].ycoord();
          const double s = (rx * (-f.ycoord()) + f.xcoord() * ry) / det;
          const double t = (e.xcoord() * ry - e.ycoord() * rx) / det;
          if (s >= 0.0 && t >= 0.0)
            out.emplace_back(in.sites[i].xcoord() + s * e.xcoord(),
                             in.sites[i].ycoord() + s * e.ycoord());
        }
  return out;
}

double grid_minimum(const instance& in, double (*f)(const instance&, const point&)) {
  double best = HUGE_VAL;
  for (double x = -2.0; x <= 12.0; x += 0.1)
    for (double y = -2.0; y <= 12.0; y += 0.1) best = std::min(best, f(in, point(x, y)));
  return best;
}

std::vector<point> points_of(const std::list<location>& l) {
  std::vector<point> p;
  for (const location& o : l) p.push_back(point(o));
  return p;
}

double sum0(const instance& in, const point& x) { return sum_of(in, x, 0); }

TEST(gauge_median, equals_the_best_crossing_where_the_optimum_is_one) {
  std::mt19937 gen(5);
  int compared = 0;
  for (int trial = 0; trial < 40; ++trial) {
    const instance in = random_instance(gen, 3 + trial % 3, 1);
    double at_crossings = HUGE_VAL, at_sites = HUGE_VAL;
    for (const point& c : ray_crossings(in)) at_crossings = std::min(at_crossings, sum0(in, c));
    for (const point& a : in.sites) at_sites = std::min(at_sites, sum0(in, a));
    // The objective is linear on the cells of the ray grid, so its minimum is at a vertex: a
    // site or a crossing. The fine grid only confirms that.
    const double exact = std::min(at_crossings, at_sites);
    EXPECT_LE(exact, grid_minimum(in, sum0) + 1e-9);
    if (at_sites < at_crossings - 1e-9 * exact) continue;  // not among the candidates
    ++compared;
    facilities f = problem_of(in);
    const double value = f.gauge_median(gauges_of(in), numbers_of(in), true);
    EXPECT_NEAR(value, exact, 1e-9 * exact) << trial;
    for (const location& o : f.optima())
      EXPECT_NEAR(sum0(in, point(o)), exact, 1e-9 * exact) << trial;
  }
  EXPECT_GE(compared, 20);
}

TEST(gauge_median, tied_crossings_give_their_hull) {
  // Equal weights, l1 gauges: every point of the box between the sites is optimal (value 3);
  // the crossings among them are (2, 0) and (0, 1), the sites are no candidates.
  instance in{{point(0, 0), point(2, 1)},
              {{1.0}, {1.0}},
              {rectilinear_gauge().extreme_points(), rectilinear_gauge().extreme_points()}};
  facilities f = problem_of(in);
  EXPECT_EQ(f.gauge_median(gauges_of(in), numbers_of(in), true), 3.0);
  EXPECT_EQ(points_of(f.optima()), (std::vector<point>{point(0, 1), point(2, 0)}));
}

TEST(gauge_center, value_is_exact_on_random_instances) {
  std::mt19937 gen(9);
  for (int trial = 0; trial < 36; ++trial) {
    const instance in = random_instance(gen, 2 + trial % 6, 1);
    // The optimum is a vertex of the epigraph: three facet planes w n . (x - a) = z meet there.
    struct plane {
      double nx, ny, c;  // w n . x - w n . a = z
    };
    std::vector<plane> planes;
    for (std::size_t i = 0; i < in.sites.size(); ++i) {
      const auto& b = in.balls[i];
      for (std::size_t k = 0; k < b.size(); ++k) {
        const point& p = b[k];
        const point& q = b[(k + 1) % b.size()];
        const double cross = p.xcoord() * q.ycoord() - p.ycoord() * q.xcoord();
        const double w = in.weights[i][0];
        const double nx = w * (q.ycoord() - p.ycoord()) / cross;
        const double ny = w * (p.xcoord() - q.xcoord()) / cross;
        planes.push_back({nx, ny, nx * in.sites[i].xcoord() + ny * in.sites[i].ycoord()});
      }
    }
    double exact = HUGE_VAL;
    for (std::size_t a = 0; a < planes.size(); ++a)
      for (std::size_t b = a + 1; b < planes.size(); ++b)
        for (std::size_t c = b + 1; c < planes.size(); ++c) {
          // (nb - na) . x = cb - ca and (nc - na) . x = cc - ca.
          const double a1 = planes[b].nx - planes[a].nx, b1 = planes[b].ny - planes[a].ny;
          const double a2 = planes[c].nx - planes[a].nx, b2 = planes[c].ny - planes[a].ny;
          const double r1 = planes[b].c - planes[a].c, r2 = planes[c].c - planes[a].c;
          const double det = a1 * b2 - a2 * b1;
          if (std::fabs(det) < 1e-12) continue;
          exact = std::min(exact,
                           max_of(in, point((r1 * b2 - r2 * b1) / det, (a1 * r2 - a2 * r1) / det)));
        }
    EXPECT_LE(exact, grid_minimum(in, max_of) + 1e-9);
    facilities f = problem_of(in);
    const double value = f.gauge_center(gauges_of(in), numbers_of(in), true);
    EXPECT_NEAR(value, exact, 1e-9 * exact) << trial;
    ASSERT_FALSE(f.optima().empty());
    for (const location& o : f.optima())
      EXPECT_NEAR(max_of(in, point(o)), exact, 1e-7 * exact) << trial;
  }
}

TEST(gauge_center, hand_cases) {
  // Two sites 4 apart on the x-axis, l1 balls, weights 1 and 3: the balls meet at z = 3,
  // at (3, 0).
  instance in{{point(0, 0), point(4, 0)},
              {{1.0}, {3.0}},
              {rectilinear_gauge().extreme_points(), rectilinear_gauge().extreme_points()}};
  facilities f = problem_of(in);
  EXPECT_DOUBLE_EQ(f.gauge_center(gauges_of(in), numbers_of(in), true), 3.0);
  ASSERT_EQ(f.optima().size(), 1u);
  EXPECT_NEAR(f.optima().front().coordinate(0), 3.0, 1e-12);
  EXPECT_NEAR(f.optima().front().coordinate(1), 0.0, 1e-12);
  // Two maximum-norm balls meet along the segment x = 2, |y| <= 2, at z = 2.
  instance square{{point(0, 0), point(4, 0)},
                  {{1.0}, {1.0}},
                  {chebyshev_gauge().extreme_points(), chebyshev_gauge().extreme_points()}};
  facilities s = problem_of(square);
  EXPECT_DOUBLE_EQ(s.gauge_center(gauges_of(square), numbers_of(square), true), 2.0);
  EXPECT_EQ(points_of(s.optima()), (std::vector<point>{point(2, -2), point(2, 2)}));
  // One site: value 0 at the site.
  instance one{{point(2, 5)}, {{1.0}}, {rectilinear_gauge().extreme_points()}};
  facilities g = problem_of(one);
  EXPECT_EQ(g.gauge_center(gauges_of(one), numbers_of(one), true), 0.0);
  EXPECT_EQ(point(g.optima().front()), point(2, 5));
}

// The box and the parallelogram of two sites are shown end to end by tests/cli/gauges.t.
TEST(two_column_sums, collinear_sites_and_one_column) {
  // Three sites on a line; both objectives' best points reduce to the middle site.
  facilities c = problem_of(
      {{point(0, 0), point(1, 0), point(3, 0)}, {{1.0, 0.0}, {1.0, 1.0}, {0.0, 1.0}}, {}});
  c.l1_2sum(true);
  EXPECT_EQ(points_of(c.optima()), std::vector<point>{point(1, 0)});
  facilities d = problem_of({{point(0, 0), point(1, 1)}, {{1.0}, {1.0}}, {}});
  EXPECT_REPORT(d.l1_2sum(true), msg::bi_crit_weight_dim.code, msg::bi_crit_weight_dim.text);
}

TEST(bi_crit_gauge_median, no_grid_vertex_dominates_the_efficient_set) {
  std::mt19937 gen(21);
  for (int trial = 0; trial < 10; ++trial) {
    const instance in = random_instance(gen, 3, 2);
    facilities f = problem_of(in);
    f.bi_crit_gauge_median(gauges_of(in), numbers_of(in), true);
    ASSERT_FALSE(f.optima().empty());
    std::vector<point> probes = ray_crossings(in);
    probes.insert(probes.end(), in.sites.begin(), in.sites.end());
    for (double x = -2.0; x <= 12.0; x += 0.25)
      for (double y = -2.0; y <= 12.0; y += 0.25) probes.emplace_back(x, y);
    for (const location& o : f.optima()) {
      const double f1 = sum_of(in, point(o), 0), f2 = sum_of(in, point(o), 1);
      for (const point& p : probes) {
        const double g1 = sum_of(in, p, 0), g2 = sum_of(in, p, 1);
        const double tol = 1e-7 * (f1 + f2);
        EXPECT_FALSE((g1 < f1 - tol && g2 <= f2 + tol) || (g2 < f2 - tol && g1 <= f1 + tol))
            << trial << " " << point(o) << " dominated by " << p;
      }
    }
    // The ends of the chain: the best point of each objective is in the set.
    double best1 = HUGE_VAL, best2 = HUGE_VAL, got1 = HUGE_VAL, got2 = HUGE_VAL;
    for (const point& p : probes) {
      best1 = std::min(best1, sum_of(in, p, 0));
      best2 = std::min(best2, sum_of(in, p, 1));
    }
    for (const location& o : f.optima()) {
      got1 = std::min(got1, sum_of(in, point(o), 0));
      got2 = std::min(got2, sum_of(in, point(o), 1));
    }
    EXPECT_NEAR(got1, best1, 1e-9 * best1);
    EXPECT_NEAR(got2, best2, 1e-9 * best2);
  }
}

TEST(gauge_problems, checks_in_order) {
  const std::vector<polygauge> one{rectilinear_gauge()};
  facilities two_columns = problem_of({{point(0, 0), point(1, 1)}, {{1.0, 1.0}, {1.0, 1.0}}, {}});
  EXPECT_REPORT(two_columns.gauge_median(one, {0, 0}, true), msg::median_weight_dim.code,
                msg::median_weight_dim.text);
  facilities f = problem_of({{point(0, 0), point(1, 1)}, {{1.0}, {0.0}}, {}});
  EXPECT_REPORT(f.gauge_median(one, {0}, true), msg::median_gauge_count.code,
                msg::median_gauge_count.text);
  EXPECT_REPORT(f.gauge_center(one, {0, 1}, true), msg::median_gauge_number.code,
                msg::median_gauge_number.text);
  EXPECT_REPORT(f.gauge_median(one, {0, 0}, true), msg::median_weights.code,
                msg::median_weights.text);
  // A zero weight passes the two-column method when the other column is positive there.
  facilities g = problem_of({{point(0, 0), point(1, 1)}, {{1.0, 0.0}, {0.0, 1.0}}, {}});
  EXPECT_REPORT(g.bi_crit_gauge_median(one, {0, -1}, true), msg::bi_crit_gauge_number.code,
                msg::bi_crit_gauge_number.text);
  EXPECT_EQ(g.bi_crit_gauge_median(one, {0, 0}, true), 0.0);
  facilities h = problem_of({{point(0, 0), point(1, 1)}, {{1.0, 0.0}, {2.0, 0.0}}, {}});
  EXPECT_REPORT(h.bi_crit_gauge_median(one, {0, 0}, true), msg::bi_crit_weights.code,
                msg::bi_crit_weights.text);
  // All rays from one place: no crossing, no candidate.
  facilities lone = problem_of({{point(3, 3)}, {{1.0}}, {}});
  EXPECT_KERNEL_ERROR(lone.gauge_median(one, {0}, true), msg::no_crossing);
}

}  // namespace
}  // namespace mero::testing
