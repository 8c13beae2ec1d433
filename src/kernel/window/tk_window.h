#pragma once
// The window on the screen, through Tk: a toplevel with the panel items on top, a row of buttons
// and a canvas as the drawing area. All windows of the process share one Tcl interpreter, made at
// the first need; without a display the window stays invisible and read_mouse and open return
// the close value at once, so that nothing waits for a window that cannot appear.

#include <string>
#include <utility>
#include <vector>

#include "kernel/window/window.h"

struct Tcl_Interp;

namespace mero {

// True if windows can be shown: DISPLAY is set and Tk starts on it. Asked for the first time
// without a display, it says so once on the error stream.
bool window_display_available();

// The interpreter the windows live in, or null without a display. Tests use it to press buttons.
Tcl_Interp* tk_interpreter();

class tk_window : public window {
 public:
  tk_window(int width, int height, std::string title);
  ~tk_window() override;

  void display() override;
  void display(int x, int y) override;
  void display(const window& parent) override;
  int open() override;
  int open(int x, int y) override;
  int read_mouse() override;
  void close() override;

  // The Tk path of the toplevel and of the widget that sends a button's number (a menu entry's
  // number is sent by its menubutton's menu); tests press them with "invoke".
  const std::string& path() const { return path_; }
  std::string button_path(int number) const;
  std::string canvas_path() const { return path_ + ".c"; }
  // The Tk menu that holds the entry reached through the labels (as given to menu_bar_entry,
  // '&' marks included), and the entry's index in it; empty when there is no such entry. Tests
  // and scripted runs press it with "<menu> invoke <index>".
  std::pair<std::string, int> menu_entry_path(const std::vector<std::string>& labels) const;

  // Called by the event command of the interpreter.
  void deliver(const std::vector<std::string>& words);

 protected:
  void paint_polyline(const std::vector<pixel_point>& points, bool closed, const pen& p) override;
  void paint_filled_polygon(const std::vector<pixel_point>& points, const pen& p) override;
  void paint_oval(pixel_point centre, double radius, bool filled, const pen& p) override;
  void paint_text(pixel_point at, const std::string& text, anchor a, const text_font& f,
                  const pen& p) override;
  void paint_pixrect(pixel_point at, const pixrect& image) override;
  void erase() override;
  void buffer_flushed() override;
  void item_changed(std::size_t index) override;
  void menu_bar_changed(std::size_t index) override;

 private:
  bool realize();  // builds the widgets, withdrawn; false without a display
  void build_item(std::size_t index);
  void arrange_buttons();
  void build_menu(const std::string& menu, const std::vector<menu_entry>& entries);
  void show_at(int x, int y);
  void centre_on(int left, int top, int width, int height);
  int wait(bool clicks);
  void copy_variables();
  void create(const std::string& kind, const std::vector<double>& coordinates,
              std::vector<std::string> options);

  int id_;
  std::string path_;
  bool realized_ = false;
  bool pending_ = false;
  int event_ = 0;
  bool is_click_ = false;
  std::vector<std::string> images_;
};

}  // namespace mero
