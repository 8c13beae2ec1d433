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

}  // namespace
}  // namespace mero
