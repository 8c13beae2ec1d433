N new facilities on a graph. On the road network with N = 2 every N-median routine reaches
the optimum 12 of Aston and Carden (enumerated by hand over the ten pairs); greedy starts from
the median Carden. The N-center optimum is 6; partitioning reaches it with Dale and Carden,
greedy starts from the node center Berwick and adds Carden, at 8.

  $ source $TESTDIR/graph_report.sh
  $ for a in N_median_cplex N_median_partitioning N_median_exchange N_median_greedy \
  >          N_center_partitioning N_center_greedy; do
  >   solve $a -g $EXAMPLES/road_network.graph -n 2
  > done
  N_median_cplex: 2|G|.|d(V,V)|sum: exact 12 Node [1] Node [3]
  N_median_partitioning: 2|G|.|d(V,V)|sum: Partitioning 12 Node [1] Node [3]
  N_median_exchange: 2|G|.|d(V,V)|sum: Exchange 12 Node [1] Node [3]
  N_median_greedy: 2|G|.|d(V,V)|sum: Greedy 12 Node [3] Node [1]
  N_center_partitioning: 2|G|.|d(V,V)|max: Partitioning 6 Node [4] Node [3]
  N_center_greedy: 2|G|.|d(V,V)|max: Greedy 8 Node [2] Node [3]

The bus line, five stops one apart, traced by hand: partitioning from Mill and Market ends at
Mill and School (3; Market ties and joins the lower ordinal); exchange, where ties go to the
higher ordinal, ends at School and Market (3); greedy adds Mill to the median Church and stays
at 4, above the optimum 3. The label carries N, read like atoi reads it.

  $ for a in N_median_partitioning N_median_exchange N_median_greedy N_center_partitioning; do
  >   solve $a -g $EXAMPLES/bus_line.graph -n 2stops
  > done
  N_median_partitioning: 2|G|.|d(V,V)|sum: Partitioning 3 Node [1] Node [4]
  N_median_exchange: 2|G|.|d(V,V)|sum: Exchange 3 Node [4] Node [2]
  N_median_greedy: 2|G|.|d(V,V)|sum: Greedy 4 Node [3] Node [1]
  N_center_partitioning: 2|G|.|d(V,V)|max: Partitioning 1 Node [1] Node [4]
  $ solve N_median_greedy -g $EXAMPLES/bus_line.graph -n 1
  N_median_greedy: 1|G|.|d(V,V)|sum: Greedy 6 Node [3]

More facilities than nodes end the run with a message and status 0, before any report. Fewer
than one, and a missing -n, are errors; the command line itself asks -n of the N-medians only,
and the run asks it of the N-centers. Each run is followed by its exit status in brackets.

  $ status N_median_exchange -g $EXAMPLES/road_network.graph -n 6
  MERO message: Number of nodes is smaller than N [0]
  $ status N_center_greedy -g $EXAMPLES/road_network.graph -n 6
  MERO message: Number of nodes is smaller than N [0]
  $ status N_median_cplex -g $EXAMPLES/road_network.graph -n 0
  MERO error: The number of new facilities must be at least 1 ErrorCode: 2004 [1]
  $ status N_center_partitioning -g $EXAMPLES/road_network.graph -n none
  MERO error: The number of new facilities must be at least 1 ErrorCode: 2004 [1]
  $ status N_median_greedy -g $EXAMPLES/road_network.graph
  MERO error: Missing number of new facilities for algorithms on graphs. ErrorCode: 1012 [1]
  $ status N_center_greedy -g $EXAMPLES/road_network.graph
  MERO error: Missing number of new facilities for algorithms on graphs. ErrorCode: 1012 [1]

An instance in the OR-Library p-median form ("n m p", then lines "i j cost"): the converter
writes the graph, with p on standard error, and with --p prints only p, for -n. The path
1-2-3-4 with costs 1, 5, 1 and p = 2: from nodes 1 and 2, node 3 replaces node 1 (both
ordinals gain 9, the first is kept), and 1 + 1 = 2 is optimal.

  $ printf '4 3 2\n1 2 1\n2 3 5\n3 4 1\n' > tiny.txt
  $ $TESTDIR/../../scripts/orlib-pmed-to-mero tiny.txt > tiny.graph
  p = 2
  $ $TESTDIR/../../scripts/orlib-pmed-to-mero --p tiny.txt
  2
  $ solve N_median_exchange -g tiny.graph -n $($TESTDIR/../../scripts/orlib-pmed-to-mero --p tiny.txt)
  N_median_exchange: 2|G|.|d(V,V)|sum: Exchange 2 Node [3] Node [2]
