#pragma once
// What the planar result viewer is given: the label, the value, the locations, the optima, the
// restrictions and barriers, the gauge count, the situations and the algorithm number. The run
// builds it from its own records; the viewer only reads it. Header only, so that the run (in
// libmero) can hand it over without linking the window layer.

#include <list>
#include <string>

#include "model/facilities.h"
#include "model/location.h"

namespace mero {

struct planar_scene {
  std::string label;
  double value = 0.0;
  const facilities* problem = nullptr;                  // the locations with their names
  const std::list<location>* results = nullptr;          // the optima
  const restriction_list* restrictions = nullptr;        // null or empty: none drawn
  const std::list<location>* situations = nullptr;       // gauge problems only
  int gauge_count = 0;
  int algorithm = 0;
};

}  // namespace mero
