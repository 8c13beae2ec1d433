#include "gauge/gauge_file.h"

#include <fstream>

#include "gauge/gauge_messages.h"

namespace mero {

void gauge_scan::start(std::istream& input, bool mixed_mode) {
  reset(input, gauge_messages::wrong_file);
  mixed = mixed_mode;
  single = false;
  counter = 0;
  line_full = false;
  points.clear();
  flags.clear();
  polygauges.clear();
  mixgauges.clear();
  messages.clear();
}

void gauge_scan::close_block() {
  // Once the file has a message the run ends with the messages; a gauge built from a damaged
  // block would only hide them behind its own check.
  if (messages.empty()) {
    if (mixed) {
      mixgauges.emplace_back(points, flags);
    } else {
      polygauges.emplace_back(points);
    }
  }
  points.clear();
  flags.clear();
  counter = 0;
}

void gauge_scan::collect(const mero::message& format, std::initializer_list<message_arg> args) {
  scan_fail(*this, format, args);
}

void gauge_scan::collect_complete(const mero::message& format,
                                  std::initializer_list<message_arg> args) {
  messages.push_back(format_message(format.text, args));
}

namespace {

void report_collected(const gauge_scan& scan) {
  if (scan.messages.empty()) return;
  std::string text;
  for (const std::string& m : scan.messages) text += (text.empty() ? "" : "\n") + m;
  report_error(text, gauge_messages::file_messages.code, 1, true);
}

gauge_scan scanned(const std::string& filename, bool mixed) {
  std::ifstream in = open_scan_input(filename, gauge_messages::cannot_open);
  gauge_scan scan;
  scan.start(in, mixed);
  scan_or_report(scan_gauge_file, scan, gauge_messages::wrong_file.code);
  report_collected(scan);
  return scan;
}

}  // namespace

std::vector<polygauge> read_polygauges(const std::string& filename) {
  return scanned(filename, false).polygauges;
}

std::vector<mixgauge> read_mixgauges(const std::string& filename) {
  return scanned(filename, true).mixgauges;
}

}  // namespace mero
