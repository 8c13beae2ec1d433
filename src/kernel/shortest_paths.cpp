#include "kernel/shortest_paths.h"

#include <cstddef>
#include <deque>
#include <limits>

#include "kernel/index.h"

namespace mero {

namespace {

// Binary min-heap of nodes keyed by double, with each node's place in the heap kept so that a
// key can be decreased in O(log n).
class node_heap {
 public:
  explicit node_heap(std::size_t bound) : place_(bound, absent) { heap_.reserve(1024); }

  bool empty() const { return heap_.empty(); }
  bool contains(node v) const { return place_[at(v)] != absent; }

  void insert(node v, double key) {
    heap_.push_back({key, v});
    place_[at(v)] = heap_.size() - 1;
    rise(heap_.size() - 1);
  }

  void decrease(node v, double key) {
    std::size_t i = place_[at(v)];
    heap_[i].key = key;
    rise(i);
  }

  node pop_min() {
    node v = heap_.front().v;
    place_[at(v)] = absent;
    entry last = heap_.back();
    heap_.pop_back();
    if (!heap_.empty()) {
      heap_[0] = last;
      place_[at(last.v)] = 0;
      sink(0);
    }
    return v;
  }

 private:
  static constexpr std::size_t absent = static_cast<std::size_t>(-1);
  struct entry {
    double key;
    node v;
  };

  void put(std::size_t i, const entry& x) {
    heap_[i] = x;
    place_[at(x.v)] = i;
  }
  void rise(std::size_t i) {
    entry x = heap_[i];
    while (i > 0 && x.key < heap_[(i - 1) / 2].key) {
      put(i, heap_[(i - 1) / 2]);
      i = (i - 1) / 2;
    }
    put(i, x);
  }
  void sink(std::size_t i) {
    entry x = heap_[i];
    for (;;) {
      std::size_t c = 2 * i + 1;
      if (c >= heap_.size()) break;
      if (c + 1 < heap_.size() && heap_[c + 1].key < heap_[c].key) ++c;
      if (!(heap_[c].key < x.key)) break;
      put(i, heap_[c]);
      i = c;
    }
    put(i, x);
  }

