// Reads a mero location file (header line, "x y w" lines, "end" line) with C++ streams, as
// min_circle.cpp does, and prints the least weighted rectilinear distance sum: the weighted
// median of each coordinate (sorting the coordinates and walking up to half the total weight),
// for comparison with mero's l1_sum on the same file.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

namespace {

// The weighted median of the (coordinate, weight) pairs and the weighted sum of distances to it.
double axis_sum(std::vector<std::pair<double, double>>& values, double total) {
  std::sort(values.begin(), values.end());
  double below = 0.0, median = values.back().first;
  for (const auto& [c, w] : values) {
    below += w;
    if (2.0 * below >= total) {
      median = c;
      break;
    }
  }
  double sum = 0.0;
  for (const auto& [c, w] : values) sum += w * std::fabs(c - median);
  return sum;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  std::ifstream in(argv[1]);
  std::string line;
  std::getline(in, line);  // begin {location} [2,1]
  std::vector<std::pair<double, double>> xs, ys;
  double x, y, w, total = 0.0;
  while (in >> x >> y >> w) {
    xs.emplace_back(x, w);
    ys.emplace_back(y, w);
    total += w;
  }
  if (xs.empty()) return 1;
  std::printf("value %.17g\n", axis_sum(xs, total) + axis_sum(ys, total));
  return 0;
}
