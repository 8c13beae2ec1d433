#pragma once
// The drawing window: a drawing area in world coordinates with a panel of items (buttons, menus,
// string and text items) above it, and the panel form of the same type for dialogs. The window
// keeps the world frame, the items and the current attributes and turns every figure into pixel
// coordinates; a backend puts the pixels somewhere: tk_window on the screen, svg_window into an
// SVG document.

#include <functional>
#include <string>
#include <vector>

#include "kernel/point.h"

namespace mero {

enum class color {
  black,
  white,
  red,
  green,
  blue,
  yellow,
  violet,
  orange,
  cyan,
  brown,
  pink,
  grey
};

// "#rrggbb", the same for every backend.
const char* color_hex(color c);

// A pixel coordinate as the backends write it: two decimals, finer than any screen, and short.
std::string pixel_number(double v);

struct text_font {
  std::string family = "Helvetica";
  int size = 10;  // points
  bool bold = false;
};

// An image of width x height pixels, row by row from the top, three bytes (red, green, blue)
// per pixel.
struct pixrect {
  int width = 0;
  int height = 0;
  std::vector<unsigned char> rgb;
};

// A point of the drawing area in pixels, origin at the top left, y growing downwards.
struct pixel_point {
  double x;
  double y;
};

class window {
 public:
  // What read_mouse returns for a click into the drawing area: the mouse button, negated.
  static constexpr int left_click = -1;
  static constexpr int middle_click = -2;
  static constexpr int right_click = -3;
  // What read_mouse and open return when the window is closed from its frame, unless the user
  // of the window chose another value (set_close_value).
  static constexpr int default_close_value = -100;

  struct item {
    enum class kind { button, menu, string, text };
    kind what;
    std::string label;  // the button's or menu's label, the string item's label, the text
    int number = 0;     // buttons: their result; menus: the result of the first entry
    std::string* variable = nullptr;   // string items
    std::vector<std::string> entries;  // menus
  };

  // One entry of a menu bar: a command (with the number read_mouse returns for it), a cascade
  // (a submenu, when entries is not empty) or a separator line. A '&' in the label marks the
  // letter that is underlined and chosen with the keyboard; "&&" stands for '&' itself.
  struct menu_entry {
    std::string label;
    int number = -1;
    std::vector<menu_entry> entries;
    bool separator = false;
  };

  // Nothing is visible yet. A width or height of 0 makes a panel without a drawing area.
  window(int width, int height, std::string title);
  virtual ~window();
  window(const window&) = delete;
  window& operator=(const window&) = delete;

  // The world frame: x from xmin to xmax over the width of the drawing area, y from ymin upwards
  // with the same scale, so that ymax follows from the aspect ratio of the area. Until init the
  // frame is (0, 100, 0). xmax must exceed xmin; both finite.
  void init(double xmin, double xmax, double ymin);
  double xmin() const { return xmin_; }
  double xmax() const { return xmax_; }
  double ymin() const { return ymin_; }
  double ymax() const { return ymax_; }
  double scale() const { return scale_; }  // pixels per world unit
  int width() const { return width_; }
  int height() const { return height_; }
  const std::string& title() const { return title_; }
  pixel_point to_pixel(double x, double y) const;
  point to_world(double px, double py) const;

  // Panel items. Buttons are numbered in the order of creation (from 0) unless a number is given;
  // each entry of a menu takes the next number, and menu returns the first one.
  int button(const std::string& label, int number = -1);
  int menu(const std::string& label, const std::vector<std::string>& entries);
  void set_menu(const std::string& label, const std::vector<std::string>& entries);
  // The entry shows the variable and writes what the user typed back into it whenever
  // read_mouse or open returns; the variable must outlive the window.
  void string_item(const std::string& label, std::string& variable);
  int text_item(const std::string& text);  // returns the item's index for set_text
  void set_text(int item_index, const std::string& text);
  const std::vector<item>& items() const { return items_; }

  // Adds a menu (or, without entries, a command) to the menu bar on top of the window. Every
  // command whose number is negative takes the next free number, depth first in menu order; the
  // first number given out is returned (-1 when none). Backends without menus ignore the bar.
  int menu_bar_entry(menu_entry entry);
  const std::vector<menu_entry>& menu_bar() const { return menu_bar_; }
  // The label without its '&' marks, and the place of the underlined letter (-1 for none).
  static std::string menu_label(const std::string& label, int* underline = nullptr);

