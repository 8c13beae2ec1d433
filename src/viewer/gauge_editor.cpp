#include "viewer/gauge_editor.h"

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <initializer_list>
#include <iterator>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "gauge/gauge_editing.h"
#include "gauge/gauge_file.h"
#include "gauge/gauge_messages.h"
#include "kernel/window/tk_window.h"
#include "kernel/window/window_messages.h"
#include "kernel/window/windowed_faces.h"

namespace mero {

namespace gm = gauge_messages;

namespace {

constexpr int view_size = 400;
constexpr int create_size = 600;

// A message of the editor in the panel of the program's messages; the editor goes on after it.
void show_message(const window& parent, const std::string& text) {
  tk_window panel(0, 0, window_messages::message_title);
  add_message_items(panel, text);
  panel.display(parent);
  panel.open();
}

// The file panel: "file:" with a default name, "cancel" and "Confirm" (last, so that Return
// confirms). The name, or none when the user does not confirm.
std::optional<std::string> ask_file(const window& parent, const char* title,
                                    const char* default_name) {
  std::string name = default_name;
  tk_window panel(0, 0, title);
  panel.string_item(gm::file_item, name);
  panel.button(gm::cancel, 0);
  const int confirm = panel.button(gm::confirm, 1);
  panel.display(parent);
  if (panel.open() != confirm) return std::nullopt;
  return name;
}

// Asks for a file and writes into it with write; a file that cannot be opened is a message.
template <typename Writer>
void save_as(const window& parent, const char* title, const char* default_name, Writer write) {
  const std::optional<std::string> name = ask_file(parent, title, default_name);
  if (!name) return;
  std::ofstream out(*name);
  if (!out) {
    show_message(parent, format_message(gm::cannot_open_file, {*name}));
    return;
  }
  write(out);
}

void draw_axes(window& w, double low, double high) {
  w.set_color(color::grey);
  w.draw_segment(low, 0.0, high, 0.0);
  w.draw_segment(0.0, w.ymin(), 0.0, w.ymax());
}

// The gauge of the current points, or none after the message that says why they make none.
std::optional<polygauge> gauge_of_clicks(const window& parent, const std::vector<point>& clicks) {
  const std::vector<point> corners = gauge_corners(clicks);
  if (clicks.size() < 3 || corners.size() != clicks.size()) {
    show_message(parent, gm::not_convex_clicks);
    return std::nullopt;
  }
  // A hull around anything but the origin has rays more than pi apart or out of order.
  if (const message* fault = polygauge_fault(corners)) {
    show_message(parent, fault->text);
    return std::nullopt;
  }
  return polygauge(corners);
}

// Reads a number that fills the whole text.
std::optional<double> number_in(const std::string& text) {
  char* end = nullptr;
  const double value = std::strtod(text.c_str(), &end);
  if (end == text.c_str() || *end != '\0') return std::nullopt;
  return value;
}

// The panel "Initialize window:" until it gives winmin below winmax; none if the user leaves it.
std::optional<std::pair<double, double>> ask_bounds() {
  std::string winmin = "-2", winmax = "2";
  tk_window panel(0, 0, gm::init_panel);
  panel.string_item(gm::winmin_item, winmin);
  panel.string_item(gm::winmax_item, winmax);
  panel.button(gm::cancel, 0);
  const int confirm = panel.button(gm::confirm, 1);
  while (panel.open() == confirm) {
    const std::optional<double> low = number_in(winmin), high = number_in(winmax);
    if (low && high && std::isfinite(*low) && std::isfinite(*high) && *low < *high)
      return std::pair{*low, *high};
    show_message(panel, gm::bad_bounds);
  }
  return std::nullopt;
}

// The state of the window "Create a Gauge".
struct creation {
  double winmin, winmax;
  std::vector<point> points;
  std::vector<polygauge> pg_list;
  std::optional<polygauge> ball;  // set while the unit ball is shown
  bool symmetric = true;

  void draw(window& w) const {
    w.init(winmin, winmax, winmin);
    draw_axes(w, winmin, winmax);
    if (ball) {
      w.set_color(color::red);
      const int old = w.set_line_width(2);
      w.draw_polygon(ball->extreme_points());
      w.set_line_width(old);
    }
    w.set_color(color::blue);
    for (const point& p : points) w.draw_disc(p.xcoord(), p.ycoord(), 0.01 * (winmax - winmin));
    w.set_color(color::black);
  }

