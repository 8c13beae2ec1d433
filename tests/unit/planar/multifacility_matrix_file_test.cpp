// The matrix file as the multifacility problems read it: the matrix takes its size from the
// weight dimension of the first location, not from the file, and is filled row by row.

#include <sstream>

#include "model/matrix_file.h"
#include "planar_fixtures.h"

namespace mero::testing {
namespace {

matrix read(const std::string& text, int weight_dim) {
  std::istringstream in(text);
  return read_matrix(in, {location(2, weight_dim), location(2, weight_dim)});
}

void expect_rows(const matrix& v, const std::vector<std::vector<double>>& rows) {
  ASSERT_EQ(v.dim1(), static_cast<int>(rows.size()));
  ASSERT_EQ(v.dim2(), static_cast<int>(rows.size()));
  for (int i = 0; i < v.dim1(); ++i)
    for (int j = 0; j < v.dim2(); ++j) EXPECT_EQ(v(i, j), rows[i][j]) << i << "," << j;
}

TEST(matrix_file, read_row_by_row_at_the_weight_dimension) {
  expect_rows(read("begin {matrix} [3]\n0 1 2\n3 4 5\n6 7.5 -8e1\nend {matrix}\n", 3),
              {{0, 1, 2}, {3, 4, 5}, {6, 7.5, -80}});
  // [4] read for two weights: the first four numbers, that is the file's first row.
  expect_rows(read("begin {matrix} [4]\n1 2 3 4\n5 6 7 8\n9 10 11 12\n13 14 15 16\nend\n", 2),
              {{1, 2}, {3, 4}});
}

TEST(matrix_file, an_empty_location_list_has_no_head) {
  std::istringstream in("begin {matrix} [1]\n1\nend\n");
  EXPECT_KERNEL_ERROR(read_matrix(in, {}), "dlist::head(): empty list");
}

}  // namespace
}  // namespace mero::testing
