#pragma once
// The front-end bridge: started without arguments, the program becomes a Tcl/Tk application
// that runs the script tk/merofront found beside it, and offers it the commands random and
// RestrInt.

#include <string>

struct Tcl_Interp;

namespace mero {

// Creates the interpreter and its commands, starts Tcl and Tk, finds and runs the script and
// enters the event loop. Returns 0 when the last window closes or when there is no script; ends
// the process with status 1 when Tk has no main window (no display).
int start_front_end(int argc, char** argv);

// The two commands, as the bridge creates them (tests create them on their own interpreter).
void create_front_end_commands(Tcl_Interp* interp);

// 1 when the outlines of two figures of the restriction file cross or touch, else 0: for each
// pair of figures in file order, the later one's outline (as a kernel polygon or circle) against
// the earlier one's crossing operation. Figures nested without touching do not count; barriers
// add nothing. The file is read with the restriction reader, whose errors end the process.
int restrictions_intersect(const std::string& file);

}  // namespace mero
