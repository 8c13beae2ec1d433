#include "viewer/graph_layout.h"

#include <algorithm>
#include <cmath>
#include <deque>
#include <unordered_map>

namespace mero {

namespace {

constexpr int max_rounds = 100;
// The rounds stop when the stress falls by less than this fraction of itself.
constexpr double settled = 1e-4;

// Hop distances by breadth-first search from every node, edges taken both ways; a pair in
// different components is put one hop beyond the longest distance found.
std::vector<std::vector<double>> hop_distances(const graph& g, const std::vector<node>& nodes) {
  const std::size_t n = nodes.size();
  std::unordered_map<node, std::size_t> number;
  for (std::size_t i = 0; i < n; ++i) number[nodes[i]] = i;
  std::vector<std::vector<std::size_t>> next(n);
  for (edge e : g.all_edges()) {
    const std::size_t a = number[graph::source(e)], b = number[graph::target(e)];
    if (a == b) continue;
    next[a].push_back(b);
    next[b].push_back(a);
  }
  std::vector<std::vector<double>> d(n, std::vector<double>(n, -1.0));
  double longest = 0.0;
  for (std::size_t s = 0; s < n; ++s) {
    std::deque<std::size_t> queue{s};
    d[s][s] = 0.0;
    while (!queue.empty()) {
      const std::size_t v = queue.front();
      queue.pop_front();
      for (std::size_t w : next[v])
        if (d[s][w] < 0.0) {
          d[s][w] = d[s][v] + 1.0;
          longest = std::max(longest, d[s][w]);
          queue.push_back(w);
        }
    }
  }
  for (auto& row : d)
    for (double& x : row)
      if (x < 0.0) x = longest + 1.0;
  return d;
}

// Classical scaling: the two leading eigenvectors of the doubly centred matrix of squared
// distances, by power iteration from fixed start vectors, each scaled by the root of its
// eigenvalue. A tie of eigenvalues (a cycle, say) still gives two independent directions.
std::vector<point> classical_scaling(const std::vector<std::vector<double>>& d) {
  const std::size_t n = d.size();
  std::vector<std::vector<double>> b(n, std::vector<double>(n));
  std::vector<double> row_mean(n, 0.0);
  double mean = 0.0;
  for (std::size_t i = 0; i < n; ++i) {
    for (std::size_t j = 0; j < n; ++j) row_mean[i] += d[i][j] * d[i][j];
    row_mean[i] /= n;
    mean += row_mean[i] / n;
  }
  for (std::size_t i = 0; i < n; ++i)
    for (std::size_t j = 0; j < n; ++j)
      b[i][j] = -0.5 * (d[i][j] * d[i][j] - row_mean[i] - row_mean[j] + mean);
  std::vector<std::vector<double>> axes;
  std::vector<double> scales;
  for (int k = 0; k < 2; ++k) {
    std::vector<double> v(n);
    for (std::size_t i = 0; i < n; ++i) v[i] = std::sin(1.0 + i * (k + 1.618));
    double eigen = 0.0;
    for (int round = 0; round < 100; ++round) {
      const double previous = eigen;
      for (const auto& a : axes) {  // keep v away from the axis found first
        double dot = 0.0;
        for (std::size_t i = 0; i < n; ++i) dot += v[i] * a[i];
        for (std::size_t i = 0; i < n; ++i) v[i] -= dot * a[i];
      }
      std::vector<double> w(n, 0.0);
      for (std::size_t i = 0; i < n; ++i)
        for (std::size_t j = 0; j < n; ++j) w[i] += b[i][j] * v[j];
      double norm = 0.0;
      for (double x : w) norm += x * x;
      norm = std::sqrt(norm);
      if (!(norm > 1e-12)) break;
      eigen = norm;
      for (std::size_t i = 0; i < n; ++i) v[i] = w[i] / norm;
      if (std::fabs(eigen - previous) < 1e-6 * eigen) break;
    }
    axes.push_back(v);
    scales.push_back(std::sqrt(std::max(eigen, 1e-6)));
  }
  // Nodes whose distances differ only to each other (two leaves of one node) may get equal places
  // when their difference is not among the two leading directions, and the update below would
  // never part them; a small fixed shift of each node parts them.
  std::vector<point> start(n);
  for (std::size_t i = 0; i < n; ++i)
    start[i] = point(axes[0][i] * scales[0] + 0.05 * std::sin(12.9898 * (i + 1)),
                     axes[1][i] * scales[1] + 0.05 * std::cos(78.233 * (i + 1)));
  return start;
}

double stress(const std::vector<point>& x, const std::vector<std::vector<double>>& d) {
  double s = 0.0;
  for (std::size_t i = 0; i < x.size(); ++i)
    for (std::size_t j = i + 1; j < x.size(); ++j) {
      const double gap = x[i].distance(x[j]) - d[i][j];
      s += gap * gap / (d[i][j] * d[i][j]);
    }
  return s;
}

// One round of the localized update: each node moves to the weighted mean of where each other
// node would have it at their ideal distance, with the weight 1 / d^2.
void majorize(std::vector<point>& x, const std::vector<std::vector<double>>& d) {
  const std::size_t n = x.size();
  for (std::size_t i = 0; i < n; ++i) {
    double sx = 0.0, sy = 0.0, total = 0.0;
    for (std::size_t j = 0; j < n; ++j) {
      if (j == i) continue;
      const double w = 1.0 / (d[i][j] * d[i][j]);
      const double dx = x[i].xcoord() - x[j].xcoord(), dy = x[i].ycoord() - x[j].ycoord();
      const double now = std::sqrt(dx * dx + dy * dy);
      const double f = now > 0.0 ? d[i][j] / now : 0.0;
      sx += w * (x[j].xcoord() + f * dx);
      sy += w * (x[j].ycoord() + f * dy);
      total += w;
    }
    x[i] = point(sx / total, sy / total);
  }
}

}  // namespace

std::vector<point> layout_graph(const graph& g) {
  const std::vector<node> nodes = g.all_nodes();
  if (nodes.size() < 2) return std::vector<point>(nodes.size(), point(0.0, 0.0));
  const auto d = hop_distances(g, nodes);
  std::vector<point> x = classical_scaling(d);
  // The stress is measured every few rounds only: it costs as much as a round.
  double before = stress(x, d);
  for (int round = 1; round <= max_rounds; ++round) {
    majorize(x, d);
    if (round % 5 != 0) continue;
    const double now = stress(x, d);
    if (before - now < settled * before) break;
    before = now;
  }
  return x;
}

}  // namespace mero
