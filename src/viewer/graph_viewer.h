#pragma once
// The picture of a result on a graph: the nodes at their locations with their numbers or names,
// the edges, and the optima in the colour of optima (a node, a whole edge, a point on an edge).

#include <string>

#include "kernel/window/window.h"
#include "viewer/graph_scene.h"

namespace mero {

// The world frame: the box of the locations enlarged by a fifth of its larger side left, right
// and below; above, a quarter of the height is added for the legend, and the x range is
// lengthened (both ends alike) if the result does not fit the window's shape.
struct graph_frame {
  double xmin, xmax, ymin;
  double span;  // the length of the x range
};
graph_frame graph_frame_of(const facilities& locations, int width, int height);

void draw_result_graph(window& w, const graph_scene& scene);

// The picture written as SVG to path; false if the file cannot be written.
bool write_graph_picture(const graph_scene& scene, const std::string& path);

}  // namespace mero
