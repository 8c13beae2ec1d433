#include "line/line_equation.h"

namespace mero {

line_equation::line_equation(const point& first, const point& second) : through(first, second) {
  const double x1 = first.xcoord(), y1 = first.ycoord();
  const double x2 = second.xcoord(), y2 = second.ycoord();
  if (x1 == x2) {
    slope = 1e50;
    vertical = true;
  } else if (y1 != y2) {
    const point& right = x1 > x2 ? first : second;
    const point& left = x1 > x2 ? second : first;
    slope = (right.ycoord() - left.ycoord()) / (right.xcoord() - left.xcoord());
  }
  // An underflowing quotient gives slope 0.0 for a line that is not horizontal; it keeps the
  // normal of the points as a horizontal line does, so the record never loses its direction.
  if (vertical || slope == 0.0) {
    a = y1 - y2;
    b = x2 - x1;
  } else {
    a = -slope;
    b = 1.0;
  }
  c = a * x1 + b * y1;
}

}  // namespace mero
