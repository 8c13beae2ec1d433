#include "network/pareto_median.h"

#include <algorithm>
#include <cmath>
#include <random>

#include "multicriteria_test_graphs.h"
#include "test_support.h"

namespace mero {
namespace {

using testing::arc;

// A point of the network by its edge (or -1 for a node) and its position, with its vector.
struct sample {
  int edge;
  double position;  // length units from the edge's first node
  std::vector<double> value;
};

// The reference problem: distances by Floyd-Warshall, the vector of any point of an edge from
// them, and every edge sampled at `steps` equal steps (ends included, which are the nodes).
struct reference {
  reference(int n, const std::vector<std::vector<double>>& w, const std::vector<arc>& arcs)
      : w(w), arcs(arcs), d(testing::reference_distances(n, arcs, true, 1e300)) {}

  std::vector<double> at(int edge, double s) const {
    const arc& a = arcs[edge];
    std::vector<double> value(w[0].size(), 0.0);
    for (std::size_t i = 0; i < w.size(); ++i)
      for (std::size_t q = 0; q < value.size(); ++q)
        value[q] += w[i][q] * std::min(s + d[a.from][i], a.length - s + d[a.to][i]);
    return value;
  }

  std::vector<sample> samples(int steps) const {
    std::vector<sample> all;
    for (std::size_t e = 0; e < arcs.size(); ++e)
      for (int k = 0; k <= steps; ++k) {
        const double s = arcs[e].length * k / steps;
        all.push_back({static_cast<int>(e), s, at(static_cast<int>(e), s)});
      }
    return all;
  }

  // The largest change of objective q per unit of length along an edge.
  double slope(std::size_t q) const {
    double sum = 0;
    for (const auto& node : w) sum += std::abs(node[q]);
    return sum;
  }

