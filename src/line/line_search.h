#pragma once
// The candidate walks that the line solvers share: the pair loop of the sums with its early stop,
// the Euclidean value of a pair's line, and the copies of a pair that become the result.

#include <algorithm>
#include <list>
#include <vector>

#include "gauge/polygauge.h"
#include "line/line_equation.h"
#include "line/line_geometry.h"
#include "model/location.h"

namespace mero {

// The best line found so far, as the positions of the two locations it runs through.
struct pair_choice {
  double value = 1e50;
  int i = -1;
  int j = -1;
};

// Coordinates 0 and 1 and weight column 0 of every location, in list order; a coordinate or
// weight that is not finite ends the run with error 1362.
std::vector<weighted_point> line_points_of(const std::vector<location>& list);

// True when the two points coincide: no line runs through them, and the pair is skipped.
inline bool same_place(const weighted_point& a, const weighted_point& b) {
  return a.x == b.x && a.y == b.y;
}

// All pairs i < j in list order; line_for_pair(i, j) gives the weighted distance term of each
// location k for the line through the pair. A walk stops as soon as its running sum reaches
// best + 1.0 (one above, not the best itself, so that an evaluation is cut short only when it is
// clearly lost), and only a strictly smaller sum replaces the line: the first pair stays on ties.
template <typename LineForPair>
pair_choice best_pair_line(const std::vector<weighted_point>& points, LineForPair line_for_pair) {
  pair_choice best;
  const int n = static_cast<int>(points.size());
  for (int i = 0; i < n; ++i)
    for (int j = i + 1; j < n; ++j) {
      if (same_place(points[i], points[j])) continue;
      const auto term = line_for_pair(i, j);
      double sum = 0.0;
      for (int k = 0; k < n && sum < best.value + 1.0; ++k) sum += term(k);
      if (sum < best.value) best = {sum, i, j};
    }
  return best;
}

// Sum of weight times Euclidean distance from the line through a and b (distinct), with the
// early stop at bound (1e50 for none).
double l2_line_sum(const std::vector<weighted_point>& points, const weighted_point& a,
                   const weighted_point& b, double bound = 1e50);
// The same for the line through points i and j, and for the two points of a line record.
inline double l2_pair_sum(const std::vector<weighted_point>& points, int i, int j,
                          double bound = 1e50) {
  return l2_line_sum(points, points[i], points[j], bound);
}
double l2_line_sum(const std::vector<weighted_point>& points, const line_equation& l);

// The extreme points, from the origin, of the gauge named by the first gauge number: the
// directions of a block norm. No such gauge (an empty list, a negative or too large number):
// error 1363.
std::vector<point> block_directions(const std::vector<polygauge>& gauges,
                                    const std::vector<int>& gauge_numbers);

// Sum of weight times block_line_distance from the line through a and b, stopped as soon as it
// reaches bound (1e50 for none).
double block_line_sum(const std::vector<weighted_point>& points, const weighted_point& a,
                      const weighted_point& b, const std::vector<point>& dirs, double bound = 1e50);

// Copies of the locations at positions i and j of the list with weight entry 0 = 1.0; empty when
// no pair was chosen.
std::list<location> pair_line_points(const std::vector<location>& list, const pair_choice& choice);

// A candidate line of a max problem: two points on it and its value.
struct line_choice {
  double value = 1e50;
  point_pair line{};
};

// The two points of the chosen line with weight entry 0 = 0.0; empty when no line was found.
std::list<location> max_line_points(const line_choice& best);

// All triples i < j < k, in the roles (i, j | k), (i, k | j), (j, k | i): triple_line, then the
// largest weighted distance as `largest` measures it. Within a triple and over the triples only
// a strictly smaller value replaces the line. A triple whose two points coincide gives no line.
template <typename Largest>
line_choice best_triple_line(const std::vector<weighted_point>& points, Largest largest) {
  line_choice best;
  const int n = static_cast<int>(points.size());
  for (int i = 0; i < n; ++i)
    for (int j = i + 1; j < n; ++j)
      for (int k = j + 1; k < n; ++k) {
        const int roles[3][3] = {{i, j, k}, {i, k, j}, {j, k, i}};
        line_choice triple;
        for (const auto& r : roles) {
          const point_pair line = triple_line(points[r[0]], points[r[1]], points[r[2]]);
          if (same_place(line.p, line.q)) continue;
          const double value = largest(line);
          if (value < triple.value) triple = {value, line};
        }
        if (triple.value < best.value) best = triple;
      }
  return best;
}

// The triple loop with each candidate valued by its largest weighted distance(q, p, b) over all
// points, q and p the two points of the candidate line.
template <typename Distance>
line_choice best_triple_line_by(const std::vector<weighted_point>& points, Distance distance) {
  return best_triple_line(points, [&](const point_pair& l) {
    double largest = 0.0;
    for (const weighted_point& b : points) largest = std::max(largest, distance(l.q, l.p, b) * b.w);
    return largest;
  });
}

}  // namespace mero
