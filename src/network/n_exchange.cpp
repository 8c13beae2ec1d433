#include <vector>

#include "kernel/index.h"
#include "network/n_problem_support.h"
#include "network/n_problems.h"

namespace mero {

namespace {

// Where each node goes among facilities f: to the least distance D(f[j], i), the highest ordinal
// among equals (the scan runs from N-1 down and moves only on a strictly smaller distance). Also
// kept: the same choice among all facilities but the chosen one, which a swap at the chosen
// ordinal falls back to (-1 when there is no other facility).
struct allocation {
  std::vector<int> nearest;
  std::vector<int> runner_up;
};

// The better of ordinal a (distance da) and ordinal b (distance db) under the rule above.
int better(int a, double da, int b, double db) {
  if (da < db) return a;
  if (db < da) return b;
  return a > b ? a : b;
}

allocation assign(const n_problem::data& x, const std::vector<int>& f) {
  const int n_new = static_cast<int>(f.size());
  allocation r{std::vector<int>(at(x.n)), std::vector<int>(at(x.n), -1)};
  for (int i = 0; i < x.n; ++i) {
    int a = n_new - 1;
    for (int j = n_new - 2; j >= 0; --j)
      if (x.dist(f[j], i) < x.dist(f[a], i)) a = j;
    int s = -1;
    for (int j = n_new - 1; j >= 0; --j)
      if (j != a && (s < 0 || x.dist(f[j], i) < x.dist(f[s], i))) s = j;
    r.nearest[i] = a;
    r.runner_up[i] = s;
  }
  return r;
}

double total(const n_problem::data& x, const std::vector<int>& f, const allocation& a) {
  double z = 0.0;
  for (int i = 0; i < x.n; ++i) z += x.dist(f[a.nearest[i]], i) * x.w[i];
  return z;
}

// The change of the sum when facility k takes ordinal j: the nodes that k would win, and those
// of j that fall back to another facility. b is where node i goes after the swap.
double swap_delta(const n_problem::data& x, const std::vector<int>& f, const allocation& a, int j,
                  int k) {
  double delta = 0.0;
  for (int i = 0; i < x.n; ++i) {
    const int own = a.nearest[i];
    const int rest = own == j ? a.runner_up[i] : own;
    const int b = rest < 0 ? j : better(j, x.dist(k, i), rest, x.dist(f[rest], i));
    if (b == j)
      delta += (x.dist(i, k) - x.dist(i, f[own])) * x.w[i];
    else if (own == j)
      delta += (x.dist(i, f[b]) - x.dist(i, f[own])) * x.w[i];
  }
  return delta;
}

// One pass over the candidates that are not open: each takes, at once, the ordinal where it
// gains most, if that gain is positive (the first of equal gains).
void exchange_pass(const n_problem::data& x, std::vector<int>& f) {
  std::vector<char> open(at(x.n), 0);
  for (int v : f) open[v] = 1;
  allocation a = assign(x, f);
  for (int k = 0; k < x.n; ++k) {
    if (open[k]) continue;
    double best_delta = network_infinity;
    int best_j = 0;
    for (int j = 0; j < static_cast<int>(f.size()); ++j) {
      const double delta = swap_delta(x, f, a, j, k);
      if (delta < best_delta) {
        best_delta = delta;
        best_j = j;
      }
    }
    if (best_delta < 0) {
      open[f[best_j]] = 0;
      open[k] = 1;
      f[best_j] = k;
      a = assign(x, f);
    }
  }
}

n_problem::solution attempt(const n_problem::data& x, std::vector<int> f) {
  double z = total(x, f, assign(x, f)), value = 0.0;
  do {
    value = z;
    exchange_pass(x, f);
    z = total(x, f, assign(x, f));
  } while (z < value);
  return {f, assign(x, f).nearest, z};
}

}  // namespace

graphpointset n_exchange(const location_graph& g, int n_new, double& value,
                         std::vector<int>& assignment) {
  if (!n_problem::start(g, n_new)) return {};
  const n_problem::data x = n_problem::read(g);
  n_problem::solution best = n_problem::best_attempt(
      x.n, n_new, [&](const std::vector<int>& start) { return attempt(x, start); });
  return n_problem::finish(std::move(best), value, assignment);
}

}  // namespace mero
