#include <vector>

#include "driver/family.h"
#include "driver/run_context.h"
#include "gauge/gauge_file.h"
#include "gauge/polygauge.h"

namespace mero {

namespace {

// Numbers 11 and 12: two weight columns under the l1 and the maximum norm.
double solve_two_sum(run_context& ctx, int number) {
  const double value = number == 11 ? ctx.problem.l1_2sum(true) : ctx.problem.linf_2sum(true);
  ctx.results = ctx.problem.optima();
  return value;
}

// Numbers 200, 201 and 210: the gauge file is read inside the case; the optima of a gauge problem
// stand in situations.
double solve_gauge_problem(run_context& ctx, int number) {
  ctx.gauges = read_polygauges(ctx.request.gauge_file);
  const std::vector<polygauge>& gauges = ctx.gauges;
  facilities& problem = ctx.problem;
  double value = 0.0;
  switch (number) {
    case 200:
      value = problem.gauge_median(gauges, ctx.gauge_numbers, true);
      break;
    case 201:
      value = problem.bi_crit_gauge_median(gauges, ctx.gauge_numbers, true);
      break;
    case 210:
      value = problem.gauge_center(gauges, ctx.gauge_numbers, true);
      break;
  }
  ctx.situations = problem.optima();
  return value;
}

// Numbers 306 and 356: lines under the block norm of the gauge that the first gauge number names;
// the line stands in situations like the optima of the other gauge problems.
double solve_block_line(run_context& ctx, int number) {
  ctx.gauges = read_polygauges(ctx.request.gauge_file);
  const std::vector<polygauge>& gauges = ctx.gauges;
  const double value = number == 306 ? ctx.problem.L_block_sum_M3(gauges, ctx.gauge_numbers)
                                     : ctx.problem.L_block_max_M4(gauges, ctx.gauge_numbers);
  ctx.situations = ctx.problem.optima();
  return value;
}

}  // namespace

std::vector<family_case> gauge_cases() {
  return {{11, solve_two_sum},
          {12, solve_two_sum},
          {200, solve_gauge_problem},
          {201, solve_gauge_problem},
          {210, solve_gauge_problem},
          {306, solve_block_line},
          {356, solve_block_line}};
}

}  // namespace mero
