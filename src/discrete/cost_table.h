#pragma once
// The working data that every discrete solver copies from a discrete_problem at its start: the
// cost matrix C (m demand rows by n supply columns, stored densely row by row for the solvers'
// inner loops) and the fixed costs f, the first weight of each supply location.

#include <cstddef>
#include <vector>

namespace mero {

class discrete_problem;

// 1e50 stands for "not allowed" in costs and fixed costs; the solvers treat it as a large number.
inline constexpr double infinite_cost = 1e50;

struct cost_table {
  int m = 0;  // demand points
  int n = 0;  // supply points
  std::vector<double> c;
  std::vector<double> f;

  double operator()(int i, int j) const {
    return c[static_cast<std::size_t>(i) * static_cast<std::size_t>(n) + j];
  }
  const double* row(int i) const { return c.data() + static_cast<std::size_t>(i) * n; }
};

// An open set (ascending supply indices) with the objective value the solver computed for it.
struct open_solution {
  double value = 0.0;
  std::vector<int> open;
};

// Copies the problem's costs. A problem without demand or without supply points is reported with
// the empty-problem message, so that no solver ever meets one.
cost_table make_cost_table(const discrete_problem& problem);
// The same for the heuristics, which add costs as ordinary numbers: a cost or fixed cost larger
// in size than L_INF (1e50) would overflow their sums or outweigh the forbidding L_INF, and is
// reported (3111).
cost_table make_heuristic_cost_table(const discrete_problem& problem);

// Writes a solution into the problem: for each demand point the open supply point with the strict
// smallest cost (the earliest on ties) gets 1.0 in `assignment`, and `opt` receives a copy of each
// open supply location in ascending order.
void publish_solution(discrete_problem& problem, const cost_table& t, const std::vector<int>& open);

}  // namespace mero
