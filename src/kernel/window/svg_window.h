#pragma once
// The window drawn into an SVG document instead of onto a screen: the same drawing calls give
// the same figures at the same pixel positions, so a picture can be made without a display.
// There is no user: read_mouse and open return the close value at once.

#include <string>
#include <vector>

#include "kernel/window/window.h"

namespace mero {

class svg_window : public window {
 public:
  svg_window(int width, int height, std::string title);

  // The whole document: an <svg> of width x height pixels with a white background and the
  // figures drawn since the last clear, in drawing order.
  std::string svg() const;
  // Writes the document; false if the file cannot be written.
  bool save(const std::string& path) const;

  void display() override {}
  void display(int, int) override {}
  void display(const window&) override {}
  int open() override { return close_value(); }
  int open(int, int) override { return close_value(); }
  int read_mouse() override { return close_value(); }
  void close() override {}

 protected:
  void paint_polyline(const std::vector<pixel_point>& points, bool closed, const pen& p) override;
  void paint_filled_polygon(const std::vector<pixel_point>& points, const pen& p) override;
  void paint_oval(pixel_point centre, double radius, bool filled, const pen& p) override;
  void paint_text(pixel_point at, const std::string& text, anchor a, const text_font& f,
                  const pen& p) override;
  void paint_pixrect(pixel_point at, const pixrect& image) override;
  void erase() override { elements_.clear(); }

 private:
  std::vector<std::string> elements_;
};

}  // namespace mero
