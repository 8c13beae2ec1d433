#include <algorithm>
#include <list>
#include <utility>
#include <vector>

#include "kernel/error_handler.h"
#include "kernel/reporters.h"
#include "model/model_messages.h"
#include "model/scan_common.h"
#include "planar/multifacility.h"
#include "planar/planar_messages.h"

namespace mero {

namespace {

// Fixed for this heuristic; lpinfo's eps and max_iterations do not reach it.
constexpr double k_eps = 0.0001;
constexpr double k_smoothing = 0.01;
constexpr int k_max_iterations = 500;

// Solves the single-facility problem of every weight column j < n on a scratch copy, without
// clearing, so that the optima of all columns pile up in order of j.
std::list<location> pile_up_medians(const facilities& problem, int n, int p) {
  facilities scratch;  // the locations only, and no optima yet
  static_cast<std::vector<location>&>(scratch) = problem;
  // The maximum-norm median is the rectilinear median of the image under
  // (x, y) -> ((x + y) / 2, (y - x) / 2).
  if (p == -1) scratch.l1_to_linf();
  for (int j = 0; j < n; ++j) {
    if (p == -1 || p == 1)
      scratch.l1_sum(j, false);
    else if (p == 2)
      scratch.l2_sum(j, k_eps, false);
    else
      scratch.lp_sum(p, k_eps, k_smoothing, k_max_iterations, j, false);
  }
  std::list<location> pile = scratch.optima();
  if (p == -1) facilities::linf_to_l1(pile);
  return pile;
}

// One location per column: of a segment or rectangle of optima the first entry stands for its
// column, and a change of weight entry 0 marks the next column.
std::list<location> first_of_each_column(const std::list<location>& pile) {
  std::list<location> kept;
  for (const location& l : pile)
    if (kept.empty() || l.weight(0) != kept.back().weight(0)) kept.push_back(l);
  return kept;
}

}  // namespace

std::pair<double, double> facilities::N_lp_sum_v1(int n, int p, const matrix& V, bool clear) {
  namespace msg = multifacility_messages;
  // Only the maximum norm (-1) and the lp norms from 1 up are defined.
  if (p != -1 && p < 1) report_error(model_messages::bad_norm);
  if (empty()) empty_list_error(model_messages::empty_list);
  const int weights = front().weight_dim();
  int dim = V.dim1();
  if (V.dim1() != V.dim2()) {
    report_message(msg::non_quadratic, true, {weights});
    dim = std::min(V.dim1(), V.dim2());
  }
  if (n > weights || n > dim || weights > dim) report_error(msg::cannot_compute_more);
  if (clear) optima_.clear();
  std::vector<location> chosen;
  for (const location& l : first_of_each_column(pile_up_medians(*this, n, p)))
    chosen.push_back(
        new_facility(static_cast<int>(chosen.size()), l.coordinate(0), l.coordinate(1)));
  // c: the location cost of every facility at its own column; d: the interdependency cost
  // that the locating ignored.
  double c = 0.0, d = 0.0;
  for (std::size_t j = 0; j < chosen.size(); ++j) {
    c += objective(p, chosen[j], static_cast<int>(j));
    for (std::size_t k = j + 1; k < chosen.size(); ++k)
      d += V(static_cast<int>(j), static_cast<int>(k)) * (chosen[j] - chosen[k]).norm(p);
  }
  optima_.insert(optima_.end(), chosen.begin(), chosen.end());
  return {c + d, d / c};
}

double facilities::N_linf_sum_v1(int n, const matrix& V) {
  return N_lp_sum_v1(n, -1, V, true).first;
}

}  // namespace mero
