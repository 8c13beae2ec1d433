#include "graphedit/planar_representations.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "graphedit/generators.h"
#include "graphedit/graph_algorithms.h"
#include "sample_graphs.h"

namespace mero {
namespace {

using pairs = std::vector<std::pair<int, int>>;

using testing::graph_of;

std::map<node, int> numbers(const graph& g) {
  std::map<node, int> at;
  for (node v = g.first_node(); v != nullptr; v = graph::succ_node(v))
    at[v] = static_cast<int>(at.size());
  return at;
}

// The graph's edges as unordered pairs of list places, loops left out.
std::set<std::pair<std::size_t, std::size_t>> undirected_pairs(const graph& g) {
  auto at = numbers(g);
  std::set<std::pair<std::size_t, std::size_t>> out;
  for (edge e = g.first_edge(); e != nullptr; e = graph::succ_edge(e)) {
    std::size_t a = at[graph::source(e)], b = at[graph::target(e)];
    if (a != b) out.insert({std::min(a, b), std::max(a, b)});
  }
  return out;
}

bool inside(int x, int low, int high) { return low <= x && x <= high; }

// Node segments of a row are disjoint; each edge's vertical segment ends on its two nodes'
// segments, meets no other node's segment and overlaps no other edge; node segments span
// exactly the columns of their edges.
::testing::AssertionResult is_visibility_of(const visibility_representation& r, const graph& g) {
  auto fail = [](const std::string& why) { return ::testing::AssertionFailure() << why; };
  std::size_t n = static_cast<std::size_t>(g.number_of_nodes());
  if (r.row.size() != n || r.left.size() != n || r.right.size() != n) return fail("sizes");
  std::set<std::pair<std::size_t, std::size_t>> ends(r.ends.begin(), r.ends.end());
  if (ends != undirected_pairs(g) || r.ends.size() != ends.size() || r.column.size() != ends.size())
    return fail("not the graph's edges");
  for (std::size_t v = 0; v < n; ++v) {
    if (r.left[v] > r.right[v]) return fail("segment turned round at " + std::to_string(v));
    for (std::size_t w = v + 1; w < n; ++w)
      if (r.row[v] == r.row[w] && r.left[v] <= r.right[w] && r.left[w] <= r.right[v])
        return fail("segments " + std::to_string(v) + " and " + std::to_string(w) + " meet");
  }
  std::vector<int> low(n, 1 << 30), high(n, -(1 << 30));
  for (std::size_t k = 0; k < r.ends.size(); ++k) {
    auto [v, w] = r.ends[k];
    int x = r.column[k], y0 = std::min(r.row[v], r.row[w]), y1 = std::max(r.row[v], r.row[w]);
    for (std::size_t u : {v, w}) {
      low[u] = std::min(low[u], x);
      high[u] = std::max(high[u], x);
    }
    if (y0 == y1 || !inside(x, r.left[v], r.right[v]) || !inside(x, r.left[w], r.right[w]))
      return fail("edge " + std::to_string(k) + " does not join its nodes");
    for (std::size_t u = 0; u < n; ++u)
      if (y0 < r.row[u] && r.row[u] < y1 && inside(x, r.left[u], r.right[u]))
        return fail("edge " + std::to_string(k) + " crosses node " + std::to_string(u));
    for (std::size_t j = k + 1; j < r.ends.size(); ++j) {
      auto [a, b] = r.ends[j];
      if (r.column[j] == x &&
          std::max(y0, std::min(r.row[a], r.row[b])) < std::min(y1, std::max(r.row[a], r.row[b])))
        return fail("edges " + std::to_string(k) + " and " + std::to_string(j) + " overlap");
    }
  }
  for (std::size_t v = 0; v < n; ++v)
    if (high[v] >= low[v] && (r.left[v] != low[v] || r.right[v] != high[v]))
      return fail("segment of " + std::to_string(v) + " is not spanned by its edges");
  return ::testing::AssertionSuccess();
}

struct piece {
  point a, b;
  edge e;
};

// The closed box where two axis-parallel pieces meet; empty when lo > hi on an axis.
bool meet(const piece& p, const piece& q, point& lo, point& hi) {
  lo = point(std::max(std::min(p.a.xcoord(), p.b.xcoord()), std::min(q.a.xcoord(), q.b.xcoord())),
             std::max(std::min(p.a.ycoord(), p.b.ycoord()), std::min(q.a.ycoord(), q.b.ycoord())));
  hi = point(std::min(std::max(p.a.xcoord(), p.b.xcoord()), std::max(q.a.xcoord(), q.b.xcoord())),
             std::min(std::max(p.a.ycoord(), p.b.ycoord()), std::max(q.a.ycoord(), q.b.ycoord())));
  return lo.xcoord() <= hi.xcoord() && lo.ycoord() <= hi.ycoord();
}

// Every edge a chain of horizontal and vertical pieces from its source to its target; nodes at
// different places; no piece passes through a node but at its own edge's ends; pieces of
// different edges meet only in a node that both edges end at, pieces of one edge only where
// they follow each other.
::testing::AssertionResult is_orthogonal_drawing(const ge_graph& x) {
  auto fail = [](const std::string& why) { return ::testing::AssertionFailure() << why; };
  std::vector<node> nodes = x.g.all_nodes();
  std::vector<piece> pieces;
  std::vector<std::size_t> first_piece;  // per edge, its pieces' start in pieces
  for (edge e = x.g.first_edge(); e != nullptr; e = graph::succ_edge(e)) {
    first_piece.push_back(pieces.size());
    if (graph::source(e) == graph::target(e)) continue;
    std::vector<point> way{x.g.inf(graph::source(e)).position};
    way.insert(way.end(), x.g.inf(e).bends.begin(), x.g.inf(e).bends.end());
    way.push_back(x.g.inf(graph::target(e)).position);
    for (std::size_t k = 0; k + 1 < way.size(); ++k) {
      if (way[k] == way[k + 1] ||
          (way[k].xcoord() != way[k + 1].xcoord() && way[k].ycoord() != way[k + 1].ycoord()))
        return fail("a piece is not horizontal or vertical");
      pieces.push_back({way[k], way[k + 1], e});
    }
  }
  for (std::size_t v = 0; v < nodes.size(); ++v)
    for (std::size_t w = v + 1; w < nodes.size(); ++w)
      if (x.g.inf(nodes[v]).position == x.g.inf(nodes[w]).position) return fail("nodes coincide");
  for (std::size_t k = 0; k < pieces.size(); ++k) {
    const piece& p = pieces[k];
    bool first = k == 0 || pieces[k - 1].e != p.e,
         last = k + 1 == pieces.size() || pieces[k + 1].e != p.e;
    for (node v : nodes) {
      point at = x.g.inf(v).position, lo, hi;
      if (!meet(p, {at, at, nullptr}, lo, hi)) continue;
      if (!((first && v == graph::source(p.e) && at == p.a) ||
            (last && v == graph::target(p.e) && at == p.b)))
        return fail("an edge passes through a node");
    }
    for (std::size_t j = k + 1; j < pieces.size(); ++j) {
      const piece& q = pieces[j];
      point lo, hi;
      if (!meet(p, q, lo, hi)) continue;
      if (lo != hi) return fail("two pieces overlap");
      if (p.e == q.e) {
        if (j != k + 1) return fail("an edge meets itself");
        continue;
      }
      bool common_end = false;
      for (node v : {graph::source(p.e), graph::target(p.e)})
        if ((v == graph::source(q.e) || v == graph::target(q.e)) && x.g.inf(v).position == lo)
          common_end = true;
      if (!common_end) return fail("two edges cross");
    }
  }
  return ::testing::AssertionSuccess();
}

// Draws both layouts of the graph and checks them; the orthogonal one only at degree <= 4.
void check_both(const ge_graph& original, bool degree_at_most_four) {
  auto r = make_visibility_representation(original.g);
  ASSERT_TRUE(r.has_value());
  EXPECT_TRUE(is_visibility_of(*r, original.g));
  ge_graph x = original;
  ASSERT_EQ(orthogonal_layout(x, 0, 0, 100, 100), degree_at_most_four
                                                      ? planar_layout_status::drawn
                                                      : planar_layout_status::degree_above_four);
  if (degree_at_most_four) {
    EXPECT_TRUE(is_orthogonal_drawing(x));
  }
}

int max_degree(const graph& g) {
  auto pairs = undirected_pairs(g);
  std::map<std::size_t, int> degree;
  int most = 0;
  for (auto [v, w] : pairs) most = std::max({most, ++degree[v], ++degree[w]});
  return most;
}

TEST(PlanarRepresentations, KnownGraphs) {
  pairs octahedron{{0, 1}, {0, 2}, {0, 3}, {0, 4}, {5, 1}, {5, 2},
                   {5, 3}, {5, 4}, {1, 2}, {2, 3}, {3, 4}, {4, 1}};
  pairs cube{{0, 1}, {1, 2}, {2, 3}, {3, 0}, {4, 5}, {5, 6},
             {6, 7}, {7, 4}, {0, 4}, {1, 5}, {2, 6}, {3, 7}};
  pairs k4{{0, 1}, {0, 2}, {0, 3}, {1, 2}, {1, 3}, {2, 3}};
  pairs tree{{0, 1}, {0, 2}, {0, 3}, {0, 4}, {1, 5}, {1, 6}, {2, 7}, {7, 8}, {7, 9}, {7, 10}};
  pairs cycle{{0, 1}, {1, 2}, {2, 3}, {3, 4}, {4, 5}, {5, 6}, {6, 0}};
  pairs wheel{{0, 1}, {0, 2}, {0, 3}, {0, 4}, {0, 5}, {1, 2}, {2, 3}, {3, 4}, {4, 5}, {5, 1}};
  for (auto [n, edges] : {std::pair(6, octahedron), std::pair(8, cube), std::pair(4, k4),
                          std::pair(11, tree), std::pair(7, cycle), std::pair(6, wheel)}) {
    ge_graph x = graph_of(n, edges);
    check_both(x, max_degree(x.g) <= 4);
  }
  ge_graph grid;
  grid_graph(grid, 5, 6, {});
  check_both(grid, true);
  // Small and empty graphs, two components and a lone node.
  check_both(graph_of(0, {}), true);
  check_both(graph_of(1, {}), true);
  check_both(graph_of(2, {{0, 1}}), true);
  check_both(graph_of(7, {{0, 1}, {1, 2}, {2, 0}, {3, 4}, {4, 5}}), true);
}

// Random maximal planar graphs (stacked triangles) and random plane geometric graphs, with
// edges deleted at random; for the orthogonal drawing edges at nodes of degree above four go
// first.
TEST(PlanarRepresentations, RandomPlanarGraphs) {
  std::mt19937 random(19);
  for (unsigned seed = 1; seed <= 300; ++seed) {
    ge_graph x;
    int n = 4 + static_cast<int>(seed % 37);
    if (seed % 3 == 0)
      planar_graph(x, n, 3 * n, seed, {});
    else
      triangulated_graph(x, n, seed, {});
    std::vector<edge> edges = x.g.all_edges();
    std::shuffle(edges.begin(), edges.end(), random);
    std::map<node, int> degree;
    for (edge e : edges) ++degree[graph::source(e)], ++degree[graph::target(e)];
    bool orthogonal = seed % 2 == 0;
    for (edge e : edges) {
      node v = graph::source(e), w = graph::target(e);
      if ((orthogonal && (degree[v] > 4 || degree[w] > 4)) || random() % 4 == 0) {
        --degree[v], --degree[w];
        x.g.del_edge(e);
      }
    }
    SCOPED_TRACE("seed " + std::to_string(seed));
    check_both(x, max_degree(x.g) <= 4);
  }
}

TEST(PlanarRepresentations, LayoutsRefuseAndLeaveTheGraph) {
  pairs k5, k33, star;
  for (int a = 0; a < 5; ++a)
    for (int b = a + 1; b < 5; ++b) k5.emplace_back(a, b);
  for (int a = 0; a < 3; ++a)
    for (int b = 3; b < 6; ++b) k33.emplace_back(a, b);
  for (int b = 1; b <= 5; ++b) star.emplace_back(0, b);
  for (const auto& [n, edges] : {std::pair(5, k5), std::pair(6, k33)}) {
    ge_graph x = graph_of(n, edges);
    EXPECT_FALSE(make_visibility_representation(x.g).has_value());
    ge_graph before = x;
    EXPECT_EQ(visibility_layout(x, 0, 0, 100, 100), planar_layout_status::not_planar);
    EXPECT_EQ(orthogonal_layout(x, 0, 0, 100, 100), planar_layout_status::not_planar);
    EXPECT_TRUE(same_drawing(x, before));
  }
  ge_graph x = graph_of(6, star);
  x.g.inf(x.g.first_node()).position = point(3, 4);
  ge_graph before = x;
  EXPECT_EQ(orthogonal_layout(x, 0, 0, 100, 100), planar_layout_status::degree_above_four);
  EXPECT_TRUE(same_drawing(x, before));
  EXPECT_EQ(visibility_layout(x, 0, 0, 100, 100), planar_layout_status::drawn);
}

// A parallel edge takes its twin's route (turned round when it runs the other way), a loop
// keeps no bends; the visibility drawing's edges are a vertical piece between their nodes' rows
// with horizontal pieces on those rows only.
TEST(PlanarRepresentations, EditorDrawings) {
  ge_graph x = graph_of(4, {{0, 1}, {1, 2}, {2, 3}, {3, 0}, {0, 2}, {2, 0}, {1, 1}});
  std::vector<edge> e = x.g.all_edges();
  x.g.inf(e[6]).bends = {point(1, 1)};
  ASSERT_EQ(orthogonal_layout(x, 0, 0, 100, 100), planar_layout_status::drawn);
  std::vector<point> back(x.g.inf(e[5]).bends.rbegin(), x.g.inf(e[5]).bends.rend());
  EXPECT_EQ(x.g.inf(e[4]).bends, back);
  EXPECT_TRUE(x.g.inf(e[6]).bends.empty());
  ge_graph grid;
  grid_graph(grid, 4, 4, {});
  ASSERT_EQ(visibility_layout(grid, 0, 0, 100, 100), planar_layout_status::drawn);
  for (edge f = grid.g.first_edge(); f != nullptr; f = graph::succ_edge(f)) {
    point s = grid.g.inf(graph::source(f)).position, t = grid.g.inf(graph::target(f)).position;
    std::vector<point> way{s};
    way.insert(way.end(), grid.g.inf(f).bends.begin(), grid.g.inf(f).bends.end());
    way.push_back(t);
    int vertical = 0;
    for (std::size_t k = 0; k + 1 < way.size(); ++k) {
      if (way[k].xcoord() == way[k + 1].xcoord()) {
        ++vertical;
      } else {
        EXPECT_EQ(way[k].ycoord(), way[k + 1].ycoord());
        EXPECT_TRUE(way[k].ycoord() == s.ycoord() || way[k].ycoord() == t.ycoord());
      }
    }
    EXPECT_EQ(vertical, 1);
  }
}

// The checkers find the faults they are there for, on drawings made by hand.
TEST(PlanarRepresentations, CheckersRejectBadDrawings) {
  ge_graph square = graph_of(4, {{0, 2}, {1, 3}});
  std::vector<node> v = square.g.all_nodes();
  square.g.inf(v[0]).position = point(0, 1);
  square.g.inf(v[2]).position = point(2, 1);
  square.g.inf(v[1]).position = point(1, 0);
  square.g.inf(v[3]).position = point(1, 2);
  EXPECT_FALSE(is_orthogonal_drawing(square));  // the two edges cross at (1, 1)
  square.g.inf(v[3]).position = point(1, 1);
  EXPECT_FALSE(is_orthogonal_drawing(square));  // edge 0-2 runs through node 3
  square.g.inf(v[3]).position = point(1, 0.5);
  EXPECT_TRUE(is_orthogonal_drawing(square));
  square.g.inf(square.g.first_edge()).bends = {point(0, 3)};
  EXPECT_FALSE(is_orthogonal_drawing(square));  // a slanted piece

  ge_graph triangle = graph_of(3, {{0, 1}, {1, 2}, {0, 2}});
  visibility_representation r{{0, 1, 2}, {0, 0, 0}, {0, 0, 0}, {{0, 1}, {1, 2}, {0, 2}}, {0, 0, 0}};
  EXPECT_FALSE(is_visibility_of(r, triangle.g));  // edge 0-2 runs through node 1
  r.column[2] = 1;
  EXPECT_FALSE(is_visibility_of(r, triangle.g));  // and now misses its nodes
  r.right[0] = r.right[2] = 1;
  EXPECT_TRUE(is_visibility_of(r, triangle.g));
  r.row[2] = 1;
  EXPECT_FALSE(is_visibility_of(r, triangle.g));  // nodes 1 and 2 meet
}

}  // namespace
}  // namespace mero
