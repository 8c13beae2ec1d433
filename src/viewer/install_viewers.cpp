#include "viewer/install_viewers.h"

#include "driver/viewer_hooks.h"
#include "viewer/graph_viewer.h"
#include "viewer/planar_viewer.h"

namespace mero {

void install_viewers() {
  viewer_hooks& hooks = installed_viewers();
  hooks.show_planar = view_planar_result;
  hooks.picture_planar = write_planar_picture;
  hooks.picture_graph = write_graph_picture;
}

}  // namespace mero
