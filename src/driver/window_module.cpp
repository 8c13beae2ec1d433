#include "driver/window_module.h"

#include <dlfcn.h>
#include <unistd.h>

#include <string>

#include "driver/driver_messages.h"
#include "driver/viewer_hooks.h"

namespace mero {

namespace {

enum class module_state { not_tried, loaded, failed };
module_state state = module_state::not_tried;
window_module_entries entries;
std::string failure;  // the loader's reason, once it failed

// The folder of the running program, from /proc/self/exe, so that a build tree, an installed
// copy and a program started through a link all find the module built beside them.
std::string program_folder() {
  std::string path(4096, '\0');
  const ssize_t n = readlink("/proc/self/exe", path.data(), path.size());
  if (n <= 0 || static_cast<std::size_t>(n) >= path.size()) return ".";
  path.resize(static_cast<std::size_t>(n));
  return path.substr(0, path.rfind('/'));
}

// Opens the module and installs it; the loader's reason when that fails, else "". Every symbol
// is bound at once, so that a module that does not fit the program fails here and not later.
std::string open_module() {
  const std::string path = program_folder() + "/" + window_module_file;
  void* module = dlopen(path.c_str(), RTLD_NOW);
  if (!module) return dlerror();
  void* install = dlsym(module, window_module_install_name);
  if (!install) return dlerror();
  reinterpret_cast<decltype(&mero_install_window_module)>(install)(&entries);
  if (!entries.windowed_sink || !entries.start_front_end) return path + ": incomplete install";
  return "";
}

// Until the module is loaded: the console face of every report, except for one that asks for a
// panel in a windowed run, which loads the module (whose install puts the windowed faces in
// place) and goes to them. Once the module failed, the console face says that and everything
// after it.
void deferred_report_sink(const report& r) {
  const bool panel = r.what != report::kind::end && r.window && windowed_mode;
  if (!panel || state == module_state::failed) {
    default_report_sink(r);
    return;
  }
  load_window_module().windowed_sink(r);
}

void install_viewers_from_module() { load_window_module(); }

}  // namespace

const window_module_entries& load_window_module() {
  if (state == module_state::loaded) return entries;
  if (state == module_state::not_tried) {
    failure = open_module();
    state = failure.empty() ? module_state::loaded : module_state::failed;
    if (state == module_state::loaded) return entries;
  }
  report_error(driver_messages::window_module_unloadable, {failure});
}

void defer_window_module() {
  set_report_sink(deferred_report_sink);
  defer_viewers(install_viewers_from_module);
}

}  // namespace mero
