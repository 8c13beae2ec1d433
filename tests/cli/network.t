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

  $ $MERO -a loc_undir_median -g $EXAMPLES/road_network.graph --output=nowindowed
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

  $ $MERO -a abs_undir_median -g $EXAMPLES/road_network.graph --output=nowindowed
  begin {result}
  begin {classification}
  1|G|.|d(V,G)|sum
  end {classification}
  begin {objective value} 
  27
  end {objective value}
  begin {graphpointset}
  Node [3]
  end {graphpointset}
  end {result}

  $ $MERO -a loc_undir_center -g $EXAMPLES/road_network.graph --output=nowindowed
  begin {result}
  begin {classification}
  1|G|.|d(V,V)|max
  end {classification}
  begin {objective value} 
  12
  end {objective value}
  begin {graphpointset}
  Node [2]
  Node [4]
  Node [5]
  end {graphpointset}
  end {result}

  $ $MERO -a loc_undir_v1_center -g $EXAMPLES/road_network.graph --output=nowindowed
  begin {result}
  begin {classification}
  1|G|.|d(V,V)|max
  end {classification}
  begin {objective value} 
  12
  end {objective value}
  begin {graphpointset}
  Node [2]
  Node [4]
  Node [5]
  end {graphpointset}
  end {result}

  $ $MERO -a abs_undir_center -g $EXAMPLES/road_network.graph --output=nowindowed
  begin {result}
  begin {classification}
  1|G|.|d(V,G)|max
  end {classification}
  begin {objective value} 
  8.4
  end {objective value}
  begin {graphpointset}
  Point [3][4] 0.700000
  end {graphpointset}
  end {result}

  $ $MERO -a abs_undir_v1_center -g $EXAMPLES/road_network.graph --output=nowindowed
  begin {result}
  begin {classification}
  1|G|.|d(V,G)|max
  end {classification}
  begin {objective value} 
  8.4
  end {objective value}
  begin {graphpointset}
  Point [3][4] 0.700000
  end {graphpointset}
  end {result}

The directed algorithms follow each road one way only; a town that cannot be reached counts
at distance 0, so town 5, which has no way out, is the directed center at 0.

  $ $MERO -a dir_median -g $EXAMPLES/road_network.graph --output=nowindowed
  begin {result}
  begin {classification}
  1|G|.|d(V,V)|sum
  end {classification}
  begin {objective value} 
  38
  end {objective value}
  begin {graphpointset}
  Node [5]
  end {graphpointset}
  end {result}

  $ $MERO -a loc_dir_center -g $EXAMPLES/road_network.graph --output=nowindowed
  begin {result}
  begin {classification}
  1|G|.|d(V,V)|max
  end {classification}
  begin {objective value} 
  0
  end {objective value}
  begin {graphpointset}
  Node [5]
  end {graphpointset}
  end {result}

  $ $MERO -a abs_dir_center -g $EXAMPLES/road_network.graph --output=nowindowed
  begin {result}
  begin {classification}
  1|G|.|d(V,G)|max
  end {classification}
  begin {objective value} 
  0
  end {objective value}
  begin {graphpointset}
  Node [5]
  end {graphpointset}
  end {result}

One-way streets given by name: the directed median sums round trips.

  $ $MERO -a dir_median -g $EXAMPLES/one_way_streets.graph --output=nowindowed
  begin {result}
  begin {classification}
  1|G|.|d(V,V)|sum
  end {classification}
  begin {objective value} 
  29
  end {objective value}
  begin {graphpointset}
  Node [4]
  end {graphpointset}
  end {result}

  $ $MERO -a abs_undir_center -g $EXAMPLES/one_way_streets.graph --output=nowindowed
  begin {result}
  begin {classification}
  1|G|.|d(V,G)|max
  end {classification}
  begin {objective value} 
  3.6
  end {objective value}
  begin {graphpointset}
  Point [2][4] 0.600000
  end {graphpointset}
  end {result}

