#include "planar/lp_pull_bound.h"

#include <random>
#include <vector>

#include "planar/weighted_points.h"
#include "planar_fixtures.h"

namespace mero::testing {
namespace {

// Random clouds of several shapes: uniform, tight clusters with exact duplicates, a line, and a
// cloud with one location heavy enough to be the median.
facilities cloud(unsigned seed, int shape) {
  std::mt19937 gen(seed);
  std::uniform_real_distribution<double> unit(0.0, 1.0);
  facilities f;
  const int n = 300;
  for (int i = 0; i < n; ++i) {
    double x = 100 * unit(gen), y = 100 * unit(gen);
    if (shape == 1) {  // five clusters of radius 0.01, with a few exact duplicates
      const int c = i % 5;
      x = 20 * c + 0.01 * unit(gen);
      y = 7 * c + (i % 17 == 0 ? 0.0 : 0.01 * unit(gen));
      if (i % 17 == 0) x = 20 * c;
    } else if (shape == 2) {  // all on one line
      y = 0.5 * x + 3;
    }
    f.push_back(at(x, y, 1 + std::floor(9 * unit(gen))));
  }
  if (shape == 3) f.front().weight_ref(0) = 5.0 * n * 10;  // outweighs all others: the median
  return f;
}

// Whatever the bound proves must agree with the exact test: a proved location never passes it.
// And the bound must rule out the bulk of a spread-out cloud, or it saves nothing.
TEST(lp_pull_bound, proves_only_failures_of_the_exact_test) {
  for (int p : {2, 3, 4, 7})
    for (int shape = 0; shape < 4; ++shape)
      for (unsigned seed = 1; seed <= 3; ++seed) {
        const facilities f = cloud(seed, shape);
        const std::vector<weighted_point> points = weighted_points(f, 0);
        const lp_pull_bound bound(points, p);
        int proved = 0;
        std::size_t i = 0;
        for (auto it = f.cbegin(); it != f.cend(); ++it, ++i) {
          if (!bound.proves_failure(i)) continue;
          ++proved;
          EXPECT_FALSE(f.is_lp_optimal(p, it, 0)) << "p " << p << " shape " << shape << " at " << i;
        }
        if (shape == 0) {
          EXPECT_GT(proved, 270) << "p " << p;
        }
        if (shape == 3) {
          EXPECT_FALSE(bound.proves_failure(0));
        }
      }
}

// The shortcut leaves lp_sum's answer as testing every location gives it: the first location
// that passes the exact test when there is one, the iteration's point otherwise.
TEST(lp_pull_bound, lp_sum_reports_the_first_location_that_passes_the_exact_test) {
  for (int p : {2, 3, 5})
    for (int shape = 0; shape < 4; ++shape) {
      facilities f = cloud(11, shape);
      const location* expected = nullptr;
      for (auto it = f.cbegin(); it != f.cend() && !expected; ++it)
        if (f.is_lp_optimal(p, it, 0)) expected = &*it;
      f.lp_sum(p, 1e-4, 1e-4, 50, 0, true);
      const location result = f.optima().front();
      if (expected) {
        EXPECT_EQ(result.coordinates(), expected->coordinates()) << "p " << p;
      } else {
        for (const location& l : f) EXPECT_NE(result.coordinates(), l.coordinates());
      }
      if (shape == 3) {
        EXPECT_NE(expected, nullptr);
      }
    }
}

// The hard case: a location whose weight just reaches its pull is a median, and one just below
// is not. The pull does not depend on the location's own weight, so bisection on that weight
// finds where the exact test flips.
TEST(lp_pull_bound, decides_nothing_wrong_at_the_edge_of_the_test) {
  for (int p : {2, 3, 6})
    for (int k = 0; k < 5; ++k) {
      facilities f = cloud(21 + k, 0);
      auto it = std::next(f.begin(), 40 * k);
      double lo = 0.0, hi = 1e6;
      for (int step = 0; step < 200; ++step) {
        it->weight_ref(0) = (lo + hi) / 2;
        (f.is_lp_optimal(p, it, 0) ? hi : lo) = (lo + hi) / 2;
      }
      const std::size_t index = static_cast<std::size_t>(40 * k);
      it->weight_ref(0) = hi * (1 + 1e-6);
      ASSERT_TRUE(f.is_lp_optimal(p, it, 0));
      EXPECT_FALSE(lp_pull_bound(weighted_points(f, 0), p).proves_failure(index)) << p << ' ' << k;
      it->weight_ref(0) = lo * (1 - 1e-3);
      EXPECT_TRUE(lp_pull_bound(weighted_points(f, 0), p).proves_failure(index)) << p << ' ' << k;
    }
}

// Data it cannot vouch for (negative weights, p below 2) proves nothing.
TEST(lp_pull_bound, refuses_data_it_cannot_vouch_for) {
  facilities f = cloud(5, 0);
  f.back().weight_ref(0) = -1.0;
  const std::vector<weighted_point> negative = weighted_points(f, 0);
  const lp_pull_bound with_negative(negative, 3);
  const std::vector<weighted_point> plain = weighted_points(cloud(5, 0), 0);
  const lp_pull_bound l1(plain, 1);
  for (std::size_t i = 0; i < negative.size(); ++i) {
    EXPECT_FALSE(with_negative.proves_failure(i));
    EXPECT_FALSE(l1.proves_failure(i));
  }
}

}  // namespace
}  // namespace mero::testing
