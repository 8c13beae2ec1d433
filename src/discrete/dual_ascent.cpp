#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numeric>
#include <vector>

#include "discrete/cost_table.h"
#include "discrete/discrete_messages.h"
#include "discrete/discrete_problem.h"
#include "discrete/heuristics.h"
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
// facility of each demand point) and the value z. The complementary slackness residual of an
// open facility j and a demand point i it does not serve is v[i] - C[i][j] where positive, so
// the residuals are read off v, y and the assignment when a node picks its branching variable.
struct node_state {
  std::vector<double> v;
  std::vector<double> y;
  std::vector<int> served_by;
  double z = 0.0;
};

// The slack of each facility, with the number of entries above the tolerance ("hot"). Dual
// feasibility keeps every slack at or below the tolerance, so hot is 0 unless rounding pushed one
// over; the ascent then falls back to examining every facility.
struct slack_values {
  std::vector<double> value;
  int hot = 0;
};

// Where one step of the ascent takes a customer's dual, how many columns of the customer's row
// (in the order the step examines them) the step looks at and books, and the column that limits
// the rise (-1 if none does).
struct rise {
  double value = 0.0;
  int count = 0;
  int limit = -1;
};

// One bit per customer.
struct customer_set {
  std::vector<std::uint64_t> words;

  void resize(int m) { words.assign((at(m) + 63) / 64, 0); }
  void clear() { std::fill(words.begin(), words.end(), 0); }
  void insert(int i) { words[at(i) >> 6] |= std::uint64_t{1} << (i & 63); }
  void erase(int i) { words[at(i) >> 6] &= ~(std::uint64_t{1} << (i & 63)); }
  // The first member at or after `from`, or -1.
  int first_from(int from) const {
    std::size_t w = at(from) >> 6;
    if (w >= words.size()) return -1;
    std::uint64_t bits = words[w] & (~std::uint64_t{0} << (from & 63));
    while (bits == 0) {
      if (++w == words.size()) return -1;
      bits = words[w];
    }
    return static_cast<int>(w * 64 + static_cast<std::size_t>(std::countr_zero(bits)));
  }
};

// One entry of a column's list of payers: a customer whose dual lies above the column's cost,
// with that cost.
struct reach {
  int customer;
  double cost;
};

struct dual_ascent_solver {
  explicit dual_ascent_solver(const cost_table& t);

  const cost_table& C;
  // Row by row, the columns in ascending order of cost (the smaller index first on ties), and
  // the costs in that order: a customer's next cost level and the facilities its dual has
  // reached are then a prefix of its row.
  std::vector<int> by_cost;
  std::vector<double> sorted_cost;

  // The smallest value of any primal solution met so far, at any node, and the value of a
  // solution known beforehand. A node whose bound exceeds either by more than `margin` is
  // pruned; with `stop_early` its dual ascent already ends once its bound is that high.
  double best_found = infinite_cost;
  double known = infinite_cost;
  double margin = tolerance;
  bool stop_early = false;

  slack_values slack_of(const std::vector<double>& f, const std::vector<double>& v) const;
  rise step(int i, double vi, const slack_values& slack) const;
  template <class Booked>
  void book(int i, double old, const rise& r, slack_values& slack, Booked booked) const;
  void ascend(std::vector<double>& v, slack_values& slack, int i, int& unchanged) const;
  void primal(const std::vector<double>& slack, node_state& s) const;
  double dual_ascent(const node_problem& p, node_state& s,
                     double cutoff = std::numeric_limits<double>::infinity());
  int branch_variable(const node_problem& p, const node_state& s) const;
  bool branch(const node_problem& parent, node_state& s, bool close);

  // The adjustment rounds of one dual_ascent all restart from the best dual so far, where the
  // ascent left no customer able to rise: each was stopped by a facility whose slack was used up
  // (its blocker), or had no cost level left and nothing limiting it (free). A round lowers one
  // customer, which lowers the slack of the facilities it paid into; within the round slacks only
  // grow. A customer whose dual is unchanged stays stopped while its blocker's slack does not
  // drop, so a round visits only the customers that its changes can reach (`dirty`): the lowered
  // one, those blocked by a facility it paid into, the free ones, and each customer that rose.
  // The others count as visits without change, exactly as the full cyclic ascent would find them.
  // What follows is kept for the best dual.
  struct base_data {
    std::vector<double> v;
    slack_values slack;                 // recomputed from v, as a round starts from
    double sum = 0.0, magnitude = 0.0;  // the bound and the sum of the |v[i]|
    // Column j's paying customers (cost below their dual), ascending, with their costs, in
    // payers[payer_start[j]..payer_start[j+1]); the customers it blocks likewise.
    std::vector<int> payer_start, blocked_start;
    std::vector<reach> payers;
    std::vector<int> blocked;
    std::vector<int> free;              // customers that nothing limits
    customer_set unsettled;             // customers that could rise even at the best dual
    bool usable = false;                // false when some slack is hot there
  } base;
  customer_set dirty;
  std::vector<int> moved;               // customers whose dual differs from base.v
  std::vector<char> is_moved;
  std::vector<int> free;                // base.free and the customers found free in the round
  std::vector<char> is_free;

