#pragma once
// What the graph result viewer is given: the label, the graph with its optima and the locations
// of its nodes (in node order, with their names). Header only, like the planar scene.

#include <string>

#include "model/facilities.h"
#include "network/location_graph.h"

namespace mero {

struct graph_scene {
  std::string label;
  const location_graph* graph = nullptr;
  const facilities* locations = nullptr;
};

}  // namespace mero
