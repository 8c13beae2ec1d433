#pragma once
// The window layer, the result viewers and the front-end bridge need Tk, Tcl and X11. They are
// linked into a program of their own beside mero (mero_window), so that mero itself loads none of
// them and, where it is built as a static program, starts without the dynamic loader at all. A run
// that needs a window, a picture, the results or the front end replaces mero by that program with
// the same arguments, before the run has done anything, and the window program does the whole run.

#include "driver/run_request.h"

namespace mero {

inline constexpr const char* window_program_file = "mero_window";

// Keeps the arguments for the window program and puts in place a report sink and a viewer
// loader that start it when a report asks for a panel in a windowed run or a viewer is first used.
// Before the problem runs, that can only be a report of the command line, which the window
// program makes again from the same arguments.
void defer_window_program(char** argv);

// Whether the run of request uses the window layer: a windowed run, a picture or the results.
bool needs_window_program(const run_request& request);

// Marks the run as begun in mero itself: from then on the window program is not started (it would
// do the run a second time) and a need for it ends the run with the driver's message.
void begin_console_run();

// Replaces the process by the window program from the program's own folder, with the arguments
// given to defer_window_program. If it cannot be started, the run ends with the driver's message
// on the console.
[[noreturn]] void start_window_program();

}  // namespace mero
