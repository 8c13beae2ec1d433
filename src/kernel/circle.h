#pragma once
// A circle given by three points on it. The centre and radius are computed on first demand and
// kept. Three equal points describe the circle of radius 0 about that point; three distinct
// collinear points are accepted (they describe a line, a circle through infinity) but have no
// centre; two equal points with a third apart determine no circle and are refused.

#include <iosfwd>
#include <optional>
#include <vector>

#include "kernel/line.h"
#include "kernel/point.h"
#include "kernel/segment.h"

namespace mero {

class circle {
 public:
  circle() = default;  // radius 0 about the origin
  circle(const point& a, const point& b, const point& c);
  circle(const point& centre, double radius);  // a negative radius is refused

  const point& point1() const { return a_; }
  const point& point2() const { return b_; }
  const point& point3() const { return c_; }

  bool is_degenerate() const;  // three distinct collinear points
  point center() const;
  double radius() const;

  // Exact in-circle test against the three defining points: 1 inside, 0 on, -1 outside.
  int side_of(const point& p) const;
  // p lies on the circle (on the line, for a degenerate triple).
  bool contains(const point& p) const;
  bool inside(const point& p) const { return side_of(p) > 0; }
  bool outside(const point& p) const { return side_of(p) < 0; }

  // Common points, in the order of the line's (segment's) direction; a touching line gives one.
  std::vector<point> intersection(const line& l) const;
  std::vector<point> intersection(const segment& s) const;
  // Common points of two circles: the one left of the centre line c1 -> c2 first. Concentric
  // circles (equal ones too) give none.
  std::vector<point> intersection(const circle& d) const;
  // Where the tangents through p touch the circle: none for p inside, p itself for p on the
  // circle, else the point left of the direction centre -> p first.
  std::vector<point> tangent_points(const point& p) const;

 private:
  struct centre_radius {
    point centre;
    double radius;
  };
  const centre_radius& computed() const;

  point a_, b_, c_;
  mutable std::optional<centre_radius> cache_;
};

std::ostream& operator<<(std::ostream& out, const circle& c);

}  // namespace mero
