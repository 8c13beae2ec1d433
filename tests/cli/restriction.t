Restricted single-facility problems (chain R): the -r file lists forbidden regions; a restricted
solver keeps the unrestricted optimum when it is allowed and otherwise looks on the boundary.

  $ export tmp=$PWD
  $ source $TESTDIR/planar_report.sh

Two locations A = (1, 2) and B = (3, 2) of weight 1, and the square [0, 4]^2 forbidden. Every
unrestricted optimum lies at or around (2, 2), inside the square.

  $ printf 'begin {location} [2,1]\n1 2 1\n3 2 1\nend {location}\n' > pair.loc
  $ printf 'begin {restriction}\nbegin {polyhedron}\n0 0\n0 4\n4 4\n4 0\nend {polyhedron}\nend {restriction}\n' > square.restr

Squared Euclidean: the centre of gravity (2, 2) is 2 away from each side, so the four feet
(0,2), (2,4), (4,2), (2,0) are all nearest, numbered 0 to 3; the value at the first is 1 + 9.

  $ solve -a in_l2sqr_sum -l pair.loc -r square.restr
  1|P|restr|l2sqr|sum 10 0 2  2 4  4 2  2 0 

Rectilinear: the grid lines through A and B meet the square at (0,2), (4,2), (1,4), (1,0),
(3,4), (3,0); the first two cost 1 + 3 = 4, the others 2 + 4 = 6.

  $ solve -a in_l1_sum -l pair.loc -r square.restr
  1|P|restr|l1|sum 4 0 2  4 2 

Chebyshev: the diagonal lines through A and B meet the square in eight points, and every point
of the left and right sides between them costs 1 + 3 = 4, like every point of the top and bottom
sides between x = 1 and 3 (2 + 2): all eight tie.

  $ solve -a in_linf_sum -l pair.loc -r square.restr
  1|P|restr|linf|sum 4 0 1  3 4  0 3  3 0  4 3  1 0  1 4  4 1 

The "out" forms make the square the only allowed place: the unrestricted optima lie in it and
stand whole (the point (2,2), the segment AB, the diamond of the Chebyshev median), each at 2.

  $ solve -a out_l2sqr_sum -l pair.loc -r square.restr
  1|P|restr(out)|l2sqr|sum 2 2 2 
  $ solve -a out_l1_sum -l pair.loc -r square.restr
  1|P|restr(out)|l1|sum 2 begin {polygon} 1 2  3 2 
  $ solve -a out_linf_sum -l pair.loc -r square.restr
  1|P|restr(out)|linf|sum 2 begin {polygon} 2 1  3 2  2 3  1 2 

Euclidean center: on the boundary the larger distance is least where the bisector x = 2 meets the
top (first in ring order) or bottom side: sqrt(1 + 4).

  $ solve -a in_l2_max -l pair.loc -r square.restr
  1|P|restr|l2|max 2.23607 2 4 

Maximum-norm center: the optimal segment x = 2, 1 <= y <= 3 lies inside; the corners of its level
squares leave the square at (1,0), (3,0), (1,4), (3,4), each at distance 2 from both.

  $ solve -a in_convex_linf_max -l pair.loc -r square.restr
  1|P|restr|linf|max 2 begin {polygon} 1 0  3 0  1 4  3 4 

Rectilinear center: from (2, 0) both lie 1 + 2 = 3 away, and no boundary point does better.

  $ solve -a in_convex_l1_max -l pair.loc -r square.restr
  1|P|restr|l1|max 3 begin {polygon} 0 2  2 0  2 4  4 2 

lp_sum with -r is the restricted lp median; it needs -p, whose p and eps show in the label. With
p = 2 the sum of the distances from a side's point is least at (0,2) and (4,2), 1 + 3 = 4.

  $ solve -a lp_sum -l pair.loc -r square.restr -p 2
  1|P|restr|l2 with eps: 1.000E-04|sum 4 0 2 
  $ $MERO -a lp_sum -l pair.loc -r square.restr --output=nowindowed
  MERO error: Missing p-value for lp-algorithm. ErrorCode: 1011
  [1]

A forbidden circle about the centre of gravity: every point of its line is nearest, the top one
is taken and the message says so; the run goes on (value 2 + 2). The Euclidean center does not
work with a circle.

  $ printf 'begin {restriction}\nbegin {circle}\n2 2 1\nend {circle}\nend {restriction}\n' > circle.restr
  $ solve -a in_l2sqr_sum -l pair.loc -r circle.restr
  MERO message: restr_circle::proj_l2sqr(): The whole boundary of the forbidden region is optimal. The marked point is one optimal point 1|P|restr|l2sqr|sum 4 2 3 
  $ solve -a in_l2_max -l pair.loc -r circle.restr
  MERO error: Not implemented for this kind of restriction. ErrorCode: 1411
  [1]

Nor with a polygon that is not convex. The restricted lp median walks along the edges of a
polygon or rectangle; a circle has none, and the run says so with the same text. (A circle of
radius 1.5 about (2, 2) holds all of the Euclidean medians, the segment AB.)

  $ printf 'begin {restriction}\nbegin {circle}\n2 2 1.5\nend {circle}\nend {restriction}\n' > wide.restr
  $ solve -a lp_sum -p 2 -l pair.loc -r wide.restr
  MERO error: The restriction for this algorithm must be a convex polyeder ErrorCode: 1405
  [1]

  $ printf 'begin {restriction}\nbegin {polyhedron}\n0 0\n0 4\n2 3\n4 4\n4 0\nend {polyhedron}\nend {restriction}\n' > notch.restr
  $ solve -a in_l2_max -l pair.loc -r notch.restr
  MERO error: The restriction for this algorithm must be a convex polyeder ErrorCode: 1405
  [1]

