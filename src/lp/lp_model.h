#pragma once
// What the model builders share: a model handle that is deleted on every way out, made quiet,
// and the numbering of the pair rows. Only the builders include lp_solve's header.

#include <lpsolve/lp_lib.h>

#include <cmath>
#include <memory>

#include "kernel/error_handler.h"
#include "lp/lp_messages.h"

namespace mero::lp_model {

using model_ptr = std::unique_ptr<lprec, decltype(&delete_lp)>;

// A new model of this size; lp_solve 5.5 would otherwise print its run log on the console.
inline model_ptr make_model(int rows, int columns) {
  model_ptr lp(make_lp(rows, columns), &delete_lp);
  if (!lp) kernel_error(1, "lp_solve: cannot allocate a model");
  set_verbose(lp.get(), NEUTRAL);
  return lp;
}

// Solves the model; a result other than an optimum (unbounded, infeasible, a numerical failure)
// ends the run with its message, so that no builder hands on the numbers of an unsolved model.
// lp_solve calls some unbounded models optimal, with its infinity (1e30) as the objective value;
// those are unbounded too.
inline void solve_to_optimum(lprec* lp) {
  switch (const int result = solve(lp)) {
    case OPTIMAL:
    case SUBOPTIMAL:
    case PRESOLVED:
      if (std::fabs(get_objective(lp)) >= get_infinite(lp)) report_error(lp_messages::unbounded);
      return;
    case UNBOUNDED:
      report_error(lp_messages::unbounded);
    case INFEASIBLE:
      report_error(lp_messages::infeasible);
    default:
      report_error(lp_messages::not_solved, {result});
  }
}

// Coordinates are free; lp_solve's columns are non-negative unless told otherwise.
constexpr double free_lower = -900000000000000.0;

// The number of pairs (i, k), i < k <= n, whose first index i is below j.
constexpr int pairs_before(int n, int j) { return (j - 1) * n - (j - 1) * j / 2; }

}  // namespace mero::lp_model
