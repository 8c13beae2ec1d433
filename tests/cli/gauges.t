Gauge location problems end to end: one report per algorithm on the examples, every message of
the gauge file, and the checks of the gauge problems.

The four sites of the example, two with the rectilinear gauge and two with the triangle gauge
(2,0), (-1,1), (-1,-1). A brute force over a grid of step 0.01 finds the sum 14 on the segment
from (1,0) to (2.5,-1.5) and the largest weighted distance 4.1783 near (1.92,-0.26); the exact
center is 25/6 at (23/12, -1/4):

  $ source $TESTDIR/planar_report.sh
  $ G="-l $EXAMPLES/gauge_sites.loc -d $EXAMPLES/two_gauges.gauge"
  $ solve -a gauge_median $G
  1|P|.|gauges|sum begin {situations} 14 begin {polygon} 1 0  2.5 -1.5 
  $ solve -a gauge_center $G
  1|P|.|gauges|max begin {situations} 4.16667 1.91667 -0.25 

With two weight columns the efficient set runs from the best point of column 0, (1,0), to that
of column 1, West at (0,0), along the x-axis (the grid brute force finds the same chain). The
value of the two-column problems is 0:

  $ solve -a bi_crit_gauge_median -l $EXAMPLES/gauge_sites_two_weights.loc -d $EXAMPLES/two_gauges.gauge
  1|P|.|gauges|qsum begin {situations} 0 begin {polygon} 0 0  1 0 

l1_2sum and linf_2sum on two sites, each weighted in one column only: every point between them
in the norm is efficient, the box for l1 and a parallelogram for the maximum norm:

  $ printf 'begin {location} [2,2]\n0 0 1 0\n2 1 0 1\nend\n' > pair.loc
  $ solve -a l1_2sum -l pair.loc
  1|P|.|l1|2sum 0 begin {polygon} 0 0  2 0  2 1  0 1 
  $ solve -a linf_2sum -l pair.loc
  1|P|.|linf|2sum 0 begin {polygon} 0 0  0.5 -0.5  2 1  1.5 1.5 

The gauge file: it cannot be opened; a mixed list where polygonal gauges are wanted:

  $ $MERO -a gauge_median -l $EXAMPLES/gauge_sites.loc -d missing.gauge --output=nowindowed
  MERO error: Can't open file! ErrorCode: 1607
  [1]
  $ printf '// mixed\nbegin {mixgaugelist}\nend {mixgaugelist}\n' > mixed.gauge
  $ $MERO -a gauge_median -l $EXAMPLES/gauge_sites.loc -d mixed.gauge --output=nowindowed
  MERO error: Wrong file! ErrorCode: 1609
  [1]

Messages of a list are collected and reported together, each with its line: text where a block
should begin, three numbers on a line, a point broken over two lines (both lines hold one number
only), other text in a block:

  $ printf 'begin {polygaugelist}\nbegin {gauge} here\nbegin {polygauge}\n1 0 5\n0\n1\n-1 0 x\n0 -1\nend {polygauge}\nend {polygaugelist}\n' > bad.gauge
  $ $MERO -a gauge_median -l $EXAMPLES/gauge_sites.loc -d bad.gauge --output=nowindowed
  MERO error: 'begin {polygauge}' or 'end {polygaugelist}' expected in line 2, found "begin {gauge} here" instead.
  too many numbers in line 4
  Illegal linebreak in gauge-file at line 5.
  Illegal linebreak in gauge-file at line 6.
  unexpected  text in line 7 ErrorCode: 1608
  [1]

A list or a block that the file leaves open:

  $ printf 'begin {polygaugelist}\nbegin {polygauge}\n1 0\n' > open.gauge
  $ $MERO -a gauge_median -l $EXAMPLES/gauge_sites.loc -d open.gauge --output=nowindowed
  MERO error: unexpected end of gauge-file in line 4 ErrorCode: 1608
  [1]

A gauge that fails its checks ends the run at its closing keyword; a single gauge is built at
the end of the file:

  $ printf 'begin {polygaugelist}\nbegin {polygauge}\n0 1\n1 0\n-1 -1\nend {polygauge}\nend {polygaugelist}\n' > clockwise.gauge
  $ $MERO -a gauge_median -l $EXAMPLES/gauge_sites.loc -d clockwise.gauge --output=nowindowed
  MERO error: polygauge: must be in counterclockwise order ErrorCode: 1701
  [1]
  $ printf 'oneLPGauge\n1 -1\n1 0\n1 1\n-1 1\n-1 -1\n' > edge.gauge
  $ $MERO -a gauge_median -l $EXAMPLES/gauge_sites.loc -d edge.gauge --output=nowindowed
  MERO error: polygauge: is not convex ErrorCode: 1703
  [1]

An empty list is valid, and then no gauge number fits:

  $ printf 'begin {polygaugelist}\nend {polygaugelist}\n' > empty.gauge
  $ $MERO -a gauge_center -l $EXAMPLES/gauge_sites.loc -d empty.gauge --output=nowindowed
  MERO error: False gauge-number. ErrorCode: 1341
  [1]

