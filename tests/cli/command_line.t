The command line of mero: option forms, the usage pages, and every message with its code
and exit status.

The usage text comes in four pages; at the end of the input the pauses simply go on.

  $ $MERO -help < /dev/null
  
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
  
  
  
  
  [return]
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
  [return]
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
  [return]
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

  $ $MERO --help < /dev/null | head -3
  
    mero -a <algorithm> [-l|-r|-g|-d|-m <file>] [-p <n>] [-n <n>] [--output=<arguments>]
  
  $ $MERO -? < /dev/null | grep -c '\[return\]'
  3
  $ $MERO -l f -h < /dev/null > /dev/null; echo $?
  0

From here on each case shows the program's output followed by its exit status in brackets. A
value may follow its option after "=", ":", directly or as the next argument; an option's value
must not look like an option.

  $ r() { local out; out=$("$MERO" "$@" 2>&1); echo "$out [$?]"; }
  $ r -l -a x
  mero: no window can be shown (DISPLAY is not set); going on without windows
  MERO error: Missing value for option -l ErrorCode: 1002 [1]
  $ r -a l1_sum -a l2_sum
  mero: no window can be shown (DISPLAY is not set); going on without windows
  MERO error: Unrecognized option -al2_sum ErrorCode: 1005 [1]
  $ r -a=l1_sum -lfile -l:other
  mero: no window can be shown (DISPLAY is not set); going on without windows
  MERO error: Unrecognized option -lother ErrorCode: 1005 [1]
  $ r plain
  mero: no window can be shown (DISPLAY is not set); going on without windows
  MERO error: Unrecognized option plain ErrorCode: 1005 [1]

Long options other than --output are ignored; without -a and a main file nothing runs.

  $ r --
  mero: no window can be shown (DISPLAY is not set); going on without windows
  MERO error: You have to specify an algorithm and a location file. ErrorCode: 1006 [1]
  $ r --foo -a l1_sum
  mero: no window can be shown (DISPLAY is not set); going on without windows
  MERO error: You have to specify an algorithm and a location file. ErrorCode: 1006 [1]
  $ r -l f --output
  mero: no window can be shown (DISPLAY is not set); going on without windows
  MERO error: Missing value for option --output. ErrorCode: 1003 [1]
  $ r --output -a l1_sum -l f
  mero: no window can be shown (DISPLAY is not set); going on without windows
  MERO error: Missing value for option --output. ErrorCode: 1003 [1]
  $ r --outputx
  mero: no window can be shown (DISPLAY is not set); going on without windows
  MERO error: Option --outputx is not a valid --output option. ErrorCode: 1004 [1]

Unknown names are reported with the code of the chain that the files select; an empty name at
the end of the line is unknown too.

  $ r -l f -a
  mero: no window can be shown (DISPLAY is not set); going on without windows
  MERO error: Illegal algorithm or missing data. ErrorCode: 1007 [1]
  $ r -l f -m m -a l1_sum
  mero: no window can be shown (DISPLAY is not set); going on without windows
  MERO error: Illegal algorithm or missing data. ErrorCode: 1008 [1]
  $ r -l f -r r -a l1_sum
  mero: no window can be shown (DISPLAY is not set); going on without windows
  MERO error: Illegal algorithm or missing data. ErrorCode: 1009 [1]
  $ r -l f -d g -a L_block_max_M3
  mero: no window can be shown (DISPLAY is not set); going on without windows
  MERO error: Illegal algorithm or missing data. ErrorCode: 1010 [1]

With restrictions and gauges an unknown name prints the usage text alone; so does any name with
gauges and a matrix.

  $ $MERO -l f -r r -d g -a restr_gauge_centre < /dev/null | tail -2
  	For solving the UFL you can call discrete.exe in the bin 
  	directory without parameters. 
  $ $MERO -l f -m m -d g -a gauge_median < /dev/null > /dev/null; echo $?
  0

The p and N checks.

  $ r -l f -a lp_sum
  mero: no window can be shown (DISPLAY is not set); going on without windows
  MERO error: Missing p-value for lp-algorithm. ErrorCode: 1011 [1]
  $ r -g f -a N_median_exchange
  mero: no window can be shown (DISPLAY is not set); going on without windows
  MERO error: Missing number of new facilities for algorithms on graphs. ErrorCode: 1012 [1]

-p writes lpinfo as soon as it is accepted, into $tmp, else $TMPDIR, else /tmp; atoi rules.

  $ mkdir t u && tmp=$PWD/t r -p 3 -x && cat t/lpinfo && echo
  mero: no window can be shown (DISPLAY is not set); going on without windows
  MERO error: Unrecognized option -x ErrorCode: 1005 [1]
  3 0.0001 0.0001 50
  $ (unset tmp; TMPDIR=$PWD/u r -p=x -x) && cat u/lpinfo && echo
  mero: no window can be shown (DISPLAY is not set); going on without windows
  MERO error: Unrecognized option -x ErrorCode: 1005 [1]
  0 0.0001 0.0001 50

Errors in a windowed run without a display reach the console, after the note that no window can
be shown (every error above is such a run: windowed is the default).

  $ r -l f -a unknown --output=windowed
  mero: no window can be shown (DISPLAY is not set); going on without windows
  MERO error: Illegal algorithm or missing data. ErrorCode: 1007 [1]

Without any argument the program starts its front end: Tk comes first, and without a display it
cannot start, says so and ends with status 1 (the script lookup is tested on a display, in
tests/window/bridge.t).

  $ $MERO
  Tk_Init failed: couldn't connect to display ""
  this isn't a Tk application
  [1]
