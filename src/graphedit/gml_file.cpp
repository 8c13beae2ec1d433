#include "graphedit/gml_file.h"

#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <iomanip>
#include <map>
#include <memory>
#include <sstream>
#include <vector>

#include "graphedit/ge_file.h"
#include "graphedit/graphedit_messages.h"

namespace mero {

namespace msg = graphedit_messages;

namespace {

// ---- the words of the attribute values ----

const char* const node_shape_words[] = {"oval", "rectangle"};
const char* const label_kind_words[] = {"text", "index_label", "data_label"};
const char* const anchor_words[] = {"c", "n", "s", "e", "w", "ne", "nw", "se", "sw"};
const char* const edge_shape_words[] = {"", "bezier_edge", "spline_edge", "circle_edge"};
const char* const edge_style_words[] = {"", "dashed_edge", "dotted_edge"};
const char* const arrow_words[] = {"none", "last", "first", "both"};

template <typename E, std::size_t N>
const char* word_of(E value, const char* const (&words)[N]) {
  return words[static_cast<std::size_t>(value)];
}

std::string color_word(int rgb) {
  char text[8];
  std::snprintf(text, sizeof text, "#%06x", rgb & 0xffffff);
  return text;
}

// GML strings hold no double quote; '&' and '"' are written as entities.
std::string quoted(const std::string& text) {
  std::string out = "\"";
  for (char c : text) {
    if (c == '&')
      out += "&amp;";
    else if (c == '"')
      out += "&quot;";
    else
      out += c;
  }
  return out + '"';
}

std::string unquoted(const std::string& text) {
  std::string out;
  for (std::size_t k = 0; k < text.size(); ++k) {
    if (text.compare(k, 5, "&amp;") == 0) {
      out += '&';
      k += 4;
    } else if (text.compare(k, 6, "&quot;") == 0) {
      out += '"';
      k += 5;
    } else {
      out += text[k];
    }
  }
  return out;
}

// ---- the tree of a GML text ----

struct gml_value;
using gml_list = std::vector<std::pair<std::string, gml_value>>;

struct gml_value {
  enum class kind { integer, real, text, list } what = kind::integer;
  int line = 0;
  long integer = 0;
  double real = 0;
  std::string text;
  std::shared_ptr<gml_list> list;
};

class gml_parser {
 public:
  gml_parser(const std::string& text, const std::string& name) : text_(text), name_(name) {}

  gml_list parse_top() {
    gml_list top = parse_list(nullptr, 0);
    return top;
  }

 private:
  void skip_space() {
    while (at_ < text_.size()) {
      char c = text_[at_];
      if (c == '\n') {
        ++line_;
        ++at_;
      } else if (c == ' ' || c == '\t' || c == '\r') {
        ++at_;
      } else if (c == '#' && at_line_start()) {
        while (at_ < text_.size() && text_[at_] != '\n') ++at_;
      } else {
        return;
      }
    }
  }
  // A comment line begins with '#' as its first non-blank character.
  bool at_line_start() const {
    for (std::size_t k = at_; k > 0; --k) {
      char c = text_[k - 1];
      if (c == '\n') return true;
      if (c != ' ' && c != '\t' && c != '\r') return false;
    }
    return true;
  }
  std::string word_here() const {
    std::size_t end = at_;
    while (end < text_.size() && !std::isspace(static_cast<unsigned char>(text_[end]))) ++end;
    return text_.substr(at_, std::min<std::size_t>(end - at_, 40));
  }
  [[noreturn]] void syntax() {
    std::string at = at_ < text_.size() ? word_here() : "end of file";
    report_error(msg::gml_syntax, {name_, line_, at});
  }

