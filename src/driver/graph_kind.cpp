#include <iostream>

#include "driver/run_context.h"
#include "network/graph_file_io.h"

namespace mero {

void load_graph(run_context& ctx) { read_graph(ctx.request.data_file, ctx.graph, ctx.problem); }

// One entry per criterion: the weight dimension of the nodes (1 for an empty graph).
std::size_t graph_objective_size(const run_context& ctx) {
  const location_graph& g = ctx.graph;
  if (g.first_node() == nullptr || g.inf(g.first_node()).weights.empty()) return 1;
  return g.inf(g.first_node()).weights.size();
}

// The points stand on standard output whatever the report's target is: a report file of a graph
// problem ends with "end {result}" and holds no points.
void write_graph_optima(run_context& ctx, std::ostream&) {
  write_graphpointset(std::cout, ctx.graph.optima);
  std::cout.flush();
}

}  // namespace mero
