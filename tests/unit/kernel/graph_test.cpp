#include "kernel/graph.h"

#include "kernel/error_handler.h"
#include "kernel/graph_array.h"
#include "kernel/graph_connectivity.h"
#include "test_graphs.h"
#include "test_support.h"

namespace mero {
namespace {

using testing::graph_of;

std::vector<int> ends_seen_from(const GRAPH<int, double>& g, node v, int list) {
  std::vector<int> ends;
  for (edge e : g.adj_edges(v, list)) ends.push_back(g.inf(graph::opposite(e, v)));
  return ends;
}

std::vector<std::string> warnings;

void collect_warnings(int code, const std::string& text) {
  if (code > 0) throw testing::reported{report{report::kind::error, text, code, 1}};
  warnings.push_back(text);
}

TEST(graph, adjacency_lists_keep_insertion_order_in_both_forms) {
  GRAPH<int, double> g = graph_of(3, {{0, 1}, {2, 0}, {0, 2}, {1, 0}});
  node a = g.first_node(), c = g.last_node();
  EXPECT_EQ(ends_seen_from(g, a, 0), (std::vector<int>{1, 2}));
  EXPECT_EQ(ends_seen_from(g, a, 1), (std::vector<int>{2, 1}));
  g.make_undirected();  // list 1 is appended behind list 0
  EXPECT_EQ(ends_seen_from(g, a, 0), (std::vector<int>{1, 2, 2, 1}));
  EXPECT_EQ(graph::outdeg(a), 4);
  g.new_edge(g.all_nodes()[1], c);  // at the end of list 0 at both ends
  EXPECT_EQ(ends_seen_from(g, c, 0), (std::vector<int>{0, 0, 1}));
  g.make_directed();
  EXPECT_EQ(ends_seen_from(g, a, 1), (std::vector<int>{2, 1}));
  EXPECT_EQ(ends_seen_from(g, c, 1), (std::vector<int>{0, 1}));
}

TEST(graph, loops_copies_and_deletions) {
  warnings.clear();
  kernel_error_handler previous = set_kernel_error_handler(collect_warnings);
  GRAPH<int, double> g = graph_of(3, {{2, 0}, {0, 0}, {0, 1}, {1, 1}});
  g.make_undirected();
  g.make_undirected();  // nothing left to delete
  set_kernel_error_handler(previous);
  EXPECT_EQ(warnings, std::vector<std::string>{"selfloops deleted in ugraph constructor"});
  EXPECT_EQ(graph::degree(g.first_node()), 2);
  // A copy numbers its nodes afresh and keeps the order of every list.
  g.del_node(g.new_node(7));
  g.new_edge(g.new_node(3), g.first_node(), 0.5);
  GRAPH<int, double> copy(g);
  EXPECT_EQ(graph::index(copy.last_node()), 3);
  EXPECT_EQ(copy.inf(copy.last_node()), 3);
  EXPECT_EQ(ends_seen_from(copy, copy.first_node(), 0), (std::vector<int>{1, 2, 3}));
  g.del_node(g.first_node());
  EXPECT_EQ(g.number_of_edges(), 0);
  EXPECT_EQ(graph::degree(g.last_node()), 0);
}

TEST(graph, foreign_and_late_items_are_refused) {
  GRAPH<int, double> g = graph_of(1, {}), other;
  node a = g.first_node(), stranger = other.new_node();
  EXPECT_KERNEL_ERROR(g.new_edge(a, stranger), "new_edge(v,w): w not in graph");
  EXPECT_KERNEL_ERROR(g.new_edge(stranger, a), "new_edge(v,w): v not in graph");
  EXPECT_KERNEL_ERROR(g.del_node(stranger), "del_node(v): v is not in G");
  node_array<int> marks(g, 7);
  EXPECT_EQ(marks[a], 7);
  EXPECT_REPORT(marks[stranger], 999, "node_array: illegal node");
  EXPECT_REPORT(marks[g.new_node()], 999, "node_array: illegal node");
  edge_array<double> lengths(g, 0.5);
  EXPECT_REPORT(lengths[other.new_edge(stranger, stranger)], 999, "edge_array: illegal edge");
}

TEST(graph_connectivity, components_joined_at_their_first_lowest_degree_node) {
  EXPECT_TRUE(is_connected(graph_of(0, {})));
  EXPECT_FALSE(is_connected(graph_of(2, {})));
  EXPECT_TRUE(is_connected(graph_of(2, {{1, 0}})));  // weakly connected is enough
  // A star around 0 (degree 3): its first leaf met, 1, is the anchor. A path 4 - 5 - 6 starting
  // at degree 1 keeps 4 (6 is not strictly smaller). 7 alone. 8 = 9 doubled and 10 - 9: the
  // search from 8 (degree 2) meets 10 (degree 1).
  GRAPH<int, double> g =
      graph_of(11, {{0, 1}, {0, 2}, {3, 0}, {5, 4}, {5, 6}, {8, 9}, {9, 8}, {10, 9}});
  std::vector<edge> added = make_connected(g);
  std::vector<std::pair<int, int>> ends;
  for (edge e : added) ends.emplace_back(g.inf(graph::source(e)), g.inf(graph::target(e)));
  EXPECT_EQ(ends, (std::vector<std::pair<int, int>>{{1, 4}, {1, 7}, {1, 10}}));
  EXPECT_EQ(g.inf(added[0]), 0.0);
  EXPECT_TRUE(is_connected(g));
  EXPECT_TRUE(make_connected(g).empty());
}

}  // namespace
}  // namespace mero
