#include "viewer/planar_viewer.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <memory>

#include "kernel/convex_hull.h"
#include "kernel/window/svg_window.h"
#include "kernel/window/tk_window.h"
#include "model/location_file.h"
#include "viewer/gauge_editor.h"
#include "viewer/planar_figures.h"
#include "viewer/printed.h"
#include "viewer/viewer_messages.h"

namespace mero {

namespace vm = viewer_messages;

namespace {

// The weights of a location as the picture writes them: "%1.2lf", then ",%1.2lf" per column.
std::string weight_text(const location& l) {
  std::string text;
  for (int i = 0; i < l.weight_dim(); ++i)
    text += printed(i == 0 ? vm::first_weight : vm::further_weight, l.weight(i));
  return text;
}

void draw_axes(window& w, const planar_frame& f) {
  const double gap = 0.1 * f.extent;
  const double x0 = f.box_xmin - gap, x1 = f.box_xmax + gap;
  const double y0 = f.box_ymin - gap, y1 = f.box_ymax + gap;
  const double tick = 0.01 * f.extent;
  const text_font old = w.set_font({"Helvetica", 6, false});
  w.set_color(color::black);
  w.draw_segment(x0, y0, x1, y0);
  w.draw_segment(x0, y0, x0, y1);
  // 20 marks at steps of 0.05 of the drawn range, from the corner on.
  for (int i = 0; i < 20; ++i) {
    const double x = x0 + i * 0.05 * (x1 - x0);
    const double y = y0 + i * 0.05 * (y1 - y0);
    w.draw_segment(x, y0 - tick, x, y0 + tick);
    w.draw_ctext(x, y0 - 3 * tick, printed(vm::axis_label, x));
    w.draw_segment(x0 - tick, y, x0 + tick, y);
    w.draw_ctext(x0 - 5 * tick, y, printed(vm::axis_label, y));
  }
  w.set_font(old);
}

// The plane points of the locations of a list or of a facilities object.
template <class Locations>
std::vector<point> points_of(const Locations& list) {
  std::vector<point> points;
  for (const location& l : list) points.emplace_back(l.coordinate(0), l.coordinate(1));
  return points;
}

// The optima: lines through consecutive pairs for the line problems, otherwise a mark for each
// and the polygon of each run of neighbours that share their group number (weight 0).
void draw_results(window& w, const planar_slots& s, double radius) {
  const planar_scene& scene = *s.scene;
  if (!scene.results) return;
  const std::list<location>& results = *scene.results;
  w.set_color(color::red);
  if (scene.algorithm >= 300 && scene.algorithm <= 399) {
    const int old = w.set_line_width(2);
    for (auto it = results.begin(); it != results.end() && std::next(it) != results.end();
         std::advance(it, 2)) {
      const location& a = *it;
      const location& b = *std::next(it);
      w.draw_line(a.coordinate(0), a.coordinate(1), b.coordinate(0), b.coordinate(1));
    }
    w.set_line_width(old);
    return;
  }
  for (auto it = results.begin(); it != results.end();) {
    auto end = std::next(it);
    while (end != results.end() && end->weight_dim() > 0 && it->weight_dim() > 0 &&
           end->weight(0) == it->weight(0))
      ++end;
    if (std::distance(it, end) > 1) {
      std::list<location> group(it, end);
      w.draw_polygon(points_of(group));
    }
    // Larger than a location's mark, so that an optimum on a location shows as a ring around it.
    for (; it != end; ++it) w.draw_disc(it->coordinate(0), it->coordinate(1), 2 * radius);
  }
}

void draw_locations(window& w, const planar_slots& s, double radius) {
  const facilities& problem = *s.scene->problem;
  w.set_color(color::blue);
  auto name = problem.names.begin();
  for (const location& l : problem) {
    const double x = l.coordinate(0), y = l.coordinate(1);
    w.draw_disc(x, y, radius);
    std::string text = name != problem.names.end() ? *name : std::string();
    if (s.show_weights) {
      if (!text.empty()) text += ' ';
      text += weight_text(l);
    }
    if (!text.empty()) w.draw_text(x + 1.5 * radius, y - 1.5 * radius, text);
    if (name != problem.names.end()) ++name;
  }
}

// The drawing routine, also the window's redraw handler.
void draw_all(window& w, const planar_slots& s) {
  const planar_scene& scene = *s.scene;
  const planar_frame f = planar_frame_of(*scene.problem, w.width(), w.height(), scene.restrictions);
  w.init(f.xmin, f.xmax, f.ymin);
  const double radius = 0.01 * f.extent;
  draw_axes(w, f);
  if (s.show_optima) draw_results(w, s, radius);
  draw_locations(w, s, radius);
  if (scene.gauges && scene.gauge_numbers)
    draw_unit_balls(w, *scene.problem, *scene.gauges, *scene.gauge_numbers, f.extent);
  if (scene.restrictions)
    draw_restrictions(w, *scene.restrictions, scene.algorithm == barrier_algorithm);
  if (s.viewer_hull) {
    w.set_color(color::green);
    w.draw_polygon(*s.viewer_hull);
  }
  if (s.viewer_situations && s.scene->situations) {
    w.set_color(color::violet);
    for (const location& l : *s.scene->situations)
      w.draw_disc(l.coordinate(0), l.coordinate(1), radius);
  }
  w.set_color(color::black);
}

planar_slots start_slots(const planar_scene& scene) {
  planar_slots s;
  s.scene = &scene;
  s.viewer_situations = scene.situations && !scene.situations->empty();
  return s;
}

void show_panel_text(const window& parent, const std::string& title,
                     const std::vector<std::string>& lines) {
  tk_window panel(0, 0, title);
  for (const std::string& line : lines) panel.text_item(line);
  panel.button(vm::ok);
  panel.display(parent);
  panel.open();
}

// "Save Results": the locations in the form of the location file, the classification and the
// result block as in the report.
void save_results(const window& parent, const planar_scene& scene) {
  std::string file;
  tk_window panel(0, 0, vm::save_panel);
  panel.string_item(vm::file_item, file);
  panel.button(vm::cancel, 0);
  const int ok = panel.button(vm::ok, 1);
  panel.display(parent);
  if (panel.open() != ok) return;
  std::ofstream out(file);
  if (!out) {
    show_panel_text(parent, vm::save_panel, {format_message(vm::cannot_open_save, {file})});
    return;
  }
  write_planar_results(out, scene);
  if (!out.flush()) report_error(vm::save_failed);
}

// "View Gauge": asks for the index of a gauge until it is valid or the user quits, then shows
// that gauge in the gauge editor's view; the viewer goes on when that is closed.
void choose_gauge(const window& parent, const std::vector<polygauge>& gauges) {
  const int highest = static_cast<int>(gauges.size()) - 1;
  std::string answer = "0";
  tk_window panel(0, 0, vm::gauge_panel);
  panel.text_item(vm::gauge_panel_line);
  panel.string_item(printed(vm::gauge_panel_range, highest), answer);
  panel.button(vm::quit, 0);
  const int ok = panel.button(vm::ok, 1);
  panel.display(parent);
  while (true) {
    const int pressed = panel.open();
    if (pressed != ok) return;
    char* end = nullptr;
    const long index = std::strtol(answer.c_str(), &end, 10);
    const bool whole = end != answer.c_str() && *end == '\0';
    if (whole && index >= 0 && index <= highest) {
      panel.close();
      view_gauge(gauges[static_cast<std::size_t>(index)]);
      return;
    }
  }
}

std::vector<std::string> result_lines(const planar_scene& scene) {
  std::vector<std::string> lines{printed(vm::results_header, vm::optimum_word, vm::value_word),
                                 vm::results_rule};
  bool first = true;
  for (const location& l : *scene.results) {
    lines.push_back(first ? printed(vm::first_row, l.coordinate(0), l.coordinate(1), scene.value)
                          : printed(vm::further_row, l.coordinate(0), l.coordinate(1)));
    first = false;
  }
  return lines;
}

}  // namespace

void write_planar_results(std::ostream& out, const planar_scene& scene) {
  write_locations(out, *scene.problem);
  out << "begin {classification}\n" << scene.label << "\nend {classification}\n";
  out << "begin {result}\n";
  location::WriteAsPolygonList(out, *scene.results);
  out << "end {result}\n";
}

std::string viewer_title(const std::string& label) { return std::string(vm::title_prefix) + label; }

planar_frame planar_frame_of(const facilities& locations, int width, int height,
                             const restriction_list* restrictions) {
  planar_frame f{};
  f.box_xmin = locations.coordinate_min(0);
  f.box_xmax = locations.coordinate_max(0);
  f.box_ymin = locations.coordinate_min(1);
  f.box_ymax = locations.coordinate_max(1);
  if (const std::optional<figure_box> figures =
          restrictions ? restrictions_box(*restrictions) : std::nullopt) {
    f.box_xmin = std::min(f.box_xmin, figures->xmin);
    f.box_xmax = std::max(f.box_xmax, figures->xmax);
    f.box_ymin = std::min(f.box_ymin, figures->ymin);
    f.box_ymax = std::max(f.box_ymax, figures->ymax);
  }
  f.extent = std::max(f.box_xmax - f.box_xmin, f.box_ymax - f.box_ymin);
  if (!(f.extent > 0.0)) f.extent = 1.0;
  const double margin = 0.2 * std::fabs(f.extent);
  double x0 = f.box_xmin - margin, x1 = f.box_xmax + margin;
  const double y0 = f.box_ymin - margin, y1 = f.box_ymax + margin;
  const double needed = (y1 - y0) * width / height;
  if (x1 - x0 < needed) {
    const double more = (needed - (x1 - x0)) / 2;
    x0 -= more;
    x1 += more;
  }
  const double further = 0.1 * (x1 - x0) / 2;
  f.xmin = x0 - further;
  f.xmax = x1 + further;
  f.ymin = y0;
  return f;
}

void draw_planar_result(window& w, const planar_slots& slots) { draw_all(w, slots); }

void view_planar_result(const planar_scene& scene) {
  if (!scene.problem || scene.problem->empty()) report_error(vm::no_location);
  planar_slots s = start_slots(scene);
  tk_window w(viewer_width, viewer_height, viewer_title(scene.label));
  w.button(vm::save_results, vm::save_number);
  w.button(vm::view_results, vm::view_number);
  w.button(vm::convex_hull, vm::hull_number);
  w.button(vm::show_hide_weights, vm::weights_number);
  const bool several_gauges = scene.gauges && scene.gauges->size() > 1;
  if (several_gauges) w.button(vm::view_gauge, vm::gauge_number);
  if (scene.situations && scene.situations->size() > 1)
    w.button(vm::crit_situation, vm::situation_number);
  w.button(vm::show_hide_optima, vm::optima_number);
  w.button(vm::refresh, vm::refresh_number);
  w.button(vm::close, vm::close_number);
  w.set_close_value(vm::close_number);
  w.set_redraw([&s](window& win) { draw_all(win, s); });
  w.display(viewer_left, viewer_top);
  draw_all(w, s);
  while (true) {
    const int event = w.read_mouse();
    if (event == vm::close_number) break;
    switch (event) {
      case vm::save_number:
        save_results(w, scene);
        break;
      case vm::view_number:
        show_panel_text(w, vm::results_panel, result_lines(scene));
        break;
      case vm::hull_number:
        if (scene.problem->size() > 2) {
          if (s.viewer_hull)
            s.viewer_hull.reset();
          else
            s.viewer_hull = convex_hull(points_of(*scene.problem));
        }
        break;
      case vm::weights_number:
        s.show_weights = !s.show_weights;
        break;
      case vm::gauge_number:
        if (several_gauges) choose_gauge(w, *scene.gauges);
        break;
      case vm::situation_number:
        s.viewer_situations = !s.viewer_situations;
        break;
      case vm::optima_number:
        s.show_optima = !s.show_optima;
        break;
      default:
        break;
    }
    w.clear();
    draw_all(w, s);
  }
  s.viewer_hull.reset();
  w.close();
}

bool write_planar_picture(const planar_scene& scene, const std::string& path) {
  if (!scene.problem || scene.problem->empty()) report_error(vm::no_location);
  svg_window w(viewer_width, viewer_height, viewer_title(scene.label));
  draw_all(w, start_slots(scene));
  return w.save(path);
}

}  // namespace mero
