#include "driver/problem_run.h"

#include <cmath>
#include <fstream>
#include <iostream>

#include "driver/driver_messages.h"
#include "driver/family.h"
#include "driver/problem_kind.h"
#include "driver/run_context.h"
#include "kernel/reporters.h"

namespace mero {

namespace {

const family_case* find_case(int number) {
  for (const family_case& c : family_cases())
    if (c.number == number) return &c;
  return nullptr;
}

bool all_finite(const std::list<location>& list) {
  for (const location& l : list)
    for (int i = 0; i < l.coordinates().size(); ++i)
      if (!std::isfinite(l.coordinate(i))) return false;
  return true;
}

// Coordinates or weights near the largest double overflow inside the solvers.
void check_finite(const run_context& ctx, double value) {
  if (std::isfinite(value) && all_finite(ctx.results) && all_finite(ctx.situations)) return;
  report_error(driver_messages::result_not_finite);
}

// A number without a case runs nothing: its label stays empty and the value written is 0.
void solve(run_context& ctx) {
  const family_case* c = find_case(ctx.request.algorithm);
  if (!c) return;
  double value = c->solve(ctx, c->number);
  check_finite(ctx, value);
  if (ctx.objective.empty()) ctx.objective.resize(1);
  ctx.objective[0] = value;
  ctx.label = format_label(c->number, ctx.label_args);
}

// The picture comes before the window and the report, so that a picture that cannot be written
// ends the run without a report.
void write_picture(run_context& ctx, const problem_kind& kind) {
  if (!ctx.request.picture_file.empty() && kind.picture) kind.picture(ctx, ctx.request.picture_file);
}

// What "Save Results" would write, before the window and the report for the same reason.
void write_results(run_context& ctx, const problem_kind& kind) {
  if (!ctx.request.results_file.empty() && kind.results) kind.results(ctx, ctx.request.results_file);
}

void show_window(run_context& ctx, const problem_kind& kind) {
  if (!ctx.request.windowed) return;
  std::cout << "Open Window" << std::endl << std::endl;
  if (kind.show) kind.show(ctx);
}

void write_report(run_context& ctx, const problem_kind& kind, std::ostream& out) {
  out << "begin {result}\n";
  out << "begin {classification}\n" << ctx.label << "\nend {classification}\n";
  kind.write_value(ctx, ctx.objective.empty() ? 0.0 : ctx.objective[0], out);
  kind.write_optima(ctx, out);
  out << "end {result}" << std::endl;
}

}  // namespace

void run_problem(const run_request& request) {
  run_context ctx(request);
  std::ofstream file;
  if (!request.output_file.empty()) {
    file.open(request.output_file);
    if (!file) report_error(driver_messages::output_unwritable, {request.output_file});
  }
  std::ostream& out = request.output_file.empty() ? std::cout : file;

  const problem_kind& kind = kind_of(request);
  kind.load(ctx);
  if (ctx.problem.size() == 1) report_message(driver_messages::one_location, true);
  ctx.objective.resize(kind.objective_size(ctx));
  solve(ctx);
  write_picture(ctx, kind);
  write_results(ctx, kind);
  show_window(ctx, kind);
  write_report(ctx, kind, out);
}

}  // namespace mero
