#pragma once
// The kernel's number vector: doubles with a fixed dimension. Every index and every pairing of
// two vectors is checked; a fault stops the run through the kernel handler.

#include <cstddef>
#include <initializer_list>
#include <iosfwd>
#include <vector>

namespace mero {

class vector {
 public:
  vector() = default;
  explicit vector(int n);  // n zeros; a negative n is a fault
  vector(double x, double y);
  vector(std::initializer_list<double> values);

  int dim() const { return static_cast<int>(v_.size()); }
  double& operator[](int i);
  double operator[](int i) const;

  vector operator+(const vector& w) const;
  vector operator-(const vector& w) const;
  vector operator-() const;
  vector operator*(double f) const;
  vector& operator+=(const vector& w);
  vector& operator-=(const vector& w);
  double operator*(const vector& w) const;  // scalar product
  bool operator==(const vector& w) const { return v_ == w.v_; }

  double sqr_length() const { return *this * *this; }
  double length() const;

  // Dimension two only. rotate turns counter-clockwise by alpha (radians); rotate90 by a
  // quarter turn, exactly: (x, y) becomes (-y, x).
  vector rotate(double alpha) const;
  vector rotate90() const;

  // The angle between this vector and w, in [0, pi]; a zero vector has no direction.
  double angle(const vector& w) const;

 private:
  void check_same_dimension(const vector& w) const;

  std::vector<double> v_;
};

inline vector operator*(double f, const vector& v) { return v * f; }
std::ostream& operator<<(std::ostream& out, const vector& v);

}  // namespace mero
