#pragma once
// Every message of the discrete subsystem with its code, shared by the reader, the writer, the
// solvers and the tests. In the scanner's syntax messages %d and %s are filled when the error is
// found and "%%s" is where the rest of the offending line goes.

#include "kernel/reporters.h"

namespace mero::discrete_messages {

inline constexpr message no_solution{3101, "No feasible solution found!"};

inline constexpr message writer_open{3103, "Can't open file !"};

inline constexpr message reader_open{3106, "Can't open file!"};

// A solver called on a problem without demand or supply points (a run started with -l instead of
// -d reaches the solver with nothing loaded).
inline constexpr message empty_problem{
    3108, "Discrete problem without demand or supply points: give a discrete file with -d."};

// A cost matrix whose shape is not demand points by supply points (only an object assembled by
// hand can have one; the reader never builds it).
inline constexpr message cost_shape{
    3110, "Cost matrix of the discrete problem does not match its demand and supply points."};

// Dual ascent keeps its duals monotone only for costs in [0, 1e50]; other values are refused.
inline constexpr message dualoc_range{
    3109, "UFL_Dualoc needs costs and fixed costs between 0 and L_INF."};

// The heuristics add costs as they stand; beyond L_INF in size their sums overflow.
inline constexpr message cost_magnitude{
    3111, "UFL heuristics need costs and fixed costs between -L_INF and L_INF."};

// Syntax messages of the discrete file, in the order of the scanner's states.
// Every syntax error of the discrete file has this code.
inline constexpr message syntax_default{3107, "Syntaxerror in discrete file!"};
inline constexpr message coordinate_expected{
    3107, "Coordinate #%d expected in discrete file at line %d, found \"%s%%s\" instead."};
inline constexpr message weight_expected{
    3107, "Weight #%d expected in discrete file at line %d, found \"%s%%s\" instead"};
inline constexpr message second_name{3107,
                                     "Second name (\"%s\") found in discrete file at line %d."};
inline constexpr message name_expected{
    3107, "Name of location expected in discrete file at line %d, found \"%s%%s\" instead."};
inline constexpr message end_of_line_expected{
    3107, "End of line expected in discrete file at line %d, found \"%s%%s\" instead."};
inline constexpr message illegal_linebreak{3107, "Illegal linebreak in discrete file at line %d."};
inline constexpr message supply_or_matrix_expected{
    3107,
    "'Begin {supply} [x]' or 'Begin {costmatrix}' expected in discrete file at line %d, found "
    "\"%s%%s\" instead"};
inline constexpr message dimension_expected{
    3107,
    "Dimension (1 or 2 possible) expected in discrete file at line %d, found \"%s%%s\" instead."};
inline constexpr message dimension_range{
    3107, "Dimension between 1 or 2 expected in discrete file at line %d, found \"%s%%s\" instead"};
inline constexpr message matrix_expected{3107, "'begin {costmatrix}' expected in line %d"};
inline constexpr message matrix_line_length{
    3107, "Number of Entries in costmatrix line %d does not match dimension."};
inline constexpr message matrix_too_many_lines{
    3107, "Number of lines in costmatrix  does not match number of demand-points."};
inline constexpr message matrix_too_few_lines{
    3107, "Number of lines in costmatrix  does not match dimension."};
inline constexpr message matrix_unexpected{3107, "unexpected text  in line %d: %s"};
// A file that ends after `begin {discrete}` but before its cost matrix.
inline constexpr message unexpected_end{3107, "Unexpected end of discrete file at line %d."};

}  // namespace mero::discrete_messages
