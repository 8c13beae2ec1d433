#pragma once
// facilities: the planar problem in memory. The base vector holds the existing facilities in file
// order, contiguous (a million locations are one allocation, not a million list nodes); names run
// parallel to it and are empty for a file without names; optima holds what the last solver left
// behind. Every planar solver is a member, grouped below by family; each family
// is defined in its own file under src/planar, src/gauge, src/line or src/restriction.

#include <iosfwd>
#include <list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "kernel/matrix.h"
#include "model/location.h"

namespace mero {

class point;
class polygauge;

// The coordinate that compare_by_coordinate looks at. Set it before each sort.
extern int sort_coordinate;

// -1, 0 or 1 as a's coordinate sort_coordinate is below, equal to or above b's.
int compare_by_coordinate(const location& a, const location& b);

// Sorts ascending by coordinate c (sets sort_coordinate); equal keys keep their order.
void sort_by_coordinate(std::list<location>& list, int c);

class restriction;
// The restrictions of a problem (src/restriction), in file order; the list owns them.
using restriction_list = std::vector<std::unique_ptr<restriction>>;

class facilities : public std::vector<location> {
 public:
  std::list<std::string> names;

  // A copy of the optima of the last solve, in the order the solver appended them.
  std::list<location> optima() const { return optima_; }
  // A copy-free view for code that only reads the optima.
  const std::list<location>& optima_view() const { return optima_; }

  // The i-th location; location(2, 1) of zeros when i is out of range.
  location get(int i) const;
  // True when some location has exactly these coordinates; weights do not count.
  bool contains(const location& c) const;
  // Removes the location with index i (1305 when out of range). Names are not adjusted.
  void remove(int i);
  // Removes by full equality: the head or the tail if it matches, otherwise every match.
  void remove(const location& l);
  // The name of the list item l, appending empty names as needed; 1334 for a foreign item.
  std::string& refname(const location& l);

  // Column-wise sum of all weights, sized by the first location.
  Loc_Vector weight_sums() const;
  double coordinate_max(int i) const;
  double coordinate_min(int i) const;
  double coordinate_range(int i) const;

  // Sum of weight(w) times the p-norm distance from x (p = -1 the maximum norm).
  double objective(int p, const location& x, int w) const;
  // The same at the first optimum; 1303 before any solve.
  double objective(int p, int w) const;
  // location::WriteAsPolygonList of the optima; 1304 before any solve.
  void write_optima(std::ostream& out) const;

  // The rectilinear transforms of location applied to every entry of a list or of this object.
  static void l1_to_linf(std::list<location>& list);
  static void linf_to_l1(std::list<location>& list);
  void l1_to_linf();
  void linf_to_l1();

  // A copy of the list sorted by coordinate c in which entries of equal coordinate c are merged
  // into the first of them, their weights of column w added to its column w.
  std::list<location> sorted_merged(int c, int w) const;

  // --- Rectilinear median (src/planar/l1_median.cpp) ---
  double l1_sum(int w, bool clear);

  // --- Euclidean and lp medians (src/planar/l2_median.cpp, lp_median.cpp, linf_median.cpp) ---
  double l2sqr_sum(int w, bool clear);
  double l2_sum(int w, double eps, bool clear);
  bool is_l2_optimal(const location& loc, int w) const;
  double lp_sum(int p, double eps, double smoothing, int max_iterations, int w, bool clear);
  bool is_lp_optimal(int p, const_iterator node, int w) const;
  location lp_step(const location& loc, int p, double smoothing, int w) const;
  double linf_sum(int w, bool clear);

  // --- Single-facility centers (src/planar/rectilinear_center.cpp, equal_weight_center.cpp,
  // smallest_circle.cpp); all read weight column 0 ---
  double linf_max(bool clear);
  double l1_max(bool clear);
  double linf_v1_max(bool clear);
  double l1_v1_max(bool clear);
  double l2_v1_max(bool clear);

  // --- Efficient set of several weightings (src/planar/squared_qsum.cpp) ---
  double l2sqr_qsum(bool clear);

  // --- Multifacility problems (src/planar/multifacility_*.cpp) ---
  // n new facilities: facility j weighs location i by weight column j, and facility k > j by
  // V(j, k). optima receives one location per facility, in order of j, with weight entry 0 = j.
  double N_l1_sum_v1(int n, const matrix& V, bool clear);
  double N_l2sqr_sum(int n, const matrix& V, bool clear);
  double N_linf_max(int n, const matrix& V, bool clear);
  double N_l1_max(int n, const matrix& V, bool clear);
  // The total cost c + d and the ratio d / c of interdependency cost d to location cost c.
  std::pair<double, double> N_lp_sum_v1(int n, int p, const matrix& V, bool clear);
  double N_linf_sum_v1(int n, const matrix& V);

