// The restriction-file reader: which figure each block builds, with what numbers and sense.
// The messages of bad files are shown end to end by tests/cli/restriction.t.

#include "restriction/restriction_file.h"

#include <cmath>
#include <sstream>

#include "test_support.h"

namespace mero {
namespace {

restriction_list read(const std::string& text) {
  std::istringstream in(text);
  return read_restrictions(in);
}

template <class T>
const T& as(const restriction_list& list, std::size_t i) {
  const T* r = dynamic_cast<const T*>(list.at(i).get());
  if (!r) ADD_FAILURE() << "figure " << i << " has another class";
  return *r;
}

TEST(RestrictionFile, EveryKindWithItsValue) {
  const restriction_list list = read(
      "begin {restriction}\n"
      "// a forbidden triangle\n"
      "begin {polyhedron} [0]\n0 0\n4 0\n4 3\nend {polyhedron}\n"
      "begin {circle} [inf]\n1 1 2\nend {circle}\n"
      "begin {rectangle}\n0 0 2 1 30\nend {rectangle}\n"
      "begin {segment} [inf]\n0 0 5 5\nend {segment}\n"
      "end {restriction}\n");
  ASSERT_EQ(list.size(), 4u);
  const auto& triangle = as<restr_polygon>(list, 0);
  EXPECT_TRUE(triangle.is_forbidden_inside());
  EXPECT_EQ(triangle.vertices().size(), 3u);
  const auto& round = as<circle_barrier>(list, 1);
  EXPECT_EQ(round.center, point(1, 1));
  EXPECT_EQ(round.radius, 2.0);
  const auto& box = as<restr_rectangle>(list, 2);
  EXPECT_TRUE(box.is_forbidden_inside());
  // (0, 1) turned by 30 degrees about the origin: (-sin 30, cos 30).
  EXPECT_NEAR(box.corners[1].xcoord(), -0.5, 1e-12);
  EXPECT_NEAR(box.corners[1].ycoord(), std::sqrt(3.0) / 2.0, 1e-12);
  EXPECT_NEAR(box.corners[3].xcoord(), std::sqrt(3.0), 1e-12);
  EXPECT_NEAR(box.corners[3].ycoord(), 1.0, 1e-12);
  const auto& wall = as<line_barrier>(list, 3);
  EXPECT_EQ(wall.start, point(0, 0));
  EXPECT_EQ(wall.end, point(5, 5));
}

TEST(RestrictionFile, LooseFormsAndDroppedBlocks) {
  const restriction_list list = read(
      "BEGIN{RESTRICTION}\n"
      "  begin {circle}\n3\n4\n  5\n end {circle}   \n\n"
      "begin {conpolyhedron} [ INF ]\n0 0 /* first */\n2 0\n1 1 // last\nend {conpolyhedron}\n"
      "begin {rectangle} [inf]\n1 1 2 2 0\nend {rectangle}\n"
      "begin {polyhedron}\n9 9\n");
  ASSERT_EQ(list.size(), 3u);
  const auto& round = as<restr_circle>(list, 0);
  EXPECT_EQ(round.center, point(3, 4));
  EXPECT_EQ(round.radius, 5.0);
  EXPECT_TRUE(round.is_forbidden_inside());
  EXPECT_EQ(as<polygon_barrier>(list, 1).vertices.size(), 3u);
  const auto& walls = as<polygon_barrier>(list, 2);
  EXPECT_EQ(walls.vertices.size(), 4u);
  EXPECT_TRUE(walls.inside(point(2, 2)));
}

TEST(RestrictionFile, HigherDimensionTakesTheFirstTwoCoordinates) {
  const restriction_list list = read(
      "begin {restriction} [3]\n"
      "begin {polyhedron}\n0 0 7\n0 2 7\n2 0 7\nend {polyhedron}\n"
      "begin {circle} [0]\n1 2 3 4\nend {circle}\n");
  ASSERT_EQ(list.size(), 2u);
  EXPECT_TRUE(list[0]->inside(point(0.5, 0.5)));
  EXPECT_EQ(as<restr_circle>(list, 1).center, point(1, 2));
  EXPECT_EQ(as<restr_circle>(list, 1).radius, 4.0);
}

TEST(RestrictionFile, NothingToRead) {
  EXPECT_TRUE(read("").empty());
  EXPECT_TRUE(read("begin {restriction}\nend {restriction}\n").empty());
}

}  // namespace
}  // namespace mero
