#include "kernel/circle.h"

#include <cmath>
#include <ostream>

#include "kernel/error_handler.h"
#include "kernel/geometry_texts.h"

namespace mero {

namespace {

bool all_equal(const point& a, const point& b, const point& c) { return a == b && b == c; }

// The unit vector from p towards q, as components; p and q differ.
struct direction {
  double x, y;
};

direction unit(const point& p, const point& q, double length) {
  return {(q.xcoord() - p.xcoord()) / length, (q.ycoord() - p.ycoord()) / length};
}

// The two points base +- h * u turned a quarter counter-clockwise: the left one first.
std::vector<point> left_and_right(const point& base, direction u, double h) {
  return {base.translate(-h * u.y, h * u.x), base.translate(h * u.y, -h * u.x)};
}

}  // namespace

circle::circle(const point& a, const point& b, const point& c) : a_(a), b_(b), c_(c) {
  // Two equal points and a third one apart leave the circle undetermined.
  bool some_equal = a == b || b == c || a == c;
  if (some_equal && !all_equal(a, b, c)) kernel_error(1, texts::circle_not_admissible);
}

circle::circle(const point& centre, double radius)
    : a_(centre.translate(radius, 0.0)),
      b_(centre.translate(0.0, radius)),
      c_(centre.translate(-radius, 0.0)) {
  if (radius < 0.0) kernel_error(1, texts::circle_not_admissible);
  cache_ = centre_radius{centre, radius};
}

bool circle::is_degenerate() const {
  return !all_equal(a_, b_, c_) && orientation(a_, b_, c_) == 0;
}

const circle::centre_radius& circle::computed() const {
  if (cache_) return *cache_;
  if (all_equal(a_, b_, c_)) return cache_.emplace(centre_radius{a_, 0.0});
  if (orientation(a_, b_, c_) == 0) kernel_error(1, texts::circle_collinear);
  // Circumcentre relative to a: the point equidistant from a, b and c.
  double bx = b_.xcoord() - a_.xcoord(), by = b_.ycoord() - a_.ycoord();
  double cx = c_.xcoord() - a_.xcoord(), cy = c_.ycoord() - a_.ycoord();
  double d = 2.0 * (bx * cy - by * cx);
  double b2 = bx * bx + by * by, c2 = cx * cx + cy * cy;
  point centre = a_.translate((cy * b2 - by * c2) / d, (bx * c2 - cx * b2) / d);
  return cache_.emplace(centre_radius{centre, centre.distance(a_)});
}

point circle::center() const { return computed().centre; }

double circle::radius() const { return computed().radius; }

int circle::side_of(const point& p) const {
  if (all_equal(a_, b_, c_)) return p == a_ ? 0 : -1;
  int turn = orientation(a_, b_, c_);
  if (turn == 0) kernel_error(1, texts::circle_collinear);
  double ax = a_.xcoord() - p.xcoord(), ay = a_.ycoord() - p.ycoord();
  double bx = b_.xcoord() - p.xcoord(), by = b_.ycoord() - p.ycoord();
  double cx = c_.xcoord() - p.xcoord(), cy = c_.ycoord() - p.ycoord();
  // The lifted in-circle determinant: positive inside for a counter-clockwise triple.
  double det = (ax * ax + ay * ay) * (bx * cy - cx * by) +
               (bx * bx + by * by) * (cx * ay - ax * cy) +
               (cx * cx + cy * cy) * (ax * by - bx * ay);
  int sign = det > 0.0 ? 1 : (det < 0.0 ? -1 : 0);
  return sign * turn;
}

bool circle::contains(const point& p) const {
  if (is_degenerate()) return orientation(a_, b_, p) == 0;
  return side_of(p) == 0;
}

std::vector<point> circle::intersection(const line& l) const {
  const centre_radius& cr = computed();
  point foot = l.projection(cr.centre);
  double d2 = cr.centre.sqr_dist(foot);
  double r2 = cr.radius * cr.radius;
  if (d2 > r2) return {};
  if (d2 == r2) return {foot};
  double h = std::sqrt(r2 - d2);
  double len = std::hypot(l.dx(), l.dy());
  double ux = l.dx() / len, uy = l.dy() / len;
  return {foot.translate(-h * ux, -h * uy), foot.translate(h * ux, h * uy)};
}

std::vector<point> circle::intersection(const segment& s) const {
  if (s.is_trivial())
    return contains(s.source()) ? std::vector<point>{s.source()} : std::vector<point>{};
  std::vector<point> on_segment;
  double len2 = s.dx() * s.dx() + s.dy() * s.dy();
  for (const point& q : intersection(line(s))) {
    double t = ((q.xcoord() - s.xcoord1()) * s.dx() + (q.ycoord() - s.ycoord1()) * s.dy()) / len2;
    if (t >= 0.0 && t <= 1.0) on_segment.push_back(q);
  }
  return on_segment;
}

std::vector<point> circle::intersection(const circle& d) const {
  const centre_radius& c1 = computed();
  const centre_radius& c2 = d.computed();
  double dist2 = c1.centre.sqr_dist(c2.centre);
  if (dist2 == 0.0) return {};
  double dist = std::sqrt(dist2);
  if (dist > c1.radius + c2.radius || dist < std::fabs(c1.radius - c2.radius)) return {};
  // a: distance from c1 to the chord's midpoint along the centre line.
  double a = (dist2 + c1.radius * c1.radius - c2.radius * c2.radius) / (2.0 * dist);
  double h2 = c1.radius * c1.radius - a * a;
  direction u = unit(c1.centre, c2.centre, dist);
  point mid = c1.centre.translate(a * u.x, a * u.y);
  if (h2 <= 0.0) return {mid};
  return left_and_right(mid, u, std::sqrt(h2));
}

std::vector<point> circle::tangent_points(const point& p) const {
  const centre_radius& cr = computed();
  double d2 = cr.centre.sqr_dist(p);
  double r2 = cr.radius * cr.radius;
  if (d2 < r2) return {};
  if (d2 == r2) return {p};
  double dist = std::sqrt(d2);
  direction u = unit(cr.centre, p, dist);
  // The touching points lie on the chord at r^2 / d from the centre, r sqrt(d^2 - r^2) / d
  // to either side of the centre line.
  double a = r2 / dist;
  point base = cr.centre.translate(a * u.x, a * u.y);
  return left_and_right(base, u, cr.radius * std::sqrt(d2 - r2) / dist);
}

std::ostream& operator<<(std::ostream& out, const circle& c) {
  return out << '{' << c.point1() << ',' << c.point2() << ',' << c.point3() << '}';
}

}  // namespace mero
