#include <algorithm>
#include <vector>

#include "discrete/discrete_problem.h"
#include "discrete/heuristics.h"

namespace mero {

namespace {

// A supply point counts as the nearest of a demand point when its cost is within this much of
// the nearest cost, so that near-ties among open facilities are priced as losses when it closes.
constexpr double nearest_tolerance = 0.001;

// The open facilities, ascending: a sorted vector, which is walked in the same order as a set
// and several times faster in these loops over every open facility.
using open_list = std::vector<int>;

double cheapest_open(const cost_table& t, const open_list& open_set, int i, int without) {
  double best = infinite_cost;
  for (int x : open_set)
    if (x != without && t(i, x) < best) best = t(i, x);
  return best;
}

// The change of z if j closed: what its demand points pay more, minus its fixed cost.
double closing_change(const cost_table& t, const open_list& open_set,
                      const std::vector<double>& nearest, int j) {
  double increase = 0.0;
  for (int i = 0; i < t.m; ++i) {
    const double s =
        t(i, j) <= nearest[i] + nearest_tolerance ? cheapest_open(t, open_set, i, j) : nearest[i];
    if (s - t(i, j) > 0.0) increase += s - t(i, j);
  }
  return increase - t.f[j];
}

double start_value(const cost_table& t, const open_list& open_set, bool supply_is_demand) {
  double z = 0.0;
  for (int j = 0; j < t.n; ++j) z += t.f[j];
  // With the supply list a copy of the demand list every point is taken to serve itself at cost
  // 0; a matrix with a non-zero diagonal then starts from a value that is too low.
  if (!supply_is_demand)
    for (int i = 0; i < t.m; ++i) z += cheapest_open(t, open_set, i, -1);
  return z;
}

}  // namespace

open_solution stingy_solution(const cost_table& t, bool supply_is_demand) {
  open_list open_set;
  for (int j = 0; j < t.n; ++j) open_set.push_back(j);
  double z = start_value(t, open_set, supply_is_demand);

  std::vector<double> nearest(t.m);
  for (;;) {
    for (int i = 0; i < t.m; ++i) nearest[i] = cheapest_open(t, open_set, i, -1);
    double best = 0.0;
    int drop = -1;
    for (int j : open_set) {
      const double d = closing_change(t, open_set, nearest, j);
      if (d < best) {
        best = d;
        drop = j;
      }
    }
    if (drop >= 0) open_set.erase(std::find(open_set.begin(), open_set.end(), drop));
    // Dropping the last open facility ends the search without booking its saving.
    if (!(best < 0.0 && !open_set.empty())) break;
    z += best;
  }
  return {z, open_set};
}

double discrete_problem::UFL_Stingy() {
  const cost_table t = make_heuristic_cost_table(*this);
  const open_solution s = stingy_solution(t, supply_is_demand);
  publish_solution(*this, t, s.open);
  return s.value;
}

}  // namespace mero
