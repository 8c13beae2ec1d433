// The restricted lp median: a local walk along the boundary of one forbidden polygon or
// rectangle, each edge minimised by a one-dimensional golden-section search.

#include <cmath>
#include <optional>
#include <utility>
#include <vector>

#include "kernel/reporters.h"
#include "model/facilities.h"
#include "restriction/restriction.h"
#include "restriction/restriction_messages.h"

namespace mero {

namespace {

// Edges shorter than this in x count as vertical, shorter in y as horizontal.
constexpr double axis_tolerance = 1e-7;
// The step of the numerical derivatives at the ends of an edge.
constexpr double derivative_step = 1e-7;
constexpr double golden_tolerance = 0.00001;
constexpr double golden_ratio = 1.618034;

struct edge_minimum {
  double x, y, value;
};

// The objective along the line of one edge, parametrised by x (by y for a vertical edge).
class edge_function {
 public:
  edge_function(const facilities& problem, int p, const point& from, const point& to)
      : problem_(problem),
        p_(p),
        from_(from),
        to_(to),
        vertical_(std::fabs(from.xcoord() - to.xcoord()) < axis_tolerance),
        horizontal_(std::fabs(from.ycoord() - to.ycoord()) < axis_tolerance) {}

  // The parameter of an end of the edge.
  double start() const { return vertical_ ? from_.ycoord() : from_.xcoord(); }
  double end() const { return vertical_ ? to_.ycoord() : to_.xcoord(); }

  point at(double s) const {
    if (vertical_) return point(from_.xcoord(), s);
    if (horizontal_) return point(s, from_.ycoord());
    const double slope = (to_.ycoord() - from_.ycoord()) / (to_.xcoord() - from_.xcoord());
    return point(s, from_.ycoord() + (s - from_.xcoord()) * slope);
  }

  double operator()(double s) const {
    const point q = at(s);
    return problem_.objective(p_, location(2.0, 1.0, q.xcoord(), q.ycoord()), 0);
  }

