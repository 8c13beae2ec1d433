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
  edge ba = g.new_edge(b, a, 0.25);
  graph::set_reversal(ab, ba);
  std::ostringstream out;
  write_graph_file(g, out);
  EXPECT_EQ(out.str(),
            "ORBA.GRAPH\nstring\ndouble\n3\n|{alpha}|\n|{b |{nested}| c}|\n|{}|\n3\n"
            "1 2 2 |{1.5}|\n2 1 1 |{0.25}|\n3 1 0 |{-2}|\n");

  named_graph back;
  std::istringstream in(out.str());
  ASSERT_EQ(read_graph_file(back, in), graph_read_ok);
  ASSERT_EQ(back.number_of_nodes(), 3);
  std::vector<std::string> names;
  for (node v : back.all_nodes()) names.push_back(back.inf(v));
  EXPECT_EQ(names, (std::vector<std::string>{"alpha", "b |{nested}| c", ""}));
  std::vector<edge> edges = back.all_edges();
  ASSERT_EQ(edges.size(), 3u);
  EXPECT_EQ(back.inf(edges[0]), 1.5);
  EXPECT_EQ(back.inf(edges[1]), 0.25);
  EXPECT_EQ(back.inf(edges[2]), -2.0);
  EXPECT_EQ(graph::reversal(edges[0]), edges[1]);
  EXPECT_EQ(graph::reversal(edges[1]), edges[0]);
  EXPECT_EQ(graph::reversal(edges[2]), nullptr);
}

TEST(graph_file, other_types_get_default_information) {
  std::istringstream in("ORBA.GRAPH\nint\nstring\n2\n|{5}|\n|{6}|\n1\n1 2 0 |{road}|\n");
  named_graph g;
  EXPECT_EQ(read_graph_file(g, in), graph_read_other_types);
  ASSERT_EQ(g.number_of_nodes(), 2);
  EXPECT_EQ(g.inf(g.first_node()), "");
  EXPECT_EQ(g.inf(g.first_edge()), 0.0);

  GRAPH<int, no_info> plain;
  std::istringstream again("ORBA.GRAPH\nint\nvoid\n2\n|{5}|\n|{ 6 }|\n1\n2 1 0 |{}|\n");
  EXPECT_EQ(read_graph_file(plain, again), graph_read_ok);
  EXPECT_EQ(plain.inf(plain.last_node()), 6);
  EXPECT_EQ(graph::source(plain.first_edge()), plain.last_node());
}

TEST(graph_file, results_and_messages) {
  named_graph g;
  g.new_node("kept?");
  std::istringstream empty("");
  EXPECT_EQ(read_graph_file(g, empty), graph_read_not_a_graph);
  EXPECT_EQ(g.number_of_nodes(), 0);
  std::istringstream other("GRAPH.ORBA\nstring\n");
  EXPECT_EQ(read_graph_file(g, other), graph_read_not_a_graph);
  EXPECT_EQ(read_graph_file(g, std::string("/nonexistent/dir/g.gw")), graph_read_cannot_open);

  std::istringstream bare("ORBA.GRAPH\nstring\ndouble\n1\nalpha\n0\n");
  EXPECT_KERNEL_ERROR(read_graph_file(g, bare), "graph::read(): error in graph format.");
  std::istringstream unclosed("ORBA.GRAPH\nstring\ndouble\n1\n|{alpha\n");
  EXPECT_KERNEL_ERROR(read_graph_file(g, unclosed), "graph::read(): error in graph format.");
  std::istringstream bad_end("ORBA.GRAPH\nstring\ndouble\n1\n|{a}|\n1\n1 2 0 |{1}|\n");
  EXPECT_KERNEL_ERROR(read_graph_file(g, bad_end), "graph::read(): error in graph format.");
  EXPECT_KERNEL_ERROR(write_graph_file(g, std::string("/nonexistent/dir/g.gw")),
                      "graph::write() cannot open file /nonexistent/dir/g.gw");
}

TEST(graph_file, a_later_reversal_is_linked_when_its_line_comes) {
  std::istringstream in(
      "ORBA.GRAPH\nvoid\nvoid\n2\n|{}|\n|{}|\n3\n1 2 3 |{}|\n2 2 0 |{}|\n2 1 1 |{}|\n");
  GRAPH<no_info, no_info> g;
  ASSERT_EQ(read_graph_file(g, in), graph_read_ok);
  std::vector<edge> edges = g.all_edges();
  EXPECT_EQ(graph::reversal(edges[0]), edges[2]);
  EXPECT_EQ(graph::reversal(edges[2]), edges[0]);
  EXPECT_EQ(graph::reversal(edges[1]), nullptr);
}

}  // namespace
}  // namespace mero
