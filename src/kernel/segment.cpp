#include "kernel/segment.h"

#include <cmath>
#include <ostream>

namespace mero {

namespace {

// The signs of the scalar products (p - a).(b - a) and (p - b).(a - b): both non-negative
// exactly when the foot of p lies between a and b.
bool between(const point& a, const point& b, const point& p) {
  double ab = (p.xcoord() - a.xcoord()) * (b.xcoord() - a.xcoord()) +
              (p.ycoord() - a.ycoord()) * (b.ycoord() - a.ycoord());
  double ba = (p.xcoord() - b.xcoord()) * (a.xcoord() - b.xcoord()) +
              (p.ycoord() - b.ycoord()) * (a.ycoord() - b.ycoord());
  return ab >= 0.0 && ba >= 0.0;
}

}  // namespace

segment::segment(const point& p, const point& q)
    : start_(p), end_(q), dx_(q.xcoord() - p.xcoord()), dy_(q.ycoord() - p.ycoord()) {}

double segment::length() const {
  if (is_trivial()) return 0.0;
  return start_.distance(end_);
}

double segment::y_abs() const { return start_.ycoord() - slope() * start_.xcoord(); }

double segment::y_proj(double x) const { return start_.ycoord() - slope() * (start_.xcoord() - x); }

double segment::angle() const { return std::atan2(dy_, dx_); }

bool segment::contains(const point& p) const {
  if (is_trivial()) return p == start_ && p == end_;
  if (orientation(start_, end_, p) != 0) return false;
  return between(start_, end_, p);
}

bool segment::intersection(const segment& s) const {
  if (is_trivial()) return s.contains(start_);
  if (s.is_trivial()) return contains(s.start_);
  int o1 = orientation(start_, end_, s.start_);
  int o2 = orientation(start_, end_, s.end_);
  int o3 = orientation(s.start_, s.end_, start_);
  int o4 = orientation(s.start_, s.end_, end_);
  if (o1 * o2 < 0 && o3 * o4 < 0) return true;
  return (o1 == 0 && contains(s.start_)) || (o2 == 0 && contains(s.end_)) ||
         (o3 == 0 && s.contains(start_)) || (o4 == 0 && s.contains(end_));
}

bool segment::intersection(const segment& s, point& p) const {
  if (!intersection(s)) return false;
  if (is_trivial()) {
    p = start_;  // the test above found it on s
    return true;
  }
  if (s.is_trivial()) {
    p = s.start_;
    return true;
  }
  if (s.start_ == start_ || s.end_ == start_) {
    p = start_;
    return true;
  }
  if (s.start_ == end_ || s.end_ == end_) {
    p = end_;
    return true;
  }
  double x;
  if (is_vertical())
    x = start_.xcoord();
  else if (s.is_vertical())
    x = s.start_.xcoord();
  else
    x = (s.y_abs() - y_abs()) / (slope() - s.slope());
  double y = !is_vertical() ? slope() * x + y_abs() : s.slope() * x + s.y_abs();
  p = point(x, y);
  return true;
}

segment segment::translate(double dx, double dy) const {
  return segment(start_.translate(dx, dy), end_.translate(dx, dy));
}

segment segment::rotate(const point& q, double alpha) const {
  return segment(start_.rotate(q, alpha), end_.rotate(q, alpha));
}

std::ostream& operator<<(std::ostream& out, const segment& s) {
  return out << '[' << s.source() << "===" << s.target() << ']';
}

}  // namespace mero
