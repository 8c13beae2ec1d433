#include "model/location.h"

#include <cmath>
#include <istream>
#include <ostream>
#include <string>
#include <utility>

#include "kernel/number_format.h"
#include "model/model_messages.h"

namespace mero {

namespace {

bool copies(const location& l) { return l.dim() >= 1 && l.weight_dim() >= 1; }

void write_point(std::ostream& out, const location& l) {
  for (int i = 0; i < l.dim(); ++i) out << l.coordinates()[i] << ' ';
  out << '\n';
}

}  // namespace

location::location(int dim, int weight_dim) : coordinates_(dim), weights_(weight_dim) {}

location::location(const point& p) : coordinates_(2.0, p.xcoord(), p.ycoord()), weights_(1) {}

location::operator point() const {
  if (dim() != 2) report_error(model_messages::point_dimension);
  return point(coordinates_[0], coordinates_[1]);
}

void location::fill_from(const double* values, int count) {
  int next = 0;
  for (int i = 0; i < dim() && next < count; ++i) coordinates_[i] = values[next++];
  for (int i = 0; i < weight_dim() && next < count; ++i) weights_[i] = values[next++];
}

location::location(const location& other) {
  if (copies(other)) {
    coordinates_ = other.coordinates_;
    weights_ = other.weights_;
  }
}

location::location(location&& other) noexcept {
  if (copies(other)) {
    coordinates_ = std::move(other.coordinates_);
    weights_ = std::move(other.weights_);
  }
}

location& location::operator=(const location& other) {
  if (!(*this == other)) {
    coordinates_ = other.coordinates_;
    weights_ = other.weights_;
  }
  return *this;
}

location& location::operator=(location&& other) noexcept {
  if (!(*this == other)) {
    coordinates_ = std::move(other.coordinates_);
    weights_ = std::move(other.weights_);
  }
  return *this;
}

bool location::operator==(const location& l) const {
  return coordinates_ == l.coordinates_ && weights_ == l.weights_;
}

double location::coordinate(int i) const {
  if (i < 0 || i >= dim()) report_error(model_messages::coordinate_read);
  return coordinates_[i];
}

double& location::coordinate_ref(int i) {
  if (i < 0 || i >= dim()) report_error(model_messages::coordinate_reference);
  return coordinates_[i];
}

double location::weight(int i) const {
  if (i < 0 || i >= weight_dim()) report_error(model_messages::weight_read);
  return weights_[i];
}

double& location::weight_ref(int i) {
  if (i < 0 || i >= weight_dim()) report_error(model_messages::weight_reference);
  return weights_[i];
}

location location::operator+(const location& l) const {
  if (dim() != l.dim()) report_error(model_messages::incompatible_dimension);
  location r(*this);
  r.coordinates_ += l.coordinates_;
  return r;
}

location location::operator-(const location& l) const {
  if (dim() != l.dim()) report_error(model_messages::incompatible_dimension);
  location r(*this);
  r.coordinates_ -= l.coordinates_;
  return r;
}

location location::operator*(double f) const {
  location r(*this);
  r.coordinates_ *= f;
  return r;
}

location location::operator/(double f) const {
  if (f == 0.0) report_error(model_messages::division_by_zero);
  location r(*this);
  r.coordinates_ /= f;
  return r;
}

double location::dot(const location& l) const {
  if (dim() != l.dim()) report_error(model_messages::incompatible_dimension);
  return coordinates_.dot(l.coordinates_);
}

double location::norm(int p) const {
  if (p >= 1 || p == -1) return coordinates_.norm(p);
  report_error(model_messages::bad_norm);
}

double location::r_angle(const location& l) const {
  const double a = coordinates_.norm(2);
  const double b = l.coordinates_.norm(2);
  if (a == 0.0 || b == 0.0) report_error(model_messages::zero_length);
  // Not clamped to [-1, 1]: rounding may push parallel vectors just outside and give NaN.
  return std::acos(coordinates_.dot(l.coordinates_) / (a * b));
}

void location::l1_to_linf() {
  const double x = coordinate(0);
  const double y = coordinate(1);
  coordinates_ = Loc_Vector(2.0, (x + y) * 0.5, (y - x) * 0.5);
}

void location::linf_to_l1() {
  const double x = coordinate(0);
  const double y = coordinate(1);
  coordinates_ = Loc_Vector(2.0, x - y, x + y);
}

void location::WriteAsPolygonList(std::ostream& out, const std::list<location>& L) {
  out << "begin {polygonlist}\n";
  auto it = L.begin();
  while (it != L.end()) {
    if (it->weight_dim() == 0) report_error(model_messages::not_a_polygon_list);
    auto next = std::next(it);
    if (next == L.end() || next->weight(0) != it->weight(0)) {
      write_point(out, *it);
      it = next;
      continue;
    }
    // A run of neighbours that share the group number weight(0) is one polygon.
    out << "begin {polygon}\n";
    write_point(out, *it);
    while (next != L.end() && next->weight(0) == it->weight(0)) {
      it = next++;
      write_point(out, *it);
    }
    out << "end {polygon}\n";
    it = next;
  }
  out << "end {polygonlist}\n";
}

// Each coordinate and each weight followed by a blank, and one more blank between the two. A
// plain stream gets the whole text at once, its numbers formatted as the stream would format
// them, which is several times faster in a large report.
std::ostream& operator<<(std::ostream& out, const location& l) {
  if (!plain_number_stream(out)) {
    for (int i = 0; i < l.dim(); ++i) out << l.coordinates()[i] << ' ';
    out << ' ';
    for (int i = 0; i < l.weight_dim(); ++i) out << l.weights()[i] << ' ';
    return out;
  }
  const int precision = static_cast<int>(out.precision());
  std::string line;
  char number[general_text_size];
  const auto add = [&](double x) {
    line.append(number, format_general(x, precision, number));
    line += ' ';
  };
  for (int i = 0; i < l.dim(); ++i) add(l.coordinates()[i]);
  line += ' ';
  for (int i = 0; i < l.weight_dim(); ++i) add(l.weights()[i]);
  return out.write(line.data(), static_cast<std::streamsize>(line.size()));
}

std::istream& operator>>(std::istream& in, location& l) {
  for (int i = 0; i < l.dim(); ++i) in >> l.coordinate_ref(i);
  for (int i = 0; i < l.weight_dim(); ++i) in >> l.weight_ref(i);
  return in;
}

}  // namespace mero
