Single-facility medians and centers on the corners of a 4 x 2 rectangle, weight 1 each. By
symmetry the centre (2,1) solves the Euclidean problems: l2 sum 4 sqrt(5) = 8.94427, squared l2
sum 4 * 5 = 20, l3 sum 4 * 9^(1/3) = 8.32034, smallest circle radius sqrt(5). lpinfo lives in
$tmp, which starts empty here.

  $ export tmp=$PWD
  $ $MERO -a l2_sum -l $DATA/planar_rectangle.loc --output=nowindowed
  begin {result}
  begin {classification}
  1|P|.|l2 with eps: 1.000E-03|sum
  end {classification}
  begin {objective value} 
  8.94427
  end {objective value}
  begin {polygonlist}
  2 1 
  end {polygonlist}
  end {result}
  $ $MERO -a l2sqr_sum -l $DATA/planar_rectangle.loc --output=nowindowed
  begin {result}
  begin {classification}
  1|P|.|l2sqr|sum
  end {classification}
  begin {objective value} 
  20
  end {objective value}
  begin {polygonlist}
  2 1 
  end {polygonlist}
  end {result}
  $ $MERO -a lp_sum -p 3 -l $DATA/planar_rectangle.loc --output=nowindowed
  begin {result}
  begin {classification}
  1|P|.|l3 with eps: 1.000E-04|sum
  end {classification}
  begin {objective value} 
  8.32034
  end {objective value}
  begin {polygonlist}
  2 1 
  end {polygonlist}
  end {result}
  $ cat lpinfo; echo
  3 0.0001 0.0001 50

With lpinfo present l2_sum takes its eps, and shows it in the label.

  $ printf '2 0.5 0.0001 50' > lpinfo
  $ $MERO -a l2_sum -l $DATA/planar_rectangle.loc --output=nowindowed | head -3
  begin {result}
  begin {classification}
  1|P|.|l2 with eps: 5.000E-01|sum
  $ printf '2 0 0.0001 50' > lpinfo
  $ $MERO -a l2_sum -l $DATA/planar_rectangle.loc --output=nowindowed
  MERO error: facilities::l2_sum(): eps must be positive. ErrorCode: 1308
  [1]
  $ rm lpinfo

A location whose weight outweighs the pull of all others is returned exactly: (0,0) with weight
10 against three of weight 1, value 10 + 10 + 10 sqrt(2).

  $ $MERO -a l2_sum -l $DATA/planar_dominant.loc --output=nowindowed | sed -n '6p;9p'
  34.1421
  0 0 

Maximum-norm median: in the plane turned by 45 degrees the rectilinear median is a rectangle;
back in the plane it is the square with corners (2,0), (3,1), (2,2), (1,1), value 4 * 2.

  $ $MERO -a linf_sum -l $DATA/planar_rectangle.loc --output=nowindowed
  begin {result}
  begin {classification}
  1|P|.|linf|sum
  end {classification}
  begin {objective value} 
  8
  end {objective value}
  begin {polygonlist}
  begin {polygon}
  2 0 
  3 1 
  2 2 
  1 1 
  end {polygon}
  end {polygonlist}
  end {result}

Centers. In the maximum norm each pair meets at half its distance: value 2, and x is pinned at 2
while y may range over [0,2]. In the l1 norm the largest pair distance is 6: value 3 at (2,1).

  $ $MERO -a linf_max -l $DATA/planar_rectangle.loc --output=nowindowed
  begin {result}
  begin {classification}
  1|P|.|linf|max
  end {classification}
  begin {objective value} 
  2
  end {objective value}
  begin {polygonlist}
  begin {polygon}
  2 0 
  2 2 
  end {polygon}
  end {polygonlist}
  end {result}
  $ $MERO -a l1_max -l $DATA/planar_rectangle.loc --output=nowindowed | sed -n '6p;9p'
  3
  2 1 
  $ $MERO -a linf_v1_max -l $DATA/planar_rectangle.loc --output=nowindowed
  begin {result}
  begin {classification}
  1|P|v=1|l1|max
  end {classification}
  begin {objective value} 
  2
  end {objective value}
  begin {polygonlist}
  begin {polygon}
  2 0 
  2 2 
  end {polygon}
  end {polygonlist}
  end {result}
  $ $MERO -a l1_v1_max -l $DATA/planar_rectangle.loc --output=nowindowed
  begin {result}
  begin {classification}
  1|P|v=1|l1|max
  end {classification}
  begin {objective value} 
  3
  end {objective value}
  begin {polygonlist}
  2 1 
  end {polygonlist}
  end {result}
  $ $MERO -a l2_v1_max -l $DATA/planar_rectangle.loc --output=nowindowed
  begin {result}
  begin {classification}
  1|P|v=1|l2|max
  end {classification}
  begin {objective value} 
  2.23607
  end {objective value}
  begin {polygonlist}
  2 1 
  end {polygonlist}
  end {result}
  $ $MERO -a l2_max -l $DATA/planar_rectangle.loc --output=nowindowed | sed -n '3p;6p;9p'
  1|P|v=1|l2|max
  2.23607
  2 1 

The efficient set of the squared Euclidean median over all weight columns: with one column, its
centre of gravity; the value is always 0. With two columns, the segment between the centres
(125/36, 130/36) and (146/25, 107/25).

  $ $MERO -a l2sqr_qsum -l $DATA/planar_rectangle.loc --output=nowindowed
  begin {result}
  begin {classification}
  1|P|.|l2sqr|qsum
  end {classification}
  begin {objective value} 
  0
  end {objective value}
  begin {polygonlist}
  2 1 
  end {polygonlist}
  end {result}
  $ $MERO -a l2sqr_qsum -l $EXAMPLES/depots_two_weights.loc --output=nowindowed | sed -n '8,12p'
  begin {polygonlist}
  begin {polygon}
  3.47222 3.61111 
  5.84 4.28 
  end {polygon}

The equal-weight centers refuse unequal weights.

  $ $MERO -a linf_v1_max -l $DATA/planar_unequal.loc --output=nowindowed
  MERO error: All weights must be equal! ErrorCode: 1307
  [1]
  $ $MERO -a l1_v1_max -l $DATA/planar_unequal.loc --output=nowindowed
  MERO error: All weights must be equal! ErrorCode: 1307
  [1]

With every weight zero the whole plane is optimal: a message, status 0, no report.

  $ $MERO -a linf_max -l $DATA/planar_zero_weights.loc --output=nowindowed
  MERO message: facilities::linf_max: No weight is unequal to zero and the whole plane is optimal
  $ $MERO -a linf_sum -l $DATA/planar_zero_weights.loc --output=nowindowed
  MERO message: facilities::l1_sum(): All weights are equal zero:The whole plane is optimal

lp_sum without a readable lpinfo (its directory does not exist): the values that -p writes stand
in, p = 3 included, so the result is the l3 centre (2,1) of value 8.32034 as above.

  $ tmp=$PWD/missing $MERO -a lp_sum -p 3 -l $DATA/planar_rectangle.loc --output=nowindowed
  begin {result}
  begin {classification}
  1|P|.|l3 with eps: 1.000E-04|sum
  end {classification}
  begin {objective value} 
  8.32034
  end {objective value}
  begin {polygonlist}
  2 1 
  end {polygonlist}
  end {result}
