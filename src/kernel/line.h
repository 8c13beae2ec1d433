#pragma once
// A straight line, held as a segment between two of its points; the segment's direction is the
// line's direction, so side_of and the order of crossings along the line follow it.
// A trivial segment gives a line without a defined slope: callers never build one.

#include <iosfwd>

#include "kernel/point.h"
#include "kernel/segment.h"

namespace mero {

class line {
 public:
  line() = default;
  line(const point& p, const point& q) : seg_(p, q) {}
  explicit line(const segment& s) : seg_(s) {}
  line(const point& p, double alpha);  // through p in direction alpha (radians)

  const segment& seg() const { return seg_; }
  const point& point1() const { return seg_.source(); }
  const point& point2() const { return seg_.target(); }
  double dx() const { return seg_.dx(); }
  double dy() const { return seg_.dy(); }
  double slope() const { return seg_.slope(); }
  double y_abs() const { return seg_.y_abs(); }
  double y_proj(double x) const { return seg_.y_proj(x); }
  double angle() const { return seg_.angle(); }
  bool is_vertical() const { return seg_.is_vertical(); }
  bool is_horizontal() const { return seg_.is_horizontal(); }

  // The orientation of point1, point2, p: 1 left of the line, -1 right, 0 on it.
  int side_of(const point& p) const { return orientation(point1(), point2(), p); }
  bool contains(const point& p) const { return side_of(p) == 0; }
  bool is_parallel(const line& l) const;  // exact test of the direction cross product

  // The single common point of two lines; false for parallel (also identical) lines. The point
  // is computed as in segment::intersection so crossings agree with those of segments.
  bool intersection(const line& l, point& p) const;
  // A common point with the closed segment s: an end of s on the line, else the crossing. A
  // segment lying on the line gives its start.
  bool intersection(const segment& s, point& p) const;

  // The line through p at right angles, directed as this line turned a quarter counter-clockwise.
  line perpendicular(const point& p) const;
  point projection(const point& p) const;  // the foot of the perpendicular from p
  double sqr_dist(const point& p) const;
  double distance(const point& p) const;

 private:
  segment seg_;
};

std::ostream& operator<<(std::ostream& out, const line& l);

}  // namespace mero
