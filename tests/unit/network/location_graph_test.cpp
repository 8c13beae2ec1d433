#include "network/location_graph.h"

#include <sstream>

#include "network/network_messages.h"
#include "network_test_graphs.h"
#include "test_support.h"

namespace mero {

using testing::make_location_graph;

// Distances on random graphs are checked through the median and center tests.
TEST(location_graph, distance_matrix_limits_and_negative_lengths) {
  location_graph far = make_location_graph({1, 1, 1}, {{0, 1, 9e49}, {1, 2, 9e49}});
  EXPECT_EQ(distance_matrix(far)(0, 2), 1e50);  // cut at the network infinity
  EXPECT_EQ(distance_matrix(far)(2, 0), 0.0);   // unreachable reads 0
  location_graph ok = make_location_graph({1, 1, 1}, {{0, 1, 4}, {1, 2, -3}, {0, 2, 2}});
  EXPECT_EQ(distance_matrix(ok)(0, 2), 1.0);
  // a negative self-loop stays in the directed form and is a negative cycle there
  location_graph loop = make_location_graph({1, 1}, {{0, 1, 1}, {1, 1, -1}});
  EXPECT_REPORT(distance_matrix(directed_form(loop)), 2001, "Negative cycle in graph");
  EXPECT_EQ(distance_matrix(undirected_form(loop))(0, 1), 1.0);
}

TEST(location_graph, find_edge_looks_around_u_then_v) {
  location_graph g = make_location_graph({1, 1, 1}, {{1, 0, 5}, {0, 1, 2}, {1, 2, 1}});
  std::vector<node> n = g.all_nodes();
  std::vector<edge> e = g.all_edges();
  EXPECT_EQ(find_edge(g, n[0], n[1]), e[1]);  // list 0 of node 0 first
  EXPECT_EQ(find_edge(g, n[1], n[0]), e[0]);
  EXPECT_EQ(find_edge(g, n[2], n[1]), e[2]);
  EXPECT_REPORT(find_edge(g, n[0], n[2]), 2002, "The two nodes are not adjazent");
}

TEST(location_graph, repair_tree_test_and_weights) {
  testing::messages().clear();
  location_graph g = make_location_graph({1, 1, 1, 1}, {{0, 1, 3}, {2, 3, 4}});
  connection_repair(g, network_messages::median_not_connected);
  connection_repair(g, network_messages::median_not_connected);  // once joined, no question
  ASSERT_EQ(testing::messages().size(), 1u);
  EXPECT_EQ(testing::messages()[0].text, "Graph is not connected: MERO could connect it");
  EXPECT_EQ(testing::messages()[0].what, report::kind::question);
  EXPECT_EQ(g.number_of_edges(), 3);
  EXPECT_TRUE(is_tree(g));
  // n - 1 edges but disconnected: a parallel pair and a lone node
  location_graph split = make_location_graph({1, 1, 1}, {{0, 1}, {1, 0}});
  EXPECT_FALSE(is_tree(split));
  EXPECT_REPORT(tree_form(split), 2201, "Graph is not a tree :-)");
  EXPECT_FALSE(is_tree(make_location_graph({1, 1, 1}, {{0, 1}, {1, 2}, {2, 0}})));
  location_graph bare;
  EXPECT_KERNEL_ERROR(head_weight(bare, bare.new_node()), "dlist::head(): empty list");
}

TEST(location_graph, graphpointset_lines) {
  std::ostringstream out;
  write_graphpointset(out, {{2, 2, 0.0}, {0, 1, 0.0}, {0, 1, 0.5}, {4, 3, 0.125}});
  EXPECT_EQ(out.str(),
            "begin {graphpointset}\nNode [3]\nEdge [1][2]\nPoint [1][2] 0.500000\n"
            "Point [5][4] 0.125000\nend {graphpointset}\n");
}

}  // namespace mero
