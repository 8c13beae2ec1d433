// The Tk window on a real (virtual) display: figures land on the canvas at the pixel positions
// that the world frame gives, and presses, clicks and closes end read_mouse and open with the
// right numbers. Buttons are pressed through the layer's own interpreter.

#include "kernel/window/tk_window.h"

#include <tcl.h>

#include <string>

#include "kernel/window/window_messages.h"
#include "kernel/window/windowed_faces.h"
#include "test_support.h"

namespace mero {
namespace {

class tk_window_test : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!window_display_available()) GTEST_SKIP() << "no display: window tests need Xvfb";
  }

  static std::string tcl(const std::string& script) {
    Tcl_Interp* in = tk_interpreter();
    EXPECT_EQ(Tcl_Eval(in, script.c_str()), TCL_OK) << Tcl_GetStringResult(in);
    return Tcl_GetStringResult(in);
  }

  // Runs script from the event loop once read_mouse or open is waiting.
  static void soon(const std::string& script) { tcl("after 20 {" + script + "}"); }
};

// A 400 x 300 area over x in [0, 10]: 40 pixels per unit, y from 0 to 7.5, pixel y downwards.
TEST_F(tk_window_test, FiguresLandAtTheirPixelPositions) {
  tk_window w(400, 300, "frame");
  w.init(0, 10, 0);
  EXPECT_DOUBLE_EQ(w.ymax(), 7.5);
  w.draw_segment(1, 1, 9, 6.5);
  w.draw_disc(5, 3.75, 1);
  w.draw_filled_polygon({point(0, 0), point(2, 0), point(2, 1)});
  w.draw_ctext(5, 5, "centre");
  const std::string c = w.canvas_path();
  const std::string ids = tcl(c + " find all");
  EXPECT_EQ(tcl(c + " coords [lindex {" + ids + "} 0]"), "40.0 260.0 360.0 40.0");
  EXPECT_EQ(tcl(c + " coords [lindex {" + ids + "} 1]"), "160.0 110.0 240.0 190.0");
  EXPECT_EQ(tcl(c + " coords [lindex {" + ids + "} 2]"), "0.0 300.0 80.0 300.0 80.0 260.0");
  EXPECT_EQ(tcl(c + " coords [lindex {" + ids + "} 3]"), "200.0 100.0");
  EXPECT_EQ(tcl(c + " itemcget [lindex {" + ids + "} 3] -anchor"), "center");
  w.clear();
  EXPECT_EQ(tcl(c + " find all"), "");
}

TEST_F(tk_window_test, ButtonsClicksAndTheFrameEndReadMouse) {
  tk_window w(200, 200, "events");
  w.init(-1, 1, -1);
  EXPECT_EQ(w.button("first"), 0);
  EXPECT_EQ(w.button("given", 7), 7);
  EXPECT_EQ(w.button("next"), 8);
  const int entries = w.menu("More", {"one", "two"});
  EXPECT_EQ(entries, 9);
  w.display();
  soon(w.button_path(7) + " invoke");
  EXPECT_EQ(w.read_mouse(), 7);
  soon(w.path() + ".b.i3.m invoke 1");
  EXPECT_EQ(w.read_mouse(), 10);
  // A right click at pixel (150, 50): world (0.5, 0.5).
  soon("event generate " + w.canvas_path() + " <ButtonPress-3> -x 150 -y 50");
  EXPECT_EQ(w.read_mouse(), window::right_click);
  EXPECT_DOUBLE_EQ(w.clicked().xcoord(), 0.5);
  EXPECT_DOUBLE_EQ(w.clicked().ycoord(), 0.5);
  soon("eval [wm protocol " + w.path() + " WM_DELETE_WINDOW]");
  EXPECT_EQ(w.read_mouse(), window::default_close_value);
  w.set_close_value(4);
  soon("eval [wm protocol " + w.path() + " WM_DELETE_WINDOW]");
  EXPECT_EQ(w.read_mouse(), 4);
  // Destroyed from outside, the window ends the wait all the same and is built anew when needed.
  soon("destroy " + w.path());
  EXPECT_EQ(w.read_mouse(), 4);
  w.display();
  EXPECT_EQ(tcl("winfo exists " + w.canvas_path()), "1");
}

