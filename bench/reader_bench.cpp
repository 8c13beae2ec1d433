// The location-file reader alone: reads FILE with read_location_file and prints the time it took,
// next to the time of reading the same bytes into memory in 1 MiB blocks (the speed of the disk,
// or of the page cache on a second run), best of REPEATS runs each; wall time and processor
// time, since on a shared machine the wall time of a short run says little.
// Usage: reader_bench FILE [REPEATS]
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <string>
#include <vector>

#include "model/location_file.h"

namespace {

double seconds_since(std::chrono::steady_clock::time_point start) {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fprintf(stderr, "usage: reader_bench FILE [REPEATS]\n");
    return 2;
  }
  const std::string path = argv[1];
  const int repeats = argc > 2 ? std::atoi(argv[2]) : 3;
  double raw = 1e300, reader = 1e300, reader_cpu = 1e300;
  std::size_t bytes = 0, locations = 0;
  for (int r = 0; r < repeats; ++r) {
    auto start = std::chrono::steady_clock::now();
    std::ifstream in(path, std::ios::binary);
    std::vector<char> block(1 << 20);
    bytes = 0;
    while (in.read(block.data(), static_cast<std::streamsize>(block.size())) || in.gcount() > 0)
      bytes += static_cast<std::size_t>(in.gcount());
    raw = std::min(raw, seconds_since(start));
    start = std::chrono::steady_clock::now();
    const std::clock_t cpu_start = std::clock();
    mero::facilities f;
    mero::read_location_file(path, f);
    locations = f.size();
    reader_cpu = std::min(reader_cpu, double(std::clock() - cpu_start) / CLOCKS_PER_SEC);
    reader = std::min(reader, seconds_since(start));
  }
  std::printf("bytes %zu locations %zu raw_read_s %.4f reader_s %.4f reader_cpu_s %.4f "
              "reader_MB_per_s %.1f\n",
              bytes, locations, raw, reader, reader_cpu, bytes / reader / 1e6);
  return 0;
}
