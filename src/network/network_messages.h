#pragma once
// The texts and codes that the network model, its solvers and the graph files report, kept in
// one place so that the code that raises them and the tests that expect them read the same words.

namespace mero {

struct network_message {
  int code;
  const char* text;
};

namespace network_messages {

inline constexpr network_message negative_cycle{2001, "Negative cycle in graph"};
inline constexpr network_message not_adjacent{2002, "The two nodes are not adjazent"};
inline constexpr network_message not_a_tree{2201, "Graph is not a tree :-)"};

inline constexpr network_message adjacency_writer_open{2103, "Can't open file !"};
inline constexpr network_message graph_writer_open{2104, "Can't open file !"};
inline constexpr network_message reader_open{2111, "Can't open file!"};
inline constexpr int scanner_error_code = 2112;

// Shown, through the question reporter, before a disconnected graph is joined at one node.
inline constexpr const char* median_not_connected = "Graph is not connected: MERO could connect it";
inline constexpr const char* center_not_connected =
    "Graph is not strictly connected: MERO could connect it";
inline constexpr const char* multicriteria_not_connected =
    "Graph is not connected: MERO is could connect it";

// The kernel's check of a list's head, which an empty weight list of a node meets.
inline constexpr const char* empty_weights = "dlist::head(): empty list";

}  // namespace network_messages
}  // namespace mero
