#pragma once
// Loc_Vector: the numeric vector of the planar model, a plain value type with deep copies.
// Mismatched sizes are not errors here: sums fall back to a zero vector and comparisons to false,
// because the callers (locations, solvers) test dimensions themselves where it matters.

#include <cassert>
#include <concepts>
#include <vector>

namespace mero {

class Loc_Vector {
 public:
  explicit Loc_Vector(int n = 0);
  // Loc_Vector(n, x0, x1, ...): n (truncated to an integer) components taken from the values
  // that follow; components without a value stay 0.0, surplus values are ignored.
  template <typename... Values>
  requires(sizeof...(Values) > 0 && (std::convertible_to<Values, double> && ...))
      Loc_Vector(double n, Values... values)
      : Loc_Vector(static_cast<int>(n)) {
    const double given[] = {static_cast<double>(values)...};
    for (int i = 0; i < size() && i < static_cast<int>(sizeof...(Values)); ++i) data_[i] = given[i];
  }

  int size() const { return static_cast<int>(data_.size()); }
  bool empty() const { return data_.empty(); }
  // Unchecked in release builds: solvers index vectors whose size they know.
  double operator[](int i) const {
    assert(i >= 0 && i < size());
    return data_[i];
  }
  double& operator[](int i) {
    assert(i >= 0 && i < size());
    return data_[i];
  }
  const double* data() const { return data_.data(); }

  Loc_Vector operator+(const Loc_Vector& v) const;
  Loc_Vector operator-(const Loc_Vector& v) const;
  Loc_Vector& operator+=(const Loc_Vector& v);
  Loc_Vector& operator-=(const Loc_Vector& v);
  Loc_Vector& operator*=(double f);
  Loc_Vector& operator/=(double f);
  Loc_Vector operator*(double f) const;
  Loc_Vector operator+(double f) const;
  Loc_Vector operator-(double f) const;

  // Sum of the products in index order; 0.0 for different sizes or empty vectors.
  double dot(const Loc_Vector& v) const;
  // True when the sizes agree and every component is strictly smaller (so for two empty ones).
  bool operator<(const Loc_Vector& v) const;
  bool operator==(const Loc_Vector& v) const;
  bool operator!=(const Loc_Vector& v) const { return !(*this == v); }

  // p >= 1: the lp norm through pow (also for p = 2); p = -1: the largest absolute component;
  // any other p gives 0.0 without complaint.
  double norm(int p) const;
  // Turns a plane vector by angle: a positive angle turns clockwise. Error 1101 unless size 2.
  Loc_Vector rotate(double angle) const;

 private:
  std::vector<double> data_;
};

}  // namespace mero
