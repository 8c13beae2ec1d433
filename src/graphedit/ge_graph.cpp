#include "graphedit/ge_graph.h"

#include <unordered_map>

namespace mero {

std::vector<edge> edges_in_file_order(const graph& g) {
  std::vector<edge> order;
  for (node v = g.first_node(); v != nullptr; v = graph::succ_node(v))
    for (edge e : g.adj_edges(v, 0))
      if (graph::source(e) == v) order.push_back(e);
  return order;
}

namespace {

// Each item's position in list (node) or file (edge) order.
template <typename item>
std::unordered_map<item, int> positions(const std::vector<item>& items) {
  std::unordered_map<item, int> at;
  for (std::size_t k = 0; k < items.size(); ++k) at[items[k]] = static_cast<int>(k);
  return at;
}

}  // namespace

bool same_drawing(const ge_graph& a, const ge_graph& b) {
  std::vector<node> na = a.g.all_nodes(), nb = b.g.all_nodes();
  if (na.size() != nb.size()) return false;
  for (std::size_t k = 0; k < na.size(); ++k)
    if (!(a.g.inf(na[k]) == b.g.inf(nb[k]))) return false;
  std::vector<edge> ea = edges_in_file_order(a.g), eb = edges_in_file_order(b.g);
  if (ea.size() != eb.size() || ea.size() != static_cast<std::size_t>(a.g.number_of_edges()) ||
      eb.size() != static_cast<std::size_t>(b.g.number_of_edges()))
    return false;
  auto pna = positions(na), pnb = positions(nb);
  auto pea = positions(ea), peb = positions(eb);
  for (std::size_t k = 0; k < ea.size(); ++k) {
    edge x = ea[k], y = eb[k];
    if (pna[graph::source(x)] != pnb[graph::source(y)] ||
        pna[graph::target(x)] != pnb[graph::target(y)])
      return false;
    edge rx = graph::reversal(x), ry = graph::reversal(y);
    if ((rx == nullptr) != (ry == nullptr)) return false;
    if (rx != nullptr && pea[rx] != peb[ry]) return false;
    if (!(a.g.inf(x) == b.g.inf(y))) return false;
  }
  return true;
}

}  // namespace mero
