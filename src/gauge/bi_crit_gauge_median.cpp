// The efficient set of two gauge medians that share the locations and gauges but weigh them by
// two columns.

#include <algorithm>
#include <cmath>
#include <vector>

#include "gauge/gauge_sites.h"
#include "kernel/convex_hull.h"
#include "planar/weighted_points.h"

namespace mero {

namespace {

// Objective values are sums of rounded products: points whose weighted values differ by less
// than this share of the values count as equal, so that a cell whose corners tie in exact
// arithmetic is kept whole.
constexpr double tie_tolerance = 1e-9;

struct vertex {
  point p;
  double f1;
  double f2;
};

// The Euclidean length to which every ray is drawn: an efficient point x is no worse than x0 in
// one column k, so some location lies within gauge distance Z of x, hence within Euclidean
// distance Z G; every other location lies within D more (D is a closed tour through all of
// them). Both terms are taken with at least G = 1 so that small unit balls lose nothing.
double ray_length(const std::vector<gauge_site>& sites, const facilities& f,
                  const std::vector<polygauge>& gauges, const std::vector<int>& numbers,
                  const point& x0) {
  double tour = 0.0, longest = 0.0;
  for (std::size_t i = 0; i < sites.size(); ++i) {
    tour += sites[i].a.distance(sites[(i + 1) % sites.size()].a);
    longest = std::fmax(longest, sites[i].gauge->max_length());
  }
  double worst = 0.0;
  for (int k = 0; k < 2; ++k) {
    double column = 0.0;
    for (const gauge_site& s : sites) column += s.w[k];
    worst = std::fmax(worst, f.gauge_value(gauges, numbers, x0, k) / column);
  }
  const double g = std::fmax(1.0, longest);
  return tour * g + worst * g;
}

// The vertices whose images (f1, f2) lie on the lower left hull of all images, between the
// lexicographic minimum of (f1, f2) and that of (f2, f1): the supported efficient images. Since
// both objectives are convex, every efficient image is supported.
std::vector<vertex> efficient_chain(std::vector<vertex> all) {
  std::sort(all.begin(), all.end(), [](const vertex& a, const vertex& b) {
    return a.f1 < b.f1 || (a.f1 == b.f1 && a.f2 < b.f2);
  });
  std::vector<vertex> hull;
  for (const vertex& v : all) {
    if (!hull.empty() && v.f2 >= hull.back().f2) continue;  // dominated or no better in f2
    while (hull.size() >= 2) {
      const vertex& a = hull[hull.size() - 2];
      const vertex& b = hull.back();
      const double turn = (b.f1 - a.f1) * (v.f2 - a.f2) - (b.f2 - a.f2) * (v.f1 - a.f1);
      if (turn > 0.0) break;  // a, b, v turn left: b stays on the lower hull
      hull.pop_back();
    }
    hull.push_back(v);
  }
  return hull;
}

// The points minimising t f1 + (1 - t) f2 within the tolerance: one face of the subdivision.
std::vector<point> face(const std::vector<vertex>& all, double t) {
  double best = HUGE_VAL;
  for (const vertex& v : all) best = std::fmin(best, t * v.f1 + (1.0 - t) * v.f2);
  const double slack = tie_tolerance * std::fmax(1.0, std::fabs(best));
  std::vector<point> points;
  for (const vertex& v : all)
    if (t * v.f1 + (1.0 - t) * v.f2 <= best + slack) points.push_back(v.p);
  return convex_hull(points);
}

}  // namespace

// Two weighted gauge sums at once: the efficient set is a chain of faces of the grid of all rays
// (cells, edges and vertices) from the minimum of one objective to that of the other. Every face
// of it is the optimal face of some weighted sum t f1 + (1 - t) f2, and each such face is spanned
// by grid vertices (locations and ray crossings), so the chain follows from the lower left hull of
// the vertices' images (f1, f2): one face per hull edge, the vertices whose images lie on that
// edge. O(V n + V log V) for V grid vertices.
// optima: the faces in chain order, each as its hull counter-clockwise, weight entry 0 = the
// face's running number from 0. Returns 0.0: the set has no single value.
double facilities::bi_crit_gauge_median(const std::vector<polygauge>& gauges,
                                        const std::vector<int>& gauge_numbers, bool clear) {
  if (clear) optima_.clear();
  const std::vector<gauge_site> sites =
      checked_sites(*this, gauges, gauge_numbers, 2, bi_crit_checks);
  l2sqr_sum(0, false);
  const point x0(optima_.back());
  const double length = ray_length(sites, *this, gauges, gauge_numbers, x0);

  std::vector<std::size_t> owner;
  const std::vector<segment> rays = ray_grid(
      sites, [length](const gauge_site&, const point& e) { return length / e.distance(point()); },
      owner);
  std::vector<vertex> all;
  for (const gauge_site& s : sites) all.push_back({s.a, 0.0, 0.0});
  for (const point& c : grid_crossings(rays, owner)) all.push_back({c, 0.0, 0.0});
  for (vertex& v : all) {
    v.f1 = gauge_sum(sites, v.p, 0);
    v.f2 = gauge_sum(sites, v.p, 1);
  }

  const std::vector<vertex> chain = efficient_chain(all);
  std::vector<std::vector<point>> faces;
  if (chain.size() == 1) {
    faces.push_back(face(all, 0.5));
  } else {
    for (std::size_t k = 0; k + 1 < chain.size(); ++k) {
      // The weights (t, 1 - t) under which both ends of the hull edge are optimal.
      const double d1 = chain[k + 1].f1 - chain[k].f1, d2 = chain[k].f2 - chain[k + 1].f2;
      std::vector<point> next = face(all, d2 / (d1 + d2));
      // Images that are collinear in exact arithmetic may leave a rounding dent in the hull; the
      // tolerant face of both its edges is then the same.
      if (faces.empty() || faces.back() != next) faces.push_back(std::move(next));
    }
  }
  optima_.clear();
  for (std::size_t k = 0; k < faces.size(); ++k)
    for (const point& p : faces[k])
      optima_.push_back(result_location(p.xcoord(), p.ycoord(), static_cast<double>(k)));
  return 0.0;
}

}  // namespace mero
