// Chain A with -g and -n: N new facilities at nodes of the undirected form of the graph.

#include "driver/driver_messages.h"
#include "driver/family.h"
#include "driver/run_context.h"
#include "kernel/reporters.h"
#include "model/scan_common.h"
#include "network/n_problems.h"

namespace mero {

namespace {

// N is the text of -n read with the rules of atoi (clamped to the int range). Only 120 to 123
// are refused on the command line without -n; for the N-centers (131, 133) the missing number
// is the same error here, before anything is solved.
int number_of_new_facilities(run_context& ctx) {
  if (!ctx.request.second_file) report_error(driver_messages::missing_n);
  ctx.label_args.count = scan_int(ctx.request.second_file->c_str());
  return ctx.label_args.count;
}

double solve_n_problem(run_context& ctx, int number) {
  const int n_new = number_of_new_facilities(ctx);
  const location_graph form = undirected_form(ctx.graph);
  const n_objective mode = number >= 130 ? n_objective::max : n_objective::sum;
  double value = 0.0;
  std::vector<int> assignment;
  switch (number) {
    case 120:
      ctx.graph.optima = n_median_exact(form, n_new, value, assignment);
      break;
    case 121:
    case 131:
      ctx.graph.optima = n_partitioning(form, n_new, mode, value, assignment);
      break;
    case 122:
      ctx.graph.optima = n_exchange(form, n_new, value, assignment);
      break;
    default:
      ctx.graph.optima = n_greedy(form, n_new, mode, value, assignment);
      break;
  }
  return value;
}

}  // namespace

std::vector<family_case> n_problem_cases() {
  return {{120, solve_n_problem}, {121, solve_n_problem}, {122, solve_n_problem},
          {123, solve_n_problem}, {131, solve_n_problem}, {133, solve_n_problem}};
}

}  // namespace mero
