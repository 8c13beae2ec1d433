#include "kernel/window/window.h"

#include <cmath>
#include <cstdio>
#include <string>

#include "kernel/error_handler.h"
#include "kernel/window/window_messages.h"

namespace mero {

namespace wm = window_messages;

const char* color_hex(color c) {
  switch (c) {
    case color::black:
      return "#000000";
    case color::white:
      return "#ffffff";
    case color::red:
      return "#e00000";
    case color::green:
      return "#00a000";
    case color::blue:
      return "#0000e0";
    case color::yellow:
      return "#f0d000";
    case color::violet:
      return "#a000c0";
    case color::orange:
      return "#ff8000";
    case color::cyan:
      return "#00b0c0";
    case color::brown:
      return "#904000";
    case color::pink:
      return "#ff70b0";
    case color::grey:
      return "#a0a0a0";
  }
  return "#000000";
}

std::string pixel_number(double v) {
  char text[32];
  std::snprintf(text, sizeof text, "%.2f", v);
  return text;
}

window::window(int width, int height, std::string title)
    : width_(width > 0 ? width : 0), height_(height > 0 ? height : 0), title_(std::move(title)) {
  init(0.0, 100.0, 0.0);
}

window::~window() = default;

void window::init(double xmin, double xmax, double ymin) {
  if (!std::isfinite(xmin) || !std::isfinite(xmax) || !std::isfinite(ymin) || !(xmax > xmin)) {
    kernel_error(wm::bad_frame.code, wm::bad_frame.text);
    return;
  }
  xmin_ = xmin;
  xmax_ = xmax;
  ymin_ = ymin;
  // A panel has no drawing area; its frame keeps the scale 1 so that nothing divides by zero.
  scale_ = width_ > 0 ? width_ / (xmax - xmin) : 1.0;
  ymax_ = ymin + height_ / scale_;
}

pixel_point window::to_pixel(double x, double y) const {
  return {(x - xmin_) * scale_, height_ - (y - ymin_) * scale_};
}

point window::to_world(double px, double py) const {
  return point(xmin_ + px / scale_, ymin_ + (height_ - py) / scale_);
}

std::vector<pixel_point> window::to_pixels(const std::vector<point>& vertices) const {
  std::vector<pixel_point> pixels;
  pixels.reserve(vertices.size());
  for (const point& v : vertices) pixels.push_back(to_pixel(v.xcoord(), v.ycoord()));
  return pixels;
}

std::size_t window::add_item(item it) {
  items_.push_back(std::move(it));
  item_changed(items_.size() - 1);
  return items_.size() - 1;
}

int window::button(const std::string& label, int number) {
  if (number < 0) number = next_number_;
  if (number >= next_number_) next_number_ = number + 1;
  add_item({item::kind::button, label, number, nullptr, {}});
  return number;
}

int window::menu_bar_entry(menu_entry entry) {
  int first = -1;
  // Numbers commands without one, depth first, and keeps the count of numbers above those given.
  auto number = [&](auto& self, menu_entry& e) -> void {
    if (e.separator) return;
    if (e.entries.empty()) {
      if (e.number < 0) e.number = next_number_;
      if (e.number >= next_number_) next_number_ = e.number + 1;
      if (first < 0) first = e.number;
      return;
    }
    for (menu_entry& sub : e.entries) self(self, sub);
  };
  number(number, entry);
  menu_bar_.push_back(std::move(entry));
  menu_bar_changed(menu_bar_.size() - 1);
  return first;
}

std::string window::menu_label(const std::string& label, int* underline) {
  std::string text;
  if (underline != nullptr) *underline = -1;
  for (std::size_t k = 0; k < label.size(); ++k) {
    if (label[k] == '&' && k + 1 < label.size()) {
      ++k;
      if (label[k] != '&' && underline != nullptr && *underline < 0)
        *underline = static_cast<int>(text.size());
    }
    text += label[k];
  }
  return text;
}

int window::menu(const std::string& label, const std::vector<std::string>& entries) {
  const int first = next_number_;
  next_number_ += static_cast<int>(entries.size());
  add_item({item::kind::menu, label, first, nullptr, entries});
  return first;
}

// The new entries take the numbers of the old ones from the first on; more entries than before
// take fresh numbers only if the menu was the last numbered item, so no two entries share one.
void window::set_menu(const std::string& label, const std::vector<std::string>& entries) {
  for (std::size_t i = 0; i < items_.size(); ++i) {
    item& it = items_[i];
    if (it.what != item::kind::menu || it.label != label) continue;
    const int end = it.number + static_cast<int>(it.entries.size());
    const int new_end = it.number + static_cast<int>(entries.size());
    if (new_end > end && end != next_number_) break;
    if (new_end > next_number_) next_number_ = new_end;
    it.entries = entries;
    item_changed(i);
    return;
  }
  kernel_error(wm::illegal_menu.code, format_message(wm::illegal_menu.text, {label}));
}

void window::string_item(const std::string& label, std::string& variable) {
  add_item({item::kind::string, label, 0, &variable, {}});
}

int window::text_item(const std::string& text) {
  return static_cast<int>(add_item({item::kind::text, text, 0, nullptr, {}}));
}

void window::set_text(int item_index, const std::string& text) {
  const auto i = static_cast<std::size_t>(item_index);
  if (item_index < 0 || i >= items_.size() || items_[i].what != item::kind::text) {
    kernel_error(wm::illegal_text.code, wm::illegal_text.text);
    return;
  }
  items_[i].label = text;
  item_changed(i);
}

void window::clear() { erase(); }

void window::draw_point(double x, double y) {
  const pixel_point c = to_pixel(x, y);
  const double arm = 3.0;
  paint_polyline({{c.x - arm, c.y - arm}, {c.x + arm, c.y + arm}}, false, current_pen());
  paint_polyline({{c.x - arm, c.y + arm}, {c.x + arm, c.y - arm}}, false, current_pen());
}

void window::draw_segment(double x1, double y1, double x2, double y2) {
  paint_polyline({to_pixel(x1, y1), to_pixel(x2, y2)}, false, current_pen());
}

// The line is drawn as a segment long enough to leave the frame on both sides; the backend clips
// it to the drawing area. Two equal points give no direction and are drawn as a point.
void window::draw_line(double x1, double y1, double x2, double y2) {
  const double dx = x2 - x1, dy = y2 - y1;
  const double length = std::hypot(dx, dy);
  if (length == 0.0) {
    draw_point(x1, y1);
    return;
  }
  const double reach =
      std::hypot(xmax_ - xmin_, ymax_ - ymin_) + std::hypot(x1 - xmin_, y1 - ymin_);
  const double ux = dx / length * reach, uy = dy / length * reach;
  draw_segment(x1 - ux, y1 - uy, x1 + ux, y1 + uy);
}

void window::draw_disc(double x, double y, double r) {
  paint_oval(to_pixel(x, y), r * scale_, true, current_pen());
}

void window::draw_filled_node(double x, double y) {
  paint_oval(to_pixel(x, y), node_radius, true, current_pen());
}

void window::draw_circle(double x, double y, double r) {
  paint_oval(to_pixel(x, y), r * scale_, false, current_pen());
}

// Fewer than three vertices make no area: such a polygon is drawn as what it is, a segment or a
// point, by both backends alike.
bool window::draw_degenerate(const std::vector<point>& vertices) {
  if (vertices.size() >= 3) return false;
  if (vertices.size() == 2)
    draw_segment(vertices[0].xcoord(), vertices[0].ycoord(), vertices[1].xcoord(),
                 vertices[1].ycoord());
  else if (vertices.size() == 1)
    draw_point(vertices[0].xcoord(), vertices[0].ycoord());
  return true;
}

void window::draw_polygon(const std::vector<point>& vertices) {
  if (!draw_degenerate(vertices)) paint_polyline(to_pixels(vertices), true, current_pen());
}

void window::draw_filled_polygon(const std::vector<point>& vertices) {
  if (!draw_degenerate(vertices)) paint_filled_polygon(to_pixels(vertices), current_pen());
}

void window::draw_text(double x, double y, const std::string& text) {
  paint_text(to_pixel(x, y), text, anchor::top_left, font_, current_pen());
}

void window::draw_ctext(double x, double y, const std::string& text) {
  paint_text(to_pixel(x, y), text, anchor::centre, font_, current_pen());
}

int window::set_line_width(int pixels) {
  const int old = line_width_;
  line_width_ = pixels > 0 ? pixels : 1;
  return old;
}

color window::set_color(color c) {
  const color old = color_;
  color_ = c;
  return old;
}

text_font window::set_font(const text_font& f) {
  text_font old = font_;
  font_ = f;
  return old;
}

pixrect window::create_pixrect(int width, int height, const unsigned char* rgb) {
  if (width <= 0 || height <= 0 || !rgb) {
    kernel_error(wm::bad_pixrect.code, wm::bad_pixrect.text);
    return {};
  }
  const std::size_t bytes = static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 3;
  return {width, height, std::vector<unsigned char>(rgb, rgb + bytes)};
}

void window::put_pixrect(double x, double y, const pixrect& image) {
  if (image.width <= 0 || image.height <= 0 ||
      image.rgb.size() != static_cast<std::size_t>(image.width) * image.height * 3) {
    kernel_error(wm::bad_pixrect.code, wm::bad_pixrect.text);
    return;
  }
  paint_pixrect(to_pixel(x, y), image);
}

void window::start_buffering() {
  if (buffering_) {
    kernel_error(wm::nested_buffer.code, wm::nested_buffer.text);
    return;
  }
  buffering_ = true;
}

void window::flush_buffer() {
  if (!buffering_) return;
  buffering_ = false;
  buffer_flushed();
}

void window::resized(int width, int height) {
  if (width == width_ && height == height_) return;
  width_ = width;
  height_ = height;
  init(xmin_, xmax_, ymin_);
  erase();
  if (redraw_) redraw_(*this);
}

}  // namespace mero
