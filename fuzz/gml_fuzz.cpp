// The graph editor's GML file.
#include "graphedit/gml_file.h"
#include "support/fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mero;
  const std::string path = fuzz::fuzz_input_file({reinterpret_cast<const char*>(data), size});
  ge_graph graph;
  fuzz::run_reporting([&] { read_gml(graph, path); });
  return 0;
}
