// Whether the figures of a restriction file overlap, for the front end's warning.

#include <string>
#include <vector>

#include "driver/front_end/front_end.h"
#include "kernel/circle.h"
#include "kernel/polygon.h"
#include "restriction/restriction.h"
#include "restriction/restriction_file.h"

namespace mero {

namespace {

// The crossings of figure i's outline with figure j's: figure j as a kernel polygon (polygons
// and rectangles) or circle (circles), asked through figure i's crossing operation. Barriers
// offer no outline here and add nothing.
std::vector<point> outline_crossings(const restriction& i, const restriction& j) {
  if (const auto* p = dynamic_cast<const restr_polygon*>(&j)) return i.hit_polygon(polygon(p->vertices()));
  if (const auto* r = dynamic_cast<const restr_rectangle*>(&j)) return i.hit_polygon(polygon(r->corners));
  if (const auto* c = dynamic_cast<const restr_circle*>(&j))
    return i.hit_circle(circle(c->center, c->radius));
  return {};
}

}  // namespace

int restrictions_intersect(const std::string& file) {
  const restriction_list figures = read_restriction_file(file);
  std::vector<point> crossings;
  for (std::size_t i = 0; i < figures.size(); ++i)
    for (std::size_t j = i + 1; j < figures.size(); ++j) {
      const std::vector<point> hits = outline_crossings(*figures[i], *figures[j]);
      crossings.insert(crossings.end(), hits.begin(), hits.end());
    }
  return crossings.empty() ? 0 : 1;
}

}  // namespace mero
