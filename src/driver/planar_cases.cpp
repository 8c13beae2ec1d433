#include "driver/family.h"
#include "driver/lpinfo.h"
#include "driver/run_context.h"

namespace mero {

namespace {

// Number 0, l1_sum: the rectilinear median of weight column 0.
double solve_l1_sum(run_context& ctx, int) {
  const double value = ctx.problem.l1_sum(0, true);
  ctx.results = ctx.problem.optima();
  return value;
}

// Numbers 2 and 4 to 10: solvers that need nothing beyond the locations. The centers (5 to 9)
// and l2sqr_qsum (10) have no column argument.
double solve_plain(run_context& ctx, int number) {
  facilities& problem = ctx.problem;
  double value = 0.0;
  switch (number) {
    case 2:
      value = problem.l2sqr_sum(0, true);
      break;
    case 4:
      value = problem.linf_sum(0, true);
      break;
    case 5:
      value = problem.l1_max(true);
      break;
    case 6:
      value = problem.l2_v1_max(true);
      break;
    case 7:
      value = problem.linf_max(true);
      break;
    case 8:
      value = problem.l1_v1_max(true);
      break;
    case 9:
      value = problem.linf_v1_max(true);
      break;
    case 10:
      value = problem.l2sqr_qsum(true);
      break;
  }
  ctx.results = problem.optima();
  return value;
}

// Number 1, l2_sum: eps from lpinfo when it can be read, else 0.001.
double solve_l2_sum(run_context& ctx, int) {
  const std::optional<lp_info> info = read_lpinfo();
  const double eps = info ? info->eps : 0.001;
  const double value = ctx.problem.l2_sum(0, eps, true);
  ctx.results = ctx.problem.optima();
  ctx.label_args.eps = eps;
  return value;
}

// Number 3, lp_sum: all four values from lpinfo. When it cannot be read (the directory was not
// writable, say), the values that -p writes stand in: its p, eps and smoothing 0.0001, 50 steps.
double solve_lp_sum(run_context& ctx, int) {
  const lp_info info = read_lpinfo_or_written(ctx.request.p);
  const double value =
      ctx.problem.lp_sum(info.p, info.eps, info.smoothing, info.max_iterations, 0, true);
  ctx.results = ctx.problem.optima();
  ctx.label_args.p = info.p;
  ctx.label_args.eps = info.eps;
  return value;
}

}  // namespace

std::vector<family_case> planar_cases() {
  return {{0, solve_l1_sum}, {1, solve_l2_sum}, {2, solve_plain}, {3, solve_lp_sum},
          {4, solve_plain},  {5, solve_plain},  {6, solve_plain}, {7, solve_plain},
          {8, solve_plain},  {9, solve_plain},  {10, solve_plain}};
}

}  // namespace mero
