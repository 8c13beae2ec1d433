#include "network/n_problems.h"

#include <algorithm>
#include <random>

#include "network/n_problem_support.h"
#include "network_test_graphs.h"
#include "test_support.h"

namespace mero {
namespace {

using testing::arc;
using testing::make_location_graph;
using distances = std::vector<std::vector<double>>;

std::vector<int> facilities_of(const graphpointset& points) {
  std::vector<int> f;
  for (const graph_point& p : points) {
    EXPECT_EQ(p.first, p.second);
    f.push_back(p.first);
  }
  return f;
}

// The path 0 - 1 - 2 - 3 - 4 with unit lengths and weights, whose runs for N = 2 are traced by
// hand below.
location_graph path_of_five() {
  return undirected_form(make_location_graph({1, 1, 1, 1, 1}, {{0, 1}, {1, 2}, {2, 3}, {3, 4}}));
}

struct run {
  std::vector<int> facilities;
  double value = 0;
  std::vector<int> assignment;
};

// The six routines by number: the exact program, then partitioning, exchange and greedy for the
// sum, then partitioning and greedy for the max.
run solve_with(int routine, const location_graph& g, int n_new) {
  const n_objective mode = routine >= 4 ? n_objective::max : n_objective::sum;
  run r;
  graphpointset points = routine == 0   ? n_median_exact(g, n_new, r.value, r.assignment)
                         : routine == 2 ? n_exchange(g, n_new, r.value, r.assignment)
                         : routine == 1 || routine == 4
                             ? n_partitioning(g, n_new, mode, r.value, r.assignment)
                             : n_greedy(g, n_new, mode, r.value, r.assignment);
  r.facilities = facilities_of(points);
  return r;
}

TEST(n_problems, start_test_and_every_node_a_facility) {
  location_graph path = path_of_five();
  for (int routine = 0; routine < 6; ++routine) {
    try {
      solve_with(routine, path, 6);
      ADD_FAILURE() << "no message from routine " << routine;
    } catch (const testing::reported& r) {
      EXPECT_EQ(r.what.what, report::kind::message);
      EXPECT_EQ(r.what.code, 0);
      EXPECT_EQ(r.what.text, "Number of nodes is smaller than N");
    }
    EXPECT_REPORT(solve_with(routine, path, 0), 2004,
                  "The number of new facilities must be at least 1");
    run all = solve_with(routine, path, 5);
    EXPECT_EQ(all.value, 0.0) << routine;
    std::vector<int> sorted = all.facilities;
    std::sort(sorted.begin(), sorted.end());
    EXPECT_EQ(sorted, (std::vector<int>{0, 1, 2, 3, 4})) << routine;
  }
}

// Partitioning, sum, from {0, 1}: parts {0} and {1..4} (6); the median of 1..4 is 2 (the lower of
// 2 and 3); node 1 ties between 0 and 2 and joins the lower ordinal: {0, 1}, {2, 3, 4} (4); then
// 0 and 3 (3); then no fall. From {3, 4} it ends at {1, 3}, from {0, 2} at {0, 3}, both 3, so the
// first attempt stays. Max: the same road to {0, 3} with 3, 2, 1.
// Exchange from {0, 1}, ties to the higher ordinal: 2 takes ordinal 0 (gain 2 at both ordinals,
// the first kept), 3 takes ordinal 0 again (gain 1 there, 0 at ordinal 1), 4 gains nothing; a
// second pass finds no gain: {3, 1} with 3, and nodes 0..2 at ordinal 1 (node 2 ties).
// Greedy: the median 2, then every candidate scores 4 (max: 2) and the first, 0, is taken; node 1
// ties between 2 and 0 and goes to the higher ordinal.
TEST(n_problems, hand_traced_runs_on_a_path) {
  location_graph path = path_of_five();
  struct expectation {
    int routine;
    std::vector<int> facilities;
    double value;
    std::vector<int> assignment;
  };
  for (const expectation& e : std::vector<expectation>{
           {1, {0, 3}, 3, {0, 0, 1, 1, 1}},
           {4, {0, 3}, 1, {0, 0, 1, 1, 1}},
           {2, {3, 1}, 3, {1, 1, 1, 0, 0}},
           {3, {2, 0}, 4, {1, 1, 0, 0, 0}},
           {5, {2, 0}, 2, {1, 1, 0, 0, 0}},
       }) {
    run r = solve_with(e.routine, path, 2);
    EXPECT_EQ(r.facilities, e.facilities) << e.routine;
    EXPECT_EQ(r.value, e.value) << e.routine;
    EXPECT_EQ(r.assignment, e.assignment) << e.routine;
  }
  // Greedy with N = 1 reports the value of its first step: the center's 2 (the median's 6 is
  // shown by tests/cli/n_problems.t).
  EXPECT_EQ(solve_with(5, path, 1).value, 2.0);
  // The exact program assigns by node number; {0, 3}, {1, 3} and {1, 4} all reach 3.
  run exact = solve_with(0, path, 2);
  EXPECT_NEAR(exact.value, 3.0, 1e-9);
  for (int i = 0; i < 5; ++i)
    EXPECT_NE(std::find(exact.facilities.begin(), exact.facilities.end(), exact.assignment[i]),
              exact.facilities.end());
}

// Vertex substitution transcribed step by step (one attempt), with the assignment recomputed for
// every trial: the reference for the incremental form of n_exchange.
std::vector<int> assign_literally(const distances& d, const std::vector<int>& f, int n) {
  std::vector<int> a(n);
  const int n_new = static_cast<int>(f.size());
  for (int i = 0; i < n; ++i) {
    a[i] = n_new - 1;
    for (int j = n_new - 2; j >= 0; --j)
      if (d[f[j]][i] < d[f[a[i]]][i]) a[i] = j;
  }
  return a;
}

run exchange_literally(const distances& d, const std::vector<double>& w, std::vector<int> f) {
  const int n = static_cast<int>(w.size()), n_new = static_cast<int>(f.size());
  std::vector<int> g = f;
  auto sum = [&](const std::vector<int>& a) {
    double z = 0;
    for (int i = 0; i < n; ++i) z += d[f[a[i]]][i] * w[i];
    return z;
  };
  double z = sum(assign_literally(d, f, n)), value = 0;
  do {
    value = z;
    for (int k = 0; k < n; ++k) {
      if (std::find(f.begin(), f.end(), k) != f.end()) continue;
      std::vector<int> a = assign_literally(d, f, n);
      double best_delta = 1e50;
      int best_j = 0;
      for (int j = 0; j < n_new; ++j) {
        g[j] = k;
        std::vector<int> b = assign_literally(d, g, n);
        double delta = 0;
        for (int i = 0; i < n; ++i)
          if (b[i] == j)
            delta += (d[i][k] - d[i][f[a[i]]]) * w[i];
          else if (a[i] == j)
            delta += (d[i][g[b[i]]] - d[i][f[a[i]]]) * w[i];
        if (delta < best_delta) {
          best_delta = delta;
          best_j = j;
        }
        g[j] = f[j];
      }
      if (best_delta < 0) f[best_j] = g[best_j] = k;
    }
    z = sum(assign_literally(d, f, n));
  } while (z < value);
  return {f, z, assign_literally(d, f, n)};
}

// The optimum over all N-subsets of the sum (or max) of each node's least weighted distance.
double enumerated_optimum(const distances& d, const std::vector<double>& w, int n_new, bool max) {
  const int n = static_cast<int>(w.size());
  double best = 1e300;
  std::vector<char> pick(n, 0);
  std::fill(pick.end() - n_new, pick.end(), 1);
  do {
    double z = 0;
    for (int i = 0; i < n; ++i) {
      double near = 1e300;
      for (int f = 0; f < n; ++f)
        if (pick[f]) near = std::min(near, d[f][i]);
      z = max ? std::max(z, near * w[i]) : z + near * w[i];
    }
    best = std::min(best, z);
  } while (std::next_permutation(pick.begin(), pick.end()));
  return best;
}

// The value a result claims, recomputed from its facilities and assignment: `by_node` when the
// assignment holds node numbers (the exact program), ordinals otherwise.
double claimed(const distances& d, const std::vector<double>& w, const run& r, bool by_node,
               bool max) {
  double z = 0;
  for (std::size_t i = 0; i < w.size(); ++i) {
    const int f = by_node ? r.assignment[i] : r.facilities[r.assignment[i]];
    z = max ? std::max(z, d[f][i] * w[i]) : z + d[f][i] * w[i];
  }
  return z;
}

TEST(n_problems, exact_reaches_the_enumerated_optimum_and_heuristics_stay_above) {
  std::mt19937 rng(31);
  for (int round = 0; round < 60; ++round) {
    const int n = 2 + round % 7, n_new = 1 + static_cast<int>(rng() % (n - 1));
    std::vector<double> w;
    for (int i = 0; i < n; ++i) w.push_back(1.0 + rng() % 4);
    std::vector<arc> arcs = testing::random_arcs(rng, n, n);
    location_graph g = undirected_form(make_location_graph(w, arcs));
    const distances d = testing::reference_distances(n, arcs, true, 1e300);
    const double sum_opt = enumerated_optimum(d, w, n_new, false);
    const double max_opt = enumerated_optimum(d, w, n_new, true);
    for (int routine = 0; routine < 6; ++routine) {
      const bool max = routine >= 4;
      run r = solve_with(routine, g, n_new);
      ASSERT_EQ(static_cast<int>(r.facilities.size()), n_new) << round << " " << routine;
      EXPECT_NEAR(claimed(d, w, r, routine == 0, max), r.value, 1e-9) << round << " " << routine;
      if (routine == 0)
        EXPECT_NEAR(r.value, sum_opt, 1e-9) << round;
      else
        EXPECT_GE(r.value, (max ? max_opt : sum_opt) - 1e-9) << round << " " << routine;
    }
    // n_exchange against its literal transcription, over the same three starts
    run best;
    best.value = 1e50;
    for (const std::vector<int>& s : n_problem::starting_sets(n, n_new)) {
      run r = exchange_literally(d, w, s);
      if (r.value < best.value) best = r;
    }
    run r = solve_with(2, g, n_new);
    EXPECT_EQ(r.facilities, best.facilities) << round;
    EXPECT_EQ(r.assignment, best.assignment) << round;
    EXPECT_EQ(r.value, best.value) << round;
  }
}

// No repair at the start: nodes of the other component read distance 0, so one facility serves
// the whole second pair for nothing. Greedy's first step repairs its own copy, with the message.
TEST(n_problems, a_disconnected_graph_is_not_repaired) {
  location_graph two = undirected_form(make_location_graph({1, 1, 1, 1}, {{0, 1, 5}, {2, 3, 5}}));
  testing::messages().clear();
  run r = solve_with(2, two, 2);
  EXPECT_EQ(r.value, 0.0);
  EXPECT_TRUE(testing::messages().empty());
  solve_with(3, two, 1);
  ASSERT_EQ(testing::messages().size(), 1u);
  EXPECT_EQ(testing::messages()[0].text, "Graph is not connected: MERO could connect it");
  EXPECT_EQ(two.number_of_edges(), 2);
}

}  // namespace
}  // namespace mero
