#include <algorithm>
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

// Open and closed facilities are kept as ascending vectors: the sums then run in the order of the
// facility numbers, and a small vector is walked much faster than a tree.
using facility_set = std::vector<int>;

void take_out(facility_set& s, int j) { s.erase(std::lower_bound(s.begin(), s.end(), j)); }
void put_in(facility_set& s, int j) { s.insert(std::lower_bound(s.begin(), s.end(), j), j); }

std::vector<double> cheapest(const cost_table& t, const facility_set& open_set, int without) {
  std::vector<double> best(t.m, infinite_cost);
  for (int i = 0; i < t.m; ++i)
    for (int x : open_set)
      if (x != without && t(i, x) < best[i]) best[i] = t(i, x);
  return best;
}

// The first open facility that has a profitable exchange, with its best closed partner.
exchange find_exchange(const cost_table& t, const facility_set& open_set,
                       const facility_set& closed_set) {
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
  facility_set open_set(start.open.begin(), start.open.end());
  std::sort(open_set.begin(), open_set.end());
  open_set.erase(std::unique(open_set.begin(), open_set.end()), open_set.end());
  facility_set closed_set;
  for (int j = 0; j < t.n; ++j)
    if (!std::binary_search(open_set.begin(), open_set.end(), j)) closed_set.push_back(j);
  double z = start.value;
  if (!closed_set.empty()) {
    for (exchange e = find_exchange(t, open_set, closed_set); e.leaving >= 0;
         e = find_exchange(t, open_set, closed_set)) {
      take_out(open_set, e.leaving);
      put_in(closed_set, e.leaving);
      take_out(closed_set, e.entering);
      put_in(open_set, e.entering);
      z -= e.gain;
    }
  }
  return {z, open_set};
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
