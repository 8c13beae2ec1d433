#include "discrete/discrete_file.h"

#include <filesystem>
#include <fstream>
#include <ostream>
#include <string>

#include "discrete/discrete_messages.h"
#include "discrete/discrete_scan.h"
#include "kernel/number_format.h"
#include "kernel/reporters.h"

namespace mero {

namespace {

matrix cost_matrix(const discrete_scan& scan) {
  const int rows = static_cast<int>(scan.demand.size());
  const int columns = scan.columns();
  matrix cost(rows, columns);
  std::size_t next = 0;
  for (int i = 0; i < rows; ++i)
    for (int j = 0; j < columns; ++j) cost(i, j) = scan.costs[next++];
  return cost;
}

// Each location line: the location's stream form (coordinates and weights, each with a blank),
// then " [", the name and "]".
void write_block(std::ostream& out, const std::list<location>& points,
                 const std::list<std::string>& names) {
  auto name = names.begin();
  for (const location& l : points) {
    out << l << " [" << (name != names.end() ? *name++ : std::string()) << "]\n";
  }
}

// The cost matrix, a row per line, each number followed by a blank. A plain stream gets each row
// as one text, its numbers formatted as the stream would format them, which counts for a large
// matrix; any other stream formats through its own operator.
void write_costs(std::ostream& out, const matrix& cost) {
  const bool plain = plain_number_stream(out);
  const int precision = static_cast<int>(out.precision());
  std::string row;
  char number[general_text_size];
  for (int i = 0; i < cost.dim1(); ++i) {
    if (!plain) {
      for (int j = 0; j < cost.dim2(); ++j) out << cost(i, j) << ' ';
      out << '\n';
      continue;
    }
    row.clear();
    for (int j = 0; j < cost.dim2(); ++j) {
      row.append(number, format_general(cost(i, j), precision, number));
      row += ' ';
    }
    row += '\n';
    out.write(row.data(), static_cast<std::streamsize>(row.size()));
  }
}

}  // namespace

void discrete_problem::read(std::istream& in) {
  discrete_scan scan;
  scan.start(in);
  scan_or_report(scan_discrete_file, scan, discrete_messages::syntax_default.code);

  cost = cost_matrix(scan);
  demand = std::move(scan.demand);
  demand_names = std::move(scan.demand_names);
  supply_is_demand = !scan.has_supply_block;
  if (supply_is_demand) {
    supply = demand;
    supply_names = demand_names;
  } else {
    supply = std::move(scan.supply);
    supply_names = std::move(scan.supply_names);
  }
  opt.clear();
  assignment = matrix(cost.dim1(), cost.dim2());
}

void discrete_problem::write(std::ostream& out) const {
  out << "begin {discrete}\n";
  out << "begin {demand}\n";
  write_block(out, demand, demand_names);
  out << "end {demand}\n";
  if (!supply_is_demand) {
    out << "begin {supply}\n";
    write_block(out, supply, supply_names);
    out << "end {supply}\n";
  }
  out << "begin {costmatrix}\n";
  write_costs(out, cost);
  out << "end {costmatrix}\n";
  out << "end {discrete}\n";
}

void read_discrete_file(const std::string& path, discrete_problem& problem) {
  std::ifstream in = open_scan_input(path, discrete_messages::reader_open);
  problem.read(in);
}

void write_discrete_file(const std::string& path, const discrete_problem& problem) {
  std::ofstream out;
  // A name that cannot be looked up (too long, a loop of links) is a file that cannot be opened,
  // not an exception.
  std::error_code unknown;
  if (!std::filesystem::is_directory(path, unknown)) out.open(path);
  if (!out.is_open()) report_error(discrete_messages::writer_open);
  problem.write(out);
}

}  // namespace mero
