#include <numeric>
#include <vector>

#include "planar/multifacility.h"
#include "planar/planar_messages.h"

namespace mero {

namespace {

// The weight between new facilities j and k as the normal equations read it: always from the
// upper triangle of V.
double link(const matrix& V, int j, int k) { return j < k ? V(j, k) : V(k, j); }

// The system matrix: A(j, j) = sum_i w_ij + sum_k link(j, k), A(j, k) = -link(j, k).
matrix normal_matrix(const facilities& problem, int n, const matrix& V) {
  matrix A(n, n);
  for (int j = 0; j < n; ++j) {
    for (const location& a : problem) A(j, j) += a.weight(j);
    for (int k = 0; k < n; ++k) {
      if (k == j) continue;
      A(j, j) += link(V, j, k);
      A(j, k) = -link(V, j, k);
    }
  }
  return A;
}

// True when some group of new facilities, joined among themselves by non-zero links, has no
// weight to any location: with non-negative data the system is then singular, since the group
// can move as a whole without changing the objective.
bool has_unanchored_group(const facilities& problem, int n, const matrix& V) {
  std::vector<int> group(n);
  std::iota(group.begin(), group.end(), 0);
  auto root = [&](int j) {
    while (group[j] != j) j = group[j] = group[group[j]];
    return j;
  };
  for (int j = 0; j < n; ++j)
    for (int k = j + 1; k < n; ++k)
      if (V(j, k) != 0.0) group[root(j)] = root(k);
  std::vector<double> weight(n, 0.0);
  for (int j = 0; j < n; ++j)
    for (const location& a : problem) weight[root(j)] += a.weight(j);
  for (int j = 0; j < n; ++j)
    if (root(j) == j && weight[j] == 0.0) return true;
  return false;
}

bool has_negative_data(const facilities& problem, int n, const matrix& V) {
  for (int j = 0; j < n; ++j) {
    for (const location& a : problem)
      if (a.weight(j) < 0.0) return true;
    for (int k = j + 1; k < n; ++k)
      if (V(j, k) < 0.0) return true;
  }
  return false;
}

double squared_distance(double x1, double y1, double x2, double y2) {
  return (x1 - x2) * (x1 - x2) + (y1 - y2) * (y1 - y2);
}

}  // namespace

double facilities::N_l2sqr_sum(int n, const matrix& V, bool clear) {
  check_multifacility_data(*this, n, V);
  // Negative data can make the matrix singular in other ways; the kernel's own rank test in
  // inv() still stops those.
  if (!has_negative_data(*this, n, V) && has_unanchored_group(*this, n, V))
    report_error(multifacility_messages::singular_system);
  mero::vector bx(n), by(n);
  for (int j = 0; j < n; ++j)
    for (const location& a : *this) {
      bx[j] += a.weight(j) * a.coordinate(0);
      by[j] += a.weight(j) * a.coordinate(1);
    }
  const matrix inverse = normal_matrix(*this, n, V).inv();
  const mero::vector x = inverse * bx;
  const mero::vector y = inverse * by;
  if (clear) optima_.clear();
  double value = 0.0;
  for (int j = 0; j < n; ++j) {
    optima_.push_back(new_facility(j, x[j], y[j]));
    for (const location& a : *this)
      value += a.weight(j) * squared_distance(x[j], y[j], a.coordinate(0), a.coordinate(1));
    for (int k = j + 1; k < n; ++k) value += V(j, k) * squared_distance(x[j], y[j], x[k], y[k]);
  }
  return value;
}

}  // namespace mero
