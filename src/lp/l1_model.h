#pragma once
// The linear program of the rectilinear multifacility median: one model solved once per axis.

#include <vector>

namespace mero {

// Minimises a sum of weighted absolute deviations for n new coordinates, x axis and y axis in
// turn on the same model. Rows: the n * m location rows (row (j - 1) * m + i says
// x_j + d+ - d- = a_i), then one row per pair j < k (x_j - x_k - e+ + e- = 0). Columns: x_1 to x_n,
// then two deviation columns per row, in row order. The first equal_rows rows are equalities;
// the others keep lp_solve's default type (at most).
// objective has 1 + n + 2 * rows entries and rhs_x, rhs_y have 1 + rows, all 1-based (entry 0
// unused). Returns the sum of both optimal objectives; x and y receive the n coordinates.
// The status of the solver is not examined: an unbounded or infeasible model yields what
// lp_solve leaves in its solution.
double solve_l1_model(int n, int m, int equal_rows, const std::vector<double>& objective,
                      const std::vector<double>& rhs_x, const std::vector<double>& rhs_y,
                      std::vector<double>& x, std::vector<double>& y);

// Rows of solve_l1_model for n new facilities and m locations.
int l1_model_rows(int n, int m);

}  // namespace mero
