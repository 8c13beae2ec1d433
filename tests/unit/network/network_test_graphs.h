#pragma once
// Small location graphs built in code for the network tests, and an independent distance table.

#include <algorithm>
#include <tuple>
#include <vector>

#include "network/location_graph.h"

namespace mero::testing {

struct arc {
  int from, to;
  double length;
};

inline location_graph make_location_graph(const std::vector<double>& weights,
                                          const std::vector<arc>& arcs) {
  location_graph g;
  std::vector<node> nodes;
  for (double w : weights) nodes.push_back(g.new_node(node_weights{{w}, {}}));
  for (const arc& a : arcs)
    g.new_edge(nodes[static_cast<std::size_t>(a.from)], nodes[static_cast<std::size_t>(a.to)],
               a.length);
  return g;
}

// Floyd-Warshall over the arcs, both ways when undirected; `none` where no path exists.
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
