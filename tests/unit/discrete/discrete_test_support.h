#pragma once
// Builds discrete problems for the tests straight from a cost table: supply point j stands at
// (j, 0) with fixed cost f[j], demand point i at (i, 1) with weight 1.

#include <vector>

#include "discrete/discrete_problem.h"

namespace mero::testing {

using cost_rows = std::vector<std::vector<double>>;

// The four solvers, for tests that run each of them.
using ufl_solver = double (discrete_problem::*)();
inline constexpr ufl_solver ufl_solvers[] = {
    &discrete_problem::UFL_Greedy, &discrete_problem::UFL_Stingy,
    &discrete_problem::UFL_Interchange, &discrete_problem::UFL_Dualoc};

inline discrete_problem make_discrete(const cost_rows& costs, const std::vector<double>& fixed) {
  discrete_problem p;
  const int m = static_cast<int>(costs.size()), n = static_cast<int>(fixed.size());
  p.cost = matrix(m, n);
  for (int i = 0; i < m; ++i) {
    for (int j = 0; j < n; ++j) p.cost(i, j) = costs[i][j];
    p.demand.push_back(location(2, 1, static_cast<double>(i), 1.0, 1.0));
    p.demand_names.push_back("d" + std::to_string(i));
  }
  for (int j = 0; j < n; ++j) {
    p.supply.push_back(location(2, 1, static_cast<double>(j), 0.0, fixed[j]));
    p.supply_names.push_back("s" + std::to_string(j));
  }
  return p;
}

// The supply indices of the locations in opt (supply point j stands at x = j).
inline std::vector<int> open_indices(const discrete_problem& p) {
  std::vector<int> open;
  for (const location& l : p.opt) open.push_back(static_cast<int>(l.coordinate(0)));
  return open;
}

// For each demand point the supply index where its assignment row holds 1.0, -1 if none; a row
// with more than one entry, or an entry other than 0 and 1, gives -2.
inline std::vector<int> served_by(const discrete_problem& p) {
  std::vector<int> result;
  for (int i = 0; i < p.assignment.dim1(); ++i) {
    int at = -1;
    for (int j = 0; j < p.assignment.dim2(); ++j) {
      const double x = p.assignment(i, j);
      if (x == 1.0)
        at = at == -1 ? j : -2;
      else if (x != 0.0)
        at = -2;
    }
    result.push_back(at);
  }
  return result;
}

}  // namespace mero::testing
