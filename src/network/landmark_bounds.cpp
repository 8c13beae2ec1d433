#include "network/landmark_bounds.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

#include "kernel/index.h"

namespace mero {

landmark_bounds::landmark_bounds(shortest_path_rows& rows, const std::vector<double>& w, int count)
    : w_(w) {
  const int n = rows.size();
  if (n == 0) return;
  std::vector<double> nearest(at(n), std::numeric_limits<double>::infinity()), row(at(n));
  rows.row(0, row.data(), -1.0);
  int next = static_cast<int>(std::max_element(row.begin(), row.end()) - row.begin());
  for (int k = 0; k < std::min(count, n); ++k) {
    rows.row(next, row.data(), -1.0);
    for (int v = 0; v < n; ++v) {
      if (!rows.reached(v) || row[at(v)] > 1e50) complete_ = false;
      nearest[at(v)] = std::min(nearest[at(v)], row[at(v)]);
    }
    rows_.push_back(row);
    next = static_cast<int>(std::max_element(nearest.begin(), nearest.end()) - nearest.begin());
  }
}

std::vector<double> landmark_bounds::farthest() const {
  std::vector<double> bound(w_.size(), 0.0);
  for (const std::vector<double>& d : rows_) {
    std::size_t far = 0;
    for (std::size_t j = 0; j < d.size(); ++j)
      if (d[j] * w_[j] > d[far] * w_[far]) far = j;
    const std::size_t b = at(static_cast<int>(std::min_element(d.begin(), d.end()) - d.begin()));
    for (std::size_t x = 0; x < d.size(); ++x)
      bound[x] = std::max({bound[x], d[x] * w_[b], (d[far] - d[x]) * w_[far]});
  }
  return bound;
}

std::vector<double> landmark_bounds::doubled_sum() const {
  const std::size_t n = w_.size();
  std::vector<double> bound(n, 0.0);
  // Relative rounding of a sum of n non-negative terms, with room to spare.
  const long double slack = 8.0L * (static_cast<long double>(n) + 8.0L) * 0x1p-53L;
  std::vector<int> order(n);
  std::vector<long double> weight(n + 1), moment(n + 1);  // prefix sums of w and w D in order
  for (const std::vector<double>& d : rows_) {
    std::iota(order.begin(), order.end(), 0);
    std::sort(order.begin(), order.end(), [&](int a, int b) { return d[at(a)] < d[at(b)]; });
    for (std::size_t k = 0; k < n; ++k) {
      weight[k + 1] = weight[k] + w_[at(order[k])];
      moment[k + 1] = moment[k] + static_cast<long double>(w_[at(order[k])]) * d[at(order[k])];
    }
    for (std::size_t k = 0; k < n; ++k) {
      // Nodes before place k lie no farther from the landmark than x (ties count either way).
      const long double t = d[at(order[k])];
      const long double below = t * weight[k] - moment[k];
      const long double above = (moment[n] - moment[k]) - t * (weight[n] - weight[k]);
      const long double size = t * weight[n] + moment[n];
      const long double lower = 2.0L * ((below + above) * (1.0L - slack) - slack * size);
      bound[at(order[k])] = std::max(bound[at(order[k])], static_cast<double>(lower));
    }
  }
  return bound;
}

void landmark_bounds::differences(int x, std::vector<double>& out) const {
  out.assign(w_.size(), 0.0);
  for (const std::vector<double>& d : rows_) {
    const double dx = d[at(x)];
    for (std::size_t j = 0; j < out.size(); ++j) out[j] = std::max(out[j], std::fabs(dx - d[j]));
  }
}

std::vector<int> order_by(const std::vector<double>& bound) {
  std::vector<int> order(bound.size());
  std::iota(order.begin(), order.end(), 0);
  std::stable_sort(order.begin(), order.end(),
                   [&](int a, int b) { return bound[at(a)] < bound[at(b)]; });
  return order;
}

}  // namespace mero
