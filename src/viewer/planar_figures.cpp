#include "viewer/planar_figures.h"

#include <algorithm>
#include <cmath>

#include "restriction/restriction.h"
#include "viewer/viewer_messages.h"

namespace mero {

namespace vm = viewer_messages;

figure_outline outline_of(const restriction& r) {
  figure_outline o;
  if (const auto* c = dynamic_cast<const restr_circle*>(&r)) {
    o.what = figure_outline::form::circle;
    o.center = c->center;
    o.radius = c->radius;
  } else if (const auto* cb = dynamic_cast<const circle_barrier*>(&r)) {
    o.what = figure_outline::form::circle;
    o.center = cb->center;
    o.radius = cb->radius;
  } else if (const auto* lb = dynamic_cast<const line_barrier*>(&r)) {
    o.what = figure_outline::form::segment;
    o.vertices = {lb->start, lb->end};
  } else if (const auto* pb = dynamic_cast<const polygon_barrier*>(&r)) {
    o.vertices = pb->vertices;
  } else {
    o.vertices = region_vertices(r);
  }
  return o;
}

std::optional<figure_box> restrictions_box(const restriction_list& restrictions) {
  std::optional<figure_box> box;
  auto take = [&box](double x0, double x1, double y0, double y1) {
    if (!box) {
      box = figure_box{x0, x1, y0, y1};
      return;
    }
    box->xmin = std::min(box->xmin, x0);
    box->xmax = std::max(box->xmax, x1);
    box->ymin = std::min(box->ymin, y0);
    box->ymax = std::max(box->ymax, y1);
  };
  for (const auto& r : restrictions) {
    const figure_outline o = outline_of(*r);
    if (o.what == figure_outline::form::circle) {
      take(o.center.xcoord() - o.radius, o.center.xcoord() + o.radius, o.center.ycoord() - o.radius,
           o.center.ycoord() + o.radius);
      continue;
    }
    for (const point& p : o.vertices) take(p.xcoord(), p.xcoord(), p.ycoord(), p.ycoord());
  }
  return box;
}

namespace {

// Where the figure's text stands: the centre of a circle, the mean of the corners otherwise.
point middle_of(const figure_outline& o) {
  if (o.what == figure_outline::form::circle || o.vertices.empty()) return o.center;
  double x = 0.0, y = 0.0;
  for (const point& p : o.vertices) {
    x += p.xcoord();
    y += p.ycoord();
  }
  const double n = static_cast<double>(o.vertices.size());
  return point(x / n, y / n);
}

void draw_outline(window& w, const figure_outline& o) {
  switch (o.what) {
    case figure_outline::form::circle:
      w.draw_circle(o.center.xcoord(), o.center.ycoord(), o.radius);
      return;
    case figure_outline::form::segment:
      w.draw_segment(o.vertices[0].xcoord(), o.vertices[0].ycoord(), o.vertices[1].xcoord(),
                     o.vertices[1].ycoord());
      return;
    case figure_outline::form::polygon:
      w.draw_polygon(o.vertices);
      return;
  }
}

}  // namespace

void draw_restrictions(window& w, const restriction_list& restrictions, bool first_is_barrier) {
  const text_font old_font = w.set_font({"Helvetica", 8, false});
  bool first = true;
  for (const auto& r : restrictions) {
    const bool is_barrier = r->kind() == 2 || (first && first_is_barrier);
    first = false;
    const char* text = is_barrier                 ? vm::barrier_text
                       : r->is_forbidden_inside() ? vm::region_inside_text
                                                  : vm::region_outside_text;
    w.set_color(is_barrier                 ? barrier_color
                : r->is_forbidden_inside() ? region_inside_color
                                           : region_outside_color);
    const int old = w.set_line_width(is_barrier ? 3 : 2);
    const figure_outline o = outline_of(*r);
    draw_outline(w, o);
    w.set_line_width(old);
    const point m = middle_of(o);
    w.draw_ctext(m.xcoord(), m.ycoord(), text);
  }
  w.set_font(old_font);
}

void draw_unit_balls(window& w, const facilities& locations, const std::vector<polygauge>& gauges,
                     const std::vector<int>& gauge_numbers, double extent) {
  auto gauge_at = [&](std::size_t i) -> const polygauge* {
    if (i >= gauge_numbers.size()) return nullptr;
    const int g = gauge_numbers[i];
    return g >= 0 && static_cast<std::size_t>(g) < gauges.size() ? &gauges[g] : nullptr;
  };
  double longest = 0.0;
  for (std::size_t i = 0; i < locations.size(); ++i)
    if (const polygauge* g = gauge_at(i)) longest = std::max(longest, g->max_length());
  if (!(longest > 0.0)) return;
  const double factor = 0.1 * extent / longest;
  w.set_color(unit_ball_color);
  std::size_t i = 0;
  for (const location& l : locations) {
    if (const polygauge* g = gauge_at(i++)) {
      std::vector<point> ball;
      for (const point& e : g->extreme_points())
        ball.emplace_back(l.coordinate(0) + factor * e.xcoord(),
                          l.coordinate(1) + factor * e.ycoord());
      w.draw_polygon(ball);
    }
  }
}

}  // namespace mero
