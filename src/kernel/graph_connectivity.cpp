#include "kernel/graph_connectivity.h"

#include <utility>

#include "kernel/graph_array.h"

namespace mero {

namespace {

// Depth-first search from start over lists 0 and 1, in the order a recursive search takes
// them; calls visit(v) for each node as it is first reached. Iterative, as a path-like graph of
// many nodes would otherwise recurse as deep as it is long.
template <typename visitor>
void search_component(const graph& g, node start, node_array<char>& seen, visitor visit) {
  struct frame {
    node v;
    int list;
    edge e;
  };
  seen[start] = 1;
  visit(start);
  std::vector<frame> stack{{start, 0, g.first_adj_edge(start, 0)}};
  while (!stack.empty()) {
    frame& top = stack.back();
    if (top.e == nullptr) {
      if (top.list == 0) {
        top.list = 1;
        top.e = g.first_adj_edge(top.v, 1);
      } else {
        stack.pop_back();
      }
      continue;
    }
    edge e = top.e;
    top.e = g.next_adj_edge(e, top.v, top.list);
    node w = graph::opposite(e, top.v);
    if (seen[w]) continue;
    seen[w] = 1;
    visit(w);
    stack.push_back({w, 0, g.first_adj_edge(w, 0)});
  }
}

}  // namespace

bool is_connected(const graph& g) {
  if (g.number_of_nodes() == 0) return true;
  node_array<char> seen(g, 0);
  int count = 0;
  search_component(g, g.first_node(), seen, [&](node) { ++count; });
  return count == g.number_of_nodes();
}

std::vector<edge> make_connected(graph& g) {
  node_array<char> seen(g, 0);
  std::vector<node> representatives;
  for (node v = g.first_node(); v != nullptr; v = graph::succ_node(v)) {
    if (seen[v]) continue;
    node best = v;
    search_component(g, v, seen, [&](node w) {
      if (graph::degree(w) < graph::degree(best)) best = w;
    });
    representatives.push_back(best);
  }
  std::vector<edge> added;
  for (std::size_t k = 1; k < representatives.size(); ++k)
    added.push_back(g.new_edge(representatives[0], representatives[k]));
  return added;
}

}  // namespace mero
