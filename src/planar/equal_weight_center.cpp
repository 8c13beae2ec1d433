// Single-facility centers with equal weights under the maximum and the rectilinear norm.

#include <algorithm>

#include "kernel/error_handler.h"
#include "model/facilities.h"
#include "model/model_messages.h"
#include "planar/planar_messages.h"
#include "planar/weighted_points.h"

namespace mero {

namespace {

// The equal-weight methods refuse any difference in column 0, however small: their value does
// not scale by the weight, so a near miss would be silently wrong.
void require_equal_weights(const facilities& problem) {
  if (problem.empty()) empty_list_error(model_messages::empty_list);
  const double head = problem.front().weight(0);
  for (const location& l : problem)
    if (l.weight(0) != head) report_error(single_facility_messages::unequal_weights);
}

}  // namespace

// Maximum-norm center with equal weights: half the larger side of the bounding box is the value
// r, and the optima are the points within r of both pairs of box sides, a point or a segment along
// the shorter side (O(n)). optima receives one point or the segment's two ends, weight entry 0 =
// 0.0. r is not scaled by the weight. Unequal weights: "All weights must be equal!" (1307).
double facilities::linf_v1_max(bool clear) {
  require_equal_weights(*this);
  if (clear) optima_.clear();
  double lo_x = front().coordinate(0), hi_x = lo_x;
  double lo_y = front().coordinate(1), hi_y = lo_y;
  for (const location& l : *this) {
    lo_x = std::min(lo_x, l.coordinate(0));
    hi_x = std::max(hi_x, l.coordinate(0));
    lo_y = std::min(lo_y, l.coordinate(1));
    hi_y = std::max(hi_y, l.coordinate(1));
  }
  const double r = std::max((hi_x - lo_x) * 0.5, (hi_y - lo_y) * 0.5);
  const double x1 = hi_x - r, x2 = lo_x + r, y1 = hi_y - r, y2 = lo_y + r;
  optima_.push_back(result_location(x1, y1, 0.0));
  if (x1 != x2 || y1 != y2) optima_.push_back(result_location(x2, y2, 0.0));
  return r;
}

// Rectilinear center with equal weights: linf_v1_max on the locations mapped by
// (x, y) -> (x - y, x + y), optima mapped back. Checks and degenerate cases as there.
double facilities::l1_v1_max(bool clear) {
  return solve_in_rotated_plane(&facilities::linf_v1_max, clear);
}

}  // namespace mero
