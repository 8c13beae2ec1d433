#pragma once
// One problem from start to end: output, load, solve, window, report.

#include "driver/run_request.h"

namespace mero {

// Returns only when all went well; every failure ends the process through the reporters.
void run_problem(const run_request& request);

}  // namespace mero
