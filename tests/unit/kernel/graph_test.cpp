#include "kernel/graph.h"

#include <string>
#include <vector>

#include "kernel/error_handler.h"
#include "kernel/graph_array.h"
#include "kernel/graph_connectivity.h"
#include "test_graphs.h"
#include "test_support.h"

namespace mero {
namespace {

using length_graph = GRAPH<int, double>;

std::vector<int> ends_seen_from(const length_graph& g, node v, int list) {
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
  length_graph g = testing::graph_of(3, {{0, 1}, {2, 0}, {0, 2}, {1, 0}});
  node a = g.first_node(), b = g.all_nodes()[1], c = g.last_node();
  EXPECT_EQ(ends_seen_from(g, a, 0), (std::vector<int>{1, 2}));
  EXPECT_EQ(ends_seen_from(g, a, 1), (std::vector<int>{2, 1}));
  EXPECT_EQ(graph::indeg(a), 2);
  g.make_undirected();  // list 1 is appended behind list 0
  EXPECT_EQ(ends_seen_from(g, a, 0), (std::vector<int>{1, 2, 2, 1}));
  EXPECT_TRUE(g.adj_edges(a, 1).empty());
  EXPECT_EQ(graph::outdeg(a), 4);
  g.new_edge(b, c);  // at the end of list 0 at both ends
  EXPECT_EQ(ends_seen_from(g, c, 0), (std::vector<int>{0, 0, 1}));
  g.make_directed();
  EXPECT_EQ(ends_seen_from(g, a, 0), (std::vector<int>{1, 2}));
  EXPECT_EQ(ends_seen_from(g, c, 1), (std::vector<int>{0, 1}));
}

TEST(graph, make_undirected_deletes_loops_with_one_warning) {
  warnings.clear();
  kernel_error_handler previous = set_kernel_error_handler(collect_warnings);
  length_graph g = testing::graph_of(2, {{0, 1}});
  g.make_undirected();
  EXPECT_TRUE(warnings.empty());
  g.make_directed();
  g.new_edge(g.first_node(), g.first_node());
  g.new_edge(g.last_node(), g.last_node());
  g.make_undirected();
  g.make_undirected();  // nothing left to delete
  set_kernel_error_handler(previous);
  EXPECT_EQ(warnings, std::vector<std::string>{"selfloops deleted in ugraph constructor"});
  EXPECT_EQ(g.number_of_edges(), 1);
  EXPECT_EQ(graph::degree(g.first_node()), 1);
}

TEST(graph, copy_keeps_lists_information_and_renumbers) {
  length_graph g = testing::graph_of(3, {{2, 0}, {0, 1}, {1, 0}});
  g.del_node(g.new_node(7));
  node d = g.new_node(3);
  g.new_edge(d, g.first_node(), 0.5);
  g.make_undirected();
  length_graph copy(g);
  std::vector<int> numbers, infos;
  for (node v : copy.all_nodes()) {
    numbers.push_back(graph::index(v));
    infos.push_back(copy.inf(v));
  }
  EXPECT_EQ(numbers, (std::vector<int>{0, 1, 2, 3}));
  EXPECT_EQ(infos, (std::vector<int>{0, 1, 2, 3}));
  EXPECT_TRUE(copy.is_undirected());
  EXPECT_EQ(ends_seen_from(copy, copy.first_node(), 0), ends_seen_from(g, g.first_node(), 0));
  EXPECT_EQ(copy.inf(copy.all_edges().back()), 0.5);
}

TEST(graph, deleting_items_and_refusing_foreign_ones) {
  length_graph g = testing::graph_of(3, {{0, 1}, {1, 2}, {2, 1}}), other;
  node a = g.first_node(), c = g.last_node(), stranger = other.new_node();
  g.del_node(g.all_nodes()[1]);
  EXPECT_EQ(g.number_of_edges(), 0);
  EXPECT_EQ(graph::degree(a) + graph::degree(c), 0);
  EXPECT_KERNEL_ERROR(g.new_edge(a, stranger), "new_edge(v,w): w not in graph");
  EXPECT_KERNEL_ERROR(g.new_edge(stranger, a), "new_edge(v,w): v not in graph");
  EXPECT_KERNEL_ERROR(g.del_node(stranger), "del_node(v): v is not in G");
  node_array<int> marks(g, 7);
  EXPECT_EQ(marks[c], 7);
  EXPECT_REPORT(marks[stranger], 999, "node_array: illegal node");
  EXPECT_REPORT(marks[g.new_node()], 999, "node_array: illegal node");
  edge_array<double> lengths(g, 0.5);
  EXPECT_REPORT(lengths[other.new_edge(stranger, stranger)], 999, "edge_array: illegal edge");
}

TEST(graph_connectivity, weak_connection) {
  length_graph g;
  EXPECT_TRUE(is_connected(g));
  node a = g.new_node();
  EXPECT_TRUE(is_connected(g));
  node b = g.new_node();
  EXPECT_FALSE(is_connected(g));
  g.new_edge(b, a);  // only enterable from b: weakly connected all the same
  EXPECT_TRUE(is_connected(g));
}

TEST(graph_connectivity, components_joined_at_their_first_lowest_degree_node) {
  // A star around 0 (degree 3): its first leaf met, 1, is the anchor. A path 4 - 5 - 6 starting
  // at degree 1 keeps 4 (6 is not strictly smaller). 7 alone. 8 = 9 doubled and 10 - 9: the
  // search from 8 (degree 2) meets 10 (degree 1).
  length_graph g =
      testing::graph_of(11, {{0, 1}, {0, 2}, {3, 0}, {5, 4}, {5, 6}, {8, 9}, {9, 8}, {10, 9}});
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
