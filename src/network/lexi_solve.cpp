#include <algorithm>
#include <set>
#include <vector>

#include "network/graph_center.h"
#include "network/multicriteria.h"
#include "network/network_messages.h"

namespace mero {

namespace {

// The candidates that are lexicographically least for some order of the criteria still unused
// (unused[q] set): each criterion in turn keeps the candidates of least value on it.
void follow(const std::vector<vector>& columns, const std::vector<int>& candidates,
            std::vector<bool> unused, std::set<int>& found) {
  if (candidates.size() <= 1 || std::find(unused.begin(), unused.end(), true) == unused.end()) {
    found.insert(candidates.begin(), candidates.end());
    return;
  }
  for (std::size_t q = 0; q < unused.size(); ++q) {
    if (!unused[q]) continue;
    double least = 1e50;
    for (int c : candidates) least = std::min(least, columns[c][static_cast<int>(q)]);
    std::vector<int> winners;
    for (int c : candidates)
      if (columns[c][static_cast<int>(q)] == least) winners.push_back(c);
    unused[q] = false;
    follow(columns, winners, unused, found);
    unused[q] = true;
  }
}

// The indices of the lexicographically optimal columns, in order. Of columns that are equal only
// the earlier ones are searched; the later ones come back with their partner.
std::vector<int> lexicographic_optima(const std::vector<vector>& columns) {
  const int k = static_cast<int>(columns.size());
  std::vector<int> partner(k, -1);  // partner[j] = i: column j was found equal to column i
  for (int i = 0; i < k; ++i)
    for (int j = k - 1; j > i; --j)
      if (partner[j] < 0 && columns[i] == columns[j]) {
        partner[j] = i;
        break;
      }
  std::vector<int> candidates;
  for (int c = 0; c < k; ++c)
    if (partner[c] < 0) candidates.push_back(c);
  std::set<int> found;
  if (k > 0)
    follow(columns, candidates, std::vector<bool>(static_cast<std::size_t>(columns[0].dim()), true),
           found);
  for (int j = 0; j < k; ++j)
    if (partner[j] >= 0 && found.count(partner[j])) found.insert(j);
  return {found.begin(), found.end()};
}

// medLexi: a whole edge between two optimal nodes of equal columns is optimal when its
// midpoint, each node served over the nearer end (d on a tie), has the same vector.
void add_whole_edges(const location_graph& g, const matrix& d, const matrix& w,
                     const std::vector<vector>& f, const std::vector<int>& optima,
                     pareto_result& result) {
  const std::vector<node> by_number = g.all_nodes();
  for (std::size_t a = 0; a < optima.size(); ++a)
    for (std::size_t b = a + 1; b < optima.size(); ++b) {
      const int c = optima[a], e = optima[b];
      edge found = nullptr;
      for (edge x = g.first_adj_edge(by_number[c], 0); x != nullptr && found == nullptr;
           x = g.next_adj_edge(x, by_number[c], 0))
        if (graph::opposite(x, by_number[c]) == by_number[e]) found = x;
      if (found == nullptr || !(f[c] == f[e])) continue;
      vector midpoint(w.dim1());
      for (int q = 0; q < w.dim1(); ++q)
        for (int i = 0; i < d.dim1(); ++i) {
          const double near = d(i, c) >= d(i, e) ? d(i, e) : d(i, c);
          midpoint[q] = (g.inf(found) * 0.5 + near) * w(q, i) + midpoint[q];
        }
      if (midpoint == f[c]) result.append({c, e, 0.0, 1.0}, f[c], f[c]);
    }
}

// Undirected absolute center: the candidates are the absolute centers of every single
// criterion, each scored on all criteria; points on edges come out as one-point pieces.
pareto_result lexi_absolute_center(const location_graph& g, const matrix& d, const matrix& w) {
  std::vector<graph_point> points;
  for (int q = 0; q < w.dim1(); ++q) {
    location_graph single(g);
    int i = 0;
    for (node v = single.first_node(); v != nullptr; v = graph::succ_node(v), ++i)
      single.assign(v, node_weights{{w(q, i)}, {}});
    double value = 0.0;
    for (const graph_point& p : abs_center(single, value))
      if (std::find(points.begin(), points.end(), p) == points.end()) points.push_back(p);
  }
  const std::vector<node> by_number = g.all_nodes();
  std::vector<vector> columns;
  for (const graph_point& p : points) {
    const double length =
        p.first == p.second ? 0.0 : g.inf(find_edge(g, by_number[p.first], by_number[p.second]));
    columns.push_back(point_objective(d, w, p.first, p.second, length, p.position));
  }
  pareto_result result;
  for (int k : lexicographic_optima(columns)) {
    const graph_point& p = points[k];
    result.append({p.first, p.second, p.position, p.position}, columns[k], columns[k]);
  }
  return result;
}

}  // namespace

pareto_result lexi_solve(location_graph& g, bool directed, bool absolute, bool center) {
  connection_repair(g, network_messages::multicriteria_not_connected);
  location_graph copy(g);
  const matrix d = distance_matrix(copy);
  const matrix w = criteria_weights(copy, criteria_count(copy));
  if (!directed && absolute && center) return lexi_absolute_center(copy, d, w);
  const std::vector<vector> f = columns_of(objective_matrix(d, w, directed, center));
  const std::vector<int> optima = lexicographic_optima(f);
  pareto_result result;
  for (int c : optima) result.append({c, c, 0.0, 0.0}, f[c], f[c]);
  if (!directed && absolute && !center) add_whole_edges(copy, d, w, f, optima, result);
  return result;
}

}  // namespace mero
