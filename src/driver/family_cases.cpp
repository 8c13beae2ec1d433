#include "driver/family.h"

namespace mero {

const std::vector<family_case>& family_cases() {
  static const std::vector<family_case> all = [] {
    std::vector<family_case> cases;
    for (auto part :
         {planar_cases(), multifacility_cases(), network_cases(), discrete_cases(), gauge_cases()})
      cases.insert(cases.end(), part.begin(), part.end());
    return cases;
  }();
  return all;
}

}  // namespace mero
