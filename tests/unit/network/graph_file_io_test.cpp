#include "network/graph_file_io.h"

#include <fstream>
#include <sstream>

#include "network_test_graphs.h"
#include "test_support.h"

namespace mero {

TEST(graph_file_io, written_graph_reads_back_and_unopenable_files) {
  location_graph g = testing::make_location_graph({1, 2.5, 3}, {{0, 1, 1.5}, {2, 0, 4}});
  std::ostringstream adjacency, whole;
  write_adjacency(adjacency, g);
  EXPECT_EQ(adjacency.str(), "begin {adjlist}\n1 2 1.5\n3 1 4\nend {adjlist}\n");
  // without locations the nodes are written as NC lines with their weights
  write_graph(whole, g, facilities());
  EXPECT_EQ(whole.str(),
            "begin {merograph} \nbegin {location} [2,1]\nNC 1 []\nNC 2.5 []\nNC 3 []\n"
            "end {location}\nbegin {adjlist}\n1 2 1.5\n3 1 4\nend {adjlist}\nend {merograph}\n");
  std::string path = ::testing::TempDir() + "network_round_trip.graph";
  write_graph(path, g, facilities());
  location_graph back;
  facilities locations;
  locations.emplace_back(2, 1);  // replaced by the read
  read_graph(path, back, locations);
  EXPECT_TRUE(locations.empty());  // nodes without coordinates leave no locations
  std::ostringstream again;
  write_adjacency(again, back);
  EXPECT_EQ(again.str(), adjacency.str());
  EXPECT_EQ(head_weights(back), (std::vector<double>{1, 2.5, 3}));
  EXPECT_REPORT(write_adjacency(std::string("/nonexistent/dir/a"), g), 2103, "Can't open file !");
  EXPECT_REPORT(write_graph(std::string("/nonexistent/dir/a"), g, locations), 2104,
                "Can't open file !");
  EXPECT_REPORT(read_graph("/nonexistent/dir/a", g, locations), 2111, "Can't open file!");
}

// NC lines hold no coordinates, so the header's dimension sizes nothing: even the largest one
// reads as the two nodes and one edge that the file holds.
TEST(graph_file_io, nc_lines_take_no_size_from_the_header) {
  std::string path = ::testing::TempDir() + "network_nc_dimension.graph";
  std::ofstream(path) << "begin {merograph}\nbegin {location} [2147483647,1]\nNC 2 [hub]\n"
                         "NC 1 [north]\nend {location}\nbegin {adjlist}\n1 2 7\nend {adjlist}\n";
  location_graph g;
  facilities locations;
  read_graph(path, g, locations);
  EXPECT_TRUE(locations.empty());
  EXPECT_EQ(head_weights(g), (std::vector<double>{2, 1}));
  std::ostringstream adjacency;
  write_adjacency(adjacency, g);
  EXPECT_EQ(adjacency.str(), "begin {adjlist}\n1 2 7\nend {adjlist}\n");
}

}  // namespace mero
