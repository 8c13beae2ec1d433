#include "discrete/discrete_problem.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "discrete/cost_table.h"
#include "discrete/discrete_messages.h"
#include "kernel/reporters.h"

namespace mero {

cost_table make_cost_table(const discrete_problem& problem) {
  if (problem.demand.empty() || problem.supply.empty())
    report_error(discrete_messages::empty_problem);
  cost_table t;
  t.m = static_cast<int>(problem.demand.size());
  t.n = static_cast<int>(problem.supply.size());
  if (problem.cost.dim1() != t.m || problem.cost.dim2() != t.n)
    report_error(discrete_messages::cost_shape);
  t.c.reserve(static_cast<std::size_t>(t.m) * t.n);
  for (int i = 0; i < t.m; ++i)
    for (int j = 0; j < t.n; ++j) t.c.push_back(problem.cost(i, j));
  for (const location& s : problem.supply) t.f.push_back(s.weight(0));
  return t;
}

cost_table make_heuristic_cost_table(const discrete_problem& problem) {
  cost_table t = make_cost_table(problem);
  auto too_large = [](double x) { return !(std::fabs(x) <= infinite_cost); };
  if (std::any_of(t.c.begin(), t.c.end(), too_large) ||
      std::any_of(t.f.begin(), t.f.end(), too_large))
    report_error(discrete_messages::cost_magnitude);
  return t;
}

void publish_solution(discrete_problem& problem, const cost_table& t,
                      const std::vector<int>& open) {
  problem.assignment = matrix(t.m, t.n);
  for (int i = 0; i < t.m; ++i) {
    if (open.empty()) break;
    // A demand point that every open facility charges 1e50 still has to be served: it goes to
    // the first open one.
    int winner = open.front();
    double best = infinite_cost;
    for (int j : open)
      if (t(i, j) < best) {
        best = t(i, j);
        winner = j;
      }
    problem.assignment(i, winner) = 1.0;
  }
  std::vector<const location*> by_index;
  for (const location& s : problem.supply) by_index.push_back(&s);
  problem.opt.clear();
  for (int j : open) problem.opt.push_back(*by_index[j]);
}

}  // namespace mero
