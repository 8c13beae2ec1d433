#pragma once
// The result viewers draw through the window layer, which libmero does not link: the window
// program installs them here at its start, and mero starts the window program at their first use
// (driver/window_program.h). Without them a windowed run only announces its window and --picture
// and --results write nothing.

#include <ostream>
#include <string>

#include "viewer/discrete_scene.h"
#include "viewer/graph_scene.h"
#include "viewer/planar_scene.h"

namespace mero {

struct viewer_hooks {
  // Shows the planar result and returns when the user closes the viewer.
  void (*show_planar)(const planar_scene& scene) = nullptr;
  // Writes the viewer's first picture to path; false if the file cannot be written.
  bool (*picture_planar)(const planar_scene& scene, const std::string& path) = nullptr;
  // The same for a result on a graph.
  bool (*picture_graph)(const graph_scene& scene, const std::string& path) = nullptr;
  // The viewers of results on graphs with one objective and with Q criteria, and the discrete
  // viewer with its picture.
  void (*show_graph)(const graph_scene& scene) = nullptr;
  void (*show_pareto)(const graph_scene& scene) = nullptr;
  void (*show_discrete)(const discrete_scene& scene) = nullptr;
  bool (*picture_discrete)(const discrete_scene& scene, const std::string& path) = nullptr;
  // What each viewer's "Save Results" writes.
  void (*results_planar)(std::ostream& out, const planar_scene& scene) = nullptr;
  void (*results_graph)(std::ostream& out, const graph_scene& scene) = nullptr;
  void (*results_discrete)(std::ostream& out, const discrete_scene& scene) = nullptr;
};

// The hooks, after the installer given to defer_viewers (if any) has run once.
viewer_hooks& installed_viewers();

// install runs at the first call of installed_viewers, so that a run that never uses a viewer
// never loads them.
void defer_viewers(void (*install)());

}  // namespace mero
