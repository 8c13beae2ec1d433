#pragma once
// What the graph result viewers are given: the label, the graph with its optima and the locations
// of its nodes (in node order, with their names; empty for a graph without coordinates), the
// objective value of a single-criterion result, and for a result with Q criteria its pieces and
// objective vectors. Header only, like the planar scene.

#include <string>

#include "model/facilities.h"
#include "network/location_graph.h"
#include "network/multicriteria.h"

namespace mero {

struct graph_scene {
  std::string label;
  const location_graph* graph = nullptr;
  const facilities* locations = nullptr;
  double value = 0.0;
  const pareto_result* pareto = nullptr;  // set: the viewer for Q criteria
};

}  // namespace mero