The example files: the county offices of examples/cities.loc kept out of a lake, an airfield and
a nature reserve. All unrestricted optima lie in the lake. A search over 100001 points of each
side of the lake gives the same values and points.

  $ for a in in_l2sqr_sum in_l1_sum in_linf_sum in_l2_max in_convex_linf_max; do
  >   solve -a $a -l $EXAMPLES/cities.loc -r $EXAMPLES/county_forbidden.restr; done
  1|P|restr|l2sqr|sum 79478.3 20.538 30.3037 
  1|P|restr|l1|sum 5754.67 25 35.3333 
  1|P|restr|linf|sum 3435 21 34 
  1|P|restr|l2|max 1403.93 20.5431 25.8642 
  1|P|restr|linf|max 1197 21 34 
  $ solve -a lp_sum -p 3 -l $EXAMPLES/cities.loc -r $EXAMPLES/county_forbidden.restr
  1|P|restr|l3 with eps: 1.000E-04|sum 3915.13 20.8092 32.4733 

The restriction file. Its reader's messages, one bad file each; several name the matrix or the
location file, or hold a stray blank, as they always have.

  $ bad() { printf "$1" > bad.restr; $MERO -a in_l1_sum -l pair.loc -r bad.restr --output=nowindowed; }
  $ $MERO -a in_l1_sum -l pair.loc -r no_such.restr --output=nowindowed
  MERO error: Can't open file! ErrorCode: 1409
  [1]
  $ bad 'begin {restriction} [0]\n'
  MERO error: Dimension too small in matrix file at line 1. ErrorCode: 1410
  [1]
  $ bad 'begin {restriction} [x2]\n'
  MERO error: Dimension expected in matrix file at line 1, found "x2]" instead. ErrorCode: 1410
  [1]
  $ bad 'begin {restriction} [2 x\n'
  MERO error: Closing bracket expected in matrix file at line 1, found "x" instead. ErrorCode: 1410
  [1]
  $ bad 'begin {restriction}\ncircle 1 2 3\n'
  MERO error: 'begin {restr_type}' or 'end {restriction} ' expected in restriction file, line 2. ErrorCode: 1410
  [1]
  $ bad 'begin {restriction}\nbegin {circle} [-1]\n'
  MERO error: Value between 0 and infinity (inf) expected in line 2 of the restriction-file. ErrorCode: 1410
  [1]
  $ bad 'begin {restriction}\nbegin {circle} [big]\n'
  MERO error: Barrier-value expected in restriction-file  at line 2, found "big]" instead. ErrorCode: 1410
  [1]
  $ bad 'begin {restriction}\nbegin {circle} [0 1\n'
  MERO error: Closing bracket expected in restriction file at line 2, found "1" instead. ErrorCode: 1410
  [1]
  $ bad 'begin {restriction}\nbegin {circle} [\n0]\n'
  MERO error: Illegal linebreak in location file at line 2. ErrorCode: 1410
  [1]
  $ bad 'begin {restriction}\nbegin {polyhedron}\n0 0\n1\n'
  MERO error: Number of Coordinates in restriction-file line 4 does not match dimension. ErrorCode: 1410
  [1]
  $ bad 'begin {restriction}\nbegin {polyhedron}\n0 0\n1 x 1\n'
  MERO error: Coordinate #2 expected in restriction-file at line 4, found "x 1" instead. ErrorCode: 1410
  [1]

A value other than 0 and inf is refused when its block ends; a segment is only a barrier.

  $ bad 'begin {restriction}\nbegin {polyhedron} [5]\n0 0\n0 1\n1 0\nend {polyhedron}\n'
  MERO error: Only Restrictions=[0] and Barriers=[inf] are supported so far !!! ErrorCode: 1410
  [1]
  $ bad 'begin {restriction}\nbegin {conpolyhedron} [5]\n0 0\n0 1\n1 0\nend {conpolyhedron}\n'
  MERO error: Only Restrictions=[0] and Barrie rs=[inf] are supported so far !!! ErrorCode: 1410
  [1]
  $ bad 'begin {restriction}\nbegin {circle} [2]\n0 0 1\nend {circle}\n'
  MERO error: Only Restrictions=[0] and Barriers=[inf] are supported so far !!! ErrorCode: 1410
  [1]
  $ bad 'begin {restriction}\nbegin {segment}\n0 0 1 1\nend {segment}\n'
  MERO error: Only Barriers=[inf] is supported so far !!! ErrorCode: 1410
  [1]
  $ bad 'begin {restriction}\nbegin {segment} [0]\n0 0 1 1\nend {segment}\n'
  MERO error: Only Barriers=[inf] is supported so far !!! ErrorCode: 1410
  [1]
  $ bad 'begin {restriction}\nbegin {circle}\n0 0\nend {circle}\n'
  MERO error: Number of Entries is wrong in line 4 in restriction-file. ErrorCode: 1410
  [1]
  $ bad 'begin {restriction}\nbegin {rectangle}\n0 0 1 1\nend {rectangle}\n'
  MERO error: Number of Entries is wrong in line 4 in restriction-file. ErrorCode: 1410
  [1]
  $ bad 'begin {restriction}\nbegin {segment} [inf]\n0 0 1\nend {segment}\n'
  MERO error: Number of Entries is wrong in line 4 in res triction-file. ErrorCode: 1410
  [1]

A file without figures leaves the restricted medians no list to start from: the kernel's list
check stops the run, abnormally.

  $ printf 'begin {restriction}\nend {restriction}\n' > empty.restr
  $ { $MERO -a in_l1_sum -l pair.loc -r empty.restr --output=nowindowed 2>err.txt; } 2>/dev/null
  [134]
  $ cat err.txt
  
  ORBA ERROR HANDLER
  \tdlist::head(): empty list (esc)
  
