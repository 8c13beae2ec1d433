#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

#include "discrete/cost_table.h"
#include "discrete/discrete_messages.h"
#include "discrete/discrete_problem.h"
#include "kernel/index.h"
#include "kernel/reporters.h"

namespace mero {

namespace {

// Slack, duals and bounds are compared with this tolerance, so that rounding in the incremental
// slack update neither opens a facility nor blocks a customer.
constexpr double tolerance = 0.0001;

enum class fixing : char { free, closed, open };

// What a branch changes: each node works on its own copy. `fixed_cost` is the f the dual ascent
// sees (1e50 for a facility closed by branching, 0 for one forced open); `forced_open_cost` sums
// the original fixed costs of the facilities forced open on the path to the node, which the
// node's bound must carry.
struct node_problem {
  std::vector<double> fixed_cost;
  std::vector<fixing> fixed;
  double forced_open_cost = 0.0;
};

// The primal and dual data of a node: duals v, open facilities y, the assignment X (the serving
// facility of each demand point), the complementary slackness residuals W and the value z.
struct node_state {
  std::vector<double> v;
  std::vector<double> y;
  std::vector<int> served_by;
  std::vector<double> W;
  double z = 0.0;
};

// The slack of each facility, with the number of entries above the tolerance ("hot"). Dual
// feasibility keeps every slack at or below the tolerance, so hot is 0 unless rounding pushed one
// over; the ascent then falls back to examining every facility.
struct slack_values {
  std::vector<double> value;
  int hot = 0;
};

struct dual_ascent_solver {
  explicit dual_ascent_solver(const cost_table& t);

  const cost_table& C;
  // Row by row, the columns in ascending order of cost (the smaller index first on ties), and
  // the costs in that order: a customer's next cost level and the facilities its dual has
  // reached are then a prefix of its row.
  std::vector<int> by_cost;
  std::vector<double> sorted_cost;

  slack_values slack_of(const std::vector<double>& f, const std::vector<double>& v) const;
  void ascend(std::vector<double>& v, slack_values& slack, int i, int& unchanged) const;
  void raise_dual(int i, std::vector<double>& v, slack_values& slack) const;
  void primal(const std::vector<double>& slack, node_state& s) const;
  double dual_ascent(const node_problem& p, node_state& s) const;
  int branch_variable(const node_problem& p, const node_state& s) const;
  bool branch(const node_problem& parent, node_state& s, bool close) const;