  void settle_base(const std::vector<double>& f, const std::vector<double>& v, double sum);
  void start_round(const std::vector<double>& f, int k, double below, std::vector<double>& v,
                   slack_values& slack);
  void forget_moves();
  bool ascend_dirty(std::vector<double>& v, slack_values& slack, int i);
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
  base.payer_start.resize(at(C.n) + 1);
  base.blocked_start.resize(at(C.n) + 1);
  base.unsettled.resize(C.m);
  dirty.resize(C.m);
  is_moved.assign(at(C.m), 0);
  is_free.assign(at(C.m), 0);
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

// One step for customer i at dual vi: lift it to the next cost level, or as far as the first
// facility whose slack runs out allows. Only facilities cheaper than the next level can be
// reached or limit the rise (a dearer one limits it only with a slack above the tolerance, the
// hot case), so the step looks at the prefix of the row below that level.
rise dual_ascent_solver::step(int i, double vi, const slack_values& slack) const {
  const double* row = C.row(i);
  const std::size_t row_start = at(i) * C.n;
  const double* costs = sorted_cost.data() + row_start;
  const int p = static_cast<int>(std::upper_bound(costs, costs + C.n, vi + tolerance) - costs);
  const double next = p < C.n ? costs[p] : infinite_cost;
  const bool all = slack.hot > 0;
  const int count = all ? C.n : p;

  bool limited = false;
  double delta = infinite_cost;
  int k = -1;
  for (int t = 0; t < count; ++t) {
    const int j = all ? t : by_cost[row_start + t];
    double r = next - vi;
    if (vi - row[j] <= tolerance) r = next - row[j] > tolerance ? next - row[j] : 0.0;
    if (slack.value[j] + r > tolerance) {
      limited = true;
      // The smallest remaining slack limits; among equal ones the smallest index.
      if (-slack.value[j] < delta || (-slack.value[j] == delta && j < k)) {
        delta = -slack.value[j];
        k = j;
      }
    }
  }
  if (next == infinite_cost && !limited) return {vi, count, -1};
  // A negative delta can only come from rounding; the ascent never lowers a dual.
  if (delta <= tolerance) return {vi, count, k};
  if (!limited) return {next, count, -1};
  return {vi - row[k] <= tolerance ? row[k] + delta : vi + delta, count, k};
}

// Books the rise of customer i from `old` to r.value in the slack of every facility it reaches;
// `booked(j)` hears of each facility whose slack was touched.
template <class Booked>
void dual_ascent_solver::book(int i, double old, const rise& r, slack_values& slack,
                              Booked booked) const {
  const double* row = C.row(i);
  const std::size_t row_start = at(i) * C.n;
  const bool all = slack.hot > 0;
  for (int t = 0; t < r.count; ++t) {
    const int j = all ? t : by_cost[row_start + t];
    const bool was_hot = slack.value[j] > tolerance;
    if (old - row[j] > tolerance)
      slack.value[j] += r.value - old;
    else if (r.value - row[j] > tolerance)
      slack.value[j] += r.value - row[j];
    else
      continue;
    slack.hot += (slack.value[j] > tolerance) - was_hot;
    booked(j);
  }
}

// Visits the customers cyclically from i until m visits in a row changed nothing.
void dual_ascent_solver::ascend(std::vector<double>& v, slack_values& slack, int i,
                                int& unchanged) const {
  while (unchanged < C.m) {
    if (i >= C.m) i = 0;
    const rise r = step(i, v[i], slack);
    if (r.value != v[i]) {
      book(i, v[i], r, slack, [](int) {});
      v[i] = r.value;
      unchanged = 0;
    } else {
      ++unchanged;
    }
    ++i;
  }
}

// Lists, as start[j]..start[j+1) of a flat array, the entries that `each(emit)` emits as
// emit(column, entry); `each` runs twice, to count and to fill.
template <class Entry, class Each>
void bucket(int n, std::vector<int>& start, std::vector<Entry>& entries, Each each) {
  std::fill(start.begin(), start.end(), 0);
  each([&](int j, const Entry&) { ++start[at(j) + 1]; });
  for (int j = 0; j < n; ++j) start[at(j) + 1] += start[at(j)];
  entries.resize(at(start[at(n)]));
  std::vector<int> fill(start.begin(), start.end() - 1);
  each([&](int j, const Entry& e) { entries[at(fill[at(j)]++)] = e; });
}

// Keeps what the rounds from the best dual v need: its slack recomputed, the paying customers of
// each column, and how each customer stands at v: blocked (by which column), free, or able to
// rise after all (rounding between the booked and the recomputed slack may free one).
void dual_ascent_solver::settle_base(const std::vector<double>& f, const std::vector<double>& v,
                                     double sum) {
  base.v = v;
  base.sum = sum;
  base.magnitude = 0.0;
  for (double x : v) base.magnitude += std::fabs(x);
  base.slack = slack_of(f, v);
  base.usable = base.slack.hot == 0;
  if (!base.usable) return;
  bucket(C.n, base.payer_start, base.payers, [&](auto emit) {
    for (int i = 0; i < C.m; ++i) {
      const std::size_t row_start = at(i) * C.n;
      const double* costs = sorted_cost.data() + row_start;
      const int paid = static_cast<int>(std::lower_bound(costs, costs + C.n, v[i]) - costs);
      for (int t = 0; t < paid; ++t) emit(by_cost[row_start + t], reach{i, costs[t]});
    }
  });
  std::vector<int> blocker(at(C.m), -1);
  base.unsettled.clear();
  base.free.clear();
  for (int i = 0; i < C.m; ++i) {
    const rise r = step(i, v[i], base.slack);
    if (r.value != v[i])
      base.unsettled.insert(i);
    else if (r.limit < 0)
      base.free.push_back(i);
    else
      blocker[at(i)] = r.limit;
  }
  bucket(C.n, base.blocked_start, base.blocked, [&](auto emit) {
    for (int i = 0; i < C.m; ++i)
      if (blocker[at(i)] >= 0) emit(blocker[at(i)], i);
  });
}

// The start of an adjustment round from the best dual: the duals of the customers moved in the
// last round go back, customer k is lowered to `below`, and the slack of each column k paid into
// at the best dual is summed again from its payers, in the order a recomputation from scratch
// adds it. The customers blocked by a column whose slack dropped turn dirty, and so do the free
// ones.
void dual_ascent_solver::start_round(const std::vector<double>& f, int k, double below,
                                     std::vector<double>& v, slack_values& slack) {
  for (int i : moved) v[at(i)] = base.v[at(i)];
  forget_moves();
  for (int i : free) is_free[at(i)] = 0;
  free = base.free;
  for (int i : free) is_free[at(i)] = 1;
  v[at(k)] = below;
  moved.push_back(k);
  is_moved[at(k)] = 1;
  slack = base.slack;
  dirty.words = base.unsettled.words;
  dirty.insert(k);
  for (int i : free) dirty.insert(i);
  const std::size_t row_start = at(k) * C.n;
  const double* costs = sorted_cost.data() + row_start;
  const int paid =
      static_cast<int>(std::lower_bound(costs, costs + C.n, base.v[at(k)]) - costs);
  for (int t = 0; t < paid; ++t) {
    const int j = by_cost[row_start + t];
    double x = -f[at(j)];
    for (int e = base.payer_start[at(j)]; e < base.payer_start[at(j) + 1]; ++e) {
      const reach& r = base.payers[at(e)];
      if (r.cost < v[at(r.customer)]) x += v[at(r.customer)] - r.cost;
    }
    if (x == slack.value[at(j)]) continue;
    slack.hot += (x > tolerance) - (slack.value[at(j)] > tolerance);
    slack.value[at(j)] = x;
    for (int e = base.blocked_start[at(j)]; e < base.blocked_start[at(j) + 1]; ++e)
      dirty.insert(base.blocked[at(e)]);
  }
}

// The ascent of a round, visiting only dirty customers in the cyclic order from i and counting
// the clean ones as visits without change. Falls back to the full ascent, where it stands, when
// a slack turns hot (every facility is examined then). Returns false after such a fallback.
bool dual_ascent_solver::ascend_dirty(std::vector<double>& v, slack_values& slack, int i) {
  int unchanged = 0;
  if (i >= C.m) i = 0;
  while (unchanged < C.m) {
    if (slack.hot > 0) {
      ascend(v, slack, i, unchanged);
      return false;
    }
    int d = dirty.first_from(i);
    int gap = d - i;
    if (d < 0) {
      d = dirty.first_from(0);
      if (d < 0) return true;
      gap = C.m - i + d;
    }
    if (unchanged + gap >= C.m) return true;
    unchanged += gap;
    dirty.erase(d);
    const rise r = step(d, v[at(d)], slack);
    if (r.value != v[at(d)]) {
      bool touched = false;
      book(d, v[at(d)], r, slack, [&](int) { touched = true; });
      v[at(d)] = r.value;
      if (!is_moved[at(d)]) {
        is_moved[at(d)] = 1;
        moved.push_back(d);
      }
      // A grown slack keeps every blocked customer blocked; a free one may meet a limit.
      if (touched)
        for (int x : free) dirty.insert(x);
      dirty.insert(d);
      unchanged = 0;
    } else {
      if (r.limit < 0 && !is_free[at(d)]) {
        is_free[at(d)] = 1;
        free.push_back(d);
      }
      ++unchanged;
    }
    i = d + 1 < C.m ? d + 1 : 0;
  }
  return true;
}

// The primal solution of the dual: the tight facilities open, each customer at its cheapest
// open one (the earliest on ties, which the cost order of its row gives first); its value is
// taken with the original fixed costs, so that a node's z is always the true cost of its
// solution.
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
    const int* cols = by_cost.data() + at(i) * C.n;
    int t = 0;
    while (s.y[at(cols[t])] != 1.0) ++t;
    s.served_by[i] = cols[t];
    s.z += C(i, cols[t]);
  }
}

