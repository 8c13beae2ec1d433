#include "graphedit/planar_representations.h"

#include <algorithm>
#include <boost/graph/adjacency_list.hpp>
#include <boost/graph/planar_canonical_ordering.hpp>
#include <cassert>
#include <limits>
#include <unordered_map>

#include "graphedit/boost_graphs.h"
#include "graphedit/graph_algorithms.h"
#include "graphedit/simple_layouts.h"

namespace mero {

namespace {

constexpr std::size_t none = std::numeric_limits<std::size_t>::max();

// The embedding as darts: dart first[v] + k leaves v for the k-th neighbour in v's cyclic
// order; twin is the same edge the other way, and face the face whose boundary walk passes the
// dart. Every face lies on the same side of all the darts of its walk.
struct dart_map {
  std::vector<std::size_t> first, tail, head, twin, face;
  std::size_t faces = 0;
};

std::size_t next_in_face(const dart_map& d, std::size_t k) {
  // Arriving at w along k, the walk leaves w along the edge after (w, tail of k) around w.
  std::size_t t = d.twin[k], w = d.tail[t];
  std::size_t degree = d.first[w + 1] - d.first[w];
  return d.first[w] + (t - d.first[w] + 1) % degree;
}

dart_map darts_of(const indexed_graph& b, const planar_embedding& embedding) {
  dart_map d;
  std::size_t n = embedding.size();
  std::unordered_map<std::size_t, std::size_t> dart_from_to;  // key tail * n + head
  for (std::size_t v = 0; v < n; ++v) {
    d.first.push_back(d.head.size());
    for (const planar_edge& e : embedding[v]) {
      std::size_t w = boost::source(e, b) == v ? boost::target(e, b) : boost::source(e, b);
      dart_from_to[v * n + w] = d.head.size();
      d.tail.push_back(v);
      d.head.push_back(w);
    }
  }
  d.first.push_back(d.head.size());
  for (std::size_t k = 0; k < d.head.size(); ++k)
    d.twin.push_back(dart_from_to.at(d.head[k] * n + d.tail[k]));
  d.face.assign(d.head.size(), none);
  for (std::size_t start = 0; start < d.head.size(); ++start) {
    if (d.face[start] != none) continue;
    for (std::size_t k = start; d.face[k] == none; k = next_in_face(d, k)) d.face[k] = d.faces;
    ++d.faces;
  }
  return d;
}

// Rows: with every edge going up from the lower to the higher number, a node's row is the
// longest path to it from s, so each edge rises by at least one row.
std::vector<int> longest_path_rows(const dart_map& d, const std::vector<std::size_t>& order,
                                   const std::vector<std::size_t>& number) {
  std::vector<int> row(order.size(), 0);
  for (std::size_t v : order)
    for (std::size_t k = d.first[v]; k < d.first[v + 1]; ++k)
      if (number[d.head[k]] < number[v]) row[v] = std::max(row[v], row[d.head[k]] + 1);
  return row;
}

// The column of each dart's edge. The dual joins, for each upward dart k, the face of k to the
// face of its twin; cutting the edge (s, t) makes the face of (t, s) the only source s* and the
// face of (s, t) the only sink t*. An edge's column is the longest path from s* to the face of
// its upward dart; for (s, t) that face is t*, so it runs right of everything else.
std::vector<int> dart_columns(const dart_map& d, const std::vector<std::size_t>& number,
                              std::size_t s, std::size_t t) {
  auto upward = [&](std::size_t k) { return number[d.tail[k]] < number[d.head[k]]; };
  auto is_cut = [&](std::size_t k) {
    return (d.tail[k] == s && d.head[k] == t) || (d.tail[k] == t && d.head[k] == s);
  };
  std::vector<std::vector<std::size_t>> out(d.faces);
  std::vector<int> entering(d.faces, 0);
  for (std::size_t k = 0; k < d.head.size(); ++k)
    if (upward(k) && !is_cut(k)) {
      out[d.face[k]].push_back(d.face[d.twin[k]]);
      ++entering[d.face[d.twin[k]]];
    }
  // Longest paths in topological order (Kahn).
  std::vector<int> distance(d.faces, 0);
  std::vector<std::size_t> ready;
  for (std::size_t f = 0; f < d.faces; ++f)
    if (entering[f] == 0) ready.push_back(f);
  std::size_t done = 0;
  while (!ready.empty()) {
    std::size_t f = ready.back();
    ready.pop_back();
    ++done;
    for (std::size_t g : out[f]) {
      distance[g] = std::max(distance[g], distance[f] + 1);
      if (--entering[g] == 0) ready.push_back(g);
    }
  }
  assert(done == d.faces && "the dual of an st-orientation is acyclic");
  std::vector<int> column(d.head.size());
  for (std::size_t k = 0; k < d.head.size(); ++k)
    column[k] = distance[d.face[upward(k) ? k : d.twin[k]]];
  return column;
}

// Rows and columns of the maximal planar augmentation of g (at least three nodes).
void represent_augmented(const graph& g, visibility_representation& r) {
  indexed_graph b;
  planar_embedding embedding;
  maximal_planar(g, b, embedding);
  std::size_t n = embedding.size();
  std::vector<std::size_t> order;
  boost::planar_canonical_ordering(b, embedding_map(b, embedding), std::back_inserter(order));
  std::vector<std::size_t> number(n);
  for (std::size_t k = 0; k < n; ++k) number[order[k]] = k;
  dart_map d = darts_of(b, embedding);
  std::size_t s = order.front(), t = order.back();
  r.row = longest_path_rows(d, order, number);
  std::vector<int> column = dart_columns(d, number, s, t);
  std::unordered_map<std::size_t, int> column_of;  // key v * n + w, for both directions
  for (std::size_t k = 0; k < d.head.size(); ++k) column_of[d.tail[k] * n + d.head[k]] = column[k];
  assert(column_of.count(s * n + t) == 1 && "s and t of a canonical ordering are adjacent");
  for (auto [v, w] : r.ends) r.column.push_back(column_of.at(v * n + w));
  // A node without edges of its own stands in the column of any edge of the augmentation.
  for (std::size_t v = 0; v < n; ++v) r.left[v] = r.right[v] = column[d.first[v]];
}

}  // namespace

std::optional<visibility_representation> make_visibility_representation(const graph& g) {
  if (!is_planar(g)) return std::nullopt;
  std::size_t n = static_cast<std::size_t>(g.number_of_nodes());
  visibility_representation r;
  r.ends = simple_pairs(g);
  r.row.assign(n, 0);
  r.left.assign(n, 0);
  r.right.assign(n, 0);
  if (n < 3) {  // one above the other in column 0, joined if there is an edge
    for (std::size_t v = 0; v < n; ++v) r.row[v] = static_cast<int>(v);
    r.column.assign(r.ends.size(), 0);
    return r;
  }
  represent_augmented(g, r);
  std::vector<bool> has_edge(n, false);
  for (std::size_t k = 0; k < r.ends.size(); ++k)
    for (std::size_t v : {r.ends[k].first, r.ends[k].second}) {
      r.left[v] = has_edge[v] ? std::min(r.left[v], r.column[k]) : r.column[k];
      r.right[v] = has_edge[v] ? std::max(r.right[v], r.column[k]) : r.column[k];
      has_edge[v] = true;
    }
  return r;
}

namespace {

enum class side { east, north, west, south };

// One edge at a node: which edge, whether the node is its first end, the column of the edge's
// vertical segment and whether the edge leaves the node upwards.
struct attachment {
  std::size_t edge;
  bool at_first;
  int column;
  bool up;
};

// Hands out the sides of a node to its up-edges and down-edges, each list sorted left to right,
// and returns the node's doubled column. Counter-clockwise round the segment from its right end
// the edges come as up-edges right to left, then down-edges left to right; the sides are given
// in the same cyclic order (east, north, west, south), which keeps the order of the edges round
// the node. An edge on the east (west) side needs its column right (left) of the node.
int assign_sides(const std::vector<attachment>& up, const std::vector<attachment>& down, int left,
                 std::vector<side>& up_side, std::vector<side>& down_side) {
  using enum side;
  auto at = [](const std::vector<attachment>& list, std::size_t k) { return 2 * list[k].column; };
  std::size_t a = up.size(), b = down.size();
  assert(a + b <= 4 && "orthogonal drawings need maximum degree 4");
  if (a == 4) {  // the leftmost edge leaves southwards and goes round the segment's left end
    up_side = {south, west, north, east};
    return at(up, 2);
  }
  if (b == 4) {
    down_side = {north, west, south, east};
    return at(down, 2);
  }
  if (a == 2 && b == 2) {  // the node between a west and an east column; one of the two exists
    if (up[0].column < down[1].column) {
      up_side = {west, north};
      down_side = {south, east};
      return std::min(at(up, 1), at(down, 1) - 1);
    }
    up_side = {north, east};
    down_side = {west, south};
    return std::max(at(up, 0), at(down, 0) + 1);
  }
  static const std::vector<side> up_sides[] = {{}, {north}, {west, north}, {west, north, east}};
  static const std::vector<side> down_sides[] = {{}, {south}, {west, south}, {west, south, east}};
  up_side = up_sides[a];
  down_side = down_sides[b];
  // The node stands in the column of its north or south edge, between its west and east ones.
  if (b >= 2) return at(down, 1);
  if (a >= 2) return at(up, 1);
  if (a == 1) return at(up, 0);
  if (b == 1) return at(down, 0);
  return left;
}

// The way from the node at (c, y) through side s to the point one unit above its row (below
// for a down-edge) in the edge's doubled column x. In the band of one unit round the row, over
// the node's segment, only the node's own edges run; the way round the segment uses the odd
// column just left of it, which no edge column and no other node's segment takes.
std::vector<point> stub(int c, int y, int x, bool up, side s, int round_column) {
  int h = up ? 1 : -1;
  auto p = [](int px, int py) { return point(px, py); };
  if (s == (up ? side::north : side::south)) return {p(c, y), p(c, y + h), p(x, y + h)};
  if (s == (up ? side::south : side::north))
    return {p(c, y), p(c, y - h), p(round_column, y - h), p(round_column, y + h), p(x, y + h)};
  return {p(c, y), p(x, y), p(x, y + h)};
}

// Drops repeated points and corners that lie straight between their neighbours.
std::vector<point> without_straight_corners(const std::vector<point>& way) {
  auto between = [](double a, double b, double c) { return (a - b) * (b - c) > 0; };
  std::vector<point> out;
  for (const point& q : way) {
    if (!out.empty() && out.back() == q) continue;
    if (out.size() >= 2) {
      const point &a = out[out.size() - 2], &b = out.back();
      if ((a.xcoord() == b.xcoord() && b.xcoord() == q.xcoord() &&
           between(a.ycoord(), b.ycoord(), q.ycoord())) ||
          (a.ycoord() == b.ycoord() && b.ycoord() == q.ycoord() &&
           between(a.xcoord(), b.xcoord(), q.xcoord()))) {
        out.back() = q;
        continue;
      }
    }
    out.push_back(q);
  }
  return out;
}

}  // namespace

orthogonal_drawing make_orthogonal_drawing(const visibility_representation& r) {
  std::size_t n = r.row.size(), m = r.ends.size();
  std::vector<std::vector<attachment>> up(n), down(n);
  for (std::size_t k = 0; k < m; ++k) {
    auto [v, w] = r.ends[k];
    std::size_t low = r.row[v] < r.row[w] ? v : w, high = low == v ? w : v;
    up[low].push_back({k, low == v, r.column[k], true});
    down[high].push_back({k, high == v, r.column[k], false});
  }
  auto by_column = [](const attachment& a, const attachment& b) { return a.column < b.column; };
  orthogonal_drawing d;
  d.ends = r.ends;
  d.at.resize(n);
  std::vector<std::vector<point>> from_first(m), from_second(m);
  for (std::size_t v = 0; v < n; ++v) {
    std::sort(up[v].begin(), up[v].end(), by_column);
    std::sort(down[v].begin(), down[v].end(), by_column);
    std::vector<side> up_side, down_side;
    int c = assign_sides(up[v], down[v], 2 * r.left[v], up_side, down_side);
    int y = 3 * r.row[v];
    d.at[v] = point(c, y);
    for (auto [list, sides] : {std::pair(&up[v], &up_side), std::pair(&down[v], &down_side)})
      for (std::size_t k = 0; k < list->size(); ++k) {
        const attachment& a = (*list)[k];
        (a.at_first ? from_first : from_second)[a.edge] =
            stub(c, y, 2 * a.column, a.up, (*sides)[k], 2 * r.left[v] - 1);
      }
  }
  for (std::size_t k = 0; k < m; ++k) {
    std::vector<point> way = from_first[k];
    way.insert(way.end(), from_second[k].rbegin(), from_second[k].rend());
    d.route.push_back(without_straight_corners(way));
  }
  return d;
}

namespace {

// Puts node k of list order at at[k] and gives every edge between two different nodes the
// corners of the route of its pair in ends, turned round when it runs the other way.
void draw_routes(ge_graph& x, const std::vector<point>& at,
                 const std::vector<std::pair<std::size_t, std::size_t>>& ends,
                 const std::vector<std::vector<point>>& route) {
  std::size_t n = at.size();
  std::unordered_map<std::size_t, std::size_t> pair_index;  // key v * n + w with v < w
  for (std::size_t k = 0; k < ends.size(); ++k) pair_index[ends[k].first * n + ends[k].second] = k;
  auto place = places(x.g);
  remove_bends(x);
  for (node v = x.g.first_node(); v != nullptr; v = graph::succ_node(v))
    x.g.inf(v).position = at[place[v]];
  for (edge e = x.g.first_edge(); e != nullptr; e = graph::succ_edge(e)) {
    std::size_t s = place[graph::source(e)], t = place[graph::target(e)];
    if (s == t) continue;
    const std::vector<point>& way = route[pair_index.at(std::min(s, t) * n + std::max(s, t))];
    std::vector<point>& bends = x.g.inf(e).bends;
    bends.assign(way.begin() + 1, way.end() - 1);
    if (s > t) std::reverse(bends.begin(), bends.end());
  }
}

// Fits the grid drawing into the box and makes the nodes at most 0.4 grid units wide and high
// about their centres: a node then covers neither its own edges' nearest corners nor any other
// node or edge, which all keep at least one unit away. A lone node keeps its size.
void fit_grid_drawing(ge_graph& x, double xmin, double ymin, double xmax, double ymax) {
  double unit = fit_into_box(x, xmin, ymin, xmax, ymax);
  if (x.g.number_of_nodes() < 2) return;
  for (node v = x.g.first_node(); v != nullptr; v = graph::succ_node(v)) {
    ge_node& a = x.g.inf(v);
    a.radius1 = std::min(a.radius1, 0.4 * unit);
    a.radius2 = std::min(a.radius2, 0.4 * unit);
  }
}

}  // namespace

planar_layout_status visibility_layout(ge_graph& x, double xmin, double ymin, double xmax,
                                       double ymax) {
  auto r = make_visibility_representation(x.g);
  if (!r) return planar_layout_status::not_planar;
  std::vector<point> at;
  for (std::size_t v = 0; v < r->row.size(); ++v)
    at.emplace_back((r->left[v] + r->right[v]) / 2.0, r->row[v]);
  std::vector<std::vector<point>> route;
  for (std::size_t k = 0; k < r->ends.size(); ++k) {
    auto [v, w] = r->ends[k];
    route.push_back(without_straight_corners(
        {at[v], point(r->column[k], r->row[v]), point(r->column[k], r->row[w]), at[w]}));
  }
  draw_routes(x, at, r->ends, route);
  fit_grid_drawing(x, xmin, ymin, xmax, ymax);
  return planar_layout_status::drawn;
}

planar_layout_status orthogonal_layout(ge_graph& x, double xmin, double ymin, double xmax,
                                       double ymax) {
  auto r = make_visibility_representation(x.g);
  if (!r) return planar_layout_status::not_planar;
  std::vector<int> degree(r->row.size(), 0);
  for (auto [v, w] : r->ends)
    if (++degree[v] > 4 || ++degree[w] > 4) return planar_layout_status::degree_above_four;
  orthogonal_drawing d = make_orthogonal_drawing(*r);
  draw_routes(x, d.at, d.ends, d.route);
  fit_grid_drawing(x, xmin, ymin, xmax, ymax);
  return planar_layout_status::drawn;
}

}  // namespace mero
