#include "kernel/polygon.h"

#include <algorithm>
#include <numeric>
#include <ostream>
#include <utility>

#include "kernel/error_handler.h"
#include "kernel/geometry_texts.h"

namespace mero {

namespace {

double min_x(const segment& s) { return std::min(s.xcoord1(), s.xcoord2()); }
double max_x(const segment& s) { return std::max(s.xcoord1(), s.xcoord2()); }

// True if meets(i, j) holds for some pair i != j of segments. Segments whose x ranges do not
// overlap cannot meet, so after sorting by the left end each segment is compared only with
// those that start before its right end.
template <class Meets>
bool any_pair_meets(const std::vector<segment>& segs, Meets meets) {
  std::vector<std::size_t> order(segs.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::sort(order.begin(), order.end(),
            [&](std::size_t a, std::size_t b) { return min_x(segs[a]) < min_x(segs[b]); });
  for (std::size_t a = 0; a < order.size(); ++a) {
    double right = max_x(segs[order[a]]);
    for (std::size_t b = a + 1; b < order.size() && min_x(segs[order[b]]) <= right; ++b)
      if (meets(order[a], order[b])) return true;
  }
  return false;
}

// Consecutive segments first -> second share first.target == second.source; they meet
// elsewhere only when one folds back onto the other.
bool folds_back(const segment& first, const segment& second) {
  return first.contains(second.target()) || second.contains(first.source());
}

bool crosses_properly(const segment& s, const segment& t) {
  int o1 = orientation(s.source(), s.target(), t.source());
  int o2 = orientation(s.source(), s.target(), t.target());
  int o3 = orientation(t.source(), t.target(), s.source());
  int o4 = orientation(t.source(), t.target(), s.target());
  return o1 * o2 < 0 && o3 * o4 < 0;
}

void add_once(std::vector<point>& found, const point& p) {
  if (std::find(found.begin(), found.end(), p) == found.end()) found.push_back(p);
}

bool collinear(const segment& e, const segment& s) {
  return !e.is_trivial() && !s.is_trivial() &&
         orientation(e.source(), e.target(), s.source()) == 0 &&
         orientation(e.source(), e.target(), s.target()) == 0;
}

}  // namespace

polygon::polygon(std::vector<point> vertices, check_mode check, bool reverse)
    : vertices_(std::move(vertices)) {
  build_segments();
  if (check == SIMPLE && !is_simple()) kernel_error(1, texts::polygon_not_simple);
  if (check == WEAKLY_SIMPLE && !is_weakly_simple())
    kernel_error(1, texts::polygon_not_weakly_simple);
  if (!reverse && area() < 0.0) {
    std::reverse(vertices_.begin(), vertices_.end());
    build_segments();
  }
}

polygon::polygon(const std::list<point>& vertices, check_mode check, bool reverse)
    : polygon(std::vector<point>(vertices.begin(), vertices.end()), check, reverse) {}

void polygon::build_segments() {
  segments_.clear();
  std::size_t n = vertices_.size();
  for (std::size_t i = 0; i < n; ++i) segments_.emplace_back(vertices_[i], vertices_[(i + 1) % n]);
}

double polygon::area() const {
  double twice = 0.0;
  for (const segment& s : segments_) twice += s.xcoord1() * s.ycoord2() - s.xcoord2() * s.ycoord1();
  return twice / 2.0;
}

bool polygon::is_simple() const {
  std::size_t n = segments_.size();
  if (n < 3) return false;
  return !any_pair_meets(segments_, [&](std::size_t i, std::size_t j) {
    if (j == (i + 1) % n) return folds_back(segments_[i], segments_[j]);
    if (i == (j + 1) % n) return folds_back(segments_[j], segments_[i]);
    return segments_[i].intersection(segments_[j]);
  });
}

bool polygon::is_weakly_simple() const {
  if (segments_.size() < 3) return false;
  return !any_pair_meets(segments_, [&](std::size_t i, std::size_t j) {
    return crosses_properly(segments_[i], segments_[j]);
  });
}

bool polygon::contains(const point& p) const {
  return std::any_of(segments_.begin(), segments_.end(),
                     [&](const segment& s) { return s.contains(p); });
}

int polygon::side_of(const point& p) const {
  if (contains(p)) return 0;
  // Count the segments crossed by the ray from p towards +x. A segment counts when it spans
  // p's height half-open (lower end included) and p lies on the ray's side of it; the
  // orientation decides that side without computing a crossing.
  bool odd = false;
  for (const segment& s : segments_) {
    double py = p.ycoord();
    bool upward = s.ycoord1() <= py && s.ycoord2() > py;
    bool downward = s.ycoord1() > py && s.ycoord2() <= py;
    int turn = orientation(s.source(), s.target(), p);
    if ((upward && turn > 0) || (downward && turn < 0)) odd = !odd;
  }
  return odd ? 1 : -1;
}

std::vector<point> polygon::intersection(const segment& s) const {
  std::vector<point> found;
  for (const segment& e : segments_) {
    point p;
    if (collinear(e, s)) {
      for (const point& q : {e.source(), e.target()})
        if (s.contains(q)) add_once(found, q);
      for (const point& q : {s.source(), s.target()})
        if (e.contains(q)) add_once(found, q);
    } else if (e.intersection(s, p)) {
      add_once(found, p);
    }
  }
  return found;
}

std::vector<point> polygon::intersection(const line& l) const {
  std::vector<point> found;
  for (const segment& e : segments_) {
    point p;
    if (!e.is_trivial() && l.contains(e.source()) && l.contains(e.target())) {
      add_once(found, e.source());
      add_once(found, e.target());
    } else if (l.intersection(e, p)) {
      add_once(found, p);
    }
  }
  return found;
}

polygon polygon::translate(double dx, double dy) const {
  std::vector<point> moved;
  for (const point& v : vertices_) moved.push_back(v.translate(dx, dy));
  return polygon(std::move(moved), NO_CHECK, true);
}

polygon polygon::translate(const vector& v) const { return translate(v[0], v[1]); }

polygon polygon::rotate(const point& q, double alpha) const {
  std::vector<point> turned;
  for (const point& v : vertices_) turned.push_back(v.rotate(q, alpha));
  return polygon(std::move(turned), NO_CHECK, true);
}

std::ostream& operator<<(std::ostream& out, const polygon& p) {
  out << '[';
  for (std::size_t i = 0; i < p.vertices().size(); ++i) out << (i ? "," : "") << p.vertices()[i];
  return out << ']';
}

}  // namespace mero