// A menu bar with cascades: commands without a number are numbered depth first from the next free
// one, a given number is kept, '&' marks the underlined letter; pressing a nested entry ends
// read_mouse with its number, and a shift click says so.
TEST_F(tk_window_test, MenuBarCascadesAndShiftClicks) {
  tk_window w(200, 200, "menus");
  EXPECT_EQ(w.button("first"), 0);
  using E = window::menu_entry;
  E file{"&File", -1, {E{"&Open", -1, {}}, E{"", -1, {}, true},
                       E{"&Export", -1, {E{"&Latex/Postscript", -1, {}}, E{"Fixed", 40, {}}}}}};
  EXPECT_EQ(w.menu_bar_entry(file), 1);
  EXPECT_EQ(w.menu_bar_entry(E{"&done", -1, {}}), 41);
  EXPECT_EQ(w.menu_bar()[0].entries[2].entries[0].number, 2);
  int underline = 0;
  EXPECT_EQ(window::menu_label("Copy to &Clipboard", &underline), "Copy to Clipboard");
  EXPECT_EQ(underline, 8);
  EXPECT_EQ(window::menu_label("R&&D &x", &underline), "R&D x");
  EXPECT_EQ(underline, 4);
  w.display();
  auto [menu, index] = w.menu_entry_path({"File", "&Export", "Latex/Postscript"});
  ASSERT_FALSE(menu.empty());
  EXPECT_EQ(index, 0);
  EXPECT_EQ(tcl(menu + " entrycget 1 -label"), "Fixed");
  EXPECT_EQ(tcl(menu + " entrycget 0 -underline"), "0");
  soon(menu + " invoke 1");
  EXPECT_EQ(w.read_mouse(), 40);
  auto [bar, done] = w.menu_entry_path({"done"});
  EXPECT_EQ(done, 1);
  soon(bar + " invoke 1");
  EXPECT_EQ(w.read_mouse(), 41);
  EXPECT_TRUE(w.menu_entry_path({"File", "Nothing"}).first.empty());
  soon("event generate " + w.canvas_path() + " <ButtonPress-1> -x 10 -y 10 -state 1");
  EXPECT_EQ(w.read_mouse(), window::left_click);
  EXPECT_TRUE(w.shift_clicked());
  soon("event generate " + w.canvas_path() + " <ButtonPress-1> -x 10 -y 10");
  EXPECT_EQ(w.read_mouse(), window::left_click);
  EXPECT_FALSE(w.shift_clicked());
}

// The question panel: "cancel" is button 0 and "ok" button 1, and a modal open returns the one
// pressed; a click into the panel does not end it.
TEST_F(tk_window_test, ModalPanelReturnsItsButton) {
  tk_window panel(0, 0, "MERO-MESSAGE");
  const int ok = add_question_items(panel, "Go on?");
  EXPECT_EQ(ok, 1);
  soon(panel.button_path(0) + " invoke");
  EXPECT_EQ(panel.open(window_messages::question_x, window_messages::question_y), 0);
  EXPECT_EQ(tcl("winfo ismapped " + panel.path()), "0");
  const std::string geometry = tcl("wm geometry " + panel.path());
  EXPECT_TRUE(geometry.ends_with("+780+150")) << geometry;
  soon("event generate " + panel.path() + " <ButtonPress-1>; " + panel.button_path(ok) + " invoke");
  EXPECT_EQ(panel.open(), ok);
  EXPECT_EQ(tcl("wm title " + panel.path()), "MERO-MESSAGE");
}

