#include "gauge/gauge_sites.h"

#include <algorithm>

#include "kernel/segment_crossings.h"

namespace mero {

namespace {

void check_weights(const std::vector<location>& locations, int columns, const message& failure) {
  if (columns == 1) {
    for (const location& l : locations)
      if (!(l.weight(0) > 0.0)) report_error(failure);
    return;
  }
  bool column_used[2] = {false, false};
  for (const location& l : locations) {
    const double w0 = l.weight(0), w1 = l.weight(1);
    if (w0 < 0.0 || w1 < 0.0 || (w0 == 0.0 && w1 == 0.0)) report_error(failure);
    column_used[0] = column_used[0] || w0 != 0.0;
    column_used[1] = column_used[1] || w1 != 0.0;
  }
  if (!column_used[0] || !column_used[1]) report_error(failure);
}

}  // namespace

std::vector<gauge_site> checked_sites(const facilities& locations,
                                      const std::vector<polygauge>& gauges,
                                      const std::vector<int>& gauge_numbers, int columns,
                                      const gauge_checks& checks) {
  for (const location& l : locations)
    if (columns == 1 ? l.weight_dim() > 1 : l.weight_dim() != 2) report_error(checks.weight_dim);
  if (locations.size() != gauge_numbers.size()) report_error(checks.gauge_count);
  if (!gauge_numbers.empty()) {
    const auto [low, high] = std::minmax_element(gauge_numbers.begin(), gauge_numbers.end());
    if (*low < 0 || !(static_cast<std::size_t>(*high) < gauges.size()))
      report_error(checks.gauge_number);
  }
  check_weights(locations, columns, checks.weights);

  std::vector<gauge_site> sites;
  std::size_t i = 0;
  for (const location& l : locations) {
    const double w1 = columns == 2 ? l.weight(1) : 0.0;
    sites.push_back({point(l), {l.weight(0), w1}, &gauges[gauge_numbers[i++]]});
  }
  return sites;
}

double gauge_sum(const std::vector<gauge_site>& sites, const point& x, int w) {
  double sum = 0.0;
  for (const gauge_site& s : sites) sum += s.w[w] * s.gauge->dist(s.a, x);
  return sum;
}

point cone_gradient(const point& e1, const point& e2) {
  const double det = e1.xcoord() * e2.ycoord() - e1.ycoord() * e2.xcoord();
  if (det == 0.0) return point();
  return point((e2.ycoord() - e1.ycoord()) / det, (e1.xcoord() - e2.xcoord()) / det);
}

std::vector<point> grid_crossings(const std::vector<segment>& rays,
                                  const std::vector<std::size_t>& owner) {
  return crossing_points(
      segment_crossings(rays, [&](std::size_t i, std::size_t j) { return owner[i] != owner[j]; }));
}

}  // namespace mero
