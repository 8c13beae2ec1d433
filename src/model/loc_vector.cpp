#include "model/loc_vector.h"

#include <algorithm>
#include <cmath>

#include "kernel/reporters.h"
#include "model/model_messages.h"

namespace mero {

Loc_Vector::Loc_Vector(int n) : data_(static_cast<std::size_t>(std::max(n, 0)), 0.0) {}

Loc_Vector Loc_Vector::operator+(const Loc_Vector& v) const {
  Loc_Vector r(v.size());
  if (size() == v.size())
    for (int i = 0; i < size(); ++i) r.data_[i] = data_[i] + v.data_[i];
  return r;
}

Loc_Vector Loc_Vector::operator-(const Loc_Vector& v) const {
  Loc_Vector r(v.size());
  if (size() == v.size())
    for (int i = 0; i < size(); ++i) r.data_[i] = data_[i] - v.data_[i];
  return r;
}

Loc_Vector& Loc_Vector::operator+=(const Loc_Vector& v) {
  if (size() == v.size())
    for (int i = 0; i < size(); ++i) data_[i] += v.data_[i];
  return *this;
}

Loc_Vector& Loc_Vector::operator-=(const Loc_Vector& v) {
  if (size() == v.size())
    for (int i = 0; i < size(); ++i) data_[i] -= v.data_[i];
  return *this;
}

Loc_Vector& Loc_Vector::operator*=(double f) {
  for (double& x : data_) x *= f;
  return *this;
}

Loc_Vector& Loc_Vector::operator/=(double f) {
  for (double& x : data_) x /= f;
  return *this;
}

Loc_Vector Loc_Vector::operator*(double f) const {
  Loc_Vector r(*this);
  return r *= f;
}

Loc_Vector Loc_Vector::operator+(double f) const {
  Loc_Vector r(*this);
  for (double& x : r.data_) x += f;
  return r;
}

Loc_Vector Loc_Vector::operator-(double f) const {
  Loc_Vector r(*this);
  for (double& x : r.data_) x -= f;
  return r;
}

double Loc_Vector::dot(const Loc_Vector& v) const {
  if (size() != v.size()) return 0.0;
  double sum = 0.0;
  for (int i = 0; i < size(); ++i) sum += data_[i] * v.data_[i];
  return sum;
}

bool Loc_Vector::operator<(const Loc_Vector& v) const {
  if (size() != v.size()) return false;
  for (int i = 0; i < size(); ++i)
    if (!(data_[i] < v.data_[i])) return false;
  return true;
}

bool Loc_Vector::operator==(const Loc_Vector& v) const { return data_ == v.data_; }

double Loc_Vector::norm(int p) const {
  if (p >= 1) {
    double sum = 0.0;
    for (double x : data_) sum += std::pow(std::fabs(x), p);
    return std::pow(sum, 1.0 / p);
  }
  if (p == -1) {
    double largest = 0.0;
    for (double x : data_) largest = std::max(largest, std::fabs(x));
    return largest;
  }
  return 0.0;
}

Loc_Vector Loc_Vector::rotate(double angle) const {
  if (size() != 2) report_error(model_messages::rotate_dimension);
  const double c = std::cos(angle);
  const double s = std::sin(angle);
  Loc_Vector r(2);
  r.data_[0] = c * data_[0] + s * data_[1];
  r.data_[1] = c * data_[1] - s * data_[0];
  return r;
}

}  // namespace mero
