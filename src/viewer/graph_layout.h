#pragma once
// Drawing positions for a graph whose nodes have none (a graph file of "NC" nodes, such as the
// converted OR-Library graphs), so that every result on a network can be looked at.

#include <vector>

#include "kernel/graph.h"
#include "kernel/point.h"

namespace mero {

// One position per node, in node-list order, one unit being about one edge. Stress majorization
// (Gansner, Koren and North 2004) of the hop distances of the undirected graph, started from a
// classical scaling of the same distances (two power iterations), with the localized update and at
// most 100 rounds: O(n m) for the distances and O(n^2) per round. Edge lengths are not used, since
// they may be zero or negative. Components lie side by side at one hop more than the longest
// distance. Deterministic: the same graph always gives the same picture. No node: no position.
std::vector<point> layout_graph(const graph& g);

}  // namespace mero
