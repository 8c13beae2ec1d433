#include "driver/lpinfo.h"

#include <cstdlib>
#include <fstream>

namespace mero {

std::string lpinfo_path() {
  const char* dir = std::getenv("tmp");
  if (!dir) dir = std::getenv("TMPDIR");
  if (!dir) dir = "/tmp";
  return std::string(dir) + "/lpinfo";
}

void write_lpinfo(int p) {
  std::ofstream out(lpinfo_path(), std::ios::trunc);
  out << p << ' ' << 0.0001 << ' ' << 0.0001 << ' ' << 50;
}

std::optional<lp_info> read_lpinfo() {
  std::ifstream in(lpinfo_path());
  if (!in) return std::nullopt;
  lp_info info;
  in >> info.p >> info.eps >> info.smoothing >> info.max_iterations;
  return info;
}

lp_info read_lpinfo_or_written(std::optional<int> p) {
  if (std::optional<lp_info> info = read_lpinfo()) return *info;
  lp_info written;
  written.p = p.value_or(0);
  return written;
}

}  // namespace mero
