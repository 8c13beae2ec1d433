#pragma once
// Restrictions: plane figures that limit a planar problem. Forbidden regions (restr_polygon,
// restr_rectangle, restr_circle) say where the new facility must not stand (or, after
// set_forbidden_outside, the only place where it may stand); barriers (circle_barrier,
// line_barrier, polygon_barrier) may be stood beside but must be walked around. The restricted
// solvers see a figure only through the virtual operations of restriction, declared below in a
// fixed order; halfspace is the side-of-line test used by the tangents.

#include <list>
#include <memory>
#include <vector>

#include "kernel/circle.h"
#include "kernel/line.h"
#include "kernel/point.h"
#include "kernel/polygon.h"
#include "kernel/segment.h"
#include "model/facilities.h"
#include "model/location.h"

namespace mero {

struct gauge_site;

class restriction {
 public:
  virtual ~restriction();
  // 0 for a forbidden region, 2 for a barrier.
  virtual int kind() const = 0;
  // Forbidden regions: polygon 0, rectangle 1, circle 2. Barriers: circle 1, line 2, polygon 3.
  virtual int shape() const = 0;
  virtual bool is_forbidden_inside() const = 0;
  virtual void set_forbidden_inside() = 0;
  virtual void set_forbidden_outside() = 0;
  virtual bool inside(const segment& s) const = 0;
  virtual bool inside(const location& l) const = 0;
  virtual bool inside(const point& p) const = 0;
  virtual std::vector<point> hit_ray(const point& a, const point& b) const = 0;
  virtual std::vector<point> hit_segment(const point& a, const point& b) const = 0;
  virtual std::vector<point> hit_circle(const circle& c) const = 0;
  virtual std::vector<point> hit_polygon(const polygon& p) const = 0;
  virtual std::vector<point> hit_segment(const segment& s) const = 0;
  virtual std::vector<point> hit_line(const line& l) const = 0;
  // The cost of reaching every location from p around the figure; 0 for forbidden regions.
  // The barrier classes get theirs with the barrier problem.
  virtual double barrier_objective(const std::vector<location>& locations,
                                   const point& p) const = 0;
  // Candidates for the point of the boundary nearest to p; the caller picks the nearest.
  virtual std::list<location> proj_l2sqr(const location& p) const = 0;
  // The best boundary point for the weighted Euclidean center of locations, whose unrestricted
  // value is bound; it is left in p and its value returned. 1411 unless a class provides it.
  virtual double proj_l2max(location& p, const std::vector<location>& locations,
                            double bound) const;

  // The best boundary point for the weighted gauge center of the sites, whose unrestricted value
  // is bound; it is left in p and its value returned. Polygons, rectangles and circles give it;
  // 1411 for the barriers.
  virtual double proj_gauge_center(location& p, const std::vector<gauge_site>& sites,
                                   double bound) const;
  // The weighted maximum-norm center on the boundary of a convex figure, given the unrestricted
  // optima U (one point or the ends of a segment) of value z. U receives the new optima; the
  // value is returned.
  double proj_linf_max(std::list<location>& U, const std::vector<location>& locations,
                       double z) const;
};

// The border line from a to b, and which side of it counts: sign +1 is the side to the left of
// the direction a -> b, sign -1 the side to its right.
class halfspace {
 public:
  halfspace() = default;
  // sign: +1 unless a negative value is given. Equal a and b stop the run with 1803.
  halfspace(const point& a, const point& b, int sign = 1);

  void compute(const point& a, const point& b);
  // sign when p lies strictly in the counted half, the opposite sign otherwise (on the line too).
  int side(const point& p) const;

