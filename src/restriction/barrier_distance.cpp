// Distances around a barrier: who sees whom, and the shortest route when the straight one is
// blocked. The barrier problem sums these distances.

#include <algorithm>
#include <cmath>
#include <limits>

#include "restriction/boundary.h"
#include "restriction/restriction.h"

namespace mero {

namespace {

bool on_circle(const point& q, const point& centre, double radius) {
  return std::fabs(q.distance(centre) - radius) <= 1e-9 * std::max(1.0, radius);
}

}  // namespace

// Points on the circle see everything. Otherwise two crossings block, and one blocks only when
// it is where the segment leaves a point inside (a tangent touch does not).
bool circle_barrier::sees(const point& a, const point& p) const {
  if (on_circle(a, center, radius) || on_circle(p, center, radius)) return true;
  const std::vector<point> hits = hit_segment(segment(a, p));
  if (hits.size() >= 2) return false;
  return hits.empty() || (!inside(a) && !inside(p));
}

// Around the circle: the tangent from a, the arc, the tangent to p. The side is that of a
// against the line from p through the centre.
barrier::route_to circle_barrier::route(const point& a, const point& p) const {
  if (inside(a)) return {1e9, a};
  if (sees(a, p)) return {a.distance(p), p};
  const bool left = halfspace(p, center).side(a) == 1;
  const point t1 = left ? left_tangent(a) : right_tangent(a);
  const point t2 = left ? right_tangent(p) : left_tangent(p);
  const double chord = t1.distance(t2);
  const double arc = 2.0 * radius * std::asin(std::min(1.0, chord / (2.0 * radius)));
  return {a.distance(t1) + arc + t2.distance(p), t1};
}

double circle_barrier::barrier_objective(const std::vector<location>& locations,
                                         const point& p) const {
  if (!(p.distance(center) > radius)) return 1e13;
  return barrier::barrier_objective(locations, p);
}

// An end on the barrier sees everything; otherwise a crossing that is no end of the barrier
// blocks.
bool line_barrier::sees(const point& a, const point& p) const {
  if (inside(a) || inside(p)) return true;
  const std::vector<point> hits = hit_segment(segment(a, p));
  return hits.empty() || hits.front() == start || hits.front() == end;
}

// Blocked: the shorter of the routes over the two end points.
barrier::route_to line_barrier::route(const point& a, const point& p) const {
  if (sees(a, p)) return {a.distance(p), p};
  const double over_start = a.distance(start) + start.distance(p);
  const double over_end = a.distance(end) + end.distance(p);
  return over_start <= over_end ? route_to{over_start, start} : route_to{over_end, end};
}

// Neither end inside, and at most one crossing with the boundary.
bool polygon_barrier::sees(const point& a, const point& p) const {
  if (inside(a) || inside(p)) return false;
  return hit_segment(segment(a, p)).size() <= 1;
}

namespace {

// A point of a piece that runs along an edge may be rounded off it to either side; such a point
// is taken as on the boundary.
bool near_boundary(const polygon& shape, const point& q) {
  const double tolerance = 1e-9 * (1.0 + std::fabs(q.xcoord()) + std::fabs(q.ycoord()));
  for (const segment& e : shape.segments()) {
    const double dx = e.dx(), dy = e.dy();
    const double length2 = dx * dx + dy * dy;
    double t = length2 == 0.0 ? 0.0
                              : ((q.xcoord() - e.xcoord1()) * dx + (q.ycoord() - e.ycoord1()) * dy) /
                                    length2;
    t = std::clamp(t, 0.0, 1.0);
    if (q.distance(point(e.xcoord1() + t * dx, e.ycoord1() + t * dy)) <= tolerance) return true;
  }
  return false;
}

// True when the segment from u to w runs through the interior of the polygon: the pieces between
// the points where it meets the boundary are tested at their midpoints.
bool enters(const polygon& shape, const point& u, const point& w) {
  const double dx = w.xcoord() - u.xcoord(), dy = w.ycoord() - u.ycoord();
  const double length2 = dx * dx + dy * dy;
  if (length2 == 0.0) return false;
  auto at = [&](const point& q) {
    return ((q.xcoord() - u.xcoord()) * dx + (q.ycoord() - u.ycoord()) * dy) / length2;
  };
  std::vector<double> cuts = {0.0, 1.0};
  const segment uw(u, w);
  for (const segment& e : shape.segments()) {
    point q;
    if (uw.intersection(e, q) && std::isfinite(q.xcoord()) && std::isfinite(q.ycoord()))
      cuts.push_back(at(q));
  }
  for (const point& v : shape.vertices())
    if (orientation(u, w, v) == 0) cuts.push_back(at(v));
  std::sort(cuts.begin(), cuts.end());
  for (std::size_t k = 0; k + 1 < cuts.size(); ++k) {
    const double lo = std::clamp(cuts[k], 0.0, 1.0), hi = std::clamp(cuts[k + 1], 0.0, 1.0);
    if (hi - lo <= 1e-12) continue;
    const double t = 0.5 * (lo + hi);
    const point mid(u.xcoord() + t * dx, u.ycoord() + t * dy);
    if (shape.inside(mid) && !near_boundary(shape, mid)) return true;
  }
  return false;
}

}  // namespace

// The shortest route outside the polygon runs over vertices: Dijkstra's method on the graph of
// a, p and the vertices, joined where the segment does not enter the interior. O(m^3) for m
// vertices. For a convex polygon this is the route over the tangent vertices and the boundary
// between them on the nearer side.
barrier::route_to polygon_barrier::route(const point& a, const point& p) const {
  const polygon shape(vertices);
  if (shape.inside(a) || shape.inside(p)) return {1e8, a};
  if (sees(a, p)) return {a.distance(p), p};
  std::vector<point> nodes = {a};
  nodes.insert(nodes.end(), vertices.begin(), vertices.end());
  nodes.push_back(p);
  const std::size_t n = nodes.size();
  const double none = std::numeric_limits<double>::infinity();
  std::vector<double> dist(n, none);
  std::vector<std::size_t> first(n, 0);  // the first node after a on the best route
  std::vector<bool> done(n, false);
  dist[0] = 0.0;
  for (std::size_t round = 0; round < n; ++round) {
    std::size_t u = n;
    for (std::size_t k = 0; k < n; ++k)
      if (!done[k] && dist[k] < none && (u == n || dist[k] < dist[u])) u = k;
    if (u == n || u == n - 1) break;
    done[u] = true;
    for (std::size_t w = 1; w < n; ++w) {
      if (done[w] || enters(shape, nodes[u], nodes[w])) continue;
      const double d = dist[u] + nodes[u].distance(nodes[w]);
      if (d < dist[w]) {
        dist[w] = d;
        first[w] = u == 0 ? w : first[u];
      }
    }
  }
  if (!(dist[n - 1] < none)) return {1e8, a};
  return {dist[n - 1], nodes[first[n - 1]]};
}

}  // namespace mero
