// The gauge center with a forbidden region against a dense sampling of the region's boundary,
// measured with the gauges' facet formula (not polygauge::dist), on random instances whose region
// holds the unrestricted center.

#include <algorithm>
#include <cmath>
#include <memory>
#include <numbers>
#include <random>

#include "gauge/gauge_test_support.h"
#include "planar/planar_fixtures.h"
#include "restriction/restriction.h"
#include "restriction/restriction_fixtures.h"

namespace mero {
namespace {

using testing::at;
using testing::gauge_by_facets;
using testing::off_ring;
using testing::ring_samples;

const std::vector<std::vector<point>> balls{
    {{1, 0}, {0, 1}, {-1, 0}, {0, -1}},
    {{2, 0}, {1, 1.5}, {-1, 1.5}, {-2, 0}, {-1, -1.5}, {1, -1.5}},
    {{2, 0}, {-1, 1}, {-1, -1}},
};

std::vector<polygauge> test_gauges() {
  std::vector<polygauge> g;
  for (const auto& ball : balls) g.emplace_back(ball);
  return g;
}

// The largest weighted gauge distance from the locations to x.
double largest(const facilities& f, const std::vector<int>& numbers, const point& x) {
  double v = 0.0;
  std::size_t i = 0;
  for (const location& l : f) {
    const auto& ball = balls[static_cast<std::size_t>(numbers[i++])];
    v = std::max(v, l.weight(0) * gauge_by_facets(ball, x.xcoord() - l.coordinate(0),
                                                  x.ycoord() - l.coordinate(1)));
  }
  return v;
}

// n samples of a circle.
std::vector<point> circle_samples(const point& c, double r, int n) {
  std::vector<point> out;
  for (int s = 0; s < n; ++s) {
    const double t = 2.0 * std::numbers::pi * s / n;
    out.emplace_back(c.xcoord() + r * std::cos(t), c.ycoord() + r * std::sin(t));
  }
  return out;
}

struct instance {
  facilities f;
  std::vector<int> numbers;
  point centre;
  double z;
};

instance random_instance(std::mt19937& gen) {
  std::uniform_real_distribution<double> coordinate(0.0, 100.0), weight(1.0, 5.0);
  instance in;
  const int n = 4 + static_cast<int>(gen() % 4);
  for (int i = 0; i < n; ++i) {
    const double x = coordinate(gen), y = coordinate(gen);
    in.f.push_back(at(x, y, weight(gen)));
    in.numbers.push_back(static_cast<int>(gen() % balls.size()));
  }
  in.z = in.f.gauge_center(test_gauges(), in.numbers, true);
  in.centre = point(in.f.optima().front());
  return in;
}

// The restricted value is the least over the sampled boundary (up to the sampling step) and never
// above it; the point is on the boundary and its value is the one returned.
void expect_boundary_optimum(const instance& in, double value, const std::vector<point>& samples,
                             double off_boundary, const facilities& solved, int seed) {
  double brute = 1e50;
  for (const point& q : samples) brute = std::min(brute, largest(in.f, in.numbers, q));
  EXPECT_LE(value, brute + 1e-9) << seed;
  EXPECT_GE(value, brute - 2e-3 * brute) << seed;
  EXPECT_GE(value, in.z - 1e-9) << seed;
  ASSERT_EQ(solved.optima().size(), 1u) << seed;
  const point p(solved.optima().front());
  EXPECT_NEAR(largest(in.f, in.numbers, p), value, 1e-9 * value) << seed;
  EXPECT_LT(off_boundary, 1e-7) << seed;
}

TEST(restricted_gauge_center, circle_polygon_and_rectangle_boundaries_match_the_sampling) {
  std::mt19937 gen(17);
  std::uniform_real_distribution<double> reach(3.0, 20.0);
  int rectangles = 0;
  for (int seed = 0; seed < 6; ++seed) {
    instance in = random_instance(gen);
    // A circle holding the centre a little off its middle.
    const point c(in.centre.xcoord() + 1.0, in.centre.ycoord() - 0.5);
    const double r = reach(gen) + 1.2;
    restriction_list round;
    round.push_back(std::make_unique<restr_circle>(c, r));
    facilities rounded = in.f;
    const double round_value = rounded.restr_gauge_center(test_gauges(), in.numbers, round);
    const point p(rounded.optima().front());
    expect_boundary_optimum(in, round_value, circle_samples(c, r, 200000),
                            std::fabs(p.distance(c) - r), rounded, seed);

    const std::vector<point> ring = testing::convex_around(gen, in.centre, 3.0, 20.0, 6, 1);
    restriction_list list;
    list.push_back(std::make_unique<restr_polygon>(ring));
    facilities solved = in.f;
    const double value = solved.restr_gauge_center(test_gauges(), in.numbers, list);
    expect_boundary_optimum(in, value, ring_samples(ring, 20000),
                            off_ring(ring, point(solved.optima().front())), solved, seed);

    // A turned rectangle with a corner below-left of the centre.
    const point corner(in.centre.xcoord() - reach(gen) / 2, in.centre.ycoord() - reach(gen) / 2);
    restriction_list boxes;
    auto box = std::make_unique<restr_rectangle>(corner, 25.0, 18.0, 0.3);
    const std::vector<point> corners = box->corners;
    if (!box->inside(in.centre)) continue;
    boxes.push_back(std::move(box));
    facilities boxed = in.f;
    const double box_value = boxed.restr_gauge_center(test_gauges(), in.numbers, boxes);
    ++rectangles;
    expect_boundary_optimum(in, box_value, ring_samples(corners, 20000),
                            off_ring(corners, point(boxed.optima().front())), boxed, seed);
  }
  EXPECT_GE(rectangles, 3);
}

// The hand cases (a square and a circle around the center, a region away from it, a barrier)
// are shown end to end by tests/cli/gauges.t; an empty list is the list error.
TEST(restricted_gauge_center, empty_list) {
  facilities f = testing::problem({at(0, 0), at(10, 0)});
  EXPECT_KERNEL_ERROR(f.restr_gauge_center(test_gauges(), {0, 0}, {}), "dlist::head(): empty list");
}

}  // namespace
}  // namespace mero
