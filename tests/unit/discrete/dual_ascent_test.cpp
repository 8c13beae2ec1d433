// UFL_Dualoc against exhaustive enumeration of every open set, and on instances whose optimum is
// known by hand.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <random>

#include "discrete_test_support.h"
#include "test_support.h"

namespace mero {
namespace {

using namespace testing;

// The value of an open set: its fixed costs plus each demand point's cheapest open cost.
double value_of(const cost_rows& c, const std::vector<double>& f, const std::vector<int>& open) {
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
double brute_force(const cost_rows& c, const std::vector<double>& f) {
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
void expect_consistent(const discrete_problem& p, const cost_rows& c, const std::vector<double>& f,
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

// Integer costs 0..cost_range and fixed costs 0..fixed_range. A few levels give many ties and
// degenerate duals, the hard case for the ascent's tolerances; a large range the usual case.
std::pair<cost_rows, std::vector<double>> draw(std::mt19937& rng, int m, int n, int cost_range,
                                               int fixed_range) {
  std::uniform_int_distribution<int> cost(0, cost_range), fixed(0, fixed_range);
  cost_rows c(m, std::vector<double>(n));
  for (auto& row : c)
    for (double& x : row) x = cost(rng);
  std::vector<double> f(n);
  for (double& x : f) x = fixed(rng);
  return {c, f};
}

// The method written plainly, as a yardstick for the solver's faster bookkeeping: the slack
// recomputed from scratch after each adjustment, every facility examined in every step, the
// residual matrix W, and a branch and bound that prunes a node only when its bound exceeds its
// parent's value. Returns the value and the open set.
class plain_dualoc {
 public:
  plain_dualoc(const cost_rows& c, const std::vector<double>& f)
      : c_(c), f_(f), m_(static_cast<int>(c.size())), n_(static_cast<int>(f.size())) {}

  std::pair<double, std::vector<int>> solve() {
    node root{std::vector<double>(m_, 0.0), {}, {}, {}, 0.0};
    const std::vector<double> working = f_;
    const std::vector<int> fixed(n_, 0);
    ascent(root, working);
    node closing = root;
    const bool closed_ok = branch(closing, working, fixed, 0.0, true);
    const bool opened_ok = branch(root, working, fixed, 0.0, false);
    EXPECT_TRUE(closed_ok || opened_ok);
    const node& best = closed_ok && (!opened_ok || closing.z <= root.z) ? closing : root;
    std::vector<int> open;
    for (int j = 0; j < n_; ++j)
      if (best.y[j] == 1.0) open.push_back(j);
    return {best.z, open};
  }

 private:
  static constexpr double tol = 0.0001;
  struct node {
    std::vector<double> v, y;
    std::vector<int> x;  // the serving facility of each demand point
    std::vector<std::vector<double>> w;
    double z;
  };
  const cost_rows& c_;
  const std::vector<double>& f_;
  int m_, n_;

  std::vector<double> slack_of(const std::vector<double>& v, const std::vector<double>& f) const {
    std::vector<double> slack(n_);
    for (int j = 0; j < n_; ++j) slack[j] = -f[j];
    for (int i = 0; i < m_; ++i)
      for (int j = 0; j < n_; ++j)
        if (v[i] - c_[i][j] > 0.0) slack[j] += v[i] - c_[i][j];
    return slack;
  }

  void ascend(std::vector<double>& v, std::vector<double>& slack, int i) const {
    for (int unchanged = 0; unchanged < m_; ++i) {
      if (i == m_) i = 0;
      double next = 1e50, delta = 1e50;
      for (int j = 0; j < n_; ++j)
        if (c_[i][j] > v[i] + tol) next = std::min(next, c_[i][j]);
      int k = -1;
      bool limited = false;
      for (int j = 0; j < n_; ++j) {
        double r = next - v[i];
        if (v[i] - c_[i][j] <= tol) r = next - c_[i][j] > tol ? next - c_[i][j] : 0.0;
        if (slack[j] + r <= tol) continue;
        limited = true;
        if (-slack[j] < delta) delta = -slack[j], k = j;
      }
      if ((next == 1e50 && !limited) || delta <= tol) {
        ++unchanged;
        continue;
      }
      unchanged = 0;
      const double old = v[i];
      v[i] = !limited ? next : v[i] - c_[i][k] <= tol ? c_[i][k] + delta : v[i] + delta;
      for (int j = 0; j < n_; ++j) {
        if (old - c_[i][j] > tol)
          slack[j] += v[i] - old;
        else if (v[i] - c_[i][j] > tol)
          slack[j] += v[i] - c_[i][j];
      }
    }
  }

  void primal(const std::vector<double>& slack, node& s) const {
    s.y.assign(n_, 0.0);
    std::vector<int> open;
    for (int j = 0; j < n_; ++j)
      if (std::fabs(slack[j]) < tol) s.y[j] = 1.0, open.push_back(j);
    if (open.empty()) {
      const int j = static_cast<int>(std::max_element(slack.begin(), slack.end()) - slack.begin());
      s.y[j] = 1.0, open.push_back(j);
    }
    s.z = 0.0;
    for (int j : open) s.z += f_[j];
    s.x.assign(m_, 0);
    s.w.assign(m_, std::vector<double>(n_, 0.0));
    for (int i = 0; i < m_; ++i) {
      double best = 1e50;
      s.x[i] = open.front();
      for (int j : open)
        if (c_[i][j] < best) best = c_[i][j], s.x[i] = j;
      s.z += c_[i][s.x[i]];
      for (int j = 0; j < n_; ++j)
        if (s.v[i] - c_[i][j] > 0.0) s.w[i][j] = (s.y[j] - (s.x[i] == j)) * (s.v[i] - c_[i][j]);
    }
  }

  double ascent(node& s, const std::vector<double>& f) const {
    std::vector<double> slack = slack_of(s.v, f), best_v = s.v;
    double b = 0.0;
    bool have_primal = false;
    for (int adjust = 0, i = 0;;) {
      ascend(s.v, slack, i);
      const double sum = std::accumulate(s.v.begin(), s.v.end(), 0.0);
      if (have_primal && sum <= b + tol) {
        ++adjust;
      } else {
        b = sum, best_v = s.v, have_primal = true;
        primal(slack, s);
      }
      if (std::fabs(s.z - forced_ - sum) < tol || adjust == m_) break;
      s.v = best_v;
      double below = 0.0;
      for (int j = 0; j < n_; ++j)
        if (c_[adjust][j] < s.v[adjust] - tol) below = std::max(below, c_[adjust][j]);
      s.v[adjust] = below;
      slack = slack_of(s.v, f);
      i = adjust + 1;
    }
    s.v = best_v;
    return b;
  }

  double forced_ = 0.0;  // fixed costs of the facilities forced open above the current node

  bool branch(node& s, std::vector<double> f, std::vector<int> fixed, double forced, bool close) {
    int k = -1;
    for (int j = 0; j < n_ && k < 0; ++j)
      for (int i = 0; i < m_ && k < 0 && s.y[j] == 1.0 && !fixed[j]; ++i)
        if (s.w[i][j] > tol) k = j;
    if (k < 0) return true;
    const double ub = s.z;
    fixed[k] = 1;
    if (close) {
      f[k] = 1e50;
    } else {
      forced += f_[k];
      f[k] = 0.0;
      for (int i = 0; i < m_; ++i) s.v[i] = std::min(s.v[i], c_[i][k]);
    }
    forced_ = forced;
    if (ascent(s, f) + forced > ub + tol) return false;
    node closing = s;
    const bool closed_ok = branch(closing, f, fixed, forced, true);
    const bool opened_ok = branch(s, f, fixed, forced, false);
    if (closed_ok && (!opened_ok || closing.z < s.z)) s = closing;
    return closed_ok || opened_ok;
  }
};

TEST(ufl_dualoc, matches_exhaustive_enumeration) {
  std::mt19937 rng(20261121);
  const int shapes[][4] = {// m, n, cost range, fixed cost range
                           {5, 3, 9, 9},         {8, 6, 20, 30},    {12, 8, 100, 150},
                           {20, 10, 1000, 2000}, {15, 12, 50, 100}, {30, 12, 10, 40},
                           {10, 12, 1000, 100},  {25, 11, 3, 5},    {40, 12, 500, 3000}};
  for (const auto& s : shapes) {
    for (int round = 0; round < 25; ++round) {
      const auto [c, f] = draw(rng, s[0], s[1], s[2], s[3]);
      discrete_problem p = make_discrete(c, f);
      const double value = p.UFL_Dualoc();
      ASSERT_DOUBLE_EQ(value, brute_force(c, f)) << "m " << s[0] << " n " << s[1] << " #" << round;
      expect_consistent(p, c, f, value);
    }
  }
}

// Costs in steps of 0.1 (no binary fraction: every sum carries rounding) and of 0.001 (ten times
// the ascent's tolerance, so a tie within the tolerance is never a true tie). The optimum must
// be enumeration's to rounding.
TEST(ufl_dualoc, matches_exhaustive_enumeration_on_fractional_costs) {
  std::mt19937 rng(20261124);
  const int shapes[][4] = {// m, n, cost range, fixed cost range, in steps
                           {8, 6, 50, 100},
                           {15, 10, 200, 400},
                           {25, 12, 30, 60},
                           {30, 12, 5000, 9000}};
  for (double step : {0.1, 0.001})
    for (const auto& s : shapes)
      for (int round = 0; round < 25; ++round) {
        auto [c, f] = draw(rng, s[0], s[1], s[2], s[3]);
        for (auto& row : c)
          for (double& x : row) x *= step;
        for (double& x : f) x *= step;
        discrete_problem p = make_discrete(c, f);
        const double value = p.UFL_Dualoc(), best = brute_force(c, f);
        ASSERT_NEAR(value, best, 1e-9 * std::max(1.0, best))
            << "step " << step << " m " << s[0] << " n " << s[1] << " #" << round;
        expect_consistent(p, c, f, value);
      }
}

// The solver against the plain method on instances too large to enumerate: the same value to the
// last bit and the same open set. Integer costs make every sum exact; costs in steps of 0.001
// carry rounding, which the solver's bookkeeping must reproduce operation for operation. Equal
// fixed costs make facilities limit a rise with equal slacks (the tie rule decides), and fixed
// costs of L_INF leave customers that nothing limits.
TEST(ufl_dualoc, matches_the_plain_method) {
  std::mt19937 rng(20261124);
  // m, n, cost range, fixed cost range; the last column says whether the shape is also drawn
  // with equal fixed costs (the plain method's tree grows large on the others then).
  const int shapes[][5] = {{40, 12, 100, 400, 1}, {60, 20, 1000, 3000, 0}, {60, 16, 50, 200, 0},
                           {50, 24, 5000, 9000, 0}, {80, 12, 20, 60, 1}, {70, 20, 1000, 30000, 1}};
  enum { integer, thousandths, equal_fixed, forbidden } kinds[] = {integer, thousandths,
                                                                    equal_fixed, forbidden};
  for (const auto kind : kinds)
    for (const auto& s : shapes)
      for (int round = 0; round < (kind == forbidden ? 1 : kind == equal_fixed ? 3 * s[4] : 6);
           ++round) {
        auto [c, f] = draw(rng, s[0], s[1], s[2], s[3]);
        for (auto& row : c)
          for (double& x : row) x *= kind == thousandths ? 0.001 : 1.0;
        const double first = f[0] + 1;
        for (double& x : f)
          x = kind == thousandths ? x * 0.001
              : kind == equal_fixed ? first
              : kind == forbidden   ? 1e50
                                    : x;
        discrete_problem p = make_discrete(c, f);
        const double value = p.UFL_Dualoc();
        const auto [plain_value, plain_open] = plain_dualoc(c, f).solve();
        ASSERT_EQ(value, plain_value) << "kind " << kind << " m " << s[0] << " #" << round;
        ASSERT_EQ(open_indices(p), plain_open) << "kind " << kind << " m " << s[0] << " #" << round;
      }
}

TEST(ufl_dualoc, heuristics_never_beat_it) {
  std::mt19937 rng(7);
  for (int round = 0; round < 40; ++round) {
    const auto [c, f] = draw(rng, 20, 10, 100, 200);
    discrete_problem p = make_discrete(c, f);
    const double exact = p.UFL_Dualoc();
    for (ufl_solver solve : ufl_solvers) {
      const double value = (p.*solve)();
      EXPECT_GE(value, exact - 1e-9);
      expect_consistent(p, c, f, value);
    }
  }
}

TEST(ufl_dualoc, hand_worked_instances) {
  // Two clusters and a central facility that is cheap to open but far from everybody: opening
  // both cluster facilities costs 6 + 6 + 4 * 1 = 16, the centre alone 1 + 4 * 5 = 21.
  discrete_problem p = make_discrete({{5, 1, 10}, {5, 1, 10}, {5, 10, 1}, {5, 10, 1}}, {1, 6, 6});
  EXPECT_DOUBLE_EQ(p.UFL_Dualoc(), 16.0);
  EXPECT_EQ(open_indices(p), (std::vector<int>{1, 2}));
  // With nothing to pay for opening, every facility is tight from the start and the root opens
  // them all; each demand point gets its cheapest one: 1 + 2 + 1, which the duals (1, 2, 1)
  // match, so no branching is needed.
  discrete_problem q = make_discrete({{1, 4, 7}, {3, 2, 9}, {1, 5, 8}}, {0, 0, 0});
  EXPECT_DOUBLE_EQ(q.UFL_Dualoc(), 4.0);
  EXPECT_EQ(open_indices(q), (std::vector<int>{0, 1, 2}));
  EXPECT_EQ(served_by(q), (std::vector<int>{0, 1, 0}));
  // Both facilities cost the same for everybody; one suffices, 4 + 2 + 3, and the first is taken.
  discrete_problem t = make_discrete({{2, 2}, {3, 3}}, {4, 4});
  EXPECT_DOUBLE_EQ(t.UFL_Dualoc(), 9.0);
  EXPECT_EQ(open_indices(t), (std::vector<int>{0}));
  EXPECT_EQ(served_by(t), (std::vector<int>{0, 0}));
}

TEST(ufl_dualoc, a_demand_point_without_finite_costs_is_served_all_the_same) {
  // Demand 1 costs 1e50 everywhere; the best set still serves demand 0 and 2 well.
  const cost_rows c = {{1, 9}, {1e50, 1e50}, {9, 1}};
  discrete_problem p = make_discrete(c, {1, 1});
  EXPECT_EQ(p.UFL_Dualoc(), 1e50);
  expect_consistent(p, c, {1, 1}, 1e50);
}

TEST(ufl_dualoc, refuses_negative_costs) {
  const char* text = "UFL_Dualoc needs costs and fixed costs between 0 and L_INF.";
  EXPECT_REPORT(make_discrete({{1, -2}}, {1, 1}).UFL_Dualoc(), 3109, text);
  EXPECT_REPORT(make_discrete({{1, 2}}, {-1, 1}).UFL_Dualoc(), 3109, text);
}

}  // namespace
}  // namespace mero
