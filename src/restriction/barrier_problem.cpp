#include "restriction/barrier_problem.h"

#include <algorithm>
#include <cmath>

#include "kernel/convex_hull.h"
#include "kernel/reporters.h"
#include "kernel/segment_crossings.h"
#include "model/facilities.h"
#include "restriction/restriction_messages.h"

namespace mero {

namespace msg = restriction_messages;

namespace {

// The points that span the barrier, and the margin that the enclosing polygon keeps around
// their bounding box: twice the radius for a circle, the larger side of the box otherwise.
std::vector<point> barrier_box(const barrier& b) {
  std::vector<point> span;
  double margin = 0.0;
  if (const auto* c = dynamic_cast<const circle_barrier*>(&b)) {
    span = {c->center.translate(-c->radius, -c->radius), c->center.translate(c->radius, c->radius)};
    margin = 2.0 * c->radius;
  } else if (const auto* l = dynamic_cast<const line_barrier*>(&b)) {
    span = {l->start, l->end};
  } else if (const auto* p = dynamic_cast<const polygon_barrier*>(&b)) {
    span = p->vertices;
  }
  double x0 = 1e300, y0 = 1e300, x1 = -1e300, y1 = -1e300;
  for (const point& q : span) {
    x0 = std::min(x0, q.xcoord()), x1 = std::max(x1, q.xcoord());
    y0 = std::min(y0, q.ycoord()), y1 = std::max(y1, q.ycoord());
  }
  if (span.empty()) return {};
  if (margin == 0.0) margin = std::max(x1 - x0, y1 - y0);
  x0 -= margin, y0 -= margin, x1 += margin, y1 += margin;
  return {{x0, y0}, {x0, y1}, {x1, y1}, {x1, y0}};
}

point left_tangent_of(const barrier& b, const point& a) {
  if (const auto* c = dynamic_cast<const circle_barrier*>(&b)) return c->left_tangent(a);
  if (const auto* l = dynamic_cast<const line_barrier*>(&b)) return l->left_tangent(a);
  return dynamic_cast<const polygon_barrier&>(b).left_tangent(a);
}

point right_tangent_of(const barrier& b, const point& a) {
  if (const auto* c = dynamic_cast<const circle_barrier*>(&b)) return c->right_tangent(a);
  if (const auto* l = dynamic_cast<const line_barrier*>(&b)) return l->right_tangent(a);
  return dynamic_cast<const polygon_barrier&>(b).right_tangent(a);
}

double diameter(const std::vector<point>& v) {
  double d = 0.0;
  for (const point& p : v)
    for (const point& q : v) d = std::max(d, p.distance(q));
  return d;
}

// 3^k as a double, cut to 32 bits (two's complement) before it becomes an integer.
std::int64_t cut_power_of_three(int k) {
  const double wrapped = std::fmod(std::pow(3.0, k), 4294967296.0);
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(wrapped));
}

}  // namespace

SBO::SBO(const std::vector<location>& locations, const barrier& b, settings s)
    : locations_(locations), b_(b), s_(s) {}

std::vector<int> SBO::signature(const point& p) const {
  std::vector<int> digits;
  for (const location& l : locations_) {
    const point a(l);
    if (b_.sees(a, p)) {
      digits.push_back(0);
      continue;
    }
    digits.push_back(orientation(a, p, b_.route(a, p).via) < 0 ? -1 : 1);
  }
  return digits;
}

std::int64_t SBO::cell_code(const point& p) const {
  const std::vector<int> digits = signature(p);
  const int n = static_cast<int>(digits.size());
  std::int64_t code = 0;
  for (int i = 0; i < n; ++i)
    code += (digits[i] == -1 ? 2 : digits[i]) * cut_power_of_three(n - 1 - i);
  return code;
}

// The enclosing polygon is the hull of the locations, grown by the widened bounding box of the
// barrier when a hull edge meets the barrier. The rays have length twice the diameter of the
// enclosing polygon, so that they leave it from any point inside. A ray runs from the tangent
// point t on, away from the location a (along t - a): that is where a's sight of the point is cut
// off and its route changes, so it bounds cells. Turned back through a, it would cross only points
// that a sees directly on both sides.
std::vector<segment> SBO::cpt_shdw_segs() const {
  std::vector<point> points;
  for (const location& l : locations_) points.emplace_back(l);
  std::vector<point> hull = convex_hull(points);
  bool sticks_out = false;
  for (std::size_t k = 0; k < hull.size() && !sticks_out; ++k)
    sticks_out = !b_.hit_segment(segment(hull[k], hull[(k + 1) % hull.size()])).empty();
  if (sticks_out) {
    std::vector<point> grown = barrier_box(b_);
    grown.insert(grown.end(), hull.begin(), hull.end());
    hull = convex_hull(grown);
  }
  const double reach = 2.0 * diameter(hull);
  std::vector<segment> shadows;
  for (const location& l : locations_) {
    const point a(l);
    for (const point& t : {left_tangent_of(b_, a), right_tangent_of(b_, a)}) {
      const double length = a.distance(t);
      if (length == 0.0) report_error(msg::shadow_without_cut);
      const point far = t.translate((t.xcoord() - a.xcoord()) / length * reach,
                                    (t.ycoord() - a.ycoord()) / length * reach);
      const segment ray(t, far);
      bool found = false;
      point nearest;
      for (std::size_t k = 0; k < hull.size(); ++k) {
        point q;
        if (!ray.intersection(segment(hull[k], hull[(k + 1) % hull.size()]), q)) continue;
        if (!std::isfinite(q.xcoord()) || !std::isfinite(q.ycoord())) continue;
        if (!found || t.distance(q) < t.distance(nearest)) nearest = q;
        found = true;
      }
      if (!found) report_error(msg::shadow_without_cut);
      shadows.emplace_back(t, nearest);
    }
  }
  return shadows;
}

