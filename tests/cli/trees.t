Problems on trees. The pipeline tree (seven stations of weight 1) was worked by hand: folding
the leaves Ashby, Cliff, Eden and Glen, then Brook and Fenn, leaves Dale (4) holding all seven,
and the plain sum of distances from Dale is 3+1+4+5+2+3 = 18. The double sweep finds Eden
farthest from Ashby and Cliff farthest from Eden at 9; half of it, 4.5, lies 0.9 of the pipe
from Eden to Dale. The node form takes Dale and adds 0.9 to 4.5, not Dale's own 5.

  $ source $TESTDIR/graph_report.sh
  $ for a in loc_tree_median abs_tree_median abs_tree_v1_center loc_tree_v1_center; do
  >   solve $a -g $EXAMPLES/pipeline_tree.graph
  > done
  loc_tree_median: 1|Tree|.|d(V,V)|sum 18 Node [4]
  abs_tree_median: 1|Tree|.|d(V,T)|sum 18 Node [4]
  abs_tree_v1_center: 1|Tree|.|d(V,T)|max 4.5 Point [5][4] 0.900000
  loc_tree_v1_center: 1|Tree|.|d(V,V)|max 5.4 Node [4]

The village tree has weights 2, 1, 1, 3, 1: after north, south and far are folded, hub holds
exactly half of 8, so hub and east (the other end of its last road) are both medians and the
road between them is optimal. The value 11 is the unweighted sum of distances from hub; the
weighted one would be 13.

  $ for a in loc_tree_median abs_tree_median; do solve $a -g $EXAMPLES/village_tree.graph; done
  loc_tree_median: 1|Tree|.|d(V,V)|sum 11 Node [1] Node [4]
  abs_tree_median: 1|Tree|.|d(V,T)|sum 11 Node [1] Node [4] Edge [1][4]

Three stops one apart: the middle of the path is the node Market itself, which the center
reports in edge form.

  $ printf 'begin {merograph}\nbegin {location} [2,1]\nNC 1 [a]\nNC 1 [b]\nNC 1 [c]\nend {location}\n' > three.graph
  $ printf 'begin {adjlist}\n1 2 1\n2 3 1\nend {adjlist}\nend {merograph}\n' >> three.graph
  $ solve abs_tree_v1_center -g three.graph
  abs_tree_v1_center: 1|Tree|.|d(V,T)|max 1 Edge [2][1]
  $ solve loc_tree_v1_center -g three.graph
  loc_tree_v1_center: 1|Tree|.|d(V,V)|max 1 Node [2]

The center routines need weights of 1; every tree routine needs a tree. Each run is followed by
its exit status in brackets.

  $ for a in loc_tree_v1_center abs_tree_v1_center; do status $a -g $EXAMPLES/village_tree.graph; done
  MERO error: All weights must be equal to 1 ErrorCode: 2202 [1]
  MERO error: All weights must be equal to 1 ErrorCode: 2202 [1]
  $ for a in loc_tree_median abs_tree_median loc_tree_v1_center abs_tree_v1_center; do
  >   status $a -g $EXAMPLES/road_network.graph
  > done
  MERO error: Graph is not a tree :-) ErrorCode: 2201 [1]
  MERO error: Graph is not a tree :-) ErrorCode: 2201 [1]
  MERO error: Graph is not a tree :-) ErrorCode: 2201 [1]
  MERO error: Graph is not a tree :-) ErrorCode: 2201 [1]
