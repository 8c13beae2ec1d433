#pragma once
// A linear program in two variables, as the network methods build them.

#include <array>
#include <vector>

namespace mero {

// Minimises (or, with maximise, maximises) objective[1] * v1 + objective[2] * v2 subject to
// a1[r] * v1 + a2[r] * v2 <= rhs[r] for r = 1 to rows (lp_solve's default row type) and
// lower[c] <= v_c <= upper[c] for c = 1, 2. All arrays are 1-based, entry 0 unused.
// Returns v1, v2 and the objective value. A caller that must tell an empty model apart passes
// `optimal`, which is set to whether lp_solve found an optimum (the values are then what lp_solve
// left); without it, a model with no optimum ends the run (1370 unbounded, 1371 infeasible).
std::array<double, 3> solve_two_variable_model(int rows, const std::vector<double>& rhs,
                                               const std::vector<double>& a1,
                                               const std::vector<double>& a2,
                                               const std::vector<double>& lower,
                                               const std::vector<double>& upper,
                                               const std::vector<double>& objective, bool maximise,
                                               bool* optimal = nullptr);

}  // namespace mero
