#pragma once
// Shortest paths on a kernel graph. Edges are followed along adjacency list 0: out of a node in
// a directed graph, both ways in an undirected one.

#include <algorithm>
#include <vector>

#include "kernel/graph.h"
#include "kernel/graph_array.h"

namespace mero {

// Single source with non-negative costs: Dijkstra (1959) with a binary heap, O((n + m) log n).
// dist[s] := 0; a node that is reached gets its dist and the edge it was reached by in pred; the
// entries of a node that is not reached are left as they were (pred of s is not touched either).
void dijkstra(const graph& g, node s, const edge_array<double>& cost, node_array<double>& dist,
              node_array<edge>& pred);

// Single source with any costs: queue-based label correction (Bellman 1958, Ford 1956) with
// subtree disassembly (Tarjan 1981): improving a node's label drops the nodes labelled through
// its old label from the queue. O(nm). Returns false when a negative cycle is reachable from s;
// otherwise fills dist and pred of every reached node (pred of s is null) and returns true.
bool bellman_ford(const graph& g, node s, const edge_array<double>& cost, node_array<double>& dist,
                  node_array<edge>& pred);

// All pairs by Johnson's method (1977): potentials p from a Bellman-Ford run out of an added
// node, then a Dijkstra run from every node on the reduced costs cost + p[source] - p[target].
// table is sized node_index_bound() square and indexed by node number; entry (v, w) is the
// distance from v to w. A pair without a path keeps 0.0 plus p[w] - p[v]. Returns false, with
// the table all zeros, when the graph has a negative cycle. The added node and its edges are
// deleted again; as numbers are not reused, the graph's index bounds have grown.
// O(nm log n) after the O(nm) potential step.
bool all_pairs_shortest_paths(graph& g, const edge_array<double>& cost,
                              std::vector<std::vector<double>>& table);

// Repeated single-source runs of Dijkstra's method on one graph whose costs are all non-negative:
// the arcs of every node in one contiguous run of an array (compressed adjacency), in the order
// of its adjacency list 0, and an indexed 4-ary heap. Nodes are numbered by their place in the
// node list, from 0. A label is the least left-to-right rounded sum of costs over the paths to
// its node: rounded addition of a non-negative cost is monotone and never lowers a label, so the
// method reaches exactly that least sum whatever the order of equal keys, and a row equals bit
// for bit the labels of `dijkstra` and the rows of `all_pairs_shortest_paths` on the same costs.
// Building is O(n + m); each run O((n + m) log n) time and O(n) memory beyond the arrays.
class shortest_path_rows {
 public:
  shortest_path_rows(const graph& g, const edge_array<double>& cost);

  int size() const { return static_cast<int>(first_.size()) - 1; }
  int arcs() const { return static_cast<int>(arcs_.size()); }

  // Drops each arc u-v that cannot change a distance: a parallel arc from u to v costs less (or
  // as much and comes first), or some u-k-v costs less, or as much with both legs costing more
  // than zero. Every dropped arc thus has a path of strictly shorter arcs no longer than itself;
  // by induction on cost the distances stay the same when sums are exact. The caller vouches
  // that every sum of costs along a path is exact in double. O(sum over arcs u-k of deg(k)).
  void drop_dominated_arcs();
  // False when a cost is negative or not a number: no run may be started then.
  bool usable() const { return usable_; }

  // One run from node s. visit(v, d) is called as each node v is settled, in order of its
  // distance d; returning false ends the run there. Afterwards reached(v) and distance(v) tell
  // the labels; settled(v) holds for the nodes visited.
  template <typename visitor>
  void run(int s, visitor&& visit);
  // The whole row from s into out (size() entries): the distance of each reached node, and
  // `unreached` for the others.
  void row(int s, double* out, double unreached);

  bool reached(int v) const { return state_[static_cast<std::size_t>(v)] != unseen; }
  bool settled(int v) const { return state_[static_cast<std::size_t>(v)] == done; }
  double distance(int v) const { return dist_[static_cast<std::size_t>(v)]; }
  // The least key still waiting in the heap: a bound below every label not yet settled.
  bool waiting() const { return !heap_.empty(); }
  double least_waiting() const { return heap_.front().key; }

 private:
  static constexpr int unseen = -1;
  static constexpr int done = -2;
  struct arc {
    double cost;
    int to;
  };
  struct entry {
    double key;
    int v;
  };

  void push(int v, double key);
  void rise(std::size_t i, entry x);
  void pop();

  std::vector<int> first_;  // arcs of node v: arcs_[first_[v]] up to arcs_[first_[v + 1]]
  std::vector<arc> arcs_;
  bool usable_ = true;
  std::vector<double> dist_;
  std::vector<int> state_;  // the place in the heap, or unseen, or done
  std::vector<entry> heap_;
};

template <typename visitor>
void shortest_path_rows::run(int s, visitor&& visit) {
  std::fill(state_.begin(), state_.end(), unseen);
  heap_.clear();
  dist_[static_cast<std::size_t>(s)] = 0.0;
  push(s, 0.0);
  while (!heap_.empty()) {
    const entry top = heap_.front();
    pop();
    state_[static_cast<std::size_t>(top.v)] = done;
    if (!visit(top.v, top.key)) return;
    const arc* a = arcs_.data() + first_[static_cast<std::size_t>(top.v)];
    const arc* end = arcs_.data() + first_[static_cast<std::size_t>(top.v) + 1];
    for (; a != end; ++a) {
      const std::size_t w = static_cast<std::size_t>(a->to);
      const int place = state_[w];
      if (place == done) continue;
      const double c = top.key + a->cost;
      if (place == unseen) {
        dist_[w] = c;
        push(a->to, c);
      } else if (c < dist_[w]) {
        dist_[w] = c;
        rise(static_cast<std::size_t>(place), {c, a->to});
      }
    }
  }
}

}  // namespace mero