  std::vector<std::vector<double>> w;
  std::vector<arc> arcs;
  std::vector<std::vector<double>> d;
};

// a is below b by more than tolerance somewhere and nowhere above b by more than it.
bool clearly_dominates(const std::vector<double>& a, const std::vector<double>& b, double tol) {
  bool below = false;
  for (std::size_t q = 0; q < a.size(); ++q) {
    if (a[q] > b[q] + tol) return false;
    if (a[q] < b[q] - tol) below = true;
  }
  return below;
}

// The edge of the reference that a piece lies on (the graphs have no parallel edges), or -1.
int edge_of(const reference& ref, const pareto_piece& p) {
  for (std::size_t e = 0; e < ref.arcs.size(); ++e)
    if (ref.arcs[e].from == p.first && ref.arcs[e].to == p.second) return static_cast<int>(e);
  return -1;
}

// Points of the reported pieces: nodes, one-point pieces, and for a stretch `inner` points
// strictly inside (its ends may be limits of a set that is not closed) or, with ends, the ends
// too.
std::vector<sample> reported_points(const reference& ref, const pareto_result& r, int inner,
                                    bool ends) {
  std::vector<sample> points;
  for (const pareto_piece& p : r.pieces) {
    if (p.first == p.second) {
      // a node: the end of any edge at it
      for (std::size_t e = 0; e < ref.arcs.size(); ++e) {
        if (ref.arcs[e].from == p.first)
          points.push_back({-1, 0, ref.at(e, 0)});
        else if (ref.arcs[e].to == p.first)
          points.push_back({-1, 0, ref.at(e, ref.arcs[e].length)});
        else
          continue;
        break;
      }
      continue;
    }
    const int e = edge_of(ref, p);
    EXPECT_GE(e, 0) << p.first << "-" << p.second;
    if (e < 0) continue;
    EXPECT_LE(0.0, p.from);
    EXPECT_LE(p.from, p.to);
    EXPECT_LE(p.to, 1.0);
    const double length = ref.arcs[e].length;
    for (int k = ends ? 0 : 1; k <= (ends ? inner + 1 : inner); ++k) {
      const double t = p.from + (p.to - p.from) * k / (inner + 1);
      points.push_back({e, t * length, ref.at(e, t * length)});
      if (p.from == p.to) break;
    }
  }
  return points;
}

// The two checks of a reported Pareto set against the sampled network: no sampled point clearly
// dominates a reported point, and every sampled point is dominated by or equal to a reported
// point up to what one sampling step can change.
void check_against_samples(const reference& ref, const pareto_result& r, const char* route,
                           int round) {
  const int steps = 60;
  const std::vector<sample> network = ref.samples(steps);
  double longest = 0;
  for (const arc& a : ref.arcs) longest = std::max(longest, a.length);
  for (const sample& p : reported_points(ref, r, 7, false))
    for (const sample& s : network)
      ASSERT_FALSE(clearly_dominates(s.value, p.value, 1e-7))
          << route << " round " << round << ": a point of edge " << s.edge << " at " << s.position
          << " dominates the reported point of edge " << p.edge << " at " << p.position;
  const std::vector<sample> fine = reported_points(ref, r, 200, true);
  for (const sample& s : network) {
    bool covered = false;
    for (const sample& p : fine) {
      covered = true;
      for (std::size_t q = 0; q < s.value.size() && covered; ++q)
        covered = p.value[q] <= s.value[q] + ref.slope(q) * longest / steps + 1e-7;
      if (covered) break;
    }
    ASSERT_TRUE(covered) << route << " round " << round << ": nothing reported covers edge "
                         << s.edge << " at " << s.position;
  }
}

TEST(pareto_median, agrees_with_a_fine_sampling_of_every_edge) {
  std::mt19937 rng(23);
  for (int round = 0; round < 60; ++round) {
    const int n = 2 + round % 5, q_count = 2 + round % 2;
    std::vector<std::vector<double>> w;
    std::vector<arc> arcs;
    location_graph g = testing::random_graph(rng, n, q_count, w, arcs);
    const reference ref(n, w, arcs);
    check_against_samples(ref, pareto_median(g), "pareto_median", round);
    if (q_count == 2) check_against_samples(ref, bicriteria_median(g), "bicriteria", round);
  }
}

// On two criteria the two routes report the same set: each point of one route's pieces is
// equal to or dominated by a point of the other's, up to rounding (lp_solve's vertices in the
// general route are exact only to its own precision).
TEST(pareto_median, the_two_routes_agree_on_two_criteria) {
  std::mt19937 rng(5);
  for (int round = 0; round < 60; ++round) {
    std::vector<std::vector<double>> w;
    std::vector<arc> arcs;
    const int n = 2 + round % 6;
    location_graph g = testing::random_graph(rng, n, 2, w, arcs);
    const reference ref(n, w, arcs);
    const std::vector<sample> general = reported_points(ref, pareto_median(g), 20, true),
                              planar = reported_points(ref, bicriteria_median(g), 20, true);
    const double step = ref.slope(0) + ref.slope(1);  // per unit of length, both objectives
    auto covered = [&](const std::vector<sample>& a, const std::vector<sample>& b,
                       const char* what) {
      for (const sample& p : a) {
        bool found = false;
        for (const sample& o : b) {
          const double tol = 1e-7 + (o.edge >= 0 ? step * ref.arcs[o.edge].length / 21 : 0);
          found = found || (o.value[0] <= p.value[0] + tol && o.value[1] <= p.value[1] + tol);
        }
        EXPECT_TRUE(found) << what << " round " << round << ": edge " << p.edge << " at "
                           << p.position;
      }
    };
    covered(general, planar, "general by planar");
    covered(planar, general, "planar by general");
  }
}

TEST(pareto_median, hand_cases) {
  // One edge of length 4 between a node of weights (1, 0) and one of (0, 1): the objectives are
  // (s, 4 - s), so the whole edge is Pareto optimal, ends included.
  location_graph edge = undirected_form(testing::criteria_graph({{1, 0}, {0, 1}}, {{0, 1, 4}}));
  const std::list<pareto_piece> whole{{0, 0, 0, 0}, {1, 1, 0, 0}, {0, 1, 0, 1}};
  EXPECT_EQ(pareto_median(edge).pieces, whole);
  EXPECT_EQ(bicriteria_median(edge).pieces, whole);
  const pareto_result r = pareto_median(edge);
  EXPECT_EQ(r.at_from.back(), (vector{0, 4}));
  EXPECT_EQ(r.at_to.back(), (vector{4, 0}));
  // Three criteria on a path 0 -2- 1 -2- 2 with weights (1,0,0), (0,0,0), (0,0,1): node 1 has
  // (2, 0, 2) and is dominated by no point; the ends (0, 0, 4) and (4, 0, 0); every point of
  // the path is Pareto optimal: (s, 0, 4 - s).
  location_graph path = undirected_form(
      testing::criteria_graph({{1, 0, 0}, {0, 0, 0}, {0, 0, 1}}, {{0, 1, 2}, {1, 2, 2}}));
  EXPECT_EQ(pareto_median(path).pieces,
            (std::list<pareto_piece>{
                {0, 0, 0, 0}, {1, 1, 0, 0}, {2, 2, 0, 0}, {0, 1, 0, 1}, {1, 2, 0, 1}}));
  // A node that dominates all: weights only at node 1 of the path: node 1 alone.
  location_graph star =
      undirected_form(testing::criteria_graph({{0, 0}, {1, 1}, {0, 0}}, {{0, 1, 2}, {1, 2, 2}}));
  EXPECT_EQ(pareto_median(star).pieces, (std::list<pareto_piece>{{1, 1, 0, 0}}));
  EXPECT_EQ(bicriteria_median(star).pieces, (std::list<pareto_piece>{{1, 1, 0, 0}}));
  // The two-criteria route takes two criteria only.
  EXPECT_REPORT(bicriteria_median(path), 2003,
                "This algorihm does not solve this kind of problem, sorry ;-)");
}

// merge_pareto on chains made by hand over one edge of length 10 whose objectives are
// (s, 10 - s): a point on the segment stays beside it, a point below it cuts the part it
// dominates, and a covering segment bounds a point even behind an equal point of its own chain.
TEST(pareto_median, merge_pareto_by_hand) {
  location_graph edge = undirected_form(testing::criteria_graph({{1, 0}, {0, 1}}, {{0, 1, 10}}));
  const sum_objectives objectives(edge);
  const edge_stretch whole{0, 0, 1, 10, 0, 10, {0, 10}, {10, 0}};
  auto point = [](double f1, double f2) {
    return edge_stretch{-1, 5, 5, 0, 0, 0, {f1, f2}, {f1, f2}};
  };
  auto spans = [](const std::vector<edge_stretch>& chain) {
    std::vector<std::pair<double, double>> found;
    for (const edge_stretch& e : chain) found.push_back({e.from, e.to});
    return found;
  };
  using spans_t = std::vector<std::pair<double, double>>;
  EXPECT_EQ(spans(merge_pareto(objectives, {whole}, {point(5, 5)})), (spans_t{{0, 10}, {0, 0}}));
  EXPECT_EQ(spans(merge_pareto(objectives, {whole}, {point(5, 4)})),
            (spans_t{{0, 5}, {0, 0}, {6, 10}}));
  EXPECT_EQ(merge_pareto(objectives, {whole, point(5, 5)}, {point(7, 3.5)}).size(), 2u);
  EXPECT_EQ(merge_pareto(objectives, {point(7, 3.5)}, {whole, point(5, 5)}).size(), 2u);
}

}  // namespace
}  // namespace mero
