// Two weightings under the rectilinear and the maximum norm, as gauge problems.

#include <vector>

#include "gauge/polygauge.h"
#include "model/facilities.h"

namespace mero {

namespace {

double bi_crit_with(facilities& f, const polygauge& gauge, bool clear) {
  const std::vector<polygauge> gauges{gauge};
  const std::vector<int> numbers(f.size(), 0);
  return f.bi_crit_gauge_median(gauges, numbers, clear);
}

}  // namespace

// The efficient set of the l1 medians of weight columns 0 and 1: bi_crit_gauge_median with the
// l1 unit ball (1,0), (0,1), (-1,0), (0,-1) at every location; its checks, result and value.
double facilities::l1_2sum(bool clear) {
  return bi_crit_with(*this, polygauge({point(1, 0), point(0, 1), point(-1, 0), point(0, -1)}),
                      clear);
}

// The same with the maximum-norm ball (1,1), (-1,1), (-1,-1), (1,-1).
double facilities::linf_2sum(bool clear) {
  return bi_crit_with(*this, polygauge({point(1, 1), point(-1, 1), point(-1, -1), point(1, -1)}),
                      clear);
}

}  // namespace mero
