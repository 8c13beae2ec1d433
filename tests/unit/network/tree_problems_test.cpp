#include "network/tree_problems.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <set>

#include "network/network_messages.h"
#include "network_test_graphs.h"
#include "test_support.h"

namespace mero {
namespace {

using testing::arc;
using testing::make_location_graph;

location_graph tree_of(const std::vector<double>& w, const std::vector<arc>& arcs) {
  return tree_form(make_location_graph(w, arcs));
}

// The median's value is the plain sum of distances from the first node found, whatever the
// weights; the location is the weighted median. The village tree of the examples (value 11, not
// the weighted 13) and the path of three for the centers are shown by tests/cli/trees.t.
TEST(tree_median, cases_by_hand) {
  double value = -1;
  EXPECT_EQ(tree_median(tree_of({7}, {}), value), (graphpointset{{0, 0, 0}}));
  EXPECT_EQ(value, 0.0);
  // two nodes of weight 1: the first leaf holds exactly half, both are optimal
  EXPECT_EQ(abs_tree_median(tree_of({1, 1}, {{0, 1, 3}}), value),
            (graphpointset{{0, 0, 0}, {1, 1, 0}, {0, 1, 0}}));
  EXPECT_EQ(value, 3.0);
  // weights 1 and 5: the first leaf folds into the second, which stands alone
  EXPECT_EQ(abs_tree_median(tree_of({1, 5}, {{0, 1, 3}}), value), (graphpointset{{1, 1, 0}}));
  EXPECT_EQ(value, 3.0);
  // a star whose centre (node 2) holds more than half: leaves 0, 1, 3 fold into it and it is
  // taken when it comes up as a leaf; value 2 + 3 + 4, not the weighted 2 + 3 + 2 * 4
  EXPECT_EQ(tree_median(tree_of({1, 1, 9, 2}, {{2, 0, 2}, {1, 2, 3}, {2, 3, 4}}), value),
            (graphpointset{{2, 2, 0}}));
  EXPECT_EQ(value, 9.0);
  // all weights 0: the first leaf stops at once, with the other end of its edge
  EXPECT_EQ(tree_median(tree_of({0, 0, 0}, {{0, 1, 1}, {1, 2, 1}}), value),
            (graphpointset{{0, 0, 0}, {1, 1, 0}}));
  // weights -2 and 1: the first leaf folds, and the whole -1 lies below half of itself
  EXPECT_REPORT(tree_median(tree_of({-2, 1}, {{0, 1, 1}}), value), 2203,
                network_messages::negative_tree_weight.text);
}

TEST(tree_median, location_agrees_with_enumeration_over_all_nodes) {
  std::mt19937 rng(23);
  for (int round = 0; round < 200; ++round) {
    const int n = 1 + round % 12;
    std::vector<double> w;
    for (int i = 0; i < n; ++i) w.push_back(1.0 + rng() % 6);
    std::vector<arc> arcs = testing::random_arcs(rng, n, 0);
    auto d = testing::reference_distances(n, arcs, true, 1e300);
    std::vector<double> sums(n, 0.0);
    for (int x = 0; x < n; ++x)
      for (int j = 0; j < n; ++j) sums[x] += w[j] * d[x][j];
    const double best = *std::min_element(sums.begin(), sums.end());
    std::set<int> optimal;
    for (int x = 0; x < n; ++x)
      if (sums[x] == best) optimal.insert(x);
    double value = 0;
    graphpointset found = tree_median(tree_of(w, arcs), value);
    std::set<int> nodes;
    for (const graph_point& p : found) {
      EXPECT_EQ(p.first, p.second);
      nodes.insert(p.first);
    }
    EXPECT_EQ(nodes, optimal) << "round " << round;
    double plain = 0;
    for (int i = 0; i < n; ++i) plain += d[i][found.front().first];
    EXPECT_EQ(value, plain) << "round " << round;
  }
}

TEST(tree_v1_center, cases_by_hand) {
  double value = 0;
  // path of four, unit lengths: halfway along the middle edge, walked back from node 0
  location_graph four = tree_of({1, 1, 1, 1}, {{0, 1}, {1, 2}, {2, 3}});
  EXPECT_EQ(tree_v1_center(four, value), (graphpointset{{2, 1, 0.5}}));
  EXPECT_EQ(value, 1.5);
  EXPECT_EQ(loc_tree_v1_center(four, value), (graphpointset{{2, 2, 0}, {1, 1, 0}}));
  EXPECT_EQ(value, 1.0);
  // lengths 1, 3: v1 = 2, v2 = 0 at 4, the middle 2/3 of the way from 2 to 1; the node rule
  // takes 1 and adds t to z instead of reading the true eccentricity 3
  location_graph long_end = tree_of({1, 1, 1}, {{0, 1, 1}, {1, 2, 3}});
  EXPECT_EQ(tree_v1_center(long_end, value), (graphpointset{{2, 1, 2.0 / 3.0}}));
  EXPECT_EQ(value, 2.0);
  EXPECT_EQ(loc_tree_v1_center(long_end, value), (graphpointset{{1, 1, 0}}));
  EXPECT_EQ(value, 2.0 + 2.0 / 3.0);
  // lengths 3, 1: the middle 1/3 of the way from 1 to 0, so u = 1 again, with z + 1/3
  location_graph long_start = tree_of({1, 1, 1}, {{0, 1, 3}, {1, 2, 1}});
  EXPECT_EQ(tree_v1_center(long_start, value), (graphpointset{{1, 0, 1.0 / 3.0}}));
  EXPECT_EQ(loc_tree_v1_center(long_start, value), (graphpointset{{1, 1, 0}}));
  EXPECT_EQ(value, 2.0 + 1.0 / 3.0);
  // one node: no path to halve
  EXPECT_EQ(tree_v1_center(tree_of({1}, {}), value), (graphpointset{{0, 0, 0}}));
  EXPECT_EQ(value, 0.0);
  EXPECT_REPORT(loc_tree_v1_center(tree_of({1, 1.5}, {{0, 1}}), value), 2202,
                "All weights must be equal to 1");
  value = 42;
  EXPECT_TRUE(two_tree_center(four, value).empty());
  EXPECT_EQ(value, 42.0);
}

// The absolute center of a unit-weight tree against a scan of every edge at 2000 steps; the
// point reported serves every node within the value.
TEST(tree_v1_center, agrees_with_a_fine_scan_of_every_edge) {
  std::mt19937 rng(29);
  for (int round = 0; round < 150; ++round) {
    const int n = 2 + round % 12;
    std::vector<double> w(n, 1.0);
    std::vector<arc> arcs = testing::random_arcs(rng, n, 0);
    auto d = testing::reference_distances(n, arcs, true, 1e300);
    double scan = 1e300;
    for (const arc& a : arcs)
      for (int s = 0; s <= 2000; ++s)
        scan = std::min(scan, testing::served(d, w, a.from, a.to, a.length, s / 2000.0));
    double value = 0;
    graphpointset found = tree_v1_center(tree_of(w, arcs), value);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_LE(value, scan + 1e-9) << "round " << round;
    EXPECT_GE(value, scan - 9.0 / 2000.0) << "round " << round;
    const graph_point p = found.front();
    double length = 0;
    for (const arc& a : arcs)
      if ((a.from == p.first && a.to == p.second) || (a.from == p.second && a.to == p.first))
        length = a.length;
    ASSERT_GT(length, 0) << "round " << round;
    EXPECT_NEAR(testing::served(d, w, p.first, p.second, length, p.position), value, 1e-9)
        << "round " << round;
  }
}

}  // namespace
}  // namespace mero
