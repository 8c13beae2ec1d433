// The matrix file. The first byte is the weight dimension of the one location that sizes the
// matrix (n by n); the rest is the file.
#include <fstream>

#include "support/finite_check.h"
#include "model/matrix_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mero;
  if (size == 0) return 0;
  const int n = data[0];
  const std::string path =
      fuzz::fuzz_input_file({reinterpret_cast<const char*>(data) + 1, size - 1});
  std::vector<location> locations{location(2, n)};
  fuzz::run_reporting([&] {
    std::ifstream in(path);
    matrix m = read_matrix(in, locations);
    for (int i = 0; i < m.dim1(); ++i)
      for (int j = 0; j < m.dim2(); ++j) fuzz::require_finite(m(i, j));
  });
  return 0;
}