  // The smallest value of any primal solution met so far, at any node.
  mutable double best_found = infinite_cost;
};

dual_ascent_solver::dual_ascent_solver(const cost_table& t)
    : C(t), by_cost(t.c.size()), sorted_cost(t.c.size()) {
  for (int i = 0; i < C.m; ++i) {
    int* cols = by_cost.data() + at(i) * C.n;
    std::iota(cols, cols + C.n, 0);
    const double* row = C.row(i);
    std::stable_sort(cols, cols + C.n, [row](int a, int b) { return row[a] < row[b]; });
    for (int t = 0; t < C.n; ++t) sorted_cost[at(i) * C.n + t] = row[cols[t]];
  }
}

slack_values dual_ascent_solver::slack_of(const std::vector<double>& f,
                                          const std::vector<double>& v) const {
  slack_values slack{std::vector<double>(C.n), 0};
  for (int j = 0; j < C.n; ++j) slack.value[j] = -f[j];
  // The facilities that customer i pays into are those cheaper than v[i], a prefix of its row.
  for (int i = 0; i < C.m; ++i) {
    const std::size_t row_start = at(i) * C.n;
    const double* costs = sorted_cost.data() + row_start;
    const int below = static_cast<int>(std::lower_bound(costs, costs + C.n, v[i]) - costs);
    for (int t = 0; t < below; ++t) slack.value[by_cost[row_start + t]] += v[i] - costs[t];
  }
  for (double x : slack.value)
    if (x > tolerance) ++slack.hot;
  return slack;
}

// One step for customer i: lift v[i] to the next cost level, or as far as the first facility
// whose slack runs out allows, and book the rise in the slack of every facility it reaches.
// Only facilities cheaper than the next level can be reached or limit the rise (a dearer one
// limits it only with a slack above the tolerance, the hot case), so the step looks at the
// prefix of the row below that level.
void dual_ascent_solver::raise_dual(int i, std::vector<double>& v, slack_values& slack) const {
  const double* row = C.row(i);
  const std::size_t row_start = at(i) * C.n;
  const double* costs = sorted_cost.data() + row_start;
  const int p = static_cast<int>(std::upper_bound(costs, costs + C.n, v[i] + tolerance) - costs);
  const double next = p < C.n ? costs[p] : infinite_cost;
  const bool all = slack.hot > 0;
  const int count = all ? C.n : p;
  auto column = [&](int t) { return all ? t : by_cost[row_start + t]; };

  bool limited = false;
  double delta = infinite_cost;
  int k = -1;
  for (int t = 0; t < count; ++t) {
    const int j = column(t);
    double r = next - v[i];
    if (v[i] - row[j] <= tolerance) r = next - row[j] > tolerance ? next - row[j] : 0.0;
    if (slack.value[j] + r > tolerance) {
      limited = true;
      // The smallest remaining slack limits; among equal ones the smallest index.
      if (-slack.value[j] < delta || (-slack.value[j] == delta && j < k)) {
        delta = -slack.value[j];
        k = j;
      }
    }
  }
  if (next == infinite_cost && !limited) return;
  // A negative delta can only come from rounding; the ascent never lowers a dual.
  if (delta <= tolerance) return;
  const double old = v[i];
  if (!limited)
    v[i] = next;
  else
    v[i] = v[i] - row[k] <= tolerance ? row[k] + delta : v[i] + delta;
  for (int t = 0; t < count; ++t) {
    const int j = column(t);
    const bool was_hot = slack.value[j] > tolerance;
    if (old - row[j] > tolerance)
      slack.value[j] += v[i] - old;
    else if (v[i] - row[j] > tolerance)
      slack.value[j] += v[i] - row[j];
    slack.hot += (slack.value[j] > tolerance) - was_hot;
  }
}

// Visits the customers cyclically from i until m visits in a row changed nothing.
void dual_ascent_solver::ascend(std::vector<double>& v, slack_values& slack, int i,
                                int& unchanged) const {
  while (unchanged < C.m) {
    if (i >= C.m) i = 0;
    const double before = v[i];
    raise_dual(i, v, slack);
    unchanged = v[i] == before ? unchanged + 1 : 0;
    ++i;
  }
}

// The primal solution of the dual: the tight facilities open, each customer at its cheapest
// open one; its value is taken with the original fixed costs, so that a node's z is always the
// true cost of its solution.
void dual_ascent_solver::primal(const std::vector<double>& slack, node_state& s) const {
  std::vector<int> open;
  for (int j = 0; j < C.n; ++j) {
    s.y[j] = std::fabs(slack[j]) < tolerance ? 1.0 : 0.0;
    if (s.y[j] == 1.0) open.push_back(j);
  }
  // Only a problem whose demand points all have infinite costs leaves no facility tight; the
  // facility nearest to tightness then serves, so that the primal is a solution.
  if (open.empty()) {
    int j_max = 0;
    for (int j = 1; j < C.n; ++j)
      if (slack[j] > slack[j_max]) j_max = j;
    s.y[j_max] = 1.0;
    open.push_back(j_max);
  }
  s.z = 0.0;
  for (int j : open) s.z += C.f[j];
  for (int i = 0; i < C.m; ++i) {
    const double* row = C.row(i);
    int best_j = open.front();
    double best = infinite_cost;
    for (int j : open)
      if (row[j] < best) {
        best = row[j];
        best_j = j;
      }
    s.served_by[i] = best_j;
    s.z += row[best_j];
    for (int j = 0; j < C.n; ++j) {
      const double x = best_j == j ? 1.0 : 0.0;
      s.W[at(i) * C.n + j] = s.v[i] - row[j] <= 0.0 ? 0.0 : (s.y[j] - x) * (s.v[i] - row[j]);
    }
  }
}

// Ascent, then adjustment: each customer in turn is lowered one cost level from the best dual so
// far, the others may take up what that frees, and the bound is kept when it rises. Returns the
// best bound; s holds v and the primal solution of the best dual.
double dual_ascent_solver::dual_ascent(const node_problem& p, node_state& s) const {
  slack_values slack = slack_of(p.fixed_cost, s.v);
  std::vector<double> best_v = s.v;
  int unchanged = 0;
  int adjust = 0;
  double b = 0.0;
  bool have_primal = false;
  int i = 0;
  for (;;) {
    ascend(s.v, slack, i, unchanged);
    const double sum = std::accumulate(s.v.begin(), s.v.end(), 0.0);
    // The first ascent always yields the primal, also when its bound is 0.
    if (have_primal && sum <= b + tolerance) {
      ++adjust;
    } else {
      b = sum;
      best_v = s.v;
      primal(slack.value, s);
      have_primal = true;
    }
    if (std::fabs(s.z - p.forced_open_cost - sum) < tolerance || adjust >= C.m) break;

    s.v = best_v;
    const double* row = C.row(adjust);
    double below = 0.0;
    for (int j = 0; j < C.n; ++j)
      if (row[j] < s.v[adjust] - tolerance && row[j] > below) below = row[j];
    s.v[adjust] = below;
    slack = slack_of(p.fixed_cost, s.v);
    i = adjust + 1;
    unchanged = 0;
  }
  s.v = best_v;
  return b;
}

// The first facility that is open but has a customer paying it a dual it does not serve; -1 when
// the complementary slackness conditions hold, and the node's primal solution is optimal.
// Facilities already fixed by branching are not branched on again.
int dual_ascent_solver::branch_variable(const node_problem& p, const node_state& s) const {
  for (int j = 0; j < C.n; ++j) {
    if (s.y[j] != 1.0 || p.fixed[j] != fixing::free) continue;
    for (int i = 0; i < C.m; ++i)
      if (s.W[at(i) * C.n + j] > tolerance) return j;
  }
  return -1;
}

// Depth-first branch and bound on the opening variable chosen by branch_variable, the closing
// branch first. Returns whether the node yields a solution; s then holds the best one.
bool dual_ascent_solver::branch(const node_problem& parent, node_state& s, bool close) const {
  const int k = branch_variable(parent, s);
  if (k < 0) return true;
  const double ub = s.z;

  node_problem p = parent;
  if (close) {
    p.fixed_cost[k] = infinite_cost;
    p.fixed[k] = fixing::closed;
  } else {
    p.forced_open_cost += C.f[k];
    p.fixed_cost[k] = 0.0;
    p.fixed[k] = fixing::open;
    for (int i = 0; i < C.m; ++i)
      if (s.v[i] > C(i, k)) s.v[i] = C(i, k);
  }
  const double bound = dual_ascent(p, s) + p.forced_open_cost;
  best_found = std::min(best_found, s.z);
  // A node is pruned when its bound exceeds its parent's value. It is pruned as well when the
  // bound exceeds the best solution met anywhere: every leaf below it is then worse than that
  // solution, which the comparisons on the way up keep, so the result is the same, and the
  // search no longer wanders through subtrees that cannot win (the large OR-Library instances
  // need this).
  if (bound > ub + tolerance || bound > best_found + tolerance) return false;

  node_state closing = s;
  const bool closed_ok = branch(p, closing, true);
  const bool opened_ok = branch(p, s, false);
  if (closed_ok && (!opened_ok || closing.z < s.z)) s = closing;
  return closed_ok || opened_ok;
}

void check_dualoc_range(const cost_table& t) {
  auto in_range = [](double x) { return x >= 0.0 && x <= infinite_cost; };
  for (double x : t.c)
    if (!in_range(x)) report_error(discrete_messages::dualoc_range);
  for (double x : t.f)
    if (!in_range(x)) report_error(discrete_messages::dualoc_range);
}

}  // namespace

double discrete_problem::UFL_Dualoc() {
  const cost_table t = make_cost_table(*this);
  check_dualoc_range(t);
  const dual_ascent_solver solver(t);
  node_problem root{t.f, std::vector<fixing>(t.n, fixing::free), 0.0};
  node_state s{std::vector<double>(t.m, 0.0), std::vector<double>(t.n, 0.0),
               std::vector<int>(t.m, 0), std::vector<double>(at(t.m) * t.n, 0.0), 0.0};
  solver.dual_ascent(root, s);
  solver.best_found = s.z;

  node_state closing = s;
  const bool closed_ok = solver.branch(root, closing, true);
  const bool opened_ok = solver.branch(root, s, false);
  if (!closed_ok && !opened_ok) report_error(discrete_messages::no_solution);
  const node_state& best = closed_ok && (!opened_ok || closing.z <= s.z) ? closing : s;

  std::vector<int> open;
  for (int j = 0; j < t.n; ++j)
    if (best.y[j] == 1.0) open.push_back(j);
  publish_solution(*this, t, open);
  return best.z;
}

}  // namespace mero
