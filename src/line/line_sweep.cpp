// Euclidean line location with the sum objective by rotating a line about a pivot. Every optimal
// line is a halving line (no more than half of the weight strictly on either side: moving it
// towards a heavier side would lower the sum) and some optimal line runs through two locations,
// so only halving lines through two locations need a value.

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>
#include <vector>

#include "kernel/point.h"
#include "line/line_equation.h"
#include "line/line_search.h"
#include "model/facilities.h"

namespace mero {

namespace {

double cross(double ax, double ay, double bx, double by) { return ax * by - ay * bx; }

// Another location seen from the pivot: its offset d, the same turned into the upper half-plane
// (angle in [0, pi)) and whether that turn was needed.
struct seen_point {
  double dx, dy;
  double angle;
  bool flipped;
  int index;
};

std::vector<seen_point> seen_from(const std::vector<weighted_point>& points, int pivot) {
  std::vector<seen_point> seen;
  for (int k = 0; k < static_cast<int>(points.size()); ++k) {
    const double dx = points[k].x - points[pivot].x, dy = points[k].y - points[pivot].y;
    if (dx == 0.0 && dy == 0.0) continue;  // on every line through the pivot
    const bool flipped = dy < 0.0 || (dy == 0.0 && dx < 0.0);
    const double ux = flipped ? -dx : dx, uy = flipped ? -dy : dy;
    seen.push_back({dx, dy, std::atan2(uy, ux), flipped, k});
  }
  std::sort(seen.begin(), seen.end(),
            [](const seen_point& a, const seen_point& b) { return a.angle < b.angle; });
  return seen;
}

// Weight and weighted offset sum of the locations on one side of the rotating line.
struct side {
  double w = 0.0, sx = 0.0, sy = 0.0;
  void add(const seen_point& s, double weight, double sign) {
    w += sign * weight;
    sx += sign * weight * s.dx;
    sy += sign * weight * s.dy;
  }
};

point at(const weighted_point& p) { return point(p.x, p.y); }

// The best halving line so far, carried as its line record from the location of the lower
// position to the other, with the two positions for the copies of the result.
struct halving_line {
  double value = 1e50;
  int i = -1;
  int j = -1;
  std::optional<line_equation> line;

  void replace(const std::vector<weighted_point>& points, double v, int pivot, int other) {
    value = v;
    i = std::min(pivot, other);
    j = std::max(pivot, other);
    line.emplace(at(points[i]), at(points[j]));
  }
};

// One pivot: the line through it turns counter-clockwise from just below the horizontal through a
// half turn. A location whose offset lies in the upper half-plane starts on the left and crosses
// to the right when the line passes it; a flipped one crosses the other way. At each direction met
// the locations on the line are those of the group, and the sum of distances is
// cross(u, left sum) - cross(u, right sum), O(1) from the side sums.
void sweep_pivot(const std::vector<weighted_point>& points, int pivot, double half,
                 halving_line& best) {
  const std::vector<seen_point> seen = seen_from(points, pivot);
  side left, right;
  for (const seen_point& s : seen) (s.flipped ? right : left).add(s, points[s.index].w, 1.0);
  for (std::size_t g = 0; g < seen.size();) {
    std::size_t end = g + 1;
    while (end < seen.size() && cross(seen[g].dx, seen[g].dy, seen[end].dx, seen[end].dy) == 0.0)
      ++end;
    side on_left, on_right;  // the group's part of each side before the crossing
    for (std::size_t k = g; k < end; ++k)
      (seen[k].flipped ? on_right : on_left).add(seen[k], points[seen[k].index].w, 1.0);
    const double strict_left = left.w - on_left.w, strict_right = right.w - on_right.w;
    if (strict_left <= half && strict_right <= half) {
      const double length = std::hypot(seen[g].dx, seen[g].dy);
      const double ux = (seen[g].flipped ? -seen[g].dx : seen[g].dx) / length;
      const double uy = (seen[g].flipped ? -seen[g].dy : seen[g].dy) / length;
      const double value = cross(ux, uy, left.sx - on_left.sx, left.sy - on_left.sy) -
                           cross(ux, uy, right.sx - on_right.sx, right.sy - on_right.sy);
      if (value < best.value) best.replace(points, value, pivot, seen[g].index);
    }
    for (std::size_t k = g; k < end; ++k) {
      const double w = points[seen[k].index].w;
      (seen[k].flipped ? right : left).add(seen[k], w, -1.0);
      (seen[k].flipped ? left : right).add(seen[k], w, 1.0);
    }
    g = end;
  }
}

// The halving lines of all pivots, O(n^2 log n) for the n angular sorts; the chosen line's value
// is then taken by the pair loop's own sum, so that it is the value L_l2_sum_M3 gives that line.
pair_choice best_halving_line(const std::vector<weighted_point>& points) {
  double total = 0.0, magnitude = 0.0;
  for (const weighted_point& p : points) {
    total += p.w;
    magnitude += std::fabs(p.w);
  }
  // The side weights are running sums: a tie with the half must not be lost to their rounding.
  const double half = total / 2.0 + 1e-9 * magnitude;
  halving_line best;
  for (int pivot = 0; pivot < static_cast<int>(points.size()); ++pivot)
    sweep_pivot(points, pivot, half, best);
  if (!best.line) return {};
  return {l2_line_sum(points, *best.line), best.i, best.j};
}

bool has_coincident(std::vector<weighted_point> points) {
  std::sort(points.begin(), points.end(), [](const weighted_point& a, const weighted_point& b) {
    return a.x < b.x || (a.x == b.x && a.y < b.y);
  });
  for (std::size_t k = 1; k < points.size(); ++k)
    if (same_place(points[k - 1], points[k])) return true;
  return false;
}

// The rotating halving line of equal weights (the windmill): a line through the pivot with
// exactly `left_count` locations strictly on its left turns counter-clockwise until it meets
// further locations, and then turns on about the one location of the line that keeps
// `left_count` on the left. Each such stop is a halving line through two locations.
class windmill {
 public:
  windmill(const std::vector<weighted_point>& points, pair_choice& best)
      : points_(points), best_(best), left_count_((static_cast<int>(points.size()) - 1) / 2) {}

