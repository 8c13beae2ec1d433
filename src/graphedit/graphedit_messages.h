#pragma once
// The texts and codes of the graph editor and of its GE, GML and PostScript files, kept in one
// place so that the code that raises them and the tests that expect them read the same words.

#include "kernel/reporters.h"

namespace mero::graphedit_messages {

inline constexpr message cannot_open{3501, "Cannot open graph file %s."};
inline constexpr message cannot_write{3502, "Cannot write graph file %s."};

// GE files: the native graph first, then the commented sections in their order.
inline constexpr message ge_not_a_graph{3511, "%s, line %d: the graph part does not begin with ORBA.GRAPH."};
inline constexpr message ge_graph_format{3512, "%s, line %d: error in the graph part."};
inline constexpr message ge_missing_comment{3513, "%s, line %d: expected the comment \"# %s\"."};
inline constexpr message ge_bad_line{3514, "%s, line %d: bad %s line."};
inline constexpr message ge_early_end{3515, "%s, line %d: the file ends before the %s."};

// GML files.
inline constexpr message gml_unterminated_string{3521, "%s, line %d: unterminated string."};
inline constexpr message gml_syntax{3522, "%s, line %d: syntax error at \"%s\"."};
inline constexpr message gml_unclosed_list{3523, "%s, line %d: list \"%s [\" is not closed."};
inline constexpr message gml_no_graph{3524, "%s: no \"graph [\" in the file."};
inline constexpr message gml_bad_value{3525, "%s, line %d: the value of \"%s\" must be %s."};
inline constexpr message gml_unknown_word{3526, "%s, line %d: unknown %s \"%s\"."};
inline constexpr message gml_node_id{3527, "%s, line %d: node without a new \"id\"."};
inline constexpr message gml_edge_end{3528, "%s, line %d: edge with an unknown %s node."};
// A bend with one coordinate only is dropped and reading goes on.
inline constexpr message gml_incomplete_bend{0, "ignoring incomplete bend"};

// The converter between editor graphs and mero graph files.
inline constexpr message convert_node_key{3531, "Node %d has no number under the key \"%s\"."};
inline constexpr message convert_edge_key{
    3532, "Edge %d (from node %d to node %d) has no number under the key \"%s\"."};
inline constexpr message convert_empty{3533, "%s: the graph has no nodes."};
inline constexpr message convert_keys_unused{
    3534, "--weight and --length are used only when a mero graph file is written."};
inline constexpr message usage{
    3535,
    "Usage: graphedit [GRAPHFILE] | graphedit --convert IN OUT [--weight=KEY[,KEY...]] "
    "[--length=KEY]"};
inline constexpr message bad_option{3536, "Unknown option or missing argument: %s"};

// The editor.
inline constexpr message empty_graph{0, "\\bf\\red Empty Graph."};
inline constexpr message overwrite_graph{0, "\\bf\\blue Overwrite existing graph ?"};
// The planar layouts' panels; the graph is left as it was.
inline constexpr message not_planar{0, "The graph is not planar."};
inline constexpr message degree_above_four{
    0, "Orthogonal drawings need a graph of maximum degree 4."};
inline constexpr const char* zoom_not_displayed =
    "GraphEdit::zoom_graph: window has to be displayed.";

}  // namespace mero::graphedit_messages
