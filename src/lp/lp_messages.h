#pragma once
// The messages of the linear programs that the planar and network solvers build: a model that
// lp_solve does not solve to an optimum ends the run, since its numbers would be no result.

#include "kernel/reporters.h"

namespace mero::lp_messages {

// Weights of mixed sign (or data near the double range) can make the objective fall for ever.
inline constexpr message unbounded{
    1370, "The linear program is unbounded: the data give no optimal location."};
inline constexpr message infeasible{1371, "The linear program has no feasible solution."};
// %d is lp_solve's result code (5 a numerical failure, -2 no memory, ...).
inline constexpr message not_solved{1372, "lp_solve found no optimum (result %d)."};

}  // namespace mero::lp_messages
