#include "network/tent_envelope.h"

#include <cstddef>

#include "kernel/segment.h"

namespace mero {

tent node_tent(double du, double dv, double w, double length) {
  point p1(0.0, du * w), p2(1.0, (du + length) * w);
  point p3(0.0, (dv + length) * w), p4(1.0, dv * w);
  segment rising(p1, p2), falling(p3, p4);
  tent t;
  t.rise_start = p1.ycoord();
  t.fall_start = p3.ycoord();
  t.slope = length * w;
  point x;
  if (rising.intersection(falling, x) && x.xcoord() != 0.0 && x.xcoord() != 1.0) {
    double peak = (t.fall_start - t.rise_start) / (2.0 * t.slope);
    t.rise_end = t.fall_begin = peak < 0.0 ? 0.0 : (peak > 1.0 ? 1.0 : peak);
  } else if (p1.ycoord() < p3.ycoord()) {
    t.rise_end = 1.0;
    t.fall_begin = 2.0;
  } else {
    t.rise_end = -1.0;
    t.fall_begin = 0.0;
  }
  return t;
}

namespace {

// One straight piece of a tent: intercept, slope and the stretch of t it covers.
struct piece {
  double y0, dy, from, to;
  bool exists() const { return from <= to; }
};

piece rising_piece(const tent& t) { return {t.rise_start, t.slope, 0.0, t.rise_end}; }
piece falling_piece(const tent& t) { return {t.fall_start, -t.slope, t.fall_begin, 1.0}; }

double height(const tent& t, double x) {
  return x <= t.rise_end ? t.rise_start + t.slope * x : t.fall_start - t.slope * x;
}

// The height of the tent at t = 0 and at the end of its first piece, which decides where the
// walk starts.
double start_height(const tent& t) { return height(t, 0.0); }
double first_piece_end(const tent& t) {
  return t.rise_end >= 0.0 ? height(t, t.rise_end) : height(t, 1.0);
}

// Where piece a (of another tent) climbs above piece b (of the current tent), at pos or after:
// the lines' crossing, when a is the steeper and both pieces go on beyond the crossing. Several
// tents may meet in one point; the walk then moves at that point from tent to ever steeper
// tent, so it ends.
bool climbs_above(const piece& a, const piece& b, double pos, point& at) {
  if (!a.exists() || !b.exists() || !(a.dy > b.dy)) return false;
  double x = (b.y0 - a.y0) / (a.dy - b.dy);
  if (!(x >= pos) || !(x < a.to) || !(x < b.to) || x < a.from || x < b.from) return false;
  at = point(x, a.y0 + a.dy * x);
  return true;
}

// The first place from pos on where tent k rises above the current tent, if any, with the slope
// k leaves it at.
bool first_rise(const tent& k, const tent& cur, double pos, point& at, double& slope) {
  const piece mine[2] = {rising_piece(k), falling_piece(k)};
  const piece theirs[2] = {falling_piece(cur), rising_piece(cur)};
  bool found = false;
  for (const piece& a : mine)
    for (const piece& b : theirs) {
      point x;
      if (climbs_above(a, b, pos, x) && (!found || x.xcoord() < at.xcoord())) {
        at = x;
        slope = a.dy;
        found = true;
      }
    }
  return found;
}

std::size_t highest_start(const std::vector<tent>& tents, double& best_y) {
  std::size_t cur = 0;
  double best_t = 0.0;
  best_y = 0.0;
  for (std::size_t k = 0; k < tents.size(); ++k) {
    double y0 = start_height(tents[k]), y1 = first_piece_end(tents[k]);
    if (y0 > best_y || (y0 == best_y && y1 > best_t)) {
      cur = k;
      best_y = y0;
      best_t = y1;
    }
  }
  return cur;
}

}  // namespace

std::list<point> envelope_minima(const std::vector<tent>& tents) {
  if (tents.empty()) return {};
  double best_y = 0.0;
  std::size_t cur = highest_start(tents, best_y);
  std::list<point> result{point(0.0, best_y)};
  double pos = 0.0;
  do {
    // 1.1 stands above every t.
    // Of tents meeting the current one in the same point, the steepest takes over.
    point next(1.1, 0.0);
    double next_slope = 0.0;
    std::size_t next_cur = cur;
    for (std::size_t k = 0; k < tents.size(); ++k) {
      point x;
      double slope = 0.0;
      if (k == cur || !first_rise(tents[k], tents[cur], pos, x, slope)) continue;
      if (x.xcoord() < next.xcoord() || (x.xcoord() == next.xcoord() && slope > next_slope)) {
        next = x;
        next_slope = slope;
        next_cur = k;
      }
    }
    if (next_cur == cur) next = point(1.0, height(tents[cur], 1.0));
    cur = next_cur;
    pos = next.xcoord();
    const point& last = result.back();
    if (next.ycoord() > last.ycoord() || next.xcoord() == last.xcoord()) continue;
    if (next.ycoord() < last.ycoord()) result.clear();
    result.push_back(next);
  } while (pos < 1.0);
  return result;
}

}  // namespace mero
