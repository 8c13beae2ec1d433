Single-facility medians and centers on the corners of a 4 x 2 rectangle, weight 1 each. By
symmetry the centre (2,1) solves the Euclidean problems: l2 sum 4 sqrt(5) = 8.94427, squared l2
sum 4 * 5 = 20, l3 sum 4 * 9^(1/3) = 8.32034, smallest circle radius sqrt(5). lpinfo lives in
$tmp, which starts empty here.

  $ export tmp=$PWD R=rectangle.loc
  $ printf 'begin {location} [2,1]\n0 0 1 [sw]\n4 0 1 [se]\n4 2 1 [ne]\n0 2 1 [nw]\nend\n' > $R
  $ source $TESTDIR/planar_report.sh

Each run shows the classification, value and points of its report on one line (a polygon after
its "begin {polygon}").

  $ solve -a l2_sum -l $R
  1|P|.|l2 with eps: 1.000E-03|sum 8.94427 2 1 
  $ solve -a l2sqr_sum -l $R
  1|P|.|l2sqr|sum 20 2 1 
  $ solve -a lp_sum -p 3 -l $R
  1|P|.|l3 with eps: 1.000E-04|sum 8.32034 2 1 
  $ cat lpinfo; echo
  3 0.0001 0.0001 50

With lpinfo present l2_sum takes its eps, and shows it in the label; eps 0 is refused.

  $ printf '2 0.5 0.0001 50' > lpinfo
  $ $MERO -a l2_sum -l $R --output=nowindowed | sed -n 3p
  1|P|.|l2 with eps: 5.000E-01|sum
  $ printf '2 0 0.0001 50' > lpinfo
  $ $MERO -a l2_sum -l $R --output=nowindowed
  MERO error: facilities::l2_sum(): eps must be positive. ErrorCode: 1308
  [1]
  $ rm lpinfo

lp_sum without a readable lpinfo (its directory does not exist): the values that -p writes stand
in, p = 3 included, so the result is the l3 centre (2,1) of value 8.32034 as above.

  $ tmp=$PWD/missing solve -a lp_sum -p 3 -l $R
  1|P|.|l3 with eps: 1.000E-04|sum 8.32034 2 1 

A location whose weight outweighs the pull of all others is returned exactly: (0,0) with weight
10 against three of weight 1, value 10 + 10 + 10 sqrt(2).

  $ printf 'begin {location}\n0 0 10\n10 0 1\n0 10 1\n10 10 1\nend\n' > dominant.loc
  $ solve -a l2_sum -l dominant.loc
  1|P|.|l2 with eps: 1.000E-03|sum 34.1421 0 0 

Maximum-norm median: in the plane turned by 45 degrees the rectilinear median is a rectangle;
back in the plane it is the square with corners (2,0), (3,1), (2,2), (1,1), value 4 * 2.

  $ solve -a linf_sum -l $R
  1|P|.|linf|sum 8 begin {polygon} 2 0  3 1  2 2  1 1 

Centers. In the maximum norm each pair meets at half its distance: value 2, and x is pinned at 2
while y may range over [0,2]. In the l1 norm the largest pair distance is 6: value 3 at (2,1).
The Euclidean center is the smallest circle's centre.

  $ for a in linf_max linf_v1_max l1_max l1_v1_max l2_max l2_v1_max; do solve -a $a -l $R; done
  1|P|.|linf|max 2 begin {polygon} 2 0  2 2 
  1|P|v=1|l1|max 2 begin {polygon} 2 0  2 2 
  1|P|.|l1|max 3 2 1 
  1|P|v=1|l1|max 3 2 1 
  1|P|v=1|l2|max 2.23607 2 1 
  1|P|v=1|l2|max 2.23607 2 1 

The efficient set of the squared Euclidean median over all weight columns: with one column, its
centre of gravity; the value is always 0. With two columns, the segment between the centres
(125/36, 130/36) and (146/25, 107/25).

  $ solve -a l2sqr_qsum -l $R
  1|P|.|l2sqr|qsum 0 2 1 
  $ solve -a l2sqr_qsum -l $EXAMPLES/depots_two_weights.loc
  1|P|.|l2sqr|qsum 0 begin {polygon} 3.47222 3.61111  5.84 4.28 

The equal-weight centers refuse unequal weights; with every weight zero the whole plane is
optimal: a message, status 0, no report.

  $ printf 'begin {location}\n0 0 1\n4 0 1\n4 2 2\nend\n' > unequal.loc
  $ printf 'begin {location}\n0 0 0\n4 0 0\n1 3 0\nend\n' > zero.loc
  $ for a in linf_v1_max l1_v1_max; do
  >   $MERO -a $a -l unequal.loc --output=nowindowed; echo "status $?"
  > done
  MERO error: All weights must be equal! ErrorCode: 1307
  status 1
  MERO error: All weights must be equal! ErrorCode: 1307
  status 1
  $ $MERO -a linf_max -l zero.loc --output=nowindowed
  MERO message: facilities::linf_max: No weight is unequal to zero and the whole plane is optimal
  $ $MERO -a linf_sum -l zero.loc --output=nowindowed
  MERO message: facilities::l1_sum(): All weights are equal zero:The whole plane is optimal
