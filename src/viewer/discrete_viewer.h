#pragma once
// The discrete result viewer: demand and supply points, the assignment of each demand point to its
// supply point, the open supply points marked "=Opt", and optionally the demands and the fixed
// costs; its panels list the result and the cost matrix. The first picture can also be written as
// SVG without a screen.

#include <ostream>
#include <string>
#include <vector>

#include "kernel/window/window.h"
#include "viewer/discrete_scene.h"

namespace mero {

struct discrete_view_flags {
  bool show_demand = false;     // the first weight of each demand point
  bool show_fix_costs = false;  // the fixed cost of each supply point
};

// Fits the frame to the box of all points (0.2 of the larger side around it, a further 0.25 of it
// above for the labels) and draws the points with their names, the assignment lines and "=Opt"
// beside each open supply point.
void draw_discrete_result(window& w, const discrete_scene& scene, discrete_view_flags flags = {});

// "View Results": the heading, the value, a line for each open supply point (with its fixed cost
// unless the supply points are the demand points). "View Cost Matrix": a line for each demand
// point with its costs.
std::vector<std::string> discrete_result_lines(const discrete_scene& scene);
std::vector<std::string> cost_matrix_lines(const discrete_problem& problem);

// "begin {results}", "OBJECTIVE VALUE: ", the value, each open supply point as a location line,
// "end {results}".
void write_discrete_results(std::ostream& out, const discrete_scene& scene);

// Opens the viewer and returns when it is closed; returns at once when no window can be shown.
void view_discrete_result(const discrete_scene& scene);

// The first picture as SVG; false if the file cannot be written.
bool write_discrete_picture(const discrete_scene& scene, const std::string& path);

// "Load Example": reads a discrete file into problem; 3104 "Can't open file" when it cannot be
// opened. A file without supply points makes the demand points the supply points.
void load_discrete_example(const std::string& path, discrete_problem& problem);
// The panel of it: asks for the file ("file:", ok and "cancel") and loads it; false on cancel.
bool load_example_panel(const window& parent, discrete_problem& problem);

}  // namespace mero
