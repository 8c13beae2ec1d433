#include "kernel/index.h"
#include "lp/n_median_model.h"
#include "network/n_problem_support.h"
#include "network/n_problems.h"

namespace mero {

graphpointset n_median_exact(const location_graph& g, int n_new, double& value,
                             std::vector<int>& assignment) {
  if (!n_problem::start(g, n_new)) return {};
  const n_problem::data x = n_problem::read(g);
  const int n = x.n;
  // Column f*n + i + 1 costs the service of node i by facility f; entry 0 is lp_solve's unused one.
  std::vector<double> objective(at(n) * n + 1, 0.0);
  for (int f = 0; f < n; ++f)
    for (int i = 0; i < n; ++i) objective[at(f * n + i + 1)] = x.cost(f, i);
  std::vector<int> column;
  value = solve_n_median_model(n, n * n, n_new, objective, column);
  // Row by row of the matrix: a facility joins the result at its first served node.
  graphpointset result;
  assignment.assign(at(n), 0);
  for (int f = 0; f < n; ++f) {
    bool open = false;
    for (int i = 0; i < n; ++i) {
      if (column[at(f * n + i)] == 0) continue;
      if (!open) result.push_back({f, f, 0.0});
      open = true;
      assignment[at(i)] = f;
    }
  }
  return result;
}

}  // namespace mero
