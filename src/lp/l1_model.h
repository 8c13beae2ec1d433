#pragma once
// The linear program of the rectilinear multifacility median, solved once per axis.

#include <vector>

namespace mero {

// Minimises, on each axis, sum_j sum_i w_ji |x_j - a_i| + sum_{j<k} v_jk |x_j - x_k| over n free
// new coordinates x_j, for m locations a_i. weights holds w_ji at j * m + i, ties holds v_jk for
// the pairs j < k in the order (0,1), (0,2), ..., (1,2), ..., axis_x and axis_y the m location
// coordinates. Returns the sum of both optimal values; x and y receive the n coordinates.
// A negative weight or tie makes the sum fall without end (message 1370).
double solve_l1_model(int n, int m, const std::vector<double>& weights,
                      const std::vector<double>& ties, const std::vector<double>& axis_x,
                      const std::vector<double>& axis_y, std::vector<double>& x,
                      std::vector<double>& y);

}  // namespace mero
