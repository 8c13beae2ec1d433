#pragma once
// How a problem family attaches to the run: one handler per algorithm number. A handler loads
// what its number needs beyond the main file (a matrix, restrictions, lpinfo, ...), calls its
// solver, leaves the optima where the report finds them (run_context::results for planar
// problems), sets the values its label is formatted with, and returns the objective value.

#include <vector>

namespace mero {

struct run_context;

using family_handler = double (*)(run_context& ctx, int number);

struct family_case {
  int number;
  family_handler solve;
};

// Each family lists its cases in its own src/driver/<family>_cases.cpp.
std::vector<family_case> planar_cases();
std::vector<family_case> multifacility_cases();
std::vector<family_case> network_cases();
std::vector<family_case> multicriteria_cases();
std::vector<family_case> tree_cases();
std::vector<family_case> n_problem_cases();
std::vector<family_case> discrete_cases();
std::vector<family_case> restriction_cases();
std::vector<family_case> line_cases();
std::vector<family_case> gauge_cases();

// All cases; a number missing here behaves as a number without a case.
const std::vector<family_case>& family_cases();

}  // namespace mero
