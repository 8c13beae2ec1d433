#include "lp/l1_model.h"

#include <algorithm>
#include <cassert>

#include "lp/lp_model.h"

namespace mero {

namespace {

// The model is the dual of the deviation model (one row per term, x_j + d+ - d- = a_i, two
// deviation columns each): with |z| = max { u z : -1 <= u <= 1 }, the sum is the maximum of
//   sum_j sum_i a_i p_ji   subject to, for every facility j,
//   sum_i p_ji + sum_{k>j} q_jk - sum_{k<j} q_kj = 0,   |p_ji| <= w_ji,   |q_jk| <= v_jk.
// It has n rows instead of n * m + n (n - 1) / 2, and bounded columns, which the simplex keeps
// off the basis, so each iteration works on an n by n basis; the x_j are the row duals. Columns:
// p_ji at j * m + i + 1, then q_jk for the pairs in order. Filled column by column, so that
// lp_solve appends to its column-major store.
void fill_columns(lprec* lp, int n, int m, const std::vector<double>& weights,
                  const std::vector<double>& ties) {
  int column = 1;
  for (int j = 1; j <= n; ++j) {
    for (int i = 0; i < m; ++i, ++column) {
      set_mat(lp, j, column, 1.0);
      const double w = weights[(j - 1) * m + i];
      set_bounds(lp, column, -w, w);
    }
  }
  std::size_t pair = 0;
  for (int j = 1; j <= n; ++j) {
    for (int k = j + 1; k <= n; ++k, ++column, ++pair) {
      set_mat(lp, j, column, 1.0);
      set_mat(lp, k, column, -1.0);
      set_bounds(lp, column, -ties[pair], ties[pair]);
    }
  }
}

// Solves for one axis (objective a_i on every p_ji) and copies the n row duals, which are the
// coordinates; returns the optimal value.
double solve_axis(lprec* lp, int n, int m, const std::vector<double>& axis,
                  std::vector<double>& out) {
  std::vector<double> objective(get_Ncolumns(lp) + 1, 0.0);
  for (int j = 0; j < n; ++j) std::copy(axis.begin(), axis.end(), objective.begin() + 1 + j * m);
  set_obj_fn(lp, objective.data());
  lp_model::solve_to_optimum(lp);
  double* duals = nullptr;
  if (!get_ptr_sensitivity_rhs(lp, &duals, nullptr, nullptr) || duals == nullptr)
    report_error(lp_messages::not_solved, {NOFEASFOUND});
  out.assign(duals, duals + n);
  return get_objective(lp);
}

}  // namespace

double solve_l1_model(int n, int m, const std::vector<double>& weights,
                      const std::vector<double>& ties, const std::vector<double>& axis_x,
                      const std::vector<double>& axis_y, std::vector<double>& x,
                      std::vector<double>& y) {
  assert(static_cast<int>(weights.size()) == n * m);
  assert(static_cast<int>(ties.size()) == n * (n - 1) / 2);
  assert(static_cast<int>(axis_x.size()) == m && static_cast<int>(axis_y.size()) == m);
  // A negative cost on a term lets both of its deviations grow together without end; the dual
  // would only call that infeasible.
  const auto negative = [](double c) { return c < 0.0; };
  if (std::any_of(weights.begin(), weights.end(), negative) ||
      std::any_of(ties.begin(), ties.end(), negative))
    report_error(lp_messages::unbounded);
  const lp_model::model_ptr lp = lp_model::make_model(n, n * m + static_cast<int>(ties.size()));
  fill_columns(lp.get(), n, m, weights, ties);
  for (int j = 1; j <= n; ++j) set_constr_type(lp.get(), j, EQ);
  set_maxim(lp.get());
  double sum = solve_axis(lp.get(), n, m, axis_x, x);
  sum += solve_axis(lp.get(), n, m, axis_y, y);
  return sum;
}

}  // namespace mero
