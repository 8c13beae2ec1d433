#include "driver/problem_kind.h"

namespace mero {

const problem_kind& kind_of(const run_request& request) {
  static const std::vector<problem_kind> kinds = {gauge_kind(), graph_kind(), discrete_kind(),
                                                  planar_kind()};
  for (const problem_kind& kind : kinds)
    if (kind.selects(request)) return kind;
  return kinds.back();
}

}  // namespace mero
