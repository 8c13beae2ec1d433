#pragma once
// What the N-problems share: the start test, the data they read (distances of a private copy and
// head weights), the three starting sets of the improving heuristics, and the result points.

#include <vector>

#include "kernel/index.h"
#include "network/location_graph.h"

namespace mero::n_problem {

// The start test of every N-problem: the ending message when g has fewer than n_new nodes,
// error 2004 when n_new is below 1. Returns false if the message's reporter came back.
bool start(const location_graph& g, int n_new);

struct data {
  std::vector<double> d;  // distances of a private copy, unrepaired, row by row
  std::vector<double> w;  // head weights in node order
  int n = 0;
  // D(a, b); the heuristics read it some n^2 N times, so it is kept flat.
  double dist(int a, int b) const { return d[at(a * n + b)]; }
  double cost(int f, int i) const { return dist(f, i) * w[at(i)]; }
};
data read(const location_graph& g);

// The facilities of an attempt, assignment of each node to an ordinal, and the objective.
struct solution {
  std::vector<int> facilities;
  std::vector<int> assignment;
  double objective = network_infinity;
};

// The first n_new nodes, the last n_new, and every second node when 2 n_new <= n.
std::vector<std::vector<int>> starting_sets(int n, int n_new);

// Runs attempt on each starting set and keeps the strictly smallest objective, starting from
// 1e50 (the first of equals stays).
template <typename attempt_fn>
solution best_attempt(int n, int n_new, attempt_fn attempt) {
  solution best;
  for (const std::vector<int>& start : starting_sets(n, n_new)) {
    solution s = attempt(start);
    if (s.objective < best.objective) best = std::move(s);
  }
  return best;
}

graphpointset node_points(const std::vector<int>& facilities);

// Hands a solution to the caller's out arguments and returns its points.
graphpointset finish(solution s, double& value, std::vector<int>& assignment);

}  // namespace mero::n_problem
