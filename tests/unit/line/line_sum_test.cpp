#include "gauge/polygauge.h"
#include "line_fixtures.h"

namespace mero::testing {
namespace {

using sum_solver = double (facilities::*)();

struct sum_method {
  const char* name;
  sum_solver solve;
  distance norm;
  std::function<double(double, double)> dual;
};

const std::vector<sum_method>& pair_loops() {
  static const std::vector<sum_method> methods{
      {"L_l2_sum_M3", &facilities::L_l2_sum_M3, l2, dual_l2},
      {"L_l1_sum_M3", &facilities::L_l1_sum_M3, l1, dual_l1},
      {"L_linf_sum_M3", &facilities::L_linf_sum_M3, linf, dual_linf},
  };
  return methods;
}

// Every pair loop against all lines through two locations measured by the norm itself, and its
// reported line measured the same way; weighted random sets.
TEST(line_sum, pair_loops_match_the_brute_force_over_pairs) {
  for (const sum_method& m : pair_loops())
    for (unsigned seed = 1; seed <= 6; ++seed) {
      facilities f = random_problem(seed, 4 + static_cast<int>(seed));
      const double value = (f.*m.solve)();
      const double brute = brute_pair_sum(f, m.norm);
      EXPECT_NEAR(value, brute, 1e-7 * brute) << m.name << " seed " << seed;
      EXPECT_NEAR(reported_objective(f, m.norm, true), value, 1e-7 * brute) << m.name;
    }
}

// The candidate set is complete: no direction of a fine grid with its best offset beats the pair
// loop, and the grid comes close to it.
TEST(line_sum, no_line_of_any_direction_is_better) {
  for (const sum_method& m : pair_loops())
    for (unsigned seed = 11; seed <= 13; ++seed) {
      facilities f = random_problem(seed, 9);
      const double value = (f.*m.solve)();
      const double grid = direction_grid(f, m.dual, true, 4000);
      EXPECT_LE(value, grid + 1e-9) << m.name;
      EXPECT_GT(value, grid - 0.5) << m.name;
    }
}

TEST(line_sum, lp_loop_matches_the_brute_force_over_pairs) {
  for (int p : {3, 5}) {
    facilities f = random_problem(20 + p, 8);
    const double value = f.L_lp_sum_M3(p);
    const double brute = brute_pair_sum(f, lp(p));
    EXPECT_NEAR(value, brute, 1e-7 * brute) << p;
    EXPECT_NEAR(reported_objective(f, lp(p), true), value, 1e-7 * brute) << p;
  }
}

// p = 2, 1 and -1 are the Euclidean, rectilinear and maximum norms, for the sum and the max.
TEST(line_lp, special_exponents_give_the_special_norms) {
  struct special {
    int p;
    double (facilities::*sum)();
    double (facilities::*max)();
  };
  for (const special& s : {special{2, &facilities::L_l2_sum_M3, &facilities::L_l2_max_M4},
                           special{1, &facilities::L_l1_sum_M3, &facilities::L_l1_max_M4},
                           special{-1, &facilities::L_linf_sum_M3, &facilities::L_linf_max_M4}}) {
    facilities f = random_problem(30, 8);
    EXPECT_NEAR(f.L_lp_sum_M3(s.p), (f.*s.sum)(), 1e-9) << s.p;
    EXPECT_NEAR(f.L_lp_max_M4(s.p), (f.*s.max)(), 1e-9) << s.p;
  }
}

// The checks of the line solvers, each with its code and text.
TEST(line_location, checks_of_the_input) {
  const char* finite = "Line location: every coordinate and weight must be a finite number.";
  facilities f = problem({at(0, 0), at(HUGE_VAL, 1), at(0, 1)});
  EXPECT_REPORT(f.L_l2_sum_M2logM(), 1362, finite);
  facilities g = problem({at(0, 0), at(1, 1, std::nan("")), at(0, 1)});
  EXPECT_REPORT(g.L_l2_max_M4(), 1362, finite);
  facilities h = problem({at(0, 0), at(1, 0), at(0, 1)});
  for (int p : {0, -2})
    EXPECT_REPORT(h.L_lp_sum_M3(p), 1360,
                  "facilities::L_lp_sum_M3(): p must be at least 1, or -1 for the maximum norm.");
  EXPECT_REPORT(h.L_lp_max_M4(0), 1361,
                "facilities::L_lp_max_M4(): p must be at least 1, or -1 for the maximum norm.");
  const std::vector<polygauge> gauges{rectilinear_gauge()};
  const char* number = "Line location: False gauge-number.";
  EXPECT_REPORT(h.L_block_sum_M3(gauges, {-1, 0, 0}), 1363, number);
  EXPECT_REPORT(h.L_block_max_M4(gauges, {1, 0, 0}), 1363, number);
  EXPECT_REPORT(h.L_block_sum_M3({}, {0}), 1363, number);
}

// Hand cases. Three locations: the pair whose line leaves the third nearest, here (4,0)-(0,1)
// with (0,0) at 4 / sqrt(17), for the pair loop and both sweeps. Collinear locations: every pair
// gives 0.0 and the first pair stays. A coincident pair gives no line. Two locations: their line,
// value 0.0. One location: no line, 1e50.
TEST(line_sum, hand_cases_and_the_first_pair_on_ties) {
  facilities triangle = problem({at(0, 0), at(4, 0), at(0, 1)});
  const std::vector<sum_solver> euclidean{&facilities::L_l2_sum_M3, &facilities::L_l2_sum_M2,
                                          &facilities::L_l2_sum_M2logM};
  for (sum_solver solve : euclidean) {
    EXPECT_NEAR((triangle.*solve)(), 4 / std::sqrt(17.0), 1e-12);
    EXPECT_EQ(triangle.optima(), (std::list<location>{at(4, 0), at(0, 1)}));
  }
  // l1: the line (4,0)-(0,1) is 1 above (0,0), the line x = 0 is 4 away from (4,0): the first.
  EXPECT_DOUBLE_EQ(triangle.L_l1_sum_M3(), 1.0);
  EXPECT_EQ(triangle.optima(), (std::list<location>{at(0, 0), at(4, 0)}));

  facilities line = problem({at(0, 0, 2), at(1, 1, 3), at(2, 2), at(3, 3)});
  for (const sum_method& m : pair_loops()) {
    EXPECT_EQ((line.*m.solve)(), 0.0) << m.name;
    EXPECT_EQ(line.optima(), (std::list<location>{at(0, 0), at(1, 1)})) << m.name;
  }

  facilities coincident = problem({at(1, 1), at(1, 1), at(3, 1), at(2, 5)});
  // (1,1)-(2,5) leaves (3,1) at 8 / sqrt(17); (3,1)-(2,5) leaves both copies of (1,1) there.
  EXPECT_NEAR(coincident.L_l2_sum_M3(), 8 / std::sqrt(17.0), 1e-12);
  EXPECT_EQ(coincident.optima(), (std::list<location>{at(1, 1), at(2, 5)}));

  std::vector<sum_solver> all = euclidean;
  for (const sum_method& m : pair_loops()) all.push_back(m.solve);
  facilities two = problem({at(1, 2, 5), at(3, 7, 2)}), one = problem({at(1, 2)});
  for (sum_solver solve : all) {
    EXPECT_EQ((two.*solve)(), 0.0);
    EXPECT_EQ(two.optima(), (std::list<location>{at(1, 2), at(3, 7)}));
    EXPECT_EQ((one.*solve)(), 1e50);
    EXPECT_TRUE(one.optima().empty());
  }
}

}  // namespace
}  // namespace mero::testing
