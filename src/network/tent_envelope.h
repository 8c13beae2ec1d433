#pragma once
// The weighted distance of a node to the points of an edge, as a function of the fraction t of
// the edge, and the lowest points of the upper envelope of all nodes' functions.

#include <list>
#include <vector>

#include "kernel/point.h"

namespace mero {

// The tent of node i over an edge u-v of length L, in the plane of t in [0, 1] and weighted
// distance: the rising line (0, du*w)-(1, (du+L)*w) and the falling line (0, (dv+L)*w)-(1, dv*w),
// whose lower envelope is the function. Where the two lines cross strictly inside, the rising
// piece ends and the falling one begins at the peak; otherwise one line is the function on all
// of [0, 1] (the rising one when it starts lower).
// The walk over the envelope reads the lines' own coefficients, so that two nodes on the same
// line are on exactly the same line whatever rounding the crossing point took.
struct tent {
  double rise_start = 0.0;  // du*w; the rising line is rise_start + slope * t
  double fall_start = 0.0;  // (dv+L)*w; the falling line is fall_start - slope * t
  double slope = 0.0;       // L*w
  double rise_end = 0.0;    // the last t of the rising piece (below 0: there is none)
  double fall_begin = 0.0;  // the first t of the falling piece (above 1: there is none)
};

tent node_tent(double du, double dv, double w, double length);

// Walks the upper envelope of the tents from t = 0 to t = 1, from crossing to crossing where
// another tent rises above the current one, and returns the points of least height among the
// start, those crossings and the end, in increasing t. A tent joins the walk only by rising
// strictly above, so tents that coincide over a stretch do not make the walk lose its way.
// O(n) per breakpoint visited.
std::list<point> envelope_minima(const std::vector<tent>& tents);

}  // namespace mero
