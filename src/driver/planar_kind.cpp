#include <ostream>

#include "driver/problem_kind.h"
#include "driver/run_context.h"
#include "driver/viewer_hooks.h"
#include "driver/driver_messages.h"
#include "kernel/error_handler.h"
#include "model/location_file.h"
#include "model/model_messages.h"

namespace mero {

namespace {

bool any_request(const run_request&) { return true; }
bool has_gauge_file(const run_request& request) { return request.have_gauge; }

void load_locations(run_context& ctx) { read_location_file(ctx.request.data_file, ctx.problem); }

void load_gauge_locations(run_context& ctx) {
  read_gauge_location_file(ctx.request.data_file, ctx.problem, ctx.gauge_numbers);
}

// One objective value per weight column of the first location; an empty location list is the
// list error of the kernel.
std::size_t weight_columns(const run_context& ctx) {
  if (ctx.problem.empty()) empty_list_error(model_messages::empty_list);
  return static_cast<std::size_t>(ctx.problem.front().weights().size());
}

void write_planar_value(const run_context&, double value, std::ostream& report) {
  write_objective_value(value, report);
}

void write_situation_value(const run_context&, double value, std::ostream& report) {
  report << "begin {situations}\n" << value << "\nend {situations}\n";
}

// Planar solvers leave their points, lines or polygons in results, gauge solvers in situations.
void write_results(run_context& ctx, std::ostream& report) {
  location::WriteAsPolygonList(report, ctx.results);
}

void write_situations(run_context& ctx, std::ostream& report) {
  location::WriteAsPolygonList(report, ctx.situations);
}

// The viewer shows results as the optima; a gauge problem's optima stand in situations, which
// then take the place of results.
planar_scene scene_of(run_context& ctx, const std::list<location>& results) {
  planar_scene scene;
  scene.label = ctx.label;
  scene.value = ctx.objective.empty() ? 0.0 : ctx.objective[0];
  scene.problem = &ctx.problem;
  scene.results = &results;
  scene.restrictions = &ctx.restrictions;
  scene.situations = &ctx.situations;
  scene.gauges = &ctx.gauges;
  scene.gauge_numbers = &ctx.gauge_numbers;
  scene.algorithm = ctx.request.algorithm;
  return scene;
}

void show_scene(const planar_scene& scene) {
  if (installed_viewers().show_planar) installed_viewers().show_planar(scene);
}

void show_planar(run_context& ctx) { show_scene(scene_of(ctx, ctx.results)); }
void show_gauge(run_context& ctx) { show_scene(scene_of(ctx, ctx.situations)); }

void picture_planar(run_context& ctx, const std::string& path) {
  write_scene_picture(installed_viewers().picture_planar, scene_of(ctx, ctx.results), path);
}
void picture_gauge(run_context& ctx, const std::string& path) {
  write_scene_picture(installed_viewers().picture_planar, scene_of(ctx, ctx.situations), path);
}

void results_planar(run_context& ctx, const std::string& path) {
  write_scene_results(installed_viewers().results_planar, scene_of(ctx, ctx.results), path);
}
void results_gauge(run_context& ctx, const std::string& path) {
  write_scene_results(installed_viewers().results_planar, scene_of(ctx, ctx.situations), path);
}

}  // namespace

void write_objective_value(double value, std::ostream& report) {
  report << "begin {objective value} \n" << value << "\nend {objective value}\n";
}

problem_kind planar_kind() {
  return {any_request,        load_locations, weight_columns, write_planar_value,
          write_results,      show_planar,    picture_planar, results_planar};
}

// A location file of the "GaugeLoc" type, given with a gauge file.
problem_kind gauge_kind() {
  return {has_gauge_file,   load_gauge_locations, weight_columns, write_situation_value,
          write_situations, show_gauge,           picture_gauge,  results_gauge};
}

}  // namespace mero
