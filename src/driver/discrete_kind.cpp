#include <ostream>

#include "discrete/discrete_file.h"
#include "driver/problem_kind.h"
#include "driver/run_context.h"
#include "driver/viewer_hooks.h"

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

discrete_scene scene_of(const run_context& ctx) {
  return {ctx.label, ctx.objective.empty() ? 0.0 : ctx.objective[0], &ctx.discrete};
}

void show_discrete(run_context& ctx) {
  if (installed_viewers().show_discrete) installed_viewers().show_discrete(scene_of(ctx));
}

void picture_discrete(run_context& ctx, const std::string& path) {
  write_scene_picture(installed_viewers().picture_discrete, scene_of(ctx), path);
}

void results_discrete(run_context& ctx, const std::string& path) {
  write_scene_results(installed_viewers().results_discrete, scene_of(ctx), path);
}

}  // namespace

problem_kind discrete_kind() {
  return {is_discrete_request, load_discrete,    one_value,       write_discrete_value,
          write_discrete_optima, show_discrete, picture_discrete, results_discrete};
}

}  // namespace mero
