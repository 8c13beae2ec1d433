#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <optional>
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

// A coordinate with the weight of its location, for the selection below.
struct keyed {
  double key;
  double weight;
};

// True when every weight is a non-negative multiple of 2^-10 and their sum stays below 2^43:
// then every partial sum is a multiple of 2^-10 below 2^53, exact in a double, so sums in any
// order are equal to the sums in sorted order that the walk to the half-sum forms.
constexpr double exact_scale = 1024.0;
constexpr double exact_bound = 8796093022208.0;  // 2^43

bool exactly_summable(double weight) {
  const double scaled = weight * exact_scale;
  return weight >= 0.0 && scaled == std::floor(scaled) && weight < exact_bound;
}

struct axis_median {
  double key;   // the median coordinate: the smallest whose weight and all below reach half
  double sum;   // the weight of that coordinate and of all below it
  double next;  // when sum is half: the next larger coordinate of positive weight
};

// The weighted median of one axis without sorting: quickselect on the keys (pivot the median
// of three), keeping the weight of everything left of the range, O(n) expected. Valid only for
// exactly summable weights of positive total (then the sums equal those of the sorted walk, and
// the first coordinate reaching half is the one the walk stops at). Gives up, for the sorted
// walk to take over, when the ranges shrink too slowly (a pivot sequence against the input).
std::optional<axis_median> select_axis_median(std::vector<keyed>& items, double half) {
  std::size_t lo = 0, hi = items.size();
  double below = 0.0;
  int rounds = 16 + 4 * static_cast<int>(std::bit_width(items.size()));
  while (lo < hi && rounds-- > 0) {
    const double a = items[lo].key, b = items[lo + (hi - lo) / 2].key, c = items[hi - 1].key;
    const double pivot = std::max(std::min(a, b), std::min(std::max(a, b), c));
    const auto first = items.begin() + static_cast<std::ptrdiff_t>(lo);
    const auto last = items.begin() + static_cast<std::ptrdiff_t>(hi);
    const auto equal =
        std::partition(first, last, [pivot](const keyed& e) { return e.key < pivot; });
    const auto above =
        std::partition(equal, last, [pivot](const keyed& e) { return !(pivot < e.key); });
    double smaller = 0.0, same = 0.0;
    for (auto it = first; it != equal; ++it) smaller += it->weight;
    for (auto it = equal; it != above; ++it) same += it->weight;
    if (below + smaller >= half) {
      hi = static_cast<std::size_t>(equal - items.begin());
    } else if (below + smaller + same >= half) {
      axis_median m{pivot, below + smaller + same, 0.0};
      // Everything right of the range is larger than it; with the part above the pivot, that is
      // every larger coordinate. Weight remains there (total - half = half > 0).
      if (m.sum == half) {
        bool found = false;
        for (auto it = above; it != items.end(); ++it)
          if (it->weight > 0.0 && (!found || it->key < m.next)) {
            m.next = it->key;
            found = true;
          }
      }
      return m;
    } else {
      below += smaller + same;
      lo = static_cast<std::size_t>(above - items.begin());
    }
  }
  return std::nullopt;
}

}  // namespace

// The quick form of l1_sum for the common case: plane locations and exactly summable weights of
// positive total. It appends the optima that the sorted walk would and returns true; otherwise it
// changes nothing and returns false, and the sorted walk decides (the error cases in their order,
// and a tie with the half-sum on a column other than 0, where the neighbour that ends the segment
// is the one whose first location in list order has a column 0 other than 0.0). On column 0 that
// neighbour is simply the next coordinate of positive weight, and the coordinate reaching half
// has positive weight itself, so the walk back from the neighbour returns to it.
bool facilities::l1_median_by_selection(int w) {
  if (w < 0 || empty()) return false;
  double total = 0.0;
  for (const location& l : *this) {
    if (l.dim() != 2 || l.weight_dim() <= w) return false;
    const double weight = l.weights()[w];
    if (!exactly_summable(weight)) return false;
    total += weight;
  }
  if (!(total > 0.0) || !(total < exact_bound)) return false;
  const double half = total * 0.5;
  std::vector<keyed> items(size());
  axis_median m[2];
  for (int axis = 0; axis < 2; ++axis) {
    for (std::size_t i = 0; i < size(); ++i)
      items[i] = {(*this)[i].coordinates()[axis], (*this)[i].weights()[w]};
    const std::optional<axis_median> found = select_axis_median(items, half);
    if (!found || (found->sum == half && w != 0)) return false;
    m[axis] = *found;
  }
  // Equal coordinates merge into the first of them in list order, which tells 0.0 from -0.0.
  auto as_merged = [this](int axis, double key) {
    if (key == 0.0)
      for (const location& l : *this)
        if (l.coordinates()[axis] == 0.0) return l.coordinates()[axis];
    return key;
  };
  const double x = as_merged(0, m[0].key), y = as_merged(1, m[1].key);
  auto append = [&](double cx, double cy) {
    optima_.push_back(location(2.0, 1.0, cx, cy, static_cast<double>(w)));
  };
  append(x, y);
  const bool x_tied = m[0].sum == half, y_tied = m[1].sum == half;
  if (x_tied && y_tied) {
    // Corner by corner around the rectangle, so that the four entries form a polygon.
    const double x2 = as_merged(0, m[0].next), y2 = as_merged(1, m[1].next);
    append(x2, y);
    append(x2, y2);
    append(x, y2);
  } else if (y_tied) {
    append(x, as_merged(1, m[1].next));
  } else if (x_tied) {
    append(as_merged(0, m[0].next), y);
  }
  return true;
}

// Weighted single-facility median under the l1 distance: the two coordinates separate, so the
// set of optima is the product of the weighted medians of the x and of the y values, found by
// sorting, merging equal coordinates and walking to the half-sum. O(n log n) for the two sorts,
// on arrays of the coordinates read once from the list.
// optima receives a point, the two ends of an axis-parallel segment or the four corners of an
// axis-parallel rectangle, each with weight(0) = w. All weights zero: message, the run ends.
double facilities::l1_sum(int w, bool clear) {
  if (clear) optima_.clear();
  if (l1_median_by_selection(w)) return l1_value_at_first_optimum(w);
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
  if (!plane) return objective(1, w);
  return l1_value_at_first_optimum(w);
}

// The value at the first optimum held (an earlier result when clear is false), summed in list
// order: |dx| + |dy| is the l1 norm of the difference as Loc_Vector computes it; an optimum of
// another dimension takes the general sum. Every location has dimension 2 and weight column w.
double facilities::l1_value_at_first_optimum(int w) const {
  const location& at = optima_.front();
  if (at.dim() != 2) return objective(1, w);
  const double cx = at.coordinate(0);
  const double cy = at.coordinate(1);
  double value = 0.0;
  for (const location& l : *this) {
    const double* c = l.coordinates().data();
    value += (std::fabs(c[0] - cx) + std::fabs(c[1] - cy)) * l.weights()[w];
  }
  return value;
}

}  // namespace mero
