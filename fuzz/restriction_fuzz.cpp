// The restriction file (forbidden polygons, rectangles, circles and barriers).
#include "restriction/restriction_file.h"
#include "support/finite_check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mero;
  const std::string path = fuzz::fuzz_input_file({reinterpret_cast<const char*>(data), size});
  fuzz::run_reporting([&] { read_restriction_file(path); });
  return 0;
}
