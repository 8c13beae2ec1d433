#pragma once
// Small test graphs built from arc lists, and Floyd-Warshall (1962) over the arcs as the
// reference that the kernel's and the network's shortest paths are checked against.

#include <algorithm>
#include <vector>

#include "kernel/graph.h"

namespace mero::testing {

struct arc {
  int from, to;
  double length = 1.0;
};

// Nodes numbered 0..n-1 in their information, one edge per arc with the arc's length.
inline GRAPH<int, double> graph_of(int n, const std::vector<arc>& arcs) {
  GRAPH<int, double> g;
  std::vector<node> nodes;
  for (int i = 0; i < n; ++i) nodes.push_back(g.new_node(i));
  for (const arc& a : arcs) g.new_edge(nodes[a.from], nodes[a.to], a.length);
  return g;
}

// Distances between nodes 0..n-1 over the arcs, both ways when undirected; `none` where no path
// exists.
inline std::vector<std::vector<double>> reference_distances(int n, const std::vector<arc>& arcs,
                                                            bool undirected, double none) {
  std::vector<std::vector<double>> d(n, std::vector<double>(n, none));
  for (int i = 0; i < n; ++i) d[i][i] = 0.0;
  for (const arc& a : arcs) {
    d[a.from][a.to] = std::min(d[a.from][a.to], a.length);
    if (undirected) d[a.to][a.from] = std::min(d[a.to][a.from], a.length);
  }
  for (int k = 0; k < n; ++k)
    for (int i = 0; i < n; ++i)
      for (int j = 0; j < n; ++j)
        if (d[i][k] != none && d[k][j] != none) d[i][j] = std::min(d[i][j], d[i][k] + d[k][j]);
  return d;
}

}  // namespace mero::testing
