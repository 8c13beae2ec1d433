#include "network/graph_center.h"

#include <algorithm>
#include <cmath>
#include <random>

#include "network/tent_envelope.h"
#include "network_test_graphs.h"
#include "test_support.h"

namespace mero {
namespace {

using testing::arc;
using testing::make_location_graph;

TEST(graph_center, small_cases_by_hand) {
  double value = 0;
  location_graph one = make_location_graph({4}, {});
  EXPECT_EQ(node_center(one, value), (graphpointset{{0, 0, 0}}));
  EXPECT_EQ(value, 0.0);
  EXPECT_TRUE(abs_center(one, value).empty());
  EXPECT_EQ(value, 1e50);

  location_graph two = undirected_form(make_location_graph({1, 1}, {{0, 1, 2}}));
  EXPECT_EQ(node_center(two, value), (graphpointset{{0, 0, 0}, {1, 1, 0}}));
  EXPECT_EQ(value, 2.0);
  EXPECT_EQ(abs_center(two, value), (graphpointset{{0, 1, 0.5}}));
  EXPECT_EQ(value, 1.0);

  // star around node 0 with unit lengths: the center is node 0, found from each of its edges
  // in a row and so listed once
  location_graph star =
      undirected_form(make_location_graph({1, 1, 1, 1}, {{0, 1, 1}, {0, 2, 1}, {3, 0, 1}}));
  EXPECT_EQ(abs_center(star, value), (graphpointset{{0, 0, 0}}));
  EXPECT_EQ(value, 1.0);

  // all weights zero: every point scores 0; node_center lists every node
  location_graph zero = undirected_form(make_location_graph({0, 0, 0}, {{0, 1, 1}, {1, 2, 1}}));
  EXPECT_EQ(node_center(zero, value), (graphpointset{{0, 0, 0}, {1, 1, 0}, {2, 2, 0}}));
  abs_center(zero, value);
  EXPECT_EQ(value, 0.0);
}

TEST(graph_center, directed_node_center_looks_outward) {
  // 0 -> 1 (1), 1 -> 2 (1), 2 -> 0 (5): farthest from 0 is 2 at 2, from 1 is 0 at 6, from 2 is
  // 1 at 6.
  location_graph g = make_location_graph({1, 1, 1}, {{0, 1, 1}, {1, 2, 1}, {2, 0, 5}});
  double value = 0;
  EXPECT_EQ(node_center(g, value), (graphpointset{{0, 0, 0}}));
  EXPECT_EQ(value, 2.0);
}

TEST(node_tent, crossing_inside_or_one_line) {
  // du 0, dv 1, L 3, w 2: rising (0,0)-(1,6), falling (0,8)-(1,2) cross at t = 2/3, y = 4
  tent t = node_tent(0, 1, 2, 3);
  EXPECT_EQ(t.first.source(), point(0, 0));
  EXPECT_NEAR(t.first.xcoord2(), 2.0 / 3.0, 1e-15);
  EXPECT_NEAR(t.first.ycoord2(), 4.0, 1e-12);
  EXPECT_EQ(t.second.target(), point(1, 2));
  // du 0, dv 2, L 2: the lines meet at t = 1, so the rising line alone is the function
  tent edge_end = node_tent(0, 2, 1, 2);
  EXPECT_EQ(edge_end.first, segment(point(0, 0), point(1, 2)));
  EXPECT_EQ(edge_end.second, segment());
  tent other_end = node_tent(2, 0, 1, 2);
  EXPECT_EQ(other_end.first, segment(point(0, 2), point(1, 0)));
}

// The weighted distance of node i from the point at fraction t of the edge u-v.
double served(const std::vector<std::vector<double>>& d, const std::vector<double>& w, int u, int v,
              double length, double t) {
  double worst = 0;
  for (std::size_t i = 0; i < w.size(); ++i)
    worst = std::max(worst, w[i] * std::min(d[u][i] + t * length, d[v][i] + (1 - t) * length));
  return worst;
}

// Compares abs_center with two references: a scan of every edge at 4000 steps, and the exact
// optimum over the classic candidates (edge ends and the crossings of a rising and a falling
// line of two nodes).
TEST(abs_center, agrees_with_a_fine_scan_of_every_edge) {
  std::mt19937 rng(11);
  for (int round = 0; round < 120; ++round) {
    int n = 2 + round % 8;
    std::vector<double> w;
    std::vector<arc> arcs;
    // every third round with unit weights, where many tents share their lines
    for (int i = 0; i < n; ++i) w.push_back(round % 3 == 0 ? 1.0 : 1.0 + rng() % 5);
    for (int i = 1; i < n; ++i) arcs.push_back({static_cast<int>(rng() % i), i, 1.0 + rng() % 9});
    for (int k = 0; k < n / 2; ++k) {
      int a = static_cast<int>(rng() % n), b = static_cast<int>(rng() % n);
      if (a != b) arcs.push_back({a, b, 1.0 + rng() % 9});
    }
    auto d = testing::reference_distances(n, arcs, true, 1e300);
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
    double value = 0;
    graphpointset found = abs_center(g, value);
    EXPECT_NEAR(value, exact, 1e-9) << "round " << round;
    EXPECT_LE(value, scan + 1e-9) << "round " << round;
    EXPECT_GE(value, scan - 5.0 * 9.0 / 4000.0) << "round " << round;
    ASSERT_FALSE(found.empty());
    // each point found scores the value on one of the edges it names (edges may be parallel)
    for (const graph_point& p : found) {
      double best_at = p.first == p.second ? served(d, w, p.first, p.first, 0, 0) : 1e300;
      for (const arc& a : arcs)
        if (p.first != p.second && a.from == p.first && a.to == p.second)
          best_at =
              std::min(best_at, std::abs(served(d, w, a.from, a.to, a.length, p.position) - value));
      if (p.first == p.second) best_at = std::abs(best_at - value);
      EXPECT_LT(best_at, 1e-9) << "round " << round;
    }
  }
}

}  // namespace
}  // namespace mero
