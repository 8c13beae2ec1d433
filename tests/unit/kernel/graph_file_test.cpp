#include "kernel/graph_file.h"

#include <sstream>

#include "test_support.h"

namespace mero {
namespace {

using named_graph = GRAPH<std::string, double>;
using plain_graph = GRAPH<int, no_info>;

// Reads the text into a fresh graph and returns that graph written again.
template <typename G>
std::string round_trip(const std::string& text, int expected_result = graph_read_ok) {
  G g;
  std::istringstream in(text);
  EXPECT_EQ(read_graph_file(g, in), expected_result);
  std::ostringstream out;
  write_graph_file(g, out);
  return out.str();
}

TEST(graph_file, written_text_and_reading_back) {
  named_graph g;
  node a = g.new_node("alpha"), b = g.new_node("b |{nested}| c"), c = g.new_node("");
  edge ab = g.new_edge(a, b, 1.5);
  g.new_edge(c, a, -2.0);
  graph::set_reversal(ab, g.new_edge(b, a, 0.25));
  std::ostringstream out;
  write_graph_file(g, out);
  const std::string text =
      "ORBA.GRAPH\nstring\ndouble\n3\n|{alpha}|\n|{b |{nested}| c}|\n|{}|\n3\n"
      "1 2 2 |{1.5}|\n2 1 1 |{0.25}|\n3 1 0 |{-2}|\n";
  EXPECT_EQ(out.str(), text);
  EXPECT_EQ(round_trip<named_graph>(text), text);
  // Edge 1 names edge 3 as its reversal before edge 3 is read; spaces in an int are skipped.
  EXPECT_EQ(
      round_trip<plain_graph>(
          "ORBA.GRAPH\nint\nvoid\n2\n|{5}|\n|{ 6 }|\n3\n1 2 3 |{}|\n2 2 0 |{}|\n2 1 1 |{}|\n"),
      "ORBA.GRAPH\nint\nvoid\n2\n|{5}|\n|{6}|\n3\n1 2 3 |{}|\n2 2 0 |{}|\n2 1 1 |{}|\n");
  // Other information types leave the defaults.
  EXPECT_EQ(round_trip<named_graph>("ORBA.GRAPH\nint\nstring\n2\n|{5}|\n|{6}|\n1\n1 2 0 |{x}|\n",
                                    graph_read_other_types),
            "ORBA.GRAPH\nstring\ndouble\n2\n|{}|\n|{}|\n1\n1 2 0 |{0}|\n");
}

TEST(graph_file, results_and_messages) {
  named_graph g;
  g.new_node("dropped by a failed read");
  std::istringstream empty(""), other("GRAPH.ORBA\nstring\n");
  EXPECT_EQ(read_graph_file(g, empty), graph_read_not_a_graph);
  EXPECT_EQ(g.number_of_nodes(), 0);
  EXPECT_EQ(read_graph_file(g, other), graph_read_not_a_graph);
  EXPECT_EQ(read_graph_file(g, std::string("/nonexistent/dir/g.gw")), graph_read_cannot_open);
  // no brackets, unclosed brackets, an edge to node 2 of 1
  for (const char* text :
       {"ORBA.GRAPH\nstring\ndouble\n1\nalpha\n0\n", "ORBA.GRAPH\nstring\ndouble\n1\n|{alpha\n",
        "ORBA.GRAPH\nstring\ndouble\n1\n|{a}|\n1\n1 2 0 |{1}|\n"}) {
    std::istringstream bad(text);
    EXPECT_KERNEL_ERROR(read_graph_file(g, bad), "graph::read(): error in graph format.");
  }
  EXPECT_KERNEL_ERROR(write_graph_file(g, std::string("/nonexistent/dir/g.gw")),
                      "graph::write() cannot open file /nonexistent/dir/g.gw");
}

// The form without the kernel's report gives the line of the fault instead, counted from where
// the stream stood when reading began.
TEST(graph_file, fault_line_instead_of_report) {
  named_graph g;
  int line = 0;
  std::istringstream bad_node("ORBA.GRAPH\nstring\ndouble\n2\n|{a}|\n\n  b\n");
  EXPECT_EQ(read_graph_file(g, bad_node, line), graph_read_format_error);
  EXPECT_EQ(line, 7);
  std::istringstream bad_edge("ORBA.GRAPH\nstring\ndouble\n1\n|{a}|\n1\n1 2 0 |{1}|\n");
  EXPECT_EQ(read_graph_file(g, bad_edge, line), graph_read_format_error);
  EXPECT_EQ(line, 7);
  std::istringstream after_prefix("skip me\nORBA.GRAPH\nvoid\ndouble\n0\nx\n");
  std::string first;
  std::getline(after_prefix, first);
  EXPECT_EQ(read_graph_file(g, after_prefix, line), graph_read_format_error);
  EXPECT_EQ(line, 5);
  std::istringstream good("ORBA.GRAPH\nstring\ndouble\n1\n|{a}|\n0\n");
  EXPECT_EQ(read_graph_file(g, good, line), graph_read_ok);
  EXPECT_EQ(g.number_of_nodes(), 1);
}

}  // namespace
}  // namespace mero
