#include "kernel/graph.h"

#include <string>
#include <vector>

#include "kernel/error_handler.h"
#include "kernel/graph_array.h"
#include "kernel/graph_connectivity.h"
#include "test_support.h"

namespace mero {
namespace {

using length_graph = GRAPH<int, double>;

std::vector<int> ends_seen_from(const length_graph& g, node v, int list) {
  std::vector<int> ends;
  for (edge e : g.adj_edges(v, list)) ends.push_back(g.inf(graph::opposite(e, v)));
  return ends;
}

// Collects kernel warnings while alive; errors still end the test through the usual handler.
struct warning_catcher {
  static std::vector<std::string>& seen() {
    static std::vector<std::string> list;
    return list;
  }
  kernel_error_handler previous;
  warning_catcher() {
    seen().clear();
    previous = set_kernel_error_handler([](int code, const std::string& text) {
      if (code > 0) throw testing::reported{report{report::kind::error, text, code, 1}};
      seen().push_back(text);
    });
  }
  ~warning_catcher() { set_kernel_error_handler(previous); }
};

TEST(graph, adjacency_lists_keep_insertion_order_in_both_forms) {
  length_graph g;
  node a = g.new_node(0), b = g.new_node(1), c = g.new_node(2);
  g.new_edge(a, b, 1.0);
  g.new_edge(c, a, 2.0);
  g.new_edge(a, c, 3.0);
  g.new_edge(b, a, 4.0);
  EXPECT_EQ(ends_seen_from(g, a, 0), (std::vector<int>{1, 2}));
  EXPECT_EQ(ends_seen_from(g, a, 1), (std::vector<int>{2, 1}));
  EXPECT_EQ(graph::outdeg(a), 2);
  EXPECT_EQ(graph::indeg(a), 2);

  g.make_undirected();
  // list 1 is appended behind list 0
  EXPECT_EQ(ends_seen_from(g, a, 0), (std::vector<int>{1, 2, 2, 1}));
  EXPECT_TRUE(g.adj_edges(a, 1).empty());
  EXPECT_EQ(graph::outdeg(a), 4);
  EXPECT_EQ(ends_seen_from(g, b, 0), (std::vector<int>{0, 0}));

  // a new edge goes to the end of list 0 at both ends
  g.new_edge(b, c, 5.0);
  EXPECT_EQ(ends_seen_from(g, c, 0), (std::vector<int>{0, 0, 1}));

  g.make_directed();
  EXPECT_EQ(ends_seen_from(g, a, 0), (std::vector<int>{1, 2}));
  EXPECT_EQ(ends_seen_from(g, a, 1), (std::vector<int>{2, 1}));
  EXPECT_EQ(ends_seen_from(g, c, 1), (std::vector<int>{0, 1}));
}

TEST(graph, make_undirected_deletes_loops_with_one_warning) {
  {
    warning_catcher catcher;
    length_graph g;
    node a = g.new_node(0), b = g.new_node(1);
    g.new_edge(a, b);
    g.make_undirected();
    EXPECT_TRUE(warning_catcher::seen().empty());
  }
  warning_catcher catcher;
  length_graph g;
  node a = g.new_node(0), b = g.new_node(1);
  g.new_edge(a, a);
  g.new_edge(a, b);
  g.new_edge(b, b);
  g.make_undirected();
  EXPECT_EQ(warning_catcher::seen(),
            std::vector<std::string>{"selfloops deleted in ugraph constructor"});
  EXPECT_EQ(g.number_of_edges(), 1);
  EXPECT_EQ(graph::degree(a), 1);
  g.make_undirected();  // a second call does nothing
  EXPECT_EQ(warning_catcher::seen().size(), 1u);
}

TEST(graph, copy_keeps_lists_information_and_renumbers) {
  length_graph g;
  node a = g.new_node(10), b = g.new_node(11), c = g.new_node(12);
  g.del_node(b);
  node d = g.new_node(13);
  g.new_edge(d, a, 1.5);
  g.new_edge(a, c, 2.5);
  g.new_edge(c, a, 3.5);
  g.make_undirected();
  length_graph copy(g);
  ASSERT_EQ(copy.number_of_nodes(), 3);
  std::vector<int> numbers, infos;
  for (node v : copy.all_nodes()) {
    numbers.push_back(graph::index(v));
    infos.push_back(copy.inf(v));
  }
  EXPECT_EQ(numbers, (std::vector<int>{0, 1, 2}));
  EXPECT_EQ(infos, (std::vector<int>{10, 12, 13}));
  EXPECT_TRUE(copy.is_undirected());
  EXPECT_EQ(ends_seen_from(copy, copy.first_node(), 0), ends_seen_from(g, a, 0));
  std::vector<double> lengths;
  for (edge e : copy.all_edges()) lengths.push_back(copy.inf(e));
  EXPECT_EQ(lengths, (std::vector<double>{1.5, 2.5, 3.5}));
}

TEST(graph, deleting_items_and_refusing_foreign_ones) {
  length_graph g, other;
  node a = g.new_node(), b = g.new_node(), c = g.new_node();
  node stranger = other.new_node();
  g.new_edge(a, b);
  g.new_edge(b, c);
  g.new_edge(c, b);
  g.del_node(b);
  EXPECT_EQ(g.number_of_edges(), 0);
  EXPECT_EQ(graph::degree(a) + graph::degree(c), 0);
  EXPECT_KERNEL_ERROR(g.new_edge(a, stranger), "new_edge(v,w): w not in graph");
  EXPECT_KERNEL_ERROR(g.new_edge(stranger, a), "new_edge(v,w): v not in graph");
  EXPECT_KERNEL_ERROR(g.del_node(stranger), "del_node(v): v is not in G");

  node_array<int> marks(g, 7);
  EXPECT_EQ(marks[c], 7);
  EXPECT_REPORT(marks[stranger], 999, "node_array: illegal node");
  node late = g.new_node();
  EXPECT_REPORT(marks[late], 999, "node_array: illegal node");
  edge e = g.new_edge(a, c);
  edge_array<double> lengths(g, 0.5);
  EXPECT_EQ(lengths[e], 0.5);
  EXPECT_REPORT(lengths[other.new_edge(stranger, stranger)], 999, "edge_array: illegal edge");
}

TEST(graph_connectivity, empty_single_and_weak_connection) {
  length_graph g;
  EXPECT_TRUE(is_connected(g));
  node a = g.new_node();
  EXPECT_TRUE(is_connected(g));
  node b = g.new_node();
  EXPECT_FALSE(is_connected(g));
  g.new_edge(b, a);  // only enterable from b: weakly connected all the same
  EXPECT_TRUE(is_connected(g));
}

TEST(graph_connectivity, two_components_joined_at_lowest_degree) {
  // Component 1: a star around n0 (n0 degree 3, leaves degree 1); component 2: n4 - n5 - n6
  // with degrees 1, 2, 1, so the representative is the first degree-1 node met, n4.
  length_graph g;
  std::vector<node> n;
  for (int i = 0; i < 7; ++i) n.push_back(g.new_node(i));
  g.new_edge(n[0], n[1], 1.0);
  g.new_edge(n[0], n[2], 1.0);
  g.new_edge(n[3], n[0], 1.0);
  g.new_edge(n[5], n[4], 1.0);
  g.new_edge(n[5], n[6], 1.0);
  std::vector<edge> added = make_connected(g);
  ASSERT_EQ(added.size(), 1u);
  // first component: start n0 (degree 3), first smaller met in the search is n1
  EXPECT_EQ(graph::source(added[0]), n[1]);
  EXPECT_EQ(graph::target(added[0]), n[4]);
  EXPECT_EQ(g.inf(added[0]), 0.0);
  EXPECT_TRUE(is_connected(g));
  EXPECT_TRUE(make_connected(g).empty());
}

TEST(graph_connectivity, three_components_share_one_anchor) {
  // n0 alone; n1 -> n2 -> n3 (n1 degree 1 starts and stays); n4 = n5 double edge and n6 - n5
  // (degrees n4 2, n5 3, n6 1).
  length_graph g;
  std::vector<node> n;
  for (int i = 0; i < 7; ++i) n.push_back(g.new_node(i));
  g.new_edge(n[1], n[2]);
  g.new_edge(n[2], n[3]);
  g.new_edge(n[4], n[5]);
  g.new_edge(n[5], n[4]);
  g.new_edge(n[6], n[5]);
  std::vector<edge> added = make_connected(g);
  ASSERT_EQ(added.size(), 2u);
  EXPECT_EQ(graph::source(added[0]), n[0]);
  EXPECT_EQ(graph::target(added[0]), n[1]);
  EXPECT_EQ(graph::source(added[1]), n[0]);
  EXPECT_EQ(graph::target(added[1]), n[6]);
  EXPECT_TRUE(is_connected(g));
}

}  // namespace
}  // namespace mero
