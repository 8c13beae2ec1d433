#include "model/location_scan.h"

#include "model/model_messages.h"

namespace mero {

bool location_scan::is_graph_file() const {
  return location_file_type == location_file_types::graph ||
         location_file_type == location_file_types::nc_graph;
}

bool location_scan::is_gauge_file() const {
  return location_file_type == location_file_types::gauge;
}

void location_scan::start(std::istream& input, const char* file_type) {
  reset(input, location_file_messages::syntax_error);
  location_file_type = file_type;
  location_dim = 2;
  location_weight_dim = 1;
  scanned_locations.clear();
  scanned_names.clear();
  scanned_gauge_numbers.clear();
  line_coordinates.clear();
  line_weights.clear();
  counter = 0;
  name_seen = false;
  first_call = true;
}

void location_scan::complete_line() {
  // A location holds the coordinates its line gave: location_dim of them, or none on an "NC" line
  // of a graph file, whose locations are dropped at the end. Sizing an NC location by the header
  // instead would let a header dimension that no line backs ask for any amount of memory.
  location& l = scanned_locations.emplace_back(static_cast<int>(line_coordinates.size()),
                                               location_weight_dim);
  for (std::size_t i = 0; i < line_coordinates.size(); ++i)
    l.coordinate_ref(static_cast<int>(i)) = line_coordinates[i];
  for (std::size_t i = 0; i < line_weights.size(); ++i)
    l.weight_ref(static_cast<int>(i)) = line_weights[i];
  if (!name_seen) scanned_names.emplace_back();
  line_coordinates.clear();
  line_weights.clear();
  counter = 0;
  name_seen = false;
}

}  // namespace mero
