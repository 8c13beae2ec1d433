// Restricted center problems: the weighted Euclidean, maximum-norm and rectilinear centers with
// a forbidden convex region, and the boundary searches of the figures that serve them.

#include <algorithm>
#include <cmath>
#include <vector>

#include "kernel/convex_hull.h"
#include "kernel/error_handler.h"
#include "kernel/reporters.h"
#include "model/facilities.h"
#include "model/model_messages.h"
#include "restriction/boundary.h"
#include "restriction/restriction.h"
#include "restriction/restriction_messages.h"

namespace mero {

namespace msg = restriction_messages;

namespace {

constexpr double infinity_value = 1e50;

double weighted_l2(const location& a, const point& q) { return a.weight(0) * point(a).distance(q); }

double largest_weighted_l2(const std::vector<location>& locations, const point& q) {
  double v = 0.0;
  for (const location& a : locations) v = std::max(v, weighted_l2(a, q));
  return v;
}

double largest_weighted_linf(const std::vector<location>& locations, const point& q) {
  double v = 0.0;
  for (const location& a : locations) {
    const double d =
        std::max(std::fabs(a.coordinate(0) - q.xcoord()), std::fabs(a.coordinate(1) - q.ycoord()));
    v = std::max(v, a.weight(0) * d);
  }
  return v;
}

// Boundary points that may carry the restricted Euclidean center, each with the value of the
// location that put it there; only values above the unrestricted optimum z enter.
struct l2max_candidates {
  double z;
  std::vector<point> points;
  std::vector<double> values;

