#pragma once
// One new facility on a graph minimising the weighted sum of distances to the nodes.

#include "network/location_graph.h"

namespace mero {

// Node median by enumeration (Hakimi 1964: on a graph a median is found among the nodes).
// Each node x scores sum_j (D(x,j) + D(j,x)) * w_j, the round trip; ties are exact and all kept,
// in node order. Mode 'u' halves the best score (the one-way sum on a symmetric D); mode 'm'
// keeps round trips, for directed graphs. Repairs a disconnected g first (with a message).
// O(n^2) after the distance matrix. A graph without nodes gives an empty set and 1e50 (halved).
// Mode 'u' on an undirected graph with no negative length takes one Dijkstra row at a time in
// O(n + m) memory when every path sum is exact (D is then symmetric bit for bit) or when n is
// above 8192; a row is cut short once a bound puts its score above the best one.
graphpointset graph_median(location_graph& g, char mode, double& value);

// graph_median with mode 'u' as it runs on large undirected graphs, taking the rows whatever the
// lengths: scores double the one-way sums D(x,j), which equals D(x,j) + D(j,x) bit for bit where
// the two read alike and may differ in the last bits otherwise. A negative length makes it
// graph_median itself.
graphpointset graph_median_by_rows(location_graph& g, double& value);

// Absolute median of an undirected graph: the node medians, followed by every stored edge a-b
// between two optimal nodes whose midpoint scores the same value (then the whole edge is
// optimal); such an edge is found from the ordered pair whose second node holds it in its list
// with the first as target. value is the median value. With no negative length the test runs
// Dijkstra for the rows of the optimal nodes it reads instead of computing the whole matrix.
graphpointset abs_graph_median(location_graph& g, double& value);

}  // namespace mero
