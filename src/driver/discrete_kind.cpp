#include <ostream>

#include "driver/run_context.h"
#include "kernel/reporters.h"

namespace mero {

// Discrete files are not read by this build yet: say so instead of solving an empty problem.
void load_discrete(run_context& ctx) {
  report_error("Discrete files cannot be read by this build.", 3100, 1, ctx.request.windowed);
}

std::size_t discrete_objective_size(const run_context&) { return 1; }

void write_discrete_optima(run_context&, std::ostream&) {}

}  // namespace mero
