#include <tuple>

#include "line_fixtures.h"

namespace mero::testing {
namespace {

// Every triple in every role, with the line derived apart from the solver: equal weighted
// distances e from a and b on one side and c on the other give n.(a - c) = e (1/w_a + 1/w_c) and
// n.(b - c) = e (1/w_b + 1/w_c), so the line is parallel to
// h_ac (a - c) - h_bc (b - c) with h = w w' / (w + w'), and it passes through the weighted mean
// of a and c.
double brute_triple_max(const facilities& f, const distance& norm) {
  const std::vector<xy> c = coordinates(f);
  const std::vector<double> w = weights(f);
  double best = 1e50;
  const std::size_t n = c.size();
  for (std::size_t i = 0; i < n; ++i)
    for (std::size_t j = i + 1; j < n; ++j)
      for (std::size_t k = j + 1; k < n; ++k)
        for (auto [a, b, z] : {std::tuple{i, j, k}, std::tuple{i, k, j}, std::tuple{j, k, i}}) {
          const double hac = w[a] * w[z] / (w[a] + w[z]), hbc = w[b] * w[z] / (w[b] + w[z]);
          const xy d{hac * (c[a].x - c[z].x) - hbc * (c[b].x - c[z].x),
                     hac * (c[a].y - c[z].y) - hbc * (c[b].y - c[z].y)};
          if (d.x == 0.0 && d.y == 0.0) continue;
          const xy through{(w[a] * c[a].x + w[z] * c[z].x) / (w[a] + w[z]),
                           (w[a] * c[a].y + w[z] * c[z].y) / (w[a] + w[z])};
          best = std::min(best, line_objective(f, norm, through, d, false));
        }
  return best;
}

using max_solver = double (facilities::*)();

struct max_method {
  const char* name;
  max_solver solve;
  distance norm;
};

const std::vector<max_method>& triple_loops() {
  static const std::vector<max_method> methods{
      {"L_l2_max_M4", &facilities::L_l2_max_M4, l2},
      {"L_l1_max_M4", &facilities::L_l1_max_M4, l1},
      {"L_linf_max_M4", &facilities::L_linf_max_M4, linf},
  };
  return methods;
}

TEST(line_max, triple_loops_match_the_brute_force_over_triples) {
  for (const max_method& m : triple_loops())
    for (unsigned seed = 1; seed <= 5; ++seed) {
      facilities f = random_problem(40 + seed, 4 + static_cast<int>(seed));
      const double value = (f.*m.solve)();
      const double brute = brute_triple_max(f, m.norm);
      EXPECT_NEAR(value, brute, 1e-7 * brute) << m.name << " seed " << seed;
      EXPECT_NEAR(reported_objective(f, m.norm, false), value, 1e-7 * brute) << m.name;
    }
  for (int p : {3, 4}) {
    facilities f = random_problem(50 + p, 7);
    const double value = f.L_lp_max_M4(p);
    EXPECT_NEAR(value, brute_triple_max(f, lp(p)), 1e-7 * value) << p;
    EXPECT_NEAR(reported_objective(f, lp(p), false), value, 1e-7 * value) << p;
  }
}

// For the Euclidean distance the triples hold an optimum: no direction of a fine grid with its
// best offset beats the loop, and the grid comes close.
TEST(line_max, no_euclidean_line_of_any_direction_is_better) {
  for (unsigned seed = 1; seed <= 4; ++seed) {
    facilities f = random_problem(70 + seed, 8);
    const double value = f.L_l2_max_M4();
    const double grid = direction_grid(f, dual_l2, false, 20000);
    EXPECT_LE(value, grid + 1e-9) << seed;
    EXPECT_GT(value, grid - 0.2) << seed;
  }
}

// With equal weights the hull walks give the value of the triple loop: half the width.
TEST(line_max, hull_walks_equal_the_triple_loop_on_unit_weights) {
  for (int n = 3; n <= 30; n += 3) {
    facilities f = unit_weights(random_problem(80 + n, n));
    const double expected = f.L_l2_max_M4();
    EXPECT_NEAR(f.L_l2_v1_max(), expected, 1e-9 * expected) << n;
    EXPECT_NEAR(reported_objective(f, l2, false), expected, 1e-7 * expected) << n;
    EXPECT_NEAR(f.L_l2_max_M2logM(), expected, 1e-9 * expected) << n;
    EXPECT_NEAR(reported_objective(f, l2, false), expected, 1e-7 * expected) << n;
  }
  // The walk with weights ignores them: the same set with other weights has the same value.
  facilities f = random_problem(90, 12, 1.0, 9.0);
  EXPECT_NEAR(f.L_l2_v1_max(), unit_weights(f).L_l2_max_M4(), 1e-9);
}

// The weighted hull walk measures its line over the locations after the first: a heavy first
// location far from the line does not count, the same location placed second does.
TEST(line_max, weighted_hull_walk_measures_from_the_second_location_on) {
  const std::vector<location> rest{at(0, 0), at(10, 0), at(10, 4), at(0, 4)};
  facilities first = problem({at(5, 1, 20), rest[0], rest[1], rest[2], rest[3]});
  facilities second = problem({rest[0], at(5, 1, 20), rest[1], rest[2], rest[3]});
  // Narrowest: the edge (0,0)-(10,0) with the corner (10,4) at height 4; the line runs through
  // the midpoints of (0,0)-(10,4) and (10,0)-(10,4).
  EXPECT_DOUBLE_EQ(first.L_l2_max_M2logM(), 2.0);
  EXPECT_DOUBLE_EQ(second.L_l2_max_M2logM(), 20.0);
  EXPECT_EQ(second.optima(), (std::list<location>{location(2.0, 1.0, 5.0, 2.0, 0.0),
                                                  location(2.0, 1.0, 10.0, 2.0, 0.0)}));
}

// Hand cases (the triangle's halved height is shown end to end by tests/cli/line.t): collinear
// locations give 0.0 and fewer than three locations give no line, for every max solver.
TEST(line_max, hand_cases) {
  std::vector<max_solver> all{&facilities::L_l2_v1_max, &facilities::L_l2_max_M2logM};
  for (const max_method& m : triple_loops()) all.push_back(m.solve);
  for (max_solver solve : all) {
    facilities collinear = problem({at(0, 0), at(2, 1), at(4, 2), at(-2, -1)});
    EXPECT_EQ((collinear.*solve)(), 0.0);
    EXPECT_NEAR(reported_objective(collinear, l2, false), 0.0, 1e-9);
    facilities two = problem({at(0, 0), at(4, 1)});
    EXPECT_EQ((two.*solve)(), 1e50);
    EXPECT_TRUE(two.optima().empty());
  }
  // Ties between roles and triples: the square's four sides give the same value 0.5 and the
  // first role of the first triple stays: the line through the midpoints of (0,0)-(0,1) and
  // (1,0)-(0,1).
  facilities square = problem({at(0, 0), at(1, 0), at(0, 1), at(1, 1)});
  EXPECT_EQ(square.L_l2_max_M4(), 0.5);
  EXPECT_EQ(square.optima(), (std::list<location>{location(2.0, 1.0, 0.0, 0.5, 0.0),
                                                  location(2.0, 1.0, 0.5, 0.5, 0.0)}));
}

}  // namespace
}  // namespace mero::testing
