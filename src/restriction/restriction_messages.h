#pragma once
// The texts and codes of the restriction family: the figures, the restriction file and the
// restricted solvers. The scanner formats take their arguments through scan_format: %d an
// integer, %s a text, and "%%s" marks where the rest of the offending line goes.

#include "kernel/reporters.h"

namespace mero::restriction_messages {

inline constexpr message polygon_too_few{1402, "polygon: must be simple"};
inline constexpr message polygon_repeated_vertex{1403, "polygon: must be simple"};
inline constexpr message polygon_closed_ring{1404, "polygon: must be simple"};
inline constexpr message not_convex_polygon{
    1405, "The restriction for this algorithm must be a convex polyeder"};
inline constexpr message not_rectangle{1406,
                                       "The restriction for this algorithm must be a rectangle"};
inline constexpr message cannot_open{1409, "Can't open file!"};
inline constexpr int syntax_code = 1410;
inline constexpr message not_implemented{1411, "Not implemented for this kind of restriction."};
inline constexpr message empty_inside_all{1412, "Restriction is empty in inside_all"};
inline constexpr message barrier_not_simple{1413, "polygon_barrier: Polygon is not simple"};
inline constexpr message not_a_hyperplane{1803, "halfspace::compute(): Not a hyperplane"};

// A warning: the run goes on with the marked point.
inline constexpr const char* whole_boundary_optimal =
    "restr_circle::proj_l2sqr(): The whole boundary of the forbidden region is optimal. The "
    "marked point is one optimal point";

// The scanner's texts. Several say "matrix file" or "location file", and some carry a stray
// blank: that is how the program has always worded them, and users and front ends match them.
namespace scan {
inline constexpr const char* syntax_error = "Syntaxerror in restriction file!";
inline constexpr const char* dimension_too_small = "Dimension too small in matrix file at line %d.";
inline constexpr const char* dimension_expected =
    "Dimension expected in matrix file at line %d, found \"%s%%s\" instead.";
inline constexpr const char* header_bracket_expected =
    "Closing bracket expected in matrix file at line %d, found \"%s%%s\" instead.";
inline constexpr const char* figure_expected =
    "'begin {restr_type}' or 'end {restriction} ' expected in restriction file, line %d.";
inline constexpr const char* value_negative =
    "Value between 0 and infinity (inf) expected in line %d of the restriction-file.";
inline constexpr const char* value_expected =
    "Barrier-value expected in restriction-file  at line %d, found \"%s%%s\" instead.";
inline constexpr const char* value_bracket_expected =
    "Closing bracket expected in restriction file at line %d, found \"%s%%s\" instead.";
inline constexpr const char* illegal_linebreak = "Illegal linebreak in location file at line %d.";
inline constexpr const char* coordinates_do_not_match =
    "Number of Coordinates in restriction-file line %d does not match dimension.";
inline constexpr const char* coordinate_expected =
    "Coordinate #%d expected in restriction-file at line %d, found \"%s%%s\" instead.";
inline constexpr const char* polyhedron_value =
    "Only Restrictions=[0] and Barriers=[inf] are supported so far !!!";
inline constexpr const char* conpolyhedron_value =
    "Only Restrictions=[0] and Barrie rs=[inf] are supported so far !!!";
inline constexpr const char* segment_value = "Only Barriers=[inf] is supported so far !!!";
inline constexpr const char* entries_wrong =
    "Number of Entries is wrong in line %d in restriction-file.";
inline constexpr const char* segment_entries_wrong =
    "Number of Entries is wrong in line %d in res triction-file.";
}  // namespace scan

}  // namespace mero::restriction_messages
