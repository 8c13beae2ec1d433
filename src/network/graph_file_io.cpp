#include "network/graph_file_io.h"

#include <fstream>
#include <vector>

#include "kernel/graph_array.h"
#include "kernel/reporters.h"
#include "model/location_scan.h"
#include "network/network_messages.h"

namespace mero {

namespace {

namespace text = network_messages;

void make_nodes(const location_scan& scan, location_graph& g, std::vector<node>& nodes) {
  for (const location& l : scan.scanned_locations) {
    node_weights info;
    for (int i = 0; i < l.weight_dim(); ++i) info.weights.push_back(l.weight(i));
    nodes.push_back(g.new_node(info));
  }
}

// The node of a 1-based number from the file; the file form does not check the range, and an
// out-of-range number is reported instead of being followed.
node numbered_node(const std::vector<node>& nodes, int number, std::size_t line) {
  if (number < 1 || static_cast<std::size_t>(number) > nodes.size())
    report_error(text::node_out_of_range, {number, static_cast<int>(line + 1)});
  return nodes[static_cast<std::size_t>(number - 1)];
}

void make_edges(const location_scan& scan, location_graph& g, const std::vector<node>& nodes) {
  for (std::size_t k = 0; k < scan.adjacency_lengths.size(); ++k)
    g.new_edge(numbered_node(nodes, scan.adjacency_sources[k], k),
               numbered_node(nodes, scan.adjacency_targets[k], k), scan.adjacency_lengths[k]);
}

std::ofstream open_for_writing(const std::string& path, const message& failure) {
  std::ofstream out(path);
  if (!out) report_error(failure);
  return out;
}

}  // namespace

void read_graph(const std::string& path, location_graph& g, facilities& problem) {
  g.clear();
  std::ifstream in = open_scan_input(path, text::reader_open);
  location_scan scan;
  scan.start(in, location_file_types::plain);
  scan_or_report(scan_location_file, scan, text::syntax_error.code);
  scan.finish_nc_locations();
  std::vector<node> nodes;
  if (scan.graph_nodes) make_nodes(scan, g, nodes);
  if (scan.graph_edges) make_edges(scan, g, nodes);
  // Nodes without coordinates have no drawing positions: the viewer lays such a graph out.
  if (scan.location_file_type == location_file_types::nc_graph) scan.scanned_locations.clear();
  static_cast<std::vector<location>&>(problem) = std::move(scan.scanned_locations);
  problem.names = std::move(scan.scanned_names);
}

void write_adjacency(std::ostream& out, const location_graph& g) {
  node_array<int> number(g, 0);
  int k = 0;
  for (node v = g.first_node(); v != nullptr; v = graph::succ_node(v)) number[v] = ++k;
  out << "begin {adjlist}\n";
  for (edge e = g.first_edge(); e != nullptr; e = graph::succ_edge(e))
    out << number[graph::source(e)] << ' ' << number[graph::target(e)] << ' ' << g.inf(e) << '\n';
  out << "end {adjlist}\n";
}

void write_adjacency(const std::string& path, const location_graph& g) {
  std::ofstream out = open_for_writing(path, text::adjacency_writer_open);
  write_adjacency(out, g);
}

void write_graph(std::ostream& out, const location_graph& g, const facilities& problem) {
  out << "begin {merograph} \n";
  int weight_dim = g.first_node() ? static_cast<int>(g.inf(g.first_node()).weights.size()) : 1;
  int dim = problem.empty() ? 2 : problem.front().dim();
  out << "begin {location} [" << dim << ',' << weight_dim << "]\n";
  auto name = problem.names.begin();
  if (!problem.empty()) {
    for (const location& l : problem) {
      out << l << " [" << (name != problem.names.end() ? *name++ : std::string()) << "]\n";
    }
  } else {
    for (node v = g.first_node(); v != nullptr; v = graph::succ_node(v)) {
      out << "NC";
      for (double w : g.inf(v).weights) out << ' ' << w;
      out << " []\n";
    }
  }
  out << "end {location}\n";
  write_adjacency(out, g);
  out << "end {merograph}\n";
}

void write_graph(const std::string& path, const location_graph& g, const facilities& problem) {
  std::ofstream out = open_for_writing(path, text::graph_writer_open);
  write_graph(out, g, problem);
}

}  // namespace mero
