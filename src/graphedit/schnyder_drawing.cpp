#include "graphedit/schnyder_drawing.h"

#include <array>
#include <boost/graph/adjacency_list.hpp>
#include <boost/graph/planar_canonical_ordering.hpp>
#include <cassert>
#include <cstddef>
#include <limits>

#include "graphedit/boost_graphs.h"
#include "graphedit/graph_algorithms.h"
#include "graphedit/simple_layouts.h"

namespace mero {

namespace {

constexpr std::size_t none = std::numeric_limits<std::size_t>::max();

// Colour c's tree of the wood: each node's parent, none at the roots and the outer nodes.
using wood = std::array<std::vector<std::size_t>, 3>;

// The lower neighbours of the k-th node of the order, in the embedding's cyclic order from one
// end of their run to the other: they follow each other there, as do the higher ones.
std::vector<std::size_t> lower_run(const indexed_graph& b, const planar_embedding& embedding,
                                   const std::vector<std::size_t>& number, std::size_t v) {
  std::vector<std::size_t> around;
  for (const planar_edge& e : embedding[v])
    around.push_back(boost::source(e, b) == v ? boost::target(e, b) : boost::source(e, b));
  std::size_t d = around.size(), start = 0;
  auto lower = [&](std::size_t k) { return number[around[k % d]] < number[v]; };
  while (start < d && !(lower(start) && !lower(start + d - 1))) ++start;
  std::vector<std::size_t> run;
  for (std::size_t k = start % d; run.size() < d && lower(k); ++k) run.push_back(around[k % d]);
  return run;
}

wood schnyder_wood(const indexed_graph& b, const planar_embedding& embedding,
                   const std::vector<std::size_t>& order, const std::vector<std::size_t>& number) {
  std::size_t n = order.size();
  wood w;
  for (auto& parent : w) parent.assign(n, none);
  // The run of v3 is v1, v2 in one of the two turns; its first node tells on which end of every
  // run the node nearest to v1 along the outer face stands, the embedding being the same
  // everywhere.
  bool starts_left = true;
  for (std::size_t k = 2; k < n; ++k) {
    std::size_t v = order[k];
    std::vector<std::size_t> run = lower_run(b, embedding, number, v);
    if (k == 2) starts_left = run.front() == order[0];
    std::size_t left = starts_left ? run.front() : run.back();
    std::size_t right = starts_left ? run.back() : run.front();
    if (k == n - 1) {  // vn sees the whole outer face but the edge v1 v2
      left = order[0];
      right = order[1];
    } else {
      assert(run.size() >= 2 && "a canonical ordering gives each node two lower neighbours");
      w[0][v] = left;
      w[1][v] = right;
    }
    for (std::size_t c : run)
      if (c != left && c != right) w[2][c] = v;
  }
  return w;
}

}  // namespace

std::optional<std::vector<std::pair<int, int>>> schnyder_coordinates(const graph& g) {
  if (!is_planar(g)) return std::nullopt;
  std::size_t n = static_cast<std::size_t>(g.number_of_nodes());
  std::vector<std::pair<int, int>> at(n);
  if (n < 3) {
    for (std::size_t v = 0; v < n; ++v) at[v] = {static_cast<int>(v), 0};
    return at;
  }
  indexed_graph b;
  planar_embedding embedding;
  maximal_planar(g, b, embedding);
  std::vector<std::size_t> order;
  boost::planar_canonical_ordering(b, embedding_map(b, embedding), std::back_inserter(order));
  std::vector<std::size_t> number(n);
  for (std::size_t k = 0; k < n; ++k) number[order[k]] = k;
  wood w = schnyder_wood(b, embedding, order, number);
  // Trees 1 and 2 point to lower numbers, tree 3 to higher ones: orders with parents first.
  std::vector<std::size_t> reversed(order.rbegin(), order.rend());
  auto parents_first = [&](int c) -> const std::vector<std::size_t>& {
    return c < 2 ? order : reversed;
  };
  // Subtree sizes t[c], and sums of a value along the path of colour c to the root.
  std::array<std::vector<long>, 3> t;
  for (int c = 0; c < 3; ++c) {
    t[c].assign(n, 1);
    const auto& down = parents_first(c);
    for (auto v = down.rbegin(); v != down.rend(); ++v)
      if (w[c][*v] != none) t[c][w[c][*v]] += t[c][*v];
  }
  auto path_sum = [&](int c, const std::vector<long>& value) {
    std::vector<long> sum(n);
    for (std::size_t v : parents_first(c)) sum[v] = value[v] + (w[c][v] == none ? 0 : sum[w[c][v]]);
    return sum;
  };
  std::vector<long> ones(n, 1);
  // Region i of a node lies between its paths i + 1 and i + 2 and the outer edge joining their
  // ends; it holds exactly the subtrees of colour i hanging from those paths. A triangulated
  // disc of V nodes, B of them on its border, has 2V - B - 2 faces.
  std::array<std::vector<long>, 2> faces;
  for (int i = 0; i < 2; ++i) {
    int j = (i + 1) % 3, k = (i + 2) % 3;
    std::vector<long> sj = path_sum(j, t[i]), sk = path_sum(k, t[i]);
    std::vector<long> lj = path_sum(j, ones), lk = path_sum(k, ones);
    faces[i].resize(n);
    for (std::size_t v = 0; v < n; ++v) {
      long nodes = sj[v] + sk[v] - t[i][v], border = lj[v] + lk[v] - 1;
      faces[i][v] = 2 * nodes - border - 2;
    }
  }
  int all = static_cast<int>(2 * n - 5);
  for (std::size_t v = 0; v < n; ++v)
    at[v] = {static_cast<int>(faces[0][v]), static_cast<int>(faces[1][v])};
  at[order[0]] = {all, 0};
  at[order[1]] = {0, all};
  at[order[n - 1]] = {0, 0};
  return at;
}

bool schnyder_layout(ge_graph& x, double xmin, double ymin, double xmax, double ymax) {
  auto at = schnyder_coordinates(x.g);
  if (!at) return false;
  std::size_t k = 0;
  for (node v = x.g.first_node(); v != nullptr; v = graph::succ_node(v), ++k)
    x.g.inf(v).position = point((*at)[k].first, (*at)[k].second);
  remove_bends(x);
  fit_into_box(x, xmin, ymin, xmax, ymax);
  return true;
}

}  // namespace mero