  // Makes the window visible: centred on the screen, at a given screen position, or centred
  // over a parent window.
  virtual void display() = 0;
  virtual void display(int x, int y) = 0;
  virtual void display(const window& parent) = 0;
  // Shows the window as a modal panel (centred, or at x, y) and returns the number of the button
  // pressed; the panel is hidden again before it returns.
  virtual int open() = 0;
  virtual int open(int x, int y) = 0;
  // Waits for the next button press or click: a button's number, a click code (the world
  // position of the click in clicked()), or the close value.
  virtual int read_mouse() = 0;
  point clicked() const { return clicked_; }
  // Whether shift was held at the last click (backends that cannot tell say no).
  bool shift_clicked() const { return shift_clicked_; }
  // Hides the window and releases what the backend holds for it.
  virtual void close() = 0;

  void set_close_value(int value) { close_value_ = value; }
  int close_value() const { return close_value_; }
  // Called with the window after its drawing area has been cleared because its size changed.
  void set_redraw(std::function<void(window&)> handler) { redraw_ = std::move(handler); }

  void clear();
  void draw_point(double x, double y);  // a small cross
  void draw_segment(double x1, double y1, double x2, double y2);
  void draw_line(double x1, double y1, double x2, double y2);  // the whole line through both
  void draw_disc(double x, double y, double r);                // r in world units
  void draw_filled_node(double x, double y);                   // a disc of node_radius pixels
  void draw_circle(double x, double y, double r);
  void draw_polygon(const std::vector<point>& vertices);
  void draw_filled_polygon(const std::vector<point>& vertices);
  void draw_text(double x, double y, const std::string& text);   // top left corner at (x, y)
  void draw_ctext(double x, double y, const std::string& text);  // centred at (x, y)
  static constexpr double node_radius = 6.0;

  int set_line_width(int pixels);
  color set_color(color c);
  text_font set_font(const text_font& f);

  static pixrect create_pixrect(int width, int height, const unsigned char* rgb);
  void put_pixrect(double x, double y, const pixrect& image);  // top left corner at (x, y)

  // Drawing between these two calls appears at once when the buffer is flushed. A second start
  // before the flush is a fault.
  void start_buffering();
  void flush_buffer();
  bool buffering() const { return buffering_; }

 protected:
  struct pen {
    color fill;
    int width;
  };
  enum class anchor { top_left, centre };

  // The backend's primitives, in pixels of the drawing area.
  virtual void paint_polyline(const std::vector<pixel_point>& points, bool closed,
                              const pen& p) = 0;
  virtual void paint_filled_polygon(const std::vector<pixel_point>& points, const pen& p) = 0;
  virtual void paint_oval(pixel_point centre, double radius, bool filled, const pen& p) = 0;
  virtual void paint_text(pixel_point at, const std::string& text, anchor a, const text_font& f,
                          const pen& p) = 0;
  virtual void paint_pixrect(pixel_point at, const pixrect& image) = 0;
  virtual void erase() = 0;
  virtual void buffer_flushed() {}
  // Told about every item added or changed after the backend has built its widgets.
  virtual void item_changed(std::size_t) {}
  // Told about every menu added to the menu bar after the backend has built its widgets.
  virtual void menu_bar_changed(std::size_t) {}

  // A backend whose drawing area changed size calls this: the frame keeps xmin, xmax and ymin,
  // the area is cleared and the redraw handler draws again.
  void resized(int width, int height);
  void set_clicked(double px, double py, bool shift = false) {
    clicked_ = to_world(px, py);
    shift_clicked_ = shift;
  }

 private:
  pen current_pen() const { return {color_, line_width_}; }
  std::vector<pixel_point> to_pixels(const std::vector<point>& vertices) const;
  bool draw_degenerate(const std::vector<point>& vertices);
  std::size_t add_item(item it);

  int width_;
  int height_;
  std::string title_;
  double xmin_ = 0.0, xmax_ = 100.0, ymin_ = 0.0, ymax_ = 0.0, scale_ = 1.0;
  std::vector<item> items_;
  std::vector<menu_entry> menu_bar_;
  int next_number_ = 0;
  int close_value_ = default_close_value;
  std::function<void(window&)> redraw_;
  point clicked_;
  bool shift_clicked_ = false;
  color color_ = color::black;
  int line_width_ = 1;
  text_font font_;
  bool buffering_ = false;
};

}  // namespace mero
