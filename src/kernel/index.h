#pragma once
// Indices into standard containers from the int counts and numbers that the program's objects
// use: at(i) says "the place of i" without a cast at every subscript.

#include <cstddef>

#include "kernel/graph.h"

namespace mero {

// i must be non-negative.
inline std::size_t at(int i) { return static_cast<std::size_t>(i); }
// The place of a graph item in tables indexed by item number.
inline std::size_t at(node v) { return static_cast<std::size_t>(graph::index(v)); }
inline std::size_t at(edge e) { return static_cast<std::size_t>(graph::index(e)); }

}  // namespace mero
