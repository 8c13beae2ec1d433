#pragma once
// One new facility on a graph minimising the weighted sum of distances to the nodes.

#include "network/location_graph.h"

namespace mero {

// Node median by enumeration (Hakimi 1964: on a graph a median is found among the nodes).
// Each node x scores sum_j (D(x,j) + D(j,x)) * w_j, the round trip; ties are exact and all kept,
// in node order. Mode 'u' halves the best score (the one-way sum on a symmetric D); mode 'm'
// keeps round trips, for directed graphs. Repairs a disconnected g first (with a message).
// O(n^2) after the distance matrix. A graph without nodes gives an empty set and 1e50 (halved).
graphpointset graph_median(location_graph& g, char mode, double& value);

// Absolute median of an undirected graph: the node medians, followed by every stored edge a-b
// between two optimal nodes whose midpoint scores the same value (then the whole edge is
// optimal); such an edge is found from the ordered pair whose second node holds it in its list
// with the first as target. value is the median value.
graphpointset abs_graph_median(location_graph& g, double& value);

}  // namespace mero
