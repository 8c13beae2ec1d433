#pragma once
// One new facility on a graph minimising the largest weighted distance to the nodes.

#include "network/location_graph.h"

namespace mero {

// Node center: each node x scores max_j D(x,j) * w_j (distances outward from x); the nodes of
// least score, ties exact, are returned in node order. Repairs a disconnected g first (with a
// message). O(n^2) after the distance matrix; with no negative length one Dijkstra row at a time
// in O(n + m) memory, each cut short once a node is weighted above the best score. A graph without
// nodes meets the kernel's empty list check.
graphpointset node_center(location_graph& g, double& value);

// Absolute center of an undirected graph (Hakimi 1964): along every edge, in edge-list order,
// the lowest points of the upper envelope of the nodes' tents. Points of the least value are
// kept in the order found; a point equal to the last one kept is not repeated. t = 0 and t = 1
// are reported as the end nodes. O(m n b) for b envelope breakpoints per edge after the distance
// matrix. A graph without edges gives an empty set and 1e50. With all weights equal, an edge whose
// tents' low ends all lie above a known bound on the final value is passed over.
graphpointset abs_center(location_graph& g, double& value);

}  // namespace mero
