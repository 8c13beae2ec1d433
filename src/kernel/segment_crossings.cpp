#include "kernel/segment_crossings.h"

#include <algorithm>
#include <queue>
#include <tuple>

namespace mero {

namespace {

struct box {
  double xmin, xmax, ymin, ymax;
};

box box_of(const segment& s) {
  return {std::min(s.xcoord1(), s.xcoord2()), std::max(s.xcoord1(), s.xcoord2()),
          std::min(s.ycoord1(), s.ycoord2()), std::max(s.ycoord1(), s.ycoord2())};
}

bool collinear(const segment& s, const segment& t) {
  return orientation(s.source(), s.target(), t.source()) == 0 &&
         orientation(s.source(), s.target(), t.target()) == 0;
}

// The common points of segments i and j (at most two: the ends of a collinear overlap).
void add_common_points(const std::vector<segment>& segments, std::size_t i, std::size_t j,
                       std::vector<segment_crossing>& out) {
  const segment& s = segments[i];
  const segment& t = segments[j];
  if (!s.intersection(t)) return;
  if (!s.is_trivial() && !t.is_trivial() && collinear(s, t)) {
    // The supporting lines coincide, so the crossing formula has no answer: the overlap is
    // bounded by those ends of either segment that lie on the other.
    std::vector<point> ends;
    for (const point& p : {s.source(), s.target()})
      if (t.contains(p)) ends.push_back(p);
    for (const point& p : {t.source(), t.target()})
      if (s.contains(p)) ends.push_back(p);
    std::sort(ends.begin(), ends.end(), [](const point& a, const point& b) {
      return a.xcoord() < b.xcoord() || (a.xcoord() == b.xcoord() && a.ycoord() < b.ycoord());
    });
    ends.erase(std::unique(ends.begin(), ends.end()), ends.end());
    for (const point& p : ends) out.push_back({i, j, p});
    return;
  }
  point p;
  s.intersection(t, p);
  out.push_back({i, j, p});
}

bool sweep_less(const segment_crossing& a, const segment_crossing& b) {
  return std::make_tuple(a.where.xcoord(), a.where.ycoord(), a.first, a.second) <
         std::make_tuple(b.where.xcoord(), b.where.ycoord(), b.first, b.second);
}

}  // namespace

std::vector<segment_crossing> segment_crossings(const std::vector<segment>& segments,
                                                const crossing_filter& accept) {
  const std::size_t n = segments.size();
  std::vector<box> boxes(n);
  std::vector<std::size_t> order(n);
  for (std::size_t i = 0; i < n; ++i) {
    boxes[i] = box_of(segments[i]);
    order[i] = i;
  }
  std::stable_sort(order.begin(), order.end(),
                   [&](std::size_t a, std::size_t b) { return boxes[a].xmin < boxes[b].xmin; });

  // The active segments, and a queue of their right ends that retires them once the sweep
  // position has passed them.
  std::vector<std::size_t> active;
  std::vector<std::size_t> slot(n);
  using right_end = std::pair<double, std::size_t>;
  std::priority_queue<right_end, std::vector<right_end>, std::greater<>> leaving;

  std::vector<segment_crossing> out;
  for (std::size_t k : order) {
    const box& b = boxes[k];
    while (!leaving.empty() && leaving.top().first < b.xmin) {
      const std::size_t gone = leaving.top().second;
      leaving.pop();
      active[slot[gone]] = active.back();
      slot[active.back()] = slot[gone];
      active.pop_back();
    }
    for (std::size_t other : active) {
      const box& o = boxes[other];
      if (o.ymax < b.ymin || b.ymax < o.ymin) continue;
      const std::size_t i = std::min(k, other), j = std::max(k, other);
      if (accept && !accept(i, j)) continue;
      add_common_points(segments, i, j, out);
    }
    slot[k] = active.size();
    active.push_back(k);
    leaving.push({b.xmax, k});
  }
  std::sort(out.begin(), out.end(), sweep_less);
  return out;
}

std::vector<point> crossing_points(const std::vector<segment_crossing>& crossings) {
  std::vector<point> points;
  for (const segment_crossing& c : crossings)
    if (points.empty() || points.back() != c.where) points.push_back(c.where);
  return points;
}

}  // namespace mero
