#include "network/location_graph.h"

#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <istream>
#include <limits>
#include <new>
#include <vector>

#include "kernel/error_handler.h"
#include "kernel/graph_array.h"
#include "kernel/graph_connectivity.h"
#include "kernel/index.h"
#include "kernel/reporters.h"
#include "kernel/shortest_paths.h"
#include "network/network_messages.h"

namespace mero {

void graph_info_io<node_weights>::write(std::ostream& out, const node_weights& x) {
  const char* separator = "";
  for (double w : x.weights) {
    out << separator << w;
    separator = " ";
  }
}

void graph_info_io<node_weights>::read(std::istream& in, node_weights& x) {
  x.weights.clear();
  x.scratch.clear();
  for (double w; in >> w;) x.weights.push_back(w);
}

double head_weight(const location_graph& g, node v) {
  const std::list<double>& weights = g.inf(v).weights;
  if (weights.empty()) empty_list_error(network_messages::empty_weights);
  return weights.front();
}

std::vector<double> head_weights(const location_graph& g) {
  std::vector<double> w;
  for (node v = g.first_node(); v != nullptr; v = graph::succ_node(v))
    w.push_back(head_weight(g, v));
  return w;
}

bool is_tree(const graph& g) {
  return g.number_of_nodes() == g.number_of_edges() + 1 && is_connected(g);
}

namespace {

edge_array<double> edge_lengths(const location_graph& g) {
  edge_array<double> lengths(g);
  for (edge e = g.first_edge(); e != nullptr; e = graph::succ_edge(e)) lengths[e] = g.inf(e);
  return lengths;
}

// Error 2005: `copies` n by n tables of double do not fit.
[[noreturn]] void too_large(int n, double copies) {
  const double bytes = static_cast<double>(n) * n * sizeof(double) * copies;
  report_error(network_messages::matrix_too_large,
               {n, static_cast<long long>(bytes / 1048576.0) + 1});
}

// Error 2005 unless `copies` n by n tables of double fit in the machine's memory.
void check_fits(int n, double copies) {
  const double bytes = static_cast<double>(n) * n * sizeof(double) * copies;
  const double memory = static_cast<double>(sysconf(_SC_PHYS_PAGES)) * sysconf(_SC_PAGESIZE);
  if (memory > 0 && bytes > memory) too_large(n, copies);
}

// An n by n matrix, or error 2005 when it does not fit or allocating it fails.
matrix square_matrix(int n) {
  check_fits(n, 1.0);
  try {
    return matrix(n, n);
  } catch (const std::bad_alloc&) {
    too_large(n, 1.0);
  }
}

}  // namespace

shortest_path_rows distance_rows(const location_graph& g) {
  shortest_path_rows rows(g, edge_lengths(g));
  if (rows.usable() && exact_path_sums(g)) rows.drop_dominated_arcs();
  return rows;
}

std::vector<double> distance_table(const location_graph& g) {
  shortest_path_rows rows = distance_rows(g);
  if (!rows.usable()) {
    matrix d = distance_matrix(g);
    std::vector<double> table;
    table.reserve(at(d.dim1()) * at(d.dim1()));
    for (int i = 0; i < d.dim1(); ++i)
      for (int j = 0; j < d.dim1(); ++j) table.push_back(d(i, j));
    return table;
  }
  const int n = rows.size();
  check_fits(n, 1.0);
  std::vector<double> table;
  try {
    table.resize(at(n) * at(n));
  } catch (const std::bad_alloc&) {
    too_large(n, 1.0);
  }
  for (int i = 0; i < n; ++i) {
    double* out = table.data() + at(i) * at(n);
    rows.row(i, out, 0.0);
    for (int j = 0; j < n; ++j) out[j] = cap_distance(out[j]);
  }
  return table;
}

bool exact_path_sums(const location_graph& g) {
  // Every length as m * 2^e with an odd integer m: the least e is the common unit.
  int unit = std::numeric_limits<int>::max();
  for (edge e = g.first_edge(); e != nullptr; e = graph::succ_edge(e)) {
    double x = g.inf(e);
    if (!std::isfinite(x)) return false;
    if (x == 0.0) continue;
    int exponent = 0;
    double mantissa = std::frexp(x, &exponent);  // x = mantissa * 2^exponent, 0.5 <= |m| < 1
    int bits = 53;
    while (bits > 0 && std::ldexp(mantissa, bits - 1) == std::trunc(std::ldexp(mantissa, bits - 1)))
      --bits;
    unit = std::min(unit, exponent - bits);
  }
  if (unit == std::numeric_limits<int>::max()) return true;
  double total = 0.0;  // in units of 2^unit; rounding here errs only upward in size
  for (edge e = g.first_edge(); e != nullptr; e = graph::succ_edge(e))
    total += std::fabs(std::ldexp(g.inf(e), -unit));
  return total < 0x1p52;
}

matrix distance_matrix(const location_graph& g) {
  location_graph copy(g);
  edge_array<double> lengths = edge_lengths(copy);
  // With no negative length the rows are plain Dijkstra runs, written straight into the matrix.
  shortest_path_rows rows = distance_rows(copy);
  if (rows.usable()) {
    const int n = rows.size();
    matrix d = square_matrix(n);
    std::vector<double> row(at(n));
    for (int i = 0; i < n; ++i) {
      rows.row(i, row.data(), 0.0);
      vector& out = d.row(i);
      for (int j = 0; j < n; ++j) out[j] = cap_distance(row[at(j)]);
    }
    return d;
  }
  // Johnson's method: its table and the matrix live side by side.
  check_fits(copy.number_of_nodes(), 2.0);
  std::vector<std::vector<double>> table;
  bool acyclic = false;
  try {
    acyclic = all_pairs_shortest_paths(copy, lengths, table);
  } catch (const std::bad_alloc&) {
    too_large(copy.number_of_nodes(), 2.0);
  }
  if (!acyclic) report_error(network_messages::negative_cycle);
  std::vector<node> nodes = copy.all_nodes();
  int n = static_cast<int>(nodes.size());
  matrix d = square_matrix(n);
  for (int i = 0; i < n; ++i) {
    const std::vector<double>& row = table[static_cast<std::size_t>(graph::index(nodes[i]))];
    for (int j = 0; j < n; ++j) {
      double x = row[static_cast<std::size_t>(graph::index(nodes[j]))];
      d(i, j) = x > network_infinity ? network_infinity : x;
    }
  }
  return d;
}

edge find_edge(const location_graph& g, node u, node v) {
  for (node around : {u, v})
    for (int list = 0; list < 2; ++list)
      for (edge e = g.first_adj_edge(around, list); e != nullptr;
           e = g.next_adj_edge(e, around, list)) {
        node s = graph::source(e), t = graph::target(e);
        if ((s == u && t == v) || (s == v && t == u)) return e;
      }
  report_error(network_messages::not_adjacent);
}

void connection_repair(location_graph& g, const message& question) {
  while (!is_connected(g)) {
    report_question(question, 1, true);
    make_connected(g);
  }
}

location_graph directed_form(const location_graph& g) { return g; }

location_graph undirected_form(const location_graph& g) {
  location_graph copy(g);
  copy.make_undirected();
  return copy;
}

location_graph tree_form(const location_graph& g) {
  location_graph copy = undirected_form(g);
  if (!is_tree(copy)) report_error(network_messages::not_a_tree);
  return copy;
}

void write_graphpointset(std::ostream& out, const graphpointset& points) {
  out << "begin {graphpointset}\n";
  char line[128];
  for (const graph_point& p : points) {
    if (p.first == p.second)
      std::snprintf(line, sizeof line, "Node [%d]", p.first + 1);
    else if (p.position == 0.0)
      std::snprintf(line, sizeof line, "Edge [%d][%d]", p.first + 1, p.second + 1);
    else
      std::snprintf(line, sizeof line, "Point [%d][%d] %lf", p.first + 1, p.second + 1, p.position);
    out << line << '\n';
  }
  out << "end {graphpointset}\n";
}

}  // namespace mero
