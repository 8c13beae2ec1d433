#include "graphedit/ge_file.h"

#include <cmath>
#include <cstdio>
#include <fstream>
#include <iomanip>
#include <sstream>

#include "graphedit/graphedit_messages.h"
#include "kernel/graph_file.h"

namespace mero {

namespace msg = graphedit_messages;

namespace {

const char* const version_comment = "version string";
const char* const scaling_comment = "scaling  wxmin  wymin  wxmax  wymax";
const char* const node_font_comment = "label font and size";
const char* const edge_font_comment = "edge label font and size";
const char* const node_index_comment = "node index format";
const char* const edge_index_comment = "edge index format";
const char* const distance_comment = "multi-edge distance";
const char* const node_infos_comment = "x y shape bclr bwidth r1 r2 clr ltype lclr lpos lstr";
const char* const edge_infos_comment =
    "width clr shape style dir ltype lclr lpos sanch tanch poly lstr";

void comment(std::ostream& out, const char* text) { out << "# " << text << '\n'; }

template <typename E>
int code(E value) {
  return static_cast<int>(value);
}

// Reads the sections line by line, knowing the line number for messages.
class ge_lines {
 public:
  ge_lines(std::istream& in, const std::string& name, int line)
      : in_(in), name_(name), line_(line) {}

  // The next line, which must exist; `what` names the section for the message.
  std::string next(const char* what) {
    std::string text;
    if (!std::getline(in_, text)) report_error(msg::ge_early_end, {name_, line_ + 1, what});
    ++line_;
    if (!text.empty() && text.back() == '\r') text.pop_back();
    return text;
  }
  // Skips blank lines and expects "# text".
  void expect_comment(const char* text) {
    std::string got;
    do {
      got = next(text);
    } while (got.find_first_not_of(" \t") == std::string::npos);
    std::size_t end = got.find_last_not_of(" \t");
    if (got.substr(0, end + 1) != std::string("# ") + text)
      report_error(msg::ge_missing_comment, {name_, line_, text});
  }
  [[noreturn]] void bad(const char* what) { report_error(msg::ge_bad_line, {name_, line_, what}); }

 private:
  std::istream& in_;
  const std::string& name_;
  int line_;
};

// Parses the numbers at the front of a line and leaves the rest.
class fields {
 public:
  fields(const std::string& text, ge_lines& lines, const char* what)
      : in_(text), lines_(lines), what_(what) {}
  double real() {
    double x = 0;
    if (!(in_ >> x) || !std::isfinite(x)) lines_.bad(what_);
    return x;
  }
  int integer(int low, int high) {
    long x = 0;
    if (!(in_ >> x) || x < low || x > high) lines_.bad(what_);
    return static_cast<int>(x);
  }
  int color() { return integer(0, 0xffffff); }
  template <typename E>
  E choice(E last) {
    return static_cast<E>(integer(0, code(last)));
  }
  point position() {
    double x = real();
    double y = real();
    return point(x, y);
  }
  // The label text: everything after the single blank that follows the last number.
  std::string rest() {
    if (in_.peek() == ' ') in_.get();
    std::string text;
    std::getline(in_, text, '\0');
    return unescape_line(text);
  }
  void end() {
    std::string more;
    if (in_ >> more) lines_.bad(what_);
  }

