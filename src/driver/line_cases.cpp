#include "driver/family.h"
#include "driver/lpinfo.h"
#include "driver/run_context.h"

namespace mero {

namespace {

// Numbers 300 to 302, 304, 305 and 350 to 354: the line solvers that need only the locations.
double solve_line(run_context& ctx, int number) {
  facilities& problem = ctx.problem;
  double value = 0.0;
  switch (number) {
    case 300:
      value = problem.L_l2_sum_M3();
      break;
    case 301:
      value = problem.L_l1_sum_M3();
      break;
    case 302:
      value = problem.L_linf_sum_M3();
      break;
    case 304:
      value = problem.L_l2_sum_M2logM();
      break;
    case 305:
      value = problem.L_l2_sum_M2();
      break;
    case 350:
      value = problem.L_l2_max_M4();
      break;
    case 351:
      value = problem.L_l1_max_M4();
      break;
    case 352:
      value = problem.L_linf_max_M4();
      break;
    case 353:
      value = problem.L_l2_v1_max();
      break;
    case 354:
      value = problem.L_l2_max_M2logM();
      break;
  }
  ctx.results = problem.optima();
  return value;
}

// Numbers 303 and 355: p from lpinfo (the value -p wrote when the file cannot be read), and p in
// the label.
double solve_lp_line(run_context& ctx, int number) {
  const lp_info info = read_lpinfo_or_written(ctx.request.p);
  const double value =
      number == 303 ? ctx.problem.L_lp_sum_M3(info.p) : ctx.problem.L_lp_max_M4(info.p);
  ctx.results = ctx.problem.optima();
  ctx.label_args.p = info.p;
  return value;
}

}  // namespace

std::vector<family_case> line_cases() {
  std::vector<family_case> cases;
  for (int number : {300, 301, 302, 304, 305, 350, 351, 352, 353, 354})
    cases.push_back({number, solve_line});
  for (int number : {303, 355}) cases.push_back({number, solve_lp_line});
  return cases;
}

}  // namespace mero
