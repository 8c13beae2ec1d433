#include "gauge/gauge_editing.h"

#include <algorithm>
#include <cmath>

#include "kernel/convex_hull.h"

namespace mero {

void write_gauge(std::ostream& out, const polygauge& gauge) {
  out << "begin {polygauge}\n";
  for (const point& p : gauge.extreme_points()) out << p.xcoord() << ' ' << p.ycoord() << '\n';
  out << "end {polygauge}\n";
}

void write_gauge_list(std::ostream& out, const std::vector<polygauge>& gauges) {
  out << "begin {polygaugelist}\n";
  for (const polygauge& g : gauges) write_gauge(out, g);
  out << "end {polygaugelist}\n";
}

namespace {

double angle_of(const point& p) {
  const double a = std::atan2(p.ycoord(), p.xcoord());
  return a < 0.0 ? a + 6.283185307179586 : a;
}

}  // namespace

// The hull is already counter-clockwise; only its start moves to the corner of least angle.
std::vector<point> gauge_corners(const std::vector<point>& clicks) {
  std::vector<point> hull = convex_hull(clicks);
  if (hull.empty()) return hull;
  auto first = std::min_element(hull.begin(), hull.end(), [](const point& a, const point& b) {
    return angle_of(a) < angle_of(b);
  });
  std::rotate(hull.begin(), first, hull.end());
  return hull;
}

gauge_frame gauge_frame_of(const polygauge& gauge) {
  const point origin;
  const double high = std::max({gauge.max(origin, 0).xcoord(), gauge.max(origin, 1).ycoord(), 0.0});
  const double low =
      std::min({gauge.mini(origin, 0).xcoord(), gauge.mini(origin, 1).ycoord(), 0.0});
  const double margin = 0.1 * std::max(gauge.max_diff(0), gauge.max_diff(1));
  return {low - margin, high + margin};
}

}  // namespace mero