  std::vector<entry> heap_;
  std::vector<std::size_t> place_;
};

// The working form of the algorithms: costs by edge number, labels by node number; `reached`
// tells which labels were written.
struct labels {
  std::vector<double> dist;
  std::vector<edge> pred;
  std::vector<char> reached;
  explicit labels(const graph& g)
      : dist(at(g.node_index_bound()), 0.0),
        pred(at(g.node_index_bound()), nullptr),
        reached(at(g.node_index_bound()), 0) {}
};

std::vector<double> cost_table(const graph& g, const edge_array<double>& cost) {
  std::vector<double> table(at(g.edge_index_bound()), 0.0);
  for (edge e = g.first_edge(); e != nullptr; e = graph::succ_edge(e)) table[at(e)] = cost[e];
  return table;
}

void copy_out(const graph& g, const labels& in, node_array<double>& dist, node_array<edge>& pred) {
  for (node v = g.first_node(); v != nullptr; v = graph::succ_node(v)) {
    if (!in.reached[at(v)]) continue;
    dist[v] = in.dist[at(v)];
    if (in.pred[at(v)] != nullptr) pred[v] = in.pred[at(v)];
  }
}

// A node already taken from the queue is final; with reduced costs a rounding error may offer
// it a label smaller by an ulp, which is not taken.
void run_dijkstra(const graph& g, node s, const std::vector<double>& cost, labels& out) {
  node_heap queue(out.dist.size());
  std::vector<char> settled(out.dist.size(), 0);
  out.dist[at(s)] = 0.0;
  out.reached[at(s)] = 1;
  queue.insert(s, 0.0);
  while (!queue.empty()) {
    node v = queue.pop_min();
    settled[at(v)] = 1;
    for (edge e = g.first_adj_edge(v, 0); e != nullptr; e = g.next_adj_edge(e, v, 0)) {
      node w = graph::opposite(e, v);
      double c = out.dist[at(v)] + cost[at(e)];
      if (settled[at(w)]) continue;
      if (!queue.contains(w)) {
        queue.insert(w, c);
      } else if (c < out.dist[at(w)]) {
        queue.decrease(w, c);
      } else {
        continue;
      }
      out.dist[at(w)] = c;
      out.pred[at(w)] = e;
      out.reached[at(w)] = 1;
    }
  }
}

// The current shortest-path tree in preorder: a doubly linked thread through the nodes with
// their depths, so that the subtree under a node is the run of nodes after it that lie deeper.
struct path_tree {
  std::vector<int> next, prev, depth;
  explicit path_tree(std::size_t n) : next(n, -1), prev(n, -1), depth(n, -1) {}
  bool contains(int v) const { return depth[at(v)] >= 0; }
  void remove(int v) {
    if (prev[at(v)] >= 0) next[at(prev[at(v)])] = next[at(v)];
    if (next[at(v)] >= 0) prev[at(next[at(v)])] = prev[at(v)];
    next[at(v)] = prev[at(v)] = depth[at(v)] = -1;
  }
  void insert_below(int v, int parent) {
    depth[at(v)] = depth[at(parent)] + 1;
    prev[at(v)] = parent;
    next[at(v)] = next[at(parent)];
    if (next[at(parent)] >= 0) prev[at(next[at(parent)])] = v;
    next[at(parent)] = v;
  }
};

// Takes v's subtree out of the tree; its nodes (v excepted) leave the active set, since their
// labels were built on v's old one. Returns false when u lies in the subtree: then the new label
// of v came round a cycle through v, and that cycle is negative.
bool disassemble(path_tree& tree, std::vector<char>& active, int v, int u) {
  if (!tree.contains(v)) return true;
  int d = tree.depth[at(v)];
  for (int x = tree.next[at(v)]; x >= 0 && tree.depth[at(x)] > d;) {
    if (x == u) return false;
    int after = tree.next[at(x)];
    tree.remove(x);
    active[at(x)] = 0;
    x = after;
  }
  tree.remove(v);
  return true;
}

// FIFO label correction; a node taken from the queue while inactive is skipped, as its label
// will be improved again through the node whose subtree it left.
bool run_bellman_ford(const graph& g, node s, const std::vector<double>& cost, labels& out) {
  std::size_t bound = out.dist.size();
  path_tree tree(bound);
  std::vector<char> in_queue(bound, 0), active(bound, 0);
  std::deque<node> queue{s};
  out.dist[at(s)] = 0.0;
  out.reached[at(s)] = in_queue[at(s)] = active[at(s)] = 1;
  tree.depth[at(s)] = 0;
  while (!queue.empty()) {
    node u = queue.front();
    queue.pop_front();
    in_queue[at(u)] = 0;
    if (!active[at(u)]) continue;
    for (edge e = g.first_adj_edge(u, 0); e != nullptr; e = g.next_adj_edge(e, u, 0)) {
      node w = graph::opposite(e, u);
      double c = out.dist[at(u)] + cost[at(e)];
      if (out.reached[at(w)] && !(c < out.dist[at(w)])) continue;
      if (w == u || w == s) return false;
      if (!disassemble(tree, active, graph::index(w), graph::index(u))) return false;
      tree.insert_below(graph::index(w), graph::index(u));
      out.dist[at(w)] = c;
      out.pred[at(w)] = e;
      out.reached[at(w)] = active[at(w)] = 1;
      if (!in_queue[at(w)]) {
        in_queue[at(w)] = 1;
        queue.push_back(w);
      }
    }
  }
  return true;
}

}  // namespace

void dijkstra(const graph& g, node s, const edge_array<double>& cost, node_array<double>& dist,
              node_array<edge>& pred) {
  labels out(g);
  run_dijkstra(g, s, cost_table(g, cost), out);
  copy_out(g, out, dist, pred);
}

bool bellman_ford(const graph& g, node s, const edge_array<double>& cost, node_array<double>& dist,
                  node_array<edge>& pred) {
  labels out(g);
  if (!run_bellman_ford(g, s, cost_table(g, cost), out)) return false;
  copy_out(g, out, dist, pred);
  return true;
}

namespace {

// Steps 1 to 4 of Johnson's method: the potentials, or false on a negative cycle. The added node
// and its edges are gone again when this returns.
bool potentials(graph& g, std::vector<double>& cost, std::vector<double>& p) {
  std::vector<node> nodes = g.all_nodes();
  node s = g.new_node();
  for (node v : nodes) g.new_edge(s, v);
  cost.resize(at(g.edge_index_bound()), 0.0);
  for (edge e = g.first_adj_edge(s, 0); e != nullptr; e = g.next_adj_edge(e, s, 0))
    cost[at(e)] = 0.0;
  labels out(g);
  bool ok = run_bellman_ford(g, s, cost, out);
  g.del_node(s);
  if (!ok) return false;
  p.assign(out.dist.begin(), out.dist.end());
  return true;
}

}  // namespace

shortest_path_rows::shortest_path_rows(const graph& g, const edge_array<double>& cost) {
  std::vector<int> place(at(g.node_index_bound()), 0);
  int n = 0;
  for (node v = g.first_node(); v != nullptr; v = graph::succ_node(v)) place[at(v)] = n++;
  first_.reserve(at(n) + 1);
  first_.push_back(0);
  for (node v = g.first_node(); v != nullptr; v = graph::succ_node(v)) {
    for (edge e = g.first_adj_edge(v, 0); e != nullptr; e = g.next_adj_edge(e, v, 0)) {
      const double c = cost[e];
      if (!(c >= 0.0)) usable_ = false;
      arcs_.push_back({c, place[at(graph::opposite(e, v))]});
    }
    first_.push_back(static_cast<int>(arcs_.size()));
  }
  dist_.assign(at(n), 0.0);
  state_.assign(at(n), unseen);
  heap_.reserve(at(n));
}

void shortest_path_rows::drop_dominated_arcs() {
  const int n = size();
  constexpr double none = std::numeric_limits<double>::infinity();
  // For the arcs out of u: the cheapest direct arc to each v and the cheapest two-leg paths.
  std::vector<double> direct(at(n), none), via_any(at(n), none), via_positive(at(n), none);
  std::vector<int> first_direct(at(n), -1);
  std::vector<int> kept_first{0};
  std::vector<arc> kept;
  kept.reserve(arcs_.size());
  for (int u = 0; u < n; ++u) {
    const int from = first_[at(u)], to = first_[at(u) + 1];
    for (int a = from; a < to; ++a) {
      const arc& x = arcs_[at(a)];
      if (x.cost < direct[at(x.to)]) {
        direct[at(x.to)] = x.cost;
        first_direct[at(x.to)] = a;
      }
      if (x.to == u) continue;
      for (int b = first_[at(x.to)]; b < first_[at(x.to) + 1]; ++b) {
        const arc& y = arcs_[at(b)];
        if (y.to == u || y.to == x.to) continue;
        const double c = x.cost + y.cost;
        if (c < via_any[at(y.to)]) via_any[at(y.to)] = c;
        if (x.cost > 0.0 && y.cost > 0.0 && c < via_positive[at(y.to)]) via_positive[at(y.to)] = c;
      }
    }
    for (int a = from; a < to; ++a) {
      const arc& x = arcs_[at(a)];
      const std::size_t v = at(x.to);
      const bool dominated =
          first_direct[v] != a || via_any[v] < x.cost || via_positive[v] <= x.cost;
      if (!dominated) kept.push_back(x);
    }
    for (int a = from; a < to; ++a) {
      const std::size_t v = at(arcs_[at(a)].to);
      direct[v] = none;
      first_direct[v] = -1;
      for (int b = first_[v]; b < first_[v + 1]; ++b) {
        via_any[at(arcs_[at(b)].to)] = none;
        via_positive[at(arcs_[at(b)].to)] = none;
      }
    }
    kept_first.push_back(static_cast<int>(kept.size()));
  }
  arcs_ = std::move(kept);
  first_ = std::move(kept_first);
}

void shortest_path_rows::row(int s, double* out, double unreached) {
  run(s, [](int, double) { return true; });
  for (int v = 0; v < size(); ++v) out[v] = reached(v) ? dist_[at(v)] : unreached;
}

// A 4-ary heap: shallower than a binary one, and the four children of a place share a cache line.
void shortest_path_rows::push(int v, double key) {
  heap_.push_back({key, v});
  rise(heap_.size() - 1, {key, v});
}

void shortest_path_rows::rise(std::size_t i, entry x) {
  while (i > 0) {
    std::size_t parent = (i - 1) / 4;
    if (!(x.key < heap_[parent].key)) break;
    heap_[i] = heap_[parent];
    state_[at(heap_[i].v)] = static_cast<int>(i);
    i = parent;
  }
  heap_[i] = x;
  state_[at(x.v)] = static_cast<int>(i);
}

void shortest_path_rows::pop() {
  const entry x = heap_.back();
  heap_.pop_back();
  const std::size_t n = heap_.size();
  if (n == 0) return;
  std::size_t i = 0;
  for (;;) {
    std::size_t c = 4 * i + 1;
    if (c >= n) break;
    std::size_t best = c;
    const std::size_t last = std::min(c + 4, n);
    for (std::size_t k = c + 1; k < last; ++k)
      if (heap_[k].key < heap_[best].key) best = k;
    if (!(heap_[best].key < x.key)) break;
    heap_[i] = heap_[best];
    state_[at(heap_[i].v)] = static_cast<int>(i);
    i = best;
  }
  heap_[i] = x;
  state_[at(x.v)] = static_cast<int>(i);
}

bool all_pairs_shortest_paths(graph& g, const edge_array<double>& cost,
                              std::vector<std::vector<double>>& table) {
  std::size_t bound = at(g.node_index_bound());
  table.assign(bound, std::vector<double>(bound, 0.0));
  // With no negative cost every potential is exactly 0.0, the reduced costs are the costs and
  // the correction adds 0.0: the rows are plain Dijkstra runs, done on the compressed arrays.
  shortest_path_rows rows(g, cost);
  if (rows.usable()) {
    std::vector<node> nodes = g.all_nodes();
    std::vector<double> row(nodes.size());
    for (std::size_t i = 0; i < nodes.size(); ++i) {
      rows.row(static_cast<int>(i), row.data(), 0.0);
      std::vector<double>& out = table[at(nodes[i])];
      for (std::size_t j = 0; j < nodes.size(); ++j) out[at(nodes[j])] = row[j];
    }
    return true;
  }
  std::vector<double> c = cost_table(g, cost), p;
  if (!potentials(g, c, p)) return false;
  for (edge e = g.first_edge(); e != nullptr; e = graph::succ_edge(e))
    c[at(e)] += p[at(graph::source(e))] - p[at(graph::target(e))];
  std::vector<node> nodes = g.all_nodes();
  for (node v : nodes) {
    labels out(g);
    run_dijkstra(g, v, c, out);
    std::vector<double>& row = table[at(v)];
    for (node w : nodes)
      if (out.reached[at(w)]) row[at(w)] = out.dist[at(w)];
  }
  for (node v : nodes)
    for (node w : nodes) table[at(v)][at(w)] = (p[at(w)] - p[at(v)]) + table[at(v)][at(w)];
  return true;
}

}  // namespace mero
