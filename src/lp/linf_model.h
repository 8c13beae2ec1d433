#pragma once
// The linear program of the maximum-norm multifacility center: minimise one bound z.

#include <vector>

namespace mero {

// Minimises z, column n + 1, subject to rows "coefficient * z >= distance" for each axis in
// turn. Rows: per new facility j and location i two rows, x_j + c z >= a_i and -x_j + c' z >= -a_i
// (rows_per_facility = 2 * m rows per facility), then per pair j < k two rows,
// x_j - x_k + c z >= 0 and -x_j + x_k + c z >= 0. rhs_x, rhs_y and z_coefficients are 1-based
// (entry 0 unused) with one entry per row. Returns the larger of the two axes' optima; x and y
// receive the n coordinates. The solver status is not examined.
double solve_linf_model(int n, int rows_per_facility, int m, const std::vector<double>& rhs_x,
                        const std::vector<double>& rhs_y, const std::vector<double>& z_coefficients,
                        std::vector<double>& x, std::vector<double>& y);

// Rows of solve_linf_model for n new facilities and m locations.
int linf_model_rows(int n, int m);

}  // namespace mero
