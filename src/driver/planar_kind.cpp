#include <ostream>

#include "driver/run_context.h"
#include "model/location_file.h"

namespace mero {

void load_planar(run_context& ctx) { read_location_file(ctx.request.data_file, ctx.problem); }

void load_gauge(run_context& ctx) {
  read_gauge_location_file(ctx.request.data_file, ctx.problem, ctx.gauge_numbers);
}

// Gauge problems leave their optima in situations, planar ones in results.
void write_planar_optima(run_context& ctx, std::ostream& report) {
  const bool gauge = kind_of(ctx.request) == problem_kind::gauge;
  location::WriteAsPolygonList(report, gauge ? ctx.situations : ctx.results);
}

}  // namespace mero
