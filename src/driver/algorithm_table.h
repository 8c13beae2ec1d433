#pragma once
// Every algorithm name the command line accepts, by chain, with its number; and the label (the
// five-field classification) reported for each number.

#include <span>
#include <string>
#include <string_view>

namespace mero {

// Which names are valid depends on the files given: A (main file only), N (with a dependency
// matrix), R (with restrictions), G (with gauges), RG (restrictions and gauges).
enum class chain { A, N, R, G, RG };

constexpr int no_algorithm = 999;

struct algorithm_name {
  chain in;
  const char* name;
  int number;
};

// Every name of every chain, in the table's order (the front end's list is made from it).
std::span<const algorithm_name> algorithm_names();

// The number of the name in the chain, or no_algorithm. Names are compared exactly.
int find_algorithm(chain in, std::string_view name);

// What a label with placeholders is formatted with, once the solver has run.
struct label_values {
  int p = 0;         // the lp norm
  double eps = 0.0;  // the tolerance of the Weiszfeld-type iterations
  int count = 0;     // the number of new facilities, N, or (for 140) the number of criteria
};

// The label of the number, formatted; empty for a number that has none.
std::string format_label(int number, const label_values& values);

// Numbers that need p (checked on the command line) and the number N of new facilities.
bool needs_p(int number);
bool needs_n(int number);

}  // namespace mero