// Ascent, then adjustment: each customer in turn is lowered one cost level from the best dual so
// far, the others may take up what that frees, and the bound is kept when it rises. Returns the
// best bound; s holds v and the primal solution of the best dual. The adjustment ends early once
// the bound exceeds `cutoff`.
double dual_ascent_solver::dual_ascent(const node_problem& p, node_state& s, double cutoff) {
  slack_values slack = slack_of(p.fixed_cost, s.v);
  int unchanged = 0;
  ascend(s.v, slack, 0, unchanged);
  forget_moves();
  int adjust = 0;
  double b = 0.0;
  bool have_primal = false;
  // Rounding bound of a sum of the duals taken in another order than from scratch: far below
  // the tolerance for any sensible data, and the exact sum decides whenever it is not.
  const double unit = 4.0 * (C.m + 2) * std::numeric_limits<double>::epsilon();
  bool sparse = false;  // this round ran on dirty customers only
  for (;;) {
    double sum = 0.0;
    bool exact = true;
    if (sparse) {
      sum = base.sum;
      for (int i : moved) sum += s.v[at(i)] - base.v[at(i)];
      const double guard = unit * (base.magnitude + std::fabs(sum)) + 1e-300;
      const double gap = s.z - p.forced_open_cost - sum;
      // The approximate sum settles both comparisons unless it lies within its guard of one.
      exact = std::fabs(sum - (b + tolerance)) <= guard ||
              std::fabs(std::fabs(gap) - tolerance) <= guard || sum > b + tolerance;
    }
    if (exact) sum = std::accumulate(s.v.begin(), s.v.end(), 0.0);
    // The first ascent always yields the primal, also when its bound is 0.
    if (have_primal && sum <= b + tolerance) {
      ++adjust;
    } else {
      b = sum;
      primal(slack.value, s);
      have_primal = true;
      settle_base(p.fixed_cost, s.v, sum);
      forget_moves();
    }
    if (std::fabs(s.z - p.forced_open_cost - sum) < tolerance || adjust >= C.m || b > cutoff)
      break;

    const double* costs = sorted_cost.data() + at(adjust) * C.n;
    const double* level =
        std::lower_bound(costs, costs + C.n, base.v[at(adjust)] - tolerance);
    const double below = level == costs ? 0.0 : level[-1];
    if (!sparse) {
      s.v = base.v;
      forget_moves();
    }
    if (base.usable) {
      start_round(p.fixed_cost, adjust, below, s.v, slack);
      sparse = ascend_dirty(s.v, slack, adjust + 1);
    } else {
      s.v[at(adjust)] = below;
      slack = slack_of(p.fixed_cost, s.v);
      unchanged = 0;
      ascend(s.v, slack, adjust + 1, unchanged);
      sparse = false;
    }
  }
  s.v = base.v;
  return b;
}