  // Key-value pairs up to the closing ']' (inside a list) or the end of the text (at the top).
  gml_list parse_list(const std::string* key, int opened_at) {
    gml_list items;
    for (;;) {
      skip_space();
      if (at_ >= text_.size()) {
        if (key != nullptr) report_error(msg::gml_unclosed_list, {name_, opened_at, *key});
        return items;
      }
      if (text_[at_] == ']') {
        if (key == nullptr) syntax();
        ++at_;
        return items;
      }
      if (!std::isalpha(static_cast<unsigned char>(text_[at_])) && text_[at_] != '_') syntax();
      std::size_t start = at_;
      while (at_ < text_.size() &&
             (std::isalnum(static_cast<unsigned char>(text_[at_])) || text_[at_] == '_'))
        ++at_;
      std::string name = text_.substr(start, at_ - start);
      skip_space();
      items.emplace_back(name, parse_value(name));
    }
  }

  gml_value parse_value(const std::string& key) {
    gml_value v;
    v.line = line_;
    if (at_ >= text_.size()) syntax();
    char c = text_[at_];
    if (c == '[') {
      // Deeper nesting than any drawing needs is refused before it exhausts the stack.
      if (++depth_ > 200) syntax();
      ++at_;
      v.what = gml_value::kind::list;
      v.list = std::make_shared<gml_list>(parse_list(&key, v.line));
      --depth_;
    } else if (c == '"') {
      std::size_t end = text_.find('"', at_ + 1);
      if (end == std::string::npos) report_error(msg::gml_unterminated_string, {name_, line_});
      std::string raw = text_.substr(at_ + 1, end - at_ - 1);
      for (char d : raw)
        if (d == '\n') ++line_;
      at_ = end + 1;
      v.what = gml_value::kind::text;
      v.text = unquoted(raw);
    } else if (std::isdigit(static_cast<unsigned char>(c)) || c == '-' || c == '+' || c == '.') {
      std::size_t end = at_;
      while (end < text_.size() && !std::isspace(static_cast<unsigned char>(text_[end])) &&
             text_[end] != ']' && text_[end] != '[')
        ++end;
      std::string number = text_.substr(at_, end - at_);
      const char* first = number.c_str();
      char* stop = nullptr;
      errno = 0;
      if (number.find_first_of(".eE") == std::string::npos) {
        v.integer = std::strtol(first, &stop, 10);
        v.real = static_cast<double>(v.integer);
      } else {
        v.what = gml_value::kind::real;
        v.real = std::strtod(first, &stop);
      }
      if (stop != first + number.size() || errno != 0 || !std::isfinite(v.real)) syntax();
      at_ = end;
    } else {
      syntax();
    }
    return v;
  }

  const std::string& text_;
  const std::string& name_;
  std::size_t at_ = 0;
  int line_ = 1;
  int depth_ = 0;
};

// ---- from the tree to the graph ----

class gml_reader {
 public:
  explicit gml_reader(const std::string& name) : name_(name) {}

  double real(const std::string& key, const gml_value& v) {
    if (v.what != gml_value::kind::integer && v.what != gml_value::kind::real)
      bad(key, v, "a number");
    return v.real;
  }
  long integer(const std::string& key, const gml_value& v) {
    if (v.what != gml_value::kind::integer) bad(key, v, "an integer");
    return v.integer;
  }
  const std::string& text(const std::string& key, const gml_value& v) {
    if (v.what != gml_value::kind::text) bad(key, v, "a string");
    return v.text;
  }
  const gml_list& list(const std::string& key, const gml_value& v) {
    if (v.what != gml_value::kind::list) bad(key, v, "a list");
    return *v.list;
  }
  int color(const std::string& key, const gml_value& v) {
    const std::string& t = text(key, v);
    bool ok = t.size() == 7 && t[0] == '#';
    for (std::size_t k = 1; ok && k < 7; ++k)
      ok = std::isxdigit(static_cast<unsigned char>(t[k])) != 0;
    if (!ok) bad(key, v, "a colour \"#rrggbb\"");
    return static_cast<int>(std::strtol(t.c_str() + 1, nullptr, 16));
  }
  template <typename E, std::size_t N>
  E choice(const std::string& key, const gml_value& v, const char* const (&words)[N],
           const char* what) {
    const std::string& t = text(key, v);
    for (std::size_t k = 0; k < N; ++k)
      if (*words[k] != '\0' && t == words[k]) return static_cast<E>(k);
    report_error(msg::gml_unknown_word, {name_, v.line, what, t});
  }

