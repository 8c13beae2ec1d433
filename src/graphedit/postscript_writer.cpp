#include "graphedit/postscript_writer.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <unordered_map>

#include "graphedit/ge_file.h"
#include "kernel/message.h"

namespace mero {

namespace {

const double margin = 10;

const char* const prologue =
    "/ORBA_dict 100 dict def\n"
    "ORBA_dict begin\n"
    "/set_font { exch findfont exch scalefont setfont } def\n"
    "/set_line_width { setlinewidth } def\n"
    "/set_line_style { 0 setdash } def\n"
    "/set_color { setrgbcolor } def\n"
    "% mark xn yn ... x1 y1 poly_line: a path from the first point on the stack to the last\n"
    "/poly_line { moveto counttomark 2 idiv { lineto } repeat pop } def\n"
    "/polygon { newpath poly_line closepath } def\n"
    "/stroke_line { newpath poly_line stroke } def\n"
    "/curve { newpath moveto curveto stroke } def\n"
    "% x y rx ry ellipse: the path of an ellipse around (x, y)\n"
    "/ellipse { /ry exch def /rx exch def /cy exch def /cx exch def\n"
    "  matrix currentmatrix cx cy translate rx ry scale\n"
    "  newpath 0 0 1 0 360 arc closepath setmatrix } def\n"
    "% x1 y1 x2 y2 length arrow_head: a filled head at (x2, y2) pointing away from (x1, y1)\n"
    "/arrow_head { /l exch def /y2 exch def /x2 exch def /y1 exch def /x1 exch def\n"
    "  gsave x2 y2 translate y2 y1 sub x2 x1 sub atan rotate [] set_line_style\n"
    "  newpath 0 0 moveto l neg l 0.4 mul lineto l neg l -0.4 mul lineto closepath fill\n"
    "  grestore } def\n"
    "% (text) x y ctext: the text centred at (x, y)\n"
    "/ctext { moveto dup stringwidth pop 2 div neg font_size -0.35 mul rmoveto show } def\n";

struct box {
  double xmin = 0, ymin = 0, xmax = 0, ymax = 0;
  bool empty = true;
  void add(double x, double y) {
    if (empty) {
      xmin = xmax = x;
      ymin = ymax = y;
      empty = false;
    }
    xmin = std::min(xmin, x);
    xmax = std::max(xmax, x);
    ymin = std::min(ymin, y);
    ymax = std::max(ymax, y);
  }
};

class ps_writer {
 public:
  ps_writer(const ge_graph& x, std::ostream& out, double scale)
      : x_(x), out_(out), scale_(scale) {}

  void write() {
    box b = extent();
    x0_ = b.xmin;
    y0_ = b.ymin;
    double w = b.empty ? 0 : (b.xmax - b.xmin) * scale_;
    double h = b.empty ? 0 : (b.ymax - b.ymin) * scale_;
    out_ << "%!PS-Adobe-2.0 EPSF-2.0\n"
         << "%%Creator: ORBA GraphEdit\n"
         << "%%BoundingBox: 0 0 " << static_cast<long>(std::ceil(w + 2 * margin)) << ' '
         << static_cast<long>(std::ceil(h + 2 * margin)) << '\n'
         << "%%EndComments\n"
         << prologue;
    int k = 0;
    for (node v = x_.g.first_node(); v != nullptr; v = graph::succ_node(v)) index_[v] = ++k;
    k = 0;
    for (edge e : edges_in_file_order(x_.g)) draw_edge(e, ++k);
    for (node v = x_.g.first_node(); v != nullptr; v = graph::succ_node(v)) draw_node(v);
    out_ << "showpage\n"
         << "end %% ORBA_dict\n";
  }

 private:
  box extent() const {
    box b;
    for (node v = x_.g.first_node(); v != nullptr; v = graph::succ_node(v)) {
      const ge_node& a = x_.g.inf(v);
      b.add(a.position.xcoord() - a.radius1, a.position.ycoord() - a.radius2);
      b.add(a.position.xcoord() + a.radius1, a.position.ycoord() + a.radius2);
    }
    for (edge e = x_.g.first_edge(); e != nullptr; e = graph::succ_edge(e))
      for (const point& p : x_.g.inf(e).bends) b.add(p.xcoord(), p.ycoord());
    return b;
  }

