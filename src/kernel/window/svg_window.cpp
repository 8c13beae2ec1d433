#include "kernel/window/svg_window.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <sstream>

namespace mero {

namespace {

std::string escaped(const std::string& text) {
  std::string out;
  for (char c : text) {
    switch (c) {
      case '&':
        out += "&amp;";
        break;
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      case '"':
        out += "&quot;";
        break;
      default:
        out += c;
    }
  }
  return out;
}

std::string point_list(const std::vector<pixel_point>& points) {
  std::string list;
  for (const pixel_point& p : points) {
    if (!list.empty()) list += ' ';
    list += pixel_number(p.x) + ',' + pixel_number(p.y);
  }
  return list;
}

std::string hex_of(const unsigned char* rgb) {
  char text[8];
  std::snprintf(text, sizeof text, "#%02x%02x%02x", rgb[0], rgb[1], rgb[2]);
  return text;
}

}  // namespace

svg_window::svg_window(int width, int height, std::string title)
    : window(width, height, std::move(title)) {}

std::string svg_window::svg() const {
  std::ostringstream out;
  out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      << "<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\" width=\"" << width()
      << "\" height=\"" << height() << "\" viewBox=\"0 0 " << width() << ' ' << height()
      << "\">\n<title>" << escaped(title()) << "</title>\n"
      << "<rect x=\"0\" y=\"0\" width=\"" << width() << "\" height=\"" << height()
      << "\" fill=\"#ffffff\"/>\n";
  for (const std::string& e : elements_) out << e << '\n';
  out << "</svg>\n";
  return out.str();
}

bool svg_window::save(const std::string& path) const {
  std::ofstream file(path);
  if (!file) return false;
  file << svg();
  return static_cast<bool>(file.flush());
}

void svg_window::paint_polyline(const std::vector<pixel_point>& points, bool closed, const pen& p) {
  elements_.push_back(std::string(closed ? "<polygon" : "<polyline") + " points=\"" +
                      point_list(points) + "\" fill=\"none\" stroke=\"" + color_hex(p.fill) +
                      "\" stroke-width=\"" + std::to_string(p.width) +
                      "\" stroke-linecap=\"round\" stroke-linejoin=\"round\"/>");
}

void svg_window::paint_filled_polygon(const std::vector<pixel_point>& points, const pen& p) {
  elements_.push_back("<polygon points=\"" + point_list(points) + "\" fill=\"" + color_hex(p.fill) +
                      "\" stroke=\"none\"/>");
}

void svg_window::paint_oval(pixel_point centre, double radius, bool filled, const pen& p) {
  const std::string paint = filled
                                ? std::string("fill=\"") + color_hex(p.fill) + "\" stroke=\"none\""
                                : std::string("fill=\"none\" stroke=\"") + color_hex(p.fill) +
                                      "\" stroke-width=\"" + std::to_string(p.width) + "\"";
  elements_.push_back("<circle cx=\"" + pixel_number(centre.x) + "\" cy=\"" +
                      pixel_number(centre.y) + "\" r=\"" + pixel_number(radius) + "\" " + paint +
                      "/>");
}

// A top-left anchor puts the text's first line below the point, as on the screen.
void svg_window::paint_text(pixel_point at, const std::string& text, anchor a, const text_font& f,
                            const pen& p) {
  const bool centre = a == anchor::centre;
  elements_.push_back("<text x=\"" + pixel_number(at.x) + "\" y=\"" + pixel_number(at.y) +
                      "\" font-family=\"" + escaped(f.family) + "\" font-size=\"" +
                      std::to_string(f.size) + "pt\"" + (f.bold ? " font-weight=\"bold\"" : "") +
                      " fill=\"" + color_hex(p.fill) + "\" text-anchor=\"" +
                      (centre ? "middle" : "start") + "\" dominant-baseline=\"" +
                      (centre ? "central" : "hanging") + "\">" + escaped(text) + "</text>");
}

// One rectangle per run of equal pixels in a row: plain SVG that every renderer shows, with no
// image codec involved.
void svg_window::paint_pixrect(pixel_point at, const pixrect& image) {
  std::string group = "<g shape-rendering=\"crispEdges\">";
  for (int row = 0; row < image.height; ++row) {
    const unsigned char* line = image.rgb.data() + static_cast<std::size_t>(row) * image.width * 3;
    int start = 0;
    for (int col = 1; col <= image.width; ++col) {
      if (col < image.width && std::equal(line + col * 3, line + col * 3 + 3, line + start * 3))
        continue;
      group += "<rect x=\"" + pixel_number(at.x + start) + "\" y=\"" + pixel_number(at.y + row) +
               "\" width=\"" + std::to_string(col - start) + "\" height=\"1\" fill=\"" +
               hex_of(line + start * 3) + "\"/>";
      start = col;
    }
  }
  elements_.push_back(group + "</g>");
}

}  // namespace mero
