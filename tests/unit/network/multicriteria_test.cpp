#include "network/multicriteria.h"

#include <algorithm>
#include <numeric>
#include <random>

#include "multicriteria_test_graphs.h"
#include "test_support.h"

namespace mero {
namespace {

using testing::arc;
using testing::criteria_graph;

std::vector<int> node_numbers(const pareto_result& r) {
  std::vector<int> nodes;
  for (const pareto_piece& p : r.pieces) {
    EXPECT_EQ(p.first, p.second);
    nodes.push_back(p.first);
  }
  return nodes;
}

TEST(multicriteria, dominates_and_point_objective_by_hand) {
  EXPECT_TRUE(dominates({1, 2}, {1, 3}));
  EXPECT_FALSE(dominates({1, 2}, {1, 2}));
  EXPECT_FALSE(dominates({0, 3}, {1, 2}));
  // a path 0 -2- 1 -4- 2; weights (1, 0), (0, 1), (2, 2). At t = 0.25 of edge 1-2 (1 from node
  // 1): node 0 at 3, node 1 at 1, node 2 at 3; largest weighted: (6, 6).
  location_graph g = criteria_graph({{1, 0}, {0, 1}, {2, 2}}, {{0, 1, 2}, {1, 2, 4}});
  const matrix d = distance_matrix(undirected_form(g)), w = criteria_weights(g, 2);
  EXPECT_EQ(point_objective(d, w, 1, 2, 4, 0.25), (vector{6, 6}));
  // node 1: sums (2 + 4 * 2, 4 * 2); node 0: largest (6 * 2, 6 * 2)
  EXPECT_EQ(objective_matrix(d, w, false, false).col(1), (vector{10, 8}));
  EXPECT_EQ(objective_matrix(d, w, false, true).col(0), (vector{12, 12}));
  // one way only: node 1 reaches 2 (4) and is reached from 0 (2), the rest counts 0
  EXPECT_EQ(objective_matrix(distance_matrix(g), w, true, false).col(1), (vector{10, 8}));
  EXPECT_EQ(objective_matrix(d, w, true, false).col(1), (vector{20, 16}));
}

TEST(multicriteria, hand_cases_and_messages) {
  // Q = 1: the nodes of least objective. Path 0-1-2, unit lengths and weights: node 1 alone.
  location_graph path = undirected_form(criteria_graph({{1}, {1}, {1}}, {{0, 1, 1}, {1, 2, 1}}));
  EXPECT_EQ(node_numbers(pareto_nodes(path, false, false, false)), (std::vector<int>{1}));
  // equal columns (3, 6): neither dominates, both stay
  location_graph ends = undirected_form(criteria_graph({{1, 2}, {1, 2}}, {{0, 1, 3}}));
  EXPECT_EQ(node_numbers(pareto_nodes(ends, false, false, false)), (std::vector<int>{0, 1}));
  EXPECT_REPORT(pareto_nodes(path, false, true, false), 2003,
                "This algorihm does not solve this kind of problem, sorry ;-)");
  testing::messages().clear();
  location_graph apart = criteria_graph({{1, 2}, {2, 1}}, {});
  pareto_result r = pareto_nodes(apart, false, false, false);
  ASSERT_EQ(testing::messages().size(), 1u);
  EXPECT_EQ(testing::messages()[0].text, "Graph is not connected: MERO is could connect it");
  EXPECT_EQ(apart.number_of_edges(), 1);  // the object given is repaired
  EXPECT_EQ(node_numbers(r), (std::vector<int>{0, 1}));
  EXPECT_EQ(r.at_from.front(), (vector{0, 0}));  // at distance 0 across the new edge
}

TEST(multicriteria, whole_edges_of_dir_cenPareto_and_medLexi) {
  // Two nodes with equal weights joined both ways by length 2: both are Pareto and
  // lexicographic, with equal columns. dir_cenPareto: column (4, 4) (round trip 4), midpoint
  // value 1 * 1 = 1 != 4: no arc. medLexi: columns (2, 2), midpoint (1 + 0) + (1 + 0) = 2: the
  // whole edge.
  location_graph both = criteria_graph({{1, 1}, {1, 1}}, {{0, 1, 2}, {1, 0, 2}});
  pareto_result cen = pareto_nodes(both, true, true, true);
  EXPECT_EQ(cen.pieces, (std::list<pareto_piece>{{0, 0, 0, 0}, {1, 1, 0, 0}}));
  location_graph once = undirected_form(criteria_graph({{1, 1}, {1, 1}}, {{0, 1, 2}}));
  pareto_result lex = lexi_solve(once, false, true, false);
  EXPECT_EQ(lex.pieces, (std::list<pareto_piece>{{0, 0, 0, 0}, {1, 1, 0, 0}, {0, 1, 0, 1}}));
  EXPECT_EQ(lex.at_to.back(), (vector{2, 2}));
  // loc_medLexi: nodes only
  EXPECT_EQ(lexi_solve(once, false, false, false).pieces.size(), 2u);
  // a third node hanging off node 0 with weights 0 leaves the columns of 0 and 1 and the
  // midpoint sum as they were
  location_graph hang =
      undirected_form(criteria_graph({{1, 1}, {1, 1}, {0, 0}}, {{0, 1, 2}, {0, 2, 1}}));
  EXPECT_EQ(lexi_solve(hang, false, true, false).pieces.back(), (pareto_piece{0, 1, 0, 1}));
  // dir_cenPareto with all weights zero: every column and every midpoint is 0, so each arc
  // between the two nodes is whole, found once from each end
  location_graph zero = criteria_graph({{0, 0}, {0, 0}}, {{0, 1, 2}, {1, 0, 3}});
  EXPECT_EQ(pareto_nodes(zero, true, true, true).pieces,
            (std::list<pareto_piece>{{0, 0, 0, 0}, {1, 1, 0, 0}, {0, 1, 0, 1}, {1, 0, 0, 1}}));
  // round trips 0->1->2->0: only node 2 has weight, so its own column (0, 0) dominates the
  // columns 22 of the others
  location_graph ring =
      criteria_graph({{0, 0}, {0, 0}, {1, 1}}, {{0, 1, 2}, {1, 2, 10}, {2, 0, 10}});
  EXPECT_EQ(node_numbers(pareto_nodes(ring, true, true, true)), (std::vector<int>{2}));
}

// Every random case is solved by the library and by enumeration of the nodes on the reference
// distances: the Pareto nodes, and the nodes that are least for some order of the criteria.
TEST(multicriteria, pareto_and_lexicographic_nodes_agree_with_enumeration) {
  std::mt19937 rng(17);
  for (int round = 0; round < 160; ++round) {
    const int n = 2 + round % 6, q_count = 2 + round % 3;
    const bool directed = round % 2 == 1, center = round % 4 >= 2;
    std::vector<std::vector<double>> w(n);
    for (auto& node : w)
      for (int q = 0; q < q_count; ++q) node.push_back(rng() % 3);
    const std::vector<arc> arcs = testing::random_arcs(rng, n, n / 2);
    auto d = testing::reference_distances(n, arcs, !directed, 1e300);
    for (auto& row : d)  // no directed path: distance 0
      for (double& x : row) x = x == 1e300 ? 0.0 : x;
    std::vector<std::vector<double>> f(n, std::vector<double>(q_count, 0.0));
    for (int x = 0; x < n; ++x)
      for (int q = 0; q < q_count; ++q)
        for (int i = 0; i < n; ++i) {
          const double term = (directed ? d[x][i] + d[i][x] : d[i][x]) * w[i][q];
          f[x][q] = center ? std::max(f[x][q], term) : f[x][q] + term;
        }
    std::vector<int> pareto, lexicographic;
    for (int x = 0; x < n; ++x) {
      bool dominated = false;
      for (int o = 0; o < n; ++o)
        dominated = dominated || (f[o] != f[x] && std::equal(f[o].begin(), f[o].end(), f[x].begin(),
                                                             std::less_equal<>()));
      if (!dominated) pareto.push_back(x);
    }
    std::vector<int> order(q_count);
    std::iota(order.begin(), order.end(), 0);
    std::vector<bool> least(n, false);
    do {
      auto key = [&](int x) {
        std::vector<double> k;
        for (int q : order) k.push_back(f[x][q]);
        return k;
      };
      std::vector<double> best = key(0);
      for (int x = 1; x < n; ++x) best = std::min(best, key(x));
      for (int x = 0; x < n; ++x)
        if (key(x) == best) least[x] = true;
    } while (std::next_permutation(order.begin(), order.end()));
    for (int x = 0; x < n; ++x)
      if (least[x]) lexicographic.push_back(x);

    location_graph g = testing::criteria_graph(w, arcs);
    location_graph form = directed ? directed_form(g) : undirected_form(g);
    const pareto_result nodes = pareto_nodes(form, directed, false, center);
    EXPECT_EQ(node_numbers(nodes), pareto) << "round " << round;
    auto column = nodes.at_from.begin();
    for (int x : node_numbers(nodes)) EXPECT_EQ(*column++, testing::to_vector(f[x]));
    EXPECT_EQ(node_numbers(lexi_solve(form, directed, false, center)), lexicographic)
        << "round " << round;
  }
}

}  // namespace
}  // namespace mero
