#pragma once
// Problems on a graph whose nodes carry Q weights, one per criterion: the Q objectives of a point
// of the network, the points that are Pareto optimal for them, and the nodes that are
// lexicographically optimal for some order of the criteria. All comparisons are exact.

#include <cstdint>
#include <list>
#include <vector>

#include "kernel/matrix.h"
#include "kernel/vector.h"
#include "network/location_graph.h"

namespace mero {

// One optimal stretch: the node `first` when second == first, otherwise the stretch of the edge
// first-second from fraction `from` to fraction `to` of the way (from == to: one point).
struct pareto_piece {
  std::int32_t first = 0;
  std::int32_t second = 0;
  double from = 0.0;
  double to = 0.0;
  bool operator==(const pareto_piece&) const = default;
};

// The pieces with the objective vector (length Q) at `from` and at `to` of each, in parallel.
struct pareto_result {
  std::list<pareto_piece> pieces;
  std::list<vector> at_from;
  std::list<vector> at_to;

  void append(const pareto_piece& p, const vector& from_value, const vector& to_value);
};

// The number of criteria: the length of the first node's weight list (0 for a graph without
// nodes).
int criteria_count(const location_graph& g);

// W(q, i) = the q-th weight of node i, for the first Q weights of each node. A node with fewer
// than Q weights meets the kernel's empty list check.
matrix criteria_weights(const location_graph& g, int q_count);

// F(q, x): the objective q of node x from the distance matrix d and the weights w. Sum or (with
// center) largest of d(i,x) * w(q,i); directed, the round trip d(x,i) + d(i,x) is used, not
// halved. The largest starts from 0.
matrix objective_matrix(const matrix& d, const matrix& w, bool directed, bool center);

// The columns of f, one vector per node.
std::vector<vector> columns_of(const matrix& f);

// True when no entry of a is greater than that of b and at least one is smaller.
bool dominates(const vector& a, const vector& b);

// The largest weighted distance, per criterion, of the point at fraction t of the edge u-v of
// length l: each node i is reached over the nearer end. Starts from 0.
vector point_objective(const matrix& d, const matrix& w, int u, int v, double l, double t);

// Pareto-optimal nodes: the nodes whose column of F no other column dominates, in node order.
// With directed, absolute and center all set (dir_cenPareto) an arc c-d between two such nodes
// with equal columns whose midpoint scores the column of d adds the whole edge (c, d, 0, 1).
// Undirected and absolute is error 2003. Repairs a disconnected g first (with a message).
// O(Q n^2) after the distance matrix.
pareto_result pareto_nodes(location_graph& g, bool directed, bool absolute, bool center);

// Lexicographically optimal nodes: every node that is the lexicographic minimum of F for some
// order of the criteria, in node order, with the nodes of equal columns. For medLexi (undirected,
// absolute, sum) a whole edge between two such nodes of equal columns whose midpoint has the same
// vector is added. Undirected, absolute and center: the candidates are the absolute centers of
// each single criterion instead of the nodes. Repairs a disconnected g first (with a message).
// O(Q n^2) after the distance matrix plus the search over the orders of the criteria among
// the ties, at most Q! branches.
pareto_result lexi_solve(location_graph& g, bool directed, bool absolute, bool center);

}  // namespace mero
