#include "viewer/discrete_viewer.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "kernel/window/svg_window.h"
#include "kernel/window/tk_window.h"
#include "viewer/planar_viewer.h"
#include "viewer/printed.h"
#include "viewer/result_panels.h"
#include "viewer/viewer_messages.h"

namespace mero {

namespace vm = viewer_messages;

namespace {

struct discrete_frame {
  double xmin, xmax, ymin;
  double extent;
};

discrete_frame discrete_frame_of(const discrete_problem& p, int width, int height) {
  bool any = false;
  double x0 = 0, x1 = 0, y0 = 0, y1 = 0;
  for (const auto* list : {&p.demand, &p.supply})
    for (const location& l : *list) {
      const double x = l.coordinate(0), y = l.coordinate(1);
      x0 = any ? std::min(x0, x) : x;
      x1 = any ? std::max(x1, x) : x;
      y0 = any ? std::min(y0, y) : y;
      y1 = any ? std::max(y1, y) : y;
      any = true;
    }
  double extent = std::max(x1 - x0, y1 - y0);
  if (!(extent > 0.0)) extent = 1.0;
  double left = x0 - 0.2 * extent, right = x1 + 0.2 * extent;
  const double bottom = y0 - 0.2 * extent, top = y1 + 0.45 * extent;
  const double needed = (top - bottom) * width / height;
  if (right - left < needed) {
    const double more = (needed - (right - left)) / 2;
    left -= more;
    right += more;
  }
  return {left, right, bottom, extent};
}

// A point with its name and, if wanted, its first weight.
void draw_site(window& w, const location& l, const std::string& name, bool show_weight,
               double extent) {
  const double x = l.coordinate(0), y = l.coordinate(1), off = 0.02 * extent;
  w.draw_text(x + off, y - off, name);
  if (show_weight && l.weight_dim() > 0)
    w.draw_text(x + off, y + 3 * off, printed(vm::discrete_number, l.weight(0)));
}

void draw_sites(window& w, const discrete_problem& p, discrete_view_flags flags, double extent) {
  const double r = 0.01 * extent;
  auto name = p.demand_names.begin();
  for (const location& l : p.demand) {
    w.set_color(color::blue);
    w.draw_disc(l.coordinate(0), l.coordinate(1), r);
    w.set_color(color::black);
    draw_site(w, l, name != p.demand_names.end() ? *name++ : "", flags.show_demand, extent);
  }
  if (p.supply_is_demand) return;
  name = p.supply_names.begin();
  for (const location& l : p.supply) {
    const double x = l.coordinate(0), y = l.coordinate(1);
    w.set_color(color::green);
    w.draw_filled_polygon({point(x - r, y - r), point(x + r, y - r), point(x + r, y + r),
                           point(x - r, y + r)});
    w.set_color(color::black);
    draw_site(w, l, name != p.supply_names.end() ? *name++ : "", flags.show_fix_costs, extent);
  }
}

// A line from each demand point to the supply point that serves it.
void draw_assignment(window& w, const discrete_problem& p) {
  w.set_color(color::grey);
  const std::vector<location> supply(p.supply.begin(), p.supply.end());
  int i = 0;
  for (auto d = p.demand.begin(); d != p.demand.end() && i < p.assignment.dim1(); ++d, ++i)
    for (int j = 0; j < p.assignment.dim2() && j < static_cast<int>(supply.size()); ++j)
      if (p.assignment(i, j) == 1.0)
        w.draw_segment(d->coordinate(0), d->coordinate(1), supply[j].coordinate(0),
                       supply[j].coordinate(1));
}

void draw_open(window& w, const discrete_problem& p, double extent) {
  w.set_color(color::red);
  for (const location& l : p.opt) {
    const double x = l.coordinate(0), y = l.coordinate(1);
    w.draw_circle(x, y, 0.025 * extent);
    w.draw_text(x + 0.02 * extent, y + 0.06 * extent, vm::legend_text);
  }
}

}  // namespace

void draw_discrete_result(window& w, const discrete_scene& scene, discrete_view_flags flags) {
  const discrete_problem& p = *scene.problem;
  const discrete_frame f = discrete_frame_of(p, w.width(), w.height());
  w.init(f.xmin, f.xmax, f.ymin);
  draw_assignment(w, p);
  draw_sites(w, p, flags, f.extent);
  draw_open(w, p, f.extent);
  w.set_color(color::black);
}

std::vector<std::string> discrete_result_lines(const discrete_scene& scene) {
  const discrete_problem& p = *scene.problem;
  std::vector<std::string> lines{printed(vm::discrete_header, vm::value_word, vm::optimum_word),
                                 printed(vm::discrete_value, scene.value)};
  for (const location& l : p.opt)
    lines.push_back(p.supply_is_demand
                        ? printed(vm::discrete_row_alone, l.coordinate(0), l.coordinate(1))
                        : printed(vm::discrete_row, l.coordinate(0), l.coordinate(1),
                                  l.weight_dim() > 0 ? l.weight(0) : 0.0));
  return lines;
}

std::vector<std::string> cost_matrix_lines(const discrete_problem& problem) {
  std::vector<std::string> lines;
  for (int i = 0; i < problem.cost.dim1(); ++i) {
    std::string line;
    for (int j = 0; j < problem.cost.dim2(); ++j)
      line += printed(vm::discrete_number, problem.cost(i, j));
    lines.push_back(line);
  }
  return lines;
}

void write_discrete_results(std::ostream& out, const discrete_scene& scene) {
  out << vm::results_begin << '\n' << vm::saved_value << scene.value << '\n';
  for (const location& l : scene.problem->opt) out << l << '\n';
  out << vm::results_end << '\n';
}

void view_discrete_result(const discrete_scene& scene) {
  if (!window_display_available()) return;
  discrete_view_flags flags;
  tk_window w(viewer_width, viewer_height, vm::discrete_title);
  const int save = w.button(vm::save_results);
  const int view = w.button(vm::view_results);
  const int costs = w.button(vm::view_cost_matrix);
  const int demand = w.button(vm::show_hide_demand);
  const int fix = w.button(vm::show_hide_fix_costs);
  w.button(vm::refresh);
  const int close = w.button(vm::close);
  w.set_close_value(close);
  w.set_redraw([&](window& win) { draw_discrete_result(win, scene, flags); });
  w.display();
  draw_discrete_result(w, scene, flags);
  for (int event = w.read_mouse(); event != close; event = w.read_mouse()) {
    if (event == save)
      save_results_panel(w, vm::default_save_file, vm::cancel_upper,
                         [&scene](std::ostream& out) { write_discrete_results(out, scene); });
    else if (event == view)
      show_lines(w, vm::results_panel, discrete_result_lines(scene), vm::ok);
    else if (event == costs)
      show_lines(w, vm::cost_panel, cost_matrix_lines(*scene.problem), vm::ok);
    else if (event == demand)
      flags.show_demand = !flags.show_demand;
    else if (event == fix)
      flags.show_fix_costs = !flags.show_fix_costs;
    w.clear();
    draw_discrete_result(w, scene, flags);
  }
  w.close();
}

bool write_discrete_picture(const discrete_scene& scene, const std::string& path) {
  svg_window w(viewer_width, viewer_height, vm::discrete_title);
  draw_discrete_result(w, scene);
  return w.save(path);
}

void load_discrete_example(const std::string& path, discrete_problem& problem) {
  std::ifstream in(path);
  if (!in) report_error(vm::example_unreadable);
  problem.read(in);
  if (!problem.supply.empty()) return;
  problem.supply_is_demand = true;
  problem.supply = problem.demand;
  problem.supply_names = problem.demand_names;
}

bool load_example_panel(const window& parent, discrete_problem& problem) {
  const std::optional<std::string> file = ask_file(parent, vm::load_panel, "", vm::cancel);
  if (file) load_discrete_example(*file, problem);
  return file.has_value();
}

}  // namespace mero
