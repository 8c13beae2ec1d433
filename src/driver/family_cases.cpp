#include "driver/family.h"

namespace mero {

const std::vector<family_case>& family_cases() {
  static const std::vector<family_case> all = [] {
    std::vector<family_case> cases;
    // One list per family, one line each, so that a new family adds a line.
    const std::vector<std::vector<family_case>> families = {
        planar_cases(),
        multifacility_cases(),
        gauge_cases(),
        line_cases(),
        restriction_cases(),
        network_cases(),
        tree_cases(),
        n_problem_cases(),
        multicriteria_cases(),
        discrete_cases(),
    };
    for (const auto& family : families) cases.insert(cases.end(), family.begin(), family.end());
    return cases;
  }();
  return all;
}

}  // namespace mero
