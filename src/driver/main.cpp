#include "driver/command_line.h"
#include "driver/problem_run.h"
#include "driver/window_program.h"

// The program: a console run is done here; the front end (the program name alone) and every run
// that needs a window, a picture or the results are done by the window program, which replaces
// this one with the same arguments before a data file has been read or a report written.
int main(int argc, char** argv) {
  mero::defer_window_program(argv);
  if (argc <= 1) mero::start_window_program();
  const mero::run_request request =
      mero::parse_command_line(std::vector<std::string>(argv + 1, argv + argc));
  if (mero::needs_window_program(request)) mero::start_window_program();
  mero::begin_console_run();
  mero::run_problem(request);
  return 0;
}
