#pragma once
// Draws the editor's graph into any window: the screen window of the editor and the SVG
// window of its "Windows Metafile" export give the same figures.

#include <set>

#include "graphedit/ge_graph.h"
#include "kernel/window/window.h"

namespace mero {

struct drawing_marks {
  std::set<node> nodes;   // selected nodes, drawn red
  std::set<edge> edges;   // selected edges, drawn red
  node edge_start = nullptr;  // the node an edge is being drawn from, drawn green
};

// The nearest of the window's colours to a 24-bit RGB value.
color nearest_color(int rgb);

// Edges first (polyline through the bends, arrow heads when the graph is directed), then the
// nodes as ovals or rectangles of their radii with their labels.
void draw_graph(window& w, const ge_graph& x, const drawing_marks& marks = {});

// The label a node shows: its text, its place in list order (from 1, in the graph's node index
// format), or its data.
std::string node_label_text(const ge_graph& x, node v, int index);

}  // namespace mero
