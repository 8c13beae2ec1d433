#include "restriction/restriction_file.h"

#include <memory>

#include "kernel/reporters.h"
#include "restriction/restriction_messages.h"

namespace mero {

namespace msg = restriction_messages;

namespace {

// Degrees to radians, with the factor the file format has always used.
constexpr double degree = 0.017453292519943295;

constexpr int forbidden = 0;
constexpr int infinite = -1;

// The i-th number of the block; 0 where a file of a dimension below 2 has none.
double number(const restriction_scan& s, int i) {
  return i < static_cast<int>(s.numbers.size()) ? s.numbers[i] : 0.0;
}

void add_forbidden(restriction_scan& s, std::unique_ptr<restriction> r) {
  r->set_forbidden_inside();
  s.restrictions.push_back(std::move(r));
}

}  // namespace

void restriction_scan::start(std::istream& input) {
  reset(input, msg::scan::syntax_error);
  first_call = true;
  dimension = 2;
  value = 0;
  restrictions.clear();
  open_block();
}

void restriction_scan::open_block() {
  counter = 0;
  numbers.clear();
  points.clear();
}

bool restriction_scan::take_point_line() {
  if (counter == dimension) {
    points.emplace_back(number(*this, 0), number(*this, 1));
  } else if (counter != 0) {
    return false;
  }
  counter = 0;
  numbers.clear();
  return true;
}

bool restriction_scan::close_polygon() {
  if (value == forbidden) {
    add_forbidden(*this, std::make_unique<restr_polygon>(points));
  } else if (value == infinite) {
    restrictions.push_back(std::make_unique<polygon_barrier>(points));
  } else {
    return false;
  }
  return true;
}

bool restriction_scan::close_circle() {
  const point centre(number(*this, 0), number(*this, 1));
  const double radius = number(*this, dimension);
  if (value == forbidden) {
    add_forbidden(*this, std::make_unique<restr_circle>(centre, radius));
  } else if (value == infinite) {
    restrictions.push_back(std::make_unique<circle_barrier>(centre, radius));
  } else {
    return false;
  }
  return true;
}

bool restriction_scan::close_rectangle() {
  const restr_rectangle r(point(number(*this, 0), number(*this, 1)), number(*this, dimension),
                          number(*this, dimension + 1), number(*this, 2 * dimension) * degree);
  if (value == forbidden) {
    add_forbidden(*this, std::make_unique<restr_rectangle>(r));
  } else if (value == infinite) {
    restrictions.push_back(std::make_unique<polygon_barrier>(r.corners));
  } else {
    return false;
  }
  return true;
}

bool restriction_scan::close_segment() {
  if (value != infinite) return false;
  restrictions.push_back(std::make_unique<line_barrier>(
      point(number(*this, 0), number(*this, 1)),
      point(number(*this, dimension), number(*this, dimension + 1))));
  return true;
}

restriction_list read_restrictions(std::istream& in) {
  if (!in) report_error(msg::cannot_open);
  restriction_scan scan;
  scan.start(in);
  scan_or_report(scan_restriction_file, scan, msg::scan::syntax_error.code);
  return std::move(scan.restrictions);
}

restriction_list read_restriction_file(const std::string& path) {
  std::ifstream in = open_scan_input(path, msg::cannot_open);
  return read_restrictions(in);
}

}  // namespace mero
