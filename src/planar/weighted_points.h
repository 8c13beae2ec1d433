#pragma once
// A compact copy of the plane locations with one weight column, for the solvers' inner loops:
// they run over contiguous doubles instead of list nodes and checked accessors.

#include <list>
#include <vector>

#include "model/location.h"

namespace mero {

struct weighted_point {
  double x;
  double y;
  double w;
};

// Coordinates 0 and 1 and weight column w of every location (of the locations of a facilities
// object or of any list of them), in order. A location with fewer coordinates or weights ends the
// run with the location's index error.
template <class Locations>
std::vector<weighted_point> weighted_points(const Locations& list, int w) {
  std::vector<weighted_point> points;
  points.reserve(list.size());
  for (const location& l : list) points.push_back({l.coordinate(0), l.coordinate(1), l.weight(w)});
  return points;
}

// The weighted mean of the points (the centre of gravity). A zero weight sum is not checked: the
// division then gives what the arithmetic gives.
weighted_point centre_of_gravity(const std::vector<weighted_point>& points);

// The lp distance of a plane difference (dx, dy) with the arithmetic of Loc_Vector::norm: powers
// for p >= 1 (also for p = 2), the larger absolute value for p = -1, 0.0 for any other p.
double lp_distance(double dx, double dy, int p);

// Sum of weight times lp distance from (x, y), in list order: the value facilities::objective
// gives for the same column, without building a vector for each location.
double weighted_objective(const std::vector<weighted_point>& points, double x, double y, int p);

// A result location: two coordinates, weight entry 0 = group.
location result_location(double x, double y, double group);

}  // namespace mero
