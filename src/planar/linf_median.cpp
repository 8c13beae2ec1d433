// The single-facility median under the maximum norm, solved as a rectilinear median in the plane
// turned by 45 degrees.

#include "model/facilities.h"

namespace mero {

// Maximum-norm median: maps every location by (x, y) -> ((x + y) / 2, (y - x) / 2), under which
// the l1 norm of an image is the maximum norm of its original, solves the rectilinear median
// there (O(n log n)) and maps its optima back. optima receives a point, a segment or a rectangle
// at 45 degrees to the axes, with weight entry 0 = w. All weights zero: l1_sum's message.
double facilities::linf_sum(int w, bool clear) {
  if (clear) optima_.clear();
  // The scratch copy carries the optima as well, and every entry it hands back is mapped back:
  // entries kept from an earlier solve (clear false) come back mapped too.
  facilities scratch = *this;
  scratch.l1_to_linf();
  scratch.l1_sum(w, false);
  optima_ = scratch.optima_;
  linf_to_l1(optima_);
  return objective(-1, w);
}

}  // namespace mero
