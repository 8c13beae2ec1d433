#pragma once
// The texts and codes that the network model, its solvers and the graph files report, kept in
// one place so that the code that raises them and the tests that expect them read the same words.

#include "kernel/reporters.h"

namespace mero {

namespace network_messages {

inline constexpr message negative_cycle{2001, "Negative cycle in graph"};
inline constexpr message not_adjacent{2002, "The two nodes are not adjazent"};
inline constexpr message unsupported_problem{
    2003, "This algorihm does not solve this kind of problem, sorry ;-)"};
// The distance matrix of a graph too large for the memory of the machine.
inline constexpr message matrix_too_large{
    2005, "Graph too large: the distance matrix of %d nodes needs %d MB of memory"};
inline constexpr message not_a_tree{2201, "Graph is not a tree :-)"};

inline constexpr message adjacency_writer_open{2103, "Can't open file !"};
inline constexpr message graph_writer_open{2104, "Can't open file !"};
inline constexpr message reader_open{2111, "Can't open file!"};
// The graph reader reports the location scanner's syntax messages under this code (the text is
// the scanner's default), and a node number beyond the nodes of the file as well.
inline constexpr message syntax_error{2112, "Syntaxerror in location file!"};
inline constexpr message node_out_of_range{2112,
                                           "Node number %d out of range in adjacency line %d."};

// Shown, through the question reporter, before a disconnected graph is joined at one node.
inline constexpr message median_not_connected{0, "Graph is not connected: MERO could connect it"};
inline constexpr message center_not_connected{
    0, "Graph is not strictly connected: MERO could connect it"};
inline constexpr message multicriteria_not_connected{
    0, "Graph is not connected: MERO is could connect it"};

// Written on standard output by the Pareto merge of two criteria when its chains are not
// monotone, a state it should never reach; the run goes on.
inline constexpr const char* merge_internal_state = "error, bitte bei Marel melden ;-)";
// Trees and N-problems.
inline constexpr message not_all_weights_one{2202, "All weights must be equal to 1"};
// Folding leaves into their neighbours stops at a node holding half the total weight; with a
// negative total no node ever does.
inline constexpr message negative_tree_weight{
    2203, "The sum of the weights is negative: folding the leaves finds no median"};
// The ending message of an N-problem asked for more facilities than there are nodes (exit 0).
inline constexpr message fewer_nodes_than_n{0, "Number of nodes is smaller than N"};
// Fewer than one new facility would leave the heuristics no facility to assign nodes to.
inline constexpr message no_new_facility{2004, "The number of new facilities must be at least 1"};

// The kernel's check of a list's head, which an empty weight list of a node meets.
inline constexpr const char* empty_weights = "dlist::head(): empty list";

}  // namespace network_messages
}  // namespace mero
