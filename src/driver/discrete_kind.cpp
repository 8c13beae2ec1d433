#include <ostream>

#include "discrete/discrete_file.h"
#include "driver/problem_kind.h"
#include "driver/run_context.h"

namespace mero {

namespace {

bool is_discrete_request(const run_request& request) { return request.discrete_input; }

void load_discrete(run_context& ctx) { read_discrete_file(ctx.request.data_file, ctx.discrete); }

std::size_t one_value(const run_context&) { return 1; }

// Unlike the planar block, no blank after "begin {objective value}".
void write_discrete_value(const run_context&, double value, std::ostream& report) {
  report << "begin {objective value}\n" << value << "\nend {objective value}\n";
}

// The result part of a discrete report is the problem in the discrete file's own form.
void write_discrete_optima(run_context& ctx, std::ostream& report) { ctx.discrete.write(report); }

}  // namespace

problem_kind discrete_kind() {
  return {is_discrete_request, load_discrete, one_value, write_discrete_value,
          write_discrete_optima};
}

}  // namespace mero
