// UFL_Dualoc against exhaustive enumeration of every open set, and on instances whose optimum is
// known by hand.

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "discrete_test_support.h"
#include "test_support.h"

namespace mero {
namespace {

using testing::make_discrete;
using testing::open_indices;
using testing::served_by;

using table = std::vector<std::vector<double>>;

// The value of an open set: its fixed costs plus each demand point's cheapest open cost.
double value_of(const table& c, const std::vector<double>& f, const std::vector<int>& open) {
  double z = 0.0;
  for (int j : open) z += f[j];
  for (const auto& row : c) {
    double best = row[open.at(0)];
    for (int j : open) best = std::min(best, row[j]);
    z += best;
  }
  return z;
}

// The optimum over all 2^n - 1 non-empty open sets.
double brute_force(const table& c, const std::vector<double>& f) {
  const int n = static_cast<int>(f.size());
  double best = HUGE_VAL;
  for (unsigned mask = 1; mask < (1u << n); ++mask) {
    std::vector<int> open;
    for (int j = 0; j < n; ++j)
      if (mask & (1u << j)) open.push_back(j);
    best = std::min(best, value_of(c, f, open));
  }
  return best;
}

// The value, opt and assignment must agree: opt is the open set, every demand point is served by
// exactly one open facility at its cheapest open cost, and the value is what that set costs.
void expect_consistent(const discrete_problem& p, const table& c, const std::vector<double>& f,
                       double value) {
  const std::vector<int> open = open_indices(p);
  ASSERT_FALSE(open.empty());
  const std::vector<int> served = served_by(p);
  for (std::size_t i = 0; i < c.size(); ++i) {
    ASSERT_GE(served[i], 0) << "demand " << i;
    EXPECT_TRUE(std::find(open.begin(), open.end(), served[i]) != open.end());
    for (int j : open) EXPECT_LE(c[i][served[i]], c[i][j]);
  }
  EXPECT_NEAR(value, value_of(c, f, open), 1e-9 * std::max(1.0, std::fabs(value)));
}

struct random_instance {
  table c;
  std::vector<double> f;
};

// Costs drawn from a few levels (integers 0..range) give many ties and degenerate duals, the
// hard case for the ascent's tolerances; a large range gives the usual case.
random_instance draw(std::mt19937& rng, int m, int n, int cost_range, int fixed_range) {
  std::uniform_int_distribution<int> cost(0, cost_range);
  std::uniform_int_distribution<int> fixed(0, fixed_range);
  random_instance r;
  r.c.assign(m, std::vector<double>(n));
  for (auto& row : r.c)
    for (double& x : row) x = cost(rng);
  for (int j = 0; j < n; ++j) r.f.push_back(fixed(rng));
  return r;
}

TEST(ufl_dualoc, matches_exhaustive_enumeration) {
  std::mt19937 rng(20261121);
  const int shapes[][4] = {// m, n, cost range, fixed cost range
                           {5, 3, 9, 9},         {8, 6, 20, 30},    {12, 8, 100, 150},
                           {20, 10, 1000, 2000}, {15, 12, 50, 100}, {30, 12, 10, 40},
                           {10, 12, 1000, 100},  {25, 11, 3, 5},    {40, 12, 500, 3000}};
  int instances = 0;
  for (const auto& s : shapes) {
    for (int round = 0; round < 25; ++round) {
      const random_instance r = draw(rng, s[0], s[1], s[2], s[3]);
      discrete_problem p = make_discrete(r.c, r.f);
      const double value = p.UFL_Dualoc();
      ASSERT_DOUBLE_EQ(value, brute_force(r.c, r.f))
          << "m " << s[0] << " n " << s[1] << " round " << round;
      expect_consistent(p, r.c, r.f, value);
      ++instances;
    }
  }
  EXPECT_EQ(instances, 225);
}

TEST(ufl_dualoc, heuristics_never_beat_it) {
  std::mt19937 rng(7);
  for (int round = 0; round < 40; ++round) {
    const random_instance r = draw(rng, 20, 10, 100, 200);
    discrete_problem p = make_discrete(r.c, r.f);
    const double exact = p.UFL_Dualoc();
    EXPECT_GE(p.UFL_Greedy(), exact - 1e-9);
    expect_consistent(p, r.c, r.f, p.UFL_Greedy());
    EXPECT_GE(p.UFL_Stingy(), exact - 1e-9);
    expect_consistent(p, r.c, r.f, p.UFL_Stingy());
    EXPECT_GE(p.UFL_Interchange(), exact - 1e-9);
    expect_consistent(p, r.c, r.f, p.UFL_Interchange());
  }
}

TEST(ufl_dualoc, hand_worked_instances) {
  // Instance B of the heuristics: the optimum is {1,2} with 2 + 0 + 6 + 3 + 4 + 3 = 18.
  const table b = {{6, 6, 7}, {0, 3, 3}, {8, 4, 9}, {1, 6, 3}};
  discrete_problem p = make_discrete(b, {6, 2, 0});
  EXPECT_DOUBLE_EQ(p.UFL_Dualoc(), 18.0);
  EXPECT_EQ(open_indices(p), (std::vector<int>{1, 2}));
  EXPECT_EQ(served_by(p), (std::vector<int>{1, 1, 1, 2}));

  // Two clusters and a central facility that is cheap to open but far from everybody: opening
  // both cluster facilities costs 6 + 6 + 4 * 1 = 16, the centre alone 1 + 4 * 5 = 21.
  const table clusters = {{5, 1, 10}, {5, 1, 10}, {5, 10, 1}, {5, 10, 1}};
  discrete_problem q = make_discrete(clusters, {1, 6, 6});
  EXPECT_DOUBLE_EQ(q.UFL_Dualoc(), 16.0);
  EXPECT_EQ(open_indices(q), (std::vector<int>{1, 2}));
}

TEST(ufl_dualoc, zero_fixed_costs_open_every_tight_facility) {
  // With nothing to pay for opening, every facility is tight from the start and the root opens
  // them all; each demand point gets its cheapest one: 1 + 2 + 1, which the duals (1, 2, 1)
  // match, so no branching is needed.
  const table c = {{1, 4, 7}, {3, 2, 9}, {1, 5, 8}};
  discrete_problem p = make_discrete(c, {0, 0, 0});
  EXPECT_DOUBLE_EQ(p.UFL_Dualoc(), 4.0);
  EXPECT_EQ(open_indices(p), (std::vector<int>{0, 1, 2}));
  EXPECT_EQ(served_by(p), (std::vector<int>{0, 1, 0}));
}

TEST(ufl_dualoc, a_demand_point_without_finite_costs_is_served_all_the_same) {
  // Demand 1 costs 1e50 everywhere; the best set still serves demand 0 and 2 well.
  const table c = {{1, 9}, {1e50, 1e50}, {9, 1}};
  discrete_problem p = make_discrete(c, {1, 1});
  EXPECT_EQ(p.UFL_Dualoc(), 1e50);
  expect_consistent(p, c, {1, 1}, 1e50);
}

TEST(ufl_dualoc, ties_go_to_the_smallest_index) {
  // Both facilities cost the same for everybody; one suffices, and the first is taken.
  const table c = {{2, 2}, {3, 3}};
  discrete_problem p = make_discrete(c, {4, 4});
  EXPECT_DOUBLE_EQ(p.UFL_Dualoc(), 9.0);
  EXPECT_EQ(served_by(p), (std::vector<int>{open_indices(p).at(0), open_indices(p).at(0)}));
  EXPECT_EQ(open_indices(p).size(), 1u);
}

TEST(ufl_dualoc, refuses_negative_costs) {
  discrete_problem p = make_discrete({{1, -2}}, {1, 1});
  EXPECT_REPORT(p.UFL_Dualoc(), 3109,
                "UFL_Dualoc needs costs and fixed costs between 0 and L_INF.");
  discrete_problem q = make_discrete({{1, 2}}, {-1, 1});
  EXPECT_REPORT(q.UFL_Dualoc(), 3109,
                "UFL_Dualoc needs costs and fixed costs between 0 and L_INF.");
}

}  // namespace
}  // namespace mero
