#include "graphedit_app/editor_drawing.h"

#include <cmath>
#include <cstdio>
#include <limits>
#include <vector>

#include "kernel/message.h"

namespace mero {

color nearest_color(int rgb) {
  static const color all[] = {color::black,  color::white, color::red,    color::green,
                              color::blue,   color::yellow, color::violet, color::orange,
                              color::cyan,   color::brown, color::pink,   color::grey};
  int r = (rgb >> 16) & 255, g = (rgb >> 8) & 255, b = rgb & 255;
  color best = color::black;
  long best_distance = std::numeric_limits<long>::max();
  for (color c : all) {
    unsigned value = 0;
    std::sscanf(color_hex(c) + 1, "%x", &value);
    long dr = r - static_cast<int>((value >> 16) & 255), dg = g - static_cast<int>((value >> 8) & 255),
         db = b - static_cast<int>(value & 255);
    long d = dr * dr + dg * dg + db * db;
    if (d < best_distance) {
      best_distance = d;
      best = c;
    }
  }
  return best;
}

std::string node_label_text(const ge_graph& x, node v, int index) {
  const ge_node& a = x.g.inf(v);
  switch (a.label_type) {
    case label_kind::text:
      return a.label;
    case label_kind::data:
      return a.data;
    case label_kind::index:
      // As in the PostScript drawing: the user's format filled with the place from 1.
      return format_message(x.settings.node_index_format, {index});
  }
  return "";
}

namespace {

void arrow_head(window& w, point from, point to, double length) {
  double dx = to.xcoord() - from.xcoord(), dy = to.ycoord() - from.ycoord();
  double d = std::hypot(dx, dy);
  if (d == 0) return;
  dx /= d;
  dy /= d;
  point base(to.xcoord() - dx * length, to.ycoord() - dy * length);
  w.draw_filled_polygon({to, point(base.xcoord() - dy * length * 0.4, base.ycoord() + dx * length * 0.4),
                         point(base.xcoord() + dy * length * 0.4, base.ycoord() - dx * length * 0.4)});
}

// The point where the way from `from` to the centre of v meets v's border (an ellipse).
point on_border(const ge_node& v, point from) {
  double dx = from.xcoord() - v.position.xcoord(), dy = from.ycoord() - v.position.ycoord();
  double d = std::hypot(dx / std::max(v.radius1, 1e-9), dy / std::max(v.radius2, 1e-9));
  if (d <= 1) return v.position;
  return point(v.position.xcoord() + dx / d, v.position.ycoord() + dy / d);
}

}  // namespace

void draw_graph(window& w, const ge_graph& x, const drawing_marks& marks) {
  for (edge e = x.g.first_edge(); e != nullptr; e = graph::succ_edge(e)) {
    const ge_edge& a = x.g.inf(e);
    const ge_node& s = x.g.inf(graph::source(e));
    const ge_node& t = x.g.inf(graph::target(e));
    std::vector<point> way;
    way.emplace_back(s.position.xcoord() + a.source_anchor.xcoord(),
                     s.position.ycoord() + a.source_anchor.ycoord());
    way.insert(way.end(), a.bends.begin(), a.bends.end());
    way.emplace_back(t.position.xcoord() + a.target_anchor.xcoord(),
                     t.position.ycoord() + a.target_anchor.ycoord());
    if (graph::source(e) == graph::target(e)) {  // a loop: a small circle above the node
      w.set_color(marks.edges.count(e) ? color::red : nearest_color(a.color));
      w.draw_circle(s.position.xcoord(), s.position.ycoord() + s.radius2, s.radius2 * 0.7);
      continue;
    }
    way.front() = on_border(s, way[1]);
    way.back() = on_border(t, way[way.size() - 2]);
    w.set_color(marks.edges.count(e) ? color::red : nearest_color(a.color));
    int old = w.set_line_width(std::max(1, static_cast<int>(std::lround(a.width))));
    for (std::size_t k = 0; k + 1 < way.size(); ++k)
      w.draw_segment(way[k].xcoord(), way[k].ycoord(), way[k + 1].xcoord(), way[k + 1].ycoord());
    w.set_line_width(old);
    double head = std::max(s.radius1, t.radius1) * 0.6;
    if (x.settings.directed) {
      if (a.direction == edge_arrow::last || a.direction == edge_arrow::both)
        arrow_head(w, way[way.size() - 2], way.back(), head);
      if (a.direction == edge_arrow::first || a.direction == edge_arrow::both)
        arrow_head(w, way[1], way.front(), head);
    }
    if (!a.label.empty()) {
      const point& p = way[way.size() / 2 - (way.size() % 2 == 0 ? 1 : 0)];
      const point& q = way[way.size() / 2];
      w.set_color(nearest_color(a.label_color));
      w.draw_ctext((p.xcoord() + q.xcoord()) / 2, (p.ycoord() + q.ycoord()) / 2, a.label);
    }
  }
  int index = 1;
  for (node v = x.g.first_node(); v != nullptr; v = graph::succ_node(v), ++index) {
    const ge_node& a = x.g.inf(v);
    double px = a.position.xcoord(), py = a.position.ycoord();
    color fill = nearest_color(a.color);
    if (marks.nodes.count(v)) fill = color::red;
    if (v == marks.edge_start) fill = color::green;
    std::vector<point> box{point(px - a.radius1, py - a.radius2), point(px + a.radius1, py - a.radius2),
                           point(px + a.radius1, py + a.radius2), point(px - a.radius1, py + a.radius2)};
    w.set_color(fill);
    if (a.shape == node_shape::rectangle)
      w.draw_filled_polygon(box);
    else
      w.draw_disc(px, py, a.radius1);
    w.set_color(nearest_color(a.border_color));
    if (a.shape == node_shape::rectangle)
      w.draw_polygon(box);
    else
      w.draw_circle(px, py, a.radius1);
    w.set_color(nearest_color(a.label_color));
    std::string label = node_label_text(x, v, index);
    if (!label.empty()) w.draw_ctext(px, py, label);
  }
}

}  // namespace mero