  point a, b;
  int sign = 1;
  double n1 = 0.0, n2 = 0.0, rhs = 0.0;
  double slope = 0.0;
  bool horizontal = false, vertical = false;
  int direction = 0;  // vertical or horizontal lines: 1 if a lies before b on the growing axis
};

// What the three forbidden regions share: the sense flag, the inside tests of a segment (both
// ends) and a location (its point), the crossings with a polygon (edge by edge), and no cost of
// reaching around them.
class forbidden_region : public restriction {
 public:
  using restriction::hit_segment;
  using restriction::inside;
  int kind() const override { return 0; }
  bool is_forbidden_inside() const override { return forbidden_inside; }
  void set_forbidden_inside() override { forbidden_inside = true; }
  void set_forbidden_outside() override { forbidden_inside = false; }
  bool inside(const segment& s) const override;
  bool inside(const location& l) const override;
  std::vector<point> hit_segment(const point& a, const point& b) const override;
  std::vector<point> hit_polygon(const polygon& p) const override;
  double barrier_objective(const std::vector<location>&, const point&) const override {
    return 0.0;
  }

  bool forbidden_inside = false;
};

class restr_polygon : public forbidden_region {
 public:
  using forbidden_region::hit_segment;
  using forbidden_region::inside;
  // The ring through the points, stored clockwise. Fewer than 3 vertices: 1402; two consecutive
  // equal vertices: 1403; last equal to first: 1404.
  explicit restr_polygon(const std::vector<point>& points);

  int shape() const override { return 0; }
  bool inside(const point& p) const override;
  std::vector<point> hit_ray(const point& a, const point& b) const override;
  std::vector<point> hit_circle(const circle& c) const override;
  std::vector<point> hit_segment(const segment& s) const override;
  std::vector<point> hit_line(const line& l) const override;
  std::list<location> proj_l2sqr(const location& p) const override;
  double proj_l2max(location& p, const std::vector<location>& locations,
                    double bound) const override;
  double proj_gauge_center(location& p, const std::vector<gauge_site>& sites,
                           double bound) const override;

  std::vector<point> vertices() const;
  bool is_convex() const;

  std::vector<segment> edges;
};

class restr_rectangle : public forbidden_region {
 public:
  using forbidden_region::hit_segment;
  using forbidden_region::inside;
  // Corners (x, y), (x, y + h), (x + w, y + h), (x + w, y), the last three turned about the
  // first by angle radians counter-clockwise.
  restr_rectangle(const point& corner, double width, double height, double angle);
  // The four corners in ring order; dims are the lengths of the first two sides.
  restr_rectangle(const point& c0, const point& c1, const point& c2, const point& c3);

  int shape() const override { return 1; }
  bool inside(const point& p) const override;
  std::vector<point> hit_ray(const point& a, const point& b) const override;
  std::vector<point> hit_circle(const circle& c) const override;
  std::vector<point> hit_segment(const segment& s) const override;
  std::vector<point> hit_line(const line& l) const override;
  std::list<location> proj_l2sqr(const location& p) const override;
  double proj_l2max(location& p, const std::vector<location>& locations,
                    double bound) const override;
  double proj_gauge_center(location& p, const std::vector<gauge_site>& sites,
                           double bound) const override;

  std::vector<segment> sides() const;  // corner 0 to 1, 1 to 2, 2 to 3, 3 to 0

  std::vector<point> corners;  // exactly 4
  std::vector<double> dims;    // width, height
};

class restr_circle : public forbidden_region {
 public:
  using forbidden_region::hit_segment;
  using forbidden_region::inside;
  restr_circle(const point& centre, double radius);

  int shape() const override { return 2; }
  bool inside(const point& p) const override;
  std::vector<point> hit_ray(const point& a, const point& b) const override;
  std::vector<point> hit_circle(const circle& c) const override;
  std::vector<point> hit_segment(const segment& s) const override;
  std::vector<point> hit_line(const line& l) const override;
  std::list<location> proj_l2sqr(const location& p) const override;

