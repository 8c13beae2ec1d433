#pragma once
// Conversion between the editor's graphs (GE, GML and native files) and mero's graph file, so
// that a network drawn in another tool can be solved and a solved network opened there.

#include <string>
#include <vector>

#include "graphedit/ge_graph.h"
#include "model/facilities.h"
#include "network/location_graph.h"

namespace mero {

enum class graph_file_kind { ge, gml, native, mero };

// The kind of a graph file, told by its content: "begin {merograph}" (any case) is mero's graph
// file, a first word "ORBA.GRAPH" followed somewhere by the comment "# version string" a GE
// file, without it a native graph file, and anything else is read as GML. A file that cannot be
// opened ends with "Cannot open graph file %s.".
graph_file_kind sniff_graph_file(const std::string& file_name);

// Reads a GE, GML or native graph file into x. The nodes of a native file carry no position and
// are laid out on a circle; its information of any type becomes the items' data text.
void read_editor_graph(ge_graph& x, const std::string& file_name);

// Where the numbers of a mero graph come from. A key names "data" (the native information, GML
// "parameter"), "label", or a numeric GML key of the item; the text of the first two must be a
// number. Without weight keys every node weighs 1; without a length key an edge is as long as
// the straight line between its end nodes.
struct convert_keys {
  std::vector<std::string> weights;  // one weight column for each key, in order
  std::string length;
};

// The editor's graph as mero's network: one location per node (its position, the weights of the
// keys) named by its label, one edge per edge in edge order with its length. A node or edge
// without the number a key asks for ends with its message (3531, 3532).
void editor_to_network(const ge_graph& x, const convert_keys& keys, location_graph& g,
                       facilities& places);

// mero's network as the editor's graph: labels from the names, positions from the first two
// coordinates (a graph without coordinates is laid out on a circle), the node weights as the
// numeric keys "weight", "weight2", ... and the first weight as the data text, the edge length
// as the key "length" and as the data text. Node sizes follow the extent of the drawing.
ge_graph network_to_editor(const location_graph& g, const facilities& places);

// `graphedit --convert in out`: a mero graph file becomes GML (or GE when out ends in ".ge"),
// any other graph file becomes a mero graph file (or GML or GE after the ending of out).
void convert_graph_file(const std::string& in, const std::string& out, const convert_keys& keys);

}  // namespace mero
