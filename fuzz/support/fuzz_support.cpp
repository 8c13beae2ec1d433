#include "fuzz_support.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <unistd.h>

#include "kernel/error_handler.h"

namespace mero::fuzz {

namespace {

void throwing_sink(const report& r) {
  if (r.what == report::kind::error || r.what == report::kind::end || !r.go_on) throw reported{r};
}

// A kernel fault is the program's own message (the ORBA ERROR block) and ends like a report.
void throwing_kernel_handler(int code, const std::string& text) {
  if (code > 0) throw reported{report{report::kind::error, text, code, 1, false, false}};
}

}  // namespace

void install_throwing_reporters() {
  set_report_sink(throwing_sink);
  set_kernel_error_handler(throwing_kernel_handler);
}

const std::string& scratch_folder() {
  static const std::string folder = [] {
    // Memory-backed where there is such a folder: every input is written to a file.
    std::error_code ignored;
    const std::filesystem::path base = std::filesystem::is_directory("/dev/shm", ignored)
                                           ? std::filesystem::path("/dev/shm")
                                           : std::filesystem::temp_directory_path();
    std::string pattern = (base / "mero-fuzz-XXXXXX").string();
    if (!mkdtemp(pattern.data())) {
      std::perror("mkdtemp");
      std::abort();
    }
    setenv("TMPDIR", pattern.c_str(), 1);
    setenv("tmp", pattern.c_str(), 1);
    // The scratch folder is removed again when the process ends normally.
    static struct remover {
      std::string path;
      ~remover() {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
      }
    } remove_at_exit{pattern};
    return pattern;
  }();
  return folder;
}

void clear_scratch_folder() {
  std::error_code ignored;
  for (const auto& entry : std::filesystem::directory_iterator(scratch_folder(), ignored))
    std::filesystem::remove_all(entry.path(), ignored);
}

std::string fuzz_input_file(std::string_view data, const std::string& name) {
  std::string path = scratch_folder() + "/" + name;
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(data.data(), static_cast<std::streamsize>(data.size()));
  return path;
}

void finding(const char* what) {
  std::fprintf(stderr, "mero-fuzz finding: %s\n", what);
  std::fflush(stderr);
  std::abort();
}

}  // namespace mero::fuzz
