#pragma once
// The convex hull of a finite set of plane points.

#include <vector>

#include "kernel/point.h"

namespace mero {

// Andrew's monotone chain (Andrew 1979): the hull's corners counter-clockwise, starting at the
// lowest of the leftmost points; O(n log n). Duplicates and points on an edge are left out, so
// one distinct point gives one corner and collinear points the two extreme ones. An empty input
// gives an empty hull. Turns are decided by the exact orientation test.
std::vector<point> convex_hull(std::vector<point> points);

}  // namespace mero
