#include "network/tree_problems.h"

#include <deque>
#include <vector>

#include "kernel/graph_array.h"
#include "kernel/reporters.h"
#include "kernel/shortest_paths.h"
#include "network/network_messages.h"

namespace mero {

namespace {

// The first edge in v's adjacency list: on the undirected tree form every incident edge is in
// list 0; on a directed copy list 1 follows.
edge first_incident_edge(const location_graph& g, node v) {
  for (int list = 0; list < 2; ++list)
    if (edge e = g.first_adj_edge(v, list); e != nullptr) return e;
  return nullptr;
}

int number_in(const std::vector<node>& nodes, node v) {
  for (std::size_t k = 0; k < nodes.size(); ++k)
    if (nodes[k] == v) return static_cast<int>(k);
  return -1;
}

// Folds leaves of t into their neighbours until the node x taken from the queue holds at least
// half of the total weight; returns x. Nodes stay, only edges are deleted, so the single-node
// stop applies to a tree that had one node from the start.
node fold_leaves(location_graph& t, double total) {
  std::deque<node> queue;
  for (node v = t.first_node(); v != nullptr; v = graph::succ_node(v))
    if (graph::degree(v) == 1) queue.push_back(v);
  if (t.number_of_nodes() == 1) return t.first_node();
  for (;;) {
    // Every node that loses its last edge was queued at degree 1, so the queue runs dry, or
    // shows a node without edges, only when no node can reach half of a negative total.
    if (queue.empty()) report_error(network_messages::negative_tree_weight);
    node x = queue.front();
    queue.pop_front();
    const double wx = head_weight(t, x);
    if (total * 0.5 <= wx) return x;
    edge first = first_incident_edge(t, x);
    if (first == nullptr) report_error(network_messages::negative_tree_weight);
    node y = graph::opposite(first, x);
    edge e = find_edge(t, x, y);
    t.assign(y, node_weights{{wx + head_weight(t, y)}, {}});
    t.del_edge(e);
    if (graph::degree(y) == 1) queue.push_back(y);
  }
}

}  // namespace

graphpointset tree_median(const location_graph& tree, double& value) {
  location_graph t(tree);
  const location_graph whole(tree);
  const std::vector<node> nodes = t.all_nodes();
  double total = 0.0;
  for (node v : nodes) total += head_weight(t, v);
  node x = fold_leaves(t, total);
  const int xn = number_in(nodes, x);
  graphpointset result{{xn, xn, 0.0}};
  // A node holding exactly half shares the optimum with the other end of its first edge left
  // (a node that has none left, as in a one-node tree, stands alone).
  edge first = first_incident_edge(t, x);
  if (total * 0.5 == head_weight(t, x) && first != nullptr) {
    const int yn = number_in(nodes, graph::opposite(first, x));
    result.push_back({yn, yn, 0.0});
  }
  const matrix d = distance_matrix(whole);
  value = 0.0;
  for (int i = d.dim1() - 1; i >= 0; --i) value += d(i, xn);
  return result;
}

graphpointset abs_tree_median(const location_graph& tree, double& value) {
  graphpointset result = tree_median(tree, value);
  if (result.size() == 2) result.push_back({result.front().first, result.back().first, 0.0});
  return result;
}

namespace {

// The node of greatest dist, the earliest of equals, starting from `from`.
node farthest_node(const location_graph& t, const node_array<double>& dist, node from) {
  node far = from;
  for (node v = t.first_node(); v != nullptr; v = graph::succ_node(v))
    if (dist[v] > dist[far]) far = v;
  return far;
}

}  // namespace

graphpointset tree_v1_center(const location_graph& tree, double& value) {
  const location_graph t(tree);
  for (node v = t.first_node(); v != nullptr; v = graph::succ_node(v))
    if (head_weight(t, v) != 1.0) report_error(network_messages::not_all_weights_one);
  const std::vector<node> nodes = t.all_nodes();
  edge_array<double> length(t);
  for (edge e = t.first_edge(); e != nullptr; e = graph::succ_edge(e)) length[e] = t.inf(e);
  node_array<double> dist(t, 0.0);
  node_array<edge> pred(t, nullptr);
  dijkstra(t, t.first_node(), length, dist, pred);
  const node v1 = farthest_node(t, dist, t.first_node());
  dist.init(t, 0.0);
  pred.init(t, nullptr);
  dijkstra(t, v1, length, dist, pred);
  const node v2 = farthest_node(t, dist, v1);
  value = dist[v2] * 0.5;
  // Walk back from v2 towards v1 until the node p reached lies no farther from v1 than value.
  node c = v2;
  for (;;) {
    edge e = pred[c];
    if (e == nullptr) {  // c is v1 itself: there was no path to halve
      const int cn = number_in(nodes, c);
      return {{cn, cn, 0.0}};
    }
    node p = graph::opposite(e, c);
    dist[p] = dist[c] - length[e];
    if (dist[p] <= value)
      return {{number_in(nodes, p), number_in(nodes, c), (value - dist[p]) / length[e]}};
    c = p;
  }
}

graphpointset loc_tree_v1_center(const location_graph& tree, double& value) {
  double z = 0.0;
  const graph_point head = tree_v1_center(tree, z).front();
  const graph_point u{head.first, head.first, 0.0}, v{head.second, head.second, 0.0};
  if (head.position == 0.5) {
    value = z - 0.5;
    return {u, v};
  }
  value = z + head.position;
  return {head.position < 0.5 ? u : v};
}

graphpointset two_tree_center(const location_graph&, double&) { return {}; }

}  // namespace mero