void dual_ascent_solver::forget_moves() {
  for (int i : moved) is_moved[at(i)] = 0;
  moved.clear();
}

// The first facility that is open but has a customer paying it a dual it does not serve; -1 when
// the complementary slackness conditions hold, and the node's primal solution is optimal.
// Facilities already fixed by branching are not branched on again.
int dual_ascent_solver::branch_variable(const node_problem& p, const node_state& s) const {
  for (int j = 0; j < C.n; ++j) {
    if (s.y[j] != 1.0 || p.fixed[j] != fixing::free) continue;
    for (int i = 0; i < C.m; ++i)
      if (s.served_by[i] != j && s.v[i] - C(i, j) > tolerance) return j;
  }
  return -1;
}

// Depth-first branch and bound on the opening variable chosen by branch_variable, the closing
// branch first. Returns whether the node yields a solution; s then holds the best one.
bool dual_ascent_solver::branch(const node_problem& parent, node_state& s, bool close) {
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
  // A node is pruned when its bound exceeds its parent's value. It is pruned as well when the
  // bound exceeds the best solution known (see solve). The bound only grows during the dual
  // ascent, so with `stop_early` the ascent stops as soon as the node is certain to be pruned.
  const double cutoff =
      stop_early ? std::min(ub + tolerance, std::min(best_found, known) + margin)
                 : std::numeric_limits<double>::infinity();
  const double bound = dual_ascent(p, s, cutoff - p.forced_open_cost) + p.forced_open_cost;
  best_found = std::min(best_found, s.z);
  if (bound > ub + tolerance || bound > std::min(best_found, known) + margin) return false;

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

// The whole search: the root's dual ascent, then both branches below it, closing first. Returns
// whether either branch yields a solution; `best` receives the better one. `known()` gives the
// value of a solution known beforehand; it is only asked for when the root leaves a gap.
template <class Known>
bool search(dual_ascent_solver& solver, node_state& best, Known known) {
  const cost_table& t = solver.C;
  node_problem root{t.f, std::vector<fixing>(t.n, fixing::free), 0.0};
  node_state s{std::vector<double>(t.m, 0.0), std::vector<double>(t.n, 0.0),
               std::vector<int>(t.m, 0), 0.0};
  solver.dual_ascent(root, s);
  solver.best_found = s.z;
  if (solver.branch_variable(root, s) >= 0) solver.known = known();
  node_state closing = s;
  const bool closed_ok = solver.branch(root, closing, true);
  const bool opened_ok = solver.branch(root, s, false);
  best = closed_ok && (!opened_ok || closing.z <= s.z) ? std::move(closing) : std::move(s);
  return closed_ok || opened_ok;
}

// The value of an open set, summed as the primal solution of a node sums it.
double value_of(const cost_table& t, const std::vector<int>& open) {
  double z = 0.0;
  for (int j : open) z += t.f[j];
  for (int i = 0; i < t.m; ++i) {
    double best = infinite_cost;
    for (int j : open) best = std::min(best, t(i, j));
    z += best;
  }
  return z;
}

}  // namespace

