// Chain A with -g, trees: the median by leaf folding and the center of unit weights. All work on
// the tree form, which refuses a graph that is not a tree.

#include "driver/family.h"
#include "driver/run_context.h"
#include "network/network_messages.h"
#include "network/tree_problems.h"

namespace mero {

namespace {

using tree_solver = graphpointset (*)(const location_graph&, double&);

tree_solver solver_of(int number) {
  switch (number) {
    case 104:
      return tree_median;
    case 105:
      return abs_tree_median;
    case 112:
      return loc_tree_v1_center;
    default:
      return tree_v1_center;
  }
}

// 112 and 113 test the graph as read before the tree form is built; 104 and 105 rely on the
// tree form's own test. The text and code are the same.
double solve_tree(run_context& ctx, int number) {
  if ((number == 112 || number == 113) && !is_tree(ctx.graph))
    report_error(network_messages::not_a_tree);
  double value = 0.0;
  ctx.graph.optima = solver_of(number)(tree_form(ctx.graph), value);
  return value;
}

}  // namespace

std::vector<family_case> tree_cases() {
  return {{104, solve_tree}, {105, solve_tree}, {112, solve_tree}, {113, solve_tree}};
}

}  // namespace mero
