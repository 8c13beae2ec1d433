#pragma once
// The planar result viewer: the window that shows a solved planar problem (locations, optima,
// lines of line problems, situations of gauge problems) with its row of buttons, and the same
// picture written as an SVG document without a screen.

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "kernel/point.h"
#include "kernel/window/window.h"
#include "viewer/planar_scene.h"

namespace mero {

// The window's size in pixels and its place on the screen.
inline constexpr int viewer_width = 600;
inline constexpr int viewer_height = 650;
inline constexpr int viewer_left = 650;
inline constexpr int viewer_top = 150;

// "MERO VERSION 2.0   View Graphics:" followed by the label.
std::string viewer_title(const std::string& label);

// The world frame of the picture. The box is the bounding box of the locations, widened by the
// bounding boxes of the restrictions when there are any; extent is the larger of its width and
// height (1 when the box is a point, so that the frame has a size).
struct planar_frame {
  double box_xmin, box_xmax, box_ymin, box_ymax;
  double extent;
  double xmin, xmax, ymin;  // what window::init is given
};

// The box widened by 0.2 of the extent on every side; the x range lengthened until it fits the
// window's shape at the y range's height, then by a further 0.1 of its length (both ends alike).
planar_frame planar_frame_of(const facilities& locations, int width, int height,
                             const restriction_list* restrictions = nullptr);

// The slots the drawing routine reads; the window loop fills them before the first drawing, and
// the buttons change them.
struct planar_slots {
  const planar_scene* scene = nullptr;
  std::optional<std::vector<point>> viewer_hull;  // set while the hull is shown
  bool viewer_situations = false;                 // the situations are drawn
  bool show_weights = false;
  bool show_optima = true;
};

// Sets the window's frame and draws, in this order: axes, results (if show_optima), locations
// with names (and weights if show_weights) and the unit balls of their gauges, the restrictions
// and barriers, the hull, the situations.
void draw_planar_result(window& w, const planar_slots& slots);

// What "Save Results" writes: the locations in the form of the location file, the classification
// and the result block as in the report.
void write_planar_results(std::ostream& out, const planar_scene& scene);

// Opens the viewer on the screen and returns when the user closes it; returns at once when no
// window can be shown. 1514 when there is no location.
void view_planar_result(const planar_scene& scene);

// The first picture of the viewer written as SVG to path; false if the file cannot be written.
bool write_planar_picture(const planar_scene& scene, const std::string& path);

}  // namespace mero
