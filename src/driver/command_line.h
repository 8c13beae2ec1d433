#pragma once
// The program's entry: takes the argument vector apart and runs one problem.

#include <string>
#include <vector>

#include "driver/run_request.h"

namespace mero {

// Parses the arguments after the program's name and looks the algorithm up. Errors end the
// process through the reporters; -help and friends print the usage text, which ends it too.
// A -p value is written to lpinfo as soon as it is accepted.
run_request parse_command_line(const std::vector<std::string>& args);

// Runs the problem that the arguments name and returns 0 on every path that returns. Without an
// argument the program starts the front end instead (main does that: it needs Tk).
int run_command_line(int argc, char** argv);

}  // namespace mero
