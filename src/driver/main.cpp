#include "driver/command_line.h"
#include "driver/window_module.h"

// The program: the windowed faces of the reporters and the viewers come from the window module
// at their first need, then the program name alone starts the front end (from the same module)
// and anything else runs one problem.
int main(int argc, char** argv) {
  mero::defer_window_module();
  if (argc <= 1) return mero::load_window_module().start_front_end(argc, argv);
  return mero::run_command_line(argc, argv);
}