  // Page coordinates of a world point.
  double px(double x) const { return (x - x0_) * scale_ + margin; }
  double py(double y) const { return (y - y0_) * scale_ + margin; }
  void number(double v) {
    char text[32];
    std::snprintf(text, sizeof text, "%.2f", std::abs(v) < 0.005 ? 0.0 : v);
    out_ << text;
  }
  void page_point(double x, double y) {
    number(px(x));
    out_ << ' ';
    number(py(y));
  }
  void color(int rgb) {
    number(((rgb >> 16) & 0xff) / 255.0);
    out_ << ' ';
    number(((rgb >> 8) & 0xff) / 255.0);
    out_ << ' ';
    number((rgb & 0xff) / 255.0);
    out_ << " set_color\n";
  }
  void text(const std::string& s) {
    out_ << '(';
    for (unsigned char c : s) {
      if (c == '(' || c == ')' || c == '\\')
        out_ << '\\' << c;
      else if (c < 32 || c > 126)
        out_ << ' ';
      else
        out_ << c;
    }
    out_ << ')';
  }
  void font(const std::string& name, int size) {
    // The one-letter font codes of the settings: T roman, B bold, I italic, F fixed.
    std::string ps = name == "T"   ? "Times-Roman"
                     : name == "B" ? "Times-Bold"
                     : name == "I" ? "Times-Italic"
                     : name == "F" ? "Courier"
                     : name.find_first_of(" ()/") == std::string::npos && !name.empty()
                         ? name
                         : "Times-Roman";
    double pts = size * scale_;
    out_ << '/' << ps << ' ';
    number(pts);
    out_ << " set_font /font_size ";
    number(pts);
    out_ << " def\n";
  }

  // The point where the ray from the node's centre in direction (dx, dy) leaves its shape.
  static point border(const ge_node& a, double dx, double dy) {
    double len = std::hypot(dx, dy);
    if (len == 0 || a.radius1 <= 0 || a.radius2 <= 0) return a.position;
    double t;
    if (a.shape == node_shape::oval)
      t = 1 / std::hypot(dx / a.radius1, dy / a.radius2);
    else
      t = std::min(dx != 0 ? a.radius1 / std::abs(dx) : INFINITY,
                   dy != 0 ? a.radius2 / std::abs(dy) : INFINITY);
    return point(a.position.xcoord() + t * dx, a.position.ycoord() + t * dy);
  }

  std::string label_text(label_kind kind, const std::string& label, const std::string& data,
                         const std::string& format, int index) const {
    switch (kind) {
      case label_kind::text:
        return label;
      case label_kind::data:
        return data;
      case label_kind::index:
        return format_message(format, {index});
    }
    return label;
  }

  // Offset of a label from its item's centre, by anchor, for an item of half extents rx, ry.
  static point anchor_offset(label_anchor where, double rx, double ry, double size) {
    double gap = size * 0.8;
    switch (where) {
      case label_anchor::c:
        return point(0, 0);
      case label_anchor::n:
        return point(0, ry + gap);
      case label_anchor::s:
        return point(0, -ry - gap);
      case label_anchor::e:
        return point(rx + 2 * gap, 0);
      case label_anchor::w:
        return point(-rx - 2 * gap, 0);
      case label_anchor::ne:
        return point(rx + 2 * gap, ry + gap);
      case label_anchor::nw:
        return point(-rx - 2 * gap, ry + gap);
      case label_anchor::se:
        return point(rx + 2 * gap, -ry - gap);
      case label_anchor::sw:
        return point(-rx - 2 * gap, -ry - gap);
    }
    return point(0, 0);
  }

  void arrow(const point& from, const point& to, double width) {
    if (from == to) return;  // no direction to point in
    page_point(from.xcoord(), from.ycoord());
    out_ << ' ';
    page_point(to.xcoord(), to.ycoord());
    out_ << ' ';
    number((6 + 2 * width) * scale_);
    out_ << " arrow_head\n";
  }

