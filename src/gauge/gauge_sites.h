#pragma once
// What the gauge problems share: their input checks, the locations with their gauges in a
// compact form, and the linear pieces of a gauge.

#include <vector>

#include "gauge/gauge_messages.h"
#include "gauge/polygauge.h"
#include "kernel/point.h"
#include "kernel/reporters.h"
#include "kernel/segment.h"
#include "model/facilities.h"

namespace mero {

// A location of a gauge problem: its point, its weights (one or two columns) and its gauge.
struct gauge_site {
  point a;
  double w[2];
  const polygauge* gauge;
};

// The messages one method reports for its four checks.
struct gauge_checks {
  message weight_dim;
  message gauge_count;
  message gauge_number;
  message weights;
};

// gauge_median and gauge_center need one positive column; bi_crit_gauge_median two.
inline constexpr gauge_checks median_checks{
    gauge_messages::median_weight_dim, gauge_messages::median_gauge_count,
    gauge_messages::median_gauge_number, gauge_messages::median_weights};
inline constexpr gauge_checks bi_crit_checks{
    gauge_messages::bi_crit_weight_dim, gauge_messages::bi_crit_gauge_count,
    gauge_messages::bi_crit_gauge_number, gauge_messages::bi_crit_weights};

// Checks, in this order, the weight dimension (columns), the number of gauge numbers, their
// range and the weights, and returns the sites in list order. With one column a weight must be
// above 0.0; with two, no weight may be below 0.0, no location may have both weights 0.0 and no
// column may be zero everywhere.
std::vector<gauge_site> checked_sites(const facilities& locations,
                                      const std::vector<polygauge>& gauges,
                                      const std::vector<int>& gauge_numbers, int columns,
                                      const gauge_checks& checks);

// Sum of weight column w times the gauge distance from each site to x.
double gauge_sum(const std::vector<gauge_site>& sites, const point& x, int w);

// The gradient of the gauge on the cone between its extreme directions e1 and e2 (counter-
// clockwise): the row (1, 1) times the inverse of the matrix with columns e1, e2, so that the
// gauge of d in that cone is the scalar product with d. Zero when e1 and e2 are parallel.
point cone_gradient(const point& e1, const point& e2);

// The rays of the grid: from each site along each extreme direction e of its gauge to
// a + e * length(site, e). owner receives the index of the site of each ray.
template <typename Length>
std::vector<segment> ray_grid(const std::vector<gauge_site>& sites, Length length,
                              std::vector<std::size_t>& owner) {
  std::vector<segment> rays;
  for (std::size_t i = 0; i < sites.size(); ++i) {
    const point& a = sites[i].a;
    for (const point& e : sites[i].gauge->extreme_points()) {
      const double t = length(sites[i], e);
      rays.emplace_back(a, point(a.xcoord() + e.xcoord() * t, a.ycoord() + e.ycoord() * t));
      owner.push_back(i);
    }
  }
  return rays;
}

// The distinct crossings, in sweep order, of rays of different sites (rays of one site meet only
// at the site itself, which is no crossing).
std::vector<point> grid_crossings(const std::vector<segment>& rays,
                                  const std::vector<std::size_t>& owner);

}  // namespace mero
