#pragma once
// The structural tests, repairs and graph layouts behind the editor's "Test", "Make", "Embed"
// and layout menus. Where the Boost Graph Library has the algorithm it is used on the simple
// undirected graph underneath (loops dropped, parallel edges merged); the rest is written here.
// Nodes are taken in list order throughout, so every result is deterministic.

#include <string>
#include <vector>

#include "graphedit/ge_graph.h"
#include "kernel/graph_connectivity.h"

namespace mero {

// ---- tests ----
// No loop and no two edges with the same source and target.
bool is_simple(const graph& g);
// Every edge (v, w) is matched by its own edge (w, v): the edges pair up into reversals.
bool is_bidirected(const graph& g);
// The nodes split into two sides with every edge between them (Boost: is_bipartite).
bool is_bipartite(const graph& g);
// "connected" is the kernel's is_connected, and "Make connected" its make_connected.
// Connected without an articulation point (Boost: articulation_points); two nodes joined by an
// edge count as biconnected.
bool is_biconnected(const graph& g);
// At least four nodes and still connected after taking away any two: O(n^2 (n + m)).
bool is_triconnected(const graph& g);
// Series-parallel in the sense of having no K4 minor: the graph reduces to nothing by deleting
// nodes of degree at most 1, merging parallel edges and replacing a node of degree 2 by one
// edge between its neighbours (Duffin 1965). O(n^2) here.
bool is_series_parallel(const graph& g);
// Boyer and Myrvold's planarity test (Boost: boyer_myrvold_planarity_test).
bool is_planar(const graph& g);

// ---- repairs; each returns the number of edges it added or deleted ----
// Deletes loops and every edge whose source and target an earlier edge already has.
int make_simple(graph& g);
// Makes the graph connected, then, while an articulation point a remains, joins two neighbours
// of a that lie in different blocks around it.
int make_biconnected(graph& g);
// Gives each edge a reversal: an unpaired edge (w, v) if there is one, otherwise a new edge.
int make_bidirected(graph& g);
// Deletes the loops.
int delete_loops(graph& g);

// ---- layouts of the editor's graph; each keeps the nodes inside the box and removes bends ----
// Fruchterman and Reingold's spring embedder (Boost: fruchterman_reingold_force_directed_layout)
// from a random start drawn with seed.
void spring_layout(ge_graph& x, double xmin, double ymin, double xmax, double ymax,
                   unsigned seed);
// A straight-line planar drawing on the grid of de Fraysseix, Pach and Pollack, computed by
// Chrobak and Payne's linear method (Boost: chrobak_payne_straight_line_drawing) on the graph
// made connected, biconnected and maximal planar; the added edges are used only for the drawing.
// False, and nothing moved, when the graph is not planar.
bool straight_line_planar_layout(ge_graph& x, double xmin, double ymin, double xmax, double ymax);
// The spring embedder in a cube (Boost's cube_topology) seen from a fixed direction: the nodes'
// places in space turned by 30 degrees about the vertical and 20 about the horizontal axis and
// projected onto the drawing plane.
void spring_layout_3d(ge_graph& x, double xmin, double ymin, double xmax, double ymax,
                      unsigned seed);
// Moves the nodes and bends so that together they fill the box, keeping the aspect ratio;
// returns the factor by which the drawing was scaled.
double fit_into_box(ge_graph& x, double xmin, double ymin, double xmax, double ymax);
// The faces of the map of the simple undirected graph whose rotation at each node is the order
// of its edges by angle in the drawing ("edges by angle"): each face as its cycle of node places
// in list order, from 0. A plane drawing of a connected graph has m - n + 2 of them.
std::vector<std::vector<int>> faces_by_angle(const ge_graph& x);

}  // namespace mero
