#include <iostream>

#include "driver/problem_kind.h"
#include "driver/driver_messages.h"
#include "driver/run_context.h"
#include "driver/viewer_hooks.h"
#include "network/graph_file_io.h"

namespace mero {

namespace {

// The Pareto sets of numbers 140 to 149 have no single value and their points are not written.
bool is_pareto_set(int number) { return number >= 140 && number <= 149; }

bool is_graph_request(const run_request& request) { return request.graph_input; }

void load_graph(run_context& ctx) { read_graph(ctx.request.data_file, ctx.graph, ctx.problem); }

// One entry per criterion: the weight dimension of the nodes (1 for an empty graph).
std::size_t criteria(const run_context& ctx) {
  const location_graph& g = ctx.graph;
  if (g.first_node() == nullptr || g.inf(g.first_node()).weights.empty()) return 1;
  return g.inf(g.first_node()).weights.size();
}

void write_graph_value(const run_context& ctx, double value, std::ostream& report) {
  if (is_pareto_set(ctx.request.algorithm)) {
    report << ' ';
    return;
  }
  write_objective_value(value, report);
}

// The points stand on standard output whatever the report's target is: a report file of a graph
// problem ends with "end {result}" and holds no points.
void write_graph_optima(run_context& ctx, std::ostream&) {
  if (is_pareto_set(ctx.request.algorithm)) return;
  write_graphpointset(std::cout, ctx.graph.optima);
  std::cout.flush();
}

// Numbers 140 to 159 (the lexicographic ones too) are shown with their pieces and vectors.
graph_scene scene_of(const run_context& ctx) {
  const int n = ctx.request.algorithm;
  const bool pieces = n >= 140 && n <= 159;
  return {ctx.label, &ctx.graph, &ctx.problem, ctx.objective.empty() ? 0.0 : ctx.objective[0],
          pieces ? &ctx.pareto : nullptr};
}

void show_graph(run_context& ctx) {
  const graph_scene scene = scene_of(ctx);
  const auto show = scene.pareto ? installed_viewers().show_pareto : installed_viewers().show_graph;
  if (show) show(scene);
}

void picture_graph(run_context& ctx, const std::string& path) {
  write_scene_picture(installed_viewers().picture_graph, scene_of(ctx), path);
}

void results_graph(run_context& ctx, const std::string& path) {
  write_scene_results(installed_viewers().results_graph, scene_of(ctx), path);
}

}  // namespace

problem_kind graph_kind() {
  return {is_graph_request, load_graph, criteria,     write_graph_value, write_graph_optima,
          show_graph,       picture_graph, results_graph};
}

}  // namespace mero
