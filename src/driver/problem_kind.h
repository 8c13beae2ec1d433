#pragma once
// How a kind of main file attaches to the run. The files on the command line choose the kind (a
// gauge file, a graph file, a discrete file, else a location file); its record loads the file,
// tells how many objective values the problem has, writes the value block and the optima of the
// report, and (once viewers exist) shows the result in a window. The run walks its fixed order
// through these entries and knows no kind; each kind keeps its record in its own
// src/driver/<kind>_kind.cpp.

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

#include "driver/driver_messages.h"
#include "driver/run_request.h"
#include "kernel/reporters.h"

namespace mero {

struct run_context;

struct problem_kind {
  // True when the request's files make a problem of this kind.
  bool (*selects)(const run_request& request);
  void (*load)(run_context& ctx);
  // The number of objective values, known once the file is loaded.
  std::size_t (*objective_size)(const run_context& ctx);
  // The block after the classification: the value of the solved problem.
  void (*write_value)(const run_context& ctx, double value, std::ostream& report);
  // The optima, after the value block.
  void (*write_optima)(run_context& ctx, std::ostream& report);
  // Shows the solved problem in its viewer in a windowed run, after "Open Window"; returns when
  // the user closes it. Null while the kind has no viewer: the window is only announced.
  void (*show)(run_context& ctx) = nullptr;
  // Writes the picture the viewer would show first to path (--picture); null while the kind has
  // no viewer.
  void (*picture)(run_context& ctx, const std::string& path) = nullptr;
  // Writes what the viewer's "Save Results" writes to path (--results); null while the kind has
  // no viewer.
  void (*results)(run_context& ctx, const std::string& path) = nullptr;
};

problem_kind gauge_kind();
problem_kind graph_kind();
problem_kind discrete_kind();
problem_kind planar_kind();

// The kind of the request: the first of gauge, graph, discrete and planar that selects it (planar
// takes every request).
const problem_kind& kind_of(const run_request& request);

// The value block of planar problems, which graph problems share:
// "begin {objective value} ", the value, "end {objective value}", each on its own line.
void write_objective_value(double value, std::ostream& report);

// Opens path and lets write fill it (--results); a file that cannot be written is error 1516.
void write_results_file(const std::string& path, const std::function<void(std::ostream&)>& write);

// The picture (--picture) and the results (--results) of a scene through the viewer's installed
// writer; nothing while no viewer is installed. A picture that cannot be written is error 1515.
template <typename Scene>
void write_scene_picture(bool (*draw)(const Scene&, const std::string&), const Scene& scene,
                         const std::string& path) {
  if (draw && !draw(scene, path)) report_error(driver_messages::picture_unwritable, {path});
}
template <typename Scene>
void write_scene_results(void (*write)(std::ostream&, const Scene&), const Scene& scene,
                         const std::string& path) {
  if (write) write_results_file(path, [&](std::ostream& out) { write(out, scene); });
}

}  // namespace mero
