#include "driver/problem_kind.h"

#include <fstream>

#include "driver/driver_messages.h"
#include "kernel/reporters.h"

namespace mero {

const problem_kind& kind_of(const run_request& request) {
  static const std::vector<problem_kind> kinds = {gauge_kind(), graph_kind(), discrete_kind(),
                                                  planar_kind()};
  for (const problem_kind& kind : kinds)
    if (kind.selects(request)) return kind;
  return kinds.back();
}

void write_results_file(const std::string& path, const std::function<void(std::ostream&)>& write) {
  std::ofstream out(path);
  if (!out) report_error(driver_messages::results_unwritable, {path});
  write(out);
  if (!out.flush()) report_error(driver_messages::results_unwritable, {path});
}

}  // namespace mero
