#include "graphedit/generators.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <set>
#include <utility>
#include <vector>

#include "graphedit/graph_algorithms.h"
#include "graphedit/simple_layouts.h"
#include "kernel/segment.h"

namespace mero {

namespace {

std::vector<node> fresh(ge_graph& x, int n) {
  x.g.clear();
  std::vector<node> nodes;
  for (int k = 0; k < std::max(n, 0); ++k) nodes.push_back(x.g.new_node());
  return nodes;
}

void on_circle(ge_graph& x, const layout_box& box) {
  double r = std::min(box.xmax - box.xmin, box.ymax - box.ymin) * 0.4;
  circular_layout(x, point((box.xmin + box.xmax) / 2, (box.ymin + box.ymax) / 2), r);
}

// k different pairs drawn from the list, in the order drawn.
std::vector<std::pair<int, int>> draw_pairs(std::vector<std::pair<int, int>> all, int k,
                                            std::mt19937& random) {
  std::shuffle(all.begin(), all.end(), random);
  all.resize(std::min<std::size_t>(all.size(), static_cast<std::size_t>(std::max(k, 0))));
  return all;
}

// The triangles' graph of triangulated_graph as pairs, with the random state it leaves.
std::vector<std::pair<int, int>> triangulation(int n, std::mt19937& random) {
  std::vector<std::pair<int, int>> pairs;
  if (n < 3) {
    if (n == 2) pairs.emplace_back(0, 1);
    return pairs;
  }
  pairs = {{0, 1}, {1, 2}, {0, 2}};
  std::vector<std::array<int, 3>> faces{{0, 1, 2}, {0, 1, 2}};  // inner and outer face
  for (int v = 3; v < n; ++v) {
    std::size_t f = std::uniform_int_distribution<std::size_t>(0, faces.size() - 1)(random);
    auto [a, b, c] = faces[f];
    pairs.insert(pairs.end(), {{a, v}, {b, v}, {c, v}});
    faces[f] = {a, b, v};
    faces.push_back({b, c, v});
    faces.push_back({a, c, v});
  }
  return pairs;
}

void add_pairs(ge_graph& x, const std::vector<node>& nodes,
               const std::vector<std::pair<int, int>>& pairs) {
  for (auto [v, w] : pairs)
    x.g.new_edge(nodes[static_cast<std::size_t>(std::min(v, w))],
                 nodes[static_cast<std::size_t>(std::max(v, w))]);
}

void draw_planar(ge_graph& x, const layout_box& box) {
  if (!straight_line_planar_layout(x, box.xmin, box.ymin, box.xmax, box.ymax)) on_circle(x, box);
}

}  // namespace

void complete_graph(ge_graph& x, int n, const layout_box& box) {
  std::vector<node> nodes = fresh(x, n);
  for (std::size_t v = 0; v < nodes.size(); ++v)
    for (std::size_t w = v + 1; w < nodes.size(); ++w) x.g.new_edge(nodes[v], nodes[w]);
  on_circle(x, box);
}

void random_graph(ge_graph& x, int n, int m, unsigned seed, const layout_box& box) {
  std::vector<node> nodes = fresh(x, n);
  std::vector<std::pair<int, int>> all;
  for (int v = 0; v < n; ++v)
    for (int w = v + 1; w < n; ++w) all.emplace_back(v, w);
  std::mt19937 random(seed);
  add_pairs(x, nodes, draw_pairs(all, m, random));
  on_circle(x, box);
}

void random_planar_graph(ge_graph& x, int n, int m, unsigned seed, const layout_box& box) {
  std::vector<node> nodes = fresh(x, n);
  std::mt19937 random(seed);
  add_pairs(x, nodes, draw_pairs(triangulation(n, random), m, random));
  draw_planar(x, box);
}

void random_series_parallel_graph(ge_graph& x, int n, unsigned seed, const layout_box& box) {
  std::vector<node> nodes = fresh(x, n);
  std::mt19937 random(seed);
  if (n >= 2) {
    std::vector<std::pair<int, int>> pairs{{0, 1}};
    for (int v = 2; v < n; ++v) {
      std::size_t k = std::uniform_int_distribution<std::size_t>(0, pairs.size() - 1)(random);
      auto [a, b] = pairs[k];
      if (random() % 2 == 0) {  // series: v cuts the edge
        pairs[k] = {a, v};
        pairs.emplace_back(v, b);
      } else {  // parallel: a path a - v - b beside the edge
        pairs.emplace_back(a, v);
        pairs.emplace_back(v, b);
      }
    }
    add_pairs(x, nodes, pairs);
  }
  draw_planar(x, box);
}

void complete_bipartite_graph(ge_graph& x, int a, int b, const layout_box& box) {
  random_bipartite_graph(x, a, b, a * b, 0, box);
}

void random_bipartite_graph(ge_graph& x, int a, int b, int m, unsigned seed,
                            const layout_box& box) {
  a = std::max(a, 0);
  b = std::max(b, 0);
  std::vector<node> nodes = fresh(x, a + b);
  std::vector<std::pair<int, int>> all;
  for (int v = 0; v < a; ++v)
    for (int w = 0; w < b; ++w) all.emplace_back(v, a + w);
  std::vector<std::pair<int, int>> pairs = all;
  if (m < a * b) {
    std::mt19937 random(seed);
    pairs = draw_pairs(all, m, random);
    std::sort(pairs.begin(), pairs.end());
  }
  add_pairs(x, nodes, pairs);
  auto column = [&](int first, int count, double px) {
    for (int k = 0; k < count; ++k) {
      double py = count == 1 ? (box.ymin + box.ymax) / 2
                             : box.ymax - (box.ymax - box.ymin) * k / (count - 1);
      x.g.inf(nodes[static_cast<std::size_t>(first + k)]).position = point(px, py);
    }
  };
  column(0, a, box.xmin + (box.xmax - box.xmin) * 0.25);
  column(a, b, box.xmin + (box.xmax - box.xmin) * 0.75);
}

void planar_graph(ge_graph& x, int n, int m, unsigned seed, const layout_box& box) {
  std::vector<node> nodes = fresh(x, n);
  std::mt19937 random(seed);
  std::uniform_real_distribution<double> across(box.xmin, box.xmax), up(box.ymin, box.ymax);
  std::vector<point> at;
  for (node v : nodes) {
    double px = across(random);
    at.emplace_back(px, up(random));
    x.g.inf(v).position = at.back();
  }
  std::vector<std::pair<int, int>> all;
  for (int v = 0; v < n; ++v)
    for (int w = v + 1; w < n; ++w) all.emplace_back(v, w);
  auto length = [&](const std::pair<int, int>& p) {
    return at[static_cast<std::size_t>(p.first)].distance(at[static_cast<std::size_t>(p.second)]);
  };
  std::stable_sort(all.begin(), all.end(),
                   [&](const auto& p, const auto& q) { return length(p) < length(q); });
  std::vector<std::pair<int, int>> kept;
  for (const auto& p : all) {
    if (static_cast<int>(kept.size()) >= m) break;
    segment s(at[static_cast<std::size_t>(p.first)], at[static_cast<std::size_t>(p.second)]);
    bool crosses = false;
    for (const auto& q : kept) {
      if (q.first == p.first || q.first == p.second || q.second == p.first ||
          q.second == p.second)
        continue;  // segments with a common end meet only there
      segment t(at[static_cast<std::size_t>(q.first)], at[static_cast<std::size_t>(q.second)]);
      if (s.intersection(t)) {
        crosses = true;
        break;
      }
    }
    if (!crosses) kept.push_back(p);
  }
  add_pairs(x, nodes, kept);
}

void triangulated_graph(ge_graph& x, int n, unsigned seed, const layout_box& box) {
  std::vector<node> nodes = fresh(x, n);
  std::mt19937 random(seed);
  add_pairs(x, nodes, triangulation(n, random));
  draw_planar(x, box);
}

void grid_graph(ge_graph& x, int rows, int columns, const layout_box& box) {
  rows = std::max(rows, 0);
  columns = std::max(columns, 0);
  std::vector<node> nodes = fresh(x, rows * columns);
  auto at = [&](int r, int c) { return nodes[static_cast<std::size_t>(r * columns + c)]; };
  for (int r = 0; r < rows; ++r)
    for (int c = 0; c < columns; ++c) {
      double px = columns == 1 ? (box.xmin + box.xmax) / 2
                               : box.xmin + (box.xmax - box.xmin) * c / (columns - 1);
      double py = rows == 1 ? (box.ymin + box.ymax) / 2
                            : box.ymax - (box.ymax - box.ymin) * r / (rows - 1);
      x.g.inf(at(r, c)).position = point(px, py);
      if (c + 1 < columns) x.g.new_edge(at(r, c), at(r, c + 1));
      if (r + 1 < rows) x.g.new_edge(at(r, c), at(r + 1, c));
    }
}

}  // namespace mero
