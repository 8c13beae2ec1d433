#pragma once
// Planar drawings that are not straight-line: the visibility representation (nodes as
// horizontal segments, edges as vertical ones) and the orthogonal drawing built on it (edges as
// chains of horizontal and vertical pieces). Both work on the simple undirected graph underneath
// an editor graph: loops are dropped and parallel edges merged, as in the other planar layouts.

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

#include "graphedit/ge_graph.h"
#include "kernel/point.h"

namespace mero {

// Places are node places in list order; the edges are those of simple_pairs, in that order.
// All coordinates are whole numbers.
struct visibility_representation {
  std::vector<int> row;          // per node: the height of its segment
  std::vector<int> left, right;  // per node: the ends of its segment, left <= right
  std::vector<std::pair<std::size_t, std::size_t>> ends;  // per edge: its two node places
  std::vector<int> column;  // per edge: where its vertical segment runs between its ends' rows
};

// A visibility representation of a planar graph (Tamassia and Tollis 1986; Rosenstiehl and
// Tarjan 1986): the graph made maximal planar and numbered by a canonical ordering, which is an
// st-numbering; rows are longest paths from s, columns longest paths in the dual from the face
// beside (s, t). Segments span the columns of the node's own edges only, so a node with one
// edge or none is a point. O(n) after Boost's augmentation and ordering. Empty if not planar.
std::optional<visibility_representation> make_visibility_representation(const graph& g);

// An orthogonal drawing on the grid: per node its point, per edge of ends its route from the
// node of ends.first to that of ends.second, end points and corners included.
struct orthogonal_drawing {
  std::vector<point> at;
  std::vector<std::pair<std::size_t, std::size_t>> ends;
  std::vector<std::vector<point>> route;
};

// Tamassia and Tollis's orthogonal drawing (1989) from a visibility representation of a graph
// of maximum degree 4: each node shrinks to one point of its segment, at doubled column and
// tripled row, and its edges reach their columns through the four sides of the node, with jogs
// one unit above or below its row where only its own edges run; the fourth edge of a node whose
// edges all go up (or all down) is led round the left end of its segment. O(n); at most four
// bends per edge. Precondition: no node has more than four edges in r.
orthogonal_drawing make_orthogonal_drawing(const visibility_representation& r);

enum class planar_layout_status { drawn, not_planar, degree_above_four };

// The editor's "Visibility Representation": each node at the middle of its segment, each edge
// drawn along its end nodes' rows to its column and vertically between them, so that the
// horizontal pieces at a node make up its segment. Fitted into the box; loops keep no bends.
// Nothing moves when the graph is not planar.
planar_layout_status visibility_layout(ge_graph& x, double xmin, double ymin, double xmax,
                                       double ymax);

// The editor's "Orthogonal" layout: the drawing of make_orthogonal_drawing fitted into the box;
// a parallel edge takes the route of the first edge between its nodes, a loop keeps no bends.
// Nothing moves when the graph is not planar or a node has more than four neighbours.
planar_layout_status orthogonal_layout(ge_graph& x, double xmin, double ymin, double xmax,
                                       double ymax);

}  // namespace mero
