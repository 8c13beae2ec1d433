#pragma once
// Weak connectivity of a graph: depth-first search that follows every edge in both directions.

#include <vector>

#include "kernel/graph.h"

namespace mero {

// True when a search from the first node reaches every node; the empty graph is connected.
bool is_connected(const graph& g);

// Joins the components: the nodes are visited in list order, each unvisited node starting a
// search over its component, whose representative is the first node met of strictly smallest
// total degree. The first component's representative is the anchor; one new edge (with the
// graph's default edge information) runs from the anchor to each later representative.
// Returns the new edges, in the order made. O(n + m).
std::vector<edge> make_connected(graph& g);

}  // namespace mero
