Sum lines kept off a forbidden polygon (numbers 307 to 310): the first restriction of the -r file
is the polygon. Three locations (0,0), (10,0), (5,1) of weight 1: unrestricted, every norm puts
the line on y = 0 at value 1 (the distance of (5,1)).

  $ export tmp=$PWD
  $ report_blocks='result\|classification\|objective value\|polygonlist\|polygon'
  $ source $TESTDIR/planar_report.sh
  $ printf 'begin {location} [2,1]\n0 0 1\n10 0 1\n5 1 1\nend {location}\n' > three.loc

A square far away is not touched: the unrestricted line stands.

  $ printf 'begin {restriction}\nbegin {polyhedron}\n20 20\n20 30\n30 30\n30 20\nend {polyhedron}\nend {restriction}\n' > far.restr
  $ solve -a L_RkonvPoly_l2_sum -l three.loc -r far.restr
  1L|P|restr|l2|sum 1 0 0  10 0 

The diamond (4,0), (5,1), (6,0), (5,-1) is cut by y = 0. The tangent from (0,0) through the top
corner (5,1) passes (5,1) and leaves (10,0) at 10 / sqrt(26) = 1.96116 in l2; in l1 its smaller
axis distance is the vertical 2; in the maximum norm it is 10 over the l1 norm 6 of the normal
(-1, 5); in l3, 10 / (1 + 5^1.5)^(2/3) = 1.88898. The tangent from (10,0) through (5,1) ties and
comes later; the edge lines cost 4 and more.

  $ printf 'begin {restriction}\nbegin {polyhedron}\n4 0\n5 1\n6 0\n5 -1\nend {polyhedron}\nend {restriction}\n' > diamond.restr
  $ solve -a L_RkonvPoly_l2_sum -l three.loc -r diamond.restr
  1L|P|restr|l2|sum 1.96116 0 0  5 1 
  $ solve -a L_RkonvPoly_l1_sum -l three.loc -r diamond.restr
  1L|P|restr|l1|sum 2 0 0  5 1 
  $ solve -a L_RkonvPoly_linf_sum -l three.loc -r diamond.restr
  1L|P|restr|linf|sum 1.66667 0 0  5 1 
  $ solve -a L_RkonvPoly_lp_sum -p 3 -l three.loc -r diamond.restr
  1L|P|restr|l3|sum 1.88898 0 0  5 1 

A square with a side parallel to y = 0 keeps the line even though the line runs through it.

  $ printf 'begin {restriction}\nbegin {polyhedron}\n2 -3\n2 3\n8 3\n8 -3\nend {polyhedron}\nend {restriction}\n' > parallel.restr
  $ solve -a L_RkonvPoly_l2_sum -l three.loc -r parallel.restr
  1L|P|restr|l2|sum 1 0 0  10 0 

Only a forbidden polygon can be kept off: a circle first is an error, and a file without figures
stops at the kernel's list check.

  $ printf 'begin {restriction}\nbegin {circle}\n5 0 1\nend {circle}\nend {restriction}\n' > circle.restr
  $ $MERO -a L_RkonvPoly_l1_sum -l three.loc -r circle.restr --output=nowindowed
  MERO error: L_RkonvPoly: the first restriction must be a forbidden polygon. ErrorCode: 1414
  [1]
  $ printf 'begin {restriction}\nend {restriction}\n' > empty.restr
  $ { $MERO -a L_RkonvPoly_linf_sum -l three.loc -r empty.restr --output=nowindowed 2>err.txt; } 2>/dev/null
  [134]
  $ cat err.txt
  
  ORBA ERROR HANDLER
  \tdlist::head(): empty list (esc)
  

The block norm (number 311) reads the gauge file first and measures with the gauge of the first
gauge number. With the rectilinear gauge 0 of the example the values are those of l1. With a
symmetric hexagon (corners (2,0), (1,1.5), (-1,1.5) and their mirrors) the distance from a line of
normal n is |n.(c - a)| over max n.e: the unrestricted line y = 0 costs 10 / 15 for (5,1), and
cuts the diamond; the tangent from (0,0) over (5,1), normal (-1,5), leaves (10,0) at 10 / 8.5
(and ties with the later one from (10,0)); the far square leaves y = 0 alone.

  $ printf 'begin {location} [2,1]\n0 0 1 {0}\n10 0 1 {0}\n5 1 1 {0}\nend {location}\n' > three_g.loc
  $ report_blocks="$report_blocks\|situations"
  $ solve -a L_RkonvPoly_block_sum -l three_g.loc -r diamond.restr -d $EXAMPLES/two_gauges.gauge
  1L|P|restr|block|sum 2 0 0  5 1 
  $ printf 'begin {polygaugelist}\nbegin {polygauge}\n2 0\n1 1.5\n-1 1.5\n-2 0\n-1 -1.5\n1 -1.5\nend {polygauge}\nend {polygaugelist}\n' > hexagon.gauge
  $ solve -a L_RkonvPoly_block_sum -l three_g.loc -r diamond.restr -d hexagon.gauge
  1L|P|restr|block|sum 1.17647 0 0  5 1 
  $ solve -a L_RkonvPoly_block_sum -l three_g.loc -r far.restr -d hexagon.gauge
  1L|P|restr|block|sum 0.666667 0 0  10 0 

A gauge number without a gauge is an error.

  $ sed 's/{0}/{3}/' three_g.loc > bad_number.loc
  $ $MERO -a L_RkonvPoly_block_sum -l bad_number.loc -r diamond.restr -d hexagon.gauge --output=nowindowed
  MERO error: Line location: False gauge-number. ErrorCode: 1363
  [1]
