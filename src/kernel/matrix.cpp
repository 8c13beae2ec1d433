#include "kernel/matrix.h"

#include <cfloat>
#include <cmath>
#include <ostream>
#include <utility>

#include "kernel/error_handler.h"
#include "kernel/geometry_texts.h"

namespace mero {

namespace {

using rows = std::vector<std::vector<double>>;

rows to_rows(const matrix& m) {
  rows r(static_cast<std::size_t>(m.dim1()), std::vector<double>(m.dim2()));
  for (int i = 0; i < m.dim1(); ++i)
    for (int j = 0; j < m.dim2(); ++j) r[i][j] = m(i, j);
  return r;
}

double largest_entry(const rows& a) {
  double largest = 0.0;
  for (const auto& r : a)
    for (double x : r) largest = std::max(largest, std::fabs(x));
  return largest;
}

struct elimination {
  double det = 1.0;
  bool full_rank = true;
};

// Reduces the square a to upper triangular form by Gaussian elimination with partial pivoting,
// doing the same row operations on b. A pivot no larger than n * DBL_EPSILON times the largest
// entry is rounding noise of a dependent row, so the matrix counts as rank deficient; an exact
// zero column ends the work with determinant 0.
elimination eliminate(rows& a, rows& b) {
  elimination e;
  std::size_t n = a.size();
  double tolerance = static_cast<double>(n) * DBL_EPSILON * largest_entry(a);
  for (std::size_t k = 0; k < n; ++k) {
    std::size_t pivot = k;
    for (std::size_t i = k + 1; i < n; ++i)
      if (std::fabs(a[i][k]) > std::fabs(a[pivot][k])) pivot = i;
    if (a[pivot][k] == 0.0) return {0.0, false};
    if (std::fabs(a[pivot][k]) <= tolerance) e.full_rank = false;
    if (pivot != k) {
      std::swap(a[pivot], a[k]);
      if (!b.empty()) std::swap(b[pivot], b[k]);
      e.det = -e.det;
    }
    e.det *= a[k][k];
    for (std::size_t i = k + 1; i < n; ++i) {
      double f = a[i][k] / a[k][k];
      if (f == 0.0) continue;
      for (std::size_t j = k; j < n; ++j) a[i][j] -= f * a[k][j];
      if (!b.empty())
        for (std::size_t j = 0; j < b[i].size(); ++j) b[i][j] -= f * b[k][j];
    }
  }
  return e;
}

// Solves the triangular system left by eliminate, one column of b at a time.
matrix back_substitute(const rows& a, const rows& b) {
  int n = static_cast<int>(a.size());
  int m = b.empty() ? 0 : static_cast<int>(b[0].size());
  matrix x(n, m);
  for (int c = 0; c < m; ++c) {
    for (int i = n - 1; i >= 0; --i) {
      double sum = b[i][c];
      for (int j = i + 1; j < n; ++j) sum -= a[i][j] * x(j, c);
      x(i, c) = sum / a[i][i];
    }
  }
  return x;
}

}  // namespace

matrix::matrix(int r, int c) {
  if (r < 0 || c < 0) kernel_error(1, texts::matrix_negative_dimension);
  rows_.assign(static_cast<std::size_t>(r), vector(c));
  cols_ = c;
}

matrix::matrix(const vector& v) : matrix(v.dim(), 1) {
  for (int i = 0; i < v.dim(); ++i) rows_[i][0] = v[i];
}

matrix matrix::identity(int n) {
  matrix m(n, n);
  for (int i = 0; i < n; ++i) m(i, i) = 1.0;
  return m;
}

void matrix::check_row(int i) const {
  if (i < 0 || i >= dim1()) kernel_error(1, texts::matrix_row_index);
}

void matrix::check_col(int j) const {
  if (j < 0 || j >= dim2()) kernel_error(1, texts::matrix_col_index);
}

void matrix::check_same_shape(const matrix& m) const {
  if (dim1() != m.dim1() || dim2() != m.dim2()) kernel_error(1, texts::matrix_incompatible);
}

vector& matrix::row(int i) {
  check_row(i);
  return rows_[i];
}

const vector& matrix::row(int i) const {
  check_row(i);
  return rows_[i];
}

vector matrix::col(int j) const {
  check_col(j);
  vector c(dim1());
  for (int i = 0; i < dim1(); ++i) c[i] = rows_[i][j];
  return c;
}

double& matrix::operator()(int i, int j) {
  check_row(i);
  check_col(j);
  return rows_[i][j];
}

double matrix::operator()(int i, int j) const {
  check_row(i);
  check_col(j);
  return rows_[i][j];
}

matrix matrix::operator+(const matrix& m) const {
  check_same_shape(m);
  matrix r = *this;
  for (int i = 0; i < dim1(); ++i) r.rows_[i] += m.rows_[i];
  return r;
}

matrix matrix::operator-(const matrix& m) const {
  check_same_shape(m);
  matrix r = *this;
  for (int i = 0; i < dim1(); ++i) r.rows_[i] -= m.rows_[i];
  return r;
}

matrix matrix::operator*(const matrix& m) const {
  if (dim2() != m.dim1()) kernel_error(1, texts::matrix_multiplication);
  matrix r(dim1(), m.dim2());
  for (int i = 0; i < dim1(); ++i)
    for (int k = 0; k < dim2(); ++k)
      for (int j = 0; j < m.dim2(); ++j) r.rows_[i][j] += rows_[i][k] * m.rows_[k][j];
  return r;
}

vector matrix::operator*(const vector& v) const {
  if (dim2() != v.dim()) kernel_error(1, texts::matrix_multiplication);
  vector r(dim1());
  for (int i = 0; i < dim1(); ++i) r[i] = rows_[i] * v;
  return r;
}

matrix matrix::operator*(double f) const {
  matrix r = *this;
  for (vector& row : r.rows_) row = row * f;
  return r;
}

bool matrix::operator==(const matrix& m) const { return cols_ == m.cols_ && rows_ == m.rows_; }

matrix matrix::trans() const {
  matrix t(dim2(), dim1());
  for (int i = 0; i < dim1(); ++i)
    for (int j = 0; j < dim2(); ++j) t.rows_[j][i] = rows_[i][j];
  return t;
}

vector matrix::to_vector() const {
  if (dim2() == 1) return col(0);
  if (dim1() == 1) return rows_[0];
  kernel_error(1, texts::matrix_to_vector);
  return vector();
}

double matrix::det() const {
  if (dim1() != dim2()) kernel_error(1, texts::matrix_det_not_quadratic);
  rows a = to_rows(*this);
  rows none;
  return eliminate(a, none).det;
}

matrix matrix::inv() const {
  if (dim1() != dim2()) kernel_error(1, texts::matrix_inv_not_quadratic);
  return solve(identity(dim1()));
}

matrix matrix::solve(const matrix& b) const {
  if (dim1() != dim2() || b.dim1() != dim1()) kernel_error(1, texts::matrix_solve_dimensions);
  rows a = to_rows(*this);
  rows r = to_rows(b);
  if (!eliminate(a, r).full_rank) kernel_error(1, texts::matrix_not_full_rank);
  return back_substitute(a, r);
}

vector matrix::solve(const vector& b) const { return solve(matrix(b)).col(0); }

std::ostream& operator<<(std::ostream& out, const matrix& m) {
  for (int i = 0; i < m.dim1(); ++i) out << m.row(i) << '\n';
  return out;
}

}  // namespace mero
