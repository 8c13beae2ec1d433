#pragma once
// Location graphs with Q weights on each node, built in code for the multicriteria tests.

#include <algorithm>
#include <random>
#include <vector>

#include "kernel/vector.h"
#include "network_test_graphs.h"

namespace mero::testing {

inline location_graph criteria_graph(const std::vector<std::vector<double>>& weights,
                                     const std::vector<arc>& arcs) {
  location_graph g;
  std::vector<node> nodes;
  for (const auto& w : weights) nodes.push_back(g.new_node(node_weights{{w.begin(), w.end()}, {}}));
  for (const arc& a : arcs) g.new_edge(nodes[a.from], nodes[a.to], a.length);
  return g;
}

inline vector to_vector(const std::vector<double>& v) {
  vector r(static_cast<int>(v.size()));
  for (std::size_t i = 0; i < v.size(); ++i) r[static_cast<int>(i)] = v[i];
  return r;
}

// Random connected graphs with small integer weights, so that ties and flat stretches are
// common; loops and all but the first of parallel edges are dropped, since a piece names its
// edge by the two ends.
inline location_graph random_graph(std::mt19937& rng, int n, int q_count,
                                   std::vector<std::vector<double>>& w, std::vector<arc>& arcs) {
  w.assign(n, {});
  for (auto& node : w)
    for (int q = 0; q < q_count; ++q) node.push_back(rng() % 4);
  arcs.clear();
  for (const arc& a : random_arcs(rng, n, n / 2))
    if (a.from != a.to && std::none_of(arcs.begin(), arcs.end(), [&](const arc& b) {
          return std::min(a.from, a.to) == std::min(b.from, b.to) &&
                 std::max(a.from, a.to) == std::max(b.from, b.to);
        }))
      arcs.push_back(a);
  return undirected_form(testing::criteria_graph(w, arcs));
}

}  // namespace mero::testing
