// Line location with the sum objective when the line must not cut a convex forbidden polygon.
// The unrestricted line is kept when it is parallel to an edge or meets the polygon in at most
// one point; otherwise the best line touching the polygon is among the tangents from the
// locations outside it through a vertex and the lines of the edges.

#include <vector>

#include "kernel/reporters.h"
#include "line/line_geometry.h"
#include "line/line_search.h"
#include "restriction/boundary.h"
#include "restriction/restriction.h"
#include "restriction/restriction_messages.h"

namespace mero {

namespace {

// The norm of the objective: 2 Euclidean, 1 rectilinear, -1 maximum, any other p >= 1 the lp
// norm. The value of a line is the weighted sum of the distances of the points from it.
double line_value(const std::vector<weighted_point>& points, const weighted_point& a,
                  const weighted_point& b, int p) {
  double sum = 0.0;
  if (p == 2) {
    const unit_direction u(a, b);
    for (const weighted_point& c : points) sum += l2_line_distance(a, u, c) * c.w;
  } else if (p == 1) {
    for (const weighted_point& c : points)
      sum += l1_line_distance(a, b.x - a.x, b.y - a.y, c) * c.w;
  } else {
    for (const weighted_point& c : points) sum += lp_line_distance(a, b, c, p) * c.w;
  }
  return sum;
}

weighted_point as_weighted(const point& q) { return {q.xcoord(), q.ycoord(), 0.0}; }

location line_point(const point& q, const location& like) {
  location l = located_like(q, like);
  l.weight_ref(0) = 1.0;
  return l;
}

}  // namespace

// Restricted sum line for the norm p (see line_value), O(n^2 m + n m^2) for n locations and m
// vertices. The unrestricted optimum (value z, line through the head and tail of the optima) is
// kept when it is parallel to an edge or hit_line gives at most one point. Otherwise every
// tangent from a location outside the polygon through a vertex, then every edge line, is
// evaluated; the first strictly smallest wins. Fewer than two distinct locations: the
// unrestricted result (1e50, no line) stands. An empty list: "dlist::head(): empty list"; a first
// restriction other than a forbidden polygon: 1414.
static double restricted_line_sum(facilities& f, std::list<location>& optima,
                                  const restriction_list& restrictions, int p, double z) {
  const auto* r = dynamic_cast<const restr_polygon*>(&head_of(restrictions));
  if (r == nullptr) report_error(restriction_messages::line_needs_polygon);
  if (optima.size() < 2) return z;
  const line unrestricted(point(optima.front()), point(optima.back()));
  for (const segment& e : r->edges)
    if (unrestricted.is_parallel(line(e))) return z;
  if (r->hit_line(unrestricted).size() <= 1) return z;

  const std::vector<weighted_point> points = line_points_of(f);
  std::vector<point> vertices = r->vertices();
  vertices.push_back(vertices.front());
  double best = 1e50;
  auto consider = [&](const location& from, const point& q1, const point& q2) {
    const double value = line_value(points, as_weighted(q1), as_weighted(q2), p);
    if (value < best) {
      best = value;
      optima = {line_point(q1, from), line_point(q2, from)};
    }
  };
  for (const location& a : f) {
    if (r->inside(a)) continue;
    const point from(a);
    for (const point& v : vertices)
      if (r->hit_line(line(from, v)).size() == 1) consider(a, from, v);
  }
  for (std::size_t k = 0; k + 1 < vertices.size(); ++k)
    consider(f.front(), vertices[k], vertices[k + 1]);
  return best;
}

double facilities::L_RkonvPoly_l2_sum(const restriction_list& restrictions) {
  const double z = L_l2_sum_M3();
  return restricted_line_sum(*this, optima_, restrictions, 2, z);
}

double facilities::L_RkonvPoly_lp_sum(const restriction_list& restrictions, int p) {
  const double z = L_lp_sum_M3(p);
  return restricted_line_sum(*this, optima_, restrictions, p, z);
}

double facilities::L_RkonvPoly_l1_sum(const restriction_list& restrictions) {
  const double z = L_l1_sum_M3();
  return restricted_line_sum(*this, optima_, restrictions, 1, z);
}

double facilities::L_RkonvPoly_linf_sum(const restriction_list& restrictions) {
  const double z = L_linf_sum_M3();
  return restricted_line_sum(*this, optima_, restrictions, -1, z);
}

}  // namespace mero
