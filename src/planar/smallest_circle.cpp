// The weighted smallest enclosing circle by exchange of support sets of two to four locations.

#include "planar/smallest_circle.h"

#include <algorithm>
#include <cmath>

#include "kernel/error_handler.h"
#include "model/facilities.h"
#include "model/model_messages.h"

namespace mero {

namespace {

// No candidate circle is as large as this: the starting bound of the search for the smallest.
constexpr double no_circle = 1e50;

struct plane_vector {
  double x, y;
};

// Solves [[d2.x, d2.y], [d3.x, d3.y]] q = (r2, r3) by Cramer's rule; det is the matrix's.
plane_vector solve(plane_vector d2, plane_vector d3, double det, double r2, double r3) {
  return {(r2 * d3.y - d2.y * r3) / det, (d2.x * r3 - d3.x * r2) / det};
}

// The smallest non-negative root of a rho^2 + b rho + c = 0 (a may be 0), if any. The roots
// are formed without cancellation.
std::optional<double> smallest_non_negative_root(double a, double b, double c) {
  std::vector<double> roots;
  if (a == 0.0) {
    if (b != 0.0) roots.push_back(-c / b);
  } else {
    const double disc = b * b - 4.0 * a * c;
    if (!(disc >= 0.0)) return std::nullopt;
    const double q = -0.5 * (b + std::copysign(std::sqrt(disc), b));
    roots.push_back(q / a);
    if (q != 0.0) roots.push_back(c / q);
  }
  std::optional<double> best;
  for (double r : roots)
    if (r >= 0.0 && (!best || r < *best)) best = r;
  return best;
}

bool covers_all_but(const weighted_circle& c, const std::vector<weighted_point>& support,
                    std::initializer_list<std::size_t> members) {
  for (std::size_t k = 0; k < support.size(); ++k)
    if (std::find(members.begin(), members.end(), k) == members.end() && !covers(c, support[k]))
      return false;
  return true;
}

// The location farthest outside c, among those at least the tolerance beyond its radius; the
// earlier one on a tie. Empty when all are covered. An outsider of weight 0.0 reads as "all
// covered", as such a location adds nothing to the objective.
std::optional<std::size_t> farthest_outside(const std::vector<weighted_point>& points,
                                            const weighted_circle& c) {
  const double cx = c.centre.xcoord(), cy = c.centre.ycoord();
  std::optional<std::size_t> best;
  double largest = 0.0;
  for (std::size_t i = 0; i < points.size(); ++i) {
    const weighted_point& a = points[i];
    const double v = std::sqrt((a.x - cx) * (a.x - cx) + (a.y - cy) * (a.y - cy)) * a.w;
    if (v - c.radius >= cover_tolerance && (!best || v > largest)) {
      best = i;
      largest = v;
    }
  }
  if (best && points[*best].w == 0.0) return std::nullopt;
  return best;
}

// Takes the outsider into the support and makes circle the smallest circle of a pair or triple
// of the support that covers the rest; the support shrinks to that pair or triple. An outsider
// at the place of a support point lends it its (larger) weight instead. False when the circle
// cannot grow any more: in exact arithmetic each exchange makes it strictly larger, so a circle
// that does not grow means rounding has taken over, and the exchange would go round in circles.
bool take_in(std::vector<weighted_point>& support, const weighted_point& outsider,
             weighted_circle& circle) {
  auto same = std::find_if(support.begin(), support.end(), [&](const weighted_point& s) {
    return s.x == outsider.x && s.y == outsider.y;
  });
  if (same == support.end())
    support.push_back(outsider);
  else if (same->w != outsider.w)
    same->w = outsider.w;
  else
    return false;
  std::vector<std::size_t> chosen;
  const std::optional<weighted_circle> next = smallest_covering_circle(support, chosen);
  if (!next) return false;
  const bool grew = next->radius > circle.radius;
  circle = *next;
  std::vector<weighted_point> kept;
  for (std::size_t i : chosen) kept.push_back(support[i]);
  support = kept;
  return grew;
}

}  // namespace

double weighted_distance(const weighted_circle& c, const weighted_point& a) {
  const double dx = a.x - c.centre.xcoord(), dy = a.y - c.centre.ycoord();
  return std::sqrt(dx * dx + dy * dy) * a.w;
}

weighted_circle circle_of_two(const weighted_point& a, const weighted_point& b) {
  const double sum = a.w + b.w;
  const point centre((a.w * a.x + b.w * b.x) / sum, (a.w * a.y + b.w * b.y) / sum);
  const double dx = a.x - b.x, dy = a.y - b.y;
  return {centre, std::sqrt(dx * dx + dy * dy) * a.w * b.w / sum};
}

// With the centre at a + q and rho the squared radius, w_i^2 |q - d_i|^2 = rho for d_i = p_i - a
// gives two equations linear in q and rho (the differences) and one quadratic (|q|^2 = rho /
// w_a^2). q = q0 + rho q1 from the linear pair, then the quadratic in rho; its smaller non-negative
// root is the smallest such circle. For equal weights q1 = 0 and q0 is the circumcentre.
std::optional<weighted_circle> circle_of_three(const weighted_point& a, const weighted_point& b,
                                               const weighted_point& c) {
  const plane_vector d2{b.x - a.x, b.y - a.y}, d3{c.x - a.x, c.y - a.y};
  const double det = d2.x * d3.y - d2.y * d3.x;
  if (det == 0.0) return std::nullopt;
  const double s1 = 1.0 / (a.w * a.w), s2 = 1.0 / (b.w * b.w), s3 = 1.0 / (c.w * c.w);
  const plane_vector q0 =
      solve(d2, d3, det, 0.5 * (d2.x * d2.x + d2.y * d2.y), 0.5 * (d3.x * d3.x + d3.y * d3.y));
  const plane_vector q1 = solve(d2, d3, det, -0.5 * (s2 - s1), -0.5 * (s3 - s1));
  const std::optional<double> rho = smallest_non_negative_root(
      q1.x * q1.x + q1.y * q1.y, 2.0 * (q0.x * q1.x + q0.y * q1.y) - s1, q0.x * q0.x + q0.y * q0.y);
  if (!rho) return std::nullopt;
  const double qx = q0.x + *rho * q1.x, qy = q0.y + *rho * q1.y;
  return weighted_circle{point(a.x + qx, a.y + qy), std::sqrt(qx * qx + qy * qy) * a.w};
}

bool covers(const weighted_circle& c, const weighted_point& a) {
  return weighted_distance(c, a) <= c.radius + cover_tolerance;
}

std::optional<weighted_circle> smallest_covering_circle(const std::vector<weighted_point>& support,
                                                        std::vector<std::size_t>& chosen_points) {
  std::optional<weighted_circle> best;
  double best_radius = no_circle;
  const std::size_t n = support.size();
  auto consider = [&](const weighted_circle& c, std::initializer_list<std::size_t> members) {
    if (c.radius < best_radius && covers_all_but(c, support, members)) {
      best = c;
      best_radius = c.radius;
      chosen_points.assign(members);
    }
  };
  for (std::size_t i = 0; i < n; ++i)
    for (std::size_t j = i + 1; j < n; ++j) consider(circle_of_two(support[i], support[j]), {i, j});
  for (std::size_t i = 0; i < n; ++i)
    for (std::size_t j = i + 1; j < n; ++j)
      for (std::size_t k = j + 1; k < n; ++k)
        if (auto c = circle_of_three(support[i], support[j], support[k])) consider(*c, {i, j, k});
  return best;
}

// Weighted smallest enclosing circle (the Euclidean center; named for equal weights): support-set
// exchange in the manner of Elzinga and Hearn (1972), started from the first and the last location.
// Each exchange takes in the farthest uncovered location and keeps the smallest circle of a pair
// or triple of at most four support points that covers them; O(n) per exchange, a few dozen
// exchanges in practice. optima receives the centre, weight entry 0 = 0.0; the radius is returned.
// Weights are not checked for equality.
double facilities::l2_v1_max(bool clear) {
  if (clear) optima_.clear();
  if (empty()) empty_list_error(model_messages::empty_list);
  const std::vector<weighted_point> points = weighted_points(*this, 0);
  std::vector<weighted_point> support{points.front(), points.back()};
  weighted_circle circle = circle_of_two(support[0], support[1]);
  while (const std::optional<std::size_t> outsider = farthest_outside(points, circle))
    if (!take_in(support, points[*outsider], circle)) break;
  optima_.push_back(result_location(circle.centre.xcoord(), circle.centre.ycoord(), 0.0));
  return circle.radius;
}

}  // namespace mero
