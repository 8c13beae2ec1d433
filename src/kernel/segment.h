#pragma once
// A directed segment from a start point to an end point, with its differences dx and dy kept.
// All tests are exact on doubles; the crossing point follows a fixed sequence of steps so that
// callers comparing crossings of the same lines get bit-identical points.

#include <iosfwd>

#include "kernel/point.h"

namespace mero {

class segment {
 public:
  segment() = default;  // both ends at the origin: a trivial segment
  segment(const point& p, const point& q);

  const point& source() const { return start_; }
  const point& target() const { return end_; }
  double xcoord1() const { return start_.xcoord(); }
  double ycoord1() const { return start_.ycoord(); }
  double xcoord2() const { return end_.xcoord(); }
  double ycoord2() const { return end_.ycoord(); }
  double dx() const { return dx_; }
  double dy() const { return dy_; }

  bool is_trivial() const { return dx_ == 0.0 && dy_ == 0.0; }
  bool is_vertical() const { return dx_ == 0.0; }
  bool is_horizontal() const { return dy_ == 0.0; }

  double length() const;
  // dy / dx as IEEE division: infinite for a vertical segment, NaN for a trivial one.
  double slope() const { return dy_ / dx_; }
  double y_abs() const;           // the y of the supporting line at x = 0
  double y_proj(double x) const;  // the y of the supporting line at x
  double angle() const;           // direction, atan2(dy, dx) in (-pi, pi]

  bool operator==(const segment& s) const { return start_ == s.start_ && end_ == s.end_; }

  // p lies on the closed segment (a trivial segment contains only its own point).
  bool contains(const point& p) const;
  // The closed segments share at least one point.
  bool intersection(const segment& s) const;
  // As above, and p receives a common point: a shared end where there is one, otherwise the
  // crossing of the supporting lines. Collinear overlapping segments without a shared end give
  // a non-finite point (the lines' slopes are equal); p is untouched when the result is false.
  bool intersection(const segment& s, point& p) const;

  segment translate(double dx, double dy) const;
  segment rotate(const point& q, double alpha) const;

 private:
  point start_;
  point end_;
  double dx_ = 0.0;
  double dy_ = 0.0;
};

std::ostream& operator<<(std::ostream& out, const segment& s);

}  // namespace mero
