#include "planar/weighted_points.h"

#include <algorithm>
#include <cmath>

namespace mero {

weighted_point centre_of_gravity(const std::vector<weighted_point>& points) {
  double sx = 0.0, sy = 0.0, sw = 0.0;
  for (const weighted_point& p : points) {
    sx += p.w * p.x;
    sy += p.w * p.y;
    sw += p.w;
  }
  return {sx / sw, sy / sw, sw};
}

double lp_distance(double dx, double dy, int p) {
  if (p >= 1) return std::pow(std::pow(std::fabs(dx), p) + std::pow(std::fabs(dy), p), 1.0 / p);
  if (p == -1) return std::max(std::max(0.0, std::fabs(dx)), std::fabs(dy));
  return 0.0;
}

double weighted_objective(const std::vector<weighted_point>& points, double x, double y, int p) {
  double sum = 0.0;
  for (const weighted_point& a : points) sum += lp_distance(a.x - x, a.y - y, p) * a.w;
  return sum;
}

location result_location(double x, double y, double group) {
  location l(2, 1);
  l.coordinate_ref(0) = x;
  l.coordinate_ref(1) = y;
  l.weight_ref(0) = group;
  return l;
}

}  // namespace mero
