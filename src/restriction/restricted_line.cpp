// Line location with the sum objective when the line must not cut a convex forbidden polygon.
// The unrestricted line is kept when it is parallel to an edge or meets the polygon in at most
// one point; otherwise the best line touching the polygon is among the tangents from the
// locations outside it through a vertex and the lines of the edges.

#include <functional>
#include <vector>

#include "kernel/reporters.h"
#include "line/line_geometry.h"
#include "line/line_search.h"
#include "restriction/boundary.h"
#include "restriction/restriction.h"
#include "restriction/restriction_messages.h"

namespace mero {

namespace {

// The objective of a line through two points: the weighted sum of the distances of the
// locations from it in the norm of the worker.
using line_sum = std::function<double(const weighted_point&, const weighted_point&)>;

// The lp norms by p: 2 Euclidean, 1 rectilinear, -1 maximum, any other p >= 1 the lp norm.
line_sum lp_line_sum(std::vector<weighted_point> points, int p) {
  if (p == 2)
    return [points](const weighted_point& a, const weighted_point& b) {
      return l2_line_sum(points, a, b);
    };
  return [points, p](const weighted_point& a, const weighted_point& b) {
    double sum = 0.0;
    for (const weighted_point& c : points)
      sum +=
          (p == 1 ? l1_line_distance(a, b.x - a.x, b.y - a.y, c) : lp_line_distance(a, b, c, p)) *
          c.w;
    return sum;
  };
}

weighted_point as_weighted(const point& q) { return {q.xcoord(), q.ycoord(), 0.0}; }

location line_point(const point& q, const location& like) {
  location l = located_like(q, like);
  l.weight_ref(0) = 1.0;
  return l;
}

}  // namespace

// Restricted sum line, O(n^2 m + n m^2) distance evaluations for n locations and m vertices.
// The unrestricted optimum (value z, line through the head and tail of the optima) is kept when
// it is parallel to an edge or hit_line gives at most one point. Otherwise every tangent from a
// location outside the polygon through a vertex, then every edge line, is valued by value_of;
// the first strictly smallest wins. Fewer than two distinct locations: the unrestricted result
// (1e50, no line) stands. An empty list: "dlist::head(): empty list"; a first restriction other
// than a forbidden polygon: 1414.
static double restricted_line_sum(facilities& f, std::list<location>& optima,
                                  const restriction_list& restrictions, double z,
                                  const line_sum& value_of) {
  const auto* r = dynamic_cast<const restr_polygon*>(&head_of(restrictions));
  if (r == nullptr) report_error(restriction_messages::line_needs_polygon);
  if (optima.size() < 2) return z;
  const line unrestricted(point(optima.front()), point(optima.back()));
  for (const segment& e : r->edges)
    if (unrestricted.is_parallel(line(e))) return z;
  if (r->hit_line(unrestricted).size() <= 1) return z;

  std::vector<point> vertices = r->vertices();
  vertices.push_back(vertices.front());
  double best = 1e50;
  auto consider = [&](const location& from, const point& q1, const point& q2) {
    const double value = value_of(as_weighted(q1), as_weighted(q2));
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
  return restricted_line_sum(*this, optima_, restrictions, z,
                             lp_line_sum(line_points_of(*this), 2));
}

double facilities::L_RkonvPoly_lp_sum(const restriction_list& restrictions, int p) {
  const double z = L_lp_sum_M3(p);
  return restricted_line_sum(*this, optima_, restrictions, z,
                             lp_line_sum(line_points_of(*this), p));
}

double facilities::L_RkonvPoly_l1_sum(const restriction_list& restrictions) {
  const double z = L_l1_sum_M3();
  return restricted_line_sum(*this, optima_, restrictions, z,
                             lp_line_sum(line_points_of(*this), 1));
}

double facilities::L_RkonvPoly_linf_sum(const restriction_list& restrictions) {
  const double z = L_linf_sum_M3();
  return restricted_line_sum(*this, optima_, restrictions, z,
                             lp_line_sum(line_points_of(*this), -1));
}

// The block member: the unrestricted line of L_block_sum_M3 (which checks the gauge number) and
// the candidates valued with the gauge distance to a line.
double facilities::L_RkonvPoly_block_sum(const restriction_list& restrictions,
                                         const std::vector<polygauge>& gauges,
                                         const std::vector<int>& gauge_numbers) {
  const double z = L_block_sum_M3(gauges, gauge_numbers);
  const std::vector<point> dirs = block_directions(gauges, gauge_numbers);
  const std::vector<weighted_point> points = line_points_of(*this);
  return restricted_line_sum(*this, optima_, restrictions, z,
                             [&](const weighted_point& a, const weighted_point& b) {
                               return block_line_sum(points, a, b, dirs);
                             });
}

}  // namespace mero
