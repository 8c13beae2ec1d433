#include "graphedit/graph_algorithms.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <random>
#include <set>
#include <unordered_map>
#include <utility>

#include <boost/graph/biconnected_components.hpp>
#include <boost/graph/boyer_myrvold_planar_test.hpp>
#include <boost/graph/chrobak_payne_drawing.hpp>
#include <boost/graph/fruchterman_reingold.hpp>
#include <boost/graph/is_kuratowski_subgraph.hpp>
#include <boost/graph/bipartite.hpp>
#include <boost/graph/planar_canonical_ordering.hpp>
#include <boost/graph/random_layout.hpp>
#include <boost/graph/topology.hpp>

#include "graphedit/boost_graphs.h"
#include "graphedit/simple_layouts.h"
#include "kernel/graph_connectivity.h"

namespace mero {

namespace {

// Connected after taking away the nodes marked gone, over the pairs given.
bool connected_without(std::size_t n, const std::vector<std::pair<std::size_t, std::size_t>>& pairs,
                       const std::vector<bool>& gone) {
  std::vector<std::vector<std::size_t>> next(n);
  for (auto [v, w] : pairs)
    if (!gone[v] && !gone[w]) {
      next[v].push_back(w);
      next[w].push_back(v);
    }
  std::size_t start = 0;
  while (start < n && gone[start]) ++start;
  if (start == n) return true;
  std::vector<bool> seen(n, false);
  std::vector<std::size_t> stack{start};
  seen[start] = true;
  std::size_t count = 1;
  while (!stack.empty()) {
    std::size_t v = stack.back();
    stack.pop_back();
    for (std::size_t w : next[v])
      if (!seen[w]) {
        seen[w] = true;
        ++count;
        stack.push_back(w);
      }
  }
  std::size_t alive = static_cast<std::size_t>(std::count(gone.begin(), gone.end(), false));
  return count == alive;
}

}  // namespace

bool is_simple(const graph& g) {
  std::set<std::pair<node, node>> seen;
  for (edge e = g.first_edge(); e != nullptr; e = graph::succ_edge(e)) {
    if (graph::source(e) == graph::target(e)) return false;
    if (!seen.insert({graph::source(e), graph::target(e)}).second) return false;
  }
  return true;
}

bool is_bidirected(const graph& g) {
  std::map<std::pair<node, node>, int> balance;
  for (edge e = g.first_edge(); e != nullptr; e = graph::succ_edge(e)) {
    node v = graph::source(e), w = graph::target(e);
    if (v == w) continue;  // a loop is its own reversal
    ++balance[{v, w}];
    --balance[{w, v}];
  }
  for (const auto& [ends, count] : balance)
    if (count != 0) return false;
  return true;
}

bool is_bipartite(const graph& g) {
  for (edge e = g.first_edge(); e != nullptr; e = graph::succ_edge(e))
    if (graph::source(e) == graph::target(e)) return false;
  return boost::is_bipartite(boost_graph<simple_graph>(g));
}

bool is_biconnected(const graph& g) {
  if (!is_connected(g)) return false;
  simple_graph b = boost_graph<simple_graph>(g);
  std::vector<std::size_t> cut;
  boost::articulation_points(b, std::back_inserter(cut));
  return cut.empty();
}

bool is_triconnected(const graph& g) {
  std::size_t n = static_cast<std::size_t>(g.number_of_nodes());
  if (n < 4 || !is_biconnected(g)) return false;
  auto pairs = simple_pairs(g);
  std::vector<bool> gone(n, false);
  for (std::size_t a = 0; a < n; ++a)
    for (std::size_t b = a + 1; b < n; ++b) {
      gone[a] = gone[b] = true;
      bool ok = connected_without(n, pairs, gone);
      gone[a] = gone[b] = false;
      if (!ok) return false;
    }
  return true;
}

bool is_series_parallel(const graph& g) {
  std::size_t n = static_cast<std::size_t>(g.number_of_nodes());
  std::vector<std::set<std::size_t>> next(n);  // a set: parallel edges merge at once
  for (auto [v, w] : simple_pairs(g)) {
    next[v].insert(w);
    next[w].insert(v);
  }
  std::vector<bool> alive(n, true);
  bool changed = true;
  while (changed) {
    changed = false;
    for (std::size_t v = 0; v < n; ++v) {
      if (!alive[v] || next[v].size() > 2) continue;
      std::vector<std::size_t> ends(next[v].begin(), next[v].end());
      for (std::size_t w : ends) next[w].erase(v);
      if (ends.size() == 2) {
        next[ends[0]].insert(ends[1]);
        next[ends[1]].insert(ends[0]);
      }
      next[v].clear();
      alive[v] = false;
      changed = true;
    }
  }
  return std::find(alive.begin(), alive.end(), true) == alive.end();
}

bool is_planar(const graph& g) {
  simple_graph b = boost_graph<simple_graph>(g);
  return boost::boyer_myrvold_planarity_test(b);
}

int delete_loops(graph& g) {
  std::vector<edge> loops;
  for (edge e = g.first_edge(); e != nullptr; e = graph::succ_edge(e))
    if (graph::source(e) == graph::target(e)) loops.push_back(e);
  for (edge e : loops) g.del_edge(e);
  return static_cast<int>(loops.size());
}

int make_simple(graph& g) {
  int count = delete_loops(g);
  std::set<std::pair<node, node>> seen;
  std::vector<edge> extra;
  for (edge e = g.first_edge(); e != nullptr; e = graph::succ_edge(e))
    if (!seen.insert({graph::source(e), graph::target(e)}).second) extra.push_back(e);
  for (edge e : extra) g.del_edge(e);
  return count + static_cast<int>(extra.size());
}

int make_biconnected(graph& g) {
  int added = static_cast<int>(make_connected(g).size());
  for (;;) {
    std::vector<node> nodes = g.all_nodes();
    simple_graph b = boost_graph<simple_graph>(g);
    if (boost::num_vertices(b) < 3) return added;
    std::map<boost::graph_traits<simple_graph>::edge_descriptor, std::size_t> block;
    auto block_of = boost::make_assoc_property_map(block);
    std::vector<std::size_t> cut;
    boost::biconnected_components(b, block_of, std::back_inserter(cut));
    if (cut.empty()) return added;
    std::size_t a = *std::min_element(cut.begin(), cut.end());
    // Two neighbours of a whose edges to a lie in different blocks.
    std::size_t first = 0, first_block = 0;
    bool have_first = false;
    for (auto [e, end] = boost::out_edges(a, b); e != end; ++e) {
      std::size_t w = boost::target(*e, b), k = block_of[*e];
      if (!have_first) {
        first = w;
        first_block = k;
        have_first = true;
      } else if (k != first_block) {
        g.new_edge(nodes[first], nodes[w]);
        ++added;
        break;
      }
    }
  }
}

int make_bidirected(graph& g) {
  std::map<std::pair<node, node>, std::vector<edge>> open;  // unpaired edges by their ends
  std::vector<edge> edges = g.all_edges();
  for (edge e : edges)
    if (graph::reversal(e) == nullptr) open[{graph::source(e), graph::target(e)}].push_back(e);
  int added = 0;
  for (edge e : edges) {
    if (graph::reversal(e) != nullptr) continue;
    node v = graph::source(e), w = graph::target(e);
    auto& mine = open[{v, w}];
    mine.erase(std::find(mine.begin(), mine.end(), e));
    auto& theirs = open[{w, v}];
    if (v != w && !theirs.empty()) {
      edge r = theirs.front();
      theirs.erase(theirs.begin());
      graph::set_reversal(e, r);
    } else if (v == w) {
      e->reversal = e;  // a loop is its own reversal
    } else {
      edge r = g.new_edge(w, v, g.default_edge_info());
      graph::set_reversal(e, r);
      ++added;
    }
  }
  return added;
}

double fit_into_box(ge_graph& x, double xmin, double ymin, double xmax, double ymax) {
  std::vector<node> nodes = x.g.all_nodes();
  if (nodes.empty()) return 1;
  layout_box from = position_box(x);
  for (edge e = x.g.first_edge(); e != nullptr; e = graph::succ_edge(e))
    for (const point& p : x.g.inf(e).bends)
      from = {std::min(from.xmin, p.xcoord()), std::min(from.ymin, p.ycoord()),
              std::max(from.xmax, p.xcoord()), std::max(from.ymax, p.ycoord())};
  double lx = from.xmin, ly = from.ymin, hx = from.xmax, hy = from.ymax;
  double w = hx - lx, h = hy - ly;
  double scale = std::min(w > 0 ? (xmax - xmin) / w : 1e300, h > 0 ? (ymax - ymin) / h : 1e300);
  if (scale > 1e299) scale = 1;
  double cx = (xmin + xmax) / 2, cy = (ymin + ymax) / 2;
  for (node v : nodes) {
    point& p = x.g.inf(v).position;
    p = point(cx + (p.xcoord() - (lx + hx) / 2) * scale, cy + (p.ycoord() - (ly + hy) / 2) * scale);
  }
  for (edge e = x.g.first_edge(); e != nullptr; e = graph::succ_edge(e))
    for (point& p : x.g.inf(e).bends)
      p = point(cx + (p.xcoord() - (lx + hx) / 2) * scale, cy + (p.ycoord() - (ly + hy) / 2) * scale);
  return scale;
}

void spring_layout(ge_graph& x, double xmin, double ymin, double xmax, double ymax,
                   unsigned seed) {
  std::size_t n = static_cast<std::size_t>(x.g.number_of_nodes());
  if (n == 0) return;
  simple_graph b = boost_graph<simple_graph>(x.g);
  using topology = boost::rectangle_topology<std::minstd_rand>;
  using position = topology::point_type;
  std::minstd_rand random(seed);
  topology box(random, xmin, ymin, xmax, ymax);
  std::vector<position> at(n);
  auto at_map = boost::make_iterator_property_map(at.begin(), boost::get(boost::vertex_index, b));
  boost::random_graph_layout(b, at_map, box);
  boost::fruchterman_reingold_force_directed_layout(b, at_map, box);
  std::size_t k = 0;
  for (node v = x.g.first_node(); v != nullptr; v = graph::succ_node(v), ++k)
    x.g.inf(v).position = point(at[k][0], at[k][1]);
  remove_bends(x);
  fit_into_box(x, xmin, ymin, xmax, ymax);
}

bool straight_line_planar_layout(ge_graph& x, double xmin, double ymin, double xmax,
                                 double ymax) {
  std::size_t n = static_cast<std::size_t>(x.g.number_of_nodes());
  if (n == 0) return true;
  if (!is_planar(x.g)) return false;
  if (n < 3) {
    circular_layout(x, point((xmin + xmax) / 2, (ymin + ymax) / 2), (xmax - xmin) / 4);
    return true;
  }
  indexed_graph b;
  planar_embedding embedding;
  maximal_planar(x.g, b, embedding);
  std::vector<std::size_t> order;
  boost::planar_canonical_ordering(b, embedding_map(b, embedding), std::back_inserter(order));
  struct coord {
    std::size_t x, y;
  };
  std::vector<coord> drawing(n);
  boost::chrobak_payne_straight_line_drawing(
      b, embedding_map(b, embedding), order.begin(), order.end(),
      boost::make_iterator_property_map(drawing.begin(), boost::get(boost::vertex_index, b)));
  std::size_t k = 0;
  for (node v = x.g.first_node(); v != nullptr; v = graph::succ_node(v), ++k)
    x.g.inf(v).position =
        point(static_cast<double>(drawing[k].x), static_cast<double>(drawing[k].y));
  remove_bends(x);
  fit_into_box(x, xmin, ymin, xmax, ymax);
  return true;
}

void spring_layout_3d(ge_graph& x, double xmin, double ymin, double xmax, double ymax,
                      unsigned seed) {
  std::size_t n = static_cast<std::size_t>(x.g.number_of_nodes());
  if (n == 0) return;
  simple_graph b = boost_graph<simple_graph>(x.g);
  using topology = boost::cube_topology<std::minstd_rand>;
  std::minstd_rand random(seed);
  topology cube(random, 100.0);
  std::vector<topology::point_type> at(n);
  auto at_map = boost::make_iterator_property_map(at.begin(), boost::get(boost::vertex_index, b));
  boost::random_graph_layout(b, at_map, cube);
  // The grid of force pairs that Boost uses by default exists in the plane only.
  std::vector<topology::point_difference_type> moves(n);
  boost::fruchterman_reingold_force_directed_layout(
      b, at_map, cube, boost::square_distance_attractive_force(),
      boost::square_distance_repulsive_force(), boost::all_force_pairs(),
      boost::linear_cooling<double>(100),
      boost::make_iterator_property_map(moves.begin(), boost::get(boost::vertex_index, b)));
  const double a = 30 * std::acos(-1.0) / 180, c = 20 * std::acos(-1.0) / 180;
  std::size_t k = 0;
  for (node v = x.g.first_node(); v != nullptr; v = graph::succ_node(v), ++k) {
    double X = at[k][0], Y = at[k][1], Z = at[k][2];
    double x1 = X * std::cos(a) + Z * std::sin(a), z1 = -X * std::sin(a) + Z * std::cos(a);
    double y1 = Y * std::cos(c) - z1 * std::sin(c);
    x.g.inf(v).position = point(x1, y1);
  }
  remove_bends(x);
  fit_into_box(x, xmin, ymin, xmax, ymax);
}

std::vector<std::vector<int>> faces_by_angle(const ge_graph& x) {
  std::size_t n = static_cast<std::size_t>(x.g.number_of_nodes());
  std::vector<node> nodes = x.g.all_nodes();
  std::vector<std::vector<std::size_t>> around(n);
  for (auto [v, w] : simple_pairs(x.g)) {
    around[v].push_back(w);
    around[w].push_back(v);
  }
  auto angle = [&](std::size_t v, std::size_t w) {
    const point& p = x.g.inf(nodes[v]).position;
    const point& q = x.g.inf(nodes[w]).position;
    return std::atan2(q.ycoord() - p.ycoord(), q.xcoord() - p.xcoord());
  };
  for (std::size_t v = 0; v < n; ++v)
    std::sort(around[v].begin(), around[v].end(),
              [&](std::size_t a, std::size_t b) { return angle(v, a) < angle(v, b); });
  // A face walk: arriving at w from v, leave along the edge that follows (w, v) clockwise,
  // which is the one before it in counter-clockwise order.
  std::set<std::pair<std::size_t, std::size_t>> used;
  std::vector<std::vector<int>> faces;
  for (std::size_t v = 0; v < n; ++v)
    for (std::size_t w : around[v]) {
      if (used.count({v, w}) != 0) continue;
      std::vector<int> face;
      std::size_t a = v, b = w;
      while (used.insert({a, b}).second) {
        face.push_back(static_cast<int>(a));
        const auto& ring = around[b];
        std::size_t at = static_cast<std::size_t>(std::find(ring.begin(), ring.end(), a) - ring.begin());
        std::size_t c = ring[(at + ring.size() - 1) % ring.size()];
        a = b;
        b = c;
      }
      faces.push_back(face);
    }
  return faces;
}

}  // namespace mero
