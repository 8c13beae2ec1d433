#include "viewer/graph_viewer.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "kernel/window/svg_window.h"
#include "viewer/planar_viewer.h"

namespace mero {

namespace {

inline constexpr const char* graph_title = "MERO VERSION 2.0   View Graphics";
inline constexpr const char* legend_text = "=Opt";

point location_of(const graph_scene& s, int node_number) {
  const location& l = *std::next(s.locations->begin(), node_number);
  return point(l.coordinate(0), l.coordinate(1));
}

void draw_mark(window& w, point p, double half) {
  const double x = p.xcoord(), y = p.ycoord();
  w.draw_filled_polygon({point(x - half, y - half), point(x + half, y - half),
                         point(x + half, y + half), point(x - half, y + half)});
}

}  // namespace

graph_frame graph_frame_of(const facilities& locations, int width, int height) {
  const double bx0 = locations.coordinate_min(0), bx1 = locations.coordinate_max(0);
  const double by0 = locations.coordinate_min(1), by1 = locations.coordinate_max(1);
  double extent = std::max(bx1 - bx0, by1 - by0);
  if (!(extent > 0.0)) extent = 1.0;
  const double margin = extent / 5;
  double x0 = bx0 - margin, x1 = bx1 + margin;
  const double y0 = by0 - margin;
  const double top = by1 + margin + 0.25 * (by1 + margin - y0);
  const double needed = (top - y0) * width / height;
  if (x1 - x0 < needed) {
    const double more = (needed - (x1 - x0)) / 2;
    x0 -= more;
    x1 += more;
  }
  return {x0, x1, y0, x1 - x0};
}

void draw_result_graph(window& w, const graph_scene& s) {
  const graph_frame f = graph_frame_of(*s.locations, w.width(), w.height());
  w.init(f.xmin, f.xmax, f.ymin);
  const double half = 0.02 * f.span;
  const location_graph& g = *s.graph;
  const int count = std::min<int>(g.number_of_nodes(), static_cast<int>(s.locations->size()));
  w.set_color(color::black);
  for (edge e : g.all_edges()) {
    const int a = location_graph::index(location_graph::source(e));
    const int b = location_graph::index(location_graph::target(e));
    if (a >= count || b >= count) continue;
    const point p = location_of(s, a), q = location_of(s, b);
    w.draw_segment(p.xcoord(), p.ycoord(), q.xcoord(), q.ycoord());
  }
  w.set_color(color::blue);
  auto name = s.locations->names.begin();
  for (int v = 0; v < count; ++v) {
    const point p = location_of(s, v);
    draw_mark(w, p, half);
    std::string text = name != s.locations->names.end() ? *name : std::string();
    if (text.empty()) text = std::to_string(v + 1);
    w.draw_text(p.xcoord() + 1.5 * half, p.ycoord() - 1.5 * half, text);
    if (name != s.locations->names.end()) ++name;
  }
  w.set_color(color::red);
  for (const graph_point& o : g.optima) {
    if (o.first < 0 || o.second < 0 || o.first >= count || o.second >= count) continue;
    const point a = location_of(s, o.first), b = location_of(s, o.second);
    if (o.first == o.second) {
      draw_mark(w, a, 1.5 * half);
    } else if (o.position == 0.0) {
      const int old = w.set_line_width(3);
      w.draw_segment(a.xcoord(), a.ycoord(), b.xcoord(), b.ycoord());
      w.set_line_width(old);
    } else {
      const double t = o.position;
      w.draw_disc((1 - t) * a.xcoord() + t * b.xcoord(), (1 - t) * a.ycoord() + t * b.ycoord(),
                  half);
    }
  }
  // The legend at the top: a mark in the colour of optima, the label and "=Opt".
  const double lx = f.xmin + 0.05 * f.span, ly = w.ymax() - 0.05 * f.span;
  draw_mark(w, point(lx, ly), half);
  w.set_color(color::black);
  w.draw_text(lx + 2 * half, ly + half, s.label + legend_text);
}

bool write_graph_picture(const graph_scene& scene, const std::string& path) {
  svg_window w(viewer_width, viewer_height, graph_title);
  draw_result_graph(w, scene);
  return w.save(path);
}

}  // namespace mero
