#include <iterator>

#include "kernel/reporters.h"
#include "model/facilities.h"
#include "model/model_messages.h"

namespace mero {

namespace {

using entry = std::list<location>::const_iterator;

// The first entry after which the running sum of column w is not below half; the sum there is
// left in sum. Exact comparisons: a tie with half is what makes a segment or a rectangle.
entry walk_to_half(const std::list<location>& merged, int w, double half, double& sum) {
  sum = 0.0;
  for (entry it = merged.begin(); it != merged.end(); ++it) {
    sum += it->weight(w);
    if (!(sum < half)) return it;
  }
  report_error(model_messages::l1_no_median);
}

// The next entry in the given direction whose weight in column 0 (not the solved column) is not
// 0.0: locations without weight there never become an end of the set of optima.
entry step_forward(const std::list<location>& merged, entry from) {
  for (++from; from != merged.end(); ++from)
    if (from->weight(0) != 0.0) return from;
  report_error(model_messages::l1_no_corner);
}

entry step_backward(const std::list<location>& merged, entry from) {
  while (from != merged.begin())
    if ((--from)->weight(0) != 0.0) return from;
  report_error(model_messages::l1_no_corner);
}

}  // namespace

// Weighted single-facility median under the l1 distance: the two coordinates separate, so the
// set of optima is the product of the weighted medians of the x and of the y values, found by
// sorting, merging equal coordinates and walking to the half-sum. O(n log n) for the two sorts.
// optima receives a point, the two ends of an axis-parallel segment or the four corners of an
// axis-parallel rectangle, each with weight(0) = w. All weights zero: message, the run ends.
double facilities::l1_sum(int w, bool clear) {
  if (clear) optima_.clear();
  const std::list<location> xs = sorted_merged(0, w);
  const std::list<location> ys = sorted_merged(1, w);
  double total = 0.0;
  for (const location& l : xs) total += l.weight(w);
  if (xs.empty() || total == 0.0) {
    report_message(model_messages::l1_all_zero, false);
    return 0.0;
  }
  const double half = total * 0.5;
  double sx = 0.0;
  double sy = 0.0;
  const entry x = walk_to_half(xs, w, half, sx);
  const entry y = walk_to_half(ys, w, half, sy);
  if (!(sx >= half && sy >= half)) report_error(model_messages::l1_no_median);

  location corner(2, 1);
  corner.weight_ref(0) = w;
  auto append = [&](entry at_x, entry at_y) {
    corner.coordinate_ref(0) = at_x->coordinate(0);
    corner.coordinate_ref(1) = at_y->coordinate(1);
    optima_.push_back(corner);
  };
  append(x, y);
  if (sx > half && sy == half) {
    append(x, step_forward(ys, y));
  } else if (sx == half && sy > half) {
    append(step_forward(xs, x), y);
  } else if (sx == half && sy == half) {
    // Corner by corner around the rectangle, so that the four entries form a polygon.
    const entry x2 = step_forward(xs, x);
    const entry y2 = step_forward(ys, y);
    append(x2, y);
    append(x2, y2);
    append(step_backward(xs, x2), y2);
  }
  return objective(1, w);
}

}  // namespace mero
