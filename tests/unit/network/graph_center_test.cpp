#include "network/graph_center.h"

#include <algorithm>
#include <cmath>
#include <random>

#include "network_test_graphs.h"
#include "test_support.h"

namespace mero {
namespace {

using testing::arc;
using testing::make_location_graph;

TEST(abs_center, edge_cases_by_hand) {
  double value = 0;
  location_graph one = make_location_graph({4}, {});
  EXPECT_TRUE(abs_center(one, value).empty());
  EXPECT_EQ(value, 1e50);
  // a star around node 0 with unit lengths: node 0, found from each of its edges in a row, is
  // listed once
  location_graph star =
      undirected_form(make_location_graph({1, 1, 1, 1}, {{0, 1}, {0, 2}, {3, 0}}));
  EXPECT_EQ(abs_center(star, value), (graphpointset{{0, 0, 0}}));
  EXPECT_EQ(value, 1.0);
}

// The weighted distance of the farthest node from the point at fraction t of the edge u-v.
double served(const std::vector<std::vector<double>>& d, const std::vector<double>& w, int u, int v,
              double length, double t) {
  double worst = 0;
  for (std::size_t i = 0; i < w.size(); ++i)
    worst = std::max(worst, w[i] * std::min(d[u][i] + t * length, d[v][i] + (1 - t) * length));
  return worst;
}

// node_center against enumeration over the directed graph, where a node that cannot be reached
// counts as distance 0. abs_center against two references: a scan of every edge at 4000 steps,
// and the exact optimum over the classic candidates (edge ends and the crossings of a rising and
// a falling line of two nodes).
TEST(graph_center, agrees_with_enumeration_and_a_fine_scan_of_every_edge) {
  std::mt19937 rng(11);
  for (int round = 0; round < 120; ++round) {
    int n = 2 + round % 8;
    std::vector<double> w, farthest(n, 0.0);
    // every third round with unit weights, where many tents share their lines
    for (int i = 0; i < n; ++i) w.push_back(round % 3 == 0 ? 1.0 : 1.0 + rng() % 5);
    std::vector<arc> arcs = testing::random_arcs(rng, n, n / 2);
    auto d = testing::reference_distances(n, arcs, false, 1e300);
    for (int x = 0; x < n; ++x)
      for (int j = 0; j < n; ++j)
        if (d[x][j] < 1e300) farthest[x] = std::max(farthest[x], w[j] * d[x][j]);
    double best = *std::min_element(farthest.begin(), farthest.end()), value = 0;
    graphpointset expected;
    for (int x = 0; x < n; ++x)
      if (farthest[x] == best) expected.push_back({x, x, 0});
    location_graph directed = make_location_graph(w, arcs);
    EXPECT_EQ(node_center(directed, value), expected) << "round " << round;
    EXPECT_EQ(value, best) << "round " << round;

    d = testing::reference_distances(n, arcs, true, 1e300);
    double scan = 1e300, exact = 1e300;
    for (const arc& a : arcs) {
      for (int s = 0; s <= 4000; ++s)
        scan = std::min(scan, served(d, w, a.from, a.to, a.length, s / 4000.0));
      std::vector<double> candidates{0.0, 1.0};
      for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) {
          // w_i (d_ui + tL) = w_j (d_vj + (1-t)L)
          double t =
              (w[j] * (d[a.to][j] + a.length) - w[i] * d[a.from][i]) / ((w[i] + w[j]) * a.length);
          if (t > 0 && t < 1) candidates.push_back(t);
        }
      for (double t : candidates) exact = std::min(exact, served(d, w, a.from, a.to, a.length, t));
    }
    location_graph g = undirected_form(make_location_graph(w, arcs));
    graphpointset found = abs_center(g, value);
    EXPECT_NEAR(value, exact, 1e-9) << "round " << round;
    EXPECT_LE(value, scan + 1e-9) << "round " << round;
    EXPECT_GE(value, scan - 5.0 * 9.0 / 4000.0) << "round " << round;
    ASSERT_FALSE(found.empty());
    // each point found scores the value on one of the edges it names (edges may be parallel)
    for (const graph_point& p : found) {
      double miss =
          p.first == p.second ? std::abs(served(d, w, p.first, p.first, 0, 0) - value) : 1e300;
      for (const arc& a : arcs)
        if (p.first != p.second && a.from == p.first && a.to == p.second)
          miss = std::min(miss, std::abs(served(d, w, a.from, a.to, a.length, p.position) - value));
      EXPECT_LT(miss, 1e-9) << "round " << round;
    }
  }
}

}  // namespace
}  // namespace mero
