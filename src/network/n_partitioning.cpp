#include <vector>

#include "kernel/index.h"
#include "network/graph_center.h"
#include "network/graph_median.h"
#include "network/n_problem_support.h"
#include "network/n_problems.h"

namespace mero {

namespace {

using parts = std::vector<std::vector<int>>;

// The 1-facility solution of the subgraph that part induces, as a node of the whole graph. The
// work copy is the whole graph without the nodes outside the part; the solver repairs it if the
// part falls apart, with its message. An empty part (its facility tied at distance 0 with a
// lower one) keeps its facility.
int part_facility(const location_graph& g, const std::vector<int>& part, n_objective mode,
                  int current) {
  if (part.empty()) return current;
  location_graph work(g);
  std::vector<char> inside(at(g.number_of_nodes()), 0);
  for (int i : part) inside[at(i)] = 1;
  std::vector<node> nodes = work.all_nodes();
  for (std::size_t k = 0; k < nodes.size(); ++k)
    if (!inside[k]) work.del_node(nodes[k]);
  double value = 0.0;
  graphpointset best =
      mode == n_objective::sum ? graph_median(work, 'u', value) : node_center(work, value);
  return part[at(best.front().first)];
}

// Each node joins the first facility, in ordinal order, at its least distance.
parts allocate(const n_problem::data& x, const std::vector<int>& f) {
  const int n_new = static_cast<int>(f.size());
  std::vector<double> nearest(at(x.n), network_infinity);
  for (int i = 0; i < x.n; ++i)
    for (int j = 0; j < n_new; ++j)
      if (x.dist(f[j], i) < nearest[i]) nearest[i] = x.dist(f[j], i);
  parts p(f.size());
  std::vector<char> placed(at(x.n), 0);
  for (int j = 0; j < n_new; ++j)
    for (int i = 0; i < x.n; ++i)
      if (x.dist(f[j], i) == nearest[i] && !placed[i]) {
        p[j].push_back(i);
        placed[i] = 1;
      }
  return p;
}

double objective_of(const n_problem::data& x, const std::vector<int>& f, const parts& p,
                    n_objective mode) {
  double sum = 0.0, largest = -network_infinity;
  for (std::size_t j = 0; j < f.size(); ++j)
    for (int i : p[j]) {
      sum += x.cost(f[j], i);
      if (x.cost(f[j], i) > largest) largest = x.cost(f[j], i);
    }
  return mode == n_objective::sum ? sum : largest;
}

// One attempt: alternate allocation and relocation while the objective falls strictly; the
// state that failed to improve is the attempt's result.
n_problem::solution attempt(const location_graph& g, const n_problem::data& x, std::vector<int> f,
                            n_objective mode) {
  double objective = network_infinity;
  parts p;
  for (bool first = true;; first = false) {
    const double previous = objective;
    if (!first)
      for (std::size_t j = 0; j < f.size(); ++j) f[j] = part_facility(g, p[j], mode, f[j]);
    p = allocate(x, f);
    objective = objective_of(x, f, p, mode);
    if (!(objective < previous)) break;
  }
  std::vector<int> assignment(at(x.n), 0);
  for (std::size_t j = 0; j < p.size(); ++j)
    for (int i : p[j]) assignment[at(i)] = static_cast<int>(j);
  return {std::move(f), std::move(assignment), objective};
}

}  // namespace

graphpointset n_partitioning(const location_graph& g, int n_new, n_objective mode, double& value,
                             std::vector<int>& assignment) {
  if (!n_problem::start(g, n_new)) return {};
  const n_problem::data x = n_problem::read(g);
  n_problem::solution best = n_problem::best_attempt(
      x.n, n_new, [&](const std::vector<int>& start) { return attempt(g, x, start, mode); });
  return n_problem::finish(std::move(best), value, assignment);
}

}  // namespace mero
