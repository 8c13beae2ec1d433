#pragma once
// Small location graphs built in code for the network tests; the arcs and the reference
// distances are the kernel tests' own.

#include <algorithm>
#include <random>
#include <vector>

#include "kernel/test_graphs.h"
#include "network/location_graph.h"

namespace mero::testing {

inline location_graph make_location_graph(const std::vector<double>& weights,
                                          const std::vector<arc>& arcs) {
  location_graph g;
  std::vector<node> nodes;
  for (double w : weights) nodes.push_back(g.new_node(node_weights{{w}, {}}));
  for (const arc& a : arcs) g.new_edge(nodes[a.from], nodes[a.to], a.length);
  return g;
}

// Lengths 1..9 on a random spanning tree plus `extra` random arcs, loops and parallel arcs
// included: weakly connected always.
inline std::vector<arc> random_arcs(std::mt19937& rng, int n, int extra) {
  std::vector<arc> arcs;
  for (int i = 1; i < n; ++i) arcs.push_back({static_cast<int>(rng() % i), i, 1.0 + rng() % 9});
  for (int k = 0; k < extra; ++k)
    arcs.push_back({static_cast<int>(rng() % n), static_cast<int>(rng() % n), 1.0 + rng() % 9});
  return arcs;
}

// The weighted distance of the farthest node from the point at fraction t of the edge u-v.
inline double served(const std::vector<std::vector<double>>& d, const std::vector<double>& w, int u,
                     int v, double length, double t) {
  double worst = 0;
  for (std::size_t i = 0; i < w.size(); ++i)
    worst = std::max(worst, w[i] * std::min(d[u][i] + t * length, d[v][i] + (1 - t) * length));
  return worst;
}

}  // namespace mero::testing
