#pragma once
// The building blocks of the weighted smallest enclosing circle (facilities::l2_v1_max). A
// circle here is weighted: a location lies on it when its Euclidean distance to the centre times
// its weight equals the radius, so the radius is the value of the center objective.

#include <optional>
#include <vector>

#include "kernel/point.h"
#include "planar/weighted_points.h"

namespace mero {

struct weighted_circle {
  point centre;
  double radius = 0.0;
};

// A location within this much (in weighted distance) beyond the radius still counts as covered,
// so that rounding does not make the support points fall off their own circle.
inline constexpr double cover_tolerance = 0.001;

// Weighted distance of a to the centre of c.
double weighted_distance(const weighted_circle& c, const weighted_point& a);

// The point of equal weighted distance to a and b on the segment between them: the weighted mean
// with radius |a - b| w_a w_b / (w_a + w_b).
weighted_circle circle_of_two(const weighted_point& a, const weighted_point& b);

// A centre of equal weighted distance to a, b and c, with the smallest such radius: for equal
// weights the circumcircle. Empty when there is none (collinear points, or Apollonius circles
// that do not meet).
std::optional<weighted_circle> circle_of_three(const weighted_point& a, const weighted_point& b,
                                               const weighted_point& c);

// True when a's weighted distance to the centre is not above the radius plus the tolerance.
bool covers(const weighted_circle& c, const weighted_point& a);

// The smallest circle of a pair or a triple of the support points (two to four of them) that
// covers the others, pairs before triples, each in index order; a later candidate replaces the
// best only when its radius is strictly smaller. Empty when no candidate covers the others.
// For chosen_points the indices into support of the chosen pair or triple.
std::optional<weighted_circle> smallest_covering_circle(const std::vector<weighted_point>& support,
                                                        std::vector<std::size_t>& chosen_points);

}  // namespace mero
