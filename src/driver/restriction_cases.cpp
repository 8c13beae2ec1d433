// Chain R: single-facility problems with the forbidden regions of the -r file. The "out" forms
// turn every region into the only place where the new facility may stand before they solve.

#include "driver/family.h"
#include "driver/lpinfo.h"
#include "driver/run_context.h"
#include "gauge/gauge_file.h"
#include "gauge/polygauge.h"
#include "restriction/restriction_file.h"

namespace mero {

namespace {

void load_restrictions(run_context& ctx) {
  ctx.restrictions = read_restriction_file(ctx.request.second_file.value_or(""));
}

double keep_optima(run_context& ctx, double value) {
  ctx.results = ctx.problem.optima();
  return value;
}

// Numbers 50 to 52 and their "out" forms 55 to 57, the centers 60, 61 and 64.
double solve_restricted(run_context& ctx, int number) {
  load_restrictions(ctx);
  if (number >= 55 && number <= 57)
    for (const auto& r : ctx.restrictions) r->set_forbidden_outside();
  facilities& problem = ctx.problem;
  const restriction_list& list = ctx.restrictions;
  switch (number) {
    case 50:
    case 55:
      return keep_optima(ctx, problem.in_l2sqr_sum(list));
    case 51:
    case 56:
      return keep_optima(ctx, problem.in_l1_sum(list));
    case 52:
    case 57:
      return keep_optima(ctx, problem.in_linf_sum(list));
    case 60:
      return keep_optima(ctx, problem.in_l2_max(list));
    case 61:
      return keep_optima(ctx, problem.in_convex_linf_max(list));
    default:
      return keep_optima(ctx, problem.in_convex_l1_max(list));
  }
}

// Number 53, lp_sum with -r: p, eps, smoothing and the step limit from lpinfo (the values that
// -p writes when it cannot be read); p and eps go into the label.
double solve_restricted_lp_sum(run_context& ctx, int) {
  load_restrictions(ctx);
  const lp_info info = read_lpinfo_or_written(ctx.request.p);
  ctx.label_args.p = info.p;
  ctx.label_args.eps = info.eps;
  return keep_optima(ctx, ctx.problem.in_lp_sum(ctx.restrictions, info.p, info.eps, info.smoothing,
                                                info.max_iterations));
}

// Number 211 (chain RG): the gauge center with the regions of the -r file; the gauge file is read
// first, and the optimum stands in situations like that of the unrestricted gauge center.
double solve_restricted_gauge_center(run_context& ctx, int) {
  ctx.gauges = read_polygauges(ctx.request.gauge_file);
  load_restrictions(ctx);
  const double value =
      ctx.problem.restr_gauge_center(ctx.gauges, ctx.gauge_numbers, ctx.restrictions);
  ctx.situations = ctx.problem.optima();
  return value;
}

// Number 70: the Euclidean median around the first restriction, turned into a barrier, with the
// constants of the run.
double solve_barrier(run_context& ctx, int) {
  load_restrictions(ctx);
  return keep_optima(ctx, ctx.problem.barr_l2_sum(ctx.restrictions));
}

// Numbers 307 to 310: the sum line kept off the first restriction, a forbidden polygon. 308
// takes p from lpinfo (the value -p writes when it cannot be read) and puts it in the label.
double solve_restricted_line(run_context& ctx, int number) {
  load_restrictions(ctx);
  facilities& problem = ctx.problem;
  const restriction_list& list = ctx.restrictions;
  switch (number) {
    case 307:
      return keep_optima(ctx, problem.L_RkonvPoly_l2_sum(list));
    case 308: {
      const lp_info info = read_lpinfo_or_written(ctx.request.p);
      ctx.label_args.p = info.p;
      return keep_optima(ctx, problem.L_RkonvPoly_lp_sum(list, info.p));
    }
    case 309:
      return keep_optima(ctx, problem.L_RkonvPoly_l1_sum(list));
    default:
      return keep_optima(ctx, problem.L_RkonvPoly_linf_sum(list));
  }
}

// Number 311 (chain RG): the block-norm sum line kept off the first restriction. The gauge file
// is read first, then the -r file; the line stands in situations like that of 306.
double solve_restricted_block_line(run_context& ctx, int) {
  ctx.gauges = read_polygauges(ctx.request.gauge_file);
  load_restrictions(ctx);
  const double value =
      ctx.problem.L_RkonvPoly_block_sum(ctx.restrictions, ctx.gauges, ctx.gauge_numbers);
  ctx.situations = ctx.problem.optima();
  return value;
}

}  // namespace

std::vector<family_case> restriction_cases() {
  return {{50, solve_restricted},        {51, solve_restricted}, {52, solve_restricted},
          {53, solve_restricted_lp_sum}, {55, solve_restricted}, {56, solve_restricted},
          {57, solve_restricted},        {60, solve_restricted}, {61, solve_restricted},
          {64, solve_restricted},        {70, solve_barrier},
          {211, solve_restricted_gauge_center},
          {307, solve_restricted_line},  {308, solve_restricted_line},
          {309, solve_restricted_line},  {310, solve_restricted_line},
          {311, solve_restricted_block_line}};
}

}  // namespace mero
