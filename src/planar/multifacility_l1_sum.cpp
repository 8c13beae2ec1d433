#include <vector>

#include "lp/l1_model.h"
#include "planar/multifacility.h"

namespace mero {

namespace {

// Objective and right-hand sides of the rectilinear model, 1-based, in the model's column and
// row order: x_1 to x_n (cost 0), the deviation pair of each location row (j, i) at weight w_ij,
// then the deviation pair of each pair row j < k at V(j, k).
struct l1_program {
  std::vector<double> objective{0.0};
  std::vector<double> rhs_x{0.0};
  std::vector<double> rhs_y{0.0};
};

l1_program build_program(const facilities& problem, int n, const matrix& V) {
  l1_program lp;
  lp.objective.resize(n + 1, 0.0);
  for (int j = 0; j < n; ++j) {
    for (const location& a : problem) {
      lp.objective.insert(lp.objective.end(), 2, a.weight(j));
      lp.rhs_x.push_back(a.coordinate(0));
      lp.rhs_y.push_back(a.coordinate(1));
    }
  }
  for (int j = 0; j < n; ++j) {
    for (int k = j + 1; k < n; ++k) {
      lp.objective.insert(lp.objective.end(), 2, V(j, k));
      lp.rhs_x.push_back(0.0);
      lp.rhs_y.push_back(0.0);
    }
  }
  return lp;
}

}  // namespace

double facilities::N_l1_sum_v1(int n, const matrix& V, bool clear) {
  check_multifacility_data(*this, n, V);
  if (clear) optima_.clear();
  const int m = static_cast<int>(size());
  const l1_program lp = build_program(*this, n, V);
  // Every row is an equality: a pair row left at lp_solve's default (at most) would charge
  // V(j, k) only when x_j lies right of x_k, and a pair pulling the other way would be free.
  const int rows = l1_model_rows(n, m);
  std::vector<double> x, y;
  const double value = solve_l1_model(n, m, rows, lp.objective, lp.rhs_x, lp.rhs_y, x, y);
  for (int j = 0; j < n; ++j) optima_.push_back(new_facility(j, x[j], y[j]));
  return value;
}

}  // namespace mero
