#include "model/model_messages.h"
#include "single_facility_fixtures.h"
#include "test_support.h"

namespace mero {
namespace {

using testing::at;
using testing::linf;
using testing::sum_objective;

TEST(linf_sum, two_equal_locations_give_a_tilted_square) {
  facilities f;
  f.push_back(at(0, 0));
  f.push_back(at(2, 0));
  // Every point with max(|x|, |y|) + max(|x - 2|, |y|) = 2: the square on the diagonal (0,0)-(2,0),
  // walked corner by corner.
  EXPECT_DOUBLE_EQ(f.linf_sum(0, true), 2.0);
  const std::list<location> expected{
      location(2.0, 1.0, 1.0, -1.0, 0.0), location(2.0, 1.0, 2.0, 0.0, 0.0),
      location(2.0, 1.0, 1.0, 1.0, 0.0), location(2.0, 1.0, 0.0, 0.0, 0.0)};
  EXPECT_EQ(f.optima(), expected);
}

TEST(linf_sum, random_instances_every_corner_is_optimal) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    facilities f = testing::random_problem(seed, 15);
    const double value = f.linf_sum(0, true);
    auto objective = [&](double x, double y) { return sum_objective(f, linf, x, y); };
    for (const location& corner : f.optima()) {
      const double x = testing::x_of(corner), y = testing::y_of(corner);
      EXPECT_NEAR(objective(x, y), value, 1e-9 * value) << seed;
      EXPECT_LE(value, testing::grid_minimum(objective, x, y, 0.5) + 1e-9 * value) << seed;
      EXPECT_LE(value, testing::grid_minimum(objective, x, y, 0.001) + 1e-9 * value) << seed;
    }
  }
}

TEST(linf_sum, all_weights_zero_is_the_whole_plane) {
  facilities f;
  f.push_back(at(0, 0, 0));
  f.push_back(at(3, 1, 0));
  EXPECT_REPORT(f.linf_sum(0, true), 0, model_messages::l1_all_zero);
}

}  // namespace
}  // namespace mero
