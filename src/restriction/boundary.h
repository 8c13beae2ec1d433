#pragma once
// Helpers shared by the figures of the restriction family whose boundary is a ring of edges
// (restr_polygon, restr_rectangle, polygon_barrier): crossing lists, projections, the
// point-in-polygon rule.

#include <list>
#include <vector>

#include "kernel/circle.h"
#include "kernel/line.h"
#include "kernel/point.h"
#include "kernel/segment.h"
#include "model/location.h"

namespace mero {

// Appends q unless it equals the list's head or tail: a crossing at a shared vertex is met by
// both edges that meet there, and the list should name it once.
void add_crossing(std::vector<point>& list, const point& q);

// Crossings of the ring of edges with s, l or c, edge by edge in ring order. Collinear overlaps,
// which have no single crossing, give none.
std::vector<point> edge_crossings(const std::vector<segment>& edges, const segment& s);
std::vector<point> edge_crossings(const std::vector<segment>& edges, const line& l);
std::vector<point> edge_crossings(const std::vector<segment>& edges, const circle& c);

// The ring of segments through the points, the last joining the first.
std::vector<segment> ring_of(const std::vector<point>& points);

// A location at q with the sizes and weights of like.
location located_like(const point& q, const location& like);

// The feet of the perpendiculars from p on the edges, where they fall on an edge, in ring order.
std::list<location> perpendicular_feet(const std::vector<segment>& edges, const location& p);

// The point-in-polygon rule of restr_polygon on a vertex ring: a vertical ray upwards from p
// counts the edges it crosses away from their ends, and each run of vertices on the ray counts
// as one crossing when its neighbours lie on opposite sides. A vertex is inside; a point on an
// edge is inside or outside as the count says (outside on a lower edge, inside on an upper one).
bool polygon_rule_inside(const std::vector<point>& vertices, const point& p);

}  // namespace mero
