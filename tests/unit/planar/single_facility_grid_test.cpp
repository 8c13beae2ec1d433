// Every single-facility median and center on random instances, against a brute-force look at the
// plane: the returned value is the objective at each reported optimum and at their centroid (the
// optimal sets are convex), and no point of a coarse or a fine grid around them does better.

#include "planar_fixtures.h"

namespace mero::testing {
namespace {

struct grid_case {
  const char* name;
  std::function<double(facilities&)> solve;
  distance d;
  bool is_max;        // a center (maximum) rather than a median (sum)
  int n_lo, n_hi;     // seeds 1 to 20 take numbers of locations from n_lo up to n_hi
  double w_hi;        // weights uniform in [1, w_hi]; 1 for the equal-weight methods
  double grid_slack;  // the iterative medians stop short of the optimum by about this much
  double absolute;    // the smallest circle is found to within this
};

const std::vector<grid_case> k_cases{
    {"l2_sum", [](facilities& f) { return f.l2_sum(0, 1e-12, true); }, l2, false, 25, 25, 10, 1e-9,
     0},
    // p = 3 only: for larger p the smoothed step is no descent method and can settle into a
    // two-cycle, from which the better of the last two iterates is kept.
    {"lp_sum", [](facilities& f) { return f.lp_sum(3, 1e-11, 1e-12, 100000, 0, true); }, lp(3),
     false, 20, 20, 10, 1e-8, 0},
    {"linf_sum", [](facilities& f) { return f.linf_sum(0, true); }, linf, false, 15, 15, 10, 1e-9,
     0},
    {"linf_max", [](facilities& f) { return f.linf_max(true); }, linf, true, 12, 12, 10, 1e-9, 0},
    {"l1_max", [](facilities& f) { return f.l1_max(true); }, l1, true, 12, 12, 10, 1e-9, 0},
    {"linf_v1_max", [](facilities& f) { return f.linf_v1_max(true); }, linf, true, 12, 12, 1, 1e-9,
     0},
    {"l1_v1_max", [](facilities& f) { return f.l1_v1_max(true); }, l1, true, 12, 12, 1, 1e-9, 0},
    {"l2_v1_max", [](facilities& f) { return f.l2_v1_max(true); }, l2, true, 2, 5, 1, 1e-9, 1e-3},
    {"l2_v1_max", [](facilities& f) { return f.l2_v1_max(true); }, l2, true, 8, 60, 1, 1e-9, 1e-3},
    {"weighted l2_v1_max", [](facilities& f) { return f.l2_v1_max(true); }, l2, true, 9, 9, 4, 1e-9,
     1e-3},
};

double grid_minimum(const std::function<double(double, double)>& objective, double x, double y,
                    double h) {
  double best = objective(x, y);
  for (int i = -20; i <= 20; ++i)
    for (int j = -20; j <= 20; ++j) best = std::min(best, objective(x + i * h, y + j * h));
  return best;
}

void expect_grid_optimum(const grid_case& c, facilities& f) {
  const double value = c.solve(f);
  auto objective = [&](double x, double y) { return objective_of(f, c.d, x, y, c.is_max); };
  std::vector<std::pair<double, double>> points;
  double cx = 0, cy = 0;
  for (const location& o : f.optima_view()) {
    points.emplace_back(o.coordinate(0), o.coordinate(1));
    cx += o.coordinate(0) / f.optima_view().size();
    cy += o.coordinate(1) / f.optima_view().size();
  }
  ASSERT_FALSE(points.empty());
  if (points.size() > 1) points.emplace_back(cx, cy);
  for (auto [x, y] : points) {
    EXPECT_NEAR(objective(x, y), value, 1e-9 * value + c.absolute);
    for (double h : {1.0, 0.001})
      EXPECT_LE(value, grid_minimum(objective, x, y, h) + c.grid_slack * value + c.absolute)
          << "h " << h;
  }
}

TEST(single_facility, random_instances_no_grid_point_is_better) {
  for (const grid_case& c : k_cases)
    for (unsigned seed = 1; seed <= 20; ++seed) {
      const int n = c.n_lo + (c.n_hi - c.n_lo) * static_cast<int>(seed - 1) / 19;
      SCOPED_TRACE(::testing::Message() << c.name << " n " << n << " seed " << seed);
      facilities f = random_problem(seed * 1000 + n, n, 1.0, c.w_hi);
      expect_grid_optimum(c, f);
    }
}

}  // namespace
}  // namespace mero::testing
