#pragma once
// The GE file of the graph editor: the graph in the native format ("string" information), then
// commented sections in a fixed order: "GraphEdit %f", scaling and world bounds, the two label
// fonts, the two index formats, the multi-edge distance, one line of attributes per node and one
// per edge (edges in the order of the native part).

#include <functional>
#include <istream>
#include <ostream>
#include <string>

#include "graphedit/ge_graph.h"

namespace mero {

// Writes x exactly: numbers with enough digits to read back the same double, label texts as the
// rest of their line with "\\", "\n" and "\r" escaped.
void write_ge(const ge_graph& x, std::ostream& out);
void write_ge(const ge_graph& x, const std::string& file_name);

// Replaces x by the file's graph. A malformed file ends with a graphedit message naming the file
// (name) and the line; x is then left as far as it was read.
void read_ge(ge_graph& x, std::istream& in, const std::string& name);
void read_ge(ge_graph& x, const std::string& file_name);

// Opens the file, lets write fill it and checks that it was written; a file that cannot be
// opened or written ends with "Cannot write graph file %s.".
void write_text_file(const std::string& file_name,
                     const std::function<void(std::ostream&)>& write);

// Text helpers shared with the GML file.
std::string escape_line(const std::string& text);
std::string unescape_line(const std::string& text);

}  // namespace mero
