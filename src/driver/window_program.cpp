#include "driver/window_program.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <string>

#include "driver/driver_messages.h"
#include "driver/viewer_hooks.h"
#include "kernel/reporters.h"

namespace mero {

namespace {

char** arguments = nullptr;
bool console_run_begun = false;

// The folder of the running program, from /proc/self/exe, so that a build tree, an installed
// copy and a program started through a link all find the window program built beside them.
std::string program_folder() {
  std::string path(4096, '\0');
  const ssize_t n = readlink("/proc/self/exe", path.data(), path.size());
  if (n <= 0 || static_cast<std::size_t>(n) >= path.size()) return ".";
  path.resize(static_cast<std::size_t>(n));
  return path.substr(0, path.rfind('/'));
}

// Until then every report has its console face, except one that asks for a panel in a windowed
// run: that one is made again by the window program.
void deferred_report_sink(const report& r) {
  const bool panel = r.what != report::kind::end && r.window && windowed_mode;
  if (!panel) {
    default_report_sink(r);
    return;
  }
  start_window_program();
}

void start_for_viewers() { start_window_program(); }

}  // namespace

void defer_window_program(char** argv) {
  arguments = argv;
  set_report_sink(deferred_report_sink);
  defer_viewers(start_for_viewers);
}

bool needs_window_program(const run_request& request) {
  return request.windowed || !request.picture_file.empty() || !request.results_file.empty();
}

void begin_console_run() { console_run_begun = true; }

void start_window_program() {
  const std::string path = program_folder() + "/" + window_program_file;
  std::string reason = path + ": the run has begun without it";
  if (!console_run_begun) {
    char* none[] = {nullptr};
    execv(path.c_str(), arguments ? arguments : none);
    reason = path + ": " + std::strerror(errno);
  }
  // The message itself must not ask for a panel again.
  windowed_mode = false;
  set_report_sink(default_report_sink);
  report_error(driver_messages::window_program_unstartable, {reason});
}

}  // namespace mero
