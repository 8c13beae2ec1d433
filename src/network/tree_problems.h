#pragma once
// One new facility on a tree: the median by folding leaves and the center of unit weights by a
// double sweep, in node and edge form. The tree is the tree form of a graph (undirected, tested
// by is_tree), so it has at least one node.

#include "network/location_graph.h"

namespace mero {

// Median of a tree by leaf folding (Goldman 1971): leaves, in queue order, pass their weight to
// their neighbour until a node holds at least half the total W. When it holds exactly half, the
// other end of its first remaining edge is optimal too and follows it. value is the plain,
// unweighted sum of distances from the first node found, deliberately so for all weights.
// O(n) folds plus the distance matrix. A negative W is error 2203.
graphpointset tree_median(const location_graph& tree, double& value);

// The median nodes of tree_median and, when there are two, the whole edge between them.
graphpointset abs_tree_median(const location_graph& tree, double& value);

// Absolute center of a tree with unit weights by the double sweep (Handler 1973): the node v1
// farthest from the first node, the node v2 farthest from v1, and the point halfway along the
// path back from v2 to v1, as one point (p, c, t) on the path's edge c-p. When the middle falls
// on the node p, t is 0 and the point reads as the whole edge: kept so on purpose. A weight other
// than 1 is error 2202. Two Dijkstra runs, O(n log n). A tree without a path (one node, or all
// lengths 0) gives its first node as a node point with value 0.
graphpointset tree_v1_center(const location_graph& tree, double& value);

// The node center of a unit-weight tree read off tree_v1_center's point (u, v, t) with value z:
// both ends with z - 0.5 at t = 0.5, else u with z + t below and v with z + t above. The value
// is not recomputed from distances: the rule is exact only for unit lengths.
graphpointset loc_tree_v1_center(const location_graph& tree, double& value);

// Two centers on a tree: not provided. Returns an empty set and leaves value untouched; no
// algorithm name leads here.
graphpointset two_tree_center(const location_graph& tree, double& value);

}  // namespace mero
