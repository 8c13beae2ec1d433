#include "gauge/gauge_editing.h"

#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <sstream>

#include "gauge/gauge_file.h"
#include "gauge/gauge_messages.h"
#include "gauge_test_support.h"

namespace mero::testing {
namespace {

namespace msg = gauge_messages;

// Clicks at (1, 0), (0.5, 1) and their mirrors, given in a scrambled order: the hull's corners
// start at the corner of angle 0 and run counter-clockwise; a fifth click inside the hull is no
// corner. The written block is the one a gauge file holds, and it reads back as the same gauge.
TEST(gauge_editing, clicked_points_become_a_gauge_file_block) {
  const std::vector<point> clicks{point(-0.5, -1), point(0.5, 1), point(-1, 0), point(1, 0)};
  const std::vector<point> corners = gauge_corners(clicks);
  EXPECT_EQ(corners,
            (std::vector<point>{point(1, 0), point(0.5, 1), point(-1, 0), point(-0.5, -1)}));
  EXPECT_EQ(polygauge_fault(corners), nullptr);
  std::vector<point> with_inner = clicks;
  with_inner.emplace_back(0.1, 0.1);
  EXPECT_EQ(gauge_corners(with_inner).size(), 4u);

  std::ostringstream one, list;
  write_gauge(one, polygauge(corners));
  EXPECT_EQ(one.str(), "begin {polygauge}\n1 0\n0.5 1\n-1 0\n-0.5 -1\nend {polygauge}\n");
  write_gauge_list(list, {polygauge(corners), rectilinear_gauge()});
  EXPECT_EQ(list.str(),
            "begin {polygaugelist}\nbegin {polygauge}\n1 0\n0.5 1\n-1 0\n-0.5 -1\n"
            "end {polygauge}\nbegin {polygauge}\n0 1\n-1 0\n0 -1\n1 0\nend {polygauge}\n"
            "end {polygaugelist}\n");
  const std::string path =
      ::testing::TempDir() + "gauge_editing_test_" + std::to_string(::getpid());
  std::ofstream(path) << list.str();
  const std::vector<polygauge> back = read_polygauges(path);
  std::remove(path.c_str());
  ASSERT_EQ(back.size(), 2u);
  EXPECT_EQ(back[0].extreme_points(), corners);
}

// The checks of the constructor, without ending the run. The origin lies outside both triangles:
// (1, 1), (2, 1), (1, 2) turn back clockwise at the third point; (1, 0), (-1, -0.1), (-0.5, -1)
// leave a gap of more than pi between the first two rays.
TEST(gauge_editing, faults_are_those_of_the_constructor) {
  EXPECT_EQ(polygauge_fault({point(1, 1), point(2, 1), point(1, 2)}), &msg::counterclockwise);
  EXPECT_EQ(polygauge_fault({point(1, 0), point(-1, -0.1), point(-0.5, -1)}), &msg::alpha_pi);
  EXPECT_EQ(polygauge_fault({point(1, 0), point(0, 1)}), &msg::not_convex);
  EXPECT_EQ(polygauge_fault({point(1, 0), point(0, 0), point(0, 1)}), &msg::origin_point);
  EXPECT_REPORT(polygauge({point(1, 0), point(0, 1)}), msg::not_convex.code, msg::not_convex.text);
}

// The triangle (2, 0), (-1, 1), (-1, -1): coordinates from -1 to 2 in both axes, the larger
// extent 3, so the frame runs from -1.3 to 2.3.
TEST(gauge_editing, the_frame_holds_the_ball_on_both_axes) {
  const gauge_frame f = gauge_frame_of(polygauge({point(2, 0), point(-1, 1), point(-1, -1)}));
  EXPECT_DOUBLE_EQ(f.low, -1.3);
  EXPECT_DOUBLE_EQ(f.high, 2.3);
}

}  // namespace
}  // namespace mero::testing
