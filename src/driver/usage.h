#pragma once

namespace mero {

// Prints the four usage pages with their "[return]" pauses and ends the process with status 0.
[[noreturn]] void print_usage_and_exit();

}  // namespace mero
