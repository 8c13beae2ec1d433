// The location file, plain form: the whole input is the file.
#include "support/finite_check.h"
#include "model/location_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mero;
  const std::string path = fuzz::fuzz_input_file({reinterpret_cast<const char*>(data), size});
  facilities problem;
  if (fuzz::run_reporting([&] { read_location_file(path, problem); }))
    fuzz::require_finite(problem);
  return 0;
}
