#pragma once
// The crossings of a set of plane segments, found by a sweep in x.

#include <cstddef>
#include <functional>
#include <vector>

#include "kernel/point.h"
#include "kernel/segment.h"

namespace mero {

// One common point of two segments, given by their indices in the input (first < second).
struct segment_crossing {
  std::size_t first;
  std::size_t second;
  point where;
};

// Decides whether the pair (first, second) is of interest; pairs it rejects are not tested.
using crossing_filter = std::function<bool(std::size_t first, std::size_t second)>;

// Every pair of closed segments that share a point, with that point. A sweep over the segments in
// order of their smallest x keeps the segments whose x range reaches the sweep position and tests
// the entering segment against those whose y range overlaps its own: O(n log n + b) pair tests for
// b pairs of overlapping bounding boxes (on grids of long rays b is of the order of the crossings).
// The point is the one segment::intersection gives (a shared end where there is one). Collinear
// segments that overlap give the ends of their common part, one entry each. Trivial segments take
// part as points. The result is sorted by point (x, then y), then by the pair: the sweep order.
std::vector<segment_crossing> segment_crossings(const std::vector<segment>& segments,
                                                const crossing_filter& accept = {});

// The distinct points of a crossing list, in sweep order (x, then y).
std::vector<point> crossing_points(const std::vector<segment_crossing>& crossings);

}  // namespace mero
