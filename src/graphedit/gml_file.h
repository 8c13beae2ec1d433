#pragma once
// The Graph Modelling Language file of the graph editor: "Creator" "ORBA GraphEdit", "Version",
// then "graph [" with its label, "directed", a "node [" for each node and an "edge [" for each
// edge, the drawing attributes under "graphics", "LabelGraphics" and "edgeAnchor". The reader
// takes any GML: keys it does not know are skipped with their values, lists included.

#include <istream>
#include <ostream>
#include <string>

#include "graphedit/ge_graph.h"

namespace mero {

// Writes the graph, its label and direction flag and every node and edge attribute; numbers are
// written so that they read back exactly. Reversal links are not part of GML and are not written.
void write_gml(const ge_graph& x, std::ostream& out);
void write_gml(const ge_graph& x, const std::string& file_name);

// Replaces x by the file's graph (the GE-only settings keep their defaults, the version is taken
// from "Version"). A malformed file ends with a graphedit message naming the file (name) and the
// line; a bend with one coordinate is dropped with "ignoring incomplete bend".
void read_gml(ge_graph& x, std::istream& in, const std::string& name);
void read_gml(ge_graph& x, const std::string& file_name);

}  // namespace mero
