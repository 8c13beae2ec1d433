#include <vector>

#include "lp/l1_model.h"
#include "planar/multifacility.h"

namespace mero {

double facilities::N_l1_sum_v1(int n, const matrix& V, bool clear) {
  check_multifacility_data(*this, n, V);
  if (clear) optima_.clear();
  const int m = static_cast<int>(size());
  std::vector<double> weights(static_cast<std::size_t>(n) * m), ties, axis_x, axis_y;
  int i = 0;
  for (const location& a : *this) {
    for (int j = 0; j < n; ++j) weights[static_cast<std::size_t>(j) * m + i] = a.weight(j);
    axis_x.push_back(a.coordinate(0));
    axis_y.push_back(a.coordinate(1));
    ++i;
  }
  for (int j = 0; j < n; ++j)
    for (int k = j + 1; k < n; ++k) ties.push_back(V(j, k));
  std::vector<double> x, y;
  const double value = solve_l1_model(n, m, weights, ties, axis_x, axis_y, x, y);
  for (int j = 0; j < n; ++j) optima_.push_back(new_facility(j, x[j], y[j]));
  return value;
}

}  // namespace mero