  std::vector<point> hit_segment(const point& a, const point& b) const override;
  double proj_gauge_center(location& p, const std::vector<gauge_site>& sites,
                           double bound) const override;
  point center;
  double radius;
};

// The three barriers share the answers that no barrier gives: none of them contains a segment,
// is hit by a ray, or offers a projection; none can be forbidden.
class barrier : public restriction {
 public:
  using restriction::hit_segment;
  using restriction::inside;
  int kind() const override { return 2; }
  bool is_forbidden_inside() const override { return false; }
  void set_forbidden_inside() override {}
  void set_forbidden_outside() override {}
  bool inside(const segment&) const override { return false; }
  bool inside(const location& l) const override;
  std::vector<point> hit_ray(const point&, const point&) const override { return {}; }
  std::vector<point> hit_segment(const point&, const point&) const override { return {}; }
  std::vector<point> hit_circle(const circle&) const override { return {}; }
  std::vector<point> hit_polygon(const polygon&) const override { return {}; }
  std::vector<point> hit_segment(const segment& s) const override = 0;
  // Sum over the locations of weight 0 times the barrier distance to p (see distance).
  double barrier_objective(const std::vector<location>& locations, const point& p) const override;
  std::list<location> proj_l2sqr(const location&) const override { return {}; }
  // True when the straight segment from a to p is not blocked by the barrier.
  virtual bool sees(const point& a, const point& p) const = 0;
  // The shortest route from a to p around the barrier: its length, and the first point it
  // bends at (p itself for the straight route). The penalties 1e9 (a in a circle) and 1e8 (an
  // end in a polygon) stand for routes that do not exist.
  struct route_to {
    double length;
    point via;
  };
  virtual route_to route(const point& a, const point& p) const = 0;
  double distance(const point& a, const point& p) const { return route(a, p).length; }
};

class circle_barrier : public barrier {
 public:
  bool sees(const point& a, const point& p) const override;
  route_to route(const point& a, const point& p) const override;
  // A point inside or on the circle costs 1e13 as a whole.
  double barrier_objective(const std::vector<location>& locations, const point& p) const override;
  // A negative radius gives the empty barrier: centre at the origin, radius 0, nothing inside.
  circle_barrier(const point& centre, double radius);

  int shape() const override { return 1; }
  bool inside(const point& p) const override;
  using barrier::inside;
  std::vector<point> hit_segment(const segment& s) const override;
  using barrier::hit_segment;
  std::vector<point> hit_line(const line& l) const override;
  // The tangent points through p (p itself when p is on or in the circle); left comes first.
  point left_tangent(const point& p) const;
  point right_tangent(const point& p) const;

  point center;
  double radius;
};

class line_barrier : public barrier {
 public:
  bool sees(const point& a, const point& p) const override;
  route_to route(const point& a, const point& p) const override;
  line_barrier(const point& start, const point& end);

  int shape() const override { return 2; }
  bool inside(const point& p) const override;
  using barrier::inside;
  std::vector<point> hit_segment(const point& a, const point& b) const override;
  std::vector<point> hit_segment(const segment& s) const override;
  std::vector<point> hit_line(const line& l) const override;
  // The end points ordered as seen from p: start comes first when it lies to the right of the
  // direction from p to the barrier's midpoint.
  point left_tangent(const point& p) const;
  point right_tangent(const point& p) const;

  point start, end;
};

class polygon_barrier : public barrier {
 public:
  bool sees(const point& a, const point& p) const override;
  route_to route(const point& a, const point& p) const override;
  // A polygon that is not simple stops the run with 1413.
  explicit polygon_barrier(const std::vector<point>& points);

  int shape() const override { return 3; }
  bool inside(const point& p) const override;
  using barrier::inside;
  std::vector<point> hit_segment(const segment& s) const override;
  using barrier::hit_segment;
  std::vector<point> hit_line(const line& l) const override;
  // The extreme vertices as seen from p; p itself when p is not outside the polygon.
  point left_tangent(const point& p) const;
  point right_tangent(const point& p) const;

  std::vector<point> vertices;
  std::vector<point> midpoints;
  std::vector<segment> edges;
};

// The first restriction (in list order) whose inside(l) holds; null if none does.
const restriction* first_containing(const restriction_list& restrictions, const location& l);
// For each location in order, for each restriction in order: the first that contains it.
const restriction* first_containing_any(const std::list<location>& locations,
                                        const restriction_list& restrictions);
// The head of the list; an empty list is the list error "dlist::head(): empty list".
const restriction& head_of(const restriction_list& restrictions);
// The vertices of a forbidden polygon or the corners of a forbidden rectangle; none otherwise.
std::vector<point> region_vertices(const restriction& r);
// Every location lies inside r; a null r stops the run with 1412.
bool inside_all(const std::list<location>& locations, const restriction* r);

}  // namespace mero
