#include "planar/lp_pull_bound.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace mero {

namespace {

constexpr std::size_t leaf_size = 16;

// Opening parameters tried in turn: a node is summed as a whole when its size is at most this
// share of its distance from the tested point. Most locations are decided by the first, coarse
// pass; only those whose pull is close to their weight need the finer ones.
constexpr double openings[] = {1.0, 0.4, 0.15, 0.05};

// x to the integer power k >= 0, by squaring.
double integer_power(double x, int k) {
  double result = 1.0;
  for (; k > 0; k >>= 1, x *= x)
    if (k & 1) result *= x;
  return result;
}

// The absolute components of the gradient of the lp norm at a difference with absolute
// components u and v, not both 0: u^(p-1) / ||(u, v)||_p^(p-1) and the same for v. Scaled by the
// larger of the two first, so that the powers neither overflow nor underflow.
void gradient_shares(double u, double v, int p, double& share_u, double& share_v) {
  const double m = std::max(u, v);
  const double a = u / m, b = v / m;
  const double norm =
      std::pow(integer_power(a, p) + integer_power(b, p), static_cast<double>(p - 1) / p);
  share_u = integer_power(a, p - 1) / norm;
  share_v = integer_power(b, p - 1) / norm;
}

// The range of the absolute values of [lo, hi].
void absolute_range(double lo, double hi, double& abs_lo, double& abs_hi) {
  if (lo > 0.0) {
    abs_lo = lo;
    abs_hi = hi;
  } else if (hi < 0.0) {
    abs_lo = -hi;
    abs_hi = -lo;
  } else {
    abs_lo = 0.0;
    abs_hi = std::max(-lo, hi);
  }
}

// The range of a gradient component whose difference component runs over [lo, hi], given the
// least and greatest absolute value the component takes there.
void signed_range(double lo, double hi, double least, double greatest, double& min, double& max) {
  if (lo > 0.0) {
    min = least;
    max = greatest;
  } else if (hi < 0.0) {
    min = -greatest;
    max = -least;
  } else {
    min = -greatest;
    max = greatest;
  }
}

}  // namespace

lp_pull_bound::lp_pull_bound(const std::vector<weighted_point>& points, int p)
    : points_(points), p_(p), q_(static_cast<double>(p) / (p - 1)) {
  double total = 0.0;
  for (const weighted_point& a : points) {
    if (!(a.w >= 0.0) || !std::isfinite(a.w) || !std::isfinite(a.x) || !std::isfinite(a.y))
      usable_ = false;
    total += a.w;
  }
  if (p < 2 || points.empty() || !std::isfinite(total)) usable_ = false;
  // The exact test sums n terms of size up to their weight: its rounding stays far below this.
  margin_ = 1e-8 * total;
  if (!usable_) return;
  order_.resize(points.size());
  std::iota(order_.begin(), order_.end(), std::size_t{0});
  nodes_.reserve(2 * points.size() / leaf_size + 2);
  build(0, points.size());
}

std::size_t lp_pull_bound::build(std::size_t begin, std::size_t end) {
  node n{points_[order_[begin]].x,
         points_[order_[begin]].x,
         points_[order_[begin]].y,
         points_[order_[begin]].y,
         0.0,
         begin,
         end};
  for (std::size_t k = begin; k < end; ++k) {
    const weighted_point& a = points_[order_[k]];
    n.x_lo = std::min(n.x_lo, a.x);
    n.x_hi = std::max(n.x_hi, a.x);
    n.y_lo = std::min(n.y_lo, a.y);
    n.y_hi = std::max(n.y_hi, a.y);
    n.weight += a.w;
  }
  const std::size_t index = nodes_.size();
  nodes_.push_back(n);
  if (end - begin <= leaf_size) return index;
  // Split the wider side at the median.
  const bool by_x = n.x_hi - n.x_lo >= n.y_hi - n.y_lo;
  const std::size_t mid = begin + (end - begin) / 2;
  std::nth_element(order_.begin() + static_cast<std::ptrdiff_t>(begin),
                   order_.begin() + static_cast<std::ptrdiff_t>(mid),
                   order_.begin() + static_cast<std::ptrdiff_t>(end),
                   [&](std::size_t i, std::size_t j) {
                     return by_x ? points_[i].x < points_[j].x : points_[i].y < points_[j].y;
                   });
  const std::size_t left = build(begin, mid);
  const std::size_t right = build(mid, end);
  nodes_[index].left = left;
  nodes_[index].right = right;
  return index;
}

