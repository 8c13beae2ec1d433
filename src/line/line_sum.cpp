// Line location with the sum objective by the pair loop: some optimal line runs through two
// locations (Wesolowsky 1975 for the Euclidean case, Morris and Norback 1980 for lp), so every
// pair's line is evaluated in O(n), O(n^3) in all.

#include <cmath>
#include <iterator>

#include "kernel/reporters.h"
#include "line/line_messages.h"
#include "line/line_search.h"
#include "model/facilities.h"

namespace mero {

std::vector<weighted_point> line_points_of(const std::vector<location>& list) {
  std::vector<weighted_point> points = weighted_points(list, 0);
  for (const weighted_point& p : points)
    if (!std::isfinite(p.x) || !std::isfinite(p.y) || !std::isfinite(p.w))
      report_error(line_messages::not_finite);
  return points;
}

double l2_line_sum(const std::vector<weighted_point>& points, const weighted_point& a,
                   const weighted_point& b, double bound) {
  const unit_direction u(a, b);
  double sum = 0.0;
  for (std::size_t k = 0; k < points.size() && sum < bound; ++k)
    sum += l2_line_distance(a, u, points[k]) * points[k].w;
  return sum;
}

double l2_line_sum(const std::vector<weighted_point>& points, const line_equation& l) {
  const weighted_point a{l.first().xcoord(), l.first().ycoord(), 0.0};
  const weighted_point b{l.second().xcoord(), l.second().ycoord(), 0.0};
  return l2_line_sum(points, a, b);
}

std::list<location> pair_line_points(const std::vector<location>& list, const pair_choice& choice) {
  std::list<location> result;
  if (choice.i < 0) return result;
  for (int index : {choice.i, choice.j}) {
    location copy = *std::next(list.begin(), index);
    copy.weight_ref(0) = 1.0;
    result.push_back(copy);
  }
  return result;
}

// Euclidean sum, O(n^3): all pairs i < j, the first pair of the least sum. Coincident locations
// give no line and are skipped. Fewer than two distinct locations: value 1e50, no line.
double facilities::L_l2_sum_M3() {
  const std::vector<weighted_point> points = line_points_of(*this);
  const pair_choice best = best_pair_line(points, [&](int i, int j) {
    const unit_direction u(points[i], points[j]);
    return [&, i, u](int k) { return l2_line_distance(points[i], u, points[k]) * points[k].w; };
  });
  optima_ = pair_line_points(*this, best);
  return best.value;
}

// Rectilinear sum, O(n^3): the pair loop with the smaller axis distance; the two locations of the
// pair are left out of their own sum. Degenerate input as for L_l2_sum_M3.
double facilities::L_l1_sum_M3() {
  const std::vector<weighted_point> points = line_points_of(*this);
  const pair_choice best = best_pair_line(points, [&](int i, int j) {
    const double vx = points[j].x - points[i].x, vy = points[j].y - points[i].y;
    return [&, i, j, vx, vy](int k) {
      if (k == i || k == j) return 0.0;
      return l1_line_distance(points[i], vx, vy, points[k]) * points[k].w;
    };
  });
  optima_ = pair_line_points(*this, best);
  return best.value;
}

// Maximum-norm sum: L_l1_sum_M3 on the locations mapped by (x, y) -> ((x + y) / 2, (y - x) / 2),
// under which l1 distances of images are maximum-norm distances of the originals; the two points
// of the line are mapped back. O(n^3).
double facilities::L_linf_sum_M3() {
  facilities scratch = *this;
  scratch.l1_to_linf();
  const double value = scratch.L_l1_sum_M3();
  optima_ = scratch.optima_;
  linf_to_l1(optima_);
  return value;
}

// lp sum, O(n^3): the pair loop of L_l2_sum_M3 with lp_line_distance. p below 1 other than -1:
// error 1360.
double facilities::L_lp_sum_M3(int p) {
  if (p < 1 && p != -1) report_error(line_messages::lp_sum_exponent);
  const std::vector<weighted_point> points = line_points_of(*this);
  const pair_choice best = best_pair_line(points, [&](int i, int j) {
    return [&, i, j](int k) {
      return lp_line_distance(points[i], points[j], points[k], p) * points[k].w;
    };
  });
  optima_ = pair_line_points(*this, best);
  return best.value;
}

}  // namespace mero
