#include "driver/viewer_hooks.h"

namespace mero {

viewer_hooks& installed_viewers() {
  static viewer_hooks hooks;
  return hooks;
}

}  // namespace mero
