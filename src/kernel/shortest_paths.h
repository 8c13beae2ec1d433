#pragma once
// Shortest paths on a kernel graph. Edges are followed along adjacency list 0: out of a node in
// a directed graph, both ways in an undirected one.

#include <vector>

#include "kernel/graph.h"
#include "kernel/graph_array.h"

namespace mero {

// Single source with non-negative costs: Dijkstra (1959) with a binary heap, O((n + m) log n).
// dist[s] := 0; a node that is reached gets its dist and the edge it was reached by in pred; the
// entries of a node that is not reached are left as they were (pred of s is not touched either).
void dijkstra(const graph& g, node s, const edge_array<double>& cost, node_array<double>& dist,
              node_array<edge>& pred);

// Single source with any costs: queue-based label correction (Bellman 1958, Ford 1956) with
// subtree disassembly (Tarjan 1981): improving a node's label drops the nodes labelled through
// its old label from the queue. O(nm). Returns false when a negative cycle is reachable from s;
// otherwise fills dist and pred of every reached node (pred of s is null) and returns true.
bool bellman_ford(const graph& g, node s, const edge_array<double>& cost, node_array<double>& dist,
                  node_array<edge>& pred);

// All pairs by Johnson's method (1977): potentials p from a Bellman-Ford run out of an added
// node, then a Dijkstra run from every node on the reduced costs cost + p[source] - p[target].
// table is sized node_index_bound() square and indexed by node number; entry (v, w) is the
// distance from v to w. A pair without a path keeps 0.0 plus p[w] - p[v]. Returns false, with
// the table all zeros, when the graph has a negative cycle. The added node and its edges are
// deleted again; as numbers are not reused, the graph's index bounds have grown.
// O(nm log n) after the O(nm) potential step.
bool all_pairs_shortest_paths(graph& g, const edge_array<double>& cost,
                              std::vector<std::vector<double>>& table);

}  // namespace mero
