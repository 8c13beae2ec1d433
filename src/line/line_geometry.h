#pragma once
// Distances from a point to a line through two points, in the norms of line location, and the
// line of equal weighted distance from three points. Points are the compact weighted copies of
// the locations (coordinates 0 and 1, one weight column).

#include <vector>

#include "kernel/point.h"
#include "planar/weighted_points.h"

namespace mero {

// Squared distances below this count as 0.0, so that locations on a candidate line add nothing
// even after the rounding of the projection.
inline constexpr double line_zero = 1e-10;

// The direction of a line, of length 1, from `from` towards `to`. The caller guarantees two
// distinct points.
struct unit_direction {
  double x;
  double y;
  unit_direction(const weighted_point& from, const weighted_point& to);
};

// Euclidean distance of b from the line through a with direction u: the root of
// |v.v - (v.u)^2| for v = b - a, with a square below line_zero taken as 0.0.
double l2_line_distance(const weighted_point& a, const unit_direction& u, const weighted_point& b);

// The l1 distance of b from the line through a and a + v: the smaller of the vertical and the
// horizontal distance (each 1e50 when the line is parallel to that axis).
double l1_line_distance(const weighted_point& a, double vx, double vy, const weighted_point& b);

// The lp distance of c from the line through a and b: |n.(c - a)| / norm_q(n) with n the normal
// of the line and q the exponent conjugate to p (p = -1 the maximum norm, q = 1). A distance
// below line_zero counts as 0.0. p must be at least 1 or -1.
double lp_line_distance(const weighted_point& a, const weighted_point& b, const weighted_point& c,
                        int p);

// The line with equal weighted distance from a, b and c, with c alone on its side: through p on
// the segment a c and q on b c, where p = a + (c - a) * w_c / (w_a + w_c) and q alike. For any
// norm the distances of a and c from a line through p are in the ratio |a - p| : |c - p|, so the
// same two points serve the Euclidean, lp and axis distances.
struct point_pair {
  weighted_point p;
  weighted_point q;
};
point_pair triple_line(const weighted_point& a, const weighted_point& b, const weighted_point& c);

// The gauge distance from c to the line through a and b, for a gauge given by its extreme points
// dirs (taken from the origin): the least step t >= 0 with c + t e on the line, over the extreme
// points e not parallel to the line; a step below line_zero counts as 0.0. 1e50 when no ray
// meets the line (no gauge around the origin, or a and b equal).
double block_line_distance(const weighted_point& a, const weighted_point& b,
                           const weighted_point& c, const std::vector<point>& dirs);

}  // namespace mero
