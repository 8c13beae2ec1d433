#pragma once
// A line as line location carries it: the two points it was built from (a kernel line), its slope
// and its normal form a x + b y = c. The slope is 1e50 with the vertical flag for a vertical line,
// 0.0 for a horizontal one, otherwise dy / dx taken from the point with the larger x. The normal
// form has b = 1.0 (a = -slope) for a line that is neither vertical nor of slope 0.0; those two
// keep the normal of the two points, (y1 - y2, x2 - x1), without scaling. c always comes from the
// first point, so a record and its reversed twin may differ in sign but never in the line.

#include "kernel/line.h"
#include "kernel/point.h"

namespace mero {

struct line_equation {
  // The caller passes two distinct points, as for the kernel line.
  line_equation(const point& first, const point& second);

  line through;  // point1() is the first point, point2() the second
  double slope = 0.0;
  bool vertical = false;
  double a = 0.0;
  double b = 0.0;
  double c = 0.0;

  const point& first() const { return through.point1(); }
  const point& second() const { return through.point2(); }
  // a x + b y - c: zero on the line, its sign tells the side.
  double offset(const point& p) const { return a * p.xcoord() + b * p.ycoord() - c; }
};

}  // namespace mero
