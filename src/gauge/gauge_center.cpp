// The center with a polygonal gauge at every location: the smallest z at which the balls
// a_i + (z / w_i) B_i have a common point.

#include <algorithm>
#include <cmath>
#include <vector>

#include "gauge/gauge_sites.h"
#include "kernel/convex_intersection.h"
#include "planar/weighted_points.h"

namespace mero {

namespace {

// Shrinks the balls of the feasibility test so that balls that only touch do not count as
// meeting; the value belongs to the test.
constexpr double touch_shift = 1e-14;

// An edge of a scaled ball as a constraint on x: n . x <= c + z * r, with n . e = 1 on the edge
// of the unit ball, c = n . a and r = 1 / w.
struct facet {
  point n;
  double c;
  double r;
};

double dot(const point& u, double x, double y) { return u.xcoord() * x + u.ycoord() * y; }

std::vector<facet> facets_of(const gauge_site& s) {
  std::vector<facet> out;
  const std::vector<point> e = s.gauge->extreme_points();
  for (std::size_t k = 0; k < e.size(); ++k) {
    const point n = cone_gradient(e[k], e[(k + 1) % e.size()]);
    out.push_back({n, dot(n, s.a.xcoord(), s.a.ycoord()), 1.0 / s.w[0]});
  }
  return out;
}

std::vector<point> ball(const gauge_site& s, double z) {
  std::vector<point> corners;
  for (const point& e : s.gauge->extreme_points())
    corners.emplace_back(s.a.xcoord() + z / s.w[0] * e.xcoord(),
                         s.a.ycoord() + z / s.w[0] * e.ycoord());
  return corners;
}

// The size bound of the list of critical values: these exact bounds are part of the method.
std::size_t critical_limit(std::size_t n) {
  if (n < 6) return 5000;
  if (n > 101) return 1000;
  return 500;
}

// The values of z at which a corner of ball i reaches the line of an edge of ball j, for every
// ordered pair of different locations, in that order, while the list is shorter than limit.
std::vector<double> critical_values(const std::vector<gauge_site>& sites,
                                    const std::vector<std::vector<facet>>& facets,
                                    std::size_t limit) {
  std::vector<double> values;
  for (std::size_t i = 0; i < sites.size(); ++i)
    for (std::size_t j = 0; j < sites.size(); ++j) {
      if (i == j) continue;
      const double dx = sites[j].a.xcoord() - sites[i].a.xcoord();
      const double dy = sites[j].a.ycoord() - sites[i].a.ycoord();
      for (const point& e : sites[i].gauge->extreme_points())
        for (const facet& f : facets[j]) {
          const double denominator = dot(f.n, e.xcoord(), e.ycoord()) / sites[i].w[0] - f.r;
          if (denominator == 0.0) continue;
          const double z = dot(f.n, dx, dy) / denominator;
          if (z > 0.0 && std::isfinite(z) && values.size() < limit) values.push_back(z);
        }
    }
  return values;
}

// Whether the balls, each shrunk by the touch shift, have a common point.
bool feasible(const std::vector<gauge_site>& sites, double z) {
  std::vector<point> common = ball(sites.front(), z - touch_shift);
  for (std::size_t i = 1; i < sites.size() && !common.empty(); ++i)
    common = convex_polygon_intersection(common, ball(sites[i], z - touch_shift));
  return !common.empty();
}

// The labelled intersection of all balls at z: edge labels name the facet (site * stride + edge).
labeled_convex_polygon common_part(const std::vector<gauge_site>& sites,
                                   const std::vector<std::vector<facet>>& facets,
                                   std::size_t stride, double z) {
  labeled_convex_polygon p{ball(sites.front(), z), {}};
  for (std::size_t k = 0; k < p.vertices.size(); ++k) p.edge_labels.push_back(static_cast<int>(k));
  for (std::size_t i = 1; i < sites.size(); ++i)
    for (std::size_t k = 0; k < facets[i].size() && !p.vertices.empty(); ++k) {
      const facet& f = facets[i][k];
      p = clip(p, {f.n.xcoord(), f.n.ycoord(), f.c + z * f.r}, static_cast<int>(i * stride + k));
    }
  return p;
}

// A corner of the common part as it moves with z: the meeting point of two facet lines,
// x(z) = x0 + z * x1. False for parallel lines.
bool moving_corner(const facet& f, const facet& g, point& x0, point& x1) {
  const double det = f.n.xcoord() * g.n.ycoord() - f.n.ycoord() * g.n.xcoord();
  if (det == 0.0) return false;
  auto solve = [&](double bf, double bg) {
    return point((bf * g.n.ycoord() - bg * f.n.ycoord()) / det,
                 (f.n.xcoord() * bg - g.n.xcoord() * bf) / det);
  };
  x0 = solve(f.c, g.c);
  x1 = solve(f.r, g.r);
  return true;
}

struct descent_step {
  double z;
  point where;  // the corner that meets a further facet at z
};

// The largest z below current at which a corner of the common part reaches the line of a further
// facet: the next change of its shape as z falls (three facet lines meet there). z is -inf when
// nothing changes any more within the relative precision of z.
descent_step next_event(const labeled_convex_polygon& p, const std::vector<facet>& all,
                        double current) {
  descent_step next{-HUGE_VAL, point()};
  const std::size_t m = p.vertices.size();
  const double resolution = 1e-12 * std::fmax(1.0, std::fabs(current));
  for (std::size_t k = 0; k < m; ++k) {
    const int in = p.edge_labels[(k + m - 1) % m], out = p.edge_labels[k];
    point x0, x1;
    if (in == out || !moving_corner(all[in], all[out], x0, x1)) continue;
    for (std::size_t j = 0; j < all.size(); ++j) {
      if (static_cast<int>(j) == in || static_cast<int>(j) == out) continue;
      const facet& f = all[j];
      // Slack of the corner against f: g0 + z g1; it is not positive at current and becomes
      // positive below current when g1 < 0.
      const double g1 = dot(f.n, x1.xcoord(), x1.ycoord()) - f.r;
      if (!(g1 < 0.0)) continue;
      const double g0 = dot(f.n, x0.xcoord(), x0.ycoord()) - f.c;
      const double z = -g0 / g1;
      if (z < current - resolution && z > next.z)
        next = {z, point(x0.xcoord() + z * x1.xcoord(), x0.ycoord() + z * x1.ycoord())};
    }
  }
  return next;
}

double diameter(const std::vector<point>& points) {
  double d = 0.0;
  for (const point& p : points)
    for (const point& q : points) d = std::fmax(d, p.distance(q));
  return d;
}

// Whether the common part has shrunk to a point: empty by rounding, or a speck around where.
bool shrunk(const labeled_convex_polygon& common, const point& where) {
  const double scale = std::fmax(1.0, std::fabs(where.xcoord()) + std::fabs(where.ycoord()));
  return common.vertices.size() <= 1 || diameter(common.vertices) <= 1e-10 * scale;
}

// The smallest feasible critical value by bisection over the sorted values (feasibility rises
// with z); the value at the first location, which is feasible, when none is.
double search_critical(const std::vector<gauge_site>& sites, std::vector<double> values) {
  std::sort(values.begin(), values.end());
  values.erase(std::unique(values.begin(), values.end()), values.end());
  std::size_t low = 0, high = values.size();
  while (low < high) {
    const std::size_t mid = (low + high) / 2;
    if (feasible(sites, values[mid])) {
      high = mid;
    } else {
      low = mid + 1;
    }
  }
  if (high < values.size()) return values[high];
  double bound = 0.0;
  for (const gauge_site& s : sites)
    bound = std::fmax(bound, s.w[0] * s.gauge->dist(s.a, sites.front().a));
  return bound;
}

}  // namespace

// Weighted maximum of gauge distances: the optimum is the smallest z at which the scaled balls
// meet. The critical values of pairs (a corner of one ball on an edge line of another; at most
// 5000, 500 or 1000 of them by the number of locations) are searched by bisection with a convex
// polygon intersection as test; from the value found the common part of the balls is followed
// down through its shape changes (three edge lines meeting) until it shrinks to its end, which
// makes the value exact also where the optimum is no pair value. O(P n k log P) for the search
// with P values, n locations and k corners per gauge. optima: the corners of the common part at
// the optimum (one point in the usual case; weight entry 0 = 0.0). One location: z = 0 there.
double facilities::gauge_center(const std::vector<polygauge>& gauges,
                                const std::vector<int>& gauge_numbers, bool clear) {
  if (clear) optima_.clear();
  const std::vector<gauge_site> sites =
      checked_sites(*this, gauges, gauge_numbers, 1, median_checks);
  optima_.clear();
  bool all_equal = true;
  for (const gauge_site& s : sites) all_equal = all_equal && s.a == sites.front().a;
  if (all_equal) {
    optima_.push_back(result_location(sites.front().a.xcoord(), sites.front().a.ycoord(), 0.0));
    return 0.0;
  }

  std::vector<std::vector<facet>> facets;
  std::size_t stride = 0;
  for (const gauge_site& s : sites) {
    facets.push_back(facets_of(s));
    stride = std::max(stride, facets.back().size());
  }
  std::vector<facet> all(stride * sites.size(), facet{point(), 1e50, 0.0});
  for (std::size_t i = 0; i < sites.size(); ++i)
    std::copy(facets[i].begin(), facets[i].end(), all.begin() + i * stride);

  double z = search_critical(sites, critical_values(sites, facets, critical_limit(sites.size())));
  labeled_convex_polygon common = common_part(sites, facets, stride, z);
  point last_corner = common.vertices.empty() ? sites.front().a : common.vertices.front();
  // Each step removes a facet from the common part or brings one in; the bound only guards
  // against a cycle of rounding.
  for (std::size_t step = 0; step < 4 * all.size() + 8 && !shrunk(common, last_corner); ++step) {
    const descent_step next = next_event(common, all, z);
    if (next.z == -HUGE_VAL) break;
    z = next.z;
    last_corner = next.where;
    // At the optimum the common part is a point, which rounding may lose or keep as a speck.
    common = common_part(sites, facets, stride, z);
  }
  if (shrunk(common, last_corner)) {
    optima_.push_back(result_location(last_corner.xcoord(), last_corner.ycoord(), 0.0));
  } else {
    for (const point& p : common.vertices)
      optima_.push_back(result_location(p.xcoord(), p.ycoord(), 0.0));
  }
  return z;
}

}  // namespace mero
