#pragma once
// The model of every network problem: a graph whose nodes carry demand weights and whose edges
// carry lengths, its distance matrix, and results that are sets of points of the graph.
// A node's number is its place in the node list, from 0; algorithms work on copies made in list
// order, so the number is stable.

#include <cstdint>
#include <list>
#include <ostream>
#include <string>
#include <vector>

#include "kernel/graph.h"
#include "kernel/matrix.h"
#include "kernel/reporters.h"
#include "kernel/shortest_paths.h"

namespace mero {

// The information of a node: one demand weight per criterion, and a second list that some
// algorithms fill on their private copies.
struct node_weights {
  std::list<double> weights;
  std::list<double> scratch;
};

template <>
struct graph_info_io<node_weights> {
  static std::string name() { return "node_weights"; }
  static void write(std::ostream& out, const node_weights& x);
  static void read(std::istream& in, node_weights& x);
};

// One point of the network, read in exactly one of three ways, in this order:
// first == second: that node (position 0); position == 0: the whole edge first-second;
// otherwise: the point at fraction position of the way from first to second.
struct graph_point {
  std::int32_t first = 0;
  std::int32_t second = 0;
  double position = 0.0;
  bool operator==(const graph_point&) const = default;
};

using graphpointset = std::list<graph_point>;

class location_graph : public GRAPH<node_weights, double> {
 public:
  graphpointset optima;
};

// 1e50 is the infinity of networks: the start of every minimisation and the cap of distances.
inline constexpr double network_infinity = 1e50;

// The head of v's weight list: the single-criterion demand. An empty list is the kernel's fault.
double head_weight(const location_graph& g, node v);
// The head weights of all nodes, in node order.
std::vector<double> head_weights(const location_graph& g);

bool is_tree(const graph& g);

// Shortest path lengths, rows and columns in node-list order, entries above 1e50 cut to 1e50.
// A pair with no directed path reads 0.0 plus the difference of the Johnson potentials (0.0 when
// no length is negative). A negative cycle is error 2001; a matrix larger than the machine's
// memory is error 2005.
matrix distance_matrix(const location_graph& g);

// The same matrix as one array, row after row: entry (i, j) at i n + j.
std::vector<double> distance_table(const location_graph& g);

// The rows of that matrix one at a time, for the algorithms that read a row and let it go, in
// memory linear in the graph: nodes by their place in the node list, lengths from the edges.
// Usable only when no length is negative or not a number; then row(s, out, 0.0) followed by
// cap_distance of each entry is row s of distance_matrix, bit for bit.
shortest_path_rows distance_rows(const location_graph& g);
inline double cap_distance(double x) { return x > network_infinity ? network_infinity : x; }

// True when every sum of lengths along a path is exact in double: all lengths are whole
// multiples of one power of two and their total, in those units, stays below 2^53. Then a
// distance reads the same from either end of an undirected graph.
bool exact_path_sums(const location_graph& g);

// The first edge joining u and v in either direction, looking around u and then around v;
// error 2002 when there is none.
edge find_edge(const location_graph& g, node u, node v);

// While g is not (weakly) connected: show `message` through the question reporter, which may end
// the run, and join the components with length-0 edges. Works on the graph it is given.
void connection_repair(location_graph& g, const message& question);

// The working forms of a graph that was read: a plain copy, an undirected copy (self-loops
// deleted with the kernel's warning), and the undirected copy of a tree (error 2201 otherwise).
location_graph directed_form(const location_graph& g);
location_graph undirected_form(const location_graph& g);
location_graph tree_form(const location_graph& g);

// The text form of a result: "begin {graphpointset}", a Node, Edge or Point line for each point
// with 1-based node numbers, "end {graphpointset}".
void write_graphpointset(std::ostream& out, const graphpointset& points);

}  // namespace mero
