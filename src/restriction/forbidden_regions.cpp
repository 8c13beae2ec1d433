// The forbidden regions: restr_polygon, restr_rectangle and restr_circle.

#include <algorithm>
#include <cmath>

#include "kernel/convex_hull.h"
#include "kernel/error_handler.h"
#include "kernel/reporters.h"
#include "model/model_messages.h"
#include "restriction/boundary.h"
#include "restriction/restriction.h"
#include "restriction/restriction_messages.h"

namespace mero {

namespace msg = restriction_messages;

namespace {

// The sum of the cross products of each edge with its successor: positive when the ring turns
// counter-clockwise on the whole.
double turning(const std::vector<segment>& ring) {
  double sum = 0.0;
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const segment& e = ring[i];
    const segment& f = ring[(i + 1) % ring.size()];
    sum += e.dx() * f.dy() - e.dy() * f.dx();
  }
  return sum;
}

// The one-element answer of hit_ray for the rectangle and the circle: the first crossing, and
// the list error when there is none.
std::vector<point> first_hit(const std::vector<point>& hits) {
  if (hits.empty()) empty_list_error(model_messages::empty_list);
  return {hits.front()};
}

}  // namespace

bool forbidden_region::inside(const segment& s) const {
  return inside(s.source()) && inside(s.target());
}
bool forbidden_region::inside(const location& l) const { return inside(point(l)); }
std::vector<point> forbidden_region::hit_segment(const point& a, const point& b) const {
  return hit_segment(segment(a, b));
}
std::vector<point> forbidden_region::hit_polygon(const polygon& p) const {
  std::vector<point> out;
  for (const segment& s : p.segments()) {
    const std::vector<point> part = hit_segment(s);
    out.insert(out.end(), part.begin(), part.end());
  }
  return out;
}

restr_polygon::restr_polygon(const std::vector<point>& points) {
  edges = ring_of(points);
  // Kept clockwise: a counter-clockwise ring is built again from the points in reverse order.
  if (turning(edges) > 0.0) edges = ring_of(std::vector<point>(points.rbegin(), points.rend()));
  const std::vector<point> v = vertices();
  if (v.size() < 3) report_error(msg::polygon_too_few);
  for (std::size_t i = 0; i + 1 < v.size(); ++i)
    if (v[i] == v[i + 1]) report_error(msg::polygon_repeated_vertex);
  if (v.back() == v.front()) report_error(msg::polygon_closed_ring);
}

std::vector<point> restr_polygon::vertices() const {
  std::vector<point> v;
  for (const segment& e : edges) v.push_back(e.source());
  return v;
}

bool restr_polygon::is_convex() const {
  const std::vector<point> v = vertices();
  return convex_hull(v).size() == v.size();
}

bool restr_polygon::inside(const point& p) const { return polygon_rule_inside(vertices(), p); }

std::vector<point> restr_polygon::hit_ray(const point& a, const point& b) const {
  // A ray that ends inside is stretched tenfold so that it leaves the polygon.
  const point end = inside(b) ? a + (b - a) * 10.0 : b;
  return hit_segment(segment(a, end));
}
std::vector<point> restr_polygon::hit_segment(const segment& s) const {
  return edge_crossings(edges, s);
}
std::vector<point> restr_polygon::hit_line(const line& l) const { return edge_crossings(edges, l); }
std::vector<point> restr_polygon::hit_circle(const circle& c) const {
  return edge_crossings(edges, c);
}

std::list<location> restr_polygon::proj_l2sqr(const location& p) const {
  std::list<location> candidates = perpendicular_feet(edges, p);
  // From inside a convex polygon the nearest boundary point is a foot; otherwise a vertex may be.
  if (!inside(p) || !is_convex())
    for (const point& v : vertices()) candidates.push_back(located_like(v, p));
  return candidates;
}

