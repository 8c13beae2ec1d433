#pragma once

namespace mero {

// Started without arguments, the program runs the Tcl/Tk front end found beside it.
int start_front_end(int argc, char** argv);

}  // namespace mero
