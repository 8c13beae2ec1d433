#pragma once
// The kernel's small dense matrix: r rows of `vector`, each of dimension c. Indices and the
// shapes of operands are checked; a fault stops the run through the kernel handler.

#include <iosfwd>
#include <vector>

#include "kernel/vector.h"

namespace mero {

class matrix {
 public:
  matrix() = default;
  matrix(int r, int c);              // zeros; a negative dimension is a fault
  explicit matrix(const vector& v);  // a single column

  int dim1() const { return static_cast<int>(rows_.size()); }  // rows
  int dim2() const { return cols_; }                           // columns

  vector& row(int i);
  const vector& row(int i) const;
  vector col(int j) const;
  double& operator()(int i, int j);
  double operator()(int i, int j) const;

  matrix operator+(const matrix& m) const;
  matrix operator-(const matrix& m) const;
  matrix operator*(const matrix& m) const;
  vector operator*(const vector& v) const;
  matrix operator*(double f) const;
  bool operator==(const matrix& m) const;

  matrix trans() const;
  vector to_vector() const;  // a single row or column as a vector

  // Gaussian elimination with partial pivoting, O(n^3) for an n by n matrix. det of a singular
  // matrix is 0 (or a value of rounding size); inv and solve stop with the "not full rank" text
  // when a pivot vanishes relative to the size of the matrix's entries.
  double det() const;
  matrix inv() const;
  vector solve(const vector& b) const;
  matrix solve(const matrix& b) const;  // one solution column per column of b

  static matrix identity(int n);

 private:
  void check_row(int i) const;
  void check_col(int j) const;
  void check_same_shape(const matrix& m) const;

  std::vector<vector> rows_;
  int cols_ = 0;
};

std::ostream& operator<<(std::ostream& out, const matrix& m);

}  // namespace mero
