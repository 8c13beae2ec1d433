#pragma once
// Readers and writer of the location file: a header `begin {location} [d,w]`, one line per
// location (d coordinates, w weights, in a "GaugeLoc" file a gauge number `{g}`, an optional
// `[name]`), then `end`. Failures go through the error reporter: 1503 when the file cannot be
// opened, 1504 with the scanner's composed message for any syntax error.

#include <iosfwd>
#include <string>
#include <vector>

#include "model/facilities.h"

namespace mero {

// The plain form: replaces the locations and names of problem by those of the file.
void read_location_file(const std::string& path, facilities& problem);

// The "GaugeLoc" form: as above, and gauge_numbers receives the gauge number of each location
// that had one, in file order.
void read_gauge_location_file(const std::string& path, facilities& problem,
                              std::vector<int>& gauge_numbers);

// Writes the locations of problem with their names in the form that the plain reader reads back
// identically (values are written with six significant digits). An empty problem is the list
// error "dlist::head(): empty list"; a name with a bracket ends the process with a message.
void write_locations(std::ostream& out, const facilities& problem);
// The same into a file; 1512 "Can't open file !" when it cannot be opened.
void write_locations(const std::string& path, const facilities& problem);

}  // namespace mero