  // --- Restricted medians and centers (src/restriction/restricted_median.cpp,
  // restricted_lp_median.cpp, restricted_center.cpp); all read weight column 0. Each solves the
  // unrestricted problem on a copy first and keeps its result when the restrictions allow it.
  // An empty restriction list is the list error "dlist::head(): empty list". ---
  double in_l2sqr_sum(const restriction_list& restrictions);
  double in_l1_sum(const restriction_list& restrictions);
  double in_linf_sum(const restriction_list& restrictions);
  double in_lp_sum(const restriction_list& restrictions, int p, double eps, double smoothing,
                   int max_iterations);
  double in_l2_max(const restriction_list& restrictions);
  double in_convex_linf_max(const restriction_list& restrictions);
  double in_convex_l1_max(const restriction_list& restrictions);
  // The gauge center with forbidden regions (src/restriction/restricted_gauge_center.cpp), with
  // the checks and optima of gauge_center.
  double restr_gauge_center(const std::vector<polygauge>& gauges,
                            const std::vector<int>& gauge_numbers,
                            const restriction_list& restrictions);
  // --- Line location (src/line/line_sum.cpp, line_sweep.cpp, line_max.cpp) ---
  // optima receives the line as two points on it; weight column 0 is read (L_l2_sum_M2 and
  // L_l2_v1_max take all weights as equal). The sums keep copies of two locations with weight
  // entry 0 = 1.0, the max problems two points of the line with weight entry 0 = 0.0.
  double L_l2_sum_M3();
  double L_l1_sum_M3();
  double L_linf_sum_M3();
  double L_lp_sum_M3(int p);
  double L_l2_sum_M2logM();
  double L_l2_sum_M2();
  double L_l2_max_M4();
  double L_l1_max_M4();
  double L_linf_max_M4();
  double L_lp_max_M4(int p);
  double L_l2_v1_max();
  double L_l2_max_M2logM();
  // --- Block-norm line location (src/line/line_block.cpp): the gauge gauges[gauge_numbers[0]]
  // measures every distance. ---
  double L_block_sum_M3(const std::vector<polygauge>& gauges, const std::vector<int>& gauge_numbers);
  double L_block_max_M4(const std::vector<polygauge>& gauges, const std::vector<int>& gauge_numbers);
  // --- Barrier problem (src/restriction/barrier_problem.cpp): the point of least weighted sum
  // of Euclidean distances around the first restriction, taken as a barrier. A heuristic;
  // optima receives one point with weight entry 0 = 0. ---
  double barr_l2_sum(const restriction_list& restrictions, bool prune = true,
                     double fraction = 0.1, double accel = 1.0, double step = 0.01,
                     double eps = 0.001);
  // --- Restricted line location (src/restriction/restricted_line.cpp). The line of least
  // weighted sum of distances that does not cut the first restriction, a convex forbidden
  // polygon; optima receives the line as two points on it with weight entry 0 = 1.0. ---
  double L_RkonvPoly_l2_sum(const restriction_list& restrictions);
  double L_RkonvPoly_lp_sum(const restriction_list& restrictions, int p);
  double L_RkonvPoly_l1_sum(const restriction_list& restrictions);
  double L_RkonvPoly_linf_sum(const restriction_list& restrictions);
  // The block norm of gauges[gauge_numbers[0]] (error 1363 if there is no such gauge).
  double L_RkonvPoly_block_sum(const restriction_list& restrictions,
                               const std::vector<polygauge>& gauges,
                               const std::vector<int>& gauge_numbers);
  // --- Gauge location problems (src/gauge/gauge_median.cpp, bi_crit_gauge_median.cpp,
  // gauge_center.cpp, norm_2sum.cpp). Location i is measured with gauges[gauge_numbers[i]].
  double gauge_median(const std::vector<polygauge>& gauges, const std::vector<int>& gauge_numbers,
                      bool clear);
  double bi_crit_gauge_median(const std::vector<polygauge>& gauges,
                              const std::vector<int>& gauge_numbers, bool clear);
  double gauge_center(const std::vector<polygauge>& gauges, const std::vector<int>& gauge_numbers,
                      bool clear);
  // Sum over the locations of weight w times the gauge distance from the location to x.
  double gauge_value(const std::vector<polygauge>& gauges, const std::vector<int>& gauge_numbers,
                     const point& x, int w) const;
  double l1_2sum(bool clear);
  double linf_2sum(bool clear);

 protected:
  std::list<location> optima_;

  // Runs a maximum-norm center solver on the locations mapped by (x, y) -> (x - y, x + y), where
  // maximum-norm distances of images are l1 distances of the originals, and maps the optima back.
  double solve_in_rotated_plane(double (facilities::*linf_solver)(bool), bool clear);

  // Parts of l1_sum (src/planar/l1_median.cpp): the single-point optimum found by selection
  // where that is sure to equal the sorted walk's, and the value at the first optimum.
  bool l1_median_by_selection(int w);
  double l1_value_at_first_optimum(int w) const;
};

}  // namespace mero
