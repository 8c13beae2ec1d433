#include <set>
#include <vector>

#include "discrete/discrete_problem.h"
#include "discrete/heuristics.h"

namespace mero {

namespace {

// The first facility: the one that serves everybody most cheaply on its own. Facility 0 stays
// the choice when no column sum is below 1e50, so that a problem whose fixed costs are all
// infinite still opens one facility.
int first_facility(const cost_table& t, double& z) {
  int best_j = 0;
  z = infinite_cost;
  for (int j = 0; j < t.n; ++j) {
    double s = t.f[j];
    for (int i = 0; i < t.m; ++i) s += t(i, j);
    if (s < z) {
      z = s;
      best_j = j;
    }
  }
  return best_j;
}

// Saving of opening j next to the open set described by `nearest`.
double saving(const cost_table& t, const std::vector<double>& nearest, int j) {
  double d = 0.0;
  for (int i = 0; i < t.m; ++i) {
    const double gain = nearest[i] - t(i, j);
    if (gain > 0.0) d += gain;
  }
  return d - t.f[j];
}

}  // namespace

open_solution greedy_solution(const cost_table& t) {
  std::set<int> open_set;
  std::set<int> closed_set;
  for (int j = 0; j < t.n; ++j) closed_set.insert(j);
  std::vector<double> nearest(t.m, infinite_cost);

  double z = 0.0;
  int chosen = first_facility(t, z);
  double g = 0.0;
  do {
    open_set.insert(chosen);
    closed_set.erase(chosen);
    z -= g;
    for (int i = 0; i < t.m; ++i)
      if (t(i, chosen) < nearest[i]) nearest[i] = t(i, chosen);

    g = -1.0;
    for (auto it = closed_set.begin(); it != closed_set.end();) {
      const double d = saving(t, nearest, *it);
      if (d >= 0.0 && d > g) {
        chosen = *it;
        g = d;
      }
      // Savings only fall as the open set grows, so a facility that does not pay now never will.
      it = d < 0.0 ? closed_set.erase(it) : std::next(it);
    }
  } while (g > 0.0 && !closed_set.empty());

  return {z, std::vector<int>(open_set.begin(), open_set.end())};
}

double discrete_problem::UFL_Greedy() {
  const cost_table t = make_heuristic_cost_table(*this);
  const open_solution s = greedy_solution(t);
  publish_solution(*this, t, s.open);
  return s.value;
}

}  // namespace mero
