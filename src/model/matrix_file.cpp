#include "model/matrix_file.h"

#include "kernel/error_handler.h"
#include "kernel/reporters.h"
#include "model/model_messages.h"

namespace mero {

void matrix_scan::start(std::istream& input) {
  reset(input, matrix_file_messages::syntax_error);
  matrix_dim = 0;
  entries.clear();
  counter = 0;
}

matrix read_matrix(std::istream& in, const std::vector<location>& locations) {
  namespace texts = matrix_file_messages;
  if (!in) report_error(texts::cannot_open);
  matrix_scan scan;
  scan.start(in);
  scan_or_report(scan_matrix_file, scan, texts::syntax_error.code);
  if (locations.empty()) empty_list_error(model_messages::empty_list);
  const int n = locations.front().weight_dim();
  const std::size_t needed = static_cast<std::size_t>(n) * static_cast<std::size_t>(n);
  if (scan.entries.size() < needed) {
    report_error(texts::too_few_entries, {scan.entries.size(), needed, n, n});
  }
  // Row by row in file order; numbers beyond n * n are left over.
  matrix v(n, n);
  auto next = scan.entries.begin();
  for (int row = 0; row < n; ++row)
    for (int col = 0; col < n; ++col) v(row, col) = *next++;
  return v;
}

}  // namespace mero