  // A numeric key that the editor does not know is kept with its value; any other is skipped.
  static void keep_number(std::map<std::string, double>& values, const std::string& key,
                          const gml_value& v) {
    if (v.what == gml_value::kind::integer || v.what == gml_value::kind::real)
      values[key] = v.real;
  }

  void node_graphics(ge_node& a, const gml_list& items) {
    for (const auto& [key, v] : items) {
      if (key == "x")
        a.position = point(real(key, v), a.position.ycoord());
      else if (key == "y")
        a.position = point(a.position.xcoord(), real(key, v));
      else if (key == "w")
        a.radius1 = real(key, v) / 2;
      else if (key == "h")
        a.radius2 = real(key, v) / 2;
      else if (key == "type")
        a.shape = choice<node_shape>(key, v, node_shape_words, "node type");
      else if (key == "width")
        a.border_width = real(key, v);
      else if (key == "fill")
        a.color = color(key, v);
      else if (key == "outline")
        a.border_color = color(key, v);
    }
  }

  template <typename item>
  void label_graphics(item& a, const gml_list& items) {
    for (const auto& [key, v] : items) {
      if (key == "type")
        a.label_type = choice<label_kind>(key, v, label_kind_words, "label type");
      else if (key == "fill")
        a.label_color = color(key, v);
      else if (key == "anchor")
        a.label_position = choice<label_anchor>(key, v, anchor_words, "label anchor");
    }
  }

  void read_node(ge_graph& x, const gml_value& item) {
    ge_node a;
    long id = 0;
    bool has_id = false;
    for (const auto& [key, v] : list("node", item)) {
      if (key == "id") {
        id = integer(key, v);
        has_id = true;
      } else if (key == "label") {
        a.label = text(key, v);
      } else if (key == "parameter") {
        a.data = text(key, v);
      } else if (key == "labelAnchor") {
        a.label_position = choice<label_anchor>(key, v, anchor_words, "label anchor");
      } else if (key == "graphics") {
        node_graphics(a, list(key, v));
      } else if (key == "LabelGraphics") {
        label_graphics(a, list(key, v));
      } else {
        keep_number(a.values, key, v);
      }
    }
    if (!has_id || nodes_.count(id) != 0) report_error(msg::gml_node_id, {name_, item.line});
    nodes_[id] = x.g.new_node(a);
  }

  void bend_line(ge_edge& a, const gml_list& items) {
    for (const auto& [key, v] : items) {
      if (key != "point") continue;
      bool has_x = false, has_y = false;
      double px = 0, py = 0;
      for (const auto& [k, c] : list(key, v)) {
        if (k == "x") {
          px = real(k, c);
          has_x = true;
        } else if (k == "y") {
          py = real(k, c);
          has_y = true;
        }
      }
      if (has_x && has_y)
        a.bends.emplace_back(px, py);
      else
        report_message(msg::gml_incomplete_bend, true);
    }
  }

  void edge_graphics(ge_edge& a, const gml_list& items) {
    bool smooth = false, shaped = false;
    for (const auto& [key, v] : items) {
      if (key == "arrow") {
        a.direction = choice<edge_arrow>(key, v, arrow_words, "arrow");
      } else if (key == "width") {
        a.width = real(key, v);
      } else if (key == "fill") {
        a.color = color(key, v);
      } else if (key == "style") {
        a.style = choice<edge_style>(key, v, edge_style_words, "edge style");
      } else if (key == "smooth") {
        smooth = integer(key, v) != 0;
      } else if (key == "shape") {
        a.shape = choice<edge_shape>(key, v, edge_shape_words, "edge shape");
        shaped = true;
      } else if (key == "Line") {
        bend_line(a, list(key, v));
      }
    }
    // "smooth 1" alone asks for a curve through the bends.
    if (smooth && !shaped) a.shape = edge_shape::bezier;
  }

