#include <vector>

#include "kernel/index.h"
#include "network/graph_center.h"
#include "network/graph_median.h"
#include "network/n_problem_support.h"
#include "network/n_problems.h"

namespace mero {

namespace {

// The nodes' distances to their nearest facility among those placed, and its ordinal. A new
// facility at the next ordinal wins every tie: the assignment scan starts at it and moves to a
// lower ordinal only on a strictly smaller distance.
struct nearest_facility {
  std::vector<double> distance;
  std::vector<int> ordinal;

  void add(const n_problem::data& x, int facility, int k) {
    for (int i = 0; i < x.n; ++i)
      if (k == 0 || x.dist(facility, i) <= distance[i]) {
        distance[i] = x.dist(facility, i);
        ordinal[i] = k;
      }
  }
};

// The objective with candidate c added to what `near` holds.
double objective_with(const n_problem::data& x, const nearest_facility& near, int c,
                      n_objective mode) {
  double sum = 0.0, largest = -network_infinity;
  for (int i = 0; i < x.n; ++i) {
    const double d = x.dist(c, i) <= near.distance[i] ? x.dist(c, i) : near.distance[i];
    const double cost = d * x.w[i];
    sum += cost;
    if (cost > largest) largest = cost;
  }
  return mode == n_objective::sum ? sum : largest;
}

// The 1-median or node center of a private copy, which repairs the copy if need be.
int first_facility(const location_graph& g, n_objective mode, double& value) {
  location_graph copy(g);
  graphpointset best =
      mode == n_objective::sum ? graph_median(copy, 'u', value) : node_center(copy, value);
  return best.front().first;
}

}  // namespace

graphpointset n_greedy(const location_graph& g, int n_new, n_objective mode, double& value,
                       std::vector<int>& assignment) {
  if (!n_problem::start(g, n_new)) return {};
  const n_problem::data x = n_problem::read(g);
  std::vector<int> f{first_facility(g, mode, value)};
  nearest_facility near{std::vector<double>(at(x.n)), std::vector<int>(at(x.n))};
  near.add(x, f[0], 0);
  std::vector<char> placed(at(x.n), 0);
  placed[f[0]] = 1;
  for (int k = 1; k < n_new; ++k) {
    // The earliest candidate of least objective; if none falls below 1e50, the first one.
    double best = network_infinity;
    int chosen = -1, first_candidate = -1;
    for (int c = 0; c < x.n; ++c) {
      if (placed[c]) continue;
      if (first_candidate < 0) first_candidate = c;
      const double z = objective_with(x, near, c, mode);
      if (z < best) {
        best = z;
        chosen = c;
      }
    }
    if (chosen < 0) chosen = first_candidate;
    f.push_back(chosen);
    placed[chosen] = 1;
    near.add(x, chosen, k);
    value = best;
  }
  assignment = near.ordinal;
  return n_problem::node_points(f);
}

}  // namespace mero
