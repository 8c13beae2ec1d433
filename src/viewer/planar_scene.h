#pragma once
// What the planar result viewer is given: the label, the value, the locations, the optima, the
// restrictions and barriers, the gauges, the situations and the algorithm number. The run
// builds it from its own records; the viewer only reads it. Header only, so that the run (in
// libmero) can hand it over without linking the window layer.

#include <list>
#include <string>
#include <vector>

#include "gauge/polygauge.h"
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
  const std::vector<polygauge>* gauges = nullptr;   // gauge problems: the gauges of the file
  const std::vector<int>* gauge_numbers = nullptr;  // the gauge of each location, in list order
  int algorithm = 0;
};

}  // namespace mero
