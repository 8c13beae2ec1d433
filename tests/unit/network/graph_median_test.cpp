#include "network/graph_median.h"

#include <random>

#include "network_test_graphs.h"
#include "test_support.h"

namespace mero {
namespace {

using testing::arc;
using testing::make_location_graph;

TEST(graph_median, small_cases_by_hand) {
  double value = -1;
  location_graph one = make_location_graph({3}, {});
  EXPECT_EQ(graph_median(one, 'u', value), (graphpointset{{0, 0, 0.0}}));
  EXPECT_EQ(value, 0.0);

  // all weights zero: every node ties at 0, in node order
  location_graph zero = make_location_graph({0, 0, 0}, {{0, 1, 2}, {1, 2, 5}});
  EXPECT_EQ(graph_median(zero, 'u', value), (graphpointset{{0, 0, 0}, {1, 1, 0}, {2, 2, 0}}));
  EXPECT_EQ(value, 0.0);

  // path 0 -1- 1 -4- 2 -1- 3 with weights 2, 1, 1, 3: sums 0+1+5+18 = 24 at node 0,
  // 2+0+4+15 = 21 at node 1, 10+4+0+3 = 17 at node 2, 12+5+1+0 = 18 at node 3.
  location_graph path = make_location_graph({2, 1, 1, 3}, {{0, 1, 1}, {1, 2, 4}, {2, 3, 1}});
  location_graph undirected = undirected_form(path);
  EXPECT_EQ(graph_median(undirected, 'u', value), (graphpointset{{2, 2, 0}}));
  EXPECT_EQ(value, 17.0);
}

TEST(graph_median, directed_mode_sums_round_trips) {
  // cycle 0 -> 1 -> 2 -> 0 with lengths 1, 2, 3 (round trip 6 from anywhere), weights 1, 1, 2:
  // every node scores 6 * (1 + 1 + 2) - 6 * w(own) = 24 - 6 w: nodes 0 and 1 give 18, node 2 12.
  location_graph cycle = make_location_graph({1, 1, 2}, {{0, 1, 1}, {1, 2, 2}, {2, 0, 3}});
  double value = 0;
  EXPECT_EQ(graph_median(cycle, 'm', value), (graphpointset{{2, 2, 0}}));
  EXPECT_EQ(value, 12.0);
  // one-way edge 0 -> 1 (2), weights 1, 5: 1 cannot reach 0, which then counts as distance 0,
  // so node 0 scores (2 + 0) * 5 = 10 and node 1 scores (0 + 2) * 1 = 2
  location_graph one_way = make_location_graph({1, 5}, {{0, 1, 2}});
  EXPECT_EQ(graph_median(one_way, 'm', value), (graphpointset{{1, 1, 0}}));
  EXPECT_EQ(value, 2.0);
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

TEST(graph_median, agrees_with_enumeration_on_random_graphs) {
  std::mt19937 rng(7);
  for (int round = 0; round < 30; ++round) {
    int n = 2 + round % 9;
    std::vector<double> w;
    std::vector<arc> arcs;
    for (int i = 0; i < n; ++i) w.push_back(rng() % 4);
    for (int i = 1; i < n; ++i) arcs.push_back({static_cast<int>(rng() % i), i, 1.0 + rng() % 9});
    for (int k = 0; k < n; ++k)
      arcs.push_back({static_cast<int>(rng() % n), static_cast<int>(rng() % n), 1.0 + rng() % 9});
    auto d = testing::reference_distances(n, arcs, true, 1e300);
    double best = 1e300;
    std::vector<double> sums;
    for (int x = 0; x < n; ++x) {
      double s = 0;
      for (int j = 0; j < n; ++j) s += w[static_cast<std::size_t>(j)] * d[x][j];
      sums.push_back(s);
      best = std::min(best, s);
    }
    graphpointset expected;
    for (int x = 0; x < n; ++x)
      if (sums[static_cast<std::size_t>(x)] == best) expected.push_back({x, x, 0});
    location_graph g = undirected_form(make_location_graph(w, arcs));
    double value = 0;
    EXPECT_EQ(graph_median(g, 'u', value), expected) << "round " << round;
    EXPECT_EQ(value, best) << "round " << round;
  }
}

TEST(abs_graph_median, whole_edges_between_optimal_nodes) {
  double value = 0;
  // path with weights 1, 0, 1: all three nodes tie at 2, both edges are optimal throughout;
  // each is found from the pair whose second node stores it.
  location_graph path = undirected_form(make_location_graph({1, 0, 1}, {{0, 1, 1}, {1, 2, 1}}));
  EXPECT_EQ(abs_graph_median(path, value),
            (graphpointset{{0, 0, 0}, {1, 1, 0}, {2, 2, 0}, {1, 0, 0}, {2, 1, 0}}));
  EXPECT_EQ(value, 2.0);

  // cycle 0-1-2-3-0 of unit lengths and weights: every node scores 4, and so does the midpoint
  // of every edge; each edge is found from the pair (target, source).
  location_graph square = undirected_form(
      make_location_graph({1, 1, 1, 1}, {{0, 1, 1}, {1, 2, 1}, {2, 3, 1}, {3, 0, 1}}));
  EXPECT_EQ(
      abs_graph_median(square, value),
      (graphpointset{
          {0, 0, 0}, {1, 1, 0}, {2, 2, 0}, {3, 3, 0}, {0, 3, 0}, {1, 0, 0}, {2, 1, 0}, {3, 2, 0}}));
  EXPECT_EQ(value, 4.0);

  // triangle with weights 1, 0, 1 and a long edge 0-2 (5): all nodes score 2; the long edge's
  // midpoint scores 5, so only the two short edges join the result.
  location_graph apart =
      undirected_form(make_location_graph({1, 0, 1}, {{0, 1, 1}, {1, 2, 1}, {0, 2, 5}}));
  EXPECT_EQ(abs_graph_median(apart, value),
            (graphpointset{{0, 0, 0}, {1, 1, 0}, {2, 2, 0}, {1, 0, 0}, {2, 1, 0}}));

  location_graph single = undirected_form(make_location_graph({2, 1}, {{0, 1, 3}}));
  EXPECT_EQ(abs_graph_median(single, value), (graphpointset{{0, 0, 0}}));
  EXPECT_EQ(value, 3.0);
}

}  // namespace
}  // namespace mero
