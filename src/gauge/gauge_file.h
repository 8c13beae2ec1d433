#pragma once
// The gauge file: lists of polygonal or mixed gauges, or one gauge of either kind.
//
//   begin {polygaugelist}            begin {mixgaugelist}         oneLPGauge
//   begin {polygauge}                begin {mixgauge}             1 0
//   1 0                              1 0 0                        0 1
//   0 1                              0 1 1                        -1 0
//   -1 0                             -1 0 0                       0 -1
//   0 -1                             0 -1 1
//   end {polygauge}                  end {mixgauge}               (oneMixGauge alike, with flags)
//   end {polygaugelist}              end {mixgaugelist}
//
// One extreme point per line, counter-clockwise; a mixed gauge's lines carry a cone flag (0 for
// an edge, anything else for an arc). Comments as in the location file.

#include <istream>
#include <string>
#include <vector>

#include "gauge/polygauge.h"
#include "model/scan_common.h"

namespace mero {

// What the gauge scanner fills.
struct gauge_scan : scan_state {
  bool mixed = false;      // the mode: "Mixgauge" when true, "LPgauge" otherwise
  bool single = false;     // a oneLPGauge or oneMixGauge file
  int counter = 0;         // numbers of the point being read
  bool line_full = false;  // the present line already holds a whole point
  double x = 0.0, y = 0.0;
  std::vector<point> points;
  std::vector<bool> flags;
  std::vector<polygauge> polygauges;
  std::vector<mixgauge> mixgauges;
  std::vector<std::string> messages;  // collected; the scan goes on after each
  int tail_return = 0;                // the state after a collected message's error tail

  void start(std::istream& input, bool mixed_mode);
  // The closing keyword of a block (or the end of a single-gauge file): builds the gauge from
  // the lists unless messages are already collected, and empties the lists.
  void close_block();
  // A collected message with the rest of the line still to come (the error tail adds it).
  void collect(const mero::message& format, std::initializer_list<message_arg> args);
  void collect_complete(const mero::message& format, std::initializer_list<message_arg> args);
};

// Scans the whole input: 0 when done, 1 when message holds an error that stopped the scan.
int scan_gauge_file(gauge_scan& scan);

// Read a gauge file in the mode "LPgauge" (polygonal gauges) or "Mixgauge". 1607 when the file
// cannot be opened, 1609 for a file of the other kind; the collected messages of the file, one a
// line, end the run as 1608; a gauge failing its checks ends the run with that check's message.
std::vector<polygauge> read_polygauges(const std::string& filename);
std::vector<mixgauge> read_mixgauges(const std::string& filename);

}  // namespace mero
