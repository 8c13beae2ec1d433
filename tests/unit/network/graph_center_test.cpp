#include "network/graph_center.h"

#include <algorithm>
#include <cmath>
#include <random>

#include "network/network_messages.h"
#include "network/tent_envelope.h"
#include "network_test_graphs.h"
#include "test_support.h"

namespace mero {
namespace {

using testing::arc;
using testing::make_location_graph;
using testing::served;

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

// Every tied optimum is listed, in the order found; a node found again right after itself is
// not repeated, found again later it is. All lengths and weights are binary fractions, so the
// crossings are exact and the ties are true ties.
TEST(abs_center, ties_across_edges_where_four_tents_meet) {
  double value = 0;
  // A unit 4-cycle 0-1-2-3 with weights 1 has its center at the four edge midpoints (1.5 to the
  // two far nodes); every node scores 2. Each cycle node k also carries a pendant 4+k, length
  // 1.5, weight 0.5. At the midpoint of 0-1 the far node 2 (falling, slope -1), its pendant 6
  // (falling, -0.5), the far node 3 (rising, 1) and its pendant 7 (rising, 0.5) all meet at 1.5;
  // the near pendants score 1. A point of a pendant edge is at least 2 from the opposite node.
  const std::vector<arc> arcs{{0, 1, 1},   {1, 2, 1},   {2, 3, 1},   {3, 0, 1},
                              {0, 4, 1.5}, {1, 5, 1.5}, {2, 6, 1.5}, {3, 7, 1.5}};
  location_graph g = undirected_form(make_location_graph({1, 1, 1, 1, 0.5, 0.5, 0.5, 0.5}, arcs));
  EXPECT_EQ(abs_center(g, value),
            (graphpointset{{0, 1, 0.5}, {1, 2, 0.5}, {2, 3, 0.5}, {3, 0, 0.5}}));
  EXPECT_EQ(value, 1.5);
  // A unit triangle: the third node's tent peaks in the middle of each edge, so both ends of
  // every edge score 1. Edge 0-1 gives 0 and 1, edge 1-2 gives 1 (just listed) and 2, edge 2-0
  // gives 2 (just listed) and 0, which was listed but not last.
  location_graph triangle =
      undirected_form(make_location_graph({1, 1, 1}, {{0, 1, 1}, {1, 2, 1}, {2, 0, 1}}));
  EXPECT_EQ(abs_center(triangle, value),
            (graphpointset{{0, 0, 0}, {1, 1, 0}, {2, 2, 0}, {0, 0, 0}}));
  EXPECT_EQ(value, 1.0);
}

// Two equal lowest points on one edge (length 4), each where three tents meet, the tents given
// with the less steep of each meeting first: the envelope falls from 4 on B (4 - 4t) to 3 at
// t = 0.25, where C (2 + 4t) and D (2.5 + 2t) cross it; rises on C to its peak 4 at 0.5, falls
// to 3 at 0.75, where A (4t) and E (1.5 + 2t) cross it; and rises on A to 4.
TEST(envelope_minima, equal_minima_on_one_edge_where_three_tents_meet) {
  const tent a = node_tent(0, 4, 1, 4), b = node_tent(4, 0, 1, 4), c = node_tent(2, 2, 1, 4);
  const tent d = node_tent(5, 4, 0.5, 4), e = node_tent(3, 6, 0.5, 4);
  EXPECT_EQ(envelope_minima({d, e, b, c, a}), (std::list<point>{{0.25, 3}, {0.75, 3}}));
  EXPECT_EQ(envelope_minima({a, b, c, d, e}), (std::list<point>{{0.25, 3}, {0.75, 3}}));
}

// abs_center joins a disconnected graph on the object it is handed (the run hands it a working
// form, so the graph the run read stays as it was): one message, one new edge of length 0 from
// the anchor to the other component, and distances that go across it.
TEST(abs_center, repairs_the_graph_it_is_handed) {
  testing::messages().clear();
  location_graph g = undirected_form(make_location_graph({1, 1, 1}, {{0, 1, 2}}));
  double value = 0;
  // node 2 at distance 0 from node 0: the midpoint of 0-1 is 1 from everybody
  EXPECT_EQ(abs_center(g, value), (graphpointset{{0, 1, 0.5}}));
  EXPECT_EQ(value, 1.0);
  ASSERT_EQ(testing::messages().size(), 1u);
  EXPECT_EQ(testing::messages()[0].text, network_messages::center_not_connected.text);
  ASSERT_EQ(g.number_of_edges(), 2);
  const edge added = graph::succ_edge(g.first_edge());
  EXPECT_EQ(graph::index(graph::source(added)), 0);
  EXPECT_EQ(graph::index(graph::target(added)), 2);
  EXPECT_EQ(g.inf(added), 0.0);
  // joined once, the graph is left alone by the next run
  EXPECT_EQ(abs_center(g, value), (graphpointset{{0, 1, 0.5}}));
  EXPECT_EQ(testing::messages().size(), 1u);
  EXPECT_EQ(g.number_of_edges(), 2);
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
