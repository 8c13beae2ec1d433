#include "driver/family.h"
#include "driver/run_context.h"
#include "network/graph_center.h"
#include "network/graph_median.h"
#include "network/network_messages.h"

namespace mero {

namespace {

// Each solver works on the form of the graph that its number asks for; the graph that was read
// stays as it is. The points found go to the run's graph for the report.
double finish(run_context& ctx, graphpointset points, double value) {
  ctx.graph.optima = std::move(points);
  return value;
}

// 100, 102, 103: medians on the directed (100) and the undirected form.
double solve_median(run_context& ctx, int number) {
  double value = 0.0;
  location_graph form = number == 100 ? directed_form(ctx.graph) : undirected_form(ctx.graph);
  graphpointset points = number == 103 ? abs_graph_median(form, value)
                                       : graph_median(form, number == 100 ? 'm' : 'u', value);
  return finish(ctx, std::move(points), value);
}

// 110 and 115 (the absolute label answered by nodes) on the directed form; 116 on the
// undirected form; 111 the absolute center of the undirected form.
double solve_center(run_context& ctx, int number) {
  double value = 0.0;
  bool directed = number == 110 || number == 115;
  location_graph form = directed ? directed_form(ctx.graph) : undirected_form(ctx.graph);
  graphpointset points = number == 111 ? abs_center(form, value) : node_center(form, value);
  return finish(ctx, std::move(points), value);
}

// 117 and 118: the centers of a tree, after the run's own tree test.
double solve_tree_center(run_context& ctx, int number) {
  double value = 0.0;
  location_graph form = tree_form(ctx.graph);
  graphpointset points = number == 118 ? abs_center(form, value) : node_center(form, value);
  return finish(ctx, std::move(points), value);
}

}  // namespace

std::vector<family_case> network_cases() {
  return {{100, solve_median}, {102, solve_median},      {103, solve_median},
          {110, solve_center}, {111, solve_center},      {115, solve_center},
          {116, solve_center}, {117, solve_tree_center}, {118, solve_tree_center}};
}

}  // namespace mero
