#include "graphedit/boost_graphs.h"

#include <algorithm>
#include <boost/graph/boyer_myrvold_planar_test.hpp>
#include <boost/graph/make_biconnected_planar.hpp>
#include <boost/graph/make_connected.hpp>
#include <boost/graph/make_maximal_planar.hpp>
#include <set>

namespace mero {

std::unordered_map<node, std::size_t> places(const graph& g) {
  std::unordered_map<node, std::size_t> at;
  for (node v = g.first_node(); v != nullptr; v = graph::succ_node(v)) at[v] = at.size();
  return at;
}

std::vector<std::pair<std::size_t, std::size_t>> simple_pairs(const graph& g) {
  auto at = places(g);
  std::set<std::pair<std::size_t, std::size_t>> seen;
  std::vector<std::pair<std::size_t, std::size_t>> pairs;
  for (edge e = g.first_edge(); e != nullptr; e = graph::succ_edge(e)) {
    std::size_t a = at[graph::source(e)], b = at[graph::target(e)];
    if (a == b) continue;
    std::pair<std::size_t, std::size_t> p(std::min(a, b), std::max(a, b));
    if (seen.insert(p).second) pairs.push_back(p);
  }
  return pairs;
}

void maximal_planar(const graph& g, indexed_graph& b, planar_embedding& embedding) {
  b = boost_graph<indexed_graph>(g);
  std::size_t n = boost::num_vertices(b);
  auto embed = [&] {
    std::size_t k = 0;
    for (auto [e, end] = boost::edges(b); e != end; ++e) boost::put(boost::edge_index, b, *e, k++);
    embedding.assign(n, {});
    boost::boyer_myrvold_planarity_test(boost::boyer_myrvold_params::graph = b,
                                        boost::boyer_myrvold_params::embedding = embedding.data());
  };
  boost::make_connected(b);
  embed();
  boost::make_biconnected_planar(b, embedding_map(b, embedding));
  embed();
  boost::make_maximal_planar(b, embedding_map(b, embedding));
  embed();
}

}  // namespace mero
