#pragma once
// The check every reader harness makes after a successful read: no number the reader handed on
// may be nan or infinite (the L_INF token stands for 1e50, a finite number).

#include <cmath>

#include "fuzz_support.h"
#include "model/location.h"

namespace mero::fuzz {

inline void require_finite(double value) {
  if (!std::isfinite(value)) finding("a reader accepted a number that is not finite");
}

// Every coordinate and weight of a list of locations or of a facilities object.
template <class Locations>
void require_finite(const Locations& list) {
  for (const location& l : list) {
    for (int i = 0; i < l.dim(); ++i) require_finite(l.coordinate(i));
    for (int i = 0; i < l.weight_dim(); ++i) require_finite(l.weight(i));
  }
}

}  // namespace mero::fuzz
