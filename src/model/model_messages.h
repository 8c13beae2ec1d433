#pragma once
// The messages of the location model and of its data files, in one place so that the code that
// raises them and the tests that expect them read the same words. In the scanners' formats %d and
// %s are filled when the error is found and "%%s" is where the rest of the offending line goes;
// a scanner's syntax messages are reported under the code of the reader that ran it.

#include "kernel/reporters.h"

namespace mero {

namespace model_messages {

inline constexpr message rotate_dimension{
    1101, "Loc_Vector::rotate():To rotate the dimension must be 2."};
inline constexpr message bad_norm{1201, "Bad p-Norm argument in location::norm(int p)."};
inline constexpr message zero_length{1202, "Zero length location in location::r_angle()."};
inline constexpr message point_dimension{1203, "Conversion to only possible for dimension 2."};
inline constexpr message incompatible_dimension{1205, "Incompatible dimension."};
inline constexpr message coordinate_reference{1207, "Index out of range."};
inline constexpr message coordinate_read{1208, "Index out of range."};
inline constexpr message weight_reference{1209, "Index out of range."};
inline constexpr message weight_read{1210, "Index out of range."};
inline constexpr message division_by_zero{1211, "Division by zero."};
inline constexpr message not_a_polygon_list{
    1212, "Can't happen: L in location::WriteAsPolygonList is not a polygon list?"};

inline constexpr message objective_unsolved{1303, "Solve a problem first."};
inline constexpr message write_unsolved{1304, "Solve a problem first."};
inline constexpr message remove_index{
    1305, "facilities::remove(): There is no corresponding location for idx"};
inline constexpr message foreign_item{
    1334, "facilities::refname(): location isn't an item of this object"};

// The walk to the half-sum found no median (negative or undefined weights) or ran off the end of
// the list looking for an entry of non-zero weight in column 0.
inline constexpr message l1_no_median{1350, "facilities::l1_sum(): The weights give no median."};
inline constexpr message l1_no_corner{
    1351, "facilities::l1_sum(): No location of non-zero weight in column 0 beyond the median."};

// The kernel's check of a list's head (a text for the kernel handler, which has its own code).
inline constexpr const char* empty_list = "dlist::head(): empty list";
// A message, not an error: the run ends with status 0.
inline constexpr message l1_all_zero{
    0, "facilities::l1_sum(): All weights are equal zero:The whole plane is optimal"};

}  // namespace model_messages

// Shared by every scanner; reported, like its other syntax messages, under the reader's code.
namespace scan_messages {
inline constexpr message number_out_of_range{
    0, "Number %s at line %d is beyond the range of a double."};
}  // namespace scan_messages

namespace location_file_messages {
inline constexpr message cannot_open{1503, "Can't open file!"};
inline constexpr message syntax_error{1504, "Syntaxerror in location file!"};
inline constexpr message writer_cannot_open{1512, "Can't open file !"};

inline constexpr message illegal_linebreak{1504, "Illegal linebreak in location file at line %d."};
inline constexpr message dimension_too_small{1504,
                                             "Dimension too small in location file at line %d."};
inline constexpr message dimension_expected{
    1504, "Dimension expected in location file at line %d, found \"%s%%s\" instead."};
inline constexpr message weight_dimension_expected{
    1504, "Weight dimension expected in location file at line %d, found \"%s%%s\" instead."};
inline constexpr message closing_bracket_expected{
    1504, "Closing bracket expected in location file at line %d, found \"%s%%s\" instead."};
inline constexpr message coordinate_expected{
    1504, "Coordinate #%d expected in location file at line %d, found \"%s%%s\" instead."};
// No closing full stop here, unlike its neighbours.
inline constexpr message weight_expected{
    1504, "Weight #%d expected in location file at line %d, found \"%s%%s\" instead"};
// Two blanks before "at".
inline constexpr message gauge_number_expected{
    1504, "Number of Gauge expected  at line %d, found \"%s%%s\" instead."};
inline constexpr message second_name{1504,
                                     "Second name (\"%s\") found in location file at line %d."};
inline constexpr message end_of_line_expected{
    1504, "End of line expected in location file at line %d, found \"%s%%s\" instead."};
inline constexpr message name_expected{
    1504, "Name of location expected in location file at line %d, found \"%s%%s\" instead."};

// The adjacency part of a graph file. Two blanks after "text" in the last two, and a blank before
// the colon in the last one.
inline constexpr message adjacency_expected{1504, "'begin {adjlist}' expected in line %d"};
inline constexpr message unknown_name{1504, "unexpected text '%s' in line %d"};
inline constexpr message unexpected_index_text{1504, "unexpected text  in line %d: %s"};
inline constexpr message unexpected_cost_text{1504, "unexpected text  in line %d : %s"};

// The writer's message for a name that the reader could not read back; it ends the process.
inline constexpr message illegal_brackets{
    0, "Illegal brackets in location name\"%s\" replaced by parentheses"};
}  // namespace location_file_messages

namespace matrix_file_messages {
inline constexpr message cannot_open{1510, "Can't open file !"};
inline constexpr message syntax_error{1511, "Syntaxerror in matrix file!"};

inline constexpr message dimension_too_small{1511,
                                             "Dimension too small in matrix file at line %d."};
inline constexpr message dimension_expected{
    1511, "Dimension expected in matrix file at line %d, found \"%s%%s\" instead."};
// The matrix scanner shares this text with the location file, file name and all.
inline constexpr message illegal_linebreak{1511, "Illegal linebreak in location file at line %d."};
inline constexpr message closing_bracket_expected{
    1511, "Closing bracket expected in matrix file at line %d, found \"%s%%s\" instead."};
inline constexpr message entries_do_not_match{
    1511, "Number of Entries in matrix-file line %d does not match dimension."};
inline constexpr message entry_expected{
    1511, "Entry #%d expected in matrix file at line %d, found \"%s%%s\" instead."};
// Not a scanner message: the file ran out of numbers while the n by n matrix was built.
inline constexpr message too_few_entries{
    1511, "Matrix file holds %d entries, fewer than the %d of a %d by %d matrix."};
}  // namespace matrix_file_messages

}  // namespace mero
