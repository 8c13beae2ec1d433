#include "single_facility_fixtures.h"
#include "test_support.h"

namespace mero {
namespace {

location with_weights(double x, double y, std::vector<double> w) {
  location l(2, static_cast<int>(w.size()));
  l.coordinate_ref(0) = x;
  l.coordinate_ref(1) = y;
  for (std::size_t k = 0; k < w.size(); ++k) l.weight_ref(static_cast<int>(k)) = w[k];
  return l;
}

location corner(double x, double y) { return location(2.0, 1.0, x, y, 0.0); }

TEST(l2sqr_qsum, one_column_gives_its_centre_of_gravity) {
  facilities f;
  f.push_back(with_weights(0, 0, {1}));
  f.push_back(with_weights(4, 2, {3}));
  EXPECT_EQ(f.l2sqr_qsum(true), 0.0);
  EXPECT_EQ(f.optima(), std::list<location>{corner(3, 1.5)});
}

TEST(l2sqr_qsum, two_columns_give_the_segment_between_the_centres) {
  facilities f;
  f.push_back(with_weights(0, 0, {1, 3}));
  f.push_back(with_weights(4, 0, {3, 1}));
  f.l2sqr_qsum(true);
  EXPECT_EQ(f.optima(), (std::list<location>{corner(1, 0), corner(3, 0)}));
}

TEST(l2sqr_qsum, identical_columns_give_one_point) {
  facilities f;
  f.push_back(with_weights(0, 0, {2, 2, 2}));
  f.push_back(with_weights(6, 3, {1, 1, 1}));
  f.l2sqr_qsum(true);
  EXPECT_EQ(f.optima(), std::list<location>{corner(2, 1)});
}

TEST(l2sqr_qsum, columns_inside_the_hull_are_dropped_and_corners_run_counter_clockwise) {
  // Each column puts all weight on one location, so the centres are the locations themselves;
  // the fifth column weighs all four equally: the centre (1, 1) lies inside.
  facilities f;
  f.push_back(with_weights(0, 0, {1, 0, 0, 0, 1}));
  f.push_back(with_weights(2, 0, {0, 1, 0, 0, 1}));
  f.push_back(with_weights(2, 2, {0, 0, 1, 0, 1}));
  f.push_back(with_weights(0, 2, {0, 0, 0, 1, 1}));
  f.optima();
  f.l2sqr_sum(0, true);  // an earlier result is replaced whatever the clear flag says
  f.l2sqr_qsum(false);
  EXPECT_EQ(f.optima(),
            (std::list<location>{corner(0, 0), corner(2, 0), corner(2, 2), corner(0, 2)}));
}

}  // namespace
}  // namespace mero
