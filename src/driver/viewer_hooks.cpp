#include "driver/viewer_hooks.h"

#include <utility>

namespace mero {

namespace {

void (*pending_install)() = nullptr;

}  // namespace

viewer_hooks& installed_viewers() {
  static viewer_hooks hooks;
  // Cleared before it runs: the installer fills the hooks through this same function.
  if (pending_install) std::exchange(pending_install, nullptr)();
  return hooks;
}

void defer_viewers(void (*install)()) { pending_install = install; }

}  // namespace mero
