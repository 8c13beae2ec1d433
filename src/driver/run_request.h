#pragma once
// What the command line hands to the problem run.

#include <optional>
#include <string>

#include "driver/algorithm_table.h"

namespace mero {

struct run_request {
  int algorithm = no_algorithm;
  std::string data_file;
  // The restriction file, the matrix file or the text of N: -r, -m and -n share this slot and the
  // last one wins. Unset when none of them was given.
  std::optional<std::string> second_file;
  std::string gauge_file;
  std::string output_file;  // empty: the report goes to standard output
  std::string picture_file;  // --picture=FILE: the viewer's first picture as SVG; empty: none
  std::string results_file;  // --results=FILE: what the viewer's "Save Results" writes; empty: none
  // The p of -p, for solvers that fall back to what -p writes when lpinfo cannot be read.
  std::optional<int> p;
  bool windowed = true;
  bool graph_input = false;
  bool have_gauge = false;
  bool discrete_input = false;
};

}  // namespace mero
