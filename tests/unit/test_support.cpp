#include "test_support.h"

#include "kernel/error_handler.h"

namespace mero::testing {

std::vector<report>& messages() {
  static std::vector<report> list;
  return list;
}

namespace {

void throwing_sink(const report& r) {
  bool ends = r.what == report::kind::error || !r.go_on;
  if (ends) throw reported{r};
  messages().push_back(r);
}

void throwing_kernel_handler(int code, const std::string& text) {
  if (code > 0) throw reported{report{report::kind::error, text, code, 1, false, false}};
}

// Installed before any test runs.
struct install {
  install() {
    set_report_sink(throwing_sink);
    set_kernel_error_handler(throwing_kernel_handler);
  }
} installed;

}  // namespace
}  // namespace mero::testing
