// Times the Pareto routines of networks on one graph file whose nodes get Q random integer
// weights LOW..HIGH, negative ones taken as 0 (so a LOW below 0 gives sparse demands; the seed
// is an argument), and prints the number of pieces found, how many of them are nodes, and the
// seconds of the routine (repair, distances and pruning; reading excluded).
// Usage: multicriteria_bench GRAPH Q ROUTE SEED LOW HIGH, ROUTE general, bicriteria or nodes.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>

#include "model/facilities.h"
#include "network/graph_file_io.h"
#include "network/multicriteria.h"
#include "network/pareto_median.h"

int main(int argc, char** argv) {
  using namespace mero;
  if (argc != 7) {
    std::fprintf(stderr,
                 "usage: multicriteria_bench GRAPH Q general|bicriteria|nodes SEED LOW HIGH\n");
    return 2;
  }
  location_graph g;
  facilities problem;
  read_graph(argv[1], g, problem);
  const int q_count = std::atoi(argv[2]);
  const std::string route = argv[3];
  std::mt19937 rng(static_cast<unsigned>(std::atoi(argv[4])));
  const int low = std::atoi(argv[5]), high = std::atoi(argv[6]);
  std::uniform_int_distribution<int> weight(low, high);
  for (node v = g.first_node(); v != nullptr; v = graph::succ_node(v)) {
    node_weights w;
    for (int q = 0; q < q_count; ++q) w.weights.push_back(std::max(0, weight(rng)));
    g.assign(v, w);
  }
  const auto start = std::chrono::steady_clock::now();
  location_graph form = undirected_form(g);
  const pareto_result r = route == "general"      ? pareto_median(form)
                          : route == "bicriteria" ? bicriteria_median(form)
                                                  : pareto_nodes(form, false, false, false);
  const double seconds =
      std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  int nodes = 0;
  for (const pareto_piece& p : r.pieces) nodes += p.first == p.second;
  std::printf("%zu %d %.2f\n", r.pieces.size(), nodes, seconds);
  return 0;
}
