// The kernel's native graph text ("ORBA.GRAPH"), read into a graph of named nodes and edges of
// double length.
#include <sstream>

#include "kernel/graph_file.h"
#include "support/finite_check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mero;
  std::istringstream in(std::string(reinterpret_cast<const char*>(data), size));
  GRAPH<std::string, double> g;
  fuzz::run_reporting([&] { read_graph_file(g, in); });
  return 0;
}
