#pragma once
// Loc_Vector: the numeric vector of the planar model, a plain value type with deep copies.
// Mismatched sizes are not errors here: sums fall back to a zero vector and comparisons to false,
// because the callers (locations, solvers) test dimensions themselves where it matters.

#include <algorithm>
#include <cassert>
#include <concepts>
#include <cstddef>
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

  int size() const { return data_.size(); }
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
  // The components: up to two (a plane point, a weight) in place, more on the heap. A file of a
  // million locations then costs no allocation per vector, only the list node of its location.
  class values {
   public:
    values(std::size_t n, double fill) : size_(static_cast<int>(n)) {
      if (n > local_size) heap_ = new double[n];
      std::fill(begin(), end(), fill);
    }
    values(const values& o) : size_(o.size_) {
      if (size_ > local_size) heap_ = new double[size_];
      std::copy(o.begin(), o.end(), begin());
    }
    values(values&& o) noexcept : size_(o.size_) {
      if (size_ > local_size) {
        heap_ = o.heap_;
      } else {
        std::copy(o.begin(), o.end(), local_);
      }
      o.size_ = 0;  // emptied, as a moved-from std::vector
    }
    values& operator=(const values& o) {
      if (this != &o) {
        values copy(o);
        *this = std::move(copy);
      }
      return *this;
    }
    values& operator=(values&& o) noexcept {
      if (this != &o) {
        release();
        size_ = o.size_;
        if (size_ > local_size) {
          heap_ = o.heap_;
        } else {
          std::copy(o.begin(), o.end(), local_);
        }
        o.size_ = 0;
      }
      return *this;
    }
    ~values() { release(); }

    int size() const { return size_; }
    bool empty() const { return size_ == 0; }
    double* data() { return size_ > local_size ? heap_ : local_; }
    const double* data() const { return size_ > local_size ? heap_ : local_; }
    double* begin() { return data(); }
    double* end() { return data() + size_; }
    const double* begin() const { return data(); }
    const double* end() const { return data() + size_; }
    double& operator[](int i) { return data()[i]; }
    double operator[](int i) const { return data()[i]; }
    bool operator==(const values& o) const {
      return size_ == o.size_ && std::equal(begin(), end(), o.begin());
    }

   private:
    static constexpr int local_size = 2;
    void release() {
      if (size_ > local_size) delete[] heap_;
      size_ = 0;
    }
    int size_;
    union {
      double local_[local_size];
      double* heap_;
    };
  };

  values data_;
};

}  // namespace mero
