#include "kernel/vector.h"

#include <algorithm>
#include <cmath>
#include <ostream>

#include "kernel/error_handler.h"
#include "kernel/geometry_texts.h"

namespace mero {

vector::vector(int n) {
  if (n < 0) kernel_error(1, texts::vector_negative_dimension);
  v_.assign(static_cast<std::size_t>(n), 0.0);
}

vector::vector(double x, double y) : v_{x, y} {}

vector::vector(std::initializer_list<double> values) : v_(values) {}

double& vector::operator[](int i) {
  if (i < 0 || i >= dim()) kernel_error(1, texts::vector_index);
  return v_[static_cast<std::size_t>(i)];
}

double vector::operator[](int i) const {
  if (i < 0 || i >= dim()) kernel_error(1, texts::vector_index);
  return v_[static_cast<std::size_t>(i)];
}

void vector::check_same_dimension(const vector& w) const {
  if (dim() != w.dim()) kernel_error(1, texts::vector_dimensions);
}

vector& vector::operator+=(const vector& w) {
  check_same_dimension(w);
  for (std::size_t i = 0; i < v_.size(); ++i) v_[i] += w.v_[i];
  return *this;
}

vector& vector::operator-=(const vector& w) {
  check_same_dimension(w);
  for (std::size_t i = 0; i < v_.size(); ++i) v_[i] -= w.v_[i];
  return *this;
}

vector vector::operator+(const vector& w) const {
  vector r = *this;
  return r += w;
}

vector vector::operator-(const vector& w) const {
  vector r = *this;
  return r -= w;
}

vector vector::operator-() const { return *this * -1.0; }

vector vector::operator*(double f) const {
  vector r = *this;
  for (double& x : r.v_) x *= f;
  return r;
}

double vector::operator*(const vector& w) const {
  check_same_dimension(w);
  double sum = 0.0;
  for (std::size_t i = 0; i < v_.size(); ++i) sum += v_[i] * w.v_[i];
  return sum;
}

double vector::length() const { return std::sqrt(sqr_length()); }

vector vector::rotate(double alpha) const {
  if (dim() != 2) kernel_error(1, texts::vector_rotate);
  double c = std::cos(alpha);
  double s = std::sin(alpha);
  return vector(c * v_[0] - s * v_[1], s * v_[0] + c * v_[1]);
}

vector vector::rotate90() const {
  if (dim() != 2) kernel_error(1, texts::vector_rotate90);
  return vector(-v_[1], v_[0]);
}

double vector::angle(const vector& w) const {
  check_same_dimension(w);
  double norms = length() * w.length();
  if (norms == 0.0) kernel_error(1, texts::vector_angle_zero);
  // Rounding can push the cosine of (anti)parallel vectors just past 1 in magnitude.
  return std::acos(std::clamp((*this * w) / norms, -1.0, 1.0));
}

std::ostream& operator<<(std::ostream& out, const vector& v) {
  out << '(';
  for (int i = 0; i < v.dim(); ++i) out << (i ? ", " : "") << v[i];
  return out << ')';
}

}  // namespace mero