  void edge_anchor(ge_edge& a, const gml_list& items) {
    double sx = a.source_anchor.xcoord(), sy = a.source_anchor.ycoord();
    double tx = a.target_anchor.xcoord(), ty = a.target_anchor.ycoord();
    for (const auto& [key, v] : items) {
      if (key == "xSource")
        sx = real(key, v);
      else if (key == "ySource")
        sy = real(key, v);
      else if (key == "xTarget")
        tx = real(key, v);
      else if (key == "yTarget")
        ty = real(key, v);
    }
    a.source_anchor = point(sx, sy);
    a.target_anchor = point(tx, ty);
  }

  node end_node(const gml_value& item, bool found, long id, const char* which) {
    auto it = nodes_.find(id);
    if (!found || it == nodes_.end()) report_error(msg::gml_edge_end, {name_, item.line, which});
    return it->second;
  }

  void read_edge(ge_graph& x, const gml_value& item) {
    ge_edge a;
    long s = 0, t = 0;
    bool has_s = false, has_t = false;
    for (const auto& [key, v] : list("edge", item)) {
      if (key == "source") {
        s = integer(key, v);
        has_s = true;
      } else if (key == "target") {
        t = integer(key, v);
        has_t = true;
      } else if (key == "label") {
        a.label = text(key, v);
      } else if (key == "parameter") {
        a.data = text(key, v);
      } else if (key == "graphics") {
        edge_graphics(a, list(key, v));
      } else if (key == "LabelGraphics") {
        label_graphics(a, list(key, v));
      } else if (key == "edgeAnchor") {
        edge_anchor(a, list(key, v));
      } else if (key != "id") {
        keep_number(a.values, key, v);
      }
    }
    node v = end_node(item, has_s, s, "source");
    node w = end_node(item, has_t, t, "target");
    x.g.new_edge(v, w, a);
  }

  void read_graph(ge_graph& x, const gml_list& items) {
    for (const auto& [key, v] : items) {
      if (key == "label")
        x.settings.label = text(key, v);
      else if (key == "directed")
        x.settings.directed = integer(key, v) != 0;
      else if (key == "node")
        read_node(x, v);
    }
    // Edges after all nodes, so that an edge may name a node that the file lists later.
    for (const auto& [key, v] : items)
      if (key == "edge") read_edge(x, v);
  }

 private:
  [[noreturn]] void bad(const std::string& key, const gml_value& v, const char* what) {
    report_error(msg::gml_bad_value, {name_, v.line, key, what});
  }

