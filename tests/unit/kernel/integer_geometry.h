#pragma once
// Exact segment predicates on 64-bit integers, written independently of the kernel's double
// versions: on small integer coordinates both must agree, so tests use these as the oracle.

#include <algorithm>
#include <array>
#include <cstdint>

namespace mero::testing {

using int_segment = std::array<std::int64_t, 4>;  // x1, y1, x2, y2

inline int sign_of_turn(std::int64_t ax, std::int64_t ay, std::int64_t bx, std::int64_t by,
                        std::int64_t cx, std::int64_t cy) {
  std::int64_t cross = (bx - ax) * (cy - ay) - (by - ay) * (cx - ax);
  return (cross > 0) - (cross < 0);
}

// p, known to be collinear with s, lies within s's bounding box.
inline bool in_box(const int_segment& s, std::int64_t px, std::int64_t py) {
  return std::min(s[0], s[2]) <= px && px <= std::max(s[0], s[2]) && std::min(s[1], s[3]) <= py &&
         py <= std::max(s[1], s[3]);
}

inline bool on_segment(const int_segment& s, std::int64_t px, std::int64_t py) {
  return sign_of_turn(s[0], s[1], s[2], s[3], px, py) == 0 && in_box(s, px, py);
}

// The closed segments share a point.
inline bool meet(const int_segment& s, const int_segment& t) {
  int d1 = sign_of_turn(t[0], t[1], t[2], t[3], s[0], s[1]);
  int d2 = sign_of_turn(t[0], t[1], t[2], t[3], s[2], s[3]);
  int d3 = sign_of_turn(s[0], s[1], s[2], s[3], t[0], t[1]);
  int d4 = sign_of_turn(s[0], s[1], s[2], s[3], t[2], t[3]);
  if (d1 * d2 < 0 && d3 * d4 < 0) return true;
  return on_segment(t, s[0], s[1]) || on_segment(t, s[2], s[3]) || on_segment(s, t[0], t[1]) ||
         on_segment(s, t[2], t[3]);
}

}  // namespace mero::testing
