#pragma once
// The texts of a result on a graph: the lines that "View Results" lists and the file that
// "Save Results" (and --results) writes, for one objective and for Q criteria alike.

#include <ostream>
#include <string>
#include <vector>

#include "kernel/point.h"
#include "viewer/graph_scene.h"

namespace mero {

// The node positions the viewer draws with: the locations when there is one for each node,
// otherwise the layout of the graph (a file of "NC" nodes).
std::vector<point> node_positions(const graph_scene& scene);
// True when the locations give every node a place.
bool locations_place_nodes(const graph_scene& scene);

// One objective: a line for each optimum with its node numbers (from 1), its position on an edge,
// the coordinates of the point and the value. Q criteria: a line for each piece with its
// objective vector, or its stretch and the vectors at both ends joined by "und".
std::vector<std::string> graph_result_lines(const graph_scene& scene,
                                            const std::vector<point>& positions);
std::vector<std::string> pareto_result_lines(const graph_scene& scene);

// The graph as a graph file, "begin {results}" with a line for each optimum or piece,
// "end {results}", then the objective value, or a line of the vector for each piece end.
void write_graph_results(std::ostream& out, const graph_scene& scene);

}  // namespace mero
