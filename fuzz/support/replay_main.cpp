// Replays inputs through a harness without libFuzzer, so that the normal compiler builds the
// harnesses and the test suite feeds them every kept corpus entry and reproducer. Arguments are
// files or folders (whose files are replayed in name order); a crash or a sanitizer report ends
// the replay with the harness's failure, the replay itself succeeds otherwise.

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "fuzz_support.h"

namespace {

void replay(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::vector<char> bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  std::fprintf(stderr, "replay %s\n", file.c_str());
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

}  // namespace

int main(int argc, char** argv) {
  std::size_t count = 0;
  for (int i = 1; i < argc; ++i) {
    std::filesystem::path arg(argv[i]);
    std::vector<std::filesystem::path> files;
    if (!std::filesystem::exists(arg)) continue;  // a harness without reproducers yet
    if (std::filesystem::is_directory(arg)) {
      for (const auto& entry : std::filesystem::directory_iterator(arg))
        if (entry.is_regular_file()) files.push_back(entry.path());
      std::sort(files.begin(), files.end());
    } else {
      files.push_back(arg);
    }
    for (const auto& f : files) {
      replay(f);
      ++count;
    }
  }
  std::fprintf(stderr, "replayed %zu inputs\n", count);
  return 0;
}
