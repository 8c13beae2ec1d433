#include <bit>
#include <cstdint>
#include <set>

#include "model/model_messages.h"
#include "planar_fixtures.h"

namespace mero::testing {
namespace {

using corner_list = std::vector<std::pair<double, double>>;

corner_list corners(const facilities& f) {
  corner_list out;
  for (const location& l : f.optima_view()) out.emplace_back(l.coordinate(0), l.coordinate(1));
  return out;
}

TEST(l1_median, optima_carry_the_solved_column_as_group) {
  facilities f = problem({site(0, 0, {1, 3}), site(4, 2, {1, 1})});
  f.l1_sum(0, true);
  f.l1_sum(1, false);  // appended behind the first result
  std::vector<double> groups;
  for (const location& l : f.optima_view()) groups.push_back(l.weight(0));
  EXPECT_EQ(groups, (std::vector<double>{0, 0, 0, 0, 1}));
  EXPECT_EQ(f.optima().back().coordinates(), Loc_Vector(2.0, 0.0, 0.0));
  f.l1_sum(1, true);
  EXPECT_EQ(f.optima().size(), 1u);
}

TEST(l1_median, the_skip_test_reads_column_zero) {
  // Solving column 1: the location at x = 1 weighs 0 there but 1 in column 0, so it ends the
  // segment although x = 2 would be optimal as well.
  facilities f = problem({site(0, 0, {1, 1}), site(1, 0, {1, 0}), site(2, 0, {1, 1})});
  EXPECT_EQ(f.l1_sum(1, true), 2.0);
  EXPECT_EQ(corners(f), (corner_list{{0, 0}, {1, 0}}));
}

TEST(l1_median, weights_cancelling_to_zero_or_no_location_mean_the_whole_plane) {
  for (const auto& locations :
       std::vector<std::vector<location>>{{at(1, 1, 2), at(2, 3, -2)}, {}}) {
    facilities f = problem(locations);
    EXPECT_REPORT(f.l1_sum(0, true), 0, model_messages::l1_all_zero.text);
    EXPECT_TRUE(f.optima_view().empty());
  }
}

// The smallest and largest minimiser of one axis among the coordinates of positive weight; with
// integer data every sum is exact, so ties are real ties.
std::pair<double, double> axis_optimum(const facilities& f, int axis) {
  std::set<double> candidates;
  for (const location& l : f)
    if (l.weight(0) > 0) candidates.insert(l.coordinate(axis));
  double best = INFINITY;
  std::vector<double> minimisers;
  for (double c : candidates) {
    double sum = 0.0;
    for (const location& l : f) sum += std::fabs(l.coordinate(axis) - c) * l.weight(0);
    if (sum < best) minimisers.clear();
    if (sum <= best) {
      best = sum;
      minimisers.push_back(c);
    }
  }
  return {minimisers.front(), minimisers.back()};
}

TEST(l1_median, matches_brute_force_on_random_instances) {
  std::mt19937 random(20261121);
  std::uniform_int_distribution<int> coordinate(-6, 6), weight(0, 4), count(1, 14);
  for (int round = 0; round < 400; ++round) {
    facilities f;
    for (int i = count(random); i > 0; --i)
      f.push_back(at(coordinate(random), coordinate(random), weight(random)));
    f.front().weight_ref(0) += 1;  // at least one positive weight
    const auto [x0, x1] = axis_optimum(f, 0);
    const auto [y0, y1] = axis_optimum(f, 1);
    corner_list expected{{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}};
    if (x0 == x1 || y0 == y1) expected = {{x0, y0}, {x1, y1}};
    if (x0 == x1 && y0 == y1) expected = {{x0, y0}};
    // The objective is separable, so the axis optima together are optimal.
    EXPECT_EQ(f.l1_sum(0, true), objective_of(f, l1, x0, y0)) << "round " << round;
    EXPECT_EQ(corners(f), expected) << "round " << round;
  }
}

// The list form of the method, step by step: the sorted and merged copies of the list, the walk
// to the half-sum, the neighbours whose column 0 is not 0.0, the sum at the first corner.
std::pair<double, corner_list> list_method(const facilities& f, int w) {
  const std::list<location> xs = f.sorted_merged(0, w), ys = f.sorted_merged(1, w);
  double total = 0.0;
  for (const location& l : xs) total += l.weight(w);
  const double half = total * 0.5;
  auto walk = [&](const std::list<location>& m, double& sum) {
    sum = 0.0;
    for (auto it = m.begin();; ++it)
      if (!((sum += it->weight(w)) < half)) return it;
  };
  // The next entry with column 0 not 0.0; the list form ends the run without one, and so does
  // the test's case (an empty corner list).
  bool missing = false;
  auto next = [&missing](const std::list<location>& m, auto it) {
    while (++it != m.end())
      if (it->weight(0) != 0.0) return it;
    missing = true;
    return std::prev(it);
  };
  double sx, sy;
  auto x = walk(xs, sx), y = walk(ys, sy);
  corner_list c{{x->coordinate(0), y->coordinate(1)}};
  if (sx > half && sy == half) c.emplace_back(x->coordinate(0), next(ys, y)->coordinate(1));
  if (sx == half && sy > half) c.emplace_back(next(xs, x)->coordinate(0), y->coordinate(1));
  if (sx == half && sy == half) {
    auto x2 = next(xs, x), y2 = next(ys, y);
    auto x3 = x2;
    do {
      if (x3 == xs.begin()) return {0.0, {}};
    } while ((--x3)->weight(0) == 0.0);
    c.insert(c.end(), {{x2->coordinate(0), y->coordinate(1)},
                       {x2->coordinate(0), y2->coordinate(1)},
                       {x3->coordinate(0), y2->coordinate(1)}});
  }
  if (missing) return {0.0, {}};
  return {f.objective(1, location(2.0, 1.0, c[0].first, c[0].second, w), w), c};
}

// The corners as bit patterns, so that 0.0 and -0.0 differ.
std::vector<std::uint64_t> bits(const corner_list& c) {
  std::vector<std::uint64_t> out;
  for (const auto& [x, y] : c)
    for (double v : {x, y}) out.push_back(std::bit_cast<std::uint64_t>(v));
  return out;
}

// Two weight columns with zeros, repeated coordinates (0.0 and -0.0 among them) and weights of
// three kinds: binary fractions (exact sums, so ties with the half-sum are real and the solver
// selects instead of sorting), tenths (inexact sums: the solver sorts) and large whole numbers.
// The solver gives the same corners and the same value, bit for bit, as the list form, for
// either column; from a few to a thousand locations.
TEST(l1_median, matches_the_list_form_bit_for_bit) {
  std::mt19937 random(2026112420);
  std::uniform_int_distribution<int> coordinate(-5, 5), weight(0, 3), kind(0, 2), sign(0, 1);
  for (int round = 0; round < 360; ++round) {
    const int n = std::uniform_int_distribution<int>(1, round < 300 ? 30 : 1000)(random);
    const double scale[3][2] = {{0.25, 0.5}, {0.1, 0.3}, {1e6, 3e7}};
    const int k = kind(random);
    facilities f;
    for (int i = n; i > 0; --i) {
      const double x = coordinate(random) * (sign(random) ? 0.1 : -0.1);
      f.push_back(site(x, coordinate(random) * 0.3,
                       {weight(random) * scale[k][0], weight(random) * scale[k][1]}));
    }
    f.front().weight_ref(0) += scale[k][0];
    f.front().weight_ref(1) += scale[k][1];
    for (int w = 0; w < 2; ++w) {
      const auto [value, expected] = list_method(f, w);
      if (expected.empty()) {
        EXPECT_REPORT(f.l1_sum(w, true), 1351, model_messages::l1_no_corner.text);
        continue;
      }
      EXPECT_EQ(f.l1_sum(w, true), value) << "round " << round << " column " << w;
      EXPECT_EQ(bits(corners(f)), bits(expected)) << "round " << round << " column " << w;
    }
  }
}

}  // namespace
}  // namespace mero::testing
