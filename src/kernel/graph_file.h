#pragma once
// The native text form of a graph, headed "ORBA.GRAPH": the node and edge type names, the nodes
// in list order, and the edges in the order of the nodes' adjacency lists, each written once
// from its source as "source target reversal |{info}|" with 1-based numbers.

#include <istream>
#include <ostream>
#include <string>

#include "kernel/graph.h"

namespace mero {

// Results of reading.
enum graph_read_result {
  graph_read_ok = 0,
  graph_read_cannot_open = 1,
  graph_read_other_types = 2,  // structure read; items of another type got default information
  graph_read_not_a_graph = 3,  // the first word is not "ORBA.GRAPH"; the graph stays empty
  graph_read_format_error = 4,  // only from the form with fault_line: the body is malformed
};

// Replaces g by the graph in the file. A malformed body ends with the kernel's code 1
// "graph::read(): error in graph format.".
int read_graph_file(graph& g, const std::string& file_name);
int read_graph_file(graph& g, std::istream& in);
// The same without the kernel's report: a malformed body gives graph_read_format_error and the
// 1-based line of the stream, counted from where reading began, at which the fault was seen.
int read_graph_file(graph& g, std::istream& in, int& fault_line);

// Writes g; a file that cannot be opened ends with the kernel's code 1.
void write_graph_file(const graph& g, const std::string& file_name);
void write_graph_file(const graph& g, std::ostream& out);

}  // namespace mero