  void click(const point& p) {
    points.push_back(p);
    if (symmetric) points.emplace_back(-p.xcoord(), -p.ycoord());
  }
};

// The buttons of "Create a Gauge", numbered in their order.
enum create_button {
  make_gauge = 1,
  toggle_ball,
  clear_points,
  append_gauge,
  save_list,
  clear_list,
  toggle_symmetric,
  refresh_create,
  close_create
};

enum view_button { save_one = 1, load_one, create_one, refresh_view, close_view };

struct labelled_button {
  const char* label;
  int number;
};

// The loop of an editor window: the buttons in their order, the last of which closes the window
// as its frame does; after every other event act runs and the picture is drawn anew.
void run_window(window& w, std::initializer_list<labelled_button> buttons,
                const std::function<void(window&)>& draw, const std::function<void(int)>& act) {
  for (const labelled_button& b : buttons) w.button(b.label, b.number);
  const int close = std::data(buttons)[buttons.size() - 1].number;
  w.set_close_value(close);
  w.set_redraw(draw);
  w.display();
  draw(w);
  for (int event = w.read_mouse(); event != close; event = w.read_mouse()) {
    act(event);
    w.clear();
    draw(w);
  }
  w.close();
}

}  // namespace

void draw_gauge(window& w, const polygauge& gauge) {
  const gauge_frame f = gauge_frame_of(gauge);
  w.init(f.low, f.high, f.low);
  draw_axes(w, f.low, f.high);
  const std::vector<point> corners = gauge.extreme_points();
  w.set_color(color::blue);
  for (const point& e : corners) w.draw_segment(0.0, 0.0, e.xcoord(), e.ycoord());
  w.set_color(color::red);
  const int old = w.set_line_width(2);
  w.draw_polygon(corners);
  w.set_line_width(old);
  for (const point& e : corners) w.draw_disc(e.xcoord(), e.ycoord(), 0.01 * (f.high - f.low));
  w.set_color(color::black);
}

void view_gauge(const polygauge& gauge) {
  polygauge shown = gauge;
  tk_window w(view_size, view_size, gm::view_title);
  run_window(
      w,
      {{gm::save_gauge, save_one},
       {gm::load_gauge, load_one},
       {gm::create_gauge, create_one},
       {gm::refresh, refresh_view},
       {gm::close, close_view}},
      [&shown](window& win) { draw_gauge(win, shown); },
      [&](int event) {
        switch (event) {
          case save_one:
            save_as(w, gm::save_gauge, gm::gauge_file_default,
                    [&shown](std::ostream& out) { write_gauge(out, shown); });
            break;
          case load_one: {
            const std::optional<std::string> name =
                ask_file(w, gm::load_gauge, gm::gauge_file_default);
            if (!name) break;
            if (!std::ifstream(*name)) {
              show_message(w, format_message(gm::cannot_open_file, {*name}));
              break;
            }
            const std::vector<polygauge> loaded = read_polygauges(*name);
            if (loaded.empty())
              show_message(w, format_message(gm::no_gauge_in_file, {*name}));
            else
              shown = loaded.front();
            break;
          }
          case create_one:
            create_gauge();
            break;
          default:
            break;
        }
      });
}

void create_gauge() {
  const std::optional<std::pair<double, double>> bounds = ask_bounds();
  if (!bounds) return;
  creation c{bounds->first, bounds->second, {}, {}, std::nullopt, true};
  tk_window w(create_size, create_size, gm::create_title);
  run_window(
      w,
      {{gm::create_gauge, make_gauge},
       {gm::show_hide_ball, toggle_ball},
       {gm::clear_points, clear_points},
       {gm::append_to_list, append_gauge},
       {gm::save_list, save_list},
       {gm::clear_list, clear_list},
       {gm::symmetric_toggle, toggle_symmetric},
       {gm::refresh, refresh_create},
       {gm::close, close_create}},
      [&c](window& win) { c.draw(win); },
      [&](int event) {
        switch (event) {
          case make_gauge:
            if (const std::optional<polygauge> g = gauge_of_clicks(w, c.points))
              save_as(w, gm::save_gauge, gm::gauge_file_default,
                      [&g](std::ostream& out) { write_gauge(out, *g); });
            break;
          case toggle_ball:
            if (c.ball)
              c.ball.reset();
            else
              c.ball = gauge_of_clicks(w, c.points);
            break;
          case clear_points:
            c.points.clear();
            c.ball.reset();
            break;
          case append_gauge:
            if (const std::optional<polygauge> g = gauge_of_clicks(w, c.points))
              c.pg_list.push_back(*g);
            break;
          case save_list:
            if (c.pg_list.empty())
              show_message(w, gm::empty_list);
            else
              save_as(w, gm::save_list, gm::list_file_default,
                      [&c](std::ostream& out) { write_gauge_list(out, c.pg_list); });
            break;
          case clear_list:
            c.pg_list.clear();
            break;
          case toggle_symmetric:
            c.symmetric = !c.symmetric;
            break;
          default:
            if (event < 0) c.click(w.clicked());  // a mouse button in the drawing
            break;
        }
      });
}

}  // namespace mero
