#include "graphedit/simple_layouts.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

namespace mero {

void circular_layout(ge_graph& x, point centre, double radius) {
  int n = x.g.number_of_nodes();
  int k = 0;
  for (node v = x.g.first_node(); v != nullptr; v = graph::succ_node(v), ++k) {
    if (n == 1) {
      x.g.inf(v).position = centre;
      break;
    }
    double angle = std::numbers::pi / 2 - 2 * std::numbers::pi * k / n;
    x.g.inf(v).position =
        point(centre.xcoord() + radius * std::cos(angle), centre.ycoord() + radius * std::sin(angle));
  }
  remove_bends(x);
}

void random_layout(ge_graph& x, double xmin, double ymin, double xmax, double ymax,
                   unsigned seed) {
  std::mt19937 random(seed);
  std::uniform_real_distribution<double> across(xmin, xmax), up(ymin, ymax);
  for (node v = x.g.first_node(); v != nullptr; v = graph::succ_node(v)) {
    double px = across(random);
    x.g.inf(v).position = point(px, up(random));
  }
  remove_bends(x);
}

layout_box position_box(const ge_graph& x) {
  if (x.g.first_node() == nullptr) return {};
  layout_box box{1e300, 1e300, -1e300, -1e300};
  for (node v = x.g.first_node(); v != nullptr; v = graph::succ_node(v)) {
    const point& p = x.g.inf(v).position;
    box.xmin = std::min(box.xmin, p.xcoord());
    box.xmax = std::max(box.xmax, p.xcoord());
    box.ymin = std::min(box.ymin, p.ycoord());
    box.ymax = std::max(box.ymax, p.ycoord());
  }
  return box;
}

void remove_bends(ge_graph& x) {
  for (edge e = x.g.first_edge(); e != nullptr; e = graph::succ_edge(e)) {
    ge_edge& a = x.g.inf(e);
    a.bends.clear();
    a.source_anchor = point();
    a.target_anchor = point();
  }
}

}  // namespace mero