A tree without coordinates: hub and east tie as medians and the edge between them is
optimal throughout; east is the center.

  $ $MERO -a abs_undir_median -g $EXAMPLES/village_tree.graph --output=nowindowed
  begin {result}
  begin {classification}
  1|G|.|d(V,G)|sum
  end {classification}
  begin {objective value} 
  13
  end {objective value}
  begin {graphpointset}
  Node [1]
  Node [4]
  Edge [4][1]
  end {graphpointset}
  end {result}

  $ $MERO -a loc_tree_center -g $EXAMPLES/village_tree.graph --output=nowindowed
  begin {result}
  begin {classification}
  1|Tree|.|d(V,V)|max
  end {classification}
  begin {objective value} 
  4
  end {objective value}
  begin {graphpointset}
  Node [4]
  end {graphpointset}
  end {result}

  $ $MERO -a abs_tree_center -g $EXAMPLES/village_tree.graph --output=nowindowed
  begin {result}
  begin {classification}
  1|Tree|.|d(V,T)|max
  end {classification}
  begin {objective value} 
  4
  end {objective value}
  begin {graphpointset}
  Node [4]
  end {graphpointset}
  end {result}

The points stand on standard output even when the report goes to a file.

  $ $MERO -a loc_tree_center -g $EXAMPLES/village_tree.graph --output=nowindowed,file=$CRAMTMP/report
  begin {graphpointset}
  Node [4]
  end {graphpointset}
  $ cat $CRAMTMP/report
  begin {result}
  begin {classification}
  1|Tree|.|d(V,V)|max
  end {classification}
  begin {objective value} 
  4
  end {objective value}
  end {result}

A graph that is not a tree, for the tree algorithms:

  $ $MERO -a loc_tree_center -g $EXAMPLES/road_network.graph --output=nowindowed
  MERO error: Graph is not a tree :-) ErrorCode: 2201
  [1]

  $ $MERO -a abs_tree_center -g $EXAMPLES/road_network.graph --output=nowindowed
  MERO error: Graph is not a tree :-) ErrorCode: 2201
  [1]

A disconnected graph is joined at one node by a road of length 0, after a message.

  $ $MERO -a undir_median -g $DATA/network_two_parts.graph --output=nowindowed
  MERO message: Graph is not connected: MERO could connect it
  begin {result}
  begin {classification}
  1|G|.|d(V,V)|sum
  end {classification}
  begin {objective value} 
  2
  end {objective value}
  begin {graphpointset}
  Node [1]
  Node [3]
  end {graphpointset}
  end {result}

  $ $MERO -a loc_undir_center -g $DATA/network_two_parts.graph --output=nowindowed
  MERO message: Graph is not strictly connected: MERO could connect it
  begin {result}
  begin {classification}
  1|G|.|d(V,V)|max
  end {classification}
  begin {objective value} 
  1
  end {objective value}
  begin {graphpointset}
  Node [1]
  Node [3]
  end {graphpointset}
  end {result}

The graph reader's messages.

  $ $MERO -a undir_median -g $DATA/network_unknown_name.graph --output=nowindowed
  MERO error: unexpected text 'c' in line 8 ErrorCode: 2112
  [1]

  $ $MERO -a undir_median -g $DATA/network_missing_length.graph --output=nowindowed
  MERO error: unexpected text  in line 8 : 
   ErrorCode: 2112
  [1]

  $ $MERO -a undir_median -g $DATA/network_bad_header.graph --output=nowindowed
  MERO error: 'begin {adjlist}' expected in line 6 ErrorCode: 2112
  [1]

  $ $MERO -a undir_median -g $DATA/network_index_range.graph --output=nowindowed
  MERO error: Node number 3 out of range in adjacency line 1. ErrorCode: 2112
  [1]

  $ $MERO -a undir_median -g $DATA/no_such_file.graph --output=nowindowed
  MERO error: Can't open file! ErrorCode: 2111
  [1]
