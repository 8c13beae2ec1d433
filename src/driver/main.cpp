#include "driver/command_line.h"
#include "driver/front_end/front_end.h"
#include "kernel/window/windowed_faces.h"
#include "viewer/install_viewers.h"

// The program: the reporters get their windowed faces and the run its viewers, then the program
// name alone starts the front end and anything else runs one problem.
int main(int argc, char** argv) {
  mero::install_windowed_faces();
  mero::install_viewers();
  if (argc <= 1) return mero::start_front_end(argc, argv);
  return mero::run_command_line(argc, argv);
}
