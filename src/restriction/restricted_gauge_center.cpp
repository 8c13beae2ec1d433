// The gauge center with a forbidden region: when the unrestricted center lies in a region, the
// best point of that region's boundary. Along a straight edge every weighted gauge distance is
// convex and piecewise linear, so their maximum is least at an edge's end, where a distance
// changes its linear piece (the line of a site along an extreme direction of its gauge), or where
// two linear pieces are equal (a line for each pair of sites and pair of cones). On a circle the
// least value of a single linear piece (the point where the circle's normal is the piece's
// gradient) joins them. Every candidate is a boundary point and is valued exactly.

#include <algorithm>
#include <cmath>
#include <vector>

#include "gauge/gauge_sites.h"
#include "kernel/line.h"
#include "kernel/reporters.h"
#include "model/facilities.h"
#include "restriction/boundary.h"
#include "restriction/restriction.h"
#include "restriction/restriction_messages.h"

namespace mero {

namespace {

double largest_gauge_distance(const std::vector<gauge_site>& sites, const point& x) {
  double v = 0.0;
  for (const gauge_site& s : sites) v = std::max(v, s.w[0] * s.gauge->dist(s.a, x));
  return v;
}

// The linear pieces of one site: weight times the gradient of each cone of its gauge.
std::vector<point> weighted_gradients(const gauge_site& s) {
  const std::vector<point> e = s.gauge->extreme_points();
  std::vector<point> g;
  for (std::size_t k = 0; k < e.size(); ++k) {
    const point c = cone_gradient(e[k], e[(k + 1) % e.size()]);
    g.emplace_back(s.w[0] * c.xcoord(), s.w[0] * c.ycoord());
  }
  return g;
}

double dot(const point& a, const point& b) {
  return a.xcoord() * b.xcoord() + a.ycoord() * b.ycoord();
}

// The points where the boundary of r can carry the least largest distance, after the figure's
// own (corners, or the lowest points of single pieces on a circle).
std::vector<point> gauge_boundary_candidates(const restriction& r,
                                             const std::vector<gauge_site>& sites,
                                             std::vector<point> candidates) {
  auto add = [&candidates](const std::vector<point>& hits) {
    for (const point& q : hits)
      if (std::isfinite(q.xcoord()) && std::isfinite(q.ycoord())) candidates.push_back(q);
  };
  for (const gauge_site& s : sites)
    for (const point& e : s.gauge->extreme_points())
      add(r.hit_line(line(s.a, point(s.a.xcoord() + e.xcoord(), s.a.ycoord() + e.ycoord()))));
  std::vector<std::vector<point>> gradients;
  for (const gauge_site& s : sites) gradients.push_back(weighted_gradients(s));
  for (std::size_t i = 0; i < sites.size(); ++i)
    for (std::size_t j = i + 1; j < sites.size(); ++j)
      for (const point& gi : gradients[i])
        for (const point& gj : gradients[j]) {
          // gi.(x - a_i) = gj.(x - a_j): the line n.x = c.
          const point n(gi.xcoord() - gj.xcoord(), gi.ycoord() - gj.ycoord());
          const double nn = dot(n, n);
          if (nn == 0.0) continue;
          const double c = dot(gi, sites[i].a) - dot(gj, sites[j].a);
          const point foot(n.xcoord() * c / nn, n.ycoord() * c / nn);
          add(r.hit_line(line(foot, point(foot.xcoord() - n.ycoord(), foot.ycoord() + n.xcoord()))));
        }
  return candidates;
}

// The first candidate of the least largest distance; it is left in p.
double best_gauge_candidate(const std::vector<point>& candidates,
                            const std::vector<gauge_site>& sites, location& p) {
  double best = 1e50;
  point chosen(p);
  for (const point& q : candidates) {
    const double v = largest_gauge_distance(sites, q);
    if (v < best) {
      best = v;
      chosen = q;
    }
  }
  p = located_like(chosen, p);
  return best;
}

}  // namespace

double restriction::proj_gauge_center(location&, const std::vector<gauge_site>&, double) const {
  report_error(restriction_messages::not_implemented);
}

double restr_polygon::proj_gauge_center(location& p, const std::vector<gauge_site>& sites,
                                        double) const {
  return best_gauge_candidate(gauge_boundary_candidates(*this, sites, vertices()), sites, p);
}

double restr_rectangle::proj_gauge_center(location& p, const std::vector<gauge_site>& sites,
                                          double bound) const {
  return restr_polygon(corners).proj_gauge_center(p, sites, bound);
}

double restr_circle::proj_gauge_center(location& p, const std::vector<gauge_site>& sites,
                                       double) const {
  std::vector<point> lowest;
  for (const gauge_site& s : sites)
    for (const point& g : weighted_gradients(s)) {
      const double length = std::hypot(g.xcoord(), g.ycoord());
      if (length > 0.0)
        lowest.emplace_back(center.xcoord() - radius * g.xcoord() / length,
                            center.ycoord() - radius * g.ycoord() / length);
    }
  return best_gauge_candidate(gauge_boundary_candidates(*this, sites, lowest), sites, p);
}

// Gauge center with forbidden regions, O(n^2 k^2) boundary candidates for n locations and k
// corners per gauge, each valued in O(n k). First the unrestricted gauge_center; if its point
// lies in no region, that result stands. Otherwise the first region holding it gives its best
// boundary point (regions after it are not consulted, as in the other restricted centers), the
// only optimum, with weight entry 0 = 0.0. Barriers: error 1411; no region: the list error.
double facilities::restr_gauge_center(const std::vector<polygauge>& gauges,
                                      const std::vector<int>& gauge_numbers,
                                      const restriction_list& restrictions) {
  head_of(restrictions);
  const double z = gauge_center(gauges, gauge_numbers, true);
  location p = optima_.front();
  const restriction* r = first_containing(restrictions, p);
  if (r == nullptr) return z;
  const std::vector<gauge_site> sites =
      checked_sites(*this, gauges, gauge_numbers, 1, median_checks);
  const double value = r->proj_gauge_center(p, sites, z);
  optima_.clear();
  optima_.push_back(p);
  return value;
}

}  // namespace mero
