#pragma once
// The parts of the gauge editor that need no window: the writer of gauge files, the order in
// which clicked points become the corners of a gauge, and the frame in which a gauge is drawn.

#include <ostream>
#include <vector>

#include "gauge/polygauge.h"
#include "kernel/point.h"

namespace mero {

// "begin {polygauge}", one line "x y" per extreme point, "end {polygauge}"; numbers in the
// stream's default format.
void write_gauge(std::ostream& out, const polygauge& gauge);
// "begin {polygaugelist}", each gauge with write_gauge, "end {polygaugelist}".
void write_gauge_list(std::ostream& out, const std::vector<polygauge>& gauges);

// The corners of the convex hull of the clicked points, counter-clockwise, starting at the
// corner of the smallest angle from the positive x axis (angles in [0, 2 pi)), so that a ball
// around the origin comes out in the order a polygauge needs. Fewer corners than clicks means
// that a click lies inside the hull, on an edge or on another one.
std::vector<point> gauge_corners(const std::vector<point>& clicks);

// The frame of draw_gauge: one range for both axes, from the smallest coordinate of an extreme
// point (x or y) to the largest, widened by 0.1 of the larger extent of the ball on each side,
// so that the ball fits into a square window without distortion. The origin always lies in it.
struct gauge_frame {
  double low;
  double high;
};
gauge_frame gauge_frame_of(const polygauge& gauge);

}  // namespace mero
