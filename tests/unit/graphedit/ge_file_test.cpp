#include "graphedit/ge_file.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <sstream>

#include "graphedit/graphedit_messages.h"
#include "sample_graphs.h"
#include "test_support.h"

namespace mero {
namespace {

namespace msg = graphedit_messages;

std::string write_text(const ge_graph& x) {
  std::ostringstream out;
  write_ge(x, out);
  return out.str();
}

ge_graph read_text(const std::string& text) {
  ge_graph x;
  std::istringstream in(text);
  read_ge(x, in, "t.ge");
  return x;
}

TEST(GeFile, RoundTripKeepsEveryAttribute) {
  ge_graph x = testing::every_attribute_graph(true);
  ge_graph y = read_text(write_text(x));
  EXPECT_TRUE(same_drawing(x, y));
  EXPECT_EQ(x.settings, y.settings);
  // The reversal pair survives as a pair.
  std::vector<edge> edges = edges_in_file_order(y.g);
  ASSERT_EQ(edges.size(), 4u);
  // File order: u's edge, then v's two in insertion order, then w's loop.
  EXPECT_EQ(graph::reversal(edges[0]), edges[1]);
  EXPECT_EQ(graph::reversal(edges[1]), edges[0]);
  EXPECT_EQ(graph::reversal(edges[2]), nullptr);
}

TEST(GeFile, SameDrawingSeesEveryChange) {
  ge_graph x = testing::every_attribute_graph(true);
  ge_graph y = read_text(write_text(x));
  y.g.inf(y.g.first_node()).label += " ";
  EXPECT_FALSE(same_drawing(x, y));
  ge_graph z = read_text(write_text(x));
  z.g.inf(edges_in_file_order(z.g)[2]).bends.clear();
  EXPECT_FALSE(same_drawing(x, z));
}

// The text is written out by hand from the format: native part, then the sections.
TEST(GeFile, WritesTheSectionsInOrder) {
  ge_graph x;
  ge_node a;
  a.data = "A";
  a.position = point(1, 2);
  a.label = "n 1";
  node u = x.g.new_node(a);
  node v = x.g.new_node(ge_node{});
  ge_edge e;
  e.bends = {point(0.5, 1.5)};
  x.g.new_edge(u, v, e);
  const char* expected =
      "ORBA.GRAPH\nstring\nstring\n2\n|{A}|\n|{}|\n1\n1 2 0 |{}|\n"
      "# version string\nGraphEdit 1.000000\n"
      "# scaling  wxmin  wymin  wxmax  wymax\n1 0 0 100 100\n"
      "# label font and size\nT 12\n"
      "# edge label font and size\nT 10\n"
      "# node index format\n%d\n"
      "# edge index format\n%d\n"
      "# multi-edge distance\n4\n"
      "# x y shape bclr bwidth r1 r2 clr ltype lclr lpos lstr\n"
      "1 2 0 0 1 10 10 16777215 1 0 0 n 1\n"
      "0 0 0 0 1 10 10 16777215 1 0 0 \n"
      "# width clr shape style dir ltype lclr lpos sanch tanch poly lstr\n"
      "1 0 0 0 1 0 0 0 0 0 0 0 1 0.5 1.5 \n";
  EXPECT_EQ(write_text(x), expected);
}

TEST(GeFile, ReadsAHandWrittenFile) {
  ge_graph x = read_text(
      "ORBA.GRAPH\nvoid\nvoid\n2\n|{}|\n|{}|\n1\n2 1 0 |{}|\n"
      "# version string\nGraphEdit 1.5\n\n"
      "# scaling  wxmin  wymin  wxmax  wymax\n2 -1 -2 3 4\n"
      "# label font and size\nTimes Roman 9\n"
      "# edge label font and size\nF 7\n"
      "# node index format\n(%d)\n"
      "# edge index format\n%d\n"
      "# multi-edge distance\n3\n"
      "# x y shape bclr bwidth r1 r2 clr ltype lclr lpos lstr\n"
      "10 20 1 255 2 5 6 65280 0 0 3 hello world\n"
      "-1 -2 0 0 1 4 4 0 2 0 0\n"
      "# width clr shape style dir ltype lclr lpos sanch tanch poly lstr\n"
      "3 0 2 1 0 0 0 0 1 1 2 2 2 7 8 9 10 up\\nand down\n");
  EXPECT_EQ(x.settings.version, 1.5);
  EXPECT_EQ(x.settings.scaling, 2);
  EXPECT_EQ(x.settings.wymax, 4);
  EXPECT_EQ(x.settings.node_font, "Times Roman");
  EXPECT_EQ(x.settings.node_font_size, 9);
  EXPECT_EQ(x.settings.node_index_format, "(%d)");
  EXPECT_EQ(x.settings.multi_edge_distance, 3);
  ASSERT_EQ(x.g.number_of_nodes(), 2);
  const ge_node& a = x.g.inf(x.g.first_node());
  EXPECT_EQ(a.position, point(10, 20));
  EXPECT_EQ(a.shape, node_shape::rectangle);
  EXPECT_EQ(a.border_color, 255);
  EXPECT_EQ(a.radius2, 6);
  EXPECT_EQ(a.color, 0x00ff00);
  EXPECT_EQ(a.label_type, label_kind::text);
  EXPECT_EQ(a.label_position, label_anchor::e);
  EXPECT_EQ(a.label, "hello world");
  EXPECT_EQ(x.g.inf(x.g.last_node()).label, "");
  const ge_edge& e = x.g.inf(x.g.first_edge());
  EXPECT_EQ(graph::source(x.g.first_edge()), x.g.last_node());
  EXPECT_EQ(e.width, 3);
  EXPECT_EQ(e.shape, edge_shape::spline);
  EXPECT_EQ(e.style, edge_style::dashed);
  EXPECT_EQ(e.direction, edge_arrow::none);
  EXPECT_EQ(e.target_anchor, point(2, 2));
  ASSERT_EQ(e.bends.size(), 2u);
  EXPECT_EQ(e.bends[1], point(9, 10));
  EXPECT_EQ(e.label, "up\nand down");
}

const std::string good = [] {
  std::ostringstream out;
  write_ge(testing::every_attribute_graph(true), out);
  return out.str();
}();

// Replaces the first occurrence of `from` in the good file.
std::string changed(const std::string& from, const std::string& to) {
  std::string text = good;
  std::size_t at = text.find(from);
  EXPECT_NE(at, std::string::npos) << from;
  return text.replace(at, from.size(), to);
}

TEST(GeFile, BadFilesEndWithTheirMessage) {
  EXPECT_REPORT(read_text("GRAPH\n"), msg::ge_not_a_graph.code,
                "t.ge, line 1: the graph part does not begin with ORBA.GRAPH.");
  EXPECT_REPORT(read_text("ORBA.GRAPH\nvoid\nvoid\n2\n|{}|\nx\n"), msg::ge_graph_format.code,
                "t.ge, line 6: error in the graph part.");
  EXPECT_REPORT(read_text(changed("# label font and size", "# label font")),
                msg::ge_missing_comment.code,
                "t.ge, line 17: expected the comment \"# label font and size\".");
  // Lines 1-12 are the native part (3 nodes, 4 edges), 13-26 the settings, 27 the comment of
  // the node lines.
  EXPECT_REPORT(read_text(changed("0.10000000000000001 -2.5e+17 1", "0.1 -2.5e+17 9")),
                msg::ge_bad_line.code, "t.ge, line 28: bad node info line.");
  EXPECT_REPORT(read_text(changed("GraphEdit 2.5", "GraphEdit two")), msg::ge_bad_line.code,
                "t.ge, line 14: bad version line.");
  EXPECT_REPORT(read_text(changed("Courier 8", "Courier")), msg::ge_bad_line.code,
                "t.ge, line 20: bad edge label font line.");
  EXPECT_REPORT(read_text(good.substr(0, good.find("# width"))), msg::ge_early_end.code,
                "t.ge, line 31: the file ends before the width clr shape style dir ltype lclr "
                "lpos sanch tanch poly lstr.");
  ge_graph none;
  EXPECT_REPORT(read_ge(none, "/nonexistent/g.ge"), msg::cannot_open.code,
                "Cannot open graph file /nonexistent/g.ge.");
}

// Every prefix of a good file is read or refused with a message, never a crash.
TEST(GeFile, EveryTruncationEndsCleanly) {
  int refused = 0;
  for (std::size_t n = 0; n < good.size(); ++n) {
    try {
      read_text(good.substr(0, n));
    } catch (const testing::reported& r) {
      EXPECT_GE(r.what.code, 3500);
      ++refused;
    }
  }
  EXPECT_GT(refused, static_cast<int>(good.size()) / 2);
}

TEST(GeFile, FileRoundTrip) {
  std::string name = ::testing::TempDir() + "graphedit_test.ge";
  ge_graph x = testing::every_attribute_graph(false);
  write_ge(x, name);
  ge_graph y;
  read_ge(y, name);
  std::remove(name.c_str());
  EXPECT_TRUE(same_drawing(x, y));
}

}  // namespace
}  // namespace mero
