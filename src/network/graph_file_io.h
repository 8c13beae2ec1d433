#pragma once
// The graph file: a location file inside "begin {merograph}" whose locations are the nodes, with
// an adjacency part of lines "source target length" (1-based node numbers) or, under
// "begin {adjlist_byname}", "name name length". Its reader, and the writers of the adjacency part
// and of the whole file.

#include <ostream>
#include <string>

#include "model/facilities.h"
#include "network/location_graph.h"

namespace mero {

// Replaces g by the graph of the file and problem's locations and names by its location part
// (left empty for a file whose nodes have no coordinates, "NC"). A file that cannot be opened is
// error 2111; any scanner message, and a node number outside the location list, error 2112.
void read_graph(const std::string& path, location_graph& g, facilities& problem);

// "begin {adjlist}", a line "source target length" for each edge in edge order, "end {adjlist}".
void write_adjacency(std::ostream& out, const location_graph& g);
void write_adjacency(const std::string& path, const location_graph& g);  // 2103 on failure

// The whole file: locations with their names (nodes as "NC" lines when there are no locations),
// then the adjacency part.
void write_graph(std::ostream& out, const location_graph& g, const facilities& problem);
void write_graph(const std::string& path, const location_graph& g,
                 const facilities& problem);  // 2104 on failure

}  // namespace mero
