#pragma once
// What the discrete result viewer is given: the label, the objective value and the solved
// problem with its open supply points and assignment. Header only, like the planar scene.

#include <string>

#include "discrete/discrete_problem.h"

namespace mero {

struct discrete_scene {
  std::string label;
  double value = 0.0;
  const discrete_problem* problem = nullptr;
};

}  // namespace mero
