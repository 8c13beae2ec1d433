// Line location under a block norm (a polygonal gauge used as a norm). The distance from a point
// to a line is reached along one of the gauge's extreme points, so it is the least step along
// them; with it, the pair loop of the sums and the triple loop of the max problems carry over.
// For a symmetric gauge the distance of x from a line of normal n is |n.x - c| / h(n) with h the
// support function of the unit ball, so it is proportional to the Euclidean one and triple_line
// gives the lines of equal weighted distance here as well.

#include <cmath>
#include <iterator>

#include "gauge/polygauge.h"
#include "kernel/reporters.h"
#include "line/line_messages.h"
#include "line/line_search.h"
#include "model/facilities.h"

namespace mero {

namespace {

// Whether the directions (vx, vy) and (ex, ey) are parallel: both have a zero component in the
// same coordinate, or their component quotients agree. Zero components are tested before any
// division.
bool parallel(double vx, double vy, double ex, double ey) {
  if (vx == 0.0 || ex == 0.0) return vx == 0.0 && ex == 0.0;
  if (vy == 0.0 || ey == 0.0) return vy == 0.0 && ey == 0.0;
  return vy / vx == ey / ex;
}

// A copy of location i with weight entry 0 = 1.0, and the same copy moved by e.
std::list<location> direction_line_points(const std::vector<location>& list, int i,
                                          const point& e) {
  location copy = *std::next(list.begin(), i);
  copy.weight_ref(0) = 1.0;
  location moved = copy;
  moved.coordinate_ref(0) += e.xcoord();
  moved.coordinate_ref(1) += e.ycoord();
  return {copy, moved};
}

}  // namespace

std::vector<point> block_directions(const std::vector<polygauge>& gauges,
                                    const std::vector<int>& gauge_numbers) {
  if (gauge_numbers.empty() || gauge_numbers.front() < 0 ||
      gauge_numbers.front() >= static_cast<int>(gauges.size()))
    report_error(line_messages::block_gauge_number);
  return gauges[static_cast<std::size_t>(gauge_numbers.front())].extreme_points();
}

double block_line_sum(const std::vector<weighted_point>& points, const weighted_point& a,
                      const weighted_point& b, const std::vector<point>& dirs, double bound) {
  double sum = 0.0;
  for (std::size_t k = 0; k < points.size() && sum < bound; ++k)
    sum += block_line_distance(a, b, points[k], dirs) * points[k].w;
  return sum;
}

double block_line_distance(const weighted_point& a, const weighted_point& b,
                           const weighted_point& c, const std::vector<point>& dirs) {
  const double vx = b.x - a.x, vy = b.y - a.y;
  // c + t e lies on the line when cross(v, c - a + t e) = 0.
  const double offset = vx * (c.y - a.y) - vy * (c.x - a.x);
  double best = 1e50;
  for (const point& e : dirs) {
    const double ex = e.xcoord(), ey = e.ycoord();
    if (parallel(vx, vy, ex, ey)) continue;
    const double across = vx * ey - vy * ex;
    if (across == 0.0) continue;
    double t = -offset / across;
    if (std::fabs(t) < line_zero) t = 0.0;
    if (t >= 0.0 && t < best) best = t;
  }
  return best;
}

// Block-norm sum, O((n + g) n^2) for g extreme points: the pair loop of L_l2_sum_M3 with
// block_line_distance, then the line through each location along each extreme point of the
// gauge, in location order. Only a strictly smaller sum replaces the line; the early stop is at
// best + 1.0. The gauge is the one named by the first gauge number (error 1363 if there is no
// such gauge). Fewer than two distinct locations still get the direction lines.
double facilities::L_block_sum_M3(const std::vector<polygauge>& gauges,
                                  const std::vector<int>& gauge_numbers) {
  const std::vector<point> dirs = block_directions(gauges, gauge_numbers);
  const std::vector<weighted_point> points = line_points_of(*this);
  pair_choice best = best_pair_line(points, [&](int i, int j) {
    return [&, i, j](int k) {
      return block_line_distance(points[i], points[j], points[k], dirs) * points[k].w;
    };
  });
  optima_ = pair_line_points(*this, best);
  for (std::size_t i = 0; i < points.size(); ++i)
    for (const point& e : dirs) {
      const weighted_point along{points[i].x + e.xcoord(), points[i].y + e.ycoord(), 1.0};
      const double sum = block_line_sum(points, points[i], along, dirs, best.value + 1.0);
      if (sum < best.value) {
        best.value = sum;
        optima_ = direction_line_points(*this, static_cast<int>(i), e);
      }
    }
  return best.value;
}

// Block-norm max, O(n^4): the triple loop of L_l2_max_M4, each candidate valued by its largest
// weighted block_line_distance. optima receives two points of the line with weight entry 0 =
// 0.0. Gauge check as L_block_sum_M3; fewer than three locations: value 1e50, no line.
double facilities::L_block_max_M4(const std::vector<polygauge>& gauges,
                                  const std::vector<int>& gauge_numbers) {
  const std::vector<point> dirs = block_directions(gauges, gauge_numbers);
  const std::vector<weighted_point> points = line_points_of(*this);
  const line_choice best = best_triple_line_by(
      points, [&dirs](const weighted_point& a, const weighted_point& b, const weighted_point& c) {
        return block_line_distance(a, b, c, dirs);
      });
  optima_ = max_line_points(best);
  return best.value;
}

}  // namespace mero
