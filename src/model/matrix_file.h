#pragma once
// The matrix file: the square matrix of weights between the new facilities of a multifacility
// problem. Its form follows the location file (same comments, same error tail):
//
//   begin {matrix} [3]
//   0 1 2
//   1 0 1
//   2 1 0
//   end {matrix}
//
// The header `begin {location}` is accepted too, as a matrix of dimension 2. The dimension in
// the file only checks the length of its rows; the matrix that the reader builds is n by n with
// n the weight dimension of the first location, filled row by row with the entries in file order.

#include <istream>
#include <vector>

#include "kernel/matrix.h"
#include "model/location.h"
#include "model/scan_common.h"

namespace mero {

// What the matrix scanner fills.
struct matrix_scan : scan_state {
  int matrix_dim = 0;           // from the header; 2 for a `begin {location}` header
  std::vector<double> entries;  // all numbers, in file order
  int counter = 0;              // entries on the present line

  void start(std::istream& input);
};

// Scans the whole input: 0 when done (at `end` or at the end of the input), 1 when message
// holds an error.
int scan_matrix_file(matrix_scan& scan);

// Reads a matrix file from an opened stream into an n by n matrix, n being the weight dimension
// of the head of locations. A stream that did not open is 1510; a syntax error, or fewer than
// n * n numbers, is 1511; an empty location list is the list error "dlist::head(): empty list".
matrix read_matrix(std::istream& in, const std::vector<location>& locations);

}  // namespace mero
