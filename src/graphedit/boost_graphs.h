#pragma once
// The Boost Graph Library's copies of an editor graph: the simple undirected graph underneath
// (loops dropped, parallel edges merged), with node k of the copy the k-th node in list order,
// and its augmentation to a maximal planar graph with an embedding. Shared by the tests,
// repairs and layouts that hand their work to Boost.

#include <boost/graph/adjacency_list.hpp>
#include <cstddef>
#include <unordered_map>
#include <utility>
#include <vector>

#include "kernel/graph.h"

namespace mero {

using simple_graph = boost::adjacency_list<boost::vecS, boost::vecS, boost::undirectedS>;
// The planarity test with an embedding and the planar augmentations need edge indices.
using indexed_graph =
    boost::adjacency_list<boost::vecS, boost::vecS, boost::undirectedS, boost::no_property,
                          boost::property<boost::edge_index_t, std::size_t>>;
using planar_edge = boost::graph_traits<indexed_graph>::edge_descriptor;
// For each node, its edges in their cyclic order around it.
using planar_embedding = std::vector<std::vector<planar_edge>>;

// Each node's place in list order.
std::unordered_map<node, std::size_t> places(const graph& g);

// The pairs {v, w}, v < w, of the simple undirected graph underneath, in edge order.
std::vector<std::pair<std::size_t, std::size_t>> simple_pairs(const graph& g);

template <typename G>
G boost_graph(const graph& g) {
  G b(static_cast<std::size_t>(g.number_of_nodes()));
  for (auto [v, w] : simple_pairs(g)) boost::add_edge(v, w, b);
  return b;
}

inline auto embedding_map(indexed_graph& b, planar_embedding& embedding) {
  return boost::make_iterator_property_map(embedding.begin(), boost::get(boost::vertex_index, b));
}

// The simple graph underneath made connected, biconnected and maximal planar (Boost's
// make_connected, make_biconnected_planar, make_maximal_planar), with its embedding; the
// graph must be planar and have at least three nodes. The added edges come after the graph's.
void maximal_planar(const graph& g, indexed_graph& b, planar_embedding& embedding);

}  // namespace mero
