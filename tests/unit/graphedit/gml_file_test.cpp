#include "graphedit/gml_file.h"

#include <gtest/gtest.h>

#include <sstream>

#include "graphedit/graphedit_messages.h"
#include "sample_graphs.h"
#include "test_support.h"

namespace mero {
namespace {

namespace msg = graphedit_messages;

std::string write_text(const ge_graph& x) {
  std::ostringstream out;
  write_gml(x, out);
  return out.str();
}

ge_graph read_text(const std::string& text) {
  ge_graph x;
  std::istringstream in(text);
  read_gml(x, in, "t.gml");
  return x;
}

TEST(GmlFile, RoundTripKeepsEveryAttribute) {
  ge_graph x = testing::every_attribute_graph(false);
  x.settings.label = "a \"quoted\" & labelled graph";
  x.settings.directed = false;
  ge_graph y = read_text(write_text(x));
  EXPECT_TRUE(same_drawing(x, y));
  EXPECT_EQ(y.settings.label, x.settings.label);
  EXPECT_FALSE(y.settings.directed);
  EXPECT_EQ(y.settings.version, 2.5);
}

TEST(GmlFile, WritesCreatorVersionAndGraph) {
  ge_graph x;
  x.g.new_node(ge_node{});
  std::string text = write_text(x);
  EXPECT_EQ(text.rfind("Creator \"ORBA GraphEdit\"\nVersion 1\ngraph [\n  label \"\"\n  directed 1\n"
                       "  node [\n    id 0\n",
                       0),
            0u)
      << text;
  EXPECT_NE(text.find("      type \"oval\"\n      width 1\n      fill \"#ffffff\"\n"),
            std::string::npos);
  EXPECT_EQ(text.substr(text.size() - 6), "  ]\n]\n");
}

// Written by hand: comments, unknown keys with scalar and nested list values, an edge before
// the nodes it names, ints for reals, entities in strings, a bend without y.
TEST(GmlFile, ReadsAHandWrittenFile) {
  testing::messages().clear();
  ge_graph x = read_text(
      "# a comment line\n"
      "Creator \"someone else\"\n"
      "graph [\n"
      "  comment \"not ours\"\n"
      "  directed 0\n"
      "  hierarchic 1 foo [ bar [ baz 1.5 ] qux \"]\" ]\n"
      "  edge [ source 7 target 3 label \"A &amp; B\"\n"
      "    graphics [ arrow \"first\" width 2 style \"dotted_edge\" smooth 1\n"
      "      Line [ point [ x 1 y 2 ] point [ x 5 ] point [ x -1.5e1 y 0.25 ] ] ]\n"
      "    edgeAnchor [ xSource 0.5 yTarget -1 ]\n"
      "    LabelGraphics [ type \"data_label\" anchor \"ne\" ]\n"
      "  ]\n"
      "  node [ id 3 label \"three\" graphics [ x 10 y -20.5 w 8 h 4 type \"rectangle\"\n"
      "         fill \"#FF8000\" outline \"#000010\" ] ]\n"
      "  node [ id 7 parameter \"data\" labelAnchor \"s\"\n"
      "         LabelGraphics [ type \"text\" fill \"#00ff00\" ] ]\n"
      "]\n");
  ASSERT_EQ(testing::messages().size(), 1u);
  EXPECT_EQ(testing::messages()[0].text, "ignoring incomplete bend");
  EXPECT_FALSE(x.settings.directed);
  ASSERT_EQ(x.g.number_of_nodes(), 2);
  ASSERT_EQ(x.g.number_of_edges(), 1);
  node three = x.g.first_node();
  node seven = x.g.last_node();
  const ge_node& a = x.g.inf(three);
  EXPECT_EQ(a.label, "three");
  EXPECT_EQ(a.position, point(10, -20.5));
  EXPECT_EQ(a.radius1, 4);
  EXPECT_EQ(a.radius2, 2);
  EXPECT_EQ(a.shape, node_shape::rectangle);
  EXPECT_EQ(a.color, 0xff8000);
  EXPECT_EQ(a.border_color, 0x10);
  const ge_node& b = x.g.inf(seven);
  EXPECT_EQ(b.data, "data");
  EXPECT_EQ(b.label_position, label_anchor::s);
  EXPECT_EQ(b.label_type, label_kind::text);
  EXPECT_EQ(b.label_color, 0x00ff00);
  edge e = x.g.first_edge();
  EXPECT_EQ(graph::source(e), seven);
  EXPECT_EQ(graph::target(e), three);
  const ge_edge& f = x.g.inf(e);
  EXPECT_EQ(f.label, "A & B");
  EXPECT_EQ(f.direction, edge_arrow::first);
  EXPECT_EQ(f.width, 2);
  EXPECT_EQ(f.style, edge_style::dotted);
  EXPECT_EQ(f.shape, edge_shape::bezier);
  ASSERT_EQ(f.bends.size(), 2u);
  EXPECT_EQ(f.bends[0], point(1, 2));
  EXPECT_EQ(f.bends[1], point(-15, 0.25));
  EXPECT_EQ(f.source_anchor, point(0.5, 0));
  EXPECT_EQ(f.target_anchor, point(0, -1));
  EXPECT_EQ(f.label_type, label_kind::data);
  EXPECT_EQ(f.label_position, label_anchor::ne);
}

TEST(GmlFile, BadFilesEndWithTheirMessage) {
  EXPECT_REPORT(read_text("graph [\n label \"open\n]\n"), msg::gml_unterminated_string.code,
                "t.gml, line 2: unterminated string.");
  EXPECT_REPORT(read_text("graph [\n  12 ]\n"), msg::gml_syntax.code,
                "t.gml, line 2: syntax error at \"12\".");
  EXPECT_REPORT(read_text("graph [ ]\n]\n"), msg::gml_syntax.code,
                "t.gml, line 2: syntax error at \"]\".");
  EXPECT_REPORT(read_text("graph [ node\n"), msg::gml_syntax.code,
                "t.gml, line 2: syntax error at \"end of file\".");
  EXPECT_REPORT(read_text("graph [ x 1e999 ]"), msg::gml_syntax.code,
                "t.gml, line 1: syntax error at \"1e999\".");
  std::string deep = "graph [";
  for (int k = 0; k < 300; ++k) deep += " a [";
  EXPECT_REPORT(read_text(deep), msg::gml_syntax.code, "t.gml, line 1: syntax error at \"[\".");
  EXPECT_REPORT(read_text("graph [\n node [\n  id 1\n ]\n"), msg::gml_unclosed_list.code,
                "t.gml, line 1: list \"graph [\" is not closed.");
  EXPECT_REPORT(read_text("Creator \"x\"\n"), msg::gml_no_graph.code,
                "t.gml: no \"graph [\" in the file.");
  EXPECT_REPORT(read_text("graph [\n node [ id 1 graphics [\n x \"left\" ] ]\n]\n"),
                msg::gml_bad_value.code, "t.gml, line 3: the value of \"x\" must be a number.");
  EXPECT_REPORT(read_text("graph [ node [ id 1.5 ] ]"), msg::gml_bad_value.code,
                "t.gml, line 1: the value of \"id\" must be an integer.");
  EXPECT_REPORT(read_text("graph [ node [ id 1 graphics [ fill \"red\" ] ] ]"),
                msg::gml_bad_value.code,
                "t.gml, line 1: the value of \"fill\" must be a colour \"#rrggbb\".");
  EXPECT_REPORT(read_text("graph [ node [ id 1 ]\n node [ id 2 ]\n edge [ source 1 target 2\n"
                          " graphics [ arrow \"sideways\" ] ] ]"),
                msg::gml_unknown_word.code, "t.gml, line 4: unknown arrow \"sideways\".");
  EXPECT_REPORT(read_text("graph [\n node [ id 1 ]\n node [ id 1 ]\n]"), msg::gml_node_id.code,
                "t.gml, line 3: node without a new \"id\".");
  EXPECT_REPORT(read_text("graph [\n node [ label \"x\" ]\n]"), msg::gml_node_id.code,
                "t.gml, line 2: node without a new \"id\".");
  EXPECT_REPORT(read_text("graph [\n node [ id 1 ]\n edge [ source 1 target 4 ]\n]"),
                msg::gml_edge_end.code, "t.gml, line 3: edge with an unknown target node.");
  EXPECT_REPORT(read_text("graph [\n node [ id 1 ]\n edge [ target 1 ]\n]"),
                msg::gml_edge_end.code, "t.gml, line 3: edge with an unknown source node.");
}

TEST(GmlFile, EveryTruncationEndsCleanly) {
  std::string good = write_text(testing::every_attribute_graph(false));
  int refused = 0;
  for (std::size_t n = 0; n < good.size(); n += 3) {
    try {
      read_text(good.substr(0, n));
    } catch (const testing::reported& r) {
      EXPECT_GE(r.what.code, 3500);
      ++refused;
    }
  }
  EXPECT_GT(refused, 0);
}

}  // namespace
}  // namespace mero
