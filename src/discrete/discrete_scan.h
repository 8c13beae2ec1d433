#pragma once
// The state of the discrete-file scanner: the shared scanner state plus what the file fills, the
// demand and supply blocks and the cost matrix, collected in reading order.

#include <iosfwd>
#include <list>
#include <string>
#include <vector>

#include "model/location.h"
#include "model/scan_common.h"

namespace mero {

struct discrete_scan : scan_state {
  enum class block { demand, supply };

  std::list<location> demand;
  std::list<std::string> demand_names;
  std::list<location> supply;
  std::list<std::string> supply_names;
  bool has_supply_block = false;

  // The location line being read.
  block current = block::demand;
  int weight_count = 1;  // 1 in the demand block, n in the supply block
  std::vector<double> line_coordinates;
  std::vector<double> line_weights;
  int counter = 0;
  bool name_seen = false;

  // The cost matrix: its entries in reading order, the number of complete rows, and the
  // entries of the row being read.
  std::vector<double> costs;
  int rows = 0;
  int row_entries = 0;

  void start(std::istream& input);
  void add_name(std::string name);
  // The line end of a location line: builds the location and appends it to the current block.
  void complete_line();
  // The number of entries of each matrix row.
  int columns() const;
  // Closes the matrix row being read; returns 1 with the message set when it breaks the shape,
  // else 0. line is the number of the line that the row stood on.
  int complete_row(int line);
  // At "end {costmatrix}" (or the end of the input inside the matrix): closes the row being read
  // and checks that every demand point had its row; 1 with the message set if not, else 0.
  int end_of_matrix();
};

// Scans the whole input: 0 when the file is done, 1 when message holds an error.
int scan_discrete_file(discrete_scan& scan);

}  // namespace mero
