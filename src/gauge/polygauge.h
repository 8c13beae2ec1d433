#pragma once
// Polygonal gauges: a convex polygon around the origin as unit ball, not necessarily symmetric,
// so that the distance from x to y need not equal the distance from y to x. The rays from the
// origin through the extreme points (the fundamental directions) cut the plane into cones, and
// within a cone the gauge is linear.

#include <utility>
#include <vector>

#include "kernel/message.h"
#include "kernel/point.h"
#include "kernel/segment.h"

namespace mero {

class polygauge {
 public:
  // From the extreme points of the unit ball, counter-clockwise. Checks in this order, each
  // ending the run: a point at the origin (1704), angles not strictly increasing from the first
  // ray (1701), two consecutive rays pi or more apart (1702; the step from the last ray back to
  // the first is not tested), fewer than three points or a point not a corner of the hull (1703).
  explicit polygauge(const std::vector<point>& points);

  int cones() const { return static_cast<int>(dirs_.size()); }
  // Segments from the origin to the extreme points, and their angles from the first ray,
  // counter-clockwise in [0, 2 pi).
  const std::vector<segment>& dirs() const { return dirs_; }
  const std::vector<double>& alphas() const { return alphas_; }

  // The gauge distance from x to y: the sum of the absolute coefficients of y - x in the two
  // fundamental directions of its cone.
  double dist(const point& x, const point& y) const;

  // Whether p lies in the sector cone (1 to n) at x; interior becomes false on a ray or at x.
  // A cone number outside 1..n ends the run (1706).
  bool in_cone(const point& x, int cone, const point& p, bool& interior) const;
  // The first cone at x holding p, from 1 upward; 0 with interior false when p equals x.
  int cone_of(const point& x, const point& p, bool& interior) const;
  // x + e_cone and x + e_(cone+1), cone n closing with ray 1; 1710 outside 1..n.
  std::pair<point, point> fundamental_directions(const point& x, int cone) const;

  // The extreme points moved by x, in order.
  std::vector<point> extreme_points(const point& x = point()) const;
  // x plus the extreme point with the largest (smallest) coordinate i; the first stays on a tie.
  // i other than 0 or 1 ends the run (1714, 1715).
  point max(const point& x, int i) const;
  point mini(const point& x, int i) const;
  // The extent of the unit ball in coordinate i; any other i reports 1716 (the value would be
  // 1.0 if the report returned).
  double max_diff(int i) const;
  // The largest Euclidean length of an extreme point.
  double max_length() const;
  // A copy whose dirs start from x.
  polygauge moved(const point& x) const;

 protected:
  // For derived gauges that check their points themselves.
  polygauge(std::vector<segment> dirs, std::vector<double> alphas)
      : dirs_(std::move(dirs)), alphas_(std::move(alphas)) {}

 private:
  point direction(int k) const;  // extreme point k (0-based) relative to the ray's start
  // The angle at x from the first fundamental direction to p, counter-clockwise in [0, 2 pi).
  double angle_at(const point& x, const point& p) const;
  // Whether the angle a lies in cone (1 to n), bounds included; interior false on a ray.
  bool holds(int cone, double a, bool& interior) const;

  std::vector<segment> dirs_;
  std::vector<double> alphas_;
};

// A gauge whose cones may be rounded: conetyps marks a cone whose boundary is an arc rather than
// an edge. Read, checked, copied and handed on; no part of the program measures with it.
class mixgauge : public polygauge {
 public:
  // Of a run of true flags only the first point stays; if the last and the first kept flag are
  // both true the last kept entry goes too. Checks: sizes (1717), a point at the origin (1722),
  // order (1718, and 1719 for a last angle below 0), consecutive rays more than pi apart (1720),
  // hull (1721).
  mixgauge(const std::vector<point>& points, const std::vector<bool>& conetyps);

  const std::vector<bool>& conetyps() const { return conetyps_; }

 private:
  struct kept {
    std::vector<segment> dirs;
    std::vector<double> alphas;
    std::vector<bool> conetyps;
  };
  explicit mixgauge(kept k);
  static kept checked(const std::vector<point>& points, const std::vector<bool>& conetyps);

  std::vector<bool> conetyps_;
};

// The message of the first check of the polygauge constructor that these points fail, or null
// if they make a gauge; for callers that must not end the run on a bad gauge (the editor).
const message* polygauge_fault(const std::vector<point>& points);

// The gauge of the l1 norm: (0,1), (-1,0), (0,-1), (1,0).
polygauge rectilinear_gauge();
// The gauge of the maximum norm: (-1,1), (-1,-1), (1,-1), (1,1).
polygauge chebyshev_gauge();

}  // namespace mero