  // From the horizontal line through the location that has left_count_ locations above it or to
  // its left on the same height; n odd turns through pi, n even through 2 pi, because then a
  // halving line has either left_count_ or left_count_ + 1 locations on its left and the second
  // kind is met with the opposite orientation.
  void run() {
    const int n = static_cast<int>(points_.size());
    std::vector<int> order(n);
    for (int k = 0; k < n; ++k) order[k] = k;
    std::sort(order.begin(), order.end(), [&](int a, int b) {
      const weighted_point &p = points_[a], &q = points_[b];
      return p.y > q.y || (p.y == q.y && p.x < q.x);
    });
    pivot_ = order[left_count_];
    for (int k = 0; k < n; ++k)
      if (k != pivot_ && points_[k].y == points_[pivot_].y) {
        evaluate(k);
        break;
      }
    const double turn = n % 2 == 1 ? std::numbers::pi : 2.0 * std::numbers::pi;
    double turned = 0.0;
    // Each stop is a distinct line of a finite set; the bound only guards against rounding.
    for (long long stops = 0; stops < 2LL * n * n; ++stops) {
      const int next = next_hit();
      if (next < 0 || turned + angle_to(next) >= turn) break;
      turned += angle_to(next);
      move_to(next);
    }
  }

 private:
  const std::vector<weighted_point>& points_;
  pair_choice& best_;
  int left_count_;
  int pivot_ = 0;
  double ux_ = 1.0, uy_ = 0.0;  // the direction of the line

  double dx(int k) const { return points_[k].x - points_[pivot_].x; }
  double dy(int k) const { return points_[k].y - points_[pivot_].y; }

  // The counter-clockwise turn in (0, pi) after which the line through the pivot meets k; 0.0
  // for a location on the line now.
  double angle_to(int k) const {
    const double c = cross(ux_, uy_, dx(k), dy(k));
    if (c == 0.0) return 0.0;
    const double alpha = std::atan2(c, ux_ * dx(k) + uy_ * dy(k));
    return c > 0.0 ? alpha : alpha + std::numbers::pi;
  }

  // The location met first, the earliest in list order on equal angles; -1 when none is left.
  int next_hit() const {
    int next = -1;
    double least = 0.0;
    for (int k = 0; k < static_cast<int>(points_.size()); ++k) {
      if (k == pivot_) continue;
      const double a = angle_to(k);
      if (a > 0.0 && (next < 0 || a < least)) {
        next = k;
        least = a;
      }
    }
    return next;
  }

  void evaluate(int k) {
    const int i = std::min(pivot_, k), j = std::max(pivot_, k);
    const double value = l2_pair_sum(points_, i, j, best_.value + 1.0);
    if (value < best_.value) best_ = {value, i, j};
  }

  // The line now runs through the pivot and every location collinear with it and `hit`. Those
  // ahead of the pivot came from the left; the new pivot is the location of the line with as
  // many of the line behind it, so that left_count_ stays on the left after the turn.
  void move_to(int hit) {
    evaluate(hit);
    const double sign = cross(ux_, uy_, dx(hit), dy(hit)) > 0.0 ? 1.0 : -1.0;
    ux_ = sign * dx(hit);
    uy_ = sign * dy(hit);
    std::vector<std::pair<double, int>> on_line{{0.0, pivot_}};
    int ahead = 0;
    for (int k = 0; k < static_cast<int>(points_.size()); ++k) {
      if (k == pivot_ || cross(ux_, uy_, dx(k), dy(k)) != 0.0) continue;
      const double along = ux_ * dx(k) + uy_ * dy(k);
      on_line.push_back({along, k});
      if (along > 0.0) ++ahead;
    }
    // stable_sort stays within the range even if an overflow made some keys undefined.
    std::stable_sort(on_line.begin(), on_line.end());
    pivot_ = on_line[ahead].second;
  }
};

}  // namespace

// Euclidean sum with all weights 1.0, O(n) per halving line met (the rotating line of
// Erdos, Lovasz, Simmons and Straus 1973): about O(n^2) on scattered data. optima receives the
// pair with weight entry 0 = 1.0. Exactly two locations: the line through them, value 0.0.
// Coincident locations break the pivot rule; those sets take the sorted sweep with equal weights.
double facilities::L_l2_sum_M2() {
  std::vector<weighted_point> points = line_points_of(*this);
  for (weighted_point& p : points) p.w = 1.0;
  pair_choice best;
  if (points.size() == 2) {
    best = {0.0, 0, 1};
  } else if (has_coincident(points)) {
    best = best_halving_line(points);
  } else if (points.size() > 2) {
    windmill(points, best).run();
  }
  optima_ = pair_line_points(*this, best);
  return best.value;
}

// Euclidean sum, weight column 0, O(n^2 log n): each location in turn is the pivot of a line that
// turns through a half turn over the other locations sorted by angle, with the weights on both
// sides kept as running sums, so that each halving line through the pivot costs O(1). optima
// receives the pair as L_l2_sum_M3 does; no two distinct locations: value 1e50, no line.
double facilities::L_l2_sum_M2logM() {
  const pair_choice best = best_halving_line(line_points_of(*this));
  optima_ = pair_line_points(*this, best);
  return best.value;
}

}  // namespace mero
