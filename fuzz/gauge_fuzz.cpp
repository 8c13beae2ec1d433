// The gauge file (list and single forms of polygonal and mixed gauges). Every gauge it builds
// must have finite extreme points.
#include "gauge/gauge_file.h"
#include "support/finite_check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mero;
  const std::string path = fuzz::fuzz_input_file({reinterpret_cast<const char*>(data), size});
  std::vector<polygauge> gauges;
  if (fuzz::run_reporting([&] { gauges = read_polygauges(path); }))
    for (const polygauge& g : gauges)
      for (const point& p : g.extreme_points()) {
        fuzz::require_finite(p.xcoord());
        fuzz::require_finite(p.ycoord());
      }
  return 0;
}