 private:
  std::istringstream in_;
  ge_lines& lines_;
  const char* what_;
};

void write_node(std::ostream& out, const ge_node& a) {
  out << a.position.xcoord() << ' ' << a.position.ycoord() << ' ' << code(a.shape) << ' '
      << a.border_color << ' ' << a.border_width << ' ' << a.radius1 << ' ' << a.radius2 << ' '
      << a.color << ' ' << code(a.label_type) << ' ' << a.label_color << ' '
      << code(a.label_position) << ' ' << escape_line(a.label) << '\n';
}

void write_edge(std::ostream& out, const ge_edge& a) {
  out << a.width << ' ' << a.color << ' ' << code(a.shape) << ' ' << code(a.style) << ' '
      << code(a.direction) << ' ' << code(a.label_type) << ' ' << a.label_color << ' '
      << code(a.label_position) << ' ' << a.source_anchor.xcoord() << ' '
      << a.source_anchor.ycoord() << ' ' << a.target_anchor.xcoord() << ' '
      << a.target_anchor.ycoord() << ' ' << a.bends.size();
  for (const point& p : a.bends) out << ' ' << p.xcoord() << ' ' << p.ycoord();
  out << ' ' << escape_line(a.label) << '\n';
}

void read_node(ge_node& a, const std::string& text, ge_lines& lines) {
  fields f(text, lines, "node info");
  a.position = f.position();
  a.shape = f.choice(node_shape::rectangle);
  a.border_color = f.color();
  a.border_width = f.real();
  a.radius1 = f.real();
  a.radius2 = f.real();
  a.color = f.color();
  a.label_type = f.choice(label_kind::data);
  a.label_color = f.color();
  a.label_position = f.choice(label_anchor::sw);
  a.label = f.rest();
}

void read_edge(ge_edge& a, const std::string& text, ge_lines& lines) {
  fields f(text, lines, "edge info");
  a.width = f.real();
  a.color = f.color();
  a.shape = f.choice(edge_shape::circle);
  a.style = f.choice(edge_style::dotted);
  a.direction = f.choice(edge_arrow::both);
  a.label_type = f.choice(label_kind::data);
  a.label_color = f.color();
  a.label_position = f.choice(label_anchor::sw);
  a.source_anchor = f.position();
  a.target_anchor = f.position();
  int bends = f.integer(0, 1000000);
  a.bends.clear();
  for (int k = 0; k < bends; ++k) a.bends.push_back(f.position());
  a.label = f.rest();
}

// "font size": the size is the last word, the font all before it.
void read_font(ge_lines& lines, const char* what, std::string& font, int& size) {
  std::string text = lines.next(what);
  std::size_t cut = text.find_last_of(' ');
  if (cut == std::string::npos || cut == 0) lines.bad(what);
  fields f(text.substr(cut + 1), lines, what);
  size = f.integer(1, 1000);
  f.end();
  font = text.substr(0, cut);
}

void read_settings(ge_settings& s, ge_lines& lines) {
  lines.expect_comment(version_comment);
  {
    std::string text = lines.next("version");
    if (text.rfind("GraphEdit ", 0) != 0) lines.bad("version");
    fields f(text.substr(10), lines, "version");
    s.version = f.real();
    f.end();
  }
  lines.expect_comment(scaling_comment);
  {
    fields f(lines.next("scaling"), lines, "scaling");
    s.scaling = f.real();
    s.wxmin = f.real();
    s.wymin = f.real();
    s.wxmax = f.real();
    s.wymax = f.real();
    f.end();
  }
  lines.expect_comment(node_font_comment);
  read_font(lines, "label font", s.node_font, s.node_font_size);
  lines.expect_comment(edge_font_comment);
  read_font(lines, "edge label font", s.edge_font, s.edge_font_size);
  lines.expect_comment(node_index_comment);
  s.node_index_format = unescape_line(lines.next("node index format"));
  lines.expect_comment(edge_index_comment);
  s.edge_index_format = unescape_line(lines.next("edge index format"));
  lines.expect_comment(distance_comment);
  {
    fields f(lines.next("multi-edge distance"), lines, "multi-edge distance");
    s.multi_edge_distance = f.real();
    f.end();
  }
}

int line_of(const std::string& text, std::streamoff at) {
  int line = 1;
  for (std::streamoff k = 0; k < at && k < static_cast<std::streamoff>(text.size()); ++k)
    if (text[static_cast<std::size_t>(k)] == '\n') ++line;
  return line;
}

}  // namespace

std::string escape_line(const std::string& text) {
  std::string out;
  for (char c : text) {
    if (c == '\\')
      out += "\\\\";
    else if (c == '\n')
      out += "\\n";
    else if (c == '\r')
      out += "\\r";
    else
      out += c;
  }
  return out;
}

std::string unescape_line(const std::string& text) {
  std::string out;
  for (std::size_t k = 0; k < text.size(); ++k) {
    char c = text[k];
    if (c == '\\' && k + 1 < text.size()) {
      char d = text[++k];
      out += d == 'n' ? '\n' : d == 'r' ? '\r' : d;
    } else {
      out += c;
    }
  }
  return out;
}

void write_text_file(const std::string& file_name,
                     const std::function<void(std::ostream&)>& write) {
  std::ofstream out(file_name);
  if (!out) report_error(msg::cannot_write, {file_name});
  write(out);
  if (!out) report_error(msg::cannot_write, {file_name});
}

void write_ge(const ge_graph& x, std::ostream& out) {
  write_graph_file(x.g, out);
  const ge_settings& s = x.settings;
  out << std::setprecision(17);
  comment(out, version_comment);
  char version[64];
  std::snprintf(version, sizeof version, "GraphEdit %f", s.version);
  out << version << '\n';
  comment(out, scaling_comment);
  out << s.scaling << ' ' << s.wxmin << ' ' << s.wymin << ' ' << s.wxmax << ' ' << s.wymax << '\n';
  comment(out, node_font_comment);
  out << s.node_font << ' ' << s.node_font_size << '\n';
  comment(out, edge_font_comment);
  out << s.edge_font << ' ' << s.edge_font_size << '\n';
  comment(out, node_index_comment);
  out << escape_line(s.node_index_format) << '\n';
  comment(out, edge_index_comment);
  out << escape_line(s.edge_index_format) << '\n';
  comment(out, distance_comment);
  out << s.multi_edge_distance << '\n';
  comment(out, node_infos_comment);
  for (node v = x.g.first_node(); v != nullptr; v = graph::succ_node(v)) write_node(out, x.g.inf(v));
  comment(out, edge_infos_comment);
  for (edge e : edges_in_file_order(x.g)) write_edge(out, x.g.inf(e));
}

void write_ge(const ge_graph& x, const std::string& file_name) {
  write_text_file(file_name, [&](std::ostream& out) { write_ge(x, out); });
}

void read_ge(ge_graph& x, std::istream& in, const std::string& name) {
  std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  std::istringstream body(text);
  int fault_line = 0;
  x.settings = ge_settings{};
  switch (read_graph_file(x.g, body, fault_line)) {
    case graph_read_not_a_graph:
      report_error(msg::ge_not_a_graph, {name, 1});
    case graph_read_format_error:
      report_error(msg::ge_graph_format, {name, fault_line});
    default:
      break;
  }
  body.clear();
  int line = line_of(text, body.tellg());
  std::string tail;
  std::getline(body, tail);  // the end of the last edge line
  ge_lines lines(body, name, line);
  read_settings(x.settings, lines);
  lines.expect_comment(node_infos_comment);
  for (node v = x.g.first_node(); v != nullptr; v = graph::succ_node(v))
    read_node(x.g.inf(v), lines.next("node infos"), lines);
  lines.expect_comment(edge_infos_comment);
  for (edge e : edges_in_file_order(x.g)) read_edge(x.g.inf(e), lines.next("edge infos"), lines);
}

void read_ge(ge_graph& x, const std::string& file_name) {
  std::ifstream in(file_name);
  if (!in) report_error(msg::cannot_open, {file_name});
  read_ge(x, in, file_name);
}

}  // namespace mero
