#pragma once
// The window layer, the result viewers and the front-end bridge need Tk, Tcl and X11, whose
// loading and relocation would be most of the start of a console run. They are built into a
// module beside the program (mero_window.so) that the program loads at the first need: a report
// that asks for a panel in a windowed run, a viewer (window, picture or results) or the front end.

#include "kernel/reporters.h"

namespace mero {

// What the module hands back when it is installed.
struct window_module_entries {
  report_sink windowed_sink = nullptr;  // the reporters' windowed faces
  int (*start_front_end)(int argc, char** argv) = nullptr;
};

// The module's one export, found by this name: puts the windowed faces of the reporters in place,
// installs the viewers into the run's hooks and fills entries.
extern "C" void mero_install_window_module(window_module_entries* entries);
inline constexpr const char* window_module_file = "mero_window.so";
inline constexpr const char* window_module_install_name = "mero_install_window_module";

// Loads the module from the program's own folder and installs it, once. A module that cannot be
// loaded ends the process with the driver's message on the console.
const window_module_entries& load_window_module();

// Puts in place a report sink and a viewer loader that load the module only when a report asks
// for a panel in a windowed run or the run first uses its viewers.
void defer_window_module();

}  // namespace mero
