#include "lp/linf_model.h"

#include <cassert>

#include "lp/lp_model.h"

namespace mero {

namespace {

// First of the two rows of pair (j, k), 1 <= j < k <= n.
int pair_row(int n, int facility_rows, int j, int k) {
  const int before = lp_model::pairs_before(n, j);
  return facility_rows + 2 * (before + (k - j) - 1) + 1;
}

// Fills the matrix column by column, rows ascending, so that lp_solve only appends.
void fill_columns(lprec* lp, int n, int m, const std::vector<double>& z_coefficients) {
  const int facility_rows = 2 * n * m;
  for (int j = 1; j <= n; ++j) {
    for (int i = 1; i <= m; ++i) {
      const int row = 2 * ((j - 1) * m + i) - 1;
      set_mat(lp, row, j, 1.0);
      set_mat(lp, row + 1, j, -1.0);
    }
    for (int i = 1; i < j; ++i) {  // j is the second of the pair (i, j)
      const int row = pair_row(n, facility_rows, i, j);
      set_mat(lp, row, j, -1.0);
      set_mat(lp, row + 1, j, 1.0);
    }
    for (int k = j + 1; k <= n; ++k) {
      const int row = pair_row(n, facility_rows, j, k);
      set_mat(lp, row, j, 1.0);
      set_mat(lp, row + 1, j, -1.0);
    }
  }
  for (int row = 1; row <= linf_model_rows(n, m); ++row)
    set_mat(lp, row, n + 1, z_coefficients[row]);
}

}  // namespace

int linf_model_rows(int n, int m) { return 2 * n * m + n * (n - 1); }

double solve_linf_model(int n, int rows_per_facility, int m, const std::vector<double>& rhs_x,
                        const std::vector<double>& rhs_y, const std::vector<double>& z_coefficients,
                        std::vector<double>& x, std::vector<double>& y) {
  assert(rows_per_facility == 2 * m);
  const int rows = n * rows_per_facility + n * (n - 1);
  assert(static_cast<int>(rhs_x.size()) > rows && static_cast<int>(rhs_y.size()) > rows);
  assert(static_cast<int>(z_coefficients.size()) > rows);
  const lp_model::model_ptr lp = lp_model::make_model(rows, n + 1);
  std::vector<double> objective(n + 2, 0.0);
  objective[n + 1] = 1.0;
  set_obj_fn(lp.get(), objective.data());
  fill_columns(lp.get(), n, m, z_coefficients);
  set_rh_vec(lp.get(), const_cast<double*>(rhs_x.data()));  // lp_solve only reads the array
  for (int row = 1; row <= rows; ++row) set_constr_type(lp.get(), row, GE);
  for (int j = 1; j <= n; ++j) set_lowbo(lp.get(), j, lp_model::free_lower);
  lp_model::solve_to_optimum(lp.get());
  double value = lp->best_solution[0];
  x.assign(n, 0.0);
  for (int j = 1; j <= n; ++j) x[j - 1] = lp->best_solution[rows + j];
  set_rh_vec(lp.get(), const_cast<double*>(rhs_y.data()));
  lp_model::solve_to_optimum(lp.get());
  // The maximum norm takes the larger axis.
  if (lp->best_solution[0] > value) value = lp->best_solution[0];
  y.assign(n, 0.0);
  for (int j = 1; j <= n; ++j) y[j - 1] = lp->best_solution[rows + j];
  return value;
}

}  // namespace mero
