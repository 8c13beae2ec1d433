Line location end to end. The triangle (0,0), (4,0), (0,3) of equal weights has values worked
out by hand: its heights are 3 over the side y = 0, 4 over x = 0 and 12/5 over the hypotenuse
3x + 4y = 12, whose distance from (0,0) is 12/5 in l2, 12/7 in the maximum norm (12 over the l1
norm of the normal), 3 in l1 (the smaller axis distance) and 12 / (3^1.5 + 4^1.5)^(2/3) = 2.14890
in l3.

  $ export tmp=$PWD T=triangle.loc
  $ printf 'begin {location} [2,1]\n0 0 1 [o]\n4 0 1 [x]\n0 3 1 [y]\nend\n' > $T
  $ report_blocks='result\|classification\|objective value\|polygonlist\|polygon'
  $ source $TESTDIR/planar_report.sh

Each run shows the classification, value and points of its report on one line.

  $ solve -a L_l2_sum_M3 -l $T
  1L|P|.|l2|sum: M3 2.4 4 0  0 3 

Sums: the line through two locations. In l1 the side y = 0 and the hypotenuse both leave the
third location 3 away, and the first pair stays.

  $ solve -a L_l2_sum_M2logM -l $T
  1L|P|.|l2|sum: M2logM 2.4 4 0  0 3 
  $ solve -a L_l2_sum_M2 -l $T
  1L|P|v=1|l2|sum 2.4 4 0  0 3 
  $ solve -a L_l1_sum_M3 -l $T
  1L|P|.|l1|sum 3 0 0  4 0 
  $ solve -a L_linf_sum_M3 -l $T
  1L|P|.|linf|sum 1.71429 4 0  0 3 
  $ solve -a L_lp_sum_M3 -p 3 -l $T
  1L|P|.|l3|sum 2.1489 4 0  0 3 

Max: with equal weights the line halves the smallest height, midway between a side and the
opposite corner: for the hypotenuse, the line through (2,0) and (0,1.5). l1: the sides y = 0 and the hypotenuse tie at 3 / 2, and the first role (the
side of the first two locations) stays. The lp max problem says "sum" in its label.

  $ solve -a L_l2_max_M4 -l $T
  1L|P|.|l2|max: M4 1.2 2 0  0 1.5 
  $ solve -a L_l2_max_MlogM -l $T
  1L|P|v=1|l2|max 1.2 2 0  0 1.5 
  $ solve -a L_l2_max_M2logM -l $T
  1L|P|.|l2|max: M2logM 1.2 2 0  0 1.5 
  $ solve -a L_l1_max_M4 -l $T
  1L|P|.|l1|max 1.5 0 1.5  2 1.5 
  $ solve -a L_linf_max_M4 -l $T
  1L|P|.|linf|max 0.857143 2 0  0 1.5 
  $ solve -a L_lp_max_M4 -p 3 -l $T
  1L|P|.|l3|sum 1.07445 2 0  0 1.5 

Two locations: every sum runs through them at 0; the max problems have no triple, value 1e50 and
no line. A coordinate beyond the range of doubles, and an lp run without a norm, stop.

  $ printf 'begin {location}\n1 2 1\n3 7 1\nend\n' > two.loc
  $ solve -a L_l2_sum_M2 -l two.loc
  1L|P|v=1|l2|sum 0 1 2  3 7 
  $ solve -a L_l2_max_M4 -l two.loc
  1L|P|.|l2|max: M4 1e+50
  $ printf 'begin {location}\n1e999 0 1\n1 1 1\n2 5 1\nend\n' > huge.loc
  $ $MERO -a L_l2_sum_M2 -l huge.loc --output=nowindowed
  MERO error: Number 1e999 at line 2 is beyond the range of a double. ErrorCode: 1504
  [1]
  $ printf '0 0.0001 0.0001 50' > lpinfo
  $ $MERO -a L_lp_sum_M3 -p 0 -l $T --output=nowindowed
  MERO error: facilities::L_lp_sum_M3(): p must be at least 1, or -1 for the maximum norm. ErrorCode: 1360
  [1]

The wells example: four wells on one line draw the pipeline onto it, and the sorted sweep finds
the same value as the pair loop; the equal-weight methods measure other problems.

  $ W=$EXAMPLES/pipeline_wells.loc
  $ solve -a L_l2_sum_M3 -l $W
  1L|P|.|l2|sum: M3 28.1745 13 8  1 2 
  $ solve -a L_l2_sum_M2logM -l $W
  1L|P|.|l2|sum: M2logM 28.1745 5 4  9 6 

Block norms, with the gauge of the first gauge number: the gauge sites of the example read gauge
0, the rectilinear one. By hand over the six pairs (rectilinear distance |n.x - c| / max |n_i|),
the line through North (1,3) and South (3,-2) leaves West 2.6 and East 1.6 away, weighted 5.8;
the next best pair, West and East, gives 7. A grid of 10^5 directions with the exact offset finds
no max line below 2.57143 (18/7), and the max problem keeps the sum's label.

  $ G="-l $EXAMPLES/gauge_sites.loc -d $EXAMPLES/two_gauges.gauge"
  $ $MERO -a L_block_sum_M3 $G --output=nowindowed | sed -n '3p;5,6p;10,11p'
  1L|P|.|block|sum
  begin {situations}
  5.8
  1 3 
  3 -2 
  $ $MERO -a L_block_max_M4 $G --output=nowindowed | sed -n '3p;6p'
  1L|P|.|block|sum
  2.57143
  $ sed 's/{0} \[West\]/{-1} [West]/' $EXAMPLES/gauge_sites.loc > negative.loc
  $ $MERO -a L_block_sum_M3 -l negative.loc -d $EXAMPLES/two_gauges.gauge --output=nowindowed
  MERO error: Line location: False gauge-number. ErrorCode: 1363
  [1]