 private:
  const facilities& problem_;
  int p_;
  point from_, to_;
  bool vertical_, horizontal_;
};

// Expands [a, b] by the golden ratio downhill until the middle point is the lowest of three.
void bracket(const edge_function& f, double& a, double& b, double& c) {
  double fa = f(a), fb = f(b);
  if (fb > fa) {
    std::swap(a, b);
    std::swap(fa, fb);
  }
  c = b + golden_ratio * (b - a);
  double fc = f(c);
  for (int step = 0; step < 500 && fc < fb; ++step) {
    a = b;
    b = c;
    fb = fc;
    c = b + golden_ratio * (b - a);
    fc = f(c);
  }
}

// Golden-section search of the bracket a < b < c (or c < b < a), to a relative tolerance.
double golden_section(const edge_function& f, double a, double b, double c) {
  const double r = golden_ratio - 1.0, q = 1.0 - r;
  double x0 = a, x3 = c, x1, x2;
  if (std::fabs(c - b) > std::fabs(b - a)) {
    x1 = b;
    x2 = b + q * (c - b);
  } else {
    x2 = b;
    x1 = b - q * (b - a);
  }
  double f1 = f(x1), f2 = f(x2);
  for (int step = 0; step < 1000; ++step) {
    if (!(std::fabs(x3 - x0) > golden_tolerance * (std::fabs(x1) + std::fabs(x2)) + 1e-300)) break;
    if (f2 < f1) {
      x0 = x1;
      x1 = x2;
      x2 = r * x1 + q * x3;
      f1 = f2;
      f2 = f(x2);
    } else {
      x3 = x2;
      x2 = x1;
      x1 = r * x2 + q * x0;
      f2 = f1;
      f1 = f(x1);
    }
  }
  return f1 < f2 ? x1 : x2;
}

// The minimum of the objective on the edge from -> to. The numerical derivatives at the ends,
// in the direction of the walk, decide whether an end is the minimum; otherwise the line's
// minimum lies inside the edge and the golden-section search finds it. The search is started
// from five brackets and the last result is taken.
edge_minimum minimise_on_edge(const facilities& problem, int p, const point& from,
                              const point& to) {
  const edge_function f(problem, p, from, to);
  const double s0 = f.start(), s1 = f.end();
  const double d = s1 - s0;
  auto at = [&](double s) {
    const point q = f.at(s);
    return edge_minimum{q.xcoord(), q.ycoord(), f(s)};
  };
  if (d == 0.0) return at(s0);
  const double h = derivative_step;
  if ((f(s0 + h * d) - f(s0)) / h >= 0.0) return at(s0);
  if ((f(s1 - h * d) - f(s1)) / -h <= 0.0) return at(s1);
  double found = s0;
  for (int k = 1; k <= 5; ++k) {
    double a = k, b = k + 1.0, c = 0.0;
    bracket(f, a, b, c);
    found = golden_section(f, a, b, c);
  }
  return at(found);
}

// The edge (i, i + 1) nearest to p: the foot on its line counts when it falls in the edge's
// bounding box, else the nearer end. The first edge of least distance wins.
std::size_t nearest_edge(const std::vector<point>& v, const point& p) {
  std::size_t best_edge = 0;
  double best = 1e50;
  for (std::size_t i = 0; i < v.size(); ++i) {
    const point& a = v[i];
    const point& b = v[(i + 1) % v.size()];
    const point t = line(a, b).projection(p);
    const bool in_box = std::min(a.xcoord(), b.xcoord()) <= t.xcoord() &&
                        t.xcoord() <= std::max(a.xcoord(), b.xcoord()) &&
                        std::min(a.ycoord(), b.ycoord()) <= t.ycoord() &&
                        t.ycoord() <= std::max(a.ycoord(), b.ycoord());
    const double d = in_box ? p.distance(t) : std::min(p.distance(a), p.distance(b));
    if (d < best) {
      best = d;
      best_edge = i;
    }
  }
  return best_edge;
}

// One pass: from the start edge on, edge after edge in ring order, while each edge's minimum is
// lower than the one before. The edges walked are appended to walked (as edge indices of v),
// their minima to minima.
void walk(const facilities& problem, int p, const std::vector<point>& v, std::size_t start,
          std::vector<std::size_t>& walked, std::vector<edge_minimum>& minima) {
  const std::size_t n = v.size();
  std::size_t e = start;
  double previous = 0.0;
  for (std::size_t step = 0; step < n; ++step) {
    const edge_minimum m = minimise_on_edge(problem, p, v[e], v[(e + 1) % n]);
    if (step > 0 && !(m.value < previous)) break;
    walked.push_back(e);
    minima.push_back(m);
    previous = m.value;
    e = (e + 1) % n;
  }
}

}  // namespace

// Weighted lp median outside one forbidden polygon or rectangle: the unrestricted lp median
// (Weiszfeld-type iteration) if no restriction contains it, else a descent along the boundary
// in both directions from the edge nearest to it, minimising each edge by golden section.
// Local: exact when the objective along the boundary has one minimum. O(n e) evaluations per
// edge walked. optima: one point, weight 0 = 0. A circle ends the run with 1405.
double facilities::in_lp_sum(const restriction_list& restrictions, int p, double eps,
                             double smoothing, int max_iterations) {
  head_of(restrictions);
  facilities copy = *this;
  const double z = copy.lp_sum(p, eps, smoothing, max_iterations, 0, true);
  optima_ = copy.optima();
  const location start = optima_.front();
  const restriction* hit = first_containing(restrictions, start);
  if (!hit) return z;
  const std::vector<point> v = region_vertices(*hit);
  if (v.size() < 3) report_error(restriction_messages::not_convex_polygon);
  const std::size_t n = v.size();
  const std::size_t first_edge = nearest_edge(v, point(start));

  // Pass 1 walks the ring as numbered; pass 2 the reversed ring (vertex 0 kept first), in which
  // edge i of the ring is edge n - 1 - i.
  std::vector<point> reversed{v.front()};
  for (std::size_t j = n - 1; j >= 1; --j) reversed.push_back(v[j]);
  std::vector<std::size_t> walked_forward, walked_backward;
  std::vector<edge_minimum> minima_forward, minima_backward;
  walk(*this, p, v, first_edge, walked_forward, minima_forward);
  walk(*this, p, reversed, n - 1 - first_edge, walked_backward, minima_backward);

  // The best over both ranges; an edge that both passes walked counts once, from pass 1, and a
  // later edge replaces the best only when it is strictly lower.
  std::optional<edge_minimum> best;
  auto consider = [&](const edge_minimum& m) {
    if (!best || m.value < best->value) best = m;
  };
  for (const edge_minimum& m : minima_forward) consider(m);
  for (std::size_t k = 0; k < walked_backward.size(); ++k) {
    const std::size_t original = n - 1 - walked_backward[k];
    bool common = false;
    for (std::size_t e : walked_forward) common = common || e == original;
    if (!common) consider(minima_backward[k]);
  }
  optima_.clear();
  optima_.push_back(location(2.0, static_cast<double>(front().weight_dim()), best->x, best->y));
  return best->value;
}

}  // namespace mero
