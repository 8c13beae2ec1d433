// The optimal value of linf_max against the full scan of every pair, to the last bit, on random
// instances large enough for the solver's candidate filter to act.
#include <algorithm>
#include <cmath>
#include <random>

#include "model/facilities.h"
#include "test_support.h"

namespace mero {
namespace {

double scan_every_pair(const facilities& problem) {
  double z = 0.0;
  for (auto i = problem.begin(); i != problem.end(); ++i)
    for (auto j = std::next(i); j != problem.end(); ++j) {
      const double u = i->weight(0), v = j->weight(0);
      const double t = u * v / (u + v);
      z = std::max(z, std::fabs(i->coordinate(0) - j->coordinate(0)) * t);
      z = std::max(z, std::fabs(i->coordinate(1) - j->coordinate(1)) * t);
    }
  return z;
}

TEST(linf_max, value_equals_the_scan_of_every_pair) {
  std::mt19937 random(7);
  for (int round = 0; round < 60; ++round) {
    // Integer grids make ties and duplicates common; wide weight ranges stress the filter.
    const int n = 64 + static_cast<int>(random() % 400);
    const bool grid = round % 3 == 0;
    std::uniform_real_distribution<double> coordinate(-1000.0, 1000.0);
    std::uniform_real_distribution<double> exponent(-3.0, 3.0);
    facilities problem;
    for (int k = 0; k < n; ++k) {
      double x = coordinate(random), y = coordinate(random);
      if (grid) x = std::round(x / 100.0), y = std::round(y / 100.0);
      const double w = round % 2 ? std::pow(10.0, exponent(random)) : 1.0 + random() % 3;
      problem.push_back(location(2.0, 1.0, x, y, w));
    }
    EXPECT_EQ(problem.linf_max(true), scan_every_pair(problem)) << "round " << round;
  }
}

}  // namespace
}  // namespace mero
