#pragma once
// The simple layouts of the editor: nodes on a circle or at random places. They also give a
// drawing to graphs read without positions.

#include "graphedit/ge_graph.h"

namespace mero {

// A box of the drawing plane, lower left to upper right.
struct layout_box {
  double xmin = 0, ymin = 0, xmax = 100, ymax = 100;
};

// The smallest box that holds every node's position; the default box for a graph without nodes.
layout_box position_box(const ge_graph& x);

// Node k of n (list order) at angle 90 - 360 k / n degrees on a circle of the given radius about
// centre: the first node on top, the others clockwise. A single node sits at the centre.
void circular_layout(ge_graph& x, point centre, double radius);

// Every node at a place drawn uniformly from the box, by a generator seeded with seed, so that
// the same seed gives the same drawing.
void random_layout(ge_graph& x, double xmin, double ymin, double xmax, double ymax,
                   unsigned seed);

// Removes every bend and puts the edge anchors back to the node centres.
void remove_bends(ge_graph& x);

}  // namespace mero
