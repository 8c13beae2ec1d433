#pragma once
// The texts and codes that the gauges, the gauge file and the gauge problems report, in one place
// so that the code that raises them and the tests that expect them read the same words.

#include "kernel/reporters.h"

namespace mero::gauge_messages {

inline constexpr message counterclockwise{1701, "polygauge: must be in counterclockwise order"};
inline constexpr message alpha_pi{1702, "polygauge: alpha > PI"};
inline constexpr message not_convex{1703, "polygauge: is not convex"};
// A point at the origin has no direction, so no angle can be measured to it.
inline constexpr message origin_point{1704, "polygauge: extreme point at the origin"};
inline constexpr message cone_in_cone{1706, "polygauge: Conenumber is not correct"};
inline constexpr message cone_directions{1710, "polygauge: Conenumber is not correct"};
inline constexpr message max_index{1714, "polygauge:max i must be 0 or 1"};
inline constexpr message mini_index{1715, "polygauge:mini i must be 0 or 1"};
inline constexpr message max_diff_index{1716, "polygauge:max_diff i must be 0 or 1"};
inline constexpr message mix_sizes{1717, "mixgauge: must be the same size for points and conetyps"};
inline constexpr message mix_counterclockwise{1718, "mixgauge: must be in counterclockwise order"};
inline constexpr message mix_last_angle{1719, "mixgauge: must be in counterclockwise order"};
inline constexpr message mix_alpha_pi{1720, "mixgauge: alpha > PI"};
inline constexpr message mix_not_convex{1721, "mixgauge: not convex"};
inline constexpr message mix_origin_point{1722, "mixgauge: extreme point at the origin"};

// The checks of the gauge problems: 1339 to 1342 for gauge_median (and gauge_center, which needs
// the same single positive column), 1343 to 1346 for bi_crit_gauge_median.
inline constexpr message median_weight_dim{1339, "False weight-dimension."};
inline constexpr message median_gauge_count{1340, "Different number of locations and gauges."};
inline constexpr message median_gauge_number{1341, "False gauge-number."};
inline constexpr message median_weights{1342,
                                        "Negative entry or 0-row or 0-column in weight-matrix."};
inline constexpr message bi_crit_weight_dim{1343, "False weight-dimension."};
inline constexpr message bi_crit_gauge_count{1344, "Different number of locations and gauges."};
inline constexpr message bi_crit_gauge_number{1345, "False gauge-number."};
inline constexpr message bi_crit_weights{1346,
                                         "Negative entry or 0-row or 0-column in weight-matrix."};
// gauge_median's candidates are crossings of the grid only; where there are none its list has
// no head.
inline constexpr const char* no_crossing = "dlist::head(): empty list";

// The gauge file. The messages of a scan are collected and reported together under
// file_messages; the wrong kind of file stops the scan at once.
inline constexpr message cannot_open{1607, "Can't open file!"};
inline constexpr message file_messages{1608, "Error in gauge-file."};
inline constexpr message wrong_file{1609, "Wrong file!"};
inline constexpr message polygauge_expected{
    1608,
    "'begin {polygauge}' or 'end {polygaugelist}' expected in line %d, found \"%s%%s\" instead."};
inline constexpr message mixgauge_expected{
    1608,
    "'begin {mixgauge}' or 'end {mixgaugelist}' expected in line %d, found \"%s%%s\" instead."};
inline constexpr message too_many_numbers{1608, "too many numbers in line %d"};
inline constexpr message illegal_linebreak{1608, "Illegal linebreak in gauge-file at line %d."};
inline constexpr message unexpected_text{1608, "unexpected  text in line %d"};
// A list or a block that the file does not close.
inline constexpr message unexpected_end{1608, "unexpected end of gauge-file in line %d"};

// The gauge editor: its windows, buttons, panels and the messages it shows in a panel (the
// window stays open after each of them).
inline constexpr const char* view_title = "View Gauge";
inline constexpr const char* create_title = "Create a Gauge";
inline constexpr const char* save_gauge = "Save Gauge";
inline constexpr const char* load_gauge = "Load Gauge";
inline constexpr const char* create_gauge = "Create Gauge";
inline constexpr const char* refresh = "Refresh";
inline constexpr const char* close = "Close";
inline constexpr const char* show_hide_ball = "Show/Hide Unit Ball";
inline constexpr const char* clear_points = "Clear";
inline constexpr const char* append_to_list = "Append to Gauge-List";
inline constexpr const char* save_list = "Save Gauge-List";
inline constexpr const char* clear_list = "Clear Gauge-List";
inline constexpr const char* symmetric_toggle = "Symmetr/Unsymmetr";
inline constexpr const char* file_item = "file:";
inline constexpr const char* confirm = "Confirm";
inline constexpr const char* cancel = "cancel";
inline constexpr const char* gauge_file_default = "polygauge";
inline constexpr const char* list_file_default = "pg_list";
inline constexpr const char* init_panel = "Initialize window:";
inline constexpr const char* winmin_item = "winmin:";
inline constexpr const char* winmax_item = "winmax:";
inline constexpr const char* cannot_open_file = "Can't open file \"%s\"!";
inline constexpr const char* not_convex_clicks = "Polygauge is not convex!";
inline constexpr const char* empty_list = "No gauge in list";
// The window bounds of the first panel must be two numbers, the first below the second.
inline constexpr const char* bad_bounds = "winmin and winmax must be numbers with winmin < winmax";
// A loaded file that holds no gauge leaves the shown one in place.
inline constexpr const char* no_gauge_in_file = "No gauge in file \"%s\"";

}  // namespace mero::gauge_messages
