#pragma once
// The discrete file, read and written. The form, line by line:
//
//   begin {discrete}              (text before it is skipped)
//   begin {demand}
//   x y w [name]                  one line per demand point, exactly one weight
//   end {demand}
//   begin {supply} n              optional; n = 1 or 2 weights per line, the first the fixed cost
//   x y f [w2] [name]
//   end {supply}
//   begin {costmatrix}
//   c c c ...                     one line per demand point, one entry per supply point
//   end {costmatrix}              reading ends here
//   end {discrete}
//
// Keywords are case-insensitive, L_INF stands for 1e50, // and /* */ are comments. Without a
// supply block the supply list is a copy of the demand list and the matrix is square.
//
// The writer's "begin {supply}" carries no weight count. A reader then takes the first coordinate
// of the first supply line as n, so such a file is usually refused: the asymmetry is part of the
// format and kept.

#include <string>

#include "discrete/discrete_problem.h"

namespace mero {

// Reads the file at path into problem; 3106 "Can't open file!" when it cannot be opened, 3107
// with the scanner's message for a syntax error.
void read_discrete_file(const std::string& path, discrete_problem& problem);

// Writes problem to the file at path; 3103 "Can't open file !" when it cannot be opened.
void write_discrete_file(const std::string& path, const discrete_problem& problem);

}  // namespace mero
