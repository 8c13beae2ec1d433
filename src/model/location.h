#pragma once
// location: a point of the planar model with its weights. Names and list links live elsewhere
// (facilities). All comparisons are exact.

#include <iosfwd>
#include <list>

#include "kernel/point.h"
#include "model/loc_vector.h"

namespace mero {

class location {
 public:
  location(int dim, int weight_dim);
  // Dimension 2 from the point's x and y, with one zero weight so that it survives copying.
  explicit location(const point& p);
  // location(dim, weight_dim, c0, ..., w0, ...): sizes truncated to integers, then dim
  // coordinates and weight_dim weights from the values that follow (missing ones stay 0.0).
  template <typename... Values>
  requires((std::convertible_to<Values, double> && ...))
      location(double dim, double weight_dim, Values... values)
      : location(static_cast<int>(dim), static_cast<int>(weight_dim)) {
    if constexpr (sizeof...(Values) > 0) {
      const double given[] = {static_cast<double>(values)...};
      fill_from(given, static_cast<int>(sizeof...(Values)));
    }
  }

  // A location copies only when it has at least one coordinate and one weight; otherwise the
  // copy is an empty location of dimension 0. Every location returned by value obeys this.
  location(const location& other);
  location(location&& other) noexcept;
  // Assigns both vectors unless the two are already equal.
  location& operator=(const location& other);
  location& operator=(location&& other) noexcept;

  bool operator==(const location& l) const;
  bool operator!=(const location& l) const { return !(*this == l); }

  int dim() const { return coordinates_.size(); }
  int weight_dim() const { return weights_.size(); }

  double coordinate(int i) const;  // 1208 out of range
  double& coordinate_ref(int i);   // 1207 out of range
  double weight(int i) const;      // 1210 out of range
  double& weight_ref(int i);       // 1209 out of range
  // Copy-free views; take a copy where one is needed.
  const Loc_Vector& coordinates() const { return coordinates_; }
  const Loc_Vector& weights() const { return weights_; }
  void set_coordinates(const Loc_Vector& c) { coordinates_ = c; }
  void set_weights(const Loc_Vector& w) { weights_ = w; }

  // Coordinates added or subtracted, the weights of *this kept; 1205 on different dimensions.
  location operator+(const location& l) const;
  location operator-(const location& l) const;
  location operator*(double f) const;
  location operator/(double f) const;   // 1211 for exactly 0.0
  double dot(const location& l) const;  // 1205 on different dimensions

  // p >= 1: lp norm of the coordinates; p = -1: the largest absolute coordinate; else 1201.
  double norm(int p) const;
  // Angle between the two position vectors; 1202 if either has length 0.
  double r_angle(const location& l) const;

  // The kernel point (x, y); 1203 unless the dimension is 2.
  explicit operator point() const;

  // Rectilinear transforms of a plane location, inverse to each other:
  // l1 -> linf maps (x, y) to ((x + y) / 2, (y - x) / 2); linf -> l1 maps (x, y) to (x - y, x + y).
  void l1_to_linf();
  void linf_to_l1();

  // Writes an optimal set: neighbours with equal weight(0) form one polygon, others lone points.
  static void WriteAsPolygonList(std::ostream& out, const std::list<location>& L);

 private:
  void fill_from(const double* values, int count);

  Loc_Vector coordinates_;
  Loc_Vector weights_;
};

// Each coordinate and a blank, one more blank, each weight and a blank; no line end.
std::ostream& operator<<(std::ostream& out, const location& l);
// Reads dim() coordinates, then weight_dim() weights, into a location of the right sizes.
std::istream& operator>>(std::istream& in, location& l);

}  // namespace mero
