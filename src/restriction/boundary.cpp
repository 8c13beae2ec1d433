#include "restriction/boundary.h"

#include <cmath>

namespace mero {

void add_crossing(std::vector<point>& list, const point& q) {
  if (!list.empty() && (list.front() == q || list.back() == q)) return;
  list.push_back(q);
}

namespace {

bool is_finite(const point& q) { return std::isfinite(q.xcoord()) && std::isfinite(q.ycoord()); }

// Collects meet(e, q) over the edges e, skipping the non-finite points of collinear overlaps.
template <class Meet>
std::vector<point> crossings_by(const std::vector<segment>& edges, Meet meet) {
  std::vector<point> out;
  for (const segment& e : edges) {
    point q;
    if (meet(e, q) && is_finite(q)) add_crossing(out, q);
  }
  return out;
}

}  // namespace

std::vector<point> edge_crossings(const std::vector<segment>& edges, const segment& s) {
  return crossings_by(edges, [&](const segment& e, point& q) { return e.intersection(s, q); });
}

std::vector<point> edge_crossings(const std::vector<segment>& edges, const line& l) {
  return crossings_by(edges, [&](const segment& e, point& q) { return l.intersection(e, q); });
}

std::vector<point> edge_crossings(const std::vector<segment>& edges, const circle& c) {
  std::vector<point> out;
  for (const segment& e : edges)
    for (const point& q : c.intersection(e)) add_crossing(out, q);
  return out;
}

std::vector<segment> ring_of(const std::vector<point>& points) {
  std::vector<segment> ring;
  for (std::size_t i = 0; i < points.size(); ++i)
    ring.emplace_back(points[i], points[(i + 1) % points.size()]);
  return ring;
}

location located_like(const point& q, const location& like) {
  location l = like;
  l.coordinate_ref(0) = q.xcoord();
  l.coordinate_ref(1) = q.ycoord();
  return l;
}

std::list<location> perpendicular_feet(const std::vector<segment>& edges, const location& p) {
  const point from(p);
  std::list<location> feet;
  for (const segment& e : edges) {
    point foot;
    if (line(e).perpendicular(from).intersection(e, foot)) feet.push_back(located_like(foot, p));
  }
  return feet;
}

namespace {

// Edges that the vertical line through p crosses at a point on or above p, other than an end.
int crossings_above(const std::vector<point>& v, const point& p) {
  int count = 0;
  const double x = p.xcoord();
  for (std::size_t i = 0; i < v.size(); ++i) {
    const point& s = v[i];
    const point& t = v[(i + 1) % v.size()];
    const bool spans = (s.xcoord() < x && x < t.xcoord()) || (t.xcoord() < x && x < s.xcoord());
    if (!spans) continue;
    const double y =
        s.ycoord() + (x - s.xcoord()) * (t.ycoord() - s.ycoord()) / (t.xcoord() - s.xcoord());
    if (y >= p.ycoord()) ++count;
  }
  return count;
}

}  // namespace

bool polygon_rule_inside(const std::vector<point>& v, const point& p) {
  const std::size_t n = v.size();
  const double x = p.xcoord();
  std::size_t start = 0;
  while (start < n && v[start].xcoord() == x) ++start;
  if (start == n) {  // every vertex on the vertical line: only the vertices themselves count
    for (const point& q : v)
      if (q == p) return true;
    return false;
  }
  int count = crossings_above(v, p);
  auto on_run = [&](const point& q) { return q.xcoord() == x && q.ycoord() >= p.ycoord(); };
  // Walk the ring once from a vertex off the line, so that no run is cut in two.
  for (std::size_t k = 1; k <= n; ++k) {
    const std::size_t i = (start + k) % n;
    if (!on_run(v[i])) continue;
    const point& before = v[(i + n - 1) % n];
    std::size_t j = i;
    for (;;) {
      if (v[j] == p) return true;
      const std::size_t next = (j + 1) % n;
      if (!on_run(v[next])) break;
      j = next;
      ++k;
    }
    const point& after = v[(j + 1) % n];
    const bool opposite =
        (before.xcoord() < x && x < after.xcoord()) || (after.xcoord() < x && x < before.xcoord());
    if (opposite) ++count;
  }
  return count % 2 == 1;
}

}  // namespace mero
