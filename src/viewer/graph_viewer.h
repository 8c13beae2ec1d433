#pragma once
// The result viewers of problems on graphs: the window of a single-criterion result
// (view_graph_result) and that of a result with Q criteria (view_pareto_result), which share
// their buttons and their drawing routine draw_result_graph; and the same first picture written
// as SVG without a screen.

#include <string>
#include <vector>

#include "kernel/point.h"
#include "kernel/window/window.h"
#include "viewer/graph_scene.h"

namespace mero {

// The world frame: the box of the node positions enlarged by a fifth of its larger side left,
// right and below; above, a quarter of the height is added for the legend, and the x range is
// lengthened (both ends alike) if the result does not fit the window's shape.
struct graph_frame {
  double xmin, xmax, ymin;
  double span;  // the length of the x range
};
graph_frame graph_frame_of(const std::vector<point>& positions, int width, int height);

struct graph_view_flags {
  bool node_weights = false;  // node labels list the weights instead of the name or number
  bool edge_weights = false;  // each edge carries its length at its middle
};

// Nodes at their positions (see node_positions) with labels, the edges, the optima in the colour
// of optima (a node, a whole edge, a point on an edge; for Q criteria the stretches drawn thick)
// and the legend: the label and "=Opt".
void draw_result_graph(window& w, const graph_scene& scene, const std::vector<point>& positions,
                       graph_view_flags flags = {});

// Open the viewer and return when it is closed; return at once when no window can be shown.
void view_graph_result(const graph_scene& scene);
void view_pareto_result(const graph_scene& scene);

// The viewer's first picture written as SVG to path; false if the file cannot be written.
bool write_graph_picture(const graph_scene& scene, const std::string& path);

}  // namespace mero
