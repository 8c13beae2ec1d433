#pragma once
// N new facilities at nodes of an undirected graph: the N-median by an integer program and the
// N-median and N-center by heuristics. Each routine returns N node points and fills
// `assignment`, one entry per node in node order. None repairs a disconnected graph itself, so
// nodes of different components read distance 0 from each other.
//
// Each starts with two tests: a graph of fewer than N nodes ends the run with the message
// "Number of nodes is smaller than N" (exit status 0), and N below 1 is error 2004.

#include <vector>

#include "network/location_graph.h"

namespace mero {

enum class n_objective { sum, max };

// Exact N-median as a binary program of n*n variables x[f*n + i], "f serves i" (ReVelle and
// Swain 1970), solved by lp_solve's branch and bound: exponential in the worst case, quadratic
// in size. assignment[i] is the node number of the facility serving i; the facilities come in
// ascending node order. The solver's status is not examined.
graphpointset n_median_exact(const location_graph& g, int n_new, double& value,
                             std::vector<int>& assignment);

// Alternating location and allocation (Maranzana 1964): nodes go to their nearest facility (the
// lower ordinal on ties), then each part gets the 1-median (sum) or node center (max) of its
// induced subgraph, until the objective stops falling strictly. Runs from the first N, the last
// N and every second node (if 2N <= n) and keeps the strictly best. assignment[i] is the ordinal
// of i's facility in the result. Each round costs N subgraph solves and copies of the graph.
graphpointset n_partitioning(const location_graph& g, int n_new, n_objective mode, double& value,
                             std::vector<int>& assignment);

// Vertex substitution for the N-median (Teitz and Bart 1968): each node not open, in order,
// replaces the facility where that gains most if the gain is positive, at once; passes repeat
// while the sum falls. Nodes go to the nearest facility, the higher ordinal on ties. Same three
// starts as n_partitioning; assignment[i] is an ordinal. O(n^2 N) per pass.
graphpointset n_exchange(const location_graph& g, int n_new, double& value,
                         std::vector<int>& assignment);

// Greedy adding (Kuehn and Hamburger 1963): the 1-median (sum) or node center (max) of the graph,
// then N-1 times the node that lowers the objective most, the earliest of equals; nodes go to the
// nearest facility, the higher ordinal on ties. assignment[i] is an ordinal. O(N n^2).
graphpointset n_greedy(const location_graph& g, int n_new, n_objective mode, double& value,
                       std::vector<int>& assignment);

}  // namespace mero
