#include <set>
#include <string>

#include "line_fixtures.h"

namespace mero::testing {
namespace {

// Points on an integer grid: many collinear triples, horizontal and vertical lines, and ties.
facilities grid_points(unsigned seed, int n, int side) {
  std::mt19937 gen(seed);
  std::uniform_int_distribution<int> c(0, side - 1);
  facilities f;
  std::set<std::pair<int, int>> used;
  while (static_cast<int>(f.size()) < n) {
    const int x = c(gen), y = c(gen);
    if (used.insert({x, y}).second) f.push_back(at(x, y));
  }
  return f;
}

void expect_same_as_pair_loop(facilities f, const std::string& what) {
  facilities reference = unit_weights(f);
  const double expected = reference.L_l2_sum_M3();
  const double tolerance = 1e-9 * (1.0 + expected);
  facilities a = unit_weights(f);
  EXPECT_NEAR(a.L_l2_sum_M2logM(), expected, tolerance) << what << " M2logM";
  EXPECT_NEAR(reported_objective(a, l2, true), expected, 1e-7 * (1.0 + expected)) << what;
  facilities b = f;  // M2 takes every weight as 1.0 by itself
  EXPECT_NEAR(b.L_l2_sum_M2(), expected, tolerance) << what << " M2";
  EXPECT_NEAR(reported_objective(reference, l2, true), expected, 1e-7 * (1.0 + expected));
  b = unit_weights(b);
  EXPECT_NEAR(reported_objective(b, l2, true), expected, 1e-7 * (1.0 + expected)) << what;
}

// The sweeps give the value of the pair loop on unit weights: odd and even counts, scattered
// points and grid points with collinear rows.
TEST(line_sweep, equal_the_pair_loop_on_unit_weights) {
  for (int n = 3; n <= 41; n += 2) {
    expect_same_as_pair_loop(random_problem(100 + n, n), "random n=" + std::to_string(n));
    expect_same_as_pair_loop(random_problem(200 + n, n + 1), "random n=" + std::to_string(n + 1));
  }
  for (unsigned seed = 1; seed <= 12; ++seed) {
    const int n = 4 + static_cast<int>(seed) * 2;
    expect_same_as_pair_loop(grid_points(seed, n, 7), "grid seed " + std::to_string(seed));
    expect_same_as_pair_loop(grid_points(seed, std::min(n - 1, 15), 4),
                             "small grid seed " + std::to_string(seed));
  }
}

// Degenerate sets: all on one line (value 0.0), coincident locations (M2 takes the sorted sweep),
// a regular polygon where every halving line ties.
TEST(line_sweep, degenerate_sets) {
  expect_same_as_pair_loop(problem({at(0, 0), at(1, 1), at(2, 2), at(5, 5), at(-3, -3)}),
                           "collinear");
  expect_same_as_pair_loop(problem({at(0, 0), at(0, 0), at(4, 0), at(4, 0), at(2, 3), at(1, 7)}),
                           "coincident pairs");
  expect_same_as_pair_loop(problem({at(3, 3), at(3, 3), at(3, 3), at(9, 1)}), "three on a spot");
  facilities hexagon;
  for (int k = 0; k < 6; ++k)
    hexagon.push_back(at(std::cos(k * std::numbers::pi / 3), std::sin(k * std::numbers::pi / 3)));
  expect_same_as_pair_loop(hexagon, "hexagon");
  facilities square = problem({at(0, 0), at(1, 0), at(1, 1), at(0, 1)});
  expect_same_as_pair_loop(square, "square");
}

// With unequal weights the sorted sweep still finds the best line, since it weighs its halving
// test; the windmill ignores the weights.
TEST(line_sweep, sorted_sweep_weighs_its_halving_lines) {
  for (unsigned seed = 1; seed <= 10; ++seed) {
    facilities f = random_problem(300 + seed, 5 + static_cast<int>(seed) * 3, 0.5, 20.0);
    facilities reference = f;
    const double expected = reference.L_l2_sum_M3();
    EXPECT_NEAR(f.L_l2_sum_M2logM(), expected, 1e-9 * expected) << seed;
    EXPECT_NEAR(reported_objective(f, l2, true), expected, 1e-7 * expected) << seed;
  }
  // Integer weights with a tie at exactly half the weight on one side.
  facilities tie = problem({at(0, 0, 2), at(4, 0, 1), at(2, 3, 1), at(2, -3, 2), at(7, 1, 2)});
  facilities reference = tie;
  EXPECT_NEAR(tie.L_l2_sum_M2logM(), reference.L_l2_sum_M3(), 1e-12);
}

}  // namespace
}  // namespace mero::testing
