// The efficient set of the squared Euclidean median under several weightings.

#include <vector>

#include "kernel/convex_hull.h"
#include "kernel/error_handler.h"
#include "model/facilities.h"
#include "model/model_messages.h"
#include "planar/weighted_points.h"

namespace mero {

// Squared Euclidean median with one objective per weight column: the efficient points are the
// convex hull of the columns' centres of gravity, so the method is exact and evaluates nothing.
// O(n Q + Q log Q) for Q columns (those of the head location). optima receives the hull's corners
// counter-clockwise as one polygon (weight entry 0 = 0.0): one point for identical centres, two
// for a segment. Returns 0.0. Earlier optima are always replaced.
double facilities::l2sqr_qsum(bool clear) {
  if (clear) optima_.clear();
  if (empty()) empty_list_error(model_messages::empty_list);
  const int columns = front().weight_dim();
  std::vector<point> centres;
  for (int k = 0; k < columns; ++k) {
    optima_.clear();
    l2sqr_sum(k, false);
    centres.emplace_back(optima_.front().coordinate(0), optima_.front().coordinate(1));
  }
  optima_.clear();
  for (const point& p : convex_hull(centres))
    optima_.push_back(result_location(p.xcoord(), p.ycoord(), 0.0));
  return 0.0;
}

}  // namespace mero
