#pragma once
// The editor's drawing as an encapsulated PostScript file: "%%Creator: ORBA GraphEdit", the
// bounding box, the helper dictionary "/ORBA_dict" and the edges and nodes with their labels.

#include <ostream>
#include <string>

#include "graphedit/ge_graph.h"

namespace mero {

// Writes the graph scaled by `scale` (points per world unit) and moved so that its drawing,
// with a margin of 10 points, starts at the origin; the bounding box is that of the drawing.
// Edges are drawn first, from the anchor at the source through the bends to the border of the
// target, with their style and arrow heads; nodes are filled over them. Bezier edges with two
// bends are drawn as one cubic curve, other curved shapes as their polyline. An empty graph gives
// an empty picture with a box of the margin.
void write_postscript(const ge_graph& x, std::ostream& out, double scale = 1);
void write_postscript(const ge_graph& x, const std::string& file_name, double scale = 1);

}  // namespace mero
