#include "driver/family.h"
#include "driver/run_context.h"

namespace mero {

namespace {

// Number 0, l1_sum: the rectilinear median of weight column 0.
double solve_l1_sum(run_context& ctx, int) {
  const double value = ctx.problem.l1_sum(0, true);
  ctx.results = ctx.problem.optima();
  return value;
}

}  // namespace

std::vector<family_case> planar_cases() { return {{0, solve_l1_sum}}; }

}  // namespace mero
