#include "driver/family.h"
#include "driver/run_context.h"

namespace mero {

namespace {

// Numbers 401 to 404 solve the discrete problem of the run; a run started with -l reaches them
// with an empty one, which the solver refuses with its own message.
double solve_discrete(run_context& ctx, int number) {
  discrete_problem& p = ctx.discrete;
  switch (number) {
    case 401:
      return p.UFL_Greedy();
    case 402:
      return p.UFL_Stingy();
    case 403:
      return p.UFL_Interchange();
    default:
      return p.UFL_Dualoc();
  }
}

}  // namespace

std::vector<family_case> discrete_cases() {
  return {
      {401, solve_discrete}, {402, solve_discrete}, {403, solve_discrete}, {404, solve_discrete}};
}

}  // namespace mero
