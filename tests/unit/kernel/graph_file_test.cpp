#include "kernel/graph_file.h"

#include <sstream>
#include <string>
#include <vector>

#include "test_support.h"

namespace mero {
namespace {

using named_graph = GRAPH<std::string, double>;

TEST(graph_file, round_trip_keeps_structure_information_and_reversals) {
  named_graph g;
  node a = g.new_node("alpha"), b = g.new_node("b |{nested}| c"), c = g.new_node("");
  edge ab = g.new_edge(a, b, 1.5);
  g.new_edge(c, a, -2.0);
  graph::set_reversal(ab, g.new_edge(b, a, 0.25));
  std::ostringstream out;
  write_graph_file(g, out);
  EXPECT_EQ(out.str(),
            "ORBA.GRAPH\nstring\ndouble\n3\n|{alpha}|\n|{b |{nested}| c}|\n|{}|\n3\n"
            "1 2 2 |{1.5}|\n2 1 1 |{0.25}|\n3 1 0 |{-2}|\n");
  named_graph back;
  std::istringstream in(out.str());
  ASSERT_EQ(read_graph_file(back, in), graph_read_ok);
  std::vector<std::string> names;
  for (node v : back.all_nodes()) names.push_back(back.inf(v));
  EXPECT_EQ(names, (std::vector<std::string>{"alpha", "b |{nested}| c", ""}));
  std::vector<edge> e = back.all_edges();
  ASSERT_EQ(e.size(), 3u);
  EXPECT_EQ(back.inf(e[1]), 0.25);
  EXPECT_EQ(back.inf(e[2]), -2.0);
  EXPECT_EQ(graph::reversal(e[0]), e[1]);
  EXPECT_EQ(graph::reversal(e[1]), e[0]);
  EXPECT_EQ(graph::reversal(e[2]), nullptr);
}

TEST(graph_file, other_types_and_later_reversals) {
  std::istringstream in("ORBA.GRAPH\nint\nstring\n2\n|{5}|\n|{6}|\n1\n1 2 0 |{road}|\n");
  named_graph g;
  EXPECT_EQ(read_graph_file(g, in), graph_read_other_types);
  ASSERT_EQ(g.number_of_nodes(), 2);
  EXPECT_EQ(g.inf(g.first_node()), "");
  EXPECT_EQ(g.inf(g.first_edge()), 0.0);
  // Edge 1 names edge 3 as its reversal before edge 3 is read.
  GRAPH<int, no_info> plain;
  std::istringstream again(
      "ORBA.GRAPH\nint\nvoid\n2\n|{5}|\n|{ 6 }|\n3\n1 2 3 |{}|\n2 2 0 |{}|\n2 1 1 |{}|\n");
  ASSERT_EQ(read_graph_file(plain, again), graph_read_ok);
  EXPECT_EQ(plain.inf(plain.last_node()), 6);
  std::vector<edge> e = plain.all_edges();
  EXPECT_EQ(graph::source(e[2]), plain.last_node());
  EXPECT_EQ(graph::reversal(e[0]), e[2]);
  EXPECT_EQ(graph::reversal(e[2]), e[0]);
  EXPECT_EQ(graph::reversal(e[1]), nullptr);
}

TEST(graph_file, results_and_messages) {
  named_graph g;
  g.new_node("dropped by a failed read");
  std::istringstream empty("");
  EXPECT_EQ(read_graph_file(g, empty), graph_read_not_a_graph);
  EXPECT_EQ(g.number_of_nodes(), 0);
  std::istringstream other("GRAPH.ORBA\nstring\n");
  EXPECT_EQ(read_graph_file(g, other), graph_read_not_a_graph);
  EXPECT_EQ(read_graph_file(g, std::string("/nonexistent/dir/g.gw")), graph_read_cannot_open);
  for (const char* text :
       {"ORBA.GRAPH\nstring\ndouble\n1\nalpha\n0\n", "ORBA.GRAPH\nstring\ndouble\n1\n|{alpha\n",
        "ORBA.GRAPH\nstring\ndouble\n1\n|{a}|\n1\n1 2 0 |{1}|\n"}) {
    std::istringstream bad(text);  // no brackets, unclosed brackets, an edge to node 2 of 1
    EXPECT_KERNEL_ERROR(read_graph_file(g, bad), "graph::read(): error in graph format.");
  }
  EXPECT_KERNEL_ERROR(write_graph_file(g, std::string("/nonexistent/dir/g.gw")),
                      "graph::write() cannot open file /nonexistent/dir/g.gw");
}

}  // namespace
}  // namespace mero
