#pragma once
// The figures of the planar viewer beside the locations and the optima: the forbidden regions
// and barriers of restricted problems, and the unit balls of the gauges of gauge problems.

#include <optional>
#include <vector>

#include "gauge/polygauge.h"
#include "kernel/point.h"
#include "kernel/window/window.h"
#include "model/facilities.h"

namespace mero {

// A restriction's outline as it is drawn: a closed polygon, a circle or a segment.
struct figure_outline {
  enum class form { polygon, circle, segment };
  form what = form::polygon;
  std::vector<point> vertices;  // polygon corners, or the two ends of a segment
  point center;                 // circles
  double radius = 0.0;
};
figure_outline outline_of(const restriction& r);

// The bounding box of the outlines of all restrictions; none for an empty list.
struct figure_box {
  double xmin, xmax, ymin, ymax;
};
std::optional<figure_box> restrictions_box(const restriction_list& restrictions);

// The colours of the figures: forbidden regions in orange (inside) or pink (outside), barriers in
// brown and thicker, unit balls in cyan.
inline constexpr color region_inside_color = color::orange;
inline constexpr color region_outside_color = color::pink;
inline constexpr color barrier_color = color::brown;
inline constexpr color unit_ball_color = color::cyan;

// The number of barr_l2_sum, whose run turns its first restriction into the barrier.
inline constexpr int barrier_algorithm = 70;

// Each restriction by its outline, with "forbidden region inside", "forbidden region outside" or
// "barrier" written at its middle. first_is_barrier: the first one is the barrier of the run
// (number 70), whatever its kind in the file.
void draw_restrictions(window& w, const restriction_list& restrictions, bool first_is_barrier);

// The unit ball of each location's gauge around the location. All balls share one scale, chosen
// so that the longest extreme point of the gauges in use reaches 0.1 of extent: the sizes of the
// balls compare, and the largest stays clear of its neighbours. Locations whose gauge number
// names no gauge get no ball.
void draw_unit_balls(window& w, const facilities& locations, const std::vector<polygauge>& gauges,
                     const std::vector<int>& gauge_numbers, double extent);

}  // namespace mero
