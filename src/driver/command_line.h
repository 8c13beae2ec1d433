#pragma once
// The program's entry: takes the argument vector apart and runs one problem.

namespace mero {

// Returns 0 on every path that returns; errors end the process through the reporters.
int run_command_line(int argc, char** argv);

}  // namespace mero
