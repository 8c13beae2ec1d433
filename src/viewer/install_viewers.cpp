#include "viewer/install_viewers.h"

#include "driver/viewer_hooks.h"
#include "viewer/discrete_viewer.h"
#include "viewer/graph_results.h"
#include "viewer/graph_viewer.h"
#include "viewer/planar_viewer.h"

namespace mero {

void install_viewers() {
  viewer_hooks& hooks = installed_viewers();
  hooks.show_planar = view_planar_result;
  hooks.picture_planar = write_planar_picture;
  hooks.picture_graph = write_graph_picture;
  hooks.show_graph = view_graph_result;
  hooks.show_pareto = view_pareto_result;
  hooks.show_discrete = view_discrete_result;
  hooks.picture_discrete = write_discrete_picture;
  hooks.results_planar = write_planar_results;
  hooks.results_graph = write_graph_results;
  hooks.results_discrete = write_discrete_results;
}

}  // namespace mero