  void consider(const point& q, double v) {
    if (z < v && std::isfinite(q.xcoord()) && std::isfinite(q.ycoord())) {
      points.push_back(q);
      values.push_back(v);
    }
  }
};

// Where the horizontal and the vertical line through each location cross an edge.
void add_axis_crossings(l2max_candidates& c, const std::vector<segment>& edges,
                        const std::vector<location>& locations) {
  for (const location& a : locations) {
    const point pa(a);
    const segment across(point(-infinity_value, pa.ycoord()), point(infinity_value, pa.ycoord()));
    const segment upright(point(pa.xcoord(), -infinity_value), point(pa.xcoord(), infinity_value));
    for (const segment& e : edges) {
      point q;
      if (e.intersection(across, q)) c.consider(q, weighted_l2(a, q));
      if (e.intersection(upright, q)) c.consider(q, weighted_l2(a, q));
    }
  }
}

// Where the boundary meets the curve of equal weighted distance of two locations: their
// perpendicular bisector for equal weights, else their Apollonius circle.
void add_pair_crossings(l2max_candidates& c, const restriction& r, const location& a,
                        const location& b) {
  const point pa(a), pb(b);
  if (pa == pb) return;
  const double wa = a.weight(0), wb = b.weight(0);
  std::vector<point> hits;
  if (wa == wb) {
    const point middle(0.5 * (pa.xcoord() + pb.xcoord()), 0.5 * (pa.ycoord() + pb.ycoord()));
    hits = r.hit_line(line(pa, pb).perpendicular(middle));
    // A bisector running along an edge meets the boundary in 3 or more points: no single
    // crossing stands for the pair.
    if (hits.size() >= 3) return;
  } else {
    // wa |q - a| = wb |q - b| is |q - a| = k |q - b| with k = wb / wa: the circle of centre
    // (a - k^2 b) / (1 - k^2) and radius k |a - b| / |1 - k^2|.
    const double k = wb / wa, k2 = k * k;
    const point centre((pa.xcoord() - k2 * pb.xcoord()) / (1.0 - k2),
                       (pa.ycoord() - k2 * pb.ycoord()) / (1.0 - k2));
    const double radius = k / std::fabs(1.0 - k2) * pa.distance(pb);
    if (!(radius >= 0.0) || !std::isfinite(radius)) return;
    hits = r.hit_circle(circle(centre, radius));
  }
  // On the curve both weighted distances are the value; the larger of the two computed ones is
  // taken, so that the rounding of the crossing cannot make the pair fail the test of the choice.
  for (const point& q : hits) c.consider(q, std::max(weighted_l2(a, q), weighted_l2(b, q)));
}

// When nothing else offers itself, the region's vertices on the hull of region and locations.
void add_corners(l2max_candidates& c, const std::vector<point>& region_vertices,
                 const std::vector<location>& locations) {
  std::vector<point> all = region_vertices;
  for (const location& a : locations) all.push_back(point(a));
  const polygon hull(convex_hull(all));
  for (const point& v : region_vertices)
    if (hull.contains(v)) c.consider(v, largest_weighted_l2(locations, v));
}

// The boundary search of proj_l2max over a convex ring of edges.
double boundary_l2max(const restriction& r, const std::vector<segment>& edges,
                      const std::vector<point>& region_vertices, location& p,
                      const std::vector<location>& locations, double z) {
  l2max_candidates c{z, {}, {}};
  add_axis_crossings(c, edges, locations);
  for (auto a = locations.begin(); a != locations.end(); ++a)
    for (auto b = std::next(a); b != locations.end(); ++b) add_pair_crossings(c, r, *a, *b);
  if (c.points.empty()) add_corners(c, region_vertices, locations);
  double best = infinity_value;
  point chosen(p);
  for (std::size_t i = 0; i < c.points.size(); ++i) {
    const double v = c.values[i];
    if (!(v < best)) continue;
    // Only a candidate whose value is the largest weighted distance at its point is a value of
    // the objective; 1e-13 absorbs the rounding of the crossing.
    bool is_maximum = true;
    for (const location& a : locations)
      if (weighted_l2(a, c.points[i]) - v > 1e-13) is_maximum = false;
    if (is_maximum) {
      best = v;
      chosen = c.points[i];
    }
  }
  p = located_like(chosen, p);
  return best;
}

}  // namespace

double restr_polygon::proj_l2max(location& p, const std::vector<location>& locations,
                                 double bound) const {
  if (shape() != 0 || !is_convex()) report_error(msg::not_convex_polygon);
  return boundary_l2max(*this, edges, vertices(), p, locations, bound);
}

double restr_rectangle::proj_l2max(location& p, const std::vector<location>& locations,
                                   double bound) const {
  if (shape() != 1) report_error(msg::not_rectangle);
  return boundary_l2max(*this, sides(), corners, p, locations, bound);
}

// Weighted Euclidean center with a forbidden convex polygon or rectangle: the unrestricted
// center (smallest enclosing circle) if no restriction contains it, else the best boundary point
// among axis crossings, bisector and Apollonius crossings and hull corners, O(n^2 e) for n
// locations and e edges. optima receives one point. A circle ends the run with 1411.
double facilities::in_l2_max(const restriction_list& restrictions) {
  facilities copy = *this;
  const double z = copy.l2_v1_max(true);
  optima_ = copy.optima();
  location p = optima_.front();
  const restriction* r = first_containing(restrictions, p);
  if (!r) return z;
  const double value = r->proj_l2max(p, *this, z);
  optima_.clear();
  optima_.push_back(p);
  return value;
}

namespace {

// The pieces of an optimal segment a-b that lie outside the figure, when there are any.
// Returns true when the pieces stand as the result (U then holds them).
bool keep_outside_pieces(const restriction& r, std::list<location>& U) {
  const location a = U.front(), b = U.back();
  const std::vector<point> cross = r.hit_segment(segment(point(a), point(b)));
  if (cross.empty()) return !r.inside(segment(point(a), point(b)));
  if (cross.size() == 1) {
    const location& end = r.inside(point(a)) ? b : a;
    U = {end, located_like(cross.front(), end)};
    return true;
  }
  if (cross.size() == 2) {
    const point pa(a), pb(b);
    const bool first_near_a = pa.distance(cross[0]) <= pa.distance(cross[1]);
    location near_a = located_like(first_near_a ? cross[0] : cross[1], a);
    location near_b = located_like(first_near_a ? cross[1] : cross[0], b);
    location end_a = a, end_b = b;
    end_a.weight_ref(0) = near_a.weight_ref(0) = 0.0;
    end_b.weight_ref(0) = near_b.weight_ref(0) = 1.0;
    U = {end_a, near_a, end_b, near_b};
    return true;
  }
  return false;
}

// The first point of hit_ray from a towards b. Only the direction of the ray counts: while its
// end still lies inside the figure (a large figure, a corner close to a), the ray is doubled.
point ray_exit(const restriction& r, const point& a, const point& b) {
  point end = b;
  for (int doubling = 0; doubling <= 60; ++doubling) {
    if (!r.inside(end) || doubling == 60) {
      const std::vector<point> hits = r.hit_ray(a, end);
      if (hits.empty()) empty_list_error(model_messages::empty_list);
      return hits.front();
    }
    end = a + (end - a) * 2.0;
  }
  return end;
}

}  // namespace

double restriction::proj_linf_max(std::list<location>& U, const std::vector<location>& locations,
                                  double z) const {
  if (U.size() == 2 && keep_outside_pieces(*this, U)) return z;
  if (U.size() == 1 && !inside(U.front())) return z;
  // The level sets are rectangles; a level well beyond z gives the directions of their corners.
  const double r = std::trunc(z + 5.0);
  double lo_x = -infinity_value, lo_y = -infinity_value;
  double hi_x = infinity_value, hi_y = infinity_value;
  for (const location& a : locations) {
    const double reach = r / a.weight(0);
    lo_x = std::max(lo_x, a.coordinate(0) - reach);
    lo_y = std::max(lo_y, a.coordinate(1) - reach);
    hi_x = std::min(hi_x, a.coordinate(0) + reach);
    hi_y = std::min(hi_y, a.coordinate(1) + reach);
  }
  const point a(U.front()), b(U.back());
  std::vector<std::pair<point, point>> rays = {{a, point(lo_x, lo_y)},
                                               {a, point(lo_x, hi_y)},
                                               {b, point(hi_x, lo_y)},
                                               {b, point(hi_x, hi_y)}};
  // A vertical optimal segment runs from its lower end a to its upper end b.
  if (a.xcoord() == b.xcoord()) {
    rays[1] = {a, point(hi_x, lo_y)};
    rays[2] = {b, point(lo_x, hi_y)};
  }
  std::vector<point> candidates;
  std::vector<double> values;
  for (const auto& [from, corner] : rays) {
    const point exit_point = ray_exit(*this, from, corner);
    candidates.push_back(exit_point);
    values.push_back(largest_weighted_linf(locations, exit_point));
  }
  const double smallest = *std::min_element(values.begin(), values.end());
  const location like = U.front();
  U.clear();
  // Every candidate within 1e-14 of the smallest value stands, in ray order.
  for (std::size_t i = 0; i < candidates.size(); ++i)
    if (std::fabs(values[i] - smallest) < 1e-14) {
      location l = located_like(candidates[i], like);
      l.weight_ref(0) = 0.0;
      U.push_back(l);
    }
  return smallest;
}

// Weighted maximum-norm center with a forbidden convex figure: the unrestricted optimal set
// (point or segment) if no restriction contains it; the parts of the segment outside the figure
// if it crosses the boundary; else the best exit point of the rays from the optimal set towards
// the corners of the level rectangle. O(n) after the unrestricted solve; optima as described.
double facilities::in_convex_linf_max(const restriction_list& restrictions) {
  facilities copy = *this;
  const double z = copy.linf_max(true);
  optima_ = copy.optima();
  const restriction* hit = first_containing_any(optima_, restrictions);
  if (!hit) return z;
  return hit->proj_linf_max(optima_, *this, z);
}

namespace {

// The image of a forbidden region under (x, y) -> (x - y, x + y); barriers are left out.
std::unique_ptr<restriction> rotated_copy(const restriction& r) {
  auto image = [](const point& q) {
    return point(q.xcoord() - q.ycoord(), q.xcoord() + q.ycoord());
  };
  std::unique_ptr<restriction> copy;
  if (r.kind() != 0) return copy;
  if (const auto* p = dynamic_cast<const restr_polygon*>(&r)) {
    std::vector<point> v;
    for (const point& q : p->vertices()) v.push_back(image(q));
    copy = std::make_unique<restr_polygon>(v);
  } else if (const auto* t = dynamic_cast<const restr_rectangle*>(&r)) {
    copy = std::make_unique<restr_rectangle>(image(t->corners[0]), image(t->corners[1]),
                                             image(t->corners[2]), image(t->corners[3]));
  } else if (const auto* c = dynamic_cast<const restr_circle*>(&r)) {
    copy = std::make_unique<restr_circle>(image(c->center), c->radius * 2.0);
  }
  if (copy && r.is_forbidden_inside()) copy->set_forbidden_inside();
  return copy;
}

}  // namespace

// Weighted rectilinear center with a forbidden convex figure: in_convex_linf_max on the plane
// turned by (x, y) -> (x - y, x + y), where l1 distances become maximum-norm distances, with
// the optima turned back. A circle is carried over as a circle of twice the radius.
double facilities::in_convex_l1_max(const restriction_list& restrictions) {
  facilities turned = *this;
  turned.linf_to_l1();
  restriction_list turned_restrictions;
  for (const auto& r : restrictions)
    if (auto copy = rotated_copy(*r)) turned_restrictions.push_back(std::move(copy));
  const double value = turned.in_convex_linf_max(turned_restrictions);
  optima_ = turned.optima();
  l1_to_linf(optima_);
  return value;
}

}  // namespace mero
