// The window program: mero with the windowed faces of the reporters, the result viewers and the
// front end. mero starts it in its own place for every run that needs one of them
// (driver/window_program.h); the program name alone starts the front end, anything else runs one
// problem.

#include "driver/command_line.h"
#include "driver/front_end/front_end.h"
#include "kernel/window/windowed_faces.h"
#include "viewer/install_viewers.h"

int main(int argc, char** argv) {
  mero::install_windowed_faces();
  mero::install_viewers();
  if (argc <= 1) return mero::start_front_end(argc, argv);
  return mero::run_command_line(argc, argv);
}
