#pragma once
// The restriction file: forbidden regions and barriers, one block per figure, in the block form
// of the location file (same comments, same error tail). For example:
//
//   begin {restriction}
//   begin {polyhedron} [0]      a forbidden polygon, one point per line
//   0 0
//   4 0
//   4 3
//   end {polyhedron}
//   begin {circle} [inf]        a barrier: x, y, radius (the numbers may spread over lines)
//   1 1 2
//   end {circle}
//   begin {rectangle}           no value: forbidden; x, y, width, height, angle in degrees
//   0 0 2 1 30
//   end {rectangle}
//   begin {segment} [inf]       only as a barrier: x1, y1, x2, y2
//   0 0 5 5
//   end {segment}
//   end {restriction}
//
// `conpolyhedron` is read like `polyhedron`. A value of 0 (or none) gives a forbidden region, on
// which set_forbidden_inside is called; `inf` a barrier; anything else is refused when its block
// ends. A block left open at the end of the input is dropped.

#include <istream>
#include <string>
#include <vector>

#include "kernel/point.h"
#include "model/scan_common.h"
#include "restriction/restriction.h"

namespace mero {

// What the restriction scanner fills.
struct restriction_scan : scan_state {
  bool first_call = true;       // the scanner starts in its START state
  int dimension = 2;            // from the header
  int block_state = 0;          // the scanner state that reads the present block's numbers
  int value = 0;                // of the present block: 0 forbidden, -1 inf, n > 0 refused
  int counter = 0;              // numbers on the present line (polygons) or in the block
  std::vector<double> numbers;  // of the present line (polygons) or of the block
  std::vector<point> points;    // of the present polygon
  restriction_list restrictions;

  void start(std::istream& input);
  // A new block: its counter, numbers and points start empty.
  void open_block();

  // A polygon's line ended: true when it held no number or one point (which is then kept).
  bool take_point_line();
  // A block closed with the right count of numbers builds its figure; false for a value that the
  // kind does not support (the figure is then not built).
  bool close_polygon();
  bool close_circle();
  bool close_rectangle();
  bool close_segment();
};

// Scans the whole input: 0 when done (at `end {restriction}` or the end of the input), 1 when
// message holds an error.
int scan_restriction_file(restriction_scan& scan);

// Reads the restrictions from an opened stream, in file order. A stream that did not open is
// 1409 "Can't open file!"; a syntax error is 1410 with the scanner's message.
restriction_list read_restrictions(std::istream& in);
// The same for a file by name.
restriction_list read_restriction_file(const std::string& path);

}  // namespace mero
