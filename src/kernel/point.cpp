#include "kernel/point.h"

#include <cmath>
#include <numbers>
#include <ostream>

#include "kernel/error_handler.h"
#include "kernel/geometry_texts.h"

namespace mero {

point::point(const vector& v) : x_(v[0]), y_(v[1]) {}

double point::sqr_dist(const point& q) const {
  double dx = x_ - q.x_;
  double dy = y_ - q.y_;
  return dx * dx + dy * dy;
}

double point::distance(const point& q) const { return std::sqrt(sqr_dist(q)); }

point point::translate(const vector& v) const { return translate(v[0], v[1]); }

point point::rotate(const point& q, double alpha) const {
  double c = std::cos(alpha);
  double s = std::sin(alpha);
  double dx = x_ - q.x_;
  double dy = y_ - q.y_;
  return point(q.x_ + c * dx - s * dy, q.y_ + s * dx + c * dy);
}

point point::rotate90(const point& q) const {
  return point(q.x_ - (y_ - q.y_), q.y_ + (x_ - q.x_));
}

double point::angle(const point& q, const point& r) const {
  double ax = q.x_ - x_, ay = q.y_ - y_;
  double bx = r.x_ - x_, by = r.y_ - y_;
  if ((ax == 0.0 && ay == 0.0) || (bx == 0.0 && by == 0.0))
    kernel_error(1, texts::point_angle_zero);
  double phi = std::atan2(by, bx) - std::atan2(ay, ax);
  if (phi < 0.0) phi += 2.0 * std::numbers::pi;
  return phi;
}

int orientation(const point& a, const point& b, const point& c) {
  double d1 = (a.ycoord() - c.ycoord()) * (a.xcoord() - b.xcoord());
  double d2 = (a.xcoord() - c.xcoord()) * (a.ycoord() - b.ycoord());
  if (d1 == d2) return 0;
  return d1 > d2 ? 1 : -1;
}

std::ostream& operator<<(std::ostream& out, const point& p) {
  return out << '(' << p.xcoord() << ',' << p.ycoord() << ')';
}

}  // namespace mero
