// The location file, "GaugeLoc" form (a gauge number {g} after the weights).
#include "support/finite_check.h"
#include "model/location_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mero;
  const std::string path = fuzz::fuzz_input_file({reinterpret_cast<const char*>(data), size});
  facilities problem;
  std::vector<int> gauges;
  if (fuzz::run_reporting([&] { read_gauge_location_file(path, problem, gauges); }))
    fuzz::require_finite(problem);
  return 0;
}
