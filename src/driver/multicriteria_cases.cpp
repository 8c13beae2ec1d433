#include "driver/family.h"
#include "driver/run_context.h"
#include "network/multicriteria.h"
#include "network/pareto_median.h"

namespace mero {

namespace {

// The criteria are the weights of the first node; the label is formatted with their number.
int count_criteria(run_context& ctx) {
  ctx.label_args.count = criteria_count(ctx.graph);
  return ctx.label_args.count;
}

// A Pareto set has no single value: its pieces and vectors stay in the run for the viewer.
double keep_pareto(run_context& ctx, pareto_result result) {
  ctx.pareto = std::move(result);
  return 0.0;
}

// 140: two criteria go to the planar sweep of the two objectives, any other number to the
// general route with linear programs.
double solve_median_pareto(run_context& ctx, int) {
  location_graph form = undirected_form(ctx.graph);
  if (count_criteria(ctx) == 2) return keep_pareto(ctx, bicriteria_median(form));
  return keep_pareto(ctx, pareto_median(form));
}

// 141, 142 on the undirected form; 145 to 148 on the directed form, 145 and 148 absolute
// (answered by nodes, and for 148 by arcs), 147 and 148 with the largest distance.
double solve_pareto_nodes(run_context& ctx, int number) {
  count_criteria(ctx);
  const bool directed = number >= 145;
  location_graph form = directed ? directed_form(ctx.graph) : undirected_form(ctx.graph);
  return keep_pareto(ctx, pareto_nodes(form, directed, number == 145 || number == 148,
                                       number == 142 || number == 147 || number == 148));
}

// 150 to 152 on the undirected form, 155 to 157 on the directed one; 150 and 155 absolute, 152
// and 157 with the largest distance. The optimal nodes and whole edges are also the run's
// graph points, which the report lists; the value written is 0.
double solve_lexicographic(run_context& ctx, int number) {
  count_criteria(ctx);
  const bool directed = number >= 155;
  location_graph form = directed ? directed_form(ctx.graph) : undirected_form(ctx.graph);
  pareto_result result =
      lexi_solve(form, directed, number == 150 || number == 155, number == 152 || number == 157);
  ctx.graph.optima.clear();
  for (const pareto_piece& p : result.pieces)
    ctx.graph.optima.push_back({p.first, p.second, p.first == p.second ? 0.0 : p.from});
  return keep_pareto(ctx, std::move(result));
}

}  // namespace

std::vector<family_case> multicriteria_cases() {
  return {{140, solve_median_pareto}, {141, solve_pareto_nodes},  {142, solve_pareto_nodes},
          {145, solve_pareto_nodes},  {146, solve_pareto_nodes},  {147, solve_pareto_nodes},
          {148, solve_pareto_nodes},  {150, solve_lexicographic}, {151, solve_lexicographic},
          {152, solve_lexicographic}, {155, solve_lexicographic}, {156, solve_lexicographic},
          {157, solve_lexicographic}};
}

}  // namespace mero
