#pragma once
// The file lpinfo carries p, eps, smoothing and max_iterations to the solvers of lp norms.
// It lives in the directory named by the environment variable tmp, else TMPDIR, else /tmp.

#include <optional>
#include <string>

namespace mero {

struct lp_info {
  int p = 0;
  double eps = 0.0001;
  double smoothing = 0.0001;
  int max_iterations = 50;
};

std::string lpinfo_path();

// Writes "p 0.0001 0.0001 50" (one line, no line end), as -p does; silently does nothing when the
// directory cannot be written, as the run then falls back to its defaults.
void write_lpinfo(int p);

// Reads the four values; empty when the file cannot be opened.
std::optional<lp_info> read_lpinfo();

// Reads the four values; when the file cannot be opened, the values that -p writes, with the p of
// the command line (0 when there was none).
lp_info read_lpinfo_or_written(std::optional<int> p);

}  // namespace mero
