#include "restriction/restriction.h"

#include "kernel/error_handler.h"
#include "kernel/reporters.h"
#include "model/model_messages.h"
#include "restriction/restriction_messages.h"

namespace mero {

namespace msg = restriction_messages;

restriction::~restriction() = default;

double restriction::proj_l2max(location&, const std::vector<location>&, double) const {
  report_error(msg::not_implemented);
}

halfspace::halfspace(const point& from, const point& to, int given_sign)
    : sign(given_sign < 0 ? -1 : 1) {
  compute(from, to);
}

void halfspace::compute(const point& from, const point& to) {
  if (from == to) report_error(msg::not_a_hyperplane);
  a = from;
  b = to;
  vertical = a.xcoord() == b.xcoord();
  horizontal = a.ycoord() == b.ycoord();
  if (vertical) {
    n1 = 1.0;
    n2 = 0.0;
    rhs = a.xcoord();
    // A large finite slope rather than infinity, so that arithmetic on it stays finite.
    slope = 1000000000.0;
    direction = a.ycoord() < b.ycoord() ? 1 : 0;
  } else if (horizontal) {
    n1 = 0.0;
    n2 = 1.0;
    rhs = a.ycoord();
    slope = 0.0;
    direction = a.xcoord() < b.xcoord() ? 1 : 0;
  } else {
    n1 = a.ycoord() - b.ycoord();
    n2 = b.xcoord() - a.xcoord();
    rhs = n1 * a.xcoord() + n2 * a.ycoord();
    slope = (b.ycoord() - a.ycoord()) / (b.xcoord() - a.xcoord());
    direction = 0;
  }
}

int halfspace::side(const point& p) const {
  const double d = n1 * p.xcoord() + n2 * p.ycoord() - rhs;
  // The normal (n1, n2) of the general case points to the left of a -> b; the special cases
  // lose that orientation and take it from direction.
  double left = d;
  if (vertical) left = direction == 1 ? -d : d;
  if (horizontal) left = direction == 1 ? d : -d;
  const bool belongs = sign > 0 ? left > 0.0 : left < 0.0;
  return belongs ? sign : -sign;
}

bool barrier::inside(const location& l) const { return inside(point(l)); }

double barrier::barrier_objective(const std::vector<location>& locations, const point& p) const {
  double sum = 0.0;
  for (const location& a : locations) sum += a.weight(0) * distance(point(a), p);
  return sum;
}

const restriction* first_containing(const restriction_list& restrictions, const location& l) {
  for (const auto& r : restrictions)
    if (r->inside(l)) return r.get();
  return nullptr;
}

const restriction* first_containing_any(const std::list<location>& locations,
                                        const restriction_list& restrictions) {
  for (const location& l : locations)
    if (const restriction* r = first_containing(restrictions, l)) return r;
  return nullptr;
}

const restriction& head_of(const restriction_list& restrictions) {
  if (restrictions.empty()) empty_list_error(model_messages::empty_list);
  return *restrictions.front();
}

std::vector<point> region_vertices(const restriction& r) {
  if (r.kind() != 0) return {};
  if (const auto* p = dynamic_cast<const restr_polygon*>(&r)) return p->vertices();
  if (const auto* t = dynamic_cast<const restr_rectangle*>(&r)) return t->corners;
  return {};
}

bool inside_all(const std::list<location>& locations, const restriction* r) {
  if (!r) report_error(msg::empty_inside_all);
  for (const location& l : locations)
    if (!r->inside(l)) return false;
  return true;
}

}  // namespace mero
