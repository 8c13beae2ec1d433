#include "kernel/shortest_paths.h"

#include <algorithm>
#include <random>
#include <vector>

#include "test_support.h"

namespace mero {
namespace {

constexpr double unreachable = 1e300;

using length_graph = GRAPH<int, double>;

edge_array<double> lengths_of(const length_graph& g) {
  edge_array<double> cost(g);
  for (edge e : g.all_edges()) cost[e] = g.inf(e);
  return cost;
}

// Floyd-Warshall (1962) on the edge list, the independent reference.
std::vector<std::vector<double>> floyd_warshall(const length_graph& g) {
  std::size_t n = static_cast<std::size_t>(g.number_of_nodes());
  std::vector<std::vector<double>> d(n, std::vector<double>(n, unreachable));
  for (std::size_t i = 0; i < n; ++i) d[i][i] = 0.0;
  for (edge e : g.all_edges()) {
    auto s = static_cast<std::size_t>(graph::index(graph::source(e)));
    auto t = static_cast<std::size_t>(graph::index(graph::target(e)));
    d[s][t] = std::min(d[s][t], g.inf(e));
  }
  for (std::size_t k = 0; k < n; ++k)
    for (std::size_t i = 0; i < n; ++i)
      for (std::size_t j = 0; j < n; ++j)
        if (d[i][k] < unreachable && d[k][j] < unreachable)
          d[i][j] = std::min(d[i][j], d[i][k] + d[k][j]);
  return d;
}

// A random directed graph with negative edges and no negative cycle: integer lengths
// r + phi(target) - phi(source) with r >= 0, so every cycle keeps the non-negative sum of its r.
length_graph random_graph(std::mt19937& rng, int n, int m) {
  length_graph g;
  std::vector<node> nodes;
  std::vector<int> phi;
  for (int i = 0; i < n; ++i) {
    nodes.push_back(g.new_node(i));
    phi.push_back(static_cast<int>(rng() % 21));
  }
  for (int k = 0; k < m; ++k) {
    int s = static_cast<int>(rng() % static_cast<unsigned>(n));
    int t = static_cast<int>(rng() % static_cast<unsigned>(n));
    int r = static_cast<int>(rng() % 10);
    g.new_edge(nodes[static_cast<std::size_t>(s)], nodes[static_cast<std::size_t>(t)],
               r + phi[static_cast<std::size_t>(t)] - phi[static_cast<std::size_t>(s)]);
  }
  return g;
}

TEST(shortest_paths, johnson_agrees_with_floyd_warshall_on_random_graphs) {
  std::mt19937 rng(20261121);
  int negative_edges = 0, unreached_pairs = 0;
  for (int round = 0; round < 40; ++round) {
    int n = 2 + round % 12;
    length_graph g = random_graph(rng, n, static_cast<int>(rng() % static_cast<unsigned>(3 * n)));
    for (edge e : g.all_edges()) negative_edges += g.inf(e) < 0;
    auto reference = floyd_warshall(g);
    std::vector<std::vector<double>> table;
    ASSERT_TRUE(all_pairs_shortest_paths(g, lengths_of(g), table));
    EXPECT_EQ(g.number_of_nodes(), n);
    // Potential of v: distance from a new node joined to all by length 0.
    std::vector<double> p(static_cast<std::size_t>(n), 0.0);
    for (std::size_t u = 0; u < p.size(); ++u)
      for (std::size_t v = 0; v < p.size(); ++v) p[v] = std::min(p[v], reference[u][v]);
    for (std::size_t v = 0; v < p.size(); ++v)
      for (std::size_t w = 0; w < p.size(); ++w) {
        double expected = reference[v][w];
        if (expected == unreachable) {
          expected = p[w] - p[v];
          ++unreached_pairs;
        }
        EXPECT_NEAR(table[v][w], expected, 1e-9) << "round " << round << " pair " << v << "," << w;
      }
  }
  EXPECT_GT(negative_edges, 20);
  EXPECT_GT(unreached_pairs, 20);
}

TEST(shortest_paths, negative_cycle_is_detected_and_the_graph_restored) {
  length_graph g;
  node a = g.new_node(0), b = g.new_node(1), c = g.new_node(2), d = g.new_node(3);
  g.new_edge(a, b, 1.0);
  g.new_edge(b, c, -2.0);
  g.new_edge(c, b, 1.5);
  g.new_edge(c, d, 1.0);
  std::vector<std::vector<double>> table;
  EXPECT_FALSE(all_pairs_shortest_paths(g, lengths_of(g), table));
  EXPECT_EQ(g.number_of_nodes(), 4);
  EXPECT_EQ(g.number_of_edges(), 4);

  node_array<double> dist(g, -1.0);
  node_array<edge> pred(g, nullptr);
  EXPECT_FALSE(bellman_ford(g, a, lengths_of(g), dist, pred));
  // the cycle cannot be reached from d
  EXPECT_TRUE(bellman_ford(g, d, lengths_of(g), dist, pred));
  EXPECT_EQ(dist[d], 0.0);

  length_graph loop;
  node x = loop.new_node(0);
  loop.new_edge(x, x, -0.5);
  EXPECT_FALSE(all_pairs_shortest_paths(loop, lengths_of(loop), table));
  length_graph undirected;
  node u = undirected.new_node(0), v = undirected.new_node(1);
  undirected.new_edge(u, v, -1.0);
  undirected.make_undirected();  // a negative edge walked both ways is a negative cycle
  EXPECT_FALSE(all_pairs_shortest_paths(undirected, lengths_of(undirected), table));
}

TEST(shortest_paths, bellman_ford_distances_and_tree_by_hand) {
  // s -> a 4, s -> b 1, b -> a 2, a -> c -3, b -> c 5: d(a) = 3, d(c) = 0 via a.
  length_graph g;
  node s = g.new_node(0), a = g.new_node(1), b = g.new_node(2), c = g.new_node(3);
  g.new_edge(s, a, 4.0);
  g.new_edge(s, b, 1.0);
  edge ba = g.new_edge(b, a, 2.0);
  edge ac = g.new_edge(a, c, -3.0);
  g.new_edge(b, c, 5.0);
  node_array<double> dist(g, 99.0);
  node_array<edge> pred(g, nullptr);
  ASSERT_TRUE(bellman_ford(g, s, lengths_of(g), dist, pred));
  EXPECT_EQ(dist[s], 0.0);
  EXPECT_EQ(dist[a], 3.0);
  EXPECT_EQ(dist[b], 1.0);
  EXPECT_EQ(dist[c], 0.0);
  EXPECT_EQ(pred[a], ba);
  EXPECT_EQ(pred[c], ac);
  EXPECT_EQ(pred[s], nullptr);
}

TEST(shortest_paths, dijkstra_leaves_unreached_entries_alone) {
  length_graph g;
  node a = g.new_node(0), b = g.new_node(1), c = g.new_node(2), lone = g.new_node(3);
  g.new_edge(a, b, 2.0);
  edge cb = g.new_edge(c, b, 0.5);
  g.new_edge(a, c, 1.0);
  node_array<double> dist(g, 7.0);
  node_array<edge> pred(g, nullptr);
  dijkstra(g, lone, lengths_of(g), dist, pred);
  EXPECT_EQ(dist[lone], 0.0);
  EXPECT_EQ(dist[a], 7.0);
  EXPECT_EQ(dist[b], 7.0);

  dijkstra(g, b, lengths_of(g), dist, pred);  // directed: b has no way out
  EXPECT_EQ(dist[a], 7.0);
  g.make_undirected();
  dijkstra(g, b, lengths_of(g), dist, pred);
  EXPECT_EQ(dist[b], 0.0);
  EXPECT_EQ(dist[c], 0.5);
  EXPECT_EQ(dist[a], 1.5);
  EXPECT_EQ(pred[c], cb);
  EXPECT_EQ(dist[lone], 0.0);
}

}  // namespace
}  // namespace mero
