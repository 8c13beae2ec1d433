graphedit --convert: graphs drawn in other tools become mero graph files and back. Every value
below was worked out by hand.

  $ source $TESTDIR/graph_report.sh

The drawn network: Alder (0,0), Birch (3,4), Cedar (3,10) and Dogwood (7,13) in a row, with
demands 1, 1, 5, 2. Measured along the drawing the roads are 5, 6 and 5 long, so the sums of
weighted distances are 92, 57, 27 and 52: Cedar is the median with 27.

  $ $GRAPHEDIT --convert $EXAMPLES/drawn_network.gml drawn.graph --weight=demand
  $ cat drawn.graph
  begin {merograph} 
  begin {location} [2,1]
  0 0  1  [Alder]
  3 4  1  [Birch]
  3 10  5  [Cedar]
  7 13  2  [Dogwood]
  end {location}
  begin {adjlist}
  1 2 5
  2 3 6
  3 4 5
  end {adjlist}
  end {merograph}
  $ solve undir_median -g drawn.graph
  undir_median: 1|G|.|d(V,V)|sum 27 Node [3]

Measured in minutes (2, 2, 10) the sums are 50, 36, 26 and 76: Cedar again, with 26.

  $ $GRAPHEDIT --convert $EXAMPLES/drawn_network.gml minutes.graph --weight=demand --length=minutes
  $ solve undir_median -g minutes.graph
  undir_median: 1|G|.|d(V,V)|sum 26 Node [3]

Two weight columns, the second from the label text: a label that is no number ends the run.

  $ $GRAPHEDIT --convert $EXAMPLES/drawn_network.gml two.graph --weight=demand,label
  MERO error: Node 1 has no number under the key "label". ErrorCode: 3531
  [1]
  $ $GRAPHEDIT --convert $EXAMPLES/drawn_network.gml two.graph --weight=demand --length=km
  MERO error: Edge 1 (from node 1 to node 2) has no number under the key "km". ErrorCode: 3532
  [1]
  $ test -e two.graph
  [1]

A native graph file whose edges carry lengths of type double: the triangle a, b, c with
ab = 1, bc = 2 and ac = 4, so that a reaches c through b in 3. Without weight keys every node
weighs 1: the sums are 4, 3 and 5 and the largest distances 3, 2 and 3, so b is both median and
center.

  $ cat > triangle.gw <<'GRAPH'
  > ORBA.GRAPH
  > void
  > double
  > 3
  > |{}|
  > |{}|
  > |{}|
  > 3
  > 1 2 0 |{1}|
  > 1 3 0 |{4}|
  > 2 3 0 |{2}|
  > GRAPH
  $ $GRAPHEDIT --convert triangle.gw triangle.graph --length=data
  $ solve undir_median -g triangle.graph
  undir_median: 1|G|.|d(V,V)|sum 3 Node [2]
  $ solve loc_undir_center -g triangle.graph
  loc_undir_center: 1|G|.|d(V,V)|max 2 Node [2]

The native nodes have no positions and stand on a circle of radius 50 about (70, 70), the first
on top; so with Euclidean lengths the triangle is equilateral, of side 50 times the root of 3.

  $ $GRAPHEDIT --convert triangle.gw circle.graph
  $ sed -n '3p;8,10p' circle.graph
  70 120  1  []
  1 2 86.6025403784439
  1 3 86.6025403784439
  2 3 86.6025403784439

Back the other way: the road network of the examples as GML, with its weights and lengths as
the keys "weight" and "length"; converted again it gives the median of 27 at Carden worked out
for that network.

  $ $GRAPHEDIT --convert $EXAMPLES/road_network.graph roads.gml
  $ head -12 roads.gml
  Creator "ORBA GraphEdit"
  Version 1
  graph [
    label ""
    directed 1
    node [
      id 0
      label "Aston"
      parameter "2"
      weight 2
      graphics [
        x 0
  $ grep -c 'node \[' roads.gml; grep -c 'edge \[' roads.gml; grep 'length' roads.gml | paste -sd' '
  5
  6
      length 4     length 3     length 4     length 3     length 3     length 3
  $ $GRAPHEDIT --convert roads.gml roads.graph --weight=weight --length=length
  $ solve undir_median -g roads.graph
  undir_median: 1|G|.|d(V,V)|sum 27 Node [3]
  $ solve abs_undir_center -g roads.graph
  abs_undir_center: 1|G|.|d(V,G)|max 8.4 Point [3][4] 0.700000

A graph without coordinates is laid out on a circle first: five villages, radius 50 about
(70, 70), the first on top, the second 72 degrees on clockwise at (70 + 50 cos 18, 70 + 50 sin 18). The tree's median value 13 comes back after the round trip.

  $ $GRAPHEDIT --convert $EXAMPLES/village_tree.graph village.gml
  $ grep -A2 'graphics \[' village.gml | grep -m2 -A1 ' x '
        x 70
        y 120
  --
        x 117.55282581475768
        y 85.450849718747364
  $ $GRAPHEDIT --convert village.gml village.graph --weight=weight --length=length
  $ solve abs_undir_median -g village.graph
  abs_undir_median: 1|G|.|d(V,G)|sum 13 Node [1] Node [4] Edge [4][1]

Bad files and bad calls end with their messages and status 1.

  $ $GRAPHEDIT --convert missing.gml out.graph
  MERO error: Cannot open graph file missing.gml. ErrorCode: 3501
  [1]
  $ printf 'graph [\n  node [ id 1 ]\n  edge [ source 1 target 2 ]\n]\n' > dangling.gml
  $ $GRAPHEDIT --convert dangling.gml out.graph
  MERO error: dangling.gml, line 3: edge with an unknown target node. ErrorCode: 3528
  [1]
  $ printf 'graph [\n  node [ id 1 label "x ]\n' > open.gml
  $ $GRAPHEDIT --convert open.gml out.graph
  MERO error: open.gml, line 2: unterminated string. ErrorCode: 3521
  [1]
  $ printf 'ORBA.GRAPH\nvoid\nvoid\n2\n|{}|\n|{}|\n1\n1 3 0 |{}|\n' > bad.gw
  $ $GRAPHEDIT --convert bad.gw out.graph
  MERO error: bad.gw, line 8: error in the graph part. ErrorCode: 3512
  [1]
  $ printf 'graph [\n]\n' > empty.gml
  $ $GRAPHEDIT --convert empty.gml out.graph
  MERO error: empty.gml: the graph has no nodes. ErrorCode: 3533
  [1]
  $ $GRAPHEDIT --convert $EXAMPLES/road_network.graph out.gml --weight=weight
  MERO error: --weight and --length are used only when a mero graph file is written. ErrorCode: 3534
  [1]
  $ $GRAPHEDIT --convert in.gml
  MERO error: Usage: graphedit [GRAPHFILE] | graphedit --convert IN OUT [--weight=KEY[,KEY...]] [--length=KEY] ErrorCode: 3535
  [1]
  $ $GRAPHEDIT --convert $EXAMPLES/drawn_network.gml out.graph --lenght=km
  MERO error: Unknown option or missing argument: --lenght=km ErrorCode: 3536
  [1]
