#include "network/graph_file_io.h"

#include <sstream>

#include "network_test_graphs.h"
#include "test_support.h"

namespace mero {
namespace {

TEST(graph_file_io, adjacency_and_graph_writers) {
  location_graph g = testing::make_location_graph({1, 2.5, 3}, {{0, 1, 1.5}, {2, 0, 4}});
  std::ostringstream adjacency;
  write_adjacency(adjacency, g);
  EXPECT_EQ(adjacency.str(), "begin {adjlist}\n1 2 1.5\n3 1 4\nend {adjlist}\n");

  // without locations the nodes are written as NC lines with their weights
  std::ostringstream whole;
  write_graph(whole, g, facilities());
  EXPECT_EQ(whole.str(),
            "begin {merograph} \nbegin {location} [2,1]\nNC 1 []\nNC 2.5 []\nNC 3 []\n"
            "end {location}\nbegin {adjlist}\n1 2 1.5\n3 1 4\nend {adjlist}\nend {merograph}\n");

  EXPECT_REPORT(write_adjacency(std::string("/nonexistent/dir/a"), g), 2103, "Can't open file !");
  EXPECT_REPORT(write_graph(std::string("/nonexistent/dir/a"), g, facilities()), 2104,
                "Can't open file !");
  location_graph read_back;
  facilities locations;
  EXPECT_REPORT(read_graph("/nonexistent/dir/a", read_back, locations), 2111, "Can't open file!");
}

TEST(graph_file_io, written_graph_reads_back) {
  location_graph g = testing::make_location_graph({1, 2.5, 3}, {{0, 1, 1.5}, {2, 0, 4}});
  std::string path = ::testing::TempDir() + "network_round_trip.graph";
  write_graph(path, g, facilities());
  location_graph back;
  facilities locations;
  locations.emplace_back(2, 1);  // replaced by the read
  read_graph(path, back, locations);
  EXPECT_TRUE(locations.empty());  // nodes without coordinates leave no locations
  ASSERT_EQ(back.number_of_nodes(), 3);
  std::vector<double> weights;
  for (node v : back.all_nodes()) weights.push_back(head_weight(back, v));
  EXPECT_EQ(weights, (std::vector<double>{1, 2.5, 3}));
  std::vector<edge> edges = back.all_edges();
  ASSERT_EQ(edges.size(), 2u);
  EXPECT_EQ(graph::index(graph::source(edges[1])), 2);
  EXPECT_EQ(graph::index(graph::target(edges[1])), 0);
  EXPECT_EQ(back.inf(edges[0]), 1.5);
}

}  // namespace
}  // namespace mero
