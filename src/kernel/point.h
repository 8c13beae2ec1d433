#pragma once
// A point of the plane on double coordinates. Comparison is exact: there is no epsilon in the
// geometry layer, so 0.1 + 0.2 and 0.3 are different points.

#include <iosfwd>

#include "kernel/vector.h"

namespace mero {

class point {
 public:
  point() = default;
  point(double x, double y) : x_(x), y_(y) {}
  explicit point(const vector& v);  // the first two entries of v

  double xcoord() const { return x_; }
  double ycoord() const { return y_; }
  vector to_vector() const { return vector(x_, y_); }

  bool operator==(const point& q) const { return x_ == q.x_ && y_ == q.y_; }
  bool operator!=(const point& q) const { return !(*this == q); }
  vector operator-(const point& q) const { return vector(x_ - q.x_, y_ - q.y_); }
  point operator+(const vector& v) const { return translate(v); }

  double sqr_dist(const point& q) const;
  double distance(const point& q) const;

  point translate(double dx, double dy) const { return point(x_ + dx, y_ + dy); }
  point translate(const vector& v) const;
  // Counter-clockwise by alpha radians about q (about the origin without q).
  point rotate(const point& q, double alpha) const;
  point rotate(double alpha) const { return rotate(point(), alpha); }
  // A quarter turn counter-clockwise about q, exact for exact differences.
  point rotate90(const point& q) const;

  // The angle at this point from the arm towards q to the arm towards r, counter-clockwise, in
  // [0, 2 pi). An arm of length 0 is a fault.
  double angle(const point& q, const point& r) const;

 private:
  double x_ = 0.0;
  double y_ = 0.0;
};

// The turn of a, b, c: 1 for counter-clockwise (c left of the directed line a b), -1 for
// clockwise, 0 when the two products of the test are exactly equal (collinear).
int orientation(const point& a, const point& b, const point& c);

std::ostream& operator<<(std::ostream& out, const point& p);

}  // namespace mero
