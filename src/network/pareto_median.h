#pragma once
// The Pareto-optimal points of an undirected network for Q sum objectives: nodes and stretches
// of edges. Along an edge every objective is linear between the places where the shortest way to
// some node switches ends, so the edges fall into linear stretches that are compared pairwise.

#include <vector>

#include "kernel/matrix.h"
#include "kernel/vector.h"
#include "network/location_graph.h"
#include "network/multicriteria.h"

namespace mero {

// A linear stretch [from, to] of an edge u-v of length `length`, positions measured from u in
// length units, with the objective vectors at its two ends. A node is a stretch of its own with
// u == v, edge -1 and length 0.
struct edge_stretch {
  int edge = -1;  // the edge's place in the edge list
  int u = 0;
  int v = 0;
  double length = 0.0;
  double from = 0.0;
  double to = 0.0;
  vector at_from;
  vector at_to;

  bool is_point() const { return from == to; }
};

// The sum objectives of the undirected network: distances, weights (Q by n) and the objective
// matrix F, and the vector of any point of an edge.
struct sum_objectives {
  sum_objectives(const location_graph& g);
  // The vector at distance s from u on the edge u-v of length l; the ends give F's columns.
  vector at(int u, int v, double l, double s) const;

  matrix d;
  matrix w;
  matrix f;
};

// The linear stretches of the edge u-v of length l, in order from u: the breakpoints are the
// ends and every s = (l + D(v,i) - D(u,i)) / 2 strictly inside, where the shortest way to node i
// switches from the u side to the v side. An edge of length 0 or less has no stretch.
std::vector<edge_stretch> edge_pieces(const sum_objectives& objectives, int edge, int u, int v,
                                      double l);

// Cuts from every stretch what a point of another stretch dominates (and, where a stretch rises
// or falls in all objectives at once, all but its best end). Dominated stretches vanish, cut
// ones may split. The parts of a stretch that two stretches share with equal vectors stay in
// both. Each pair of stretches that simple bounds cannot decide is settled by two linear
// programs in the two positions (lp_solve), which give the stretch of one piece that a point of
// the other weakly dominates. Roughly O(k s) for k stretches and s survivors.
std::vector<edge_stretch> prune_pieces(const std::vector<edge_stretch>& pieces);

// Shared by the two routes below. best_end: a stretch that rises (falls) in every objective at
// once keeps only its start (end). network_stretches: the Pareto nodes of `copy` as constant
// pieces, then the stretches of every edge in edge-list order. at_edge_end: a one-point stretch
// at an end of its edge, which is the node and stands as a node piece. pareto_output: the
// stretches as pieces, nodes by number first, then edges by end nodes, edge and position, with
// positions as fractions of the edge.
edge_stretch best_end(const edge_stretch& a);
std::vector<edge_stretch> network_stretches(location_graph& copy, const sum_objectives& objectives);
bool at_edge_end(const edge_stretch& a);
pareto_result pareto_output(std::vector<edge_stretch> stretches);

// The Pareto set of an undirected network (sum objectives, Q criteria, points of the edges
// included): the Pareto nodes as constant pieces and all edge stretches, pruned pairwise.
// Output: node pieces by number, then edge pieces by end nodes, edge and position; edge
// positions as fractions of the edge. Repairs a disconnected g first (with a message).
pareto_result pareto_median(location_graph& g);

// The same set for exactly two criteria, without linear programs: in the plane of the two
// objectives each surviving stretch is a falling segment, and the union of two Pareto chains is
// merged by one sweep (`merge_pareto`); the list of stretches is halved recursively.
// O(k log k) merges of chains for k stretches. Output as pareto_median.
pareto_result bicriteria_median(location_graph& g);

// The non-dominated part of the union of two Pareto chains of two objectives (each a list of
// stretches falling in the plane of the objectives, ordered by the first objective), again as
// such a chain. Points that both chains hold with equal vectors stay in both.
std::vector<edge_stretch> merge_pareto(const sum_objectives& objectives,
                                       const std::vector<edge_stretch>& a,
                                       const std::vector<edge_stretch>& b);

}  // namespace mero
