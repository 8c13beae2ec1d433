#pragma once
// SBO: the single-facility Euclidean median around one barrier. The plane falls into cells in
// each of which every location reaches the point by the same route; there the objective is
// convex. The solver bounds the cells by shadow segments, takes their crossings as candidates
// and runs a Hooke and Jeeves pattern search in the cells it reaches.

#include <cstdint>
#include <set>
#include <vector>

#include "kernel/point.h"
#include "kernel/segment.h"
#include "model/location.h"
#include "restriction/restriction.h"

namespace mero {

class SBO {
 public:
  // The constants of a run: share of the sorted candidates tried (all of them, in list order,
  // without prune), pattern factor, first step and neighbour offset, final step.
  struct settings {
    bool prune = true;
    double fraction = 0.1;
    double accel = 1.0;
    double step = 0.01;
    double eps = 0.001;
  };

  SBO(const std::vector<location>& locations, const barrier& b, settings s);

  // The whole method; afterwards solution() and solution_value() hold the result.
  void solve();
  // Two shadow segments per location, from each tangent point away from the location to the
  // boundary of a polygon enclosing the locations and the barrier. 1806 when one has no end.
  std::vector<segment> cpt_shdw_segs() const;

  // Per location, in list order: 0 if it sees p, otherwise -1 or +1 for the side of the line
  // from it to p on which its shortest route bends.
  std::vector<int> signature(const point& p) const;
  // The signature as base-3 digits (2 for -1), most significant first. Each power of 3 is cut to
  // 32 bits before it is added, so beyond 19 locations codes may collide; the sum itself is exact.
  std::int64_t cell_code(const point& p) const;

  double f(const point& p) const { return b_.barrier_objective(locations_, p); }
  point solution() const { return computed_ ? opt_ : point(0, 0); }
  double solution_value() const { return computed_ ? value_ : -1.0; }
  point free_optimum() const { return free_opt_; }

 private:
  // Hooke and Jeeves from start; false when it runs into a cell already searched.
  bool pattern_search(const point& start, point& result);

  const std::vector<location>& locations_;
  const barrier& b_;
  settings s_;
  point opt_;
  point free_opt_;
  double free_value_ = 0.0;
  double value_ = 0.0;
  bool computed_ = false;
  std::set<std::int64_t> visited_;
};

}  // namespace mero
