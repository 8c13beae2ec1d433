#pragma once
// The texts and codes of the result viewers, in one place.

#include "kernel/reporters.h"

namespace mero::viewer_messages {

inline constexpr message no_location{1514, "There is less than one location"};
inline constexpr message save_failed{1513, "Can't write the results"};
// The save file cannot be opened: shown in a panel, the viewer goes on.
inline constexpr const char* cannot_open_save = "Can't open file \"%s\"!";

inline constexpr const char* title_prefix = "MERO VERSION 2.0   View Graphics:";

// The buttons of the planar viewer and the numbers the event loop receives.
inline constexpr const char* save_results = "Save Results";
inline constexpr const char* view_results = "View Results";
inline constexpr const char* convex_hull = "Convex Hull";
inline constexpr const char* show_hide_weights = "Show/Hide Weights";
inline constexpr const char* view_gauge = "View Gauge";
inline constexpr const char* crit_situation = "Crit Situation";
inline constexpr const char* show_hide_optima = "Show/Hide Optima";
inline constexpr const char* refresh = "Refresh";
inline constexpr const char* close = "Close";
inline constexpr int save_number = 1, view_number = 4, hull_number = 3, weights_number = 5,
                     gauge_number = 6, situation_number = 7, optima_number = 10,
                     refresh_number = 8, close_number = 9;

// "View Gauge": the index of the gauge to show; "Quit" comes first so that Return presses "ok".
inline constexpr const char* gauge_panel = "Number of gauge";
inline constexpr const char* gauge_panel_line = "Please enter the index of the desired gauge";
inline constexpr const char* gauge_panel_range = "(between 0 and %i):";
inline constexpr const char* quit = "Quit";

// The restrictions and barriers in the picture.
inline constexpr const char* region_inside_text = "forbidden region inside";
inline constexpr const char* region_outside_text = "forbidden region outside";
inline constexpr const char* barrier_text = "barrier";

// The panels.
inline constexpr const char* save_panel = "Save results";
inline constexpr const char* file_item = "file:";
inline constexpr const char* ok = "ok";
inline constexpr const char* cancel = "cancel";
inline constexpr const char* results_panel = "Results of computation";
inline constexpr const char* results_header = "%-21s            %-13s";
inline constexpr const char* optimum_word = "OPTIMUM:";
inline constexpr const char* value_word = "OBJECTIVE VALUE:";
inline constexpr const char* results_rule = "------------------------------";
inline constexpr const char* first_row = "(%8.3lf ,%8.3lf )            %13.3lf";
inline constexpr const char* further_row = "(%8.3lf ,%8.3lf )";

// The graph result viewers: titles, the headings of their result texts, the two toggles.
inline constexpr const char* graph_title = "MERO VERSION 2.0   View Graphics";
inline constexpr const char* pareto_title =
    "MERO VERSION 2.0   View Graphics for Q-criterial problems";
inline constexpr const char* graph_heading = "OPTIMUM:                            OBJECTIVE VALUE:";
inline constexpr const char* pareto_heading = "OPTIMUM:\tOBJECTIVE VECTOR(S):";
inline constexpr const char* show_node_weights = "Show Node_weights";
inline constexpr const char* show_edge_weights = "Show Edge_weights";
inline constexpr const char* default_save_file = "results";
inline constexpr const char* legend_text = "=Opt";
inline constexpr const char* graph_weight = "%5.2lf";
// The lines of "View Results" on a graph.
inline constexpr const char* node_text = "Node [%d";
inline constexpr const char* edge_text = "Edge [%d";
inline constexpr const char* second_node_text = "][%d";
inline constexpr const char* position_text = "] %4.2lf";
inline constexpr const char* graph_row = "(%8.3lf ,%8.3lf)           %13.3lf";
inline constexpr const char* vector_entry = "%8.3lf,";
inline constexpr const char* vector_end = "%8.3lf)";
inline constexpr const char* stretch_text = "(%8.3lf, %8.3lf):";
inline constexpr const char* vector_und = "%8.3lf) und (";
// The saved file of a result on a graph.
inline constexpr const char* results_begin = "begin {results}";
inline constexpr const char* results_end = "end {results}";
inline constexpr const char* saved_node = "Node[";
inline constexpr const char* saved_edge = "Edge[";
inline constexpr const char* saved_value = "OBJECTIVE VALUE: \n";
inline constexpr const char* saved_values = "OBJECTIVE VALUES: \n";
inline constexpr const char* saved_number = "%13.3lf";
inline constexpr const char* saved_entry = "%13.3lf,";
inline constexpr const char* saved_end = "%13.3lf)";

// The discrete result viewer.
inline constexpr message example_unreadable{3104, "Can't open file"};
inline constexpr const char* discrete_title = "MERO VERSION 2.0    View Graphics";
inline constexpr const char* view_cost_matrix = "View Cost Matrix";
inline constexpr const char* show_hide_demand = "Show/Hide Demand";
inline constexpr const char* show_hide_fix_costs = "Show/Hide Fix Costs";
inline constexpr const char* cancel_upper = "Cancel";
inline constexpr const char* cost_panel = "Cost matrix";
inline constexpr const char* load_panel = "Load Example";
inline constexpr const char* discrete_header = "%-21s        %-13s";
inline constexpr const char* discrete_value = "%13.2lf";
inline constexpr const char* discrete_row = "(%8.2lf, %8.2lf)           %13.2lf";
inline constexpr const char* discrete_row_alone = "(%8.2lf,  %8.2lf)";
inline constexpr const char* discrete_number = "%8.2lf";

// The picture's texts.
inline constexpr const char* axis_label = "%3.1lf";
inline constexpr const char* first_weight = "%1.2lf";
inline constexpr const char* further_weight = ",%1.2lf";

}  // namespace mero::viewer_messages
