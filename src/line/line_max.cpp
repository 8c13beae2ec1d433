// Line location with the max objective. An optimal line has the same weighted distance from
// three locations, two on one side and one on the other, so the M4 methods walk every triple in
// its three roles and evaluate each candidate line in O(n); the hull methods take the
// antipodal pairs of the convex hull instead (Houle and Toussaint 1988 for the width).

#include <algorithm>
#include <cmath>
#include <vector>

#include "kernel/convex_hull.h"
#include "kernel/reporters.h"
#include "line/line_messages.h"
#include "line/line_search.h"
#include "model/facilities.h"

namespace mero {

std::list<location> max_line_points(const line_choice& best) {
  std::list<location> result;
  if (best.value >= 1e50) return result;
  result.push_back(result_location(best.line.p.x, best.line.p.y, 0.0));
  result.push_back(result_location(best.line.q.x, best.line.q.y, 0.0));
  return result;
}

namespace {

// The largest weighted Euclidean distance from the line through q and p, over points[first..].
double l2_largest(const std::vector<weighted_point>& points, const point_pair& line,
                  std::size_t first = 0) {
  const unit_direction u(line.q, line.p);
  double largest = 0.0;
  for (std::size_t k = first; k < points.size(); ++k)
    largest = std::max(largest, l2_line_distance(line.q, u, points[k]) * points[k].w);
  return largest;
}

double l1_largest(const std::vector<weighted_point>& points, const point_pair& line) {
  const double vx = line.p.x - line.q.x, vy = line.p.y - line.q.y;
  double largest = 0.0;
  for (const weighted_point& b : points)
    largest = std::max(largest, l1_line_distance(line.q, vx, vy, b) * b.w);
  return largest;
}

}  // namespace

// Euclidean max, weight column 0, O(n^4): every triple in its three roles. optima receives two
// points of the line with weight entry 0 = 0.0. Fewer than three locations: value 1e50, no line.
double facilities::L_l2_max_M4() {
  const std::vector<weighted_point> points = line_points_of(*this);
  const line_choice best =
      best_triple_line(points, [&](const point_pair& l) { return l2_largest(points, l); });
  optima_ = max_line_points(best);
  return best.value;
}

// Rectilinear max, O(n^4): the triple loop with the smaller axis distance. As L_l2_max_M4.
double facilities::L_l1_max_M4() {
  const std::vector<weighted_point> points = line_points_of(*this);
  const line_choice best =
      best_triple_line(points, [&](const point_pair& l) { return l1_largest(points, l); });
  optima_ = max_line_points(best);
  return best.value;
}

// Maximum-norm max: L_l1_max_M4 on the locations mapped by (x, y) -> ((x + y) / 2, (y - x) / 2),
// the two points of the line mapped back. O(n^4).
double facilities::L_linf_max_M4() {
  facilities scratch = *this;
  scratch.l1_to_linf();
  const double value = scratch.L_l1_max_M4();
  optima_ = scratch.optima_;
  linf_to_l1(optima_);
  return value;
}

// lp max, O(n^4): the triple loop with lp_line_distance. p below 1 other than -1: error 1361.
double facilities::L_lp_max_M4(int p) {
  if (p < 1 && p != -1) report_error(line_messages::lp_max_exponent);
  const std::vector<weighted_point> points = line_points_of(*this);
  const line_choice best = best_triple_line_by(
      points, [p](const weighted_point& a, const weighted_point& b, const weighted_point& c) {
        return lp_line_distance(a, b, c, p);
      });
  optima_ = max_line_points(best);
  return best.value;
}

namespace {

// The smallest height of the convex hull over its edges, with the hull corner farthest from each
// edge found by a pointer that only moves forward (rotating calipers), O(h) after the hull.
struct narrowest {
  double height = 1e50;
  point a, b, far;  // the edge a b and the corner farthest from it
};

// The height of c over the line through a and b by the pair loop's |v.v - (v.u)^2|; a and b are
// distinct corners of the hull.
double height_over(const point& a, const point& b, const point& c) {
  const weighted_point from{a.xcoord(), a.ycoord(), 1.0};
  return l2_line_distance(from, unit_direction(from, {b.xcoord(), b.ycoord(), 1.0}),
                          {c.xcoord(), c.ycoord(), 1.0});
}

narrowest narrowest_edge(const std::vector<weighted_point>& points) {
  std::vector<point> corners;
  for (const weighted_point& p : points) corners.emplace_back(p.x, p.y);
  const std::vector<point> hull = convex_hull(corners);
  narrowest best;
  const std::size_t h = hull.size();
  if (h < 2) return best;
  std::size_t far = 1;
  for (std::size_t e = 0; e < (h == 2 ? 1 : h); ++e) {
    const point &a = hull[e], &b = hull[(e + 1) % h];
    for (std::size_t steps = 0;
         steps < h && height_over(a, b, hull[(far + 1) % h]) > height_over(a, b, hull[far]);
         ++steps)
      far = (far + 1) % h;
    const double height = height_over(a, b, hull[far]);
    if (height < best.height) best = {height, a, b, hull[far]};
  }
  return best;
}

// The location with these coordinates, first in list order, as a weighted point.
weighted_point located(const std::vector<weighted_point>& points, const point& p) {
  for (const weighted_point& w : points)
    if (w.x == p.xcoord() && w.y == p.ycoord()) return w;
  return {p.xcoord(), p.ycoord(), 1.0};
}

}  // namespace

// Euclidean max with all weights equal, O(n log n): half the width of the set, the line midway
// between the hull edge of least height and its farthest corner. optima receives two points of
// that line with weight entry 0 = 0.0. Fewer than three locations or all on one spot: value 1e50,
// no line.
double facilities::L_l2_v1_max() {
  const std::vector<weighted_point> points = line_points_of(*this);
  line_choice best;
  const narrowest n = narrowest_edge(points);
  if (points.size() >= 3 && n.height < 1e50) {
    const weighted_point a{n.a.xcoord(), n.a.ycoord(), 1.0}, b{n.b.xcoord(), n.b.ycoord(), 1.0},
        c{n.far.xcoord(), n.far.ycoord(), 1.0};
    best = {std::fabs(n.height) * 0.5, triple_line(a, b, c)};
  }
  optima_ = max_line_points(best);
  return best.value;
}

// Euclidean max, weight column 0, O(n log n): the narrowest hull edge and its farthest corner as
// in L_l2_v1_max, their line of equal weighted distance by triple_line with the locations'
// weights, and as value its largest weighted distance over the locations after the first, which
// is how this method has always measured (with equal weights it is the half-width all the same,
// since three locations on both sides of the line attain it). Degenerate input as L_l2_v1_max.
double facilities::L_l2_max_M2logM() {
  const std::vector<weighted_point> points = line_points_of(*this);
  line_choice best;
  const narrowest n = narrowest_edge(points);
  if (points.size() >= 3 && n.height < 1e50) {
    const point_pair line =
        triple_line(located(points, n.a), located(points, n.b), located(points, n.far));
    if (!same_place(line.p, line.q)) best = {l2_largest(points, line, 1), line};
  }
  optima_ = max_line_points(best);
  return best.value;
}

}  // namespace mero
