#include "viewer/graph_viewer.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "kernel/window/svg_window.h"
#include "kernel/window/tk_window.h"
#include "viewer/graph_results.h"
#include "viewer/planar_viewer.h"
#include "viewer/printed.h"
#include "viewer/result_panels.h"
#include "viewer/viewer_messages.h"

namespace mero {

namespace vm = viewer_messages;

namespace {

void draw_mark(window& w, point p, double half) {
  const double x = p.xcoord(), y = p.ycoord();
  w.draw_filled_polygon({point(x - half, y - half), point(x + half, y - half),
                         point(x + half, y + half), point(x - half, y + half)});
}

point along(point a, point b, double t) {
  return point((1 - t) * a.xcoord() + t * b.xcoord(), (1 - t) * a.ycoord() + t * b.ycoord());
}

std::string node_label(const graph_scene& s, node v, int number,
                       std::list<std::string>::const_iterator name, bool weights) {
  std::string text;
  if (weights) {
    for (double x : s.graph->inf(v).weights) {
      if (!text.empty()) text += ' ';
      text += printed(vm::graph_weight, x);
    }
    return text;
  }
  if (name != s.locations->names.end()) text = *name;
  return text.empty() ? std::to_string(number + 1) : text;
}

void draw_nodes(window& w, const graph_scene& s, const std::vector<point>& at, double half,
                bool weights) {
  w.set_color(color::blue);
  const bool named = s.locations->names.size() == at.size();
  auto name = named ? s.locations->names.begin() : s.locations->names.end();
  int number = 0;
  for (node v = s.graph->first_node(); v != nullptr; v = graph::succ_node(v), ++number) {
    const point p = at[static_cast<std::size_t>(number)];
    draw_mark(w, p, half);
    w.draw_text(p.xcoord() + 1.5 * half, p.ycoord() - 1.5 * half,
                node_label(s, v, number, name, weights));
    if (named) ++name;
  }
}

void draw_edges(window& w, const graph_scene& s, const std::vector<point>& at, bool weights) {
  w.set_color(color::black);
  std::vector<int> number(static_cast<std::size_t>(s.graph->node_index_bound()), 0);
  int k = 0;
  for (node v = s.graph->first_node(); v != nullptr; v = graph::succ_node(v))
    number[static_cast<std::size_t>(graph::index(v))] = k++;
  for (edge e = s.graph->first_edge(); e != nullptr; e = graph::succ_edge(e)) {
    const point p = at[static_cast<std::size_t>(number[graph::index(graph::source(e))])];
    const point q = at[static_cast<std::size_t>(number[graph::index(graph::target(e))])];
    w.draw_segment(p.xcoord(), p.ycoord(), q.xcoord(), q.ycoord());
    if (weights) {
      const point m = along(p, q, 0.5);
      w.draw_ctext(m.xcoord(), m.ycoord(), printed(vm::graph_weight, s.graph->inf(e)));
    }
  }
}

bool known(const std::vector<point>& at, int u, int v) {
  return u >= 0 && v >= 0 && static_cast<std::size_t>(u) < at.size() &&
         static_cast<std::size_t>(v) < at.size();
}

// A stretch of an edge in the colour of optima: a disc for one point, a thick line otherwise.
void draw_stretch(window& w, point a, point b, double from, double to, double half, int width) {
  if (from == to) {
    const point p = along(a, b, from);
    w.draw_disc(p.xcoord(), p.ycoord(), half);
    return;
  }
  const int old = w.set_line_width(width);
  const point p = along(a, b, from), q = along(a, b, to);
  w.draw_segment(p.xcoord(), p.ycoord(), q.xcoord(), q.ycoord());
  w.set_line_width(old);
}

void draw_optima(window& w, const graph_scene& s, const std::vector<point>& at, double half) {
  w.set_color(color::red);
  if (s.pareto) {
    for (const pareto_piece& p : s.pareto->pieces) {
      if (!known(at, p.first, p.second)) continue;
      const point a = at[static_cast<std::size_t>(p.first)];
      if (p.first == p.second)
        draw_mark(w, a, 1.5 * half);
      else
        draw_stretch(w, a, at[static_cast<std::size_t>(p.second)], p.from, p.to, half, 5);
    }
    return;
  }
  for (const graph_point& o : s.graph->optima) {
    if (!known(at, o.first, o.second)) continue;
    const point a = at[static_cast<std::size_t>(o.first)];
    const point b = at[static_cast<std::size_t>(o.second)];
    if (o.first == o.second)
      draw_mark(w, a, 1.5 * half);
    else if (o.position == 0.0)
      draw_stretch(w, a, b, 0.0, 1.0, half, 3);
    else
      draw_stretch(w, a, b, o.position, o.position, half, 3);
  }
}

struct graph_viewer_state {
  const graph_scene* scene;
  std::vector<point> positions;
  graph_view_flags flags;
};

// The event loop that both viewers share; they differ in the title and the result text.
void run_graph_viewer(const graph_scene& scene, const std::string& title,
                      const std::vector<std::string>& result_lines,
                      const std::vector<point>& positions) {
  graph_viewer_state s{&scene, positions, {}};
  tk_window w(viewer_width, viewer_height, title);
  const int save = w.button(vm::save_results);
  const int view = w.button(vm::view_results);
  const int nodes = w.button(vm::show_node_weights);
  const int edges = w.button(vm::show_edge_weights);
  w.button(vm::refresh);
  const int close = w.button(vm::close);
  w.set_close_value(close);
  w.set_redraw([&s](window& win) { draw_result_graph(win, *s.scene, s.positions, s.flags); });
  w.display();
  draw_result_graph(w, scene, s.positions, s.flags);
  for (int event = w.read_mouse(); event != close; event = w.read_mouse()) {
    if (event == save)
      save_results_panel(w, vm::default_save_file, vm::cancel,
                         [&scene](std::ostream& out) { write_graph_results(out, scene); });
    else if (event == view)
      show_lines(w, vm::results_panel, result_lines, vm::ok);
    else if (event == nodes)
      s.flags.node_weights = !s.flags.node_weights;
    else if (event == edges)
      s.flags.edge_weights = !s.flags.edge_weights;
    w.clear();
    draw_result_graph(w, scene, s.positions, s.flags);
  }
  w.close();
}

}  // namespace

graph_frame graph_frame_of(const std::vector<point>& positions, int width, int height) {
  double bx0 = 0.0, bx1 = 0.0, by0 = 0.0, by1 = 0.0;
  if (!positions.empty()) {
    bx0 = bx1 = positions.front().xcoord();
    by0 = by1 = positions.front().ycoord();
  }
  for (const point& p : positions) {
    bx0 = std::min(bx0, p.xcoord());
    bx1 = std::max(bx1, p.xcoord());
    by0 = std::min(by0, p.ycoord());
    by1 = std::max(by1, p.ycoord());
  }
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

void draw_result_graph(window& w, const graph_scene& s, const std::vector<point>& positions,
                       graph_view_flags flags) {
  const graph_frame f = graph_frame_of(positions, w.width(), w.height());
  w.init(f.xmin, f.xmax, f.ymin);
  double half = 0.02 * f.span;
  // A graph laid out by the viewer fills a disc more or less evenly, about span / sqrt(n) per
  // node; its marks stay within a quarter of that, and a large one gets small labels, so that a
  // graph of hundreds of nodes can still be read.
  const bool laid_out = !locations_place_nodes(s);
  if (laid_out && !positions.empty())
    half = std::min(half, 0.25 * f.span / std::sqrt(static_cast<double>(positions.size())));
  const text_font old_font =
      w.set_font({"Helvetica", laid_out && positions.size() > 100 ? 5 : 10, false});
  if (positions.size() == static_cast<std::size_t>(s.graph->number_of_nodes())) {
    draw_edges(w, s, positions, flags.edge_weights);
    draw_nodes(w, s, positions, half, flags.node_weights);
    draw_optima(w, s, positions, half);
  }
  w.set_font(old_font);
  // The legend at the top: a mark in the colour of optima, the label and "=Opt".
  half = 0.02 * f.span;
  const double lx = f.xmin + 0.05 * f.span, ly = w.ymax() - 0.05 * f.span;
  w.set_color(color::red);
  draw_mark(w, point(lx, ly), half);
  w.set_color(color::black);
  w.draw_text(lx + 2 * half, ly + half, s.label + vm::legend_text);
}

void view_graph_result(const graph_scene& scene) {
  if (!window_display_available()) return;
  const std::vector<point> positions = node_positions(scene);
  run_graph_viewer(scene, vm::graph_title, graph_result_lines(scene, positions), positions);
}

void view_pareto_result(const graph_scene& scene) {
  if (!window_display_available()) return;
  run_graph_viewer(scene, vm::pareto_title, pareto_result_lines(scene), node_positions(scene));
}

bool write_graph_picture(const graph_scene& scene, const std::string& path) {
  svg_window w(viewer_width, viewer_height, scene.pareto ? vm::pareto_title : vm::graph_title);
  draw_result_graph(w, scene, node_positions(scene));
  return w.save(path);
}

}  // namespace mero
