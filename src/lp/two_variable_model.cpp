#include "lp/two_variable_model.h"

#include <cassert>

#include "lp/lp_model.h"

namespace mero {

std::array<double, 3> solve_two_variable_model(
    int rows, const std::vector<double>& rhs, const std::vector<double>& a1,
    const std::vector<double>& a2, const std::vector<double>& lower,
    const std::vector<double>& upper, const std::vector<double>& objective, bool maximise,
    bool* optimal) {
  assert(static_cast<int>(rhs.size()) > rows && static_cast<int>(a1.size()) > rows &&
         static_cast<int>(a2.size()) > rows);
  assert(lower.size() > 2 && upper.size() > 2 && objective.size() > 2);
  const lp_model::model_ptr lp = lp_model::make_model(rows, 2);
  // lp_solve only reads these arrays.
  set_obj_fn(lp.get(), const_cast<double*>(objective.data()));
  set_rh_vec(lp.get(), const_cast<double*>(rhs.data()));
  for (int r = 1; r <= rows; ++r) {
    set_mat(lp.get(), r, 1, a1[r]);
    set_mat(lp.get(), r, 2, a2[r]);
  }
  for (int col = 1; col <= 2; ++col) {
    set_lowbo(lp.get(), col, lower[col]);
    set_upbo(lp.get(), col, upper[col]);
  }
  if (maximise) set_maxim(lp.get());
  // A caller that asks for `optimal` deals with an empty model itself; for all others a model
  // without an optimum ends the run.
  if (optimal) {
    const int status = solve(lp.get());
    *optimal = status == OPTIMAL || status == PRESOLVED;
  } else {
    lp_model::solve_to_optimum(lp.get());
  }
  const int model_rows = get_Nrows(lp.get());
  return {lp->best_solution[model_rows + 1], lp->best_solution[model_rows + 2],
          lp->best_solution[0]};
}

}  // namespace mero
