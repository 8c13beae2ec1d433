#include "graphedit/graph_algorithms.h"

#include <gtest/gtest.h>

#include <vector>

#include "graphedit/generators.h"
#include "sample_graphs.h"
#include "kernel/segment.h"

namespace mero {
namespace {

using pairs = std::vector<std::pair<int, int>>;

using testing::graph_of;

ge_graph complete(int n) {
  pairs e;
  for (int a = 0; a < n; ++a)
    for (int b = a + 1; b < n; ++b) e.emplace_back(a, b);
  return graph_of(n, e);
}

// The eight tests on one graph, in the menu's order but for "bidirected".
std::vector<bool> answers(const graph& g) {
  return {is_simple(g),         is_bipartite(g),          is_connected(g),
          is_biconnected(g),    is_triconnected(g),       is_series_parallel(g),
          is_planar(g)};
}

TEST(GraphTests, KnownGraphs) {
  const bool T = true, F = false;
  // simple, bipartite, connected, biconnected, triconnected, series-parallel, planar
  EXPECT_EQ(answers(complete(4).g), (std::vector<bool>{T, F, T, T, T, F, T}));
  EXPECT_EQ(answers(complete(5).g), (std::vector<bool>{T, F, T, T, T, F, F}));
  pairs k33;
  for (int a = 0; a < 3; ++a)
    for (int b = 3; b < 6; ++b) k33.emplace_back(a, b);
  EXPECT_EQ(answers(graph_of(6, k33).g), (std::vector<bool>{T, T, T, T, T, F, F}));
  ge_graph c5 = graph_of(5, {{0, 1}, {1, 2}, {2, 3}, {3, 4}, {4, 0}});
  EXPECT_EQ(answers(c5.g), (std::vector<bool>{T, F, T, T, F, T, T}));
  ge_graph c6 = graph_of(6, {{0, 1}, {1, 2}, {2, 3}, {3, 4}, {4, 5}, {5, 0}});
  EXPECT_TRUE(is_bipartite(c6.g));
  ge_graph tree = graph_of(5, {{0, 1}, {1, 2}, {1, 3}, {3, 4}});
  EXPECT_EQ(answers(tree.g), (std::vector<bool>{T, T, T, F, F, T, T}));
  ge_graph grid;
  grid_graph(grid, 3, 3, {});
  EXPECT_EQ(answers(grid.g), (std::vector<bool>{T, T, T, T, F, F, T}));
  // Two triangles apart, and a loop with a parallel edge.
  ge_graph apart = graph_of(6, {{0, 1}, {1, 2}, {2, 0}, {3, 4}, {4, 5}, {5, 3}});
  EXPECT_EQ(answers(apart.g), (std::vector<bool>{T, F, F, F, F, T, T}));
  ge_graph multi = graph_of(3, {{0, 1}, {0, 1}, {1, 2}, {2, 2}});
  EXPECT_FALSE(is_simple(multi.g));
  EXPECT_FALSE(is_bipartite(multi.g));  // the loop is an odd cycle
  EXPECT_TRUE(is_series_parallel(multi.g));
}

TEST(GraphTests, BidirectedNeedsEveryEdgeBothWays) {
  ge_graph x = graph_of(3, {{0, 1}, {1, 0}, {1, 2}, {2, 1}});
  EXPECT_TRUE(is_bidirected(x.g));
  x.g.new_edge(x.g.first_node(), x.g.last_node());
  EXPECT_FALSE(is_bidirected(x.g));
  EXPECT_FALSE(is_bidirected(complete(4).g));
}

TEST(GraphMakes, RepairsGiveWhatTheTestsAsk) {
  ge_graph multi = graph_of(3, {{0, 1}, {0, 1}, {1, 2}, {2, 2}, {1, 2}});
  EXPECT_EQ(make_simple(multi.g), 3);
  EXPECT_EQ(multi.g.number_of_edges(), 2);
  EXPECT_TRUE(is_simple(multi.g));

  ge_graph apart = graph_of(7, {{0, 1}, {1, 2}, {3, 4}});  // three components and two lone nodes
  EXPECT_EQ(make_connected(apart.g).size(), 3u);
  EXPECT_TRUE(is_connected(apart.g));

  // A path of five nodes has three articulation points; a star of four has one, with three
  // blocks, so it needs two edges.
  ge_graph path = graph_of(5, {{0, 1}, {1, 2}, {2, 3}, {3, 4}});
  make_biconnected(path.g);
  EXPECT_TRUE(is_biconnected(path.g));
  ge_graph star = graph_of(4, {{0, 1}, {0, 2}, {0, 3}});
  EXPECT_EQ(make_biconnected(star.g), 2);
  EXPECT_TRUE(is_biconnected(star.g));

  ge_graph cycle = graph_of(3, {{0, 1}, {1, 2}, {2, 0}, {1, 0}});
  EXPECT_EQ(make_bidirected(cycle.g), 2);  // (1, 0) pairs with (0, 1); two new edges
  EXPECT_TRUE(is_bidirected(cycle.g));
  for (edge e = cycle.g.first_edge(); e != nullptr; e = graph::succ_edge(e)) {
    ASSERT_NE(graph::reversal(e), nullptr);
    EXPECT_EQ(graph::source(graph::reversal(e)), graph::target(e));
  }
}

// No two edges without a common end cross in the drawing.
bool plane_drawing(const ge_graph& x) {
  std::vector<edge> edges = x.g.all_edges();
  for (std::size_t a = 0; a < edges.size(); ++a)
    for (std::size_t b = a + 1; b < edges.size(); ++b) {
      node s = graph::source(edges[a]), t = graph::target(edges[a]);
      node u = graph::source(edges[b]), w = graph::target(edges[b]);
      if (s == u || s == w || t == u || t == w) continue;
      segment p(x.g.inf(s).position, x.g.inf(t).position);
      segment q(x.g.inf(u).position, x.g.inf(w).position);
      if (p.intersection(q)) return false;
    }
  return true;
}

TEST(Generators, ProduceTheKindTheyClaim) {
  layout_box box;
  ge_graph x;
  complete_graph(x, 5, box);
  EXPECT_EQ(x.g.number_of_edges(), 10);
  EXPECT_FALSE(is_planar(x.g));
  random_graph(x, 8, 12, 7, box);
  EXPECT_EQ(x.g.number_of_edges(), 12);
  EXPECT_TRUE(is_simple(x.g));
  random_planar_graph(x, 12, 20, 3, box);
  EXPECT_EQ(x.g.number_of_edges(), 20);
  EXPECT_TRUE(is_planar(x.g));
  EXPECT_TRUE(plane_drawing(x));
  for (unsigned seed = 1; seed <= 5; ++seed) {
    random_series_parallel_graph(x, 14, seed, box);
    EXPECT_EQ(x.g.number_of_nodes(), 14);
    EXPECT_TRUE(is_series_parallel(x.g));
    // One edge to start, then one (series) or two (parallel) for each further node.
    EXPECT_GE(x.g.number_of_edges(), 13);
    EXPECT_LE(x.g.number_of_edges(), 25);
  }
  complete_bipartite_graph(x, 3, 3, box);
  EXPECT_EQ(x.g.number_of_edges(), 9);
  EXPECT_TRUE(is_bipartite(x.g));
  EXPECT_FALSE(is_planar(x.g));
  random_bipartite_graph(x, 4, 5, 10, 2, box);
  EXPECT_EQ(x.g.number_of_edges(), 10);
  EXPECT_TRUE(is_bipartite(x.g));
  planar_graph(x, 15, 25, 4, box);
  EXPECT_EQ(x.g.number_of_edges(), 25);
  EXPECT_TRUE(plane_drawing(x));
  triangulated_graph(x, 10, 5, box);
  EXPECT_EQ(x.g.number_of_edges(), 24);  // 3n - 6
  EXPECT_TRUE(is_triconnected(x.g));
  EXPECT_TRUE(plane_drawing(x));
  grid_graph(x, 3, 4, box);
  EXPECT_EQ(x.g.number_of_nodes(), 12);
  EXPECT_EQ(x.g.number_of_edges(), 17);
  EXPECT_TRUE(is_bipartite(x.g));
}

TEST(Layouts, PlanarDrawingHasNoCrossingAndFacesFollowEuler) {
  ge_graph x = complete(4);
  ASSERT_TRUE(straight_line_planar_layout(x, 0, 0, 100, 100));
  EXPECT_TRUE(plane_drawing(x));
  EXPECT_EQ(faces_by_angle(x).size(), 4u);  // 6 - 4 + 2
  ge_graph k5 = complete(5);
  EXPECT_FALSE(straight_line_planar_layout(k5, 0, 0, 100, 100));
  ge_graph grid;
  grid_graph(grid, 3, 3, {});
  EXPECT_EQ(faces_by_angle(grid).size(), 5u);  // 12 - 9 + 2
  spring_layout(grid, 0, 0, 50, 80, 1);
  for (node v = grid.g.first_node(); v != nullptr; v = graph::succ_node(v)) {
    const point& p = grid.g.inf(v).position;
    EXPECT_TRUE(p.xcoord() >= -1e-9 && p.xcoord() <= 50 + 1e-9 && p.ycoord() >= -1e-9 &&
                p.ycoord() <= 80 + 1e-9);
  }
}

}  // namespace
}  // namespace mero
