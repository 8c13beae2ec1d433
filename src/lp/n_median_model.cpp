#include "lp/n_median_model.h"

#include <cassert>
#include <cmath>

#include "lp/lp_model.h"

namespace mero {

namespace {

// Row that forbids median i (1-based) to serve node j unless it is open.
int link_row(int c, int i, int j) {
  const int counter = j < i ? j : j - 1;  // counts the j != i in order, from 1
  return (i - 1) * (c - 1) + counter + c;
}

// Fills the matrix column by column, rows ascending, so that lp_solve only appends.
void fill_columns(lprec* lp, int c) {
  const int last_row = c * c + 1;
  for (int i = 1; i <= c; ++i) {
    for (int j = 1; j <= c; ++j) {
      const int col = (i - 1) * c + j;
      set_mat(lp, j, col, 1.0);
      if (j != i) {
        set_mat(lp, link_row(c, i, j), col, 1.0);
        continue;
      }
      for (int k = 1; k <= c; ++k)
        if (k != i) set_mat(lp, link_row(c, i, k), col, -1.0);
      set_mat(lp, last_row, col, 1.0);
    }
  }
}

}  // namespace

double solve_n_median_model(int nodes, int columns, int p, const std::vector<double>& objective,
                            std::vector<int>& result) {
  const int c = nodes;
  assert(columns == c * c);
  assert(static_cast<int>(objective.size()) > columns);
  const int rows = columns + 1;
  const lp_model::model_ptr lp = lp_model::make_model(rows, columns);
  set_obj_fn(lp.get(), const_cast<double*>(objective.data()));  // lp_solve only reads it
  for (int col = 1; col <= columns; ++col) {
    set_int(lp.get(), col, TRUE);
    set_upbo(lp.get(), col, 1.0);
    set_lowbo(lp.get(), col, 0.0);
  }
  fill_columns(lp.get(), c);
  for (int i = 1; i <= c; ++i) {
    set_rh(lp.get(), i, 1.0);
    set_constr_type(lp.get(), i, EQ);
  }
  set_rh(lp.get(), rows, static_cast<double>(p));
  set_constr_type(lp.get(), rows, EQ);
  lp_model::solve_to_optimum(lp.get());
  result.assign(columns, 0);
  // Rounded rather than truncated: a binary that lp_solve reports as 0.9999999 is a 1.
  for (int col = 1; col <= columns; ++col)
    result[col - 1] = static_cast<int>(std::lround(lp->best_solution[rows + col]));
  return lp->best_solution[0];
}

}  // namespace mero
