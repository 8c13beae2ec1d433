// The graph file ("begin {merograph}": a location part, then the adjacency part).
#include "support/finite_check.h"
#include "network/graph_file_io.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mero;
  const std::string path = fuzz::fuzz_input_file({reinterpret_cast<const char*>(data), size});
  location_graph g;
  facilities problem;
  if (fuzz::run_reporting([&] { read_graph(path, g, problem); })) {
    fuzz::require_finite(problem);
    for (edge e = g.first_edge(); e != nullptr; e = graph::succ_edge(e))
      fuzz::require_finite(g.inf(e));
  }
  return 0;
}
