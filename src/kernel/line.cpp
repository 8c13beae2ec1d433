#include "kernel/line.h"

#include <cmath>
#include <ostream>

namespace mero {

line::line(const point& p, double alpha) : seg_(p, p.translate(std::cos(alpha), std::sin(alpha))) {}

bool line::is_parallel(const line& l) const { return dx() * l.dy() == dy() * l.dx(); }

bool line::intersection(const line& l, point& p) const {
  if (is_parallel(l)) return false;
  double x;
  if (is_vertical())
    x = point1().xcoord();
  else if (l.is_vertical())
    x = l.point1().xcoord();
  else
    x = (l.y_abs() - y_abs()) / (slope() - l.slope());
  double y = !is_vertical() ? slope() * x + y_abs() : l.slope() * x + l.y_abs();
  p = point(x, y);
  return true;
}

bool line::intersection(const segment& s, point& p) const {
  int o1 = side_of(s.source());
  int o2 = side_of(s.target());
  if (o1 == 0) {
    p = s.source();
    return true;
  }
  if (o2 == 0) {
    p = s.target();
    return true;
  }
  if (o1 == o2) return false;
  return intersection(line(s), p);
}

line line::perpendicular(const point& p) const { return line(p, p.translate(-dy(), dx())); }

point line::projection(const point& p) const {
  double t = ((p.xcoord() - point1().xcoord()) * dx() + (p.ycoord() - point1().ycoord()) * dy()) /
             (dx() * dx() + dy() * dy());
  return point1().translate(t * dx(), t * dy());
}

double line::sqr_dist(const point& p) const { return p.sqr_dist(projection(p)); }

double line::distance(const point& p) const { return std::sqrt(sqr_dist(p)); }

std::ostream& operator<<(std::ostream& out, const line& l) { return out << l.seg(); }

}  // namespace mero
