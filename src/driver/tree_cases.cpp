// Chain A with -g, trees: the median by leaf folding and the center of unit weights. All work on
// the tree form, which refuses a graph that is not a tree.

#include "driver/family.h"
#include "driver/run_context.h"
#include "kernel/reporters.h"
#include "network/network_messages.h"
#include "network/tree_problems.h"

namespace mero {

namespace {

double keep_points(run_context& ctx, graphpointset points, double value) {
  ctx.graph.optima = std::move(points);
  return value;
}

// 104 and 105 build the tree form, whose constructor tests the graph.
double solve_tree_median(run_context& ctx, int number) {
  double value = 0.0;
  const location_graph tree = tree_form(ctx.graph);
  graphpointset points = number == 105 ? abs_tree_median(tree, value) : tree_median(tree, value);
  return keep_points(ctx, std::move(points), value);
}

// 112 and 113: the run tests the graph as read before it builds the tree form.
double solve_tree_v1_center(run_context& ctx, int number) {
  if (!is_tree(ctx.graph)) report_error(network_messages::not_a_tree);
  double value = 0.0;
  const location_graph tree = tree_form(ctx.graph);
  graphpointset points =
      number == 113 ? tree_v1_center(tree, value) : loc_tree_v1_center(tree, value);
  return keep_points(ctx, std::move(points), value);
}

}  // namespace

std::vector<family_case> tree_cases() {
  return {{104, solve_tree_median},
          {105, solve_tree_median},
          {112, solve_tree_v1_center},
          {113, solve_tree_v1_center}};
}

}  // namespace mero
