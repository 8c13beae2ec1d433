#include <vector>

#include "lp/linf_model.h"
#include "planar/multifacility.h"
#include "planar/planar_messages.h"

namespace mero {

namespace {

// Right-hand sides and z coefficients of the maximum-norm model, 1-based in row order: two rows
// per facility j and location i (a_i and -a_i, coefficient 1 / w_ij), then two rows per pair
// j < k (0.0, coefficient 1 / V(j, k)). Each row pair then reads z >= weight * distance.
struct linf_program {
  std::vector<double> rhs_x{0.0};
  std::vector<double> rhs_y{0.0};
  std::vector<double> z{0.0};
};

linf_program build_program(const facilities& problem, int n, const matrix& V) {
  namespace msg = multifacility_messages;
  linf_program lp;
  for (int j = 0; j < n; ++j) {
    for (const location& a : problem) {
      const double w = a.weight(j);
      if (w == 0.0) report_error(msg::zero_weight);
      lp.rhs_x.insert(lp.rhs_x.end(), {a.coordinate(0), -a.coordinate(0)});
      lp.rhs_y.insert(lp.rhs_y.end(), {a.coordinate(1), -a.coordinate(1)});
      lp.z.insert(lp.z.end(), 2, 1.0 / w);
    }
  }
  // Also for pairs that have nothing to do with each other: 0.0 has no reciprocal.
  for (int j = 0; j < n; ++j) {
    for (int k = j + 1; k < n; ++k) {
      if (V(j, k) == 0.0) report_error(msg::zero_dependency);
      lp.rhs_x.insert(lp.rhs_x.end(), 2, 0.0);
      lp.rhs_y.insert(lp.rhs_y.end(), 2, 0.0);
      lp.z.insert(lp.z.end(), 2, 1.0 / V(j, k));
    }
  }
  return lp;
}

}  // namespace

double facilities::N_linf_max(int n, const matrix& V, bool clear) {
  check_multifacility_data(*this, n, V);
  if (clear) optima_.clear();
  const int m = static_cast<int>(size());
  const linf_program lp = build_program(*this, n, V);
  std::vector<double> x, y;
  const double value = solve_linf_model(n, 2 * m, m, lp.rhs_x, lp.rhs_y, lp.z, x, y);
  for (int j = 0; j < n; ++j) optima_.push_back(new_facility(j, x[j], y[j]));
  return value;
}

double facilities::N_l1_max(int n, const matrix& V, bool clear) {
  // (x, y) -> (x - y, x + y) turns l1 distances into maximum-norm distances of the images; the
  // value needs no conversion, only the optima are mapped back.
  facilities rotated(*this);
  rotated.linf_to_l1();
  rotated.optima_.clear();
  const double value = rotated.N_linf_max(n, V, true);
  l1_to_linf(rotated.optima_);
  if (clear) optima_.clear();
  optima_.splice(optima_.end(), rotated.optima_);
  return value;
}

}  // namespace mero
