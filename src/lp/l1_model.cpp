#include "lp/l1_model.h"

#include <cassert>

#include "lp/lp_model.h"

namespace mero {

namespace {

// Number of the row of pair (j, k), 1 <= j < k <= n, behind the location rows.
int pair_row(int n, int m, int j, int k) {
  const int before = lp_model::pairs_before(n, j);
  return n * m + before + (k - j);
}

// Fills the matrix column by column (so that lp_solve appends instead of shifting its
// column-major storage): x_j, then the deviation pair of every row in row order.
void fill_columns(lprec* lp, int n, int m) {
  for (int j = 1; j <= n; ++j) {
    for (int i = 1; i <= m; ++i) set_mat(lp, (j - 1) * m + i, j, 1.0);
    for (int i = 1; i < j; ++i) set_mat(lp, pair_row(n, m, i, j), j, -1.0);
    for (int k = j + 1; k <= n; ++k) set_mat(lp, pair_row(n, m, j, k), j, 1.0);
  }
  const int location_rows = n * m;
  for (int row = 1; row <= location_rows; ++row) {
    set_mat(lp, row, n + 2 * row - 1, 1.0);
    set_mat(lp, row, n + 2 * row, -1.0);
  }
  // The pairs of the pair rows start at column (2 * m + 1) * n + 1.
  for (int row = location_rows + 1; row <= l1_model_rows(n, m); ++row) {
    set_mat(lp, row, n + 2 * row - 1, -1.0);
    set_mat(lp, row, n + 2 * row, 1.0);
  }
}

// Solves for one axis and copies the n coordinates; returns the objective.
double solve_axis(lprec* lp, int n, const std::vector<double>& rhs, std::vector<double>& out) {
  set_rh_vec(lp, const_cast<double*>(rhs.data()));  // lp_solve only reads the array
  lp_model::solve_to_optimum(lp);
  const int rows = get_Nrows(lp);
  out.assign(n, 0.0);
  for (int j = 1; j <= n; ++j) out[j - 1] = lp->best_solution[rows + j];
  return lp->best_solution[0];
}

}  // namespace

int l1_model_rows(int n, int m) { return n * m + n * (n - 1) / 2; }

double solve_l1_model(int n, int m, int equal_rows, const std::vector<double>& objective,
                      const std::vector<double>& rhs_x, const std::vector<double>& rhs_y,
                      std::vector<double>& x, std::vector<double>& y) {
  const int rows = l1_model_rows(n, m);
  const int columns = n + 2 * rows;
  assert(static_cast<int>(objective.size()) >= columns + 1);
  assert(static_cast<int>(rhs_x.size()) >= rows + 1 && static_cast<int>(rhs_y.size()) >= rows + 1);
  const lp_model::model_ptr lp = lp_model::make_model(rows, columns);
  set_obj_fn(lp.get(), const_cast<double*>(objective.data()));
  fill_columns(lp.get(), n, m);
  for (int row = 1; row <= equal_rows && row <= rows; ++row) set_constr_type(lp.get(), row, EQ);
  for (int j = 1; j <= n; ++j) set_lowbo(lp.get(), j, lp_model::free_lower);
  double sum = solve_axis(lp.get(), n, rhs_x, x);
  sum += solve_axis(lp.get(), n, rhs_y, y);
  return sum;
}

}  // namespace mero