The checks of the problems: gauge_median and gauge_center use 1339 to 1342, bi_crit_gauge_median
1343 to 1346. Two columns for the median, one for the efficient set:

  $ $MERO -a gauge_median -l $EXAMPLES/gauge_sites_two_weights.loc -d $EXAMPLES/two_gauges.gauge --output=nowindowed
  MERO error: False weight-dimension. ErrorCode: 1339
  [1]
  $ $MERO -a bi_crit_gauge_median -l $EXAMPLES/gauge_sites.loc -d $EXAMPLES/two_gauges.gauge --output=nowindowed
  MERO error: False weight-dimension. ErrorCode: 1343
  [1]

A location without its gauge number, a gauge number equal to the number of gauges, a weight of
0.0 (which the two-column method accepts where the other column is positive):

  $ printf 'begin {location} [2,1]\n0 0 1 {0}\n4 0 1 [b]\nend\n' > short.loc
  $ $MERO -a gauge_median -l short.loc -d $EXAMPLES/two_gauges.gauge --output=nowindowed
  MERO error: Different number of locations and gauges. ErrorCode: 1340
  [1]
  $ printf 'begin {location} [2,2]\n0 0 1 1 {0}\n4 0 1 1 {2}\nend\n' > number.loc
  $ $MERO -a bi_crit_gauge_median -l number.loc -d $EXAMPLES/two_gauges.gauge --output=nowindowed
  MERO error: False gauge-number. ErrorCode: 1345
  [1]
  $ printf 'begin {location} [2,1]\n0 0 0 {0}\n4 0 1 {1}\nend\n' > zero1.loc
  $ $MERO -a gauge_center -l zero1.loc -d $EXAMPLES/two_gauges.gauge --output=nowindowed
  MERO error: Negative entry or 0-row or 0-column in weight-matrix. ErrorCode: 1342
  [1]
  $ printf 'begin {location} [2,2]\n0 0 0 1 {0}\n4 0 1 0 {1}\nend\n' > zero.loc
  $ $MERO -a gauge_center -l zero.loc -d $EXAMPLES/two_gauges.gauge --output=nowindowed
  MERO error: False weight-dimension. ErrorCode: 1339
  [1]
  $ $MERO -a bi_crit_gauge_median -l zero.loc -d $EXAMPLES/two_gauges.gauge --output=nowindowed | sed -n 3p
  1|P|.|gauges|qsum
  $ printf 'begin {location} [2,2]\n0 0 0 0 {0}\n4 0 1 1 {1}\nend\n' > zero_row.loc
  $ $MERO -a bi_crit_gauge_median -l zero_row.loc -d $EXAMPLES/two_gauges.gauge --output=nowindowed
  MERO error: Negative entry or 0-row or 0-column in weight-matrix. ErrorCode: 1346
  [1]

One location: the run's message, then gauge_median finds no crossing, and its empty candidate
list stops in the kernel's list check:

  $ printf 'begin {location} [2,1]\n3 4 1 {0}\nend\n' > one.loc
  $ { $MERO -a gauge_median -l one.loc -d $EXAMPLES/two_gauges.gauge --output=nowindowed 2>err.txt; } 2>/dev/null
  MERO message: There is only one location given, so this location is optimal
  [134]
  $ cat err.txt
  
  ORBA ERROR HANDLER
  \tdlist::head(): empty list (esc)
  

The gauge center with forbidden regions (-r with -d). Two sites (0,0) and (10,0) with the
rectilinear gauge have their center at (5,0) with 5. The square [4,6] x [-1,1] holds it; on its
sides max(|x| + |y|, |10 - x| + |y|) is at least 6, reached at (4,0), (6,0) and (5,+-1). The
circle of radius 1 about (5,0) gives 5 + |cos t| + |sin t|, least 6 at its four axis points. A
region that does not hold the center leaves it, and a barrier has no boundary search.

  $ printf 'begin {location} [2,1]\n0 0 1 {0}\n10 0 1 {0}\nend\n' > two_sites.loc
  $ restr() { printf "begin {restriction}\n$1\nend {restriction}\n" > r.restr; }
  $ rg() { solve -a restr_gauge_center -l two_sites.loc -d $EXAMPLES/two_gauges.gauge -r r.restr; }
  $ restr 'begin {polyhedron} [0]\n4 -1\n4 1\n6 1\n6 -1\nend {polyhedron}'
  $ rg
  1|P|R|gauges|max begin {situations} 6 4 0 
  $ restr 'begin {circle}\n5 0 1\nend {circle}'
  $ rg
  1|P|R|gauges|max begin {situations} 6 4 0 
  $ restr 'begin {circle}\n50 50 1\nend {circle}'
  $ rg
  1|P|R|gauges|max begin {situations} 5 5 0 
  $ restr 'begin {circle} [inf]\n5 0 1\nend {circle}'
  $ rg
  MERO error: Not implemented for this kind of restriction. ErrorCode: 1411
  [1]
