// The discrete file (demand, optional supply, cost matrix).
#include "support/finite_check.h"
#include "discrete/discrete_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mero;
  const std::string path = fuzz::fuzz_input_file({reinterpret_cast<const char*>(data), size});
  discrete_problem problem;
  if (fuzz::run_reporting([&] { read_discrete_file(path, problem); })) {
    fuzz::require_finite(problem.demand);
    fuzz::require_finite(problem.supply);
    for (int i = 0; i < problem.cost.dim1(); ++i)
      for (int j = 0; j < problem.cost.dim2(); ++j) fuzz::require_finite(problem.cost(i, j));
  }
  return 0;
}
