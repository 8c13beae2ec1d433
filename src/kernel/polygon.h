#pragma once
// A closed polygon: its vertices in order and the segments between consecutive vertices, the
// last joining the first. Unless asked to keep the given order, the constructor turns a
// clockwise vertex list round so that the polygon is counter-clockwise (positive area).

#include <initializer_list>
#include <iosfwd>
#include <list>
#include <vector>

#include "kernel/line.h"
#include "kernel/point.h"
#include "kernel/segment.h"
#include "kernel/vector.h"

namespace mero {

class polygon {
 public:
  // What the constructor verifies before it accepts the vertex list; a failed check stops the
  // run with the kernel's text.
  enum check_mode : int { NO_CHECK = 0, SIMPLE = 1, WEAKLY_SIMPLE = 2 };

  polygon() = default;
  explicit polygon(std::vector<point> vertices, check_mode check = NO_CHECK, bool reverse = false);
  polygon(std::initializer_list<point> vertices, check_mode check = NO_CHECK, bool reverse = false)
      : polygon(std::vector<point>(vertices), check, reverse) {}
  explicit polygon(const std::list<point>& vertices, check_mode check = NO_CHECK,
                   bool reverse = false);

  const std::vector<point>& vertices() const { return vertices_; }
  const std::vector<segment>& segments() const { return segments_; }
  int size() const { return static_cast<int>(vertices_.size()); }

  double area() const;  // signed: positive for a counter-clockwise vertex order

  // Simple: no two non-adjacent segments meet and adjacent ones meet only at their common
  // vertex (so repeated vertices are not simple). Weakly simple: no two segments cross at a
  // point interior to both; touching and overlapping are allowed. Fewer than three vertices
  // are neither. Both compare the pairs whose x ranges overlap: O(n log n + k) for k such
  // pairs, O(n^2) at worst.
  bool is_simple() const;
  bool is_weakly_simple() const;

  // 1 inside the polygon, 0 on its boundary, -1 outside (even-odd rule for non-simple chains).
  int side_of(const point& p) const;
  bool contains(const point& p) const;  // p lies on the boundary
  bool inside(const point& p) const { return side_of(p) > 0; }
  bool outside(const point& p) const { return side_of(p) < 0; }

  // Points where the boundary meets s (or l), by polygon segment in ring order, each point
  // once. Where a polygon segment overlaps s (lies on l) its overlap's ends are given.
  std::vector<point> intersection(const segment& s) const;
  std::vector<point> intersection(const line& l) const;

  polygon translate(double dx, double dy) const;
  polygon translate(const vector& v) const;
  polygon rotate(const point& q, double alpha) const;  // counter-clockwise about q

 private:
  void build_segments();

  std::vector<point> vertices_;
  std::vector<segment> segments_;
};

std::ostream& operator<<(std::ostream& out, const polygon& p);

}  // namespace mero
