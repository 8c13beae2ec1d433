#pragma once
// Schnyder's straight-line drawing of a planar graph on the grid.

#include <optional>
#include <utility>
#include <vector>

#include "graphedit/ge_graph.h"

namespace mero {

// Schnyder's drawing (1990) of the simple graph underneath g made maximal planar (Boost). A
// Schnyder wood is read off a canonical ordering v1..vn: vk's edges to the leftmost and the
// rightmost of its lower neighbours get colours 1 and 2, the edges from the neighbours in
// between to vk colour 3. Each inner node stands at the numbers of faces in its regions
// opposite v1 and v2, counted from subtree sizes along its paths; v1, v2, vn stand at
// (2n - 5, 0), (0, 2n - 5), (0, 0). O(n) after Boost's augmentation and ordering. Per node in
// list order its grid point; fewer than three nodes lie on the x axis. Empty if not planar.
std::optional<std::vector<std::pair<int, int>>> schnyder_coordinates(const graph& g);

// The editor's "Straight-Line (Schnyder)": the nodes at schnyder_coordinates, fitted into the
// box, bends removed. False, and nothing moved, when the graph is not planar.
bool schnyder_layout(ge_graph& x, double xmin, double ymin, double xmax, double ymax);

}  // namespace mero