TEST_F(tk_window_test, StringAndTextItemsTalkToTheirWidgets) {
  std::string name = "cities";
  tk_window w(0, 0, "items");
  const int t = w.text_item("before");
  w.string_item("File", name);
  w.button("OK");
  w.display(10, 10);
  EXPECT_EQ(tcl(w.path() + ".p.i1.e get"), "cities");
  w.set_text(t, "after");
  EXPECT_EQ(tcl(w.path() + ".p.i0 cget -text"), "after");
  soon(w.path() + ".p.i1.e delete 0 end; " + w.path() + ".p.i1.e insert 0 towns; " +
       w.button_path(0) + " invoke");
  EXPECT_EQ(w.read_mouse(), 0);
  EXPECT_EQ(name, "towns");
}

TEST_F(tk_window_test, BufferedDrawingAppearsAtTheFlush) {
  tk_window w(100, 100, "buffer");
  w.start_buffering();
  w.draw_circle(50, 50, 10);
  const std::string c = w.canvas_path();
  EXPECT_EQ(tcl(c + " itemcget all -state"), "hidden");
  w.flush_buffer();
  EXPECT_EQ(tcl(c + " itemcget all -state"), "normal");
}

// A wider area keeps xmin, xmax and ymin: the scale grows and the handler draws again.
TEST_F(tk_window_test, ResizeRedrawsWithTheNewScale) {
  tk_window w(100, 100, "resize");
  w.init(0, 10, 0);
  int redraws = 0;
  w.set_redraw([&](window& again) {
    ++redraws;
    again.draw_point(5, 5);
  });
  w.display();
  tcl(w.canvas_path() + " configure -width 200 -height 100; update");
  EXPECT_EQ(redraws, 1);
  EXPECT_DOUBLE_EQ(w.scale(), 20.0);
  EXPECT_DOUBLE_EQ(w.ymax(), 5.0);
}

// Two pixels, red then blue, put with their top left corner at the world's top left corner.
TEST_F(tk_window_test, PixrectShowsItsPixels) {
  tk_window w(50, 50, "image");
  w.init(0, 50, 0);
  const unsigned char rgb[] = {255, 0, 0, 0, 0, 255};
  w.put_pixrect(0, 50, window::create_pixrect(2, 1, rgb));
  const std::string c = w.canvas_path();
  EXPECT_EQ(tcl(c + " coords all"), "0.0 0.0");
  const std::string image = tcl(c + " itemcget all -image");
  EXPECT_EQ(tcl(image + " get 0 0"), "255 0 0");
  EXPECT_EQ(tcl(image + " get 1 0"), "0 0 255");
}

// Buttons are as wide as their labels and wrap into rows no wider than the drawing area; a
// window that would leave the 1280 by 1024 screen of the tests is moved back onto it, one that
// fits stays where it was asked to be.
TEST_F(tk_window_test, ButtonsKeepTheirLabelsAndTheWindowStaysOnTheScreen) {
  tk_window w(300, 100, "rows");
  for (const char* label : {"Save Results", "Show/Hide Weights", "Show/Hide Optima", "Close"})
    w.button(label);
  w.display(1200, 1000);
  tcl("update");
  const std::string b1 = w.button_path(1);
  const int label = std::stoi(tcl("font measure [" + b1 + " cget -font] {Show/Hide Weights}"));
  EXPECT_GT(std::stoi(tcl("winfo width " + b1)), label);
  EXPECT_EQ(tcl("winfo width " + w.path()), "300");
  EXPECT_NE(tcl("winfo y " + b1), tcl("winfo y " + w.button_path(2)));
  const int width = std::stoi(tcl("winfo reqwidth " + w.path()));
  const int height = std::stoi(tcl("winfo reqheight " + w.path()));
  EXPECT_TRUE(
      tcl("wm geometry " + w.path())
          .ends_with("+" + std::to_string(1280 - width) + "+" + std::to_string(1024 - height)));
  w.display(650, 150);
  EXPECT_TRUE(tcl("wm geometry " + w.path()).ends_with("+650+150"));
}

}  // namespace
}  // namespace mero
