#pragma once
// Everything one problem run owns for its whole length: one object of each kind of problem, all
// empty at the start, whichever kind the command line asks for.

#include <list>
#include <string>
#include <vector>

#include "discrete/discrete_problem.h"
#include "driver/algorithm_table.h"
#include "driver/run_request.h"
#include "gauge/polygauge.h"
#include "kernel/matrix.h"
#include "model/facilities.h"
#include "network/location_graph.h"
#include "network/multicriteria.h"
#include "restriction/restriction.h"

namespace mero {

struct run_context {
  explicit run_context(const run_request& r) : request(r) {}

  const run_request& request;
  facilities problem;              // planar and gauge data; the graph reader fills it too
  std::list<location> results;     // optima of planar problems, for the report and the viewer
  std::list<location> situations;  // optima of gauge problems
  std::vector<int> gauge_numbers;  // from a GaugeLoc file
  std::vector<polygauge> gauges;   // the gauge file of gauge problems, kept for the viewer
  std::string label;               // set by the run from the table after the solver
  label_values label_args;         // filled by the handler for its label
  std::vector<double> objective;   // sized by the run; only entry 0 is written and reported
  matrix new_facility_costs;       // the dependency matrix of multifacility problems (-m)
  discrete_problem discrete;       // the data and result of discrete problems (-d first)
  location_graph graph;            // the graph of network problems (-g), with their optima
  restriction_list restrictions;   // the figures of the -r file, for restricted problems
  pareto_result pareto;            // the pieces and vectors of multicriteria problems (140-157)
};

}  // namespace mero