// The search is first run with the exchange heuristic's solution as a known value (asked for
// only when the root leaves a gap). Below a pruned node every leaf costs at least the node's
// bound less the slack the dual may exceed (up to the tolerance at each open facility), so with
// the margin (n + 2) times the tolerance each leaf cut off by the known value or by a solution
// met on the way costs more than that solution plus the tolerance. If the result is no worse
// than all of them to the tolerance, no leaf cut off this way could have won the comparisons on
// the way up, and the result is the one of the search that prunes against the parent's value
// alone. Otherwise, which takes a search that does not reach the best solution it has seen, the
// search runs again pruning only against the parent's value and the best solution met, without
// the known value.
double discrete_problem::UFL_Dualoc() {
  const cost_table t = make_cost_table(*this);
  check_dualoc_range(t);
  dual_ascent_solver solver(t);
  solver.margin = (t.n + 2) * tolerance;
  solver.stop_early = true;
  node_state best;
  bool ok = search(solver, best, [&] {
    return value_of(t, interchange_solution(t, supply_is_demand).open);
  });
  if (!ok || best.z > std::min(solver.known, solver.best_found) + tolerance) {
    dual_ascent_solver plain(t);
    ok = search(plain, best, [] { return infinite_cost; });
  }
  if (!ok) report_error(discrete_messages::no_solution);

  std::vector<int> open;
  for (int j = 0; j < t.n; ++j)
    if (best.y[j] == 1.0) open.push_back(j);
  publish_solution(*this, t, open);
  return best.z;
}

}  // namespace mero
