#pragma once
// Every message of the discrete subsystem with its code, shared by the reader, the writer, the
// solvers and the tests. Texts with "%d" and "%s" are printf formats; in the scanner's syntax
// messages the first "%s" takes the offending token and the "%%s" left behind by that first
// formatting takes the rest of its line.

namespace mero::discrete_text {

inline constexpr int no_solution_code = 3101;
inline constexpr const char* no_solution = "No feasible solution found!";

inline constexpr int writer_open_code = 3103;
inline constexpr const char* writer_open = "Can't open file !";

inline constexpr int reader_open_code = 3106;
inline constexpr const char* reader_open = "Can't open file!";

// Every syntax error of the discrete file.
inline constexpr int syntax_code = 3107;

// A solver called on a problem without demand or supply points (a run started with -l instead of
// -d reaches the solver with nothing loaded).
inline constexpr int empty_problem_code = 3108;
inline constexpr const char* empty_problem =
    "Discrete problem without demand or supply points: give a discrete file with -d.";

// A cost matrix whose shape is not demand points by supply points (only an object assembled by
// hand can have one; the reader never builds it).
inline constexpr int cost_shape_code = 3110;
inline constexpr const char* cost_shape =
    "Cost matrix of the discrete problem does not match its demand and supply points.";

// Dual ascent keeps its duals monotone only for costs in [0, 1e50]; other values are refused.
inline constexpr int dualoc_range_code = 3109;
inline constexpr const char* dualoc_range =
    "UFL_Dualoc needs costs and fixed costs between 0 and L_INF.";

// Syntax messages of the discrete file, in the order of the scanner's states.
inline constexpr const char* syntax_default = "Syntaxerror in discrete file!";
inline constexpr const char* coordinate_expected =
    "Coordinate #%d expected in discrete file at line %d, found \"%s%%s\" instead.";
inline constexpr const char* weight_expected =
    "Weight #%d expected in discrete file at line %d, found \"%s%%s\" instead";
inline constexpr const char* second_name =
    "Second name (\"%s\") found in discrete file at line %d.";
inline constexpr const char* name_expected =
    "Name of location expected in discrete file at line %d, found \"%s%%s\" instead.";
inline constexpr const char* end_of_line_expected =
    "End of line expected in discrete file at line %d, found \"%s%%s\" instead.";
inline constexpr const char* illegal_linebreak = "Illegal linebreak in discrete file at line %d.";
inline constexpr const char* supply_or_matrix_expected =
    "'Begin {supply} [x]' or 'Begin {costmatrix}' expected in discrete file at line %d, found "
    "\"%s%%s\" instead";
inline constexpr const char* dimension_expected =
    "Dimension (1 or 2 possible) expected in discrete file at line %d, found \"%s%%s\" instead.";
inline constexpr const char* dimension_range =
    "Dimension between 1 or 2 expected in discrete file at line %d, found \"%s%%s\" instead";
inline constexpr const char* matrix_expected = "'begin {costmatrix}' expected in line %d";
inline constexpr const char* matrix_line_length =
    "Number of Entries in costmatrix line %d does not match dimension.";
inline constexpr const char* matrix_too_many_lines =
    "Number of lines in costmatrix  does not match number of demand-points.";
inline constexpr const char* matrix_too_few_lines =
    "Number of lines in costmatrix  does not match dimension.";
inline constexpr const char* matrix_unexpected = "unexpected text  in line %d: %s";
// A file that ends after `begin {discrete}` but before its cost matrix.
inline constexpr const char* unexpected_end = "Unexpected end of discrete file at line %d.";

}  // namespace mero::discrete_text
