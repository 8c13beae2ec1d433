#include "driver/problem_run.h"

#include <cmath>
#include <fstream>
#include <iostream>

#include "driver/driver_messages.h"
#include "driver/family.h"
#include "driver/run_context.h"
#include "kernel/error_handler.h"
#include "kernel/reporters.h"

namespace mero {

problem_kind kind_of(const run_request& request) {
  if (request.have_gauge) return problem_kind::gauge;
  if (request.graph_input) return problem_kind::graph;
  if (request.discrete_input) return problem_kind::discrete;
  return problem_kind::planar;
}

namespace {

void load(run_context& ctx, problem_kind kind) {
  switch (kind) {
    case problem_kind::planar: load_planar(ctx); break;
    case problem_kind::gauge: load_gauge(ctx); break;
    case problem_kind::graph: load_graph(ctx); break;
    case problem_kind::discrete: load_discrete(ctx); break;
  }
}

// One entry per weight column of the first location in planar and gauge problems; there an empty
// location list is the list error of the kernel.
std::size_t objective_size(const run_context& ctx, problem_kind kind) {
  switch (kind) {
    case problem_kind::planar:
    case problem_kind::gauge:
      if (ctx.problem.empty()) empty_list_error("dlist::head(): empty list");
      return static_cast<std::size_t>(ctx.problem.front().weights().size());
    case problem_kind::graph: return graph_objective_size(ctx);
    case problem_kind::discrete: return discrete_objective_size(ctx);
  }
  return 1;
}

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

// The viewers come with the window layer; until then a windowed run only announces the window.
void show_window(const run_context& ctx) {
  if (!ctx.request.windowed) return;
  std::cout << "Open Window" << std::endl << std::endl;
}

void write_value_block(const run_context& ctx, problem_kind kind, int number, std::ostream& out) {
  const double value = ctx.objective.empty() ? 0.0 : ctx.objective[0];
  switch (kind) {
    case problem_kind::gauge:
      out << "begin {situations}\n" << value << "\nend {situations}\n";
      return;
    case problem_kind::discrete:
      out << "begin {objective value}\n" << value << "\nend {objective value}\n";
      return;
    case problem_kind::graph:
      if (number >= 140 && number <= 149) {  // the Pareto sets have no single value
        out << ' ';
        return;
      }
      [[fallthrough]];
    case problem_kind::planar:
      out << "begin {objective value} \n" << value << "\nend {objective value}\n";
      return;
  }
}

void write_report(run_context& ctx, problem_kind kind, std::ostream& out) {
  const int number = ctx.request.algorithm;
  out << "begin {result}\n";
  out << "begin {classification}\n" << ctx.label << "\nend {classification}\n";
  write_value_block(ctx, kind, number, out);
  switch (kind) {
    case problem_kind::planar:
    case problem_kind::gauge: write_planar_optima(ctx, out); break;
    case problem_kind::discrete: write_discrete_optima(ctx, out); break;
    case problem_kind::graph:
      if (number < 140 || number > 149) write_graph_optima(ctx, out);
      break;
  }
  out << "end {result}" << std::endl;
}

}  // namespace

void run_problem(const run_request& request) {
  run_context ctx(request);
  std::ofstream file;
  if (!request.output_file.empty()) {
    file.open(request.output_file);
    if (!file)
      report_error(driver_messages::output_unwritable, {request.output_file});
  }
  std::ostream& out = request.output_file.empty() ? std::cout : file;

  const problem_kind kind = kind_of(request);
  load(ctx, kind);
  if (ctx.problem.size() == 1)
    report_message(driver_messages::one_location, true);
  ctx.objective.resize(objective_size(ctx, kind));
  solve(ctx);
  show_window(ctx);
  write_report(ctx, kind, out);
}

}  // namespace mero
