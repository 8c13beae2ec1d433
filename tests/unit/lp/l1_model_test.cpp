#include "lp/l1_model.h"

#include <gtest/gtest.h>

#include <vector>

namespace mero {
namespace {

struct point2 {
  double x, y;
};

// The rectilinear multifacility model for n new facilities: weights[j][i] ties facility j to
// location i, v[j][k] (j < k) ties two new facilities.
struct l1_instance {
  std::vector<double> objective, rhs_x, rhs_y;
};

l1_instance make_instance(const std::vector<point2>& locations,
                          const std::vector<std::vector<double>>& weights,
                          const std::vector<std::vector<double>>& v) {
  const int n = static_cast<int>(weights.size());
  l1_instance in;
  in.objective.assign(n + 1, 0.0);
  in.rhs_x.assign(1, 0.0);
  in.rhs_y.assign(1, 0.0);
  for (int j = 0; j < n; ++j)
    for (std::size_t i = 0; i < locations.size(); ++i) {
      in.objective.insert(in.objective.end(), 2, weights[j][i]);
      in.rhs_x.push_back(locations[i].x);
      in.rhs_y.push_back(locations[i].y);
    }
  for (int j = 0; j < n; ++j)
    for (int k = j + 1; k < n; ++k) {
      in.objective.insert(in.objective.end(), 2, v[j][k]);
      in.rhs_x.push_back(0.0);
      in.rhs_y.push_back(0.0);
    }
  return in;
}

TEST(l1_model, one_facility_is_the_weighted_median_of_each_axis) {
  // Weight 3 of 5 sits at (10, 2): it is the weighted median of both axes, and the only one.
  const std::vector<point2> locations{{0, 0}, {1, 5}, {10, 2}};
  const auto in = make_instance(locations, {{1, 1, 3}}, {{0}});
  std::vector<double> x, y;
  const double value = solve_l1_model(1, 3, 3, in.objective, in.rhs_x, in.rhs_y, x, y);
  ASSERT_EQ(x.size(), 1u);
  EXPECT_NEAR(x[0], 10.0, 1e-9);
  EXPECT_NEAR(y[0], 2.0, 1e-9);
  // x axis: 10 + 9 + 0; y axis: 2 + 3 + 0.
  EXPECT_NEAR(value, 24.0, 1e-9);
}

TEST(l1_model, heavy_tie_collapses_two_facilities_into_one_point) {
  // Facility 1 is drawn to (0, 0), facility 2 to (10, 4); the tie of 100 makes them meet,
  // and the cheapest meeting costs the rectilinear distance 14 of the two locations.
  const std::vector<point2> locations{{0, 0}, {10, 4}};
  const auto in = make_instance(locations, {{1, 0}, {0, 1}}, {{0, 100}, {0, 0}});
  const int rows = l1_model_rows(2, 2);
  ASSERT_EQ(rows, 5);
  std::vector<double> x, y;
  const double value = solve_l1_model(2, 2, rows, in.objective, in.rhs_x, in.rhs_y, x, y);
  ASSERT_EQ(x.size(), 2u);
  EXPECT_NEAR(value, 14.0, 1e-9);
  EXPECT_NEAR(x[0], x[1], 1e-9);
  EXPECT_NEAR(y[0], y[1], 1e-9);
  EXPECT_GE(x[0], -1e-9);
  EXPECT_LE(x[0], 10 + 1e-9);
}

TEST(l1_model, rows_beyond_equal_rows_keep_the_default_at_most_type) {
  // Only the four location rows are equalities; the pair row then reads
  // x1 - x2 - e+ + e- <= 0, which facility 1 left of facility 2 satisfies at no cost.
  const std::vector<point2> locations{{0, 0}, {10, 4}};
  const auto in = make_instance(locations, {{1, 0}, {0, 1}}, {{0, 100}, {0, 0}});
  std::vector<double> x, y;
  const double value = solve_l1_model(2, 2, 4, in.objective, in.rhs_x, in.rhs_y, x, y);
  EXPECT_NEAR(value, 0.0, 1e-9);
  EXPECT_NEAR(x[0], 0.0, 1e-9);
  EXPECT_NEAR(x[1], 10.0, 1e-9);
  EXPECT_NEAR(y[1], 4.0, 1e-9);
}

TEST(l1_model, coordinates_are_free_below_zero) {
  const std::vector<point2> locations{{-7, -3}, {-5, -9}};
  const auto in = make_instance(locations, {{2, 1}}, {{0}});
  std::vector<double> x, y;
  const double value = solve_l1_model(1, 2, 2, in.objective, in.rhs_x, in.rhs_y, x, y);
  EXPECT_NEAR(x[0], -7.0, 1e-9);
  EXPECT_NEAR(y[0], -3.0, 1e-9);
  EXPECT_NEAR(value, 2.0 + 6.0, 1e-9);
}

}  // namespace
}  // namespace mero
