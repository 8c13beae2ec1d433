// Draws a fixed scene through the SVG backend and writes it to the file named by the argument;
// check_svg.py knows the scene's pixel positions from the world frame by hand.

#include <cstdio>
#include <vector>

#include "kernel/window/svg_window.h"

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  mero::svg_window w(400, 300, "scene");
  w.init(0, 10, 0);  // 40 pixels per unit, y from 0 to 7.5
  w.set_color(mero::color::blue);
  w.draw_filled_polygon(
      {mero::point(1, 1), mero::point(4, 1), mero::point(4, 4), mero::point(1, 4)});
  w.set_color(mero::color::red);
  w.draw_disc(7, 5, 1);
  w.set_color(mero::color::green);
  w.set_line_width(5);
  w.draw_segment(0, 7, 10, 7);
  w.set_color(mero::color::black);
  w.draw_ctext(5, 2, "mero");
  std::vector<unsigned char> yellow(4 * 4 * 3);
  for (std::size_t i = 0; i < yellow.size(); i += 3) {
    yellow[i] = 240;
    yellow[i + 1] = 208;
    yellow[i + 2] = 0;
  }
  w.put_pixrect(8, 2, mero::window::create_pixrect(4, 4, yellow.data()));
  if (!w.save(argv[1])) {
    std::fprintf(stderr, "cannot write %s\n", argv[1]);
    return 1;
  }
  return 0;
}
