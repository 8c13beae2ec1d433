#include "line/line_geometry.h"

#include <algorithm>
#include <cmath>

namespace mero {

unit_direction::unit_direction(const weighted_point& from, const weighted_point& to) {
  const double dx = to.x - from.x, dy = to.y - from.y;
  const double scale = 1.0 / std::sqrt(dx * dx + dy * dy);
  x = dx * scale;
  y = dy * scale;
}

double l2_line_distance(const weighted_point& a, const unit_direction& u, const weighted_point& b) {
  const double vx = b.x - a.x, vy = b.y - a.y;
  const double along = vx * u.x + vy * u.y;
  const double q = std::fabs(vx * vx + vy * vy - along * along);
  return q < line_zero ? 0.0 : std::sqrt(q);
}

double l1_line_distance(const weighted_point& a, double vx, double vy, const weighted_point& b) {
  double vertical = 1e50, horizontal = 1e50;
  if (vx != 0.0) vertical = std::fabs(b.y - (a.y + vy * (b.x - a.x) / vx));
  if (vy != 0.0) horizontal = std::fabs(b.x - (a.x + vx * (b.y - a.y) / vy));
  return std::min(vertical, horizontal);
}

namespace {

// The norm dual to lp of (x, y): q = p / (p - 1), with q = infinity for p = 1 and q = 1 for the
// maximum norm.
double dual_norm(double x, double y, int p) {
  x = std::fabs(x);
  y = std::fabs(y);
  if (p == 1) return std::max(x, y);
  if (p == -1) return x + y;
  const double q = static_cast<double>(p) / (p - 1);
  return std::pow(std::pow(x, q) + std::pow(y, q), 1.0 / q);
}

}  // namespace

double lp_line_distance(const weighted_point& a, const weighted_point& b, const weighted_point& c,
                        int p) {
  const double nx = a.y - b.y, ny = b.x - a.x;
  const double d = std::fabs(nx * (c.x - a.x) + ny * (c.y - a.y)) / dual_norm(nx, ny, p);
  return d < line_zero ? 0.0 : d;
}

point_pair triple_line(const weighted_point& a, const weighted_point& b, const weighted_point& c) {
  const double fa = c.w / (a.w + c.w), fb = c.w / (b.w + c.w);
  return {{a.x + (c.x - a.x) * fa, a.y + (c.y - a.y) * fa, 0.0},
          {b.x + (c.x - b.x) * fb, b.y + (c.y - b.y) * fb, 0.0}};
}

}  // namespace mero