  void draw_edge(edge e, int index) {
    const ge_edge& a = x_.g.inf(e);
    const ge_node& s = x_.g.inf(graph::source(e));
    const ge_node& t = x_.g.inf(graph::target(e));
    std::vector<point> path;
    path.emplace_back(s.position.xcoord() + a.source_anchor.xcoord(),
                      s.position.ycoord() + a.source_anchor.ycoord());
    path.insert(path.end(), a.bends.begin(), a.bends.end());
    path.emplace_back(t.position.xcoord() + a.target_anchor.xcoord(),
                      t.position.ycoord() + a.target_anchor.ycoord());
    // The ends move to the node borders, so that arrow heads touch them.
    point& first = path.front();
    point& last = path.back();
    const point& after_first = path[1];
    const point& before_last = path[path.size() - 2];
    point start = border(s, after_first.xcoord() - s.position.xcoord(),
                         after_first.ycoord() - s.position.ycoord());
    point end = border(t, before_last.xcoord() - t.position.xcoord(),
                       before_last.ycoord() - t.position.ycoord());
    if (graph::source(e) != graph::target(e) || !a.bends.empty()) {
      first = start;
      last = end;
    }
    color(a.color);
    number(a.width * scale_);
    out_ << " set_line_width ";
    out_ << (a.style == edge_style::dashed   ? "[6 3]"
             : a.style == edge_style::dotted ? "[1 3]"
                                             : "[]")
         << " set_line_style\n";
    if (a.shape == edge_shape::bezier && path.size() == 4) {
      for (std::size_t k = 1; k < 4; ++k) {
        page_point(path[k].xcoord(), path[k].ycoord());
        out_ << ' ';
      }
      page_point(path[0].xcoord(), path[0].ycoord());
      out_ << " curve\n";
    } else {
      out_ << "mark";
      for (auto p = path.rbegin(); p != path.rend(); ++p) {
        out_ << ' ';
        page_point(p->xcoord(), p->ycoord());
      }
      out_ << " stroke_line\n";
    }
    if (a.direction == edge_arrow::last || a.direction == edge_arrow::both)
      arrow(path[path.size() - 2], path.back(), a.width);
    if (a.direction == edge_arrow::first || a.direction == edge_arrow::both)
      arrow(path[1], path.front(), a.width);
    std::string label =
        label_text(a.label_type, a.label, a.data, x_.settings.edge_index_format, index);
    if (!label.empty()) {
      // At the middle of the middle segment of the path.
      std::size_t k = (path.size() - 1) / 2;
      double mx = (path[k].xcoord() + path[k + 1].xcoord()) / 2;
      double my = (path[k].ycoord() + path[k + 1].ycoord()) / 2;
      point off = anchor_offset(a.label_position, 0, 0, x_.settings.edge_font_size);
      draw_label(label, x_.settings.edge_font, x_.settings.edge_font_size, a.label_color,
                 point(mx + off.xcoord(), my + off.ycoord()));
    }
  }

  void draw_label(const std::string& label, const std::string& font_name, int size, int rgb,
                  const point& at) {
    font(font_name, size);
    color(rgb);
    text(label);
    out_ << ' ';
    page_point(at.xcoord(), at.ycoord());
    out_ << " ctext\n";
  }

  void draw_node(node v) {
    const ge_node& a = x_.g.inf(v);
    double x = a.position.xcoord(), y = a.position.ycoord();
    auto shape_path = [&] {
      if (a.shape == node_shape::oval) {
        page_point(x, y);
        out_ << ' ';
        number(a.radius1 * scale_);
        out_ << ' ';
        number(a.radius2 * scale_);
        out_ << " ellipse";
      } else {
        out_ << "mark ";
        page_point(x - a.radius1, y + a.radius2);
        out_ << ' ';
        page_point(x + a.radius1, y + a.radius2);
        out_ << ' ';
        page_point(x + a.radius1, y - a.radius2);
        out_ << ' ';
        page_point(x - a.radius1, y - a.radius2);
        out_ << " polygon";
      }
    };
    color(a.color);
    shape_path();
    out_ << " fill\n";
    color(a.border_color);
    number(a.border_width * scale_);
    out_ << " set_line_width [] set_line_style\n";
    shape_path();
    out_ << " stroke\n";
    std::string label =
        label_text(a.label_type, a.label, a.data, x_.settings.node_index_format, index_[v]);
    if (!label.empty()) {
      point off = anchor_offset(a.label_position, a.radius1, a.radius2,
                                x_.settings.node_font_size);
      draw_label(label, x_.settings.node_font, x_.settings.node_font_size, a.label_color,
                 point(x + off.xcoord(), y + off.ycoord()));
    }
  }

  const ge_graph& x_;
  std::ostream& out_;
  double scale_;
  double x0_ = 0, y0_ = 0;
  std::unordered_map<node, int> index_;
};

}  // namespace

void write_postscript(const ge_graph& x, std::ostream& out, double scale) {
  ps_writer(x, out, scale).write();
}

void write_postscript(const ge_graph& x, const std::string& file_name, double scale) {
  write_text_file(file_name, [&](std::ostream& out) { write_postscript(x, out, scale); });
}

}  // namespace mero
