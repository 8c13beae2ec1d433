#pragma once
// Exact segment predicates on 64-bit integers, written independently of the kernel's double
// versions: on small integer coordinates both must agree, so tests use these as the oracle.

#include <algorithm>
#include <array>
#include <cstdint>

namespace mero::testing {

using int_segment = std::array<std::int64_t, 4>;  // x1, y1, x2, y2

// 1 if (x, y) lies left of s's direction, -1 right, 0 on its line (always 0 for a point).
inline int turn(const int_segment& s, std::int64_t x, std::int64_t y) {
  std::int64_t cross = (s[2] - s[0]) * (y - s[1]) - (s[3] - s[1]) * (x - s[0]);
  return (cross > 0) - (cross < 0);
}

inline bool on_segment(const int_segment& s, std::int64_t x, std::int64_t y) {
  return turn(s, x, y) == 0 && std::min(s[0], s[2]) <= x && x <= std::max(s[0], s[2]) &&
         std::min(s[1], s[3]) <= y && y <= std::max(s[1], s[3]);
}

// Each segment's ends lie strictly on opposite sides of the other's line.
inline bool cross_properly(const int_segment& s, const int_segment& t) {
  return turn(t, s[0], s[1]) * turn(t, s[2], s[3]) < 0 &&
         turn(s, t[0], t[1]) * turn(s, t[2], t[3]) < 0;
}

// The closed segments share a point.
inline bool meet(const int_segment& s, const int_segment& t) {
  return cross_properly(s, t) || on_segment(t, s[0], s[1]) || on_segment(t, s[2], s[3]) ||
         on_segment(s, t[0], t[1]) || on_segment(s, t[2], t[3]);
}

}  // namespace mero::testing
