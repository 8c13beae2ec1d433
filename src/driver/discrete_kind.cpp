#include <ostream>

#include "discrete/discrete_file.h"
#include "driver/run_context.h"

namespace mero {

void load_discrete(run_context& ctx) { read_discrete_file(ctx.request.data_file, ctx.discrete); }

std::size_t discrete_objective_size(const run_context&) { return 1; }

// The result part of a discrete report is the problem in the discrete file's own form.
void write_discrete_optima(run_context& ctx, std::ostream& report) { ctx.discrete.write(report); }

}  // namespace mero
