// The barriers: circle_barrier, line_barrier and polygon_barrier, with their tangents.

#include <cmath>

#include "kernel/reporters.h"
#include "restriction/boundary.h"
#include "restriction/restriction.h"
#include "restriction/restriction_messages.h"

namespace mero {

namespace msg = restriction_messages;

circle_barrier::circle_barrier(const point& centre, double r)
    : center(r < 0.0 ? point() : centre), radius(r < 0.0 ? 0.0 : r) {}

bool circle_barrier::inside(const point& p) const { return p.distance(center) < radius; }

std::vector<point> circle_barrier::hit_segment(const segment& s) const {
  return circle(center, radius).intersection(s);
}
std::vector<point> circle_barrier::hit_line(const line& l) const {
  return circle(center, radius).intersection(l);
}

// The kernel lists the tangent point left of the direction centre -> p first; seen from p that
// is the one on the right hand, which this system calls the left tangent.
point circle_barrier::left_tangent(const point& p) const {
  const std::vector<point> t = circle(center, radius).tangent_points(p);
  return t.size() == 2 ? t[0] : p;
}
point circle_barrier::right_tangent(const point& p) const {
  const std::vector<point> t = circle(center, radius).tangent_points(p);
  return t.size() == 2 ? t[1] : p;
}

line_barrier::line_barrier(const point& from, const point& to) : start(from), end(to) {}

// The detour over p is shorter than 0.0001: p lies on the segment up to rounding.
bool line_barrier::inside(const point& p) const {
  return std::fabs(start.distance(p) + p.distance(end) - start.distance(end)) < 0.0001;
}

std::vector<point> line_barrier::hit_segment(const point& a, const point& b) const {
  return hit_segment(segment(a, b));
}
std::vector<point> line_barrier::hit_segment(const segment& s) const {
  point q;
  if (segment(start, end).intersection(s, q) && std::isfinite(q.xcoord()) &&
      std::isfinite(q.ycoord()))
    return {q};
  return {};
}
std::vector<point> line_barrier::hit_line(const line& l) const {
  point q;
  if (l.intersection(segment(start, end), q)) return {q};
  return {};
}

point line_barrier::left_tangent(const point& p) const {
  const point middle(0.5 * (start.xcoord() + end.xcoord()), 0.5 * (start.ycoord() + end.ycoord()));
  return halfspace(p, middle).side(start) == -1 ? start : end;
}
point line_barrier::right_tangent(const point& p) const {
  return left_tangent(p) == start ? end : start;
}

polygon_barrier::polygon_barrier(const std::vector<point>& points) {
  const polygon shape(points);
  if (!shape.is_simple()) report_error(msg::barrier_not_simple);
  vertices = shape.vertices();
  edges = shape.segments();
  for (const segment& e : edges)
    midpoints.emplace_back(0.5 * (e.xcoord1() + e.xcoord2()), 0.5 * (e.ycoord1() + e.ycoord2()));
}

bool polygon_barrier::inside(const point& p) const { return polygon(vertices).inside(p); }

std::vector<point> polygon_barrier::hit_segment(const segment& s) const {
  return edge_crossings(edges, s);
}
std::vector<point> polygon_barrier::hit_line(const line& l) const {
  return edge_crossings(edges, l);
}

namespace {

// The first vertex v such that no vertex lies strictly on the given side of p -> v (sign -1:
// the right side, +1: the left side); p itself when there is none.
point extreme_vertex(const std::vector<point>& vertices, const point& p, int sign) {
  for (const point& v : vertices) {
    const halfspace h(p, v, sign);
    bool extreme = true;
    // v itself is skipped: rounding in the side test may put it off its own line.
    for (const point& w : vertices)
      if (w != v && h.side(w) == sign) {
        extreme = false;
        break;
      }
    if (extreme) return v;
  }
  return p;
}

}  // namespace

point polygon_barrier::left_tangent(const point& p) const {
  if (!polygon(vertices).outside(p)) return p;
  return extreme_vertex(vertices, p, -1);
}
point polygon_barrier::right_tangent(const point& p) const {
  if (!polygon(vertices).outside(p)) return p;
  return extreme_vertex(vertices, p, 1);
}

}  // namespace mero
