#pragma once
// The graphs of the editor's "Create" menu. Each replaces the graph by a new one with positions
// for drawing inside the box (xmin, ymin)-(xmax, ymax); random choices come from a generator
// seeded with seed, so equal arguments give equal graphs. Edges are undirected in meaning and
// stand once, from the earlier node to the later one unless said otherwise.

#include "graphedit/ge_graph.h"
#include "graphedit/simple_layouts.h"

namespace mero {

// Every pair of the n nodes joined once; the nodes on a circle.
void complete_graph(ge_graph& x, int n, const layout_box& box);
// m different pairs of the n nodes drawn at random (at most n (n - 1) / 2); nodes on a circle.
void random_graph(ge_graph& x, int n, int m, unsigned seed, const layout_box& box);
// A triangulation of n nodes (see triangulated_graph) of which m edges are kept, drawn at random;
// planar by construction, drawn straight-line without crossings.
void random_planar_graph(ge_graph& x, int n, int m, unsigned seed, const layout_box& box);
// Grown from one edge by n - 2 random steps, each adding a node: either an edge (v, w) is cut by
// the new node (series), or the new node is joined to both ends of an edge (parallel path).
void random_series_parallel_graph(ge_graph& x, int n, unsigned seed, const layout_box& box);
// Every node of the a-side joined to every node of the b-side; the sides in two columns.
void complete_bipartite_graph(ge_graph& x, int a, int b, const layout_box& box);
// m different pairs between an a-side and a b-side, drawn at random.
void random_bipartite_graph(ge_graph& x, int a, int b, int m, unsigned seed,
                            const layout_box& box);
// n random points joined by straight segments, shortest first, each segment kept when it crosses
// no kept one, until m are kept or none is left: a plane drawing.
void planar_graph(ge_graph& x, int n, int m, unsigned seed, const layout_box& box);
// A maximal planar graph on n >= 3 nodes (3n - 6 edges): a triangle, then each new node put into
// a random face of the triangles and joined to its three corners; drawn straight-line.
void triangulated_graph(ge_graph& x, int n, unsigned seed, const layout_box& box);
// The rows x columns grid, node (r, c) joined to (r, c + 1) and (r + 1, c).
void grid_graph(ge_graph& x, int rows, int columns, const layout_box& box);

}  // namespace mero
