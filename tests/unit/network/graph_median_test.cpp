#include "network/graph_median.h"

#include <random>

#include "network_test_graphs.h"
#include "test_support.h"

namespace mero {

using testing::make_location_graph;

// Mode 'u' on the undirected form sums one-way distances; mode 'm' on the directed graph sums
// round trips, a node that cannot be reached counting as distance 0.
TEST(graph_median, agrees_with_enumeration_on_random_graphs) {
  std::mt19937 rng(7);
  for (int round = 0; round < 40; ++round) {
    int n = 1 + round % 10;
    std::vector<double> w;
    for (int i = 0; i < n; ++i) w.push_back(rng() % 4);
    std::vector<testing::arc> arcs = testing::random_arcs(rng, n, n);
    for (char mode : {'u', 'm'}) {
      auto d = testing::reference_distances(n, arcs, mode == 'u', 1e300);
      auto dist = [&](int a, int b) { return d[a][b] == 1e300 ? 0.0 : d[a][b]; };
      std::vector<double> sums(n, 0.0);
      for (int x = 0; x < n; ++x)
        for (int j = 0; j < n; ++j)
          sums[x] += w[j] * (mode == 'u' ? dist(x, j) : dist(x, j) + dist(j, x));
      double best = *std::min_element(sums.begin(), sums.end());
      graphpointset expected;
      for (int x = 0; x < n; ++x)
        if (sums[x] == best) expected.push_back({x, x, 0});
      location_graph g = make_location_graph(w, arcs);
      if (mode == 'u') g = undirected_form(g);
      double value = 0;
      EXPECT_EQ(graph_median(g, mode, value), expected) << "round " << round << " " << mode;
      EXPECT_EQ(value, best) << "round " << round << " " << mode;
    }
  }
}

TEST(graph_median, repair_joins_components_at_distance_zero) {
  testing::messages().clear();
  // components {0, 1} and {2}: the anchor 0 (degree 1, first) is joined to 2 by length 0
  location_graph g = undirected_form(make_location_graph({1, 1, 1}, {{0, 1, 4}}));
  double value = 0;
  EXPECT_EQ(graph_median(g, 'u', value), (graphpointset{{0, 0, 0}, {2, 2, 0}}));
  EXPECT_EQ(value, 4.0);
  EXPECT_EQ(testing::messages().size(), 1u);
  EXPECT_EQ(g.number_of_edges(), 2);  // the given graph stays repaired
}

TEST(abs_graph_median, whole_edges_between_optimal_nodes) {
  double value = 0;
  // triangle with weights 1, 0, 1 and a long edge 0-2 (5): all nodes score 2; the long edge's
  // midpoint scores 5, so only the two short edges join the result, each named from its target.
  location_graph apart =
      undirected_form(make_location_graph({1, 0, 1}, {{0, 1}, {1, 2}, {0, 2, 5}}));
  EXPECT_EQ(abs_graph_median(apart, value),
            (graphpointset{{0, 0, 0}, {1, 1, 0}, {2, 2, 0}, {1, 0, 0}, {2, 1, 0}}));
  location_graph single = undirected_form(make_location_graph({2, 1}, {{0, 1, 3}}));
  EXPECT_EQ(abs_graph_median(single, value), (graphpointset{{0, 0, 0}}));
  EXPECT_EQ(value, 3.0);
}

}  // namespace mero
