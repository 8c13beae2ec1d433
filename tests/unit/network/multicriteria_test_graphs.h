#pragma once
// Location graphs with Q weights on each node, built in code for the multicriteria tests.

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

}  // namespace mero::testing
