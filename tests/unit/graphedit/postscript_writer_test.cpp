#include "graphedit/postscript_writer.h"

#include <gtest/gtest.h>

#include <sstream>

#include "sample_graphs.h"
#include "test_support.h"

namespace mero {
namespace {

std::string picture(const ge_graph& x, double scale = 1) {
  std::ostringstream out;
  write_postscript(x, out, scale);
  return out.str();
}

bool has(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

// Two round nodes of radius 10 at (0, 0) and (100, 50), one edge between them.
ge_graph two_nodes(edge_arrow arrow, edge_style style) {
  ge_graph x;
  ge_node a;
  node u = x.g.new_node(a);
  a.position = point(100, 50);
  node v = x.g.new_node(a);
  ge_edge e;
  e.direction = arrow;
  e.style = style;
  x.g.new_edge(u, v, e);
  return x;
}

TEST(PostscriptWriter, HeaderDictionaryAndEnd) {
  std::string ps = picture(two_nodes(edge_arrow::last, edge_style::solid));
  EXPECT_EQ(ps.rfind("%!PS-Adobe-2.0 EPSF-2.0\n%%Creator: ORBA GraphEdit\n%%BoundingBox: ", 0),
            0u);
  EXPECT_TRUE(has(ps, "\n/ORBA_dict 100 dict def\nORBA_dict begin\n"));
  EXPECT_TRUE(has(ps, "\n/set_font {"));
  EXPECT_TRUE(has(ps, "\n/set_line_style { 0 setdash } def\n"));
  EXPECT_TRUE(has(ps, "\n/polygon { newpath poly_line closepath } def\n"));
  EXPECT_EQ(ps.substr(ps.size() - 17), "end %% ORBA_dict\n");
}

// The numbers below are worked out by hand: the drawing spans [-10, 110] x [-10, 60], moved by
// the margin of 10; the edge leaves the first circle at 10 / sqrt(125) * (100, 50).
TEST(PostscriptWriter, GeometryOfTwoNodesAndAnEdge) {
  std::string ps = picture(two_nodes(edge_arrow::last, edge_style::solid));
  EXPECT_TRUE(has(ps, "%%BoundingBox: 0 0 140 90\n"));
  EXPECT_TRUE(has(ps, "20.00 20.00 10.00 10.00 ellipse fill\n"));
  EXPECT_TRUE(has(ps, "120.00 70.00 10.00 10.00 ellipse stroke\n"));
  EXPECT_TRUE(has(ps, "[] set_line_style\nmark 111.06 65.53 28.94 24.47 stroke_line\n"));
  EXPECT_TRUE(has(ps, "28.94 24.47 111.06 65.53 8.00 arrow_head\n"));
  EXPECT_FALSE(has(ps, "111.06 65.53 28.94 24.47 8.00 arrow_head"));
  // Index labels "1" and "2" at the centres.
  EXPECT_TRUE(has(ps, "(1) 20.00 20.00 ctext\n"));
  EXPECT_TRUE(has(ps, "(2) 120.00 70.00 ctext\n"));
}

TEST(PostscriptWriter, StylesArrowsAndScale) {
  std::string both = picture(two_nodes(edge_arrow::both, edge_style::dashed));
  EXPECT_TRUE(has(both, "[6 3] set_line_style\n"));
  EXPECT_TRUE(has(both, "28.94 24.47 111.06 65.53 8.00 arrow_head\n"));
  EXPECT_TRUE(has(both, "111.06 65.53 28.94 24.47 8.00 arrow_head\n"));
  std::string none = picture(two_nodes(edge_arrow::none, edge_style::dotted));
  EXPECT_TRUE(has(none, "[1 3] set_line_style\n"));
  EXPECT_FALSE(has(none, "arrow_head\n"));
  std::string twice = picture(two_nodes(edge_arrow::none, edge_style::solid), 2);
  EXPECT_TRUE(has(twice, "%%BoundingBox: 0 0 260 160\n"));
  EXPECT_TRUE(has(twice, "30.00 30.00 20.00 20.00 ellipse fill\n"));
}

TEST(PostscriptWriter, RectangleColourAndEscapedLabel) {
  ge_graph x;
  ge_node a;
  a.shape = node_shape::rectangle;
  a.radius1 = 5;
  a.radius2 = 3;
  a.color = 0xff8000;
  a.label_type = label_kind::text;
  a.label = "f(x) \\ y";
  x.g.new_node(a);
  std::string ps = picture(x);
  EXPECT_TRUE(has(ps, "%%BoundingBox: 0 0 30 26\n"));
  EXPECT_TRUE(has(ps, "1.00 0.50 0.00 set_color\n"
                      "mark 10.00 16.00 20.00 16.00 20.00 10.00 10.00 10.00 polygon fill\n"));
  EXPECT_TRUE(has(ps, "(f\\(x\\) \\\\ y) 15.00 13.00 ctext\n"));
}

TEST(PostscriptWriter, EmptyGraphAndEveryAttribute) {
  EXPECT_TRUE(has(picture(ge_graph{}), "%%BoundingBox: 0 0 20 20\n"));
  std::string ps = picture(testing::every_attribute_graph(true));
  EXPECT_TRUE(has(ps, " curve\n"));  // the bezier edge with two bends
  EXPECT_EQ(ps.substr(ps.size() - 17), "end %% ORBA_dict\n");
}

}  // namespace
}  // namespace mero
