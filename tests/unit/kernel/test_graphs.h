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
  for (const arc& a : arcs)
    g.new_edge(nodes[static_cast<std::size_t>(a.from)], nodes[static_cast<std::size_t>(a.to)],
               a.length);
  return g;
}

// Distances between nodes 0..n-1 over the arcs, both ways when undirected; `none` where no path
// exists.
inline std::vector<std::vector<double>> reference_distances(int n, const std::vector<arc>& arcs,
                                                            bool undirected, double none) {
  auto size = static_cast<std::size_t>(n);
  std::vector<std::vector<double>> d(size, std::vector<double>(size, none));
  for (std::size_t i = 0; i < size; ++i) d[i][i] = 0.0;
  for (const arc& a : arcs) {
    auto s = static_cast<std::size_t>(a.from), t = static_cast<std::size_t>(a.to);
    d[s][t] = std::min(d[s][t], a.length);
    if (undirected) d[t][s] = std::min(d[t][s], a.length);
  }
  for (std::size_t k = 0; k < size; ++k)
    for (std::size_t i = 0; i < size; ++i)
      for (std::size_t j = 0; j < size; ++j)
        if (d[i][k] != none && d[k][j] != none) d[i][j] = std::min(d[i][j], d[i][k] + d[k][j]);
  return d;
}

}  // namespace mero::testing