bool SBO::pattern_search(const point& start, point& result) {
  std::vector<point> path;
  point last = start, x = start;
  double h = s_.step;
  bool finished = false;
  // The halving rule ends every run of failures; 10000 entries bound a run of successes.
  while (path.size() < 10000) {
    bool ran_into_visited = false;
    for (int axis = 0; axis < 2 && !ran_into_visited; ++axis) {
      const point plus = axis == 0 ? x.translate(h, 0) : x.translate(0, h);
      const point minus = axis == 0 ? x.translate(-h, 0) : x.translate(0, -h);
      const double here = f(x);
      if (f(plus) < here)
        x = plus;
      else if (f(minus) < here)
        x = minus;
      ran_into_visited = visited_.count(cell_code(x)) > 0;
    }
    if (ran_into_visited) break;
    if (f(x) < f(last)) {
      const point pattern(x.xcoord() + s_.accel * (x.xcoord() - last.xcoord()),
                          x.ycoord() + s_.accel * (x.ycoord() - last.ycoord()));
      path.push_back(x);
      last = x;
      x = pattern;
      continue;
    }
    path.push_back(last);
    if (h <= s_.eps) {
      finished = true;
      break;
    }
    h *= 0.5;
    x = last;
  }
  if (path.size() >= 10000) finished = true;
  for (const point& q : path) visited_.insert(cell_code(q));
  result = last;
  return finished;
}

// Hooke and Jeeves 1961 in each cell reached from the best candidates; O(c log c) for c
// candidates plus the searches, each point costing one route per location.
void SBO::solve() {
  facilities free;
  free.insert(free.end(), locations_.begin(), locations_.end());
  free_value_ = free.l2_sum(0, 0.001, true);
  free_opt_ = point(free.optima_view().front());
  if (!b_.inside(free_opt_) && cell_code(free_opt_) == 0) {
    opt_ = free_opt_;
    value_ = free_value_;
    computed_ = true;
    return;
  }
  std::vector<point> points = crossing_points(segment_crossings(cpt_shdw_segs()));
  if (const auto* p = dynamic_cast<const polygon_barrier*>(&b_))
    for (const point& v : p->vertices)
      if (std::find(points.begin(), points.end(), v) == points.end()) points.push_back(v);
  struct candidate {
    double gap;
    point where;
  };
  std::vector<candidate> candidates;
  for (const point& q : points) candidates.push_back({f(q) - free_value_, q});
  if (s_.prune) {
    std::stable_sort(candidates.begin(), candidates.end(),
                     [](const candidate& a, const candidate& b) { return a.gap < b.gap; });
    candidates.resize(static_cast<std::size_t>(s_.fraction * candidates.size()));
  }
  visited_.clear();
  opt_ = point(0, 0);
  value_ = 10000000000.0;
  for (const candidate& c : candidates) {
    const point& q = c.where;
    const double here = f(q);
    const point neighbours[] = {q.translate(s_.step, 0), q.translate(-s_.step, 0),
                                q.translate(0, s_.step), q.translate(0, -s_.step)};
    const point* start = nullptr;
    for (const point& n : neighbours)
      if (f(n) < here) {
        start = &n;
        break;
      }
    if (start == nullptr || visited_.count(cell_code(*start)) > 0) continue;
    point result;
    if (!pattern_search(*start, result)) continue;
    visited_.insert(cell_code(*start));
    visited_.insert(cell_code(result));
    const double v = f(result);
    if (v < value_) {
      value_ = v;
      opt_ = result;
    }
  }
  computed_ = true;
}

// The first restriction is the barrier; forbidden regions are turned into the barrier of the
// same figure. More than two restrictions: a warning; none: a warning, then the list error.
double facilities::barr_l2_sum(const restriction_list& restrictions, bool prune, double fraction,
                               double accel, double step, double eps) {
  if (restrictions.size() > 2) report_message(msg::one_barrier_only, true);
  if (restrictions.empty()) report_message(msg::no_barrier_given, true);
  const restriction& head = head_of(restrictions);
  std::unique_ptr<barrier> converted;
  const barrier* b = dynamic_cast<const barrier*>(&head);
  if (b == nullptr) {
    if (const auto* c = dynamic_cast<const restr_circle*>(&head))
      converted = std::make_unique<circle_barrier>(c->center, c->radius);
    else
      converted = std::make_unique<polygon_barrier>(region_vertices(head));
    b = converted.get();
  }
  for (const location& l : *this)
    if (b->inside(l)) report_error(msg::location_in_barrier);
  SBO solver(*this, *b, {prune, fraction, accel, step, eps});
  solver.solve();
  const point p = solver.solution();
  optima_ = {location(2.0, 1.0, p.xcoord(), p.ycoord(), 0.0)};
  return solver.solution_value();
}

}  // namespace mero
