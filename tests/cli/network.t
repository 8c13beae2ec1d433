Single-facility problems on graphs. The road network's answers were worked out by hand:
town 3 (Carden) is the median with 27, towns 2, 4 and 5 tie as node centers at 12, and the
absolute center lies 0.7 of the way from Carden to Dunmore at 8.4.

  $ $MERO -a undir_median -g $EXAMPLES/road_network.graph --output=nowindowed
  begin {result}
  begin {classification}
  1|G|.|d(V,V)|sum
  end {classification}
  begin {objective value} 
  27
  end {objective value}
  begin {graphpointset}
  Node [3]
  end {graphpointset}
  end {result}

From here on each run shows the name, classification, value and points of its report on one line.

  $ source $TESTDIR/graph_report.sh
  $ for a in loc_undir_median abs_undir_median loc_undir_center loc_undir_v1_center \
  >          abs_undir_center abs_undir_v1_center; do
  >   solve $a -g $EXAMPLES/road_network.graph
  > done
  loc_undir_median: 1|G|.|d(V,V)|sum 27 Node [3]
  abs_undir_median: 1|G|.|d(V,G)|sum 27 Node [3]
  loc_undir_center: 1|G|.|d(V,V)|max 12 Node [2] Node [4] Node [5]
  loc_undir_v1_center: 1|G|.|d(V,V)|max 12 Node [2] Node [4] Node [5]
  abs_undir_center: 1|G|.|d(V,G)|max 8.4 Point [3][4] 0.700000
  abs_undir_v1_center: 1|G|.|d(V,G)|max 8.4 Point [3][4] 0.700000

The directed algorithms follow each road one way only; a town that cannot be reached counts
at distance 0, so town 5, which has no way out, is the directed center at 0.

  $ for a in dir_median loc_dir_center abs_dir_center; do
  >   solve $a -g $EXAMPLES/road_network.graph
  > done
  dir_median: 1|G|.|d(V,V)|sum 38 Node [5]
  loc_dir_center: 1|G|.|d(V,V)|max 0 Node [5]
  abs_dir_center: 1|G|.|d(V,G)|max 0 Node [5]

One-way streets given by name: the directed median sums round trips.

  $ solve dir_median -g $EXAMPLES/one_way_streets.graph
  dir_median: 1|G|.|d(V,V)|sum 29 Node [4]
  $ solve abs_undir_center -g $EXAMPLES/one_way_streets.graph
  abs_undir_center: 1|G|.|d(V,G)|max 3.6 Point [2][4] 0.600000

A tree without coordinates: hub and east tie as medians and the edge between them is
optimal throughout; east is the center.

  $ for a in abs_undir_median loc_tree_center abs_tree_center; do
  >   solve $a -g $EXAMPLES/village_tree.graph
  > done
  abs_undir_median: 1|G|.|d(V,G)|sum 13 Node [1] Node [4] Edge [4][1]
  loc_tree_center: 1|Tree|.|d(V,V)|max 4 Node [4]
  abs_tree_center: 1|Tree|.|d(V,T)|max 4 Node [4]

The points stand on standard output even when the report goes to a file.

  $ $MERO -a loc_tree_center -g $EXAMPLES/village_tree.graph --output=nowindowed,file=report
  begin {graphpointset}
  Node [4]
  end {graphpointset}
  $ sed -n '3p;6,$p' report
  1|Tree|.|d(V,V)|max
  4
  end {objective value}
  end {result}

A disconnected graph, two separate pairs of nodes, is joined at one node by a road of length 0,
after a message.

  $ printf 'begin {merograph}\nbegin {location} [2,1]\n0 0 1 [a]\n1 0 1 [b]\n5 0 1 [c]\n6 0 1 [d]\n' > two.graph
  $ printf 'end {location}\nbegin {adjlist}\n1 2 1\n3 4 1\nend {adjlist}\nend {merograph}\n' >> two.graph

  $ solve undir_median -g two.graph
  undir_median: MERO message: Graph is not connected: MERO could connect it 1|G|.|d(V,V)|sum 2 Node [1] Node [3]
  $ solve loc_undir_center -g two.graph
  loc_undir_center: MERO message: Graph is not strictly connected: MERO could connect it 1|G|.|d(V,V)|max 1 Node [1] Node [3]

A graph that is not a tree, for the tree algorithms, and the graph reader's messages, each
followed by the exit status in brackets.

  $ for a in loc_tree_center abs_tree_center; do status $a -g $EXAMPLES/road_network.graph; done
  MERO error: Graph is not a tree :-) ErrorCode: 2201 [1]
  MERO error: Graph is not a tree :-) ErrorCode: 2201 [1]
  $ bad() {
  >   printf 'begin {merograph}\nbegin {location} [2,1]\n0 0 1 [a]\n1 0 1 [b]\nend {location}\n' > bad.graph
  >   printf "$1"'end {adjlist}\nend {merograph}\n' >> bad.graph
  >   status undir_median -g bad.graph
  > }
  $ bad 'begin {adjlist_byname}\na b 1.5\nc b 2\n'
  MERO error: unexpected text 'c' in line 8 ErrorCode: 2112 [1]
  $ bad 'begin {adjlist}\n1 2 \n'
  MERO error: unexpected text  in line 8 : 
   ErrorCode: 2112 [1]
  $ bad 'begin {adjacency}\n1 2 1\n'
  MERO error: 'begin {adjlist}' expected in line 6 ErrorCode: 2112 [1]
  $ bad 'begin {adjlist}\n1 3 1\n'
  MERO error: Node number 3 out of range in adjacency line 1. ErrorCode: 2112 [1]
  $ $MERO -a undir_median -g no_such_file.graph --output=nowindowed
  MERO error: Can't open file! ErrorCode: 2111
  [1]
