#pragma once
// The state of the location-file scanner, shared by the readers of the location file and of the
// graph file (whose location part is a location file). A reader starts the scan with its stream
// and file type, runs scan_location_file, and moves the scanned locations and names into its
// target.

#include <iosfwd>
#include <list>
#include <string>
#include <vector>

#include "model/location.h"
#include "model/scan_common.h"

namespace mero {

// The values of location_file_type.
namespace location_file_types {
inline constexpr const char* plain = "Locationfile";
inline constexpr const char* gauge = "GaugeLoc";
inline constexpr const char* graph = "Graphfile";
inline constexpr const char* nc_graph = "NCGraphfile";
inline constexpr const char* by_name = "byname";
}  // namespace location_file_types

struct location_scan : scan_state {
  std::string location_file_type = location_file_types::plain;
  int location_dim = 2;
  int location_weight_dim = 1;

  std::vector<location> scanned_locations;
  // Empty until the first name; from then on one per location, "" for an unnamed one.
  std::list<std::string> scanned_names;
  std::vector<int> scanned_gauge_numbers;
  // The places in scanned_locations of the locations of "NC" lines.
  std::vector<std::size_t> nc_locations;

  // The location line being read.
  std::vector<double> line_coordinates;
  std::vector<double> line_weights;
  int counter = 0;
  bool name_seen = false;
  bool first_call = true;
  // The size of the input when it can be told (0 otherwise), the bytes handed to the scanner so
  // far and the number of blocks, for sizing scanned_locations once from the first block.
  std::size_t input_bytes = 0;
  std::size_t bytes_read = 0;
  int blocks_read = 0;

  // The adjacency part of a graph file: one entry per line, node numbers from 1 as written.
  // graph_nodes is set where the location part of a graph file ends, graph_edges where the
  // adjacency part ends; the graph reader builds the graph from these.
  std::vector<int> adjacency_sources;
  std::vector<int> adjacency_targets;
  std::vector<double> adjacency_lengths;
  bool graph_nodes = false;
  bool graph_edges = false;

  bool is_graph_file() const;
  bool is_gauge_file() const;
  // Empties every list and starts a fresh read of input as a file of the given type.
  void start(std::istream& input, const char* file_type);
  // The line is complete: its numbers become a location(location_dim, location_weight_dim) (of
  // no coordinates for an "NC" line), named by the name seen, or by "" once a file has names. A
  // weight dimension of 0 still had to read one weight, and storing it then fails with error 1209.
  void complete_line();
  // Once the scan is done: the locations of "NC" lines lose the placeholder coordinate that kept
  // their weights while scanned_locations grew, and have no coordinates, as their lines gave none.
  void finish_nc_locations();
  // A name for the line being read: the names of earlier unnamed lines become "" first.
  void take_name(std::string name);
  // The scanner's input: up to max bytes into buffer, 0 at the end. Before the second block,
  // scanned_locations is reserved for the whole input at the density of the first block, so that
  // a large file fills one array instead of copying it at each doubling.
  std::size_t read_block(char* buffer, std::size_t max);
};

// Scans the whole input: 0 when the file is done, 1 when message holds an error. (The scanner's
// own entry may also return values above 1, meaning "call again"; this loop does that.)
int scan_location_file(location_scan& scan);

}  // namespace mero
