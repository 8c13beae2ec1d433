#include "kernel/shortest_paths.h"

#include <cmath>
#include <random>

#include "test_graphs.h"
#include "test_support.h"

namespace mero {
namespace {

constexpr double unreachable = 1e300;

edge_array<double> lengths_of(const GRAPH<int, double>& g, bool absolute = false) {
  edge_array<double> cost(g);
  for (edge e : g.all_edges()) cost[e] = absolute ? std::fabs(g.inf(e)) : g.inf(e);
  return cost;
}

// A single-source run from node 0 against the reference distances `row`: every reached node
// has its distance and is entered by its pred edge from a node at the matching distance.
// Dijkstra also promises to leave the entries (here -1) of unreached nodes alone.
void expect_tree(const GRAPH<int, double>& g, const edge_array<double>& cost,
                 const std::vector<double>& row, bool by_dijkstra) {
  node_array<double> dist(g, -1.0);
  node_array<edge> pred(g, nullptr);
  if (by_dijkstra) dijkstra(g, g.first_node(), cost, dist, pred);
  ASSERT_TRUE(by_dijkstra || bellman_ford(g, g.first_node(), cost, dist, pred));
  for (node v : g.all_nodes()) {
    edge e = pred[v];
    if (row[graph::index(v)] == unreachable) {
      EXPECT_TRUE(!by_dijkstra || dist[v] == -1.0) << "node " << graph::index(v);
      continue;
    }
    EXPECT_NEAR(dist[v], row[graph::index(v)], 1e-9);
    EXPECT_TRUE(graph::index(v) == 0
                    ? e == nullptr
                    : e != nullptr && graph::target(e) == v &&
                          std::fabs(dist[graph::source(e)] + cost[e] - dist[v]) < 1e-9)
        << "node " << graph::index(v);
  }
}

// Random arcs with negative lengths and no negative cycle: integer lengths
// r + phi(target) - phi(source) with r >= 0, so every cycle keeps the non-negative sum of its r.
TEST(shortest_paths, agree_with_floyd_warshall_on_random_graphs) {
  std::mt19937 rng(20261121);
  int negative_edges = 0, unreached_pairs = 0;
  for (int round = 0; round < 40; ++round) {
    int n = 2 + round % 12;
    std::vector<int> phi(n);
    for (int& p : phi) p = static_cast<int>(rng() % 21);
    std::vector<testing::arc> arcs(rng() % (3 * n));
    for (auto& a : arcs) {
      a = {static_cast<int>(rng() % n), static_cast<int>(rng() % n), 0.0};
      a.length = static_cast<int>(rng() % 10) + phi[a.to] - phi[a.from];
      negative_edges += a.length < 0;
    }
    GRAPH<int, double> g = testing::graph_of(n, arcs);
    auto reference = testing::reference_distances(n, arcs, false, unreachable);
    std::vector<std::vector<double>> table;
    ASSERT_TRUE(all_pairs_shortest_paths(g, lengths_of(g), table));
    // Where no path exists, the potential difference: p(v) is the distance from a new node
    // joined to all by length 0.
    std::vector<double> p(n, 0.0);
    for (int u = 0; u < n; ++u)
      for (int v = 0; v < n; ++v) p[v] = std::min(p[v], reference[u][v]);
    for (int v = 0; v < n; ++v)
      for (int w = 0; w < n; ++w) {
        bool reached = reference[v][w] != unreachable;
        unreached_pairs += !reached;
        EXPECT_NEAR(table[v][w], reached ? reference[v][w] : p[w] - p[v], 1e-9)
            << "round " << round << " pair " << v << "," << w;
      }
    expect_tree(g, lengths_of(g), reference[0], false);
    for (auto& a : arcs) a.length = std::fabs(a.length);
    expect_tree(g, lengths_of(g, true),
                testing::reference_distances(n, arcs, false, unreachable)[0], true);
  }
  EXPECT_GT(negative_edges, 20);
  EXPECT_GT(unreached_pairs, 20);
}

// The compressed rows against the list-based Dijkstra, bit for bit, on costs whose sums round
// (directed and undirected, zero costs included); with the dominated arcs dropped, on integer
// costs, against Floyd-Warshall. A negative cost makes the rows unusable.
TEST(shortest_paths, rows_equal_dijkstra_bit_for_bit) {
  std::mt19937 rng(11);
  std::uniform_real_distribution<double> real(0.0, 10.0);
  for (int round = 0; round < 60; ++round) {
    int n = 1 + static_cast<int>(rng() % 40);
    std::vector<testing::arc> arcs;
    for (int k = 0; k < 3 * n; ++k) {
      double c = round % 3 == 0 ? static_cast<double>(rng() % 6) : real(rng);
      arcs.push_back({static_cast<int>(rng() % n), static_cast<int>(rng() % n), c});
    }
    GRAPH<int, double> g = testing::graph_of(n, arcs);
    if (round % 2 == 1) g.make_undirected();
    edge_array<double> cost = lengths_of(g);
    shortest_path_rows rows(g, cost);
    ASSERT_TRUE(rows.usable());
    if (round % 3 == 0) rows.drop_dominated_arcs();
    std::vector<node> nodes = g.all_nodes();
    auto floyd = testing::reference_distances(n, arcs, round % 2 == 1, unreachable);
    std::vector<double> row(n);
    for (int s = 0; s < n; ++s) {
      node_array<double> dist(g, -1.0);
      node_array<edge> pred(g, nullptr);
      dijkstra(g, nodes[s], cost, dist, pred);
      rows.row(s, row.data(), -1.0);
      for (int j = 0; j < n; ++j) {
        ASSERT_EQ(row[j], dist[nodes[j]]) << "round " << round << " " << s << "-" << j;
        if (round % 3 == 0) {
          ASSERT_EQ(row[j], floyd[s][j] == unreachable ? -1.0 : floyd[s][j]) << "round " << round;
        }
      }
    }
  }
  GRAPH<int, double> g = testing::graph_of(2, {{0, 1, 1.0}, {1, 0, -0.5}});
  EXPECT_FALSE(shortest_path_rows(g, lengths_of(g)).usable());
}

TEST(shortest_paths, negative_cycle_is_detected_and_the_graph_restored) {
  // 0 -> 1 (1), 1 -> 2 (-2), 2 -> 1 (1.5), 2 -> 3 (1): the cycle 1-2 cannot be reached from 3.
  auto g = testing::graph_of(4, {{0, 1, 1.0}, {1, 2, -2.0}, {2, 1, 1.5}, {2, 3, 1.0}});
  std::vector<std::vector<double>> table;
  EXPECT_FALSE(all_pairs_shortest_paths(g, lengths_of(g), table));
  EXPECT_EQ(g.number_of_nodes(), 4);
  EXPECT_EQ(g.number_of_edges(), 4);
  node_array<double> dist(g, -1.0);
  node_array<edge> pred(g, nullptr);
  EXPECT_FALSE(bellman_ford(g, g.first_node(), lengths_of(g), dist, pred));
  EXPECT_TRUE(bellman_ford(g, g.last_node(), lengths_of(g), dist, pred));
  auto loop = testing::graph_of(1, {{0, 0, -0.5}});
  EXPECT_FALSE(all_pairs_shortest_paths(loop, lengths_of(loop), table));
  auto undirected = testing::graph_of(2, {{0, 1, -1.0}});
  undirected.make_undirected();  // a negative edge walked both ways is a negative cycle
  EXPECT_FALSE(all_pairs_shortest_paths(undirected, lengths_of(undirected), table));
}

}  // namespace
}  // namespace mero
