// The matrix file as the multifacility problems read it: the matrix takes its size from the
// weight dimension of the first location, not from the file, and is filled row by row.

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

#include "model/matrix_file.h"
#include "test_support.h"

namespace mero {
namespace {

std::list<location> with_weights(int w) { return {location(2, w), location(2, w)}; }

matrix read(const std::string& text, int weight_dim) {
  std::istringstream in(text);
  return read_matrix(in, with_weights(weight_dim));
}

TEST(matrix_file, a_square_file_is_read_row_by_row) {
  const matrix v = read("begin {matrix} [3]\n0 1 2\n3 4 5\n6 7.5 -8e1\nend {matrix}\n", 3);
  ASSERT_EQ(v.dim1(), 3);
  ASSERT_EQ(v.dim2(), 3);
  const double expected[3][3] = {{0, 1, 2}, {3, 4, 5}, {6, 7.5, -80}};
  for (int i = 0; i < 3; ++i)
    for (int j = 0; j < 3; ++j) EXPECT_EQ(v(i, j), expected[i][j]) << i << "," << j;
}

TEST(matrix_file, the_weight_dimension_decides_the_size) {
  // [4] read for two weights: the first four numbers, that is the file's first row.
  const matrix v = read("begin {matrix} [4]\n1 2 3 4\n5 6 7 8\n9 10 11 12\n13 14 15 16\nend\n", 2);
  ASSERT_EQ(v.dim1(), 2);
  EXPECT_EQ(v(0, 0), 1);
  EXPECT_EQ(v(0, 1), 2);
  EXPECT_EQ(v(1, 0), 3);
  EXPECT_EQ(v(1, 1), 4);
}

TEST(matrix_file, comments_blank_lines_and_a_location_header) {
  const matrix v = read(
      "// dependencies\nBEGIN { LOCATION }\n  0\t2 // first row\n\n/* a\nblock */ 2 0\nend\n", 2);
  EXPECT_EQ(v(0, 1), 2);
  EXPECT_EQ(v(1, 0), 2);
  EXPECT_EQ(v(1, 1), 0);
}

TEST(matrix_file, too_few_numbers_for_the_weight_dimension) {
  EXPECT_REPORT(read("begin {matrix} [2]\n0 1\n1 0\nend\n", 3), 1511,
                "Matrix file holds 4 entries, fewer than the 9 of a 3 by 3 matrix.");
}

TEST(matrix_file, a_stream_that_did_not_open) {
  std::ifstream missing("/nonexistent/matrix");
  EXPECT_REPORT(read_matrix(missing, with_weights(2)), 1510, "Can't open file !");
}

TEST(matrix_file, an_empty_location_list_has_no_head) {
  std::istringstream in("begin {matrix} [1]\n1\nend\n");
  EXPECT_KERNEL_ERROR(read_matrix(in, {}), "dlist::head(): empty list");
}

}  // namespace
}  // namespace mero