  const std::string& name_;
  std::map<long, node> nodes_;
};

// ---- writer ----

void write_label_graphics(std::ostream& out, label_kind type, int color, label_anchor anchor,
                          const char* indent) {
  out << indent << "LabelGraphics [\n"
      << indent << "  type " << quoted(word_of(type, label_kind_words)) << '\n'
      << indent << "  fill " << quoted(color_word(color)) << '\n'
      << indent << "  anchor " << quoted(word_of(anchor, anchor_words)) << '\n'
      << indent << "]\n";
}

void write_values(std::ostream& out, const std::map<std::string, double>& values) {
  for (const auto& [key, value] : values) out << "    " << key << ' ' << value << '\n';
}

void write_node(std::ostream& out, const ge_node& a, int id) {
  out << "  node [\n"
      << "    id " << id << '\n'
      << "    label " << quoted(a.label) << '\n'
      << "    parameter " << quoted(a.data) << '\n';
  write_values(out, a.values);
  out
      << "    graphics [\n"
      << "      x " << a.position.xcoord() << '\n'
      << "      y " << a.position.ycoord() << '\n'
      << "      w " << 2 * a.radius1 << '\n'
      << "      h " << 2 * a.radius2 << '\n'
      << "      type " << quoted(word_of(a.shape, node_shape_words)) << '\n'
      << "      width " << a.border_width << '\n'
      << "      fill " << quoted(color_word(a.color)) << '\n'
      << "      outline " << quoted(color_word(a.border_color)) << '\n'
      << "    ]\n";
  write_label_graphics(out, a.label_type, a.label_color, a.label_position, "    ");
  out << "  ]\n";
}

void write_edge(std::ostream& out, const ge_edge& a, int source, int target) {
  out << "  edge [\n"
      << "    source " << source << '\n'
      << "    target " << target << '\n'
      << "    parameter " << quoted(a.data) << '\n'
      << "    label " << quoted(a.label) << '\n';
  write_values(out, a.values);
  out << "    graphics [\n"
      << "      type \"line\"\n"
      << "      arrow " << quoted(word_of(a.direction, arrow_words)) << '\n'
      << "      width " << a.width << '\n'
      << "      fill " << quoted(color_word(a.color)) << '\n';
  if (a.style != edge_style::solid)
    out << "      style " << quoted(word_of(a.style, edge_style_words)) << '\n';
  if (a.shape != edge_shape::poly)
    out << "      smooth 1\n"
        << "      shape " << quoted(word_of(a.shape, edge_shape_words)) << '\n';
  if (!a.bends.empty()) {
    out << "      Line [\n";
    for (const point& p : a.bends)
      out << "        point [\n"
          << "          x " << p.xcoord() << '\n'
          << "          y " << p.ycoord() << '\n'
          << "        ]\n";
    out << "      ]\n";
  }
  out << "    ]\n";
  write_label_graphics(out, a.label_type, a.label_color, a.label_position, "    ");
  out << "    edgeAnchor [\n"
      << "      xSource " << a.source_anchor.xcoord() << '\n'
      << "      ySource " << a.source_anchor.ycoord() << '\n'
      << "      xTarget " << a.target_anchor.xcoord() << '\n'
      << "      yTarget " << a.target_anchor.ycoord() << '\n'
      << "    ]\n"
      << "  ]\n";
}

}  // namespace

void write_gml(const ge_graph& x, std::ostream& out) {
  out << std::setprecision(17);
  out << "Creator " << quoted("ORBA GraphEdit") << '\n'
      << "Version " << x.settings.version << '\n'
      << "graph [\n"
      << "  label " << quoted(x.settings.label) << '\n'
      << "  directed " << (x.settings.directed ? 1 : 0) << '\n';
  std::map<node, int> id;
  for (node v = x.g.first_node(); v != nullptr; v = graph::succ_node(v)) {
    int k = static_cast<int>(id.size());
    id[v] = k;
    write_node(out, x.g.inf(v), k);
  }
  for (edge e : edges_in_file_order(x.g))
    write_edge(out, x.g.inf(e), id[graph::source(e)], id[graph::target(e)]);
  out << "]\n";
}

void write_gml(const ge_graph& x, const std::string& file_name) {
  write_text_file(file_name, [&](std::ostream& out) { write_gml(x, out); });
}

void read_gml(ge_graph& x, std::istream& in, const std::string& name) {
  std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  gml_list top = gml_parser(text, name).parse_top();
  x.g.clear();
  x.settings = ge_settings{};
  gml_reader reader(name);
  const gml_value* graph_value = nullptr;
  for (const auto& [key, v] : top) {
    if (key == "Version") x.settings.version = reader.real(key, v);
    if (key == "graph" && graph_value == nullptr) graph_value = &v;
  }
  if (graph_value == nullptr) report_error(msg::gml_no_graph, {name});
  reader.read_graph(x, reader.list("graph", *graph_value));
}

void read_gml(ge_graph& x, const std::string& file_name) {
  std::ifstream in(file_name);
  if (!in) report_error(msg::cannot_open, {file_name});
  read_gml(x, in, file_name);
}

}  // namespace mero
