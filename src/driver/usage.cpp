// The usage pages, literally as the program prints them (trailing blanks and tabs included).
#include "driver/usage.h"

#include <cstdio>
#include <iostream>

#include "kernel/reporters.h"

namespace mero {

namespace {

const char* const pages[] = {
    R"usage(
  mero -a <algorithm> [-l|-r|-g|-d|-m <file>] [-p <n>] [-n <n>] [--output=<arguments>]

Options:

   -a : the algorithm, which is to be performed on the data (see below)
   -l : <file> contains the existing facilities
   -r : <file> contains restrictions
   -g : <file> contains a (directed or undirected) graph
   -d : <file> contains polygonal gauge definitions
   -m : <file> contains a cost matrix for n-facility problems
   -p : <n> is the exponent for an lp-norm
   -n : <n> is the number of new facilities for problems on graphs
   --output:
        this options takes a comma-seperated list of arguments:
        [no]windowed : [dont] present the solution graphically
        [file=]<file>: write solution as text into <file>
        only the rightmost argument of each type takes effect

The following table lists all feasible algorithm/data combinations:




)usage",
    R"usage(
-a <algorithm>                       | -l| -m| -r| -p| -g| -d| -n|
-------------------------------------------------------------------
l1_max, l2_max, linf_max,             | X |   |   |   |   |   |   |
l1_v1_max, linf_v1_max, l2sqr_qsum    | X |   |   |   |   |   |   |
l1_sum, l2_sum, l2sqr_sum, linf_sum   | X |   |   |   |   |   |   |
l1_2sum, linf_2sum                    | X |   |   |   |   |   |   |
-------------------------------------------------------------------
lp_sum                                | X |   | O | X |   |   |   |
-------------------------------------------------------------------
in_l1_sum, out_l1_sum, in_l2sqr_sum,  | X |   | X |   |   |   |   |
out_l2sqr_sum, in_linf_sum,           | X |   | X |   |   |   |   |
out_linf_sum, in_l2_max,              | X |   | X |   |   |   |   |
in_convex_linf_max, in_convex_l1_max  | X |   | X |   |   |   |   |
barr_l2_sum                           | X |   | X |   |   |   |   |
-------------------------------------------------------------------
N_l1_sum_v1, N_l2sqr_sum, N_l2_sum_v1,| X | X |   |   |   |   |   |
N_linf_sum_v1, N_l1_max, N_linf_max   | X | X |   |   |   |   |   |
-------------------------------------------------------------------
dir_median, undir_median,             |   |   |   |   | X |   |   |
abs_undir_median                      |   |   |   |   | X |   |   |
abs_tree_median, abs_undir_center,    |   |   |   |   | X |   |   |
abs_dir_center,loc_tree_center,       |   |   |   |   | X |   |   |
abs_tree_center,loc_tree_median       |   |   |   |   | X |   |   |
loc_dir_center,loc_undir_center       |   |   |   |   | X |   |   |
)usage",
    R"usage(
-------------------------------------------------------------------
N_median_cplex, N_median_partitioning,|   |   |   |   | X |   | X |
N_median_exchange, N_median_greedy,   |   |   |   |   | X |   | X |
N_center_partitioning, N_center_greedy|   |   |   |   | X |   | X |
-------------------------------------------------------------------
medPareto,loc_medPareto,loc_cenPareto,|   |   |   |   | X |   |   |
dir_medPareto, dir_loc_medPareto,     |   |   |   |   | X |   |   |
dir_loc_cenPareto, dir_cenPareto      |   |   |   |   | X |   |   |
-------------------------------------------------------------------
medLexi,loc_medLexi,loc_cenLexi,      |   |   |   |   | X |   |   |
dir_medLexi, dir_loc_medLexi,         |   |   |   |   | X |   |   |
dir_loc_cenLexi,                      |   |   |   |   | X |   |   |
-------------------------------------------------------------------
gauge_median, bi_crit_gauge_median    | X |   |   |   |   | X |   |
gauge_center                          | X |   |   |   |   | X |   |
-------------------------------------------------------------------
restr_gauge_center                    | X |   | X |   |   | X |   |
-------------------------------------------------------------------
L_l1_sum_M3, L_linf_sum_M3,           | X |   |   |   |   |   |   |
L_l2_sum_M3, L_l2_sum_M2logM,         | X |   |   |   |   |   |   |
L_l2_sum_M2,                          | X |   |   |   |   |   |   |
L_lp_sum_M3,                          | X |   |   | X |   |   |   |
L_block_sum_M3                        | X |   |   |   |   | X |   |
L_l1_max_M4, L_linf_max_M4,           | X |   |   |   |   |   |   |
)usage",
    R"usage(
L_l2_max_M4, L_l2_max_MlogM,          | X |   |   |   |   |   |   |
L_l2_max_M2logM,                      | X |   |   |   |   |   |   |
L_lp_max_M4,                          | X |   |   | X |   |   |   |
L_block_max_M3                        | X |   |   |   |   | X |   |
L_RkonvPoly_l2_sum, L_RkonvPoly_l1_sum| X |   | X |   |   |   |   |
L_RkonvPoly_lp_sum                    | X |   | X | X |   |   |   |
L_RkonvPoly_linf_sum                  | X |   | X |   |   |   |   |
L_RkonvPoly_block_sum                 | X |   | X |   |   | X |   |
-------------------------------------------------------------------
UFL_Greedy                            | X |   |   |   |   |   |   |
UFL_Stingy                            | X |   |   |   |   |   |   |
UFL_Interchange                       | X |   |   |   |   |   |   |
UFL_Dualoc                            | X |   |   |   |   |   |   |
-------------------------------------------------------------------

X = mandatory , O = optional


Example:  ./mero.exe -a l1_sum -l mydata.loc


       mero.exe
without options calls the graphical frontend using Tcl/Tk.

	For solving the UFL you can call discrete.exe in the bin 
	directory without parameters. 
)usage",
};

}  // namespace

// After each of the first three pages the user answers "[return]"; at the end of the input the
// program simply goes on.
void print_usage_and_exit() {
  for (int page = 0; page < 4; ++page) {
    std::cout << pages[page];
    if (page < 3) {
      std::cout << "[return]" << std::flush;
      std::getchar();
    }
  }
  end_process(0);
}

}  // namespace mero
