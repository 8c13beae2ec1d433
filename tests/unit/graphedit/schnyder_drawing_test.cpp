#include "graphedit/schnyder_drawing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "graphedit/generators.h"
#include "sample_graphs.h"

namespace mero {
namespace {

using testing::graph_of;
using grid_point = std::pair<int, int>;

long long cross(grid_point o, grid_point a, grid_point b) {
  return static_cast<long long>(a.first - o.first) * (b.second - o.second) -
         static_cast<long long>(a.second - o.second) * (b.first - o.first);
}

// p on the closed segment a b.
bool on_segment(grid_point p, grid_point a, grid_point b) {
  return cross(a, b, p) == 0 && std::min(a.first, b.first) <= p.first &&
         p.first <= std::max(a.first, b.first) && std::min(a.second, b.second) <= p.second &&
         p.second <= std::max(a.second, b.second);
}

bool segments_meet(grid_point a, grid_point b, grid_point c, grid_point d) {
  long long d1 = cross(a, b, c), d2 = cross(a, b, d), d3 = cross(c, d, a), d4 = cross(c, d, b);
  if (((d1 > 0 && d2 < 0) || (d1 < 0 && d2 > 0)) && ((d3 > 0 && d4 < 0) || (d3 < 0 && d4 > 0)))
    return true;
  return on_segment(c, a, b) || on_segment(d, a, b) || on_segment(a, c, d) || on_segment(b, c, d);
}

// Straight edges between the grid points: nodes apart, no node on an edge but its ends, edges
// meeting only in a common end (and then not along a stretch), exact in whole numbers.
::testing::AssertionResult is_plane_straight_line(const graph& g,
                                                  const std::vector<grid_point>& at) {
  auto fail = [](const std::string& why) { return ::testing::AssertionFailure() << why; };
  std::vector<std::pair<std::size_t, std::size_t>> edges;
  std::vector<node> nodes = g.all_nodes();
  for (edge e = g.first_edge(); e != nullptr; e = graph::succ_edge(e))
    edges.emplace_back(std::find(nodes.begin(), nodes.end(), graph::source(e)) - nodes.begin(),
                       std::find(nodes.begin(), nodes.end(), graph::target(e)) - nodes.begin());
  if (std::set<grid_point>(at.begin(), at.end()).size() != at.size()) return fail("nodes coincide");
  for (std::size_t k = 0; k < edges.size(); ++k) {
    auto [a, b] = edges[k];
    for (std::size_t v = 0; v < at.size(); ++v)
      if (v != a && v != b && on_segment(at[v], at[a], at[b]))
        return fail("node " + std::to_string(v) + " on edge " + std::to_string(k));
    for (std::size_t j = k + 1; j < edges.size(); ++j) {
      auto [c, d] = edges[j];
      std::size_t common = (a == c || a == d) ? a : (b == c || b == d) ? b : at.size();
      if (common == at.size()) {
        if (segments_meet(at[a], at[b], at[c], at[d]))
          return fail("edges " + std::to_string(k) + " and " + std::to_string(j) + " cross");
      } else {
        std::size_t p = common == a ? b : a, q = common == c ? d : c;
        if (cross(at[common], at[p], at[q]) == 0 &&
            (on_segment(at[p], at[common], at[q]) || on_segment(at[q], at[common], at[p])))
          return fail("edges " + std::to_string(k) + " and " + std::to_string(j) + " overlap");
      }
    }
  }
  return ::testing::AssertionSuccess();
}

TEST(SchnyderDrawing, KnownAnswersAndRefusals) {
  // K4: the outer triangle at the corners of the grid of 2 * 4 - 5 = 3, and the inner node
  // with one face in each of its three regions.
  ge_graph k4 = graph_of(4, {{0, 1}, {0, 2}, {0, 3}, {1, 2}, {1, 3}, {2, 3}});
  auto at = schnyder_coordinates(k4.g);
  ASSERT_TRUE(at.has_value());
  EXPECT_EQ(std::set<grid_point>(at->begin(), at->end()),
            (std::set<grid_point>{{3, 0}, {0, 3}, {0, 0}, {1, 1}}));
  std::vector<std::pair<int, int>> k5, k33;
  for (int a = 0; a < 5; ++a)
    for (int b = a + 1; b < 5; ++b) k5.emplace_back(a, b);
  for (int a = 0; a < 3; ++a)
    for (int b = 3; b < 6; ++b) k33.emplace_back(a, b);
  for (const auto& [n, edges] : {std::pair(5, k5), std::pair(6, k33)}) {
    ge_graph x = graph_of(n, edges);
    ge_graph before = x;
    EXPECT_FALSE(schnyder_layout(x, 0, 0, 100, 100));
    EXPECT_TRUE(same_drawing(x, before));
  }
  // The checker on drawings by hand: crossing diagonals, a node on an edge, a fan that is fine.
  ge_graph square = graph_of(4, {{0, 2}, {1, 3}});
  EXPECT_FALSE(is_plane_straight_line(square.g, {{0, 0}, {2, 0}, {2, 2}, {0, 2}}));
  ge_graph fan = graph_of(3, {{0, 1}, {0, 2}});
  EXPECT_FALSE(is_plane_straight_line(fan.g, {{0, 0}, {1, 1}, {2, 2}}));
  EXPECT_TRUE(is_plane_straight_line(fan.g, {{0, 0}, {1, 1}, {2, 1}}));
  ge_graph path = graph_of(2, {{0, 1}});
  EXPECT_TRUE(schnyder_layout(path, 0, 0, 100, 100));
  EXPECT_NE(path.g.inf(path.g.first_node()).position, path.g.inf(path.g.last_node()).position);
}

// Random stacked triangulations and random plane graphs (drawn as their triangulations are),
// on the grid of 2n - 5.
TEST(SchnyderDrawing, RandomPlanarGraphsAreDrawnWithoutCrossings) {
  for (unsigned seed = 1; seed <= 200; ++seed) {
    ge_graph x;
    int n = 3 + static_cast<int>(seed % 40);
    if (seed % 2 == 0)
      triangulated_graph(x, n, seed, {});
    else
      planar_graph(x, n, 2 * n, seed, {});
    SCOPED_TRACE("seed " + std::to_string(seed));
    auto at = schnyder_coordinates(x.g);
    ASSERT_TRUE(at.has_value());
    // The three outer nodes at the corners, every other one strictly inside.
    int all = 2 * n - 5, corners = 0, inside = 0;
    for (auto [px, py] : *at) {
      corners += (px == 0 && py == 0) || (px == all && py == 0) || (px == 0 && py == all);
      inside += px > 0 && py > 0 && px + py < all;
    }
    EXPECT_EQ(corners, 3);
    EXPECT_EQ(inside, n - 3);
    EXPECT_TRUE(is_plane_straight_line(x.g, *at));
  }
}

}  // namespace
}  // namespace mero
