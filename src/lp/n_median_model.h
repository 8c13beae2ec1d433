#pragma once
// The binary program of the exact N-median on c nodes.

#include <vector>

namespace mero {

// Chooses p medians among c nodes and assigns every node to one open median at least cost.
// Column (i - 1) * c + j (1-based) is 1 when median i serves node j; the diagonal column of i
// says that i is open. Rows: 1 to c, every node served exactly once; then per i and j != i,
// service only from an open median (at most the diagonal); the last row, exactly p diagonals.
// objective is 1-based with columns = c * c entries behind entry 0. result receives the 0/1
// value of every column, result[col - 1]. Branch and bound by lp_solve: exponential in the
// worst case. The solver status is not examined; an infeasible model (p > c) yields what
// lp_solve leaves behind.
double solve_n_median_model(int nodes, int columns, int p, const std::vector<double>& objective,
                            std::vector<int>& result);

}  // namespace mero
