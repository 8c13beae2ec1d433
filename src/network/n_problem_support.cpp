#include "network/n_problem_support.h"

#include "kernel/reporters.h"
#include "network/network_messages.h"

namespace mero::n_problem {

bool start(const location_graph& g, int n_new) {
  if (g.number_of_nodes() < n_new) {
    report_message(network_messages::fewer_nodes_than_n, false);
    return false;
  }
  if (n_new < 1) report_error(network_messages::no_new_facility);
  return true;
}

data read(const location_graph& g) {
  location_graph copy(g);
  const matrix d = distance_matrix(copy);
  data x{{}, head_weights(copy), d.dim1()};
  x.d.reserve(at(x.n) * at(x.n));
  for (int a = 0; a < x.n; ++a)
    for (int b = 0; b < x.n; ++b) x.d.push_back(d(a, b));
  return x;
}

std::vector<std::vector<int>> starting_sets(int n, int n_new) {
  std::vector<std::vector<int>> sets(2);
  for (int k = 0; k < n_new; ++k) {
    sets[0].push_back(k);
    sets[1].push_back(n - n_new + k);
  }
  if (2 * n_new <= n) {
    sets.emplace_back();
    for (int k = 0; k < n_new; ++k) sets[2].push_back(2 * k);
  }
  return sets;
}

graphpointset node_points(const std::vector<int>& facilities) {
  graphpointset points;
  for (int f : facilities) points.push_back({f, f, 0.0});
  return points;
}

graphpointset finish(solution s, double& value, std::vector<int>& assignment) {
  value = s.objective;
  assignment = std::move(s.assignment);
  return node_points(s.facilities);
}

}  // namespace mero::n_problem
