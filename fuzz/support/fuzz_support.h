#pragma once
// What every harness shares. A harness is one file fuzz/<name>_fuzz.cpp that defines
// LLVMFuzzerTestOneInput and hands the input to one reader (or to a whole run) through
// fuzz_input_file and run_reporting. The reporters and the kernel handler throw here, so that a
// message of the program is a normal end of an input; anything else that leaves the reader (a
// crash, a sanitizer report, a foreign exception, a leak) is a finding.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "kernel/reporters.h"

namespace mero::fuzz {

// Thrown by the harnesses' sink for every report that ends the process.
struct reported {
  report what;
};

// The folder of this process where harnesses write their inputs (made on first use, with TMPDIR
// pointing at it so that files the program writes beside its temporaries land there too).
const std::string& scratch_folder();

// Empties the scratch folder, so that no file of one input changes the outcome of the next.
void clear_scratch_folder();

// Writes data to the file name in the scratch folder and returns its path.
std::string fuzz_input_file(std::string_view data, const std::string& name = "input");

// Runs body with the throwing reporters installed; a report of the program ends it quietly.
// Returns true when body ran to its end without a report.
template <class Body>
bool run_reporting(Body&& body);

void install_throwing_reporters();

// Stops the process with a finding: the harness saw a result the program should never give.
[[noreturn]] void finding(const char* what);

template <class Body>
bool run_reporting(Body&& body) {
  install_throwing_reporters();
  try {
    body();
    return true;
  } catch (const reported&) {
    return false;
  }
}

}  // namespace mero::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
