#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <vector>

#include "kernel/reporters.h"
#include "model/facilities.h"
#include "model/model_messages.h"

namespace mero {

namespace {

// One coordinate of the locations sorted and merged: equal coordinates become one entry whose
// weight is the sum of theirs in list order. first_weight is weight column 0 of the first of them
// in list order (the merged sum itself when column 0 is the one solved): an entry whose column 0
// is 0.0 never becomes an end of the set of optima.
struct merged_entry {
  double key;
  double weight;
  double first_weight;
};

// The list indices ordered by key, equal keys (0.0 and -0.0 among them) in list order: a stable
// least-significant-digit radix sort, 11 bits a pass, of an unsigned image of the keys that
// orders as the doubles do (no key is NaN: the readers never make one). O(n), where a comparison
// sort of a million keys was most of the run.
std::vector<std::size_t> stable_order(const std::vector<double>& keys) {
  struct item {
    std::uint64_t image;
    std::size_t index;
  };
  const std::size_t n = keys.size();
  std::vector<item> from(n), to(n);
  for (std::size_t i = 0; i < n; ++i) {
    const double key = keys[i] == 0.0 ? 0.0 : keys[i];
    std::uint64_t bits;
    std::memcpy(&bits, &key, sizeof bits);
    from[i] = {bits >> 63 ? ~bits : bits | (std::uint64_t{1} << 63), i};
  }
  constexpr int digit_bits = 11;
  constexpr std::size_t buckets = std::size_t{1} << digit_bits;
  for (int shift = 0; shift < 64; shift += digit_bits) {
    std::vector<std::size_t> start(buckets + 1, 0);
    for (const item& e : from) ++start[((e.image >> shift) & (buckets - 1)) + 1];
    // A digit that all keys share leaves the order as it is.
    if (std::any_of(start.begin() + 1, start.end(), [n](std::size_t c) { return c == n; }))
      continue;
    for (std::size_t b = 1; b <= buckets; ++b) start[b] += start[b - 1];
    for (const item& e : from) to[start[(e.image >> shift) & (buckets - 1)]++] = e;
    from.swap(to);
  }
  std::vector<std::size_t> order(n);
  for (std::size_t i = 0; i < n; ++i) order[i] = from[i].index;
  return order;
}

std::vector<merged_entry> sorted_merged_axis(const std::vector<double>& keys,
                                             const std::vector<double>& weights,
                                             const std::vector<double>& column_zero, int w) {
  std::vector<merged_entry> merged;
  for (const std::size_t i : stable_order(keys)) {
    const double key = keys[i];
    if (!merged.empty() && merged.back().key == key) {
      merged.back().weight += weights[i];
      if (w == 0) merged.back().first_weight = merged.back().weight;
    } else {
      merged.push_back({key, weights[i], column_zero[i]});
    }
  }
  return merged;
}

// The first entry after which the running sum of the weights is not below half; the sum there is
// left in sum. Exact comparisons: a tie with half is what makes a segment or a rectangle.
std::size_t walk_to_half(const std::vector<merged_entry>& merged, double half, double& sum) {
  sum = 0.0;
  for (std::size_t i = 0; i < merged.size(); ++i) {
    sum += merged[i].weight;
    if (!(sum < half)) return i;
  }
  report_error(model_messages::l1_no_median);
}

// The next entry in the given direction whose column 0 is not 0.0.
std::size_t step_forward(const std::vector<merged_entry>& merged, std::size_t from) {
  for (++from; from < merged.size(); ++from)
    if (merged[from].first_weight != 0.0) return from;
  report_error(model_messages::l1_no_corner);
}

std::size_t step_backward(const std::vector<merged_entry>& merged, std::size_t from) {
  while (from > 0)
    if (merged[--from].first_weight != 0.0) return from;
  report_error(model_messages::l1_no_corner);
}

}  // namespace

// Weighted single-facility median under the l1 distance: the two coordinates separate, so the
// set of optima is the product of the weighted medians of the x and of the y values, found by
// sorting, merging equal coordinates and walking to the half-sum. O(n log n) for the two sorts,
// on arrays of the coordinates read once from the list.
// optima receives a point, the two ends of an axis-parallel segment or the four corners of an
// axis-parallel rectangle, each with weight(0) = w. All weights zero: message, the run ends.
double facilities::l1_sum(int w, bool clear) {
  if (clear) optima_.clear();
  // Read in the order of the checked accessors' errors: x and the weights of every location,
  // then y.
  std::vector<double> xs, ys, weights, column_zero;
  xs.reserve(size());
  weights.reserve(size());
  column_zero.reserve(size());
  bool plane = true;  // every location of dimension 2
  for (const location& l : *this) {
    xs.push_back(l.coordinate(0));
    weights.push_back(l.weight(w));
    column_zero.push_back(l.weight(0));
    plane = plane && l.dim() == 2;
  }
  ys.reserve(size());
  for (const location& l : *this) ys.push_back(l.coordinate(1));
  const std::vector<merged_entry> mx = sorted_merged_axis(xs, weights, column_zero, w);
  const std::vector<merged_entry> my = sorted_merged_axis(ys, weights, column_zero, w);
  double total = 0.0;
  for (const merged_entry& e : mx) total += e.weight;
  if (mx.empty() || total == 0.0) {
    report_message(model_messages::l1_all_zero, false);
    return 0.0;
  }
  const double half = total * 0.5;
  double sx = 0.0;
  double sy = 0.0;
  const std::size_t x = walk_to_half(mx, half, sx);
  const std::size_t y = walk_to_half(my, half, sy);
  if (!(sx >= half && sy >= half)) report_error(model_messages::l1_no_median);

  location corner(2, 1);
  corner.weight_ref(0) = w;
  auto append = [&](std::size_t at_x, std::size_t at_y) {
    corner.coordinate_ref(0) = mx[at_x].key;
    corner.coordinate_ref(1) = my[at_y].key;
    optima_.push_back(corner);
  };
  append(x, y);
  if (sx > half && sy == half) {
    append(x, step_forward(my, y));
  } else if (sx == half && sy > half) {
    append(step_forward(mx, x), y);
  } else if (sx == half && sy == half) {
    // Corner by corner around the rectangle, so that the four entries form a polygon.
    const std::size_t x2 = step_forward(mx, x);
    const std::size_t y2 = step_forward(my, y);
    append(x2, y);
    append(x2, y2);
    append(step_backward(mx, x2), y2);
  }
  // The value at the first optimum held (an earlier result when clear is false), summed in list
  // order: |dx| + |dy| is the l1 norm of the difference as Loc_Vector computes it; locations or
  // an optimum of another dimension take the general sum.
  const location& at = optima_.front();
  if (!plane || at.dim() != 2) return objective(1, w);
  const double cx = at.coordinate(0);
  const double cy = at.coordinate(1);
  double value = 0.0;
  for (std::size_t i = 0; i < xs.size(); ++i)
    value += (std::fabs(xs[i] - cx) + std::fabs(ys[i] - cy)) * weights[i];
  return value;
}

}  // namespace mero
