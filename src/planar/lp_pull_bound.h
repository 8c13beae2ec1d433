#pragma once
// A certified shortcut for the location test of the lp median: a location a is a median exactly
// when the pull of the other locations, measured in the dual norm, is not above its own weight.
// Computing the pull of every location costs O(n^2). This tree proves for most locations, in
// about O(log n) each, that the pull exceeds the weight, so that only the locations it cannot
// decide go through the exact test, and the result stays that of testing every location.
//
// Method: a k-d tree over the points with the tight bounding box and weight sum of each node
// (Barnes-Hut style). For a far node, every direction from a to the node's points lies in the box
// of differences, over which each component of the gradient of the lp norm is monotone in the
// absolute values of the differences; so the node's share of the pull lies in an interval that
// its corners give. Near nodes are opened, leaves summed exactly. The lower end of the dual norm
// over the resulting rectangle of pull vectors is the bound.

#include <cstddef>
#include <vector>

#include "planar/weighted_points.h"

namespace mero {

class lp_pull_bound {
 public:
  // Builds the tree over points, for the lp norm with integer p >= 2. O(n log n).
  lp_pull_bound(const std::vector<weighted_point>& points, int p);

  // True only when the pull at points[at] of all the other points exceeds its weight by more
  // than what rounding in the exact test could undo, so that the exact test is sure to fail.
  // False means "not proven" (also for negative or non-finite data and for duplicates of the
  // point): the exact test must decide.
  bool proves_failure(std::size_t at) const;

 private:
  struct node {
    double x_lo, x_hi, y_lo, y_hi;    // the tight box of the node's points
    double weight;                    // their weight sum
    std::size_t begin, end;           // their range in order_
    std::size_t left = 0, right = 0;  // children; 0 for a leaf (the root is never a child)
  };

  std::size_t build(std::size_t begin, std::size_t end);
  bool bound_exceeds(std::size_t at, double opening) const;

  const std::vector<weighted_point>& points_;
  int p_;
  double q_;       // the dual exponent p / (p - 1)
  double margin_;  // what rounding could move the exact pull by: a small share of all weight
  bool usable_ = true;
  std::vector<std::size_t> order_;
  std::vector<node> nodes_;
};

}  // namespace mero
