#pragma once
// Intersection of convex polygons by clipping with half-planes.

#include <vector>

#include "kernel/point.h"

namespace mero {

// The closed half-plane a x + b y <= c.
struct half_plane {
  double a;
  double b;
  double c;
};

// The half-plane to the left of the directed line from p to q (the inside of a counter-clockwise
// polygon's edge p q).
half_plane left_of(const point& p, const point& q);

// A convex polygon whose edges carry labels: edge k runs from vertex k to vertex k + 1 (the last
// to vertex 0) and lies on the boundary of the constraint labelled edge_labels[k]. It may be
// degenerate: one vertex (a point) or two (a segment), or empty.
struct labeled_convex_polygon {
  std::vector<point> vertices;
  std::vector<int> edge_labels;
};

// The polygon cut by the closed half-plane h (Sutherland and Hodgman 1974, one clip plane): O(m)
// for m vertices. A new edge on the boundary of h gets the label; vertices that coincide after
// the cut are merged. A polygon that only touches h keeps the touching point or edge.
labeled_convex_polygon clip(const labeled_convex_polygon& polygon, const half_plane& h, int label);

// The intersection of two convex polygons given counter-clockwise: clips a by the half-plane of
// each edge of b, O(|a| |b|). The result is counter-clockwise and may be degenerate (a point or a
// segment where the two only touch) or empty. b needs three vertices at least; when it has fewer
// and a has three, the two change roles; two degenerate polygons give an empty result.
std::vector<point> convex_polygon_intersection(const std::vector<point>& a,
                                               const std::vector<point>& b);

}  // namespace mero
