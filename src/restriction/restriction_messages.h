#pragma once
// The texts and codes of the restriction family: the figures, the restriction file and the
// restricted solvers. The scanner formats take their arguments through scan_format: %d an
// integer, %s a text, and "%%s" marks where the rest of the offending line goes.

#include "kernel/message.h"

namespace mero::restriction_messages {

inline constexpr message polygon_too_few{1402, "polygon: must be simple"};
inline constexpr message polygon_repeated_vertex{1403, "polygon: must be simple"};
inline constexpr message polygon_closed_ring{1404, "polygon: must be simple"};
inline constexpr message not_convex_polygon{
    1405, "The restriction for this algorithm must be a convex polyeder"};
inline constexpr message not_rectangle{1406,
                                       "The restriction for this algorithm must be a rectangle"};
inline constexpr message cannot_open{1409, "Can't open file!"};
inline constexpr message not_implemented{1411, "Not implemented for this kind of restriction."};
inline constexpr message empty_inside_all{1412, "Restriction is empty in inside_all"};
inline constexpr message barrier_not_simple{1413, "polygon_barrier: Polygon is not simple"};
inline constexpr message not_a_hyperplane{1803, "halfspace::compute(): Not a hyperplane"};
// The restricted line solvers keep the line off a forbidden polygon; any other first figure
// cannot be taken as one.
inline constexpr message line_needs_polygon{
    1414, "L_RkonvPoly: the first restriction must be a forbidden polygon."};

// The barrier problem: one barrier only, no location inside it, and every shadow ray must leave
// the enclosing polygon. The first two are warnings: the run goes on.
inline constexpr message one_barrier_only{0, "This algorithm can only handle one barrier."};
inline constexpr message no_barrier_given{0,
                                          "No restrictions given. Executing standard algorithm."};
inline constexpr message location_in_barrier{1802, "No locations allowed inside of barriers."};
inline constexpr message shadow_without_cut{
    1806, "SBO::cpt_shdw_segs(): Zero intersection found for segment."};

// A warning: the run goes on with the marked point.
inline constexpr message whole_boundary_optimal{
    0,
    "restr_circle::proj_l2sqr(): The whole boundary of the forbidden region is optimal. The "
    "marked point is one optimal point"};

// The scanner's texts, all under the code of a syntax error of the restriction file. Several say
// "matrix file" or "location file", and some carry a stray blank: that is how the program has
// always worded them, and users and front ends match them.
namespace scan {
inline constexpr message syntax_error{1410, "Syntaxerror in restriction file!"};
inline constexpr message dimension_too_small{1410,
                                             "Dimension too small in matrix file at line %d."};
inline constexpr message dimension_expected{
    1410, "Dimension expected in matrix file at line %d, found \"%s%%s\" instead."};
inline constexpr message header_bracket_expected{
    1410, "Closing bracket expected in matrix file at line %d, found \"%s%%s\" instead."};
inline constexpr message figure_expected{
    1410, "'begin {restr_type}' or 'end {restriction} ' expected in restriction file, line %d."};
inline constexpr message value_negative{
    1410, "Value between 0 and infinity (inf) expected in line %d of the restriction-file."};
inline constexpr message value_expected{
    1410, "Barrier-value expected in restriction-file  at line %d, found \"%s%%s\" instead."};
inline constexpr message value_bracket_expected{
    1410, "Closing bracket expected in restriction file at line %d, found \"%s%%s\" instead."};
inline constexpr message illegal_linebreak{1410, "Illegal linebreak in location file at line %d."};
inline constexpr message coordinates_do_not_match{
    1410, "Number of Coordinates in restriction-file line %d does not match dimension."};
inline constexpr message coordinate_expected{
    1410, "Coordinate #%d expected in restriction-file at line %d, found \"%s%%s\" instead."};
inline constexpr message polyhedron_value{
    1410, "Only Restrictions=[0] and Barriers=[inf] are supported so far !!!"};
inline constexpr message conpolyhedron_value{
    1410, "Only Restrictions=[0] and Barrie rs=[inf] are supported so far !!!"};
inline constexpr message segment_value{1410, "Only Barriers=[inf] is supported so far !!!"};
inline constexpr message entries_wrong{
    1410, "Number of Entries is wrong in line %d in restriction-file."};
inline constexpr message segment_entries_wrong{
    1410, "Number of Entries is wrong in line %d in res triction-file."};
}  // namespace scan

}  // namespace mero::restriction_messages
