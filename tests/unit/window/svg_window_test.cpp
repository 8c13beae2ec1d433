// The window's frame and items, through the SVG backend (no display needed): world to pixel by
// hand, the attributes' old values, the numbering of buttons and menus, the faults the kernel
// handler reports, and the SVG elements each drawing call leaves.

#include "kernel/window/svg_window.h"

#include <string>

#include "kernel/window/window_messages.h"
#include "kernel/window/windowed_faces.h"
#include "test_support.h"

namespace mero {
namespace {

bool has(const std::string& svg, const std::string& element) {
  return svg.find(element) != std::string::npos;
}

// 400 x 300 over x in [-2, 8]: 40 pixels per unit, so y runs from 1 to 8.5.
TEST(svg_window, WorldFrameFollowsTheAspectRatio) {
  svg_window w(400, 300, "frame");
  EXPECT_DOUBLE_EQ(w.xmax(), 100.0);  // the frame before init
  w.init(-2, 8, 1);
  EXPECT_DOUBLE_EQ(w.scale(), 40.0);
  EXPECT_DOUBLE_EQ(w.ymax(), 8.5);
  const pixel_point p = w.to_pixel(3, 4.75);
  EXPECT_DOUBLE_EQ(p.x, 200.0);
  EXPECT_DOUBLE_EQ(p.y, 150.0);
  EXPECT_DOUBLE_EQ(w.to_world(40, 300).xcoord(), -1.0);
  EXPECT_DOUBLE_EQ(w.to_world(40, 300).ycoord(), 1.0);
  EXPECT_KERNEL_ERROR(w.init(5, 5, 0), window_messages::bad_frame.text);
}

TEST(svg_window, FiguresBecomeElementsAtTheirPixels) {
  svg_window w(400, 300, "a <b>");
  w.init(0, 10, 0);
  w.draw_segment(1, 1, 9, 6.5);
  w.set_color(color::red);
  w.draw_disc(5, 3.75, 1);
  w.set_line_width(3);
  w.draw_circle(0, 0, 0.5);
  w.draw_filled_polygon({point(0, 0), point(2, 0), point(2, 1)});
  w.draw_text(1, 7.5, "x & y");
  const std::string svg = w.svg();
  EXPECT_TRUE(has(svg, "width=\"400\" height=\"300\""));
  EXPECT_TRUE(has(svg, "<title>a &lt;b&gt;</title>"));
  EXPECT_TRUE(has(svg,
                  "<polyline points=\"40.00,260.00 360.00,40.00\" fill=\"none\" "
                  "stroke=\"#000000\" stroke-width=\"1\""));
  EXPECT_TRUE(has(svg, "<circle cx=\"200.00\" cy=\"150.00\" r=\"40.00\" fill=\"#e00000\""));
  EXPECT_TRUE(has(svg,
                  "<circle cx=\"0.00\" cy=\"300.00\" r=\"20.00\" fill=\"none\" "
                  "stroke=\"#e00000\" stroke-width=\"3\""));
  EXPECT_TRUE(has(svg,
                  "<polygon points=\"0.00,300.00 80.00,300.00 80.00,260.00\" "
                  "fill=\"#e00000\""));
  EXPECT_TRUE(has(svg, "<text x=\"40.00\" y=\"0.00\""));
  EXPECT_TRUE(has(svg, ">x &amp; y</text>"));
  w.clear();
  EXPECT_FALSE(has(w.svg(), "<circle"));
}

// A line through (1, 1) and (2, 2) crosses the whole area; degenerate polygons draw what they are.
TEST(svg_window, LinesReachBeyondTheFrameAndShortPolygonsDegenerate) {
  svg_window w(100, 100, "line");
  w.init(0, 10, 0);
  w.draw_line(1, 1, 2, 2);
  w.draw_polygon({point(1, 1), point(3, 1)});
  const std::string svg = w.svg();
  const std::size_t at = svg.find("<polyline points=\"");
  ASSERT_NE(at, std::string::npos);
  double x1, y1, x2, y2;
  ASSERT_EQ(std::sscanf(svg.c_str() + at + 18, "%lf,%lf %lf,%lf", &x1, &y1, &x2, &y2), 4);
  EXPECT_LT(x1, 0.0);
  EXPECT_GT(y1, 100.0);
  EXPECT_GT(x2, 100.0);
  EXPECT_LT(y2, 0.0);
  EXPECT_NEAR(x1 + y1, 100.0, 1e-6);  // the pixel line of y = x
  EXPECT_TRUE(has(svg, "<polyline points=\"10.00,90.00 30.00,90.00\""));
}

TEST(svg_window, SettersReturnTheOldValue) {
  svg_window w(10, 10, "attributes");
  EXPECT_EQ(w.set_line_width(4), 1);
  EXPECT_EQ(w.set_line_width(2), 4);
  EXPECT_EQ(w.set_color(color::blue), color::black);
  EXPECT_EQ(w.set_color(color::green), color::blue);
  EXPECT_EQ(w.set_font({"Courier", 12, true}).family, "Helvetica");
  const text_font old = w.set_font({});
  EXPECT_EQ(old.family, "Courier");
  EXPECT_EQ(old.size, 12);
  EXPECT_TRUE(old.bold);
}

TEST(svg_window, ItemsAreNumberedAndCheckedByTheKernelHandler) {
  svg_window w(10, 10, "items");
  EXPECT_EQ(w.button("a"), 0);
  EXPECT_EQ(w.menu("m", {"x", "y", "z"}), 1);
  EXPECT_EQ(w.button("b"), 4);
  EXPECT_EQ(w.button("c", 2), 2);  // a given number may repeat an entry's; the user chose it
  w.set_menu("m", {"u"});
  EXPECT_EQ(w.items()[1].entries.size(), 1u);
  EXPECT_KERNEL_ERROR(w.set_menu("n", {"u"}), "illegal item n in window::set_menu\n");
  EXPECT_KERNEL_ERROR(w.set_text(0, "x"), "illegal item in window::set_text\n");
  EXPECT_KERNEL_ERROR(w.set_text(9, "x"), "illegal item in window::set_text\n");
  w.start_buffering();
  EXPECT_KERNEL_ERROR(w.start_buffering(), "x_set_buffer: nested call.");
  // Without a user the backend answers at once with the close value.
  w.set_close_value(3);
  EXPECT_EQ(w.read_mouse(), 3);
  EXPECT_EQ(w.open(), 3);
}

// The panels of the reporters, item by item from the top.
TEST(svg_window, ReporterPanelsHoldTheirLines) {
  svg_window error(0, 0, "MERO-ERROR");
  add_error_items(error, "Division by zero.", 7);
  ASSERT_EQ(error.items().size(), 5u);
  EXPECT_EQ(error.items()[0].label, "    ");
  EXPECT_EQ(error.items()[1].label, "Division by zero.");
  EXPECT_EQ(error.items()[2].label, "    Errorcode ");
  EXPECT_EQ(error.items()[3].label, "   7");
  EXPECT_EQ(error.items()[4].what, window::item::kind::button);
  EXPECT_EQ(error.items()[4].label, "OK");
  svg_window question(0, 0, "MERO-MESSAGE");
  EXPECT_EQ(add_question_items(question, "Go on?"), 1);
  EXPECT_EQ(question.items()[2].label, "cancel");
  EXPECT_EQ(question.items()[2].number, 0);
  EXPECT_EQ(question.items()[3].label, "ok");
  svg_window message(0, 0, "MERO-MESSAGE");
  add_message_items(message, "Hello");
  ASSERT_EQ(message.items().size(), 3u);
  EXPECT_EQ(message.items()[2].label, "OK");
}

TEST(svg_window, PixrectBecomesRunsOfEqualPixels) {
  svg_window w(10, 10, "image");
  w.init(0, 10, 0);
  const unsigned char rgb[] = {255, 0, 0, 255, 0, 0, 0, 0, 255};
  w.put_pixrect(1, 9, window::create_pixrect(3, 1, rgb));
  const std::string svg = w.svg();
  EXPECT_TRUE(has(svg, "<rect x=\"1.00\" y=\"1.00\" width=\"2\" height=\"1\" fill=\"#ff0000\"/>"));
  EXPECT_TRUE(has(svg, "<rect x=\"3.00\" y=\"1.00\" width=\"1\" height=\"1\" fill=\"#0000ff\"/>"));
  EXPECT_KERNEL_ERROR(window::create_pixrect(0, 1, rgb), window_messages::bad_pixrect.text);
}

}  // namespace
}  // namespace mero
