// The median and center from one distance row at a time against the described method on a
// distance table made by the kernel's list-based Dijkstra, bit for bit.
#include <algorithm>
#include <random>

#include "kernel/shortest_paths.h"
#include "network/graph_center.h"
#include "network/graph_median.h"
#include "network/tent_envelope.h"
#include "network_test_graphs.h"
#include "test_support.h"

namespace mero {

using testing::make_location_graph;
namespace {

using table = std::vector<std::vector<double>>;

// Row x by `dijkstra` from node x, unreached 0.0, capped at 1e50.
table dijkstra_table(const location_graph& g) {
  edge_array<double> cost(g);
  for (edge e : g.all_edges()) cost[e] = g.inf(e);
  std::vector<node> nodes = g.all_nodes();
  table d;
  for (node s : nodes) {
    node_array<double> dist(g, 0.0);
    node_array<edge> pred(g, nullptr);
    dijkstra(g, s, cost, dist, pred);
    d.emplace_back();
    for (node v : nodes) d.back().push_back(std::min(dist[v], network_infinity));
  }
  return d;
}

// The nodes of least score, all ties in node order, the best score starting at `start`.
graphpointset least(const std::vector<double>& score, double start, double& value) {
  graphpointset result;
  value = start;
  for (int x = 0; x < static_cast<int>(score.size()); ++x) {
    if (score[x] < value) result.clear(), value = score[x];
    if (score[x] == value) result.push_back({x, x, 0.0});
  }
  return result;
}

// `doubled`: each score sums 2 D(x,j) instead of D(x,j) + D(j,x).
graphpointset described_median(const table& d, const std::vector<double>& w, bool doubled,
                               double& value) {
  std::vector<double> score;
  for (std::size_t x = 0; x < w.size(); ++x) {
    double s = 0.0;
    for (std::size_t j = 0; j < w.size(); ++j)
      s = (d[x][j] + (doubled ? d[x][j] : d[j][x])) * w[j] + s;
    score.push_back(s);
  }
  graphpointset result = least(score, network_infinity, value);
  value = value * 0.5;
  return result;
}

graphpointset described_center(const table& d, const std::vector<double>& w, double& value) {
  std::vector<double> score;
  for (std::size_t x = 0; x < w.size(); ++x) {
    double m = d[x][0] * w[0];
    for (std::size_t j = 1; j < w.size(); ++j) m = d[x][j] * w[j] > m ? d[x][j] * w[j] : m;
    score.push_back(m);
  }
  return least(score, score[0], value);
}

// The node medians, then each stored edge b->a between optimal nodes whose midpoint ties.
graphpointset described_abs_median(const location_graph& g, const table& d,
                                   const std::vector<double>& w) {
  double value = 0;
  graphpointset nodes = described_median(d, w, false, value), edges;
  std::vector<node> by_number = g.all_nodes();
  for (const graph_point& a : nodes)
    for (const graph_point& b : nodes) {
      if (nodes.size() < 2) break;
      for (edge e : g.adj_edges(by_number[b.first]))
        if (graph::target(e) == by_number[a.first]) {
          double s = 0.0;
          for (std::size_t i = 0; i < w.size(); ++i) {
            double near = d[a.first][i] >= d[b.first][i] ? d[b.first][i] : d[a.first][i];
            s = (g.inf(e) * 0.5 + near) * w[i] + s;
          }
          if (s == value) edges.push_back({a.first, b.first, 0.0});
          break;
        }
    }
  nodes.splice(nodes.end(), edges);
  return nodes;
}

// Every edge in list order, its envelope's lowest points offered as described: a smaller value
// replaces the set, an equal one joins unless it repeats the last point.
graphpointset described_abs_center(const location_graph& g, const table& d,
                                   const std::vector<double>& w, double& value) {
  graphpointset result;
  value = network_infinity;
  std::vector<node> nodes = g.all_nodes();
  auto number = [&](node v) {
    return static_cast<int>(std::find(nodes.begin(), nodes.end(), v) - nodes.begin());
  };
  for (edge e : g.all_edges()) {
    int u = number(graph::source(e)), v = number(graph::target(e));
    std::vector<tent> tents;
    for (std::size_t i = 0; i < w.size(); ++i)
      tents.push_back(node_tent(d[u][i], d[v][i], w[i], g.inf(e)));
    for (const point& p : envelope_minima(tents)) {
      graph_point c{u, v, p.xcoord()};
      if (p.xcoord() == 0.0) c = {u, u, 0.0};
      if (p.xcoord() == 1.0) c = {v, v, 0.0};
      if (p.ycoord() < value) result.clear(), value = p.ycoord();
      if (p.ycoord() == value && (result.empty() || !(result.back() == c))) result.push_back(c);
    }
  }
  return result;
}

}  // namespace

// The absolute center with equal weights, where edges are passed over by a bound, against the
// walk over every edge.
TEST(distance_rows, absolute_center_equals_the_walk_over_every_edge) {
  std::mt19937 rng(9);
  std::uniform_real_distribution<double> real(0.05, 10.0);
  for (int round = 0; round < 24; ++round) {
    const int n = 2 + round * 5 % 40;
    std::vector<testing::arc> arcs = testing::random_arcs(rng, n, n + round % 3 * n);
    if (round % 2 == 1)
      for (testing::arc& a : arcs) a.length = real(rng);
    std::vector<double> w(n, round % 3 == 0 ? 1.0 : 2.5);
    location_graph g = undirected_form(make_location_graph(w, arcs));
    double value = 0, expected = 0;
    graphpointset reference = described_abs_center(g, dijkstra_table(g), w, expected);
    EXPECT_EQ(abs_center(g, value), reference) << round;
    EXPECT_EQ(value, expected) << round;
  }
}

// Integer lengths (exact sums: the rows serve the median too) and real ones (the median takes
// the matrix, the center its rows); weights with zeros, or real. Sizes reach past the points
// where a row of the median may be cut short.
TEST(distance_rows, median_and_center_equal_the_described_method) {
  std::mt19937 rng(5);
  std::uniform_real_distribution<double> real(0.05, 10.0);
  for (int round = 0; round < 48; ++round) {
    const int n = 2 + round * 3 % 70;
    const bool integer = round % 2 == 0;
    std::vector<testing::arc> arcs = testing::random_arcs(rng, n, n + round % 5 * n / 2);
    if (!integer)
      for (testing::arc& a : arcs) a.length = real(rng);
    std::vector<double> w;
    for (int i = 0; i < n; ++i) w.push_back(round % 4 < 2 ? rng() % 3 : real(rng));
    location_graph g = undirected_form(make_location_graph(w, arcs));
    const table d = dijkstra_table(g);
    double value = 0, expected = 0;
    location_graph copy = g;
    EXPECT_EQ(graph_median(copy, 'u', value), described_median(d, w, false, expected)) << round;
    EXPECT_EQ(value, expected) << round;
    EXPECT_EQ(node_center(copy, value), described_center(d, w, expected)) << round;
    EXPECT_EQ(value, expected) << round;
    EXPECT_EQ(abs_graph_median(copy, value), described_abs_median(g, d, w)) << round;
    // The rows taken whatever the lengths: twice the one-way sums, bit for bit, and within
    // rounding of the round trips.
    graphpointset doubled = described_median(d, w, true, expected);
    EXPECT_EQ(graph_median_by_rows(copy, value), doubled) << round;
    EXPECT_EQ(value, expected) << round;
    described_median(d, w, false, expected);
    EXPECT_NEAR(value, expected, 1e-12 * expected) << round;
  }
}

// Three nodes on a path 0-1-2, weights 1, 0, 1, lengths 2: every node scores 4, and so do the
// midpoints of both edges, each found from the pair whose second node stores it toward the first.
TEST(distance_rows, a_path_with_a_weightless_middle_ties_everywhere) {
  location_graph g = undirected_form(make_location_graph({1, 0, 1}, {{0, 1, 2.0}, {1, 2, 2.0}}));
  double value = 0;
  graphpointset expected{{0, 0, 0}, {1, 1, 0}, {2, 2, 0}, {1, 0, 0}, {2, 1, 0}};
  EXPECT_EQ(abs_graph_median(g, value), expected);
  EXPECT_EQ(value, 4.0);
}

TEST(distance_rows, exactness_of_path_sums_and_a_matrix_too_large) {
  auto exact = [](std::vector<double> lengths) {
    std::vector<testing::arc> arcs;
    for (std::size_t i = 0; i < lengths.size(); ++i)
      arcs.push_back({0, static_cast<int>(i + 1), lengths[i]});
    return exact_path_sums(make_location_graph(std::vector<double>(lengths.size() + 1, 1), arcs));
  };
  EXPECT_TRUE(exact({1, 2.5, 0.25, 0, 1e15}));
  EXPECT_FALSE(exact({1, 0.1}));
  EXPECT_FALSE(exact({1e300, 1e-300}));
  EXPECT_FALSE(exact({0x1p51, 0x1p51, 1}));
  EXPECT_TRUE(exact({0x1p50, 0x1p50, 1}));
  location_graph big = make_location_graph(std::vector<double>(200000, 1.0), {});
  EXPECT_REPORT(distance_matrix(big), 2005,
                "Graph too large: the distance matrix of 200000 nodes needs 305176 MB of memory");
}

}  // namespace mero
