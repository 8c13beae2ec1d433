#include "model/location_scan.h"

#include <algorithm>
#include <istream>

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
  nc_locations.clear();
  line_coordinates.clear();
  line_weights.clear();
  counter = 0;
  name_seen = false;
  first_call = true;
  input_bytes = 0;
  bytes_read = 0;
  blocks_read = 0;
  // The size of a seekable input (a file, a string); a pipe keeps 0 and is never reserved for.
  const std::istream::pos_type here = input.tellg();
  if (here == std::istream::pos_type(-1)) return;
  if (input.seekg(0, std::ios::end)) {
    const std::istream::pos_type end = input.tellg();
    if (end != std::istream::pos_type(-1) && end >= here)
      input_bytes = static_cast<std::size_t>(end - here);
  }
  input.clear();
  input.seekg(here);
}

std::size_t location_scan::read_block(char* buffer, std::size_t max) {
  if (++blocks_read == 2 && bytes_read > 0 && input_bytes > bytes_read &&
      !scanned_locations.empty()) {
    // Up to a sixteenth more than the first block's density promises; a file whose lines grow
    // shorter later only doubles once more.
    const double per_byte = static_cast<double>(scanned_locations.size()) / bytes_read;
    const double expected = per_byte * static_cast<double>(input_bytes) * (1.0 + 1.0 / 16) + 16;
    scanned_locations.reserve(static_cast<std::size_t>(expected));
  }
  const std::size_t got = scan_read(*in, buffer, max);
  bytes_read += got;
  return got;
}

void location_scan::finish_nc_locations() {
  for (const std::size_t i : nc_locations) {
    location& l = scanned_locations[i];
    location bare(0, l.weight_dim());
    for (int k = 0; k < l.weight_dim(); ++k) bare.weight_ref(k) = l.weight(k);
    l = std::move(bare);  // a move assignment keeps a location as it is
  }
  nc_locations.clear();
}

void location_scan::take_name(std::string name) {
  if (scanned_names.size() < scanned_locations.size())
    scanned_names.resize(scanned_locations.size());
  scanned_names.push_back(std::move(name));
}

void location_scan::complete_line() {
  // A location holds the coordinates its line gave: location_dim of them, or none on an "NC" line
  // of a graph file. Sizing an NC location by the header instead would let a header dimension that
  // no line backs ask for any amount of memory. While the array grows, an NC location holds a
  // single 0, since a location without coordinates moves as an empty one and would lose its
  // weights; finish_nc_locations takes the 0 away.
  if (line_coordinates.empty()) nc_locations.push_back(scanned_locations.size());
  const int dim = std::max(static_cast<int>(line_coordinates.size()), 1);
  location& l = scanned_locations.emplace_back(dim, location_weight_dim);
  for (std::size_t i = 0; i < line_coordinates.size(); ++i)
    l.coordinate_ref(static_cast<int>(i)) = line_coordinates[i];
  for (std::size_t i = 0; i < line_weights.size(); ++i)
    l.weight_ref(static_cast<int>(i)) = line_weights[i];
  if (!name_seen && !scanned_names.empty()) scanned_names.emplace_back();
  line_coordinates.clear();
  line_weights.clear();
  counter = 0;
  name_seen = false;
}

}  // namespace mero