bool lp_pull_bound::proves_failure(std::size_t at) const {
  if (!usable_) return false;
  for (double opening : openings)
    if (bound_exceeds(at, opening)) return true;
  return false;
}

bool lp_pull_bound::bound_exceeds(std::size_t at, double opening) const {
  const weighted_point& a = points_[at];
  double rx_lo = 0.0, rx_hi = 0.0, ry_lo = 0.0, ry_hi = 0.0;
  std::vector<std::size_t> stack{0};
  while (!stack.empty()) {
    const node& n = nodes_[stack.back()];
    stack.pop_back();
    // Differences a - b for b in the node's box.
    const double vx_lo = a.x - n.x_hi, vx_hi = a.x - n.x_lo;
    const double vy_lo = a.y - n.y_hi, vy_hi = a.y - n.y_lo;
    const double gap = std::max({0.0, vx_lo, -vx_hi, vy_lo, -vy_hi});
    const double size = std::max(n.x_hi - n.x_lo, n.y_hi - n.y_lo);
    if (gap > 0.0 && size <= opening * gap) {
      // A component's share grows with its own absolute difference and falls with the other's,
      // so two corners of the box of absolute differences give all four extremes.
      double ax_lo, ax_hi, ay_lo, ay_hi;
      absolute_range(vx_lo, vx_hi, ax_lo, ax_hi);
      absolute_range(vy_lo, vy_hi, ay_lo, ay_hi);
      double least_x, greatest_y, greatest_x, least_y;
      gradient_shares(ax_lo, ay_hi, p_, least_x, greatest_y);
      gradient_shares(ax_hi, ay_lo, p_, greatest_x, least_y);
      double gx_lo, gx_hi, gy_lo, gy_hi;
      signed_range(vx_lo, vx_hi, least_x, greatest_x, gx_lo, gx_hi);
      signed_range(vy_lo, vy_hi, least_y, greatest_y, gy_lo, gy_hi);
      rx_lo += n.weight * gx_lo;
      rx_hi += n.weight * gx_hi;
      ry_lo += n.weight * gy_lo;
      ry_hi += n.weight * gy_hi;
    } else if (n.left != 0) {
      stack.push_back(n.left);
      stack.push_back(n.right);
    } else {
      for (std::size_t k = n.begin; k < n.end; ++k) {
        const std::size_t j = order_[k];
        if (j == at) continue;
        const double dx = a.x - points_[j].x, dy = a.y - points_[j].y;
        if (dx == 0.0 && dy == 0.0) return false;  // a duplicate: the exact test decides
        double share_x, share_y;
        gradient_shares(std::fabs(dx), std::fabs(dy), p_, share_x, share_y);
        const double gx = std::copysign(share_x, dx) * points_[j].w;
        const double gy = std::copysign(share_y, dy) * points_[j].w;
        rx_lo += gx;
        rx_hi += gx;
        ry_lo += gy;
        ry_hi += gy;
      }
    }
  }
  // The smallest dual norm over the rectangle of possible pulls is at its point nearest 0.
  const double ex = rx_lo > 0.0 ? rx_lo : (rx_hi < 0.0 ? -rx_hi : 0.0);
  const double ey = ry_lo > 0.0 ? ry_lo : (ry_hi < 0.0 ? -ry_hi : 0.0);
  const double lower = std::pow(std::pow(ex, q_) + std::pow(ey, q_), 1.0 / q_);
  return lower > a.w + margin_;
}

}  // namespace mero