restr_rectangle::restr_rectangle(const point& corner, double width, double height, double angle)
    : dims{width, height} {
  const double x = corner.xcoord(), y = corner.ycoord();
  corners = {corner, point(x, y + height).rotate(corner, angle),
             point(x + width, y + height).rotate(corner, angle),
             point(x + width, y).rotate(corner, angle)};
}

restr_rectangle::restr_rectangle(const point& c0, const point& c1, const point& c2, const point& c3)
    : corners{c0, c1, c2, c3}, dims{c0.distance(c1), c1.distance(c2)} {}

std::vector<segment> restr_rectangle::sides() const { return ring_of(corners); }

bool restr_rectangle::inside(const point& p) const { return restr_polygon(corners).inside(p); }

std::vector<point> restr_rectangle::hit_ray(const point& a, const point& b) const {
  return first_hit(hit_segment(a, b));
}
std::vector<point> restr_rectangle::hit_segment(const segment& s) const {
  return edge_crossings(sides(), s);
}
std::vector<point> restr_rectangle::hit_line(const line& l) const {
  return edge_crossings(sides(), l);
}
std::vector<point> restr_rectangle::hit_circle(const circle& c) const {
  return edge_crossings(sides(), c);
}

std::list<location> restr_rectangle::proj_l2sqr(const location& p) const {
  std::list<location> candidates = perpendicular_feet(sides(), p);
  if (!inside(p))
    for (const point& c : corners) candidates.push_back(located_like(c, p));
  return candidates;
}

restr_circle::restr_circle(const point& centre, double r) : center(centre), radius(r) {}

bool restr_circle::inside(const point& p) const { return p.distance(center) - radius < 0.0; }

std::vector<point> restr_circle::hit_ray(const point& a, const point& b) const {
  return first_hit(hit_segment(a, b));
}

// A circle of negative radius (possible from a file) has no boundary: it is hit nowhere.
std::vector<point> restr_circle::hit_line(const line& l) const {
  if (radius < 0.0) return {};
  return circle(center, radius).intersection(l);
}

std::vector<point> restr_circle::hit_segment(const point& a, const point& b) const {
  if (a == b) return {};
  const double length = a.distance(b);
  std::vector<point> out;
  for (const point& q : hit_line(line(a, b)))
    if (q.distance(a) <= length && q.distance(b) <= length) out.push_back(q);
  return out;
}
std::vector<point> restr_circle::hit_segment(const segment& s) const {
  return hit_segment(s.source(), s.target());
}

std::vector<point> restr_circle::hit_circle(const circle& c) const {
  const double d = center.distance(c.center());
  const double r1 = radius, r2 = c.radius();
  if (r1 + r2 < d || r2 + d < r1 || r1 + d < r2) return {};
  if (d == 0.0 || r1 <= 0.0) return {};  // concentric circles have no single crossing points
  const double a = (d * d + r1 * r1 - r2 * r2) / (2.0 * d);
  const double angle = std::acos(std::clamp(a / r1, -1.0, 1.0));
  const double base =
      std::atan2(c.center().ycoord() - center.ycoord(), c.center().xcoord() - center.xcoord());
  auto at = [&](double t) {
    return point(center.xcoord() + r1 * std::cos(t), center.ycoord() + r1 * std::sin(t));
  };
  std::vector<point> out{at(base + angle)};
  if (angle != 0.0) out.push_back(at(base - angle));
  return out;
}

std::list<location> restr_circle::proj_l2sqr(const location& p) const {
  const point q(p);
  if (q == center) {
    report_message(msg::whole_boundary_optimal, true);
    return {located_like(point(center.xcoord(), center.ycoord() + radius), p)};
  }
  const std::vector<point> crossings = hit_line(line(center, q));
  if (crossings.empty()) return {};
  const point& head = crossings.front();
  const point& tail = crossings.back();
  return {located_like(q.distance(tail) <= q.distance(head) ? tail : head, p)};
}

}  // namespace mero
