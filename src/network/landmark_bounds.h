#pragma once
// Lower bounds on the scores of the median and the center from the distance rows of a few
// landmark nodes, so that most nodes of a large graph need no row of their own. They hold on an
// undirected, connected graph whose path sums are exact (the triangle inequality then holds in
// double as it does in the reals) and whose weights are finite and non-negative.

#include <vector>

#include "kernel/shortest_paths.h"

namespace mero {

// Rows kept for the bounds: a few suffice to ring a graph.
inline constexpr int landmark_count = 6;

class landmark_bounds {
 public:
  // Landmarks picked farthest first: the node farthest from node 0, then each time the node
  // farthest from those picked. count Dijkstra runs and count rows of memory.
  landmark_bounds(shortest_path_rows& rows, const std::vector<double>& w, int count);

  // Whether the rows reached every node; the bounds are worthless otherwise.
  bool complete() const { return complete_; }

  // At most the farthest weighted distance max_j D(x,j) w_j as computed: each landmark b is a
  // node at distance D(b,x), and b's weighted farthest node j at least D(b,j) - D(b,x) away.
  std::vector<double> farthest() const;
  // At most the doubled sum of weighted distances, folded in node order as the median folds it:
  // sum_j w_j |D(a,x) - D(a,j)| for each landmark a, by sorted prefix sums in O(n log n),
  // less a margin for the rounding of either sum.
  std::vector<double> doubled_sum() const;
  // out[j] := max over the landmarks a of |D(a,x) - D(a,j)|, at most D(x,j): O(n count).
  void differences(int x, std::vector<double>& out) const;

 private:
  const std::vector<double>& w_;
  std::vector<std::vector<double>> rows_;
  bool complete_ = true;
};

// The nodes in order of increasing bound, ties in node order.
std::vector<int> order_by(const std::vector<double>& bound);

}  // namespace mero
