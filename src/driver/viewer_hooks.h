#pragma once
// The result viewers draw through the window layer, which libmero does not link; the program
// installs them here at its start (as it installs the windowed faces of the reporters). Without
// them a windowed run only announces its window and --picture writes nothing.

#include <string>

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
};

viewer_hooks& installed_viewers();

}  // namespace mero
