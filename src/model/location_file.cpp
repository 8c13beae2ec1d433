#include "model/location_file.h"

#include <fstream>
#include <ostream>

#include "kernel/error_handler.h"
#include "kernel/reporters.h"
#include "model/location_scan.h"
#include "model/model_messages.h"

namespace mero {

namespace text = location_file_messages;

namespace {

// Scans path as a file of the given type into scan; every failure ends the process through the
// error reporter, shown as a dialog in a windowed run.
void scan_file(const std::string& path, const char* file_type, location_scan& scan) {
  std::ifstream in = open_scan_input(path, text::cannot_open);
  scan.start(in, file_type);
  scan_or_report(scan_location_file, scan, text::syntax_error.code);
}

void take_locations(location_scan& scan, facilities& problem) {
  static_cast<std::vector<location>&>(problem) = std::move(scan.scanned_locations);
  problem.names = std::move(scan.scanned_names);
}

// A name with a bracket could not be read back; the writer stops there with a message.
void check_name(const std::string& name) {
  if (name.find_first_of("[]") != std::string::npos)
    report_message(text::illegal_brackets, false, {name});
}

}  // namespace

void read_location_file(const std::string& path, facilities& problem) {
  location_scan scan;
  scan_file(path, location_file_types::plain, scan);
  take_locations(scan, problem);
}

void read_gauge_location_file(const std::string& path, facilities& problem,
                              std::vector<int>& gauge_numbers) {
  location_scan scan;
  scan_file(path, location_file_types::gauge, scan);
  take_locations(scan, problem);
  gauge_numbers = std::move(scan.scanned_gauge_numbers);
}

void write_locations(std::ostream& out, const facilities& problem) {
  if (problem.empty()) empty_list_error(model_messages::empty_list);
  const location& first = problem.front();
  out << "begin {location} [" << first.dim() << ',' << first.weight_dim() << "]\n";
  auto name = problem.names.begin();
  for (const location& l : problem) {
    const std::string unnamed;
    const std::string& this_name = name != problem.names.end() ? *name++ : unnamed;
    check_name(this_name);
    out << l << " [" << this_name << "]\n";
  }
  out << "end {location}\n";
}

void write_locations(const std::string& path, const facilities& problem) {
  if (problem.empty()) empty_list_error(model_messages::empty_list);
  std::ofstream out(path);
  if (!out) report_error(text::writer_cannot_open);
  write_locations(out, problem);
}

}  // namespace mero
