// Chain N: several new facilities tied together by the dependency matrix of the -m file. The
// number of new facilities is the weight dimension of the first location.

#include <fstream>

#include "driver/family.h"
#include "driver/lpinfo.h"
#include "driver/run_context.h"
#include "kernel/reporters.h"
#include "model/matrix_file.h"

namespace mero {

namespace {

// Reads the -m file into the run's matrix and sets the label's count; returns that count.
int load_dependencies(run_context& ctx) {
  std::ifstream in(ctx.request.second_file.value_or(""));
  ctx.new_facility_costs = read_matrix(in, ctx.problem);
  ctx.label_args.count = ctx.problem.front().weight_dim();
  return ctx.label_args.count;
}

double keep_optima(run_context& ctx, double value) {
  ctx.results = ctx.problem.optima();
  return value;
}

double solve_N_l1_sum_v1(run_context& ctx, int) {
  const int n = load_dependencies(ctx);
  return keep_optima(ctx, ctx.problem.N_l1_sum_v1(n, ctx.new_facility_costs, true));
}

double solve_N_l2sqr_sum(run_context& ctx, int) {
  const int n = load_dependencies(ctx);
  return keep_optima(ctx, ctx.problem.N_l2sqr_sum(n, ctx.new_facility_costs, true));
}

double solve_N_l2_sum_v1(run_context& ctx, int) {
  const int n = load_dependencies(ctx);
  return keep_optima(ctx, ctx.problem.N_lp_sum_v1(n, 2, ctx.new_facility_costs, true).first);
}

double solve_N_linf_sum_v1(run_context& ctx, int) {
  const int n = load_dependencies(ctx);
  return keep_optima(ctx, ctx.problem.N_linf_sum_v1(n, ctx.new_facility_costs));
}

// p comes from lpinfo, which -p wrote; when it cannot be read, from -p itself.
double solve_N_lp_sum_v1(run_context& ctx, int) {
  const int n = load_dependencies(ctx);
  const int p = read_lpinfo_or_written(ctx.request.p).p;
  ctx.label_args.p = p;
  return keep_optima(ctx, ctx.problem.N_lp_sum_v1(n, p, ctx.new_facility_costs, true).first);
}

double solve_N_l1_max(run_context& ctx, int) {
  const int n = load_dependencies(ctx);
  return keep_optima(ctx, ctx.problem.N_l1_max(n, ctx.new_facility_costs, true));
}

double solve_N_linf_max(run_context& ctx, int) {
  const int n = load_dependencies(ctx);
  return keep_optima(ctx, ctx.problem.N_linf_max(n, ctx.new_facility_costs, true));
}

}  // namespace

std::vector<family_case> multifacility_cases() {
  return {{20, solve_N_l1_sum_v1},   {21, solve_N_l2sqr_sum}, {22, solve_N_l2_sum_v1},
          {23, solve_N_linf_sum_v1}, {24, solve_N_lp_sum_v1}, {40, solve_N_l1_max},
          {41, solve_N_linf_max}};
}

}  // namespace mero
