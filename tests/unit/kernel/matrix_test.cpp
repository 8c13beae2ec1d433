#include "kernel/matrix.h"

#include <random>

#include "test_support.h"

namespace mero {
namespace {

matrix from_rows(std::initializer_list<vector> rows) {
  matrix m(static_cast<int>(rows.size()), rows.begin()->dim());
  int i = 0;
  for (const vector& r : rows) m.row(i++) = r;
  return m;
}

TEST(matrix, access_and_products_against_hand_values) {
  matrix a = from_rows({{1, 2}, {3, 4}});
  EXPECT_EQ(a.col(1), (vector{2.0, 4.0}));
  EXPECT_EQ(a.trans()(0, 1), 3.0);
  EXPECT_EQ(a * from_rows({{5, 6}, {7, 8}}) - a, from_rows({{18, 20}, {40, 46}}));
  EXPECT_EQ(a * vector(1.0, -1.0), vector(-1.0, -1.0));
  EXPECT_EQ(matrix(vector{1.0, 2.0}).to_vector(), (vector{1.0, 2.0}));
}

TEST(matrix, misfits_are_faults) {
  matrix m(2, 3);
  EXPECT_KERNEL_ERROR(matrix(2, -1), "matrix: negative dimension.");
  EXPECT_KERNEL_ERROR(m.row(2), "matrix: row index out of range");
  EXPECT_KERNEL_ERROR(m(0, 3), "matrix: col index out of range");
  EXPECT_KERNEL_ERROR(matrix(2, 2).to_vector(), "error: cannot make vector from matrix\n");
  EXPECT_KERNEL_ERROR(m + matrix(2, 2), "incompatible matrix types.");
  EXPECT_KERNEL_ERROR(m * vector(2), "matrix multiplication: incompatible matrix types\n");
  EXPECT_KERNEL_ERROR(m.det(), "matrix::det: matrix not quadratic.\n");
  EXPECT_KERNEL_ERROR(m.inv(), "matrix::inv: matrix not quadratic.\n");
  EXPECT_KERNEL_ERROR(m.solve(vector(2)), "Solve: wrong dimensions\n");
}

TEST(matrix, determinants_by_cofactors_and_singular_systems) {
  EXPECT_DOUBLE_EQ(from_rows({{1, 2}, {3, 4}}).det(), -2.0);
  EXPECT_DOUBLE_EQ(from_rows({{0, 1}, {1, 0}}).det(), -1.0);  // needs a row swap
  // 2*(0*5 + 4) + 3*(2*5 + 1) + (2*4 - 0) = 8 + 33 + 8
  EXPECT_NEAR(from_rows({{2, -3, 1}, {2, 0, -1}, {1, 4, 5}}).det(), 49.0, 1e-12);
  EXPECT_EQ(from_rows({{1, 2}, {2, 4}}).det(), 0.0);
  const char* text = "matrix::solve: matrix has not full rank.";
  EXPECT_KERNEL_ERROR(from_rows({{1, 2}, {2, 4}}).solve(vector(1.0, 2.0)), text);
  // Dependent rows whose elimination leaves rounding noise instead of an exact zero.
  EXPECT_KERNEL_ERROR(from_rows({{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}).inv(), text);
  EXPECT_KERNEL_ERROR(from_rows({{0.1, 0.2, 0.3}, {0.4, 0.5, 0.6}, {0.7, 0.8, 0.9}}).inv(), text);
  // A zero row: a new facility tied to nothing.
  EXPECT_KERNEL_ERROR(from_rows({{2, -1, 0}, {0, 0, 0}, {-1, 0, 3}}).solve(vector(3)), text);
}

// Random diagonally dominant systems are well conditioned; the solution is known in advance.
TEST(matrix, random_well_conditioned_systems) {
  std::mt19937 random(20261121);
  std::uniform_real_distribution<double> entry(-1.0, 1.0);
  for (int round = 0; round < 60; ++round) {
    int n = 1 + round % 12;
    matrix a(n, n);
    vector x(n), b(n);
    for (int i = 0; i < n; ++i) {
      x[i] = 10.0 * entry(random);
      for (int j = 0; j < n; ++j) a(i, j) = entry(random);
      a(i, i) += n * (entry(random) < 0.0 ? -1.0 : 1.0);
    }
    for (int i = 0; i < n; ++i)
      for (int j = 0; j < n; ++j) b[i] += a(i, j) * x[j];
    vector solved = a.solve(b);
    matrix product = a * a.inv();
    for (int i = 0; i < n; ++i) {
      EXPECT_NEAR(solved[i], x[i], 1e-9) << "round " << round;
      for (int j = 0; j < n; ++j) EXPECT_NEAR(product(i, j), i == j ? 1.0 : 0.0, 1e-9);
    }
  }
}

}  // namespace
}  // namespace mero
