#include "graphedit/graph_convert.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <iomanip>
#include <optional>
#include <sstream>

#include "graphedit/ge_file.h"
#include "graphedit/gml_file.h"
#include "graphedit/graphedit_messages.h"
#include "graphedit/simple_layouts.h"
#include "kernel/graph_file.h"
#include "network/graph_file_io.h"

namespace mero {

namespace msg = graphedit_messages;

namespace {

std::string file_text(const std::string& file_name) {
  std::ifstream in(file_name, std::ios::binary);
  if (!in) report_error(msg::cannot_open, {file_name});
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

std::string lower(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

bool ends_with(const std::string& text, const std::string& tail) {
  return text.size() >= tail.size() &&
         lower(text.substr(text.size() - tail.size())) == tail;
}

// The whole text as a finite number, blanks around it allowed.
std::optional<double> number_in(const std::string& text) {
  const char* first = text.c_str();
  char* stop = nullptr;
  errno = 0;
  double x = std::strtod(first, &stop);
  if (stop == first || errno != 0 || !std::isfinite(x)) return std::nullopt;
  while (*stop == ' ' || *stop == '\t') ++stop;
  if (*stop != '\0') return std::nullopt;
  return x;
}

template <typename item>
std::optional<double> key_value(const item& a, const std::string& key) {
  if (key == "data") return number_in(a.data);
  if (key == "label") return number_in(a.label);
  auto it = a.values.find(key);
  if (it == a.values.end()) return std::nullopt;
  return it->second;
}

// A graph that takes the item types of the native file it reads, so that information of any
// type is read as text instead of being dropped.
class any_typed_graph : public GRAPH<ge_node, ge_edge> {
 public:
  std::string node_type = "void";
  std::string edge_type = "void";
  std::string node_type_name() const override { return node_type; }
  std::string edge_type_name() const override { return edge_type; }
};

std::string type_line(std::istream& in) {
  std::string line;
  std::getline(in >> std::ws, line);
  while (!line.empty() && (line.back() == '\r' || line.back() == ' ')) line.pop_back();
  return line;
}

void read_native(ge_graph& x, const std::string& text, const std::string& name) {
  any_typed_graph typed;
  std::istringstream head(text);
  std::string word;
  head >> word;
  typed.node_type = type_line(head);
  typed.edge_type = type_line(head);
  std::istringstream in(text);
  int fault_line = 0;
  if (read_graph_file(typed, in, fault_line) == graph_read_format_error)
    report_error(msg::ge_graph_format, {name, fault_line});
  x.g = typed;
  x.settings = ge_settings{};
}

// Nodes on a circle wide enough for neighbours to stand apart, the world box around it.
void lay_out_on_circle(ge_graph& x) {
  double radius = std::max(50.0, 10.0 * x.g.number_of_nodes());
  circular_layout(x, point(radius + 20, radius + 20), radius);
  x.settings.wxmin = x.settings.wymin = 0;
  x.settings.wxmax = x.settings.wymax = 2 * radius + 40;
}

// True when the nodes have no drawing: two or more, all at one point.
bool without_positions(const ge_graph& x) {
  node first = x.g.first_node();
  if (first == nullptr || x.g.number_of_nodes() < 2) return false;
  for (node v = first; v != nullptr; v = graph::succ_node(v))
    if (!(x.g.inf(v).position == x.g.inf(first).position)) return false;
  return true;
}

// Location names hold neither ']' nor a line end.
std::string location_name(const std::string& label) {
  std::string name = label;
  for (char& c : name)
    if (c == ']' || c == '\n' || c == '\r') c = '_';
  return name;
}

std::string number_text(double x) {
  std::ostringstream out;
  out << std::setprecision(15) << x;
  return out.str();
}

}  // namespace

graph_file_kind sniff_graph_file(const std::string& file_name) {
  std::string text = file_text(file_name);
  std::string low = lower(text);
  std::size_t merograph = low.find("begin");
  while (merograph != std::string::npos) {
    std::size_t k = merograph + 5;
    while (k < low.size() && (low[k] == ' ' || low[k] == '\t')) ++k;
    if (low.compare(k, 1, "{") == 0) {
      ++k;
      while (k < low.size() && (low[k] == ' ' || low[k] == '\t')) ++k;
      if (low.compare(k, 9, "merograph") == 0) return graph_file_kind::mero;
    }
    merograph = low.find("begin", merograph + 5);
  }
  std::istringstream in(text);
  std::string word;
  in >> word;
  if (word == "ORBA.GRAPH")
    return text.find("# version string") != std::string::npos ? graph_file_kind::ge
                                                               : graph_file_kind::native;
  return graph_file_kind::gml;
}

void read_editor_graph(ge_graph& x, const std::string& file_name) {
  switch (sniff_graph_file(file_name)) {
    case graph_file_kind::ge:
      read_ge(x, file_name);
      break;
    case graph_file_kind::native:
      read_native(x, file_text(file_name), file_name);
      lay_out_on_circle(x);
      break;
    case graph_file_kind::gml:
    case graph_file_kind::mero:
      // A mero graph file is not an editor graph; GML is the reader of last resort.
      read_gml(x, file_name);
      break;
  }
}

void editor_to_network(const ge_graph& x, const convert_keys& keys, location_graph& g,
                       facilities& places) {
  g.clear();
  places.clear();
  places.names.clear();
  std::unordered_map<node, node> made;
  int number = 0;
  for (node v = x.g.first_node(); v != nullptr; v = graph::succ_node(v)) {
    ++number;
    const ge_node& a = x.g.inf(v);
    node_weights info;
    for (const std::string& key : keys.weights) {
      std::optional<double> w = key_value(a, key);
      if (!w) report_error(msg::convert_node_key, {number, key});
      info.weights.push_back(*w);
    }
    if (keys.weights.empty()) info.weights.push_back(1);
    location place(2, static_cast<int>(info.weights.size()));
    place.coordinate_ref(0) = a.position.xcoord();
    place.coordinate_ref(1) = a.position.ycoord();
    int k = 0;
    for (double w : info.weights) place.weight_ref(k++) = w;
    places.push_back(place);
    places.names.push_back(location_name(a.label));
    made[v] = g.new_node(info);
  }
  std::unordered_map<node, int> position;
  number = 0;
  for (node v = x.g.first_node(); v != nullptr; v = graph::succ_node(v)) position[v] = ++number;
  number = 0;
  for (edge e : edges_in_file_order(x.g)) {
    ++number;
    node s = graph::source(e), t = graph::target(e);
    double length = 0;
    if (keys.length.empty()) {
      length = x.g.inf(s).position.distance(x.g.inf(t).position);
    } else {
      std::optional<double> l = key_value(x.g.inf(e), keys.length);
      if (!l) report_error(msg::convert_edge_key, {number, position[s], position[t], keys.length});
      length = *l;
    }
    g.new_edge(made[s], made[t], length);
  }
}

ge_graph network_to_editor(const location_graph& g, const facilities& places) {
  ge_graph x;
  // Nodes without coordinates ("NC") leave no locations, or locations without coordinates.
  bool positioned = !places.empty() && places.front().dim() >= 1;
  auto place = places.begin();
  auto name = places.names.begin();
  for (node v = g.first_node(); v != nullptr; v = graph::succ_node(v)) {
    ge_node a;
    if (positioned && place != places.end() && place->dim() >= 1) {
      a.position = point(place->coordinate(0), place->dim() > 1 ? place->coordinate(1) : 0.0);
      ++place;
    }
    if (name != places.names.end()) a.label = *name++;
    a.label_type = label_kind::text;
    int column = 0;
    for (double w : g.inf(v).weights) {
      ++column;
      a.values[column == 1 ? "weight" : "weight" + std::to_string(column)] = w;
      if (column == 1) a.data = number_text(w);
    }
    x.g.new_node(a);
  }
  std::vector<node> nodes = x.g.all_nodes();
  std::unordered_map<node, std::size_t> index;
  std::size_t k = 0;
  for (node v = g.first_node(); v != nullptr; v = graph::succ_node(v)) index[v] = k++;
  for (edge e = g.first_edge(); e != nullptr; e = graph::succ_edge(e)) {
    ge_edge a;
    a.values["length"] = g.inf(e);
    a.data = number_text(g.inf(e));
    a.label = a.data;
    x.g.new_edge(nodes[index[graph::source(e)]], nodes[index[graph::target(e)]], a);
  }
  if (!positioned) {
    lay_out_on_circle(x);
    return x;
  }
  // The world box of the drawing, with node sizes that fit it.
  layout_box box = position_box(x);
  double xmin = box.xmin, ymin = box.ymin, xmax = box.xmax, ymax = box.ymax;
  double extent = std::max(xmax - xmin, ymax - ymin);
  double radius = extent > 0 ? extent / 25 : 10;
  for (node v : nodes) x.g.inf(v).radius1 = x.g.inf(v).radius2 = radius;
  if (!nodes.empty()) {
    x.settings.wxmin = xmin - 2 * radius;
    x.settings.wymin = ymin - 2 * radius;
    x.settings.wxmax = xmax + 2 * radius;
    x.settings.wymax = ymax + 2 * radius;
  }
  return x;
}

void convert_graph_file(const std::string& in, const std::string& out, const convert_keys& keys) {
  bool to_ge = ends_with(out, ".ge");
  bool to_gml = ends_with(out, ".gml");
  ge_graph x;
  if (sniff_graph_file(in) == graph_file_kind::mero) {
    if (!keys.weights.empty() || !keys.length.empty()) report_error(msg::convert_keys_unused);
    location_graph g;
    facilities places;
    read_graph(in, g, places);
    if (g.number_of_nodes() == 0) report_error(msg::convert_empty, {in});
    x = network_to_editor(g, places);
    if (to_ge)
      write_ge(x, out);
    else
      write_gml(x, out);
    return;
  }
  read_editor_graph(x, in);
  if (x.g.number_of_nodes() == 0) report_error(msg::convert_empty, {in});
  if (to_ge || to_gml) {
    if (!keys.weights.empty() || !keys.length.empty()) report_error(msg::convert_keys_unused);
    to_ge ? write_ge(x, out) : write_gml(x, out);
    return;
  }
  if (without_positions(x)) lay_out_on_circle(x);
  location_graph g;
  facilities places;
  editor_to_network(x, keys, g, places);
  write_text_file(out, [&](std::ostream& o) {
    o << std::setprecision(15);
    write_graph(o, g, places);
  });
}

}  // namespace mero
