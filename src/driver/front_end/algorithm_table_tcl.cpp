// Writes the front end's list of algorithms, as Tcl, from the program's own algorithm table, so
// that the front end offers exactly the names the command line accepts. Each entry tells the
// family the front end files it under, the options of the files it needs, and whether it needs p
// or N. All of that follows from the chain of the name and its label.

#include <iostream>
#include <string>
#include <vector>

#include "driver/algorithm_table.h"

namespace mero {
namespace {

std::vector<std::string> fields(const std::string& label) {
  std::vector<std::string> parts(1);
  for (char c : label) {
    if (c == '|')
      parts.emplace_back();
    else
      parts.back() += c;
  }
  return parts;
}

const char* chain_name(chain c) {
  switch (c) {
    case chain::A:
      return "A";
    case chain::N:
      return "N";
    case chain::R:
      return "R";
    case chain::G:
      return "G";
    case chain::RG:
      return "RG";
  }
  return "";
}

// A number without a label (the restricted graph medians) is described by the label its name
// has in chain A.
std::vector<std::string> label_fields(const algorithm_name& a, const label_values& v) {
  std::string label = format_label(a.number, v);
  if (label.empty()) {
    int plain = find_algorithm(chain::A, a.name);
    if (plain != no_algorithm) label = format_label(plain, v);
  }
  std::vector<std::string> f = fields(label);
  f.resize(5);
  return f;
}

struct description {
  std::string family;
  std::vector<std::string> files;
  bool p;
  bool n;
};

description describe(const algorithm_name& a) {
  // The count is formatted as -1 so that a label that carries N shows it.
  const std::vector<std::string> f = label_fields(a, label_values{0, 0.0, -1});
  const std::string& space = f[1];
  const bool graph = space == "G" || space == "G_D" || space == "Tree";
  description d;
  d.files.push_back(graph ? "-g" : space == "D" ? "-d" : "-l");
  if (a.in == chain::N) d.files.push_back("-m");
  if (a.in == chain::R || a.in == chain::RG) d.files.push_back("-r");
  if (a.in == chain::G || a.in == chain::RG) d.files.push_back("-gauge");
  d.p = needs_p(a.number);
  d.n = needs_n(a.number) || (graph && f[0] == "-1");
  if (a.in == chain::R || a.in == chain::RG)
    d.family = "restrictions";
  else if (graph)
    d.family = "networks";
  else if (space == "D")
    d.family = "discrete";
  else if (a.in == chain::G && !f[0].starts_with("1L"))
    d.family = "gauges";
  else if (f[0].starts_with("1L"))
    d.family = "lines";
  else if (a.in == chain::N)
    d.family = "multifacility";
  else
    d.family = f[4] == "max" ? "centers" : "medians";
  return d;
}

void write_table(std::ostream& out) {
  out << "# The algorithms of mero, written at build time from the program's algorithm table.\n"
         "# Each entry: name chain number family files p N. files holds -l, -g or -d for the\n"
         "# main file, then -m, -r and -gauge (the gauge file, given as a second -d).\n"
         "set mero_algorithms {\n";
  for (const algorithm_name& a : algorithm_names()) {
    const description d = describe(a);
    out << "  {" << a.name << ' ' << chain_name(a.in) << ' ' << a.number << ' ' << d.family << " {";
    for (std::size_t i = 0; i < d.files.size(); ++i) out << (i ? " " : "") << d.files[i];
    out << "} " << d.p << ' ' << d.n << "}\n";
  }
  out << "}\n";
}

}  // namespace
}  // namespace mero

int main() {
  mero::write_table(std::cout);
  return 0;
}
