#pragma once
// The texts of the location-file reader and writer. In the scanner's formats %d and %s are
// filled when the error is found; "%%s" is where the rest of the offending line goes.

namespace mero::location_file_messages {

inline constexpr int cannot_open_code = 1503;
inline constexpr const char* cannot_open = "Can't open file!";
inline constexpr int syntax_error_code = 1504;
inline constexpr const char* syntax_error = "Syntaxerror in location file!";
inline constexpr int writer_cannot_open_code = 1512;
inline constexpr const char* writer_cannot_open = "Can't open file !";

inline constexpr const char* illegal_linebreak = "Illegal linebreak in location file at line %d.";
inline constexpr const char* dimension_too_small =
    "Dimension too small in location file at line %d.";
inline constexpr const char* dimension_expected =
    "Dimension expected in location file at line %d, found \"%s%%s\" instead.";
inline constexpr const char* weight_dimension_expected =
    "Weight dimension expected in location file at line %d, found \"%s%%s\" instead.";
inline constexpr const char* closing_bracket_expected =
    "Closing bracket expected in location file at line %d, found \"%s%%s\" instead.";
inline constexpr const char* coordinate_expected =
    "Coordinate #%d expected in location file at line %d, found \"%s%%s\" instead.";
// No closing full stop here, unlike its neighbours.
inline constexpr const char* weight_expected =
    "Weight #%d expected in location file at line %d, found \"%s%%s\" instead";
// Two blanks before "at".
inline constexpr const char* gauge_number_expected =
    "Number of Gauge expected  at line %d, found \"%s%%s\" instead.";
inline constexpr const char* second_name =
    "Second name (\"%s\") found in location file at line %d.";
inline constexpr const char* end_of_line_expected =
    "End of line expected in location file at line %d, found \"%s%%s\" instead.";
inline constexpr const char* name_expected =
    "Name of location expected in location file at line %d, found \"%s%%s\" instead.";

// The adjacency part of a graph file. Two blanks after "text" in the last two, and a blank before
// the colon in the last one.
inline constexpr const char* adjacency_expected = "'begin {adjlist}' expected in line %d";
inline constexpr const char* unknown_name = "unexpected text '%s' in line %d";
inline constexpr const char* unexpected_index_text = "unexpected text  in line %d: %s";
inline constexpr const char* unexpected_cost_text = "unexpected text  in line %d : %s";

// The writer's message for a name that the reader could not read back; it ends the process.
inline constexpr const char* illegal_brackets_head = "Illegal brackets in location name\"";
inline constexpr const char* illegal_brackets_tail = "\" replaced by parentheses";

}  // namespace mero::location_file_messages
