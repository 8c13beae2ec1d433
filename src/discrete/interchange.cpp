#include <algorithm>
#include <set>
#include <vector>

#include "discrete/discrete_problem.h"
#include "discrete/heuristics.h"

namespace mero {

namespace {

// An exchange must gain more than 0; starting the best gain below 0 lets the first closed
// facility be remembered even when none pays.
constexpr double no_gain = -0.1;

struct exchange {
  int leaving = -1;
  int entering = -1;
  double gain = 0.0;
};

std::vector<double> cheapest(const cost_table& t, const std::set<int>& open_set, int without) {
  std::vector<double> best(t.m, infinite_cost);
  for (int i = 0; i < t.m; ++i)
    for (int x : open_set)
      if (x != without && t(i, x) < best[i]) best[i] = t(i, x);
  return best;
}

// The first open facility that has a profitable exchange, with its best closed partner.
exchange find_exchange(const cost_table& t, const std::set<int>& open_set,
                       const std::set<int>& closed_set) {
  const std::vector<double> nearest = cheapest(t, open_set, -1);
  for (int j : open_set) {
    const std::vector<double> second = cheapest(t, open_set, j);
    exchange best{j, -1, no_gain};
    for (int k : closed_set) {
      double s = t.f[j] - t.f[k];
      for (int i = 0; i < t.m; ++i) s += nearest[i] - std::min(second[i], t(i, k));
      if (s > best.gain) {
        best.gain = s;
        best.entering = k;
      }
    }
    if (best.gain > 0.0) return best;
  }
  return {};
}

open_solution improve(const cost_table& t, const open_solution& start) {
  std::set<int> open_set(start.open.begin(), start.open.end());
  std::set<int> closed_set;
  for (int j = 0; j < t.n; ++j)
    if (!open_set.count(j)) closed_set.insert(j);
  double z = start.value;
  if (!closed_set.empty()) {
    for (exchange e = find_exchange(t, open_set, closed_set); e.leaving >= 0;
         e = find_exchange(t, open_set, closed_set)) {
      open_set.erase(e.leaving);
      closed_set.insert(e.leaving);
      closed_set.erase(e.entering);
      open_set.insert(e.entering);
      z -= e.gain;
    }
  }
  return {z, std::vector<int>(open_set.begin(), open_set.end())};
}

}  // namespace

open_solution interchange_solution(const cost_table& t, bool supply_is_demand) {
  const open_solution from_greedy = improve(t, greedy_solution(t));
  const open_solution from_stingy = improve(t, stingy_solution(t, supply_is_demand));
  // A tie goes to the stingy start.
  return from_greedy.value < from_stingy.value ? from_greedy : from_stingy;
}

double discrete_problem::UFL_Interchange() {
  const cost_table t = make_heuristic_cost_table(*this);
  const open_solution s = interchange_solution(t, supply_is_demand);
  publish_solution(*this, t, s.open);
  return s.value;
}

}  // namespace mero
