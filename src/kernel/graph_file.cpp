#include "kernel/graph_file.h"

#include <fstream>
#include <sstream>
#include <unordered_map>
#include <vector>

#include "kernel/error_handler.h"

namespace mero {

namespace {

const char* const format_error = "graph::read(): error in graph format.";

// Raised inside the reader at the first fault of the body; the entry points turn it into the
// kernel's report or into a result with the line of the fault.
struct format_fault {};

// The text between "|{" and its matching "}|", nested pairs included. Leading white space,
// line ends too, is skipped; anything else before "|{" is a format error.
std::string read_information(std::istream& in) {
  in >> std::ws;
  if (in.get() != '|' || in.get() != '{') throw format_fault{};
  std::string text;
  int depth = 1;
  for (int c = in.get(); c != EOF; c = in.get()) {
    if (c == '|' && in.peek() == '{') {
      ++depth;
    } else if (c == '}' && in.peek() == '|') {
      if (--depth == 0) {
        in.get();
        return text;
      }
    }
    text.push_back(static_cast<char>(c));
  }
  throw format_fault{};
  return text;
}

int read_count(std::istream& in) {
  long count = -1;
  if (!(in >> count) || count < 0 || count > 1000000000L) throw format_fault{};
  return static_cast<int>(count);
}

std::string read_type_line(std::istream& in) {
  std::string line;
  if (!std::getline(in >> std::ws, line)) throw format_fault{};
  while (!line.empty() && (line.back() == '\r' || line.back() == ' ')) line.pop_back();
  return line;
}

// The information is parsed by the graph's own read operation only when the file holds the
// graph's type; otherwise the item keeps its default information.
template <typename item, typename reader>
void take_information(std::istream& in, bool same_type, item x, reader read) {
  std::string text = read_information(in);
  if (!same_type) return;
  std::istringstream field(text);
  read(field, x);
}

void read_edges(graph& g, std::istream& in, const std::vector<node>& nodes, bool same_type) {
  int m = read_count(in);
  std::vector<edge> edges;
  for (int k = 1; k <= m; ++k) {
    long s = 0, t = 0, r = 0;
    if (!(in >> s >> t >> r) || s < 1 || t < 1 || s > static_cast<long>(nodes.size()) ||
        t > static_cast<long>(nodes.size()) || r < 0)
      throw format_fault{};
    edge e =
        g.new_edge(nodes[static_cast<std::size_t>(s - 1)], nodes[static_cast<std::size_t>(t - 1)]);
    take_information(in, same_type, e, [&](std::istream& f, edge x) { g.read_edge_info(f, x); });
    // A reversal refers back to an earlier line; a later one is linked when that line names
    // this one.
    if (r > 0 && r < k) graph::set_reversal(e, edges[static_cast<std::size_t>(r - 1)]);
    edges.push_back(e);
  }
}


int read_graph_body(graph& g, std::istream& in) {
  g.clear();
  std::string word;
  if (!(in >> word) || word != "ORBA.GRAPH") return graph_read_not_a_graph;
  bool same_nodes = read_type_line(in) == g.node_type_name();
  bool same_edges = read_type_line(in) == g.edge_type_name();
  int n = read_count(in);
  std::vector<node> nodes;
  for (int k = 0; k < n; ++k) {
    node v = g.new_node();
    take_information(in, same_nodes, v, [&](std::istream& f, node x) { g.read_node_info(f, x); });
    nodes.push_back(v);
  }
  read_edges(g, in, nodes, same_edges);
  return same_nodes && same_edges ? graph_read_ok : graph_read_other_types;
}

}  // namespace

int read_graph_file(graph& g, std::istream& in) {
  try {
    return read_graph_body(g, in);
  } catch (const format_fault&) {
    kernel_error(1, format_error);
  }
  return graph_read_ok;
}

int read_graph_file(graph& g, std::istream& in, int& fault_line) {
  std::streampos start = in.tellg();
  try {
    return read_graph_body(g, in);
  } catch (const format_fault&) {
    in.clear();
    std::streampos at = in.tellg();
    fault_line = 1;
    if (start != std::streampos(-1) && at != std::streampos(-1)) {
      in.seekg(start);
      for (std::streamoff k = 0; k < at - start; ++k)
        if (in.get() == '\n') ++fault_line;
    }
    return graph_read_format_error;
  }
}

int read_graph_file(graph& g, const std::string& file_name) {
  std::ifstream in(file_name);
  if (!in) return graph_read_cannot_open;
  return read_graph_file(g, in);
}

void write_graph_file(const graph& g, std::ostream& out) {
  out << "ORBA.GRAPH\n" << g.node_type_name() << '\n' << g.edge_type_name() << '\n';
  out << g.number_of_nodes() << '\n';
  std::unordered_map<node, int> node_number;
  for (node v = g.first_node(); v != nullptr; v = graph::succ_node(v)) {
    node_number[v] = static_cast<int>(node_number.size()) + 1;
    out << "|{";
    g.write_node_info(out, v);
    out << "}|\n";
  }
  std::vector<edge> order;
  std::unordered_map<edge, int> edge_number;
  for (node v = g.first_node(); v != nullptr; v = graph::succ_node(v))
    for (edge e : g.adj_edges(v, 0))
      if (graph::source(e) == v) {
        order.push_back(e);
        edge_number[e] = static_cast<int>(order.size());
      }
  out << order.size() << '\n';
  for (edge e : order) {
    edge r = graph::reversal(e);
    out << node_number[graph::source(e)] << ' ' << node_number[graph::target(e)] << ' '
        << (r != nullptr ? edge_number[r] : 0) << " |{";
    g.write_edge_info(out, e);
    out << "}|\n";
  }
}

void write_graph_file(const graph& g, const std::string& file_name) {
  std::ofstream out(file_name);
  if (!out) kernel_error(1, "graph::write() cannot open file " + file_name);
  write_graph_file(g, out);
}

}  // namespace mero
