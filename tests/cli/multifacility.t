Several new facilities at once (chain N): new facility j weighs each location by the location's
weight column j, and new facility k > j by entry (j, k) of the -m matrix file.

The instance: A = (0, 0), B = (8, 0), C = (0, 6); facility 0 weighs them 2, 1, 1 and facility 1
weighs them 1, 4, 1; the two are tied by 1.

  $ L=$DATA/multifacility_three.loc
  $ M=$DATA/multifacility_tie.mat

Rectilinear sum. Axis by axis, the candidates are the location coordinates: on the x axis
3|x0| + |x0 - 8| + 2|x1| + 4|x1 - 8| + |x0 - x1| is least at (0, 8) with 32, on the y axis
3|y0| + |y0 - 6| + 5|y1| + |y1 - 6| + |y0 - y1| at (0, 0) with 12.

  $ $MERO -a N_l1_sum_v1 -l $L -m $M --output=nowindowed
  begin {result}
  begin {classification}
  2|P|.|l1|sum
  end {classification}
  begin {objective value} 
  44
  end {objective value}
  begin {polygonlist}
  0 0 
  8 0 
  end {polygonlist}
  end {result}

From here on each run shows the classification, value and points of its report on one line.

  $ source $TESTDIR/planar_report.sh

Squared Euclidean sum: the normal equations [[5, -1], [-1, 7]] x = (8, 32) and y = (6, 6) give
x = (88, 168) / 34 and y = (48, 36) / 34; the weighted sum of squares there is 6744 / 34.

  $ solve -a N_l2sqr_sum -l $L -m $M
  2|P|.|l2sqr|sum 198.353 2.58824 1.41176  4.94118 1.05882 

Maximum-norm center, label "sum" as the table has it. On the x axis facility 1 needs
max(|x1|, 4|x1 - 8|) = 6.4 at x1 = 6.4, and facility 0 fits within it anywhere in [1.6, 3.2];
the y axis needs only 4.8 (y1 = 1.2, y0 in [1.2, 2.4]). The larger axis is the value.

  $ solve -a N_linf_max -l $L -m $M
  2|P|.|linf|sum 6.4 1.6 1.2  6.4 1.2 

Rectilinear center: facility 1 alone needs 11.2, since d(B) + d(C) >= 14 and 4 d(B) = d(C) at
d(B) = 2.8; (5.8, 0.6) is such a point, and facility 0 at (0.8, 0.8) stays well within it.

  $ solve -a N_l1_max -l $L -m $M
  2|P|.|l1|max 11.2 0.8 0.8  5.8 0.6 

The heuristics locate each new facility alone, by its own weight column, and count the ties
only in the value. Here (1, 1) weighs 5 of 7 in column 0 and (4, 2) weighs 7 of 9 in column 1,
so each pins its facility whatever the norm; the tie is 2. Euclidean: location cost
(sqrt 10 + sqrt 13) + (sqrt 10 + sqrt 37), tie cost 2 sqrt 10, together 22.3374. Maximum norm:
(3 + 3) + (3 + 6) for the locations and 2 * 3 for the tie.

  $ P=pinned.loc M2=tie_two.mat
  $ printf 'begin {location} [2,2]\n1 1 5 1 [A]\n4 2 1 7 [B]\n-2 3 1 1 [C]\nend\n' > $P
  $ printf 'begin {matrix} [2]\n0 2\n2 0\nend\n' > $M2
  $ solve -a N_l2_sum_v1 -l $P -m $M2
  2|P|.|l2|sum 22.3374 1 1  4 2 
  $ solve -a N_linf_sum_v1 -l $P -m $M2
  2|P|.|linf|sum 21 1 1  4 2 

N_lp_sum_v1 takes p from lpinfo, which -p writes into the directory $tmp. p = 1:
(4 + 5) + (4 + 7) + 2 * 4 = 28; p = 3: the l3 lengths of (3, 1), (3, 2), (6, 1) are the cube
roots of 28, 35 and 217, and 2 (28^(1/3)) + 35^(1/3) + 217^(1/3) + 2 (28^(1/3)) = 21.4267.
When lpinfo cannot be written or read, the p of -p stands in: the same l3 result.

  $ export tmp=$PWD
  $ solve -a N_lp_sum_v1 -l $P -m $M2 -p 1
  2|P|.|l1|sum 28 1 1  4 2 
  $ solve -a N_lp_sum_v1 -l $P -m $M2 -p 3
  2|P|.|l3|sum 21.4267 1 1  4 2 
  $ tmp=/nonexistent solve -a N_lp_sum_v1 -l $P -m $M2 -p 3
  2|P|.|l3|sum 21.4267 1 1  4 2 
  $ $MERO -a N_lp_sum_v1 -l $P -m $M2 -p 0 --output=nowindowed
  MERO error: Bad p-Norm argument in location::norm(int p). ErrorCode: 1201
  [1]

A location header is read as a matrix with rows of two; text before the header goes to the
console as it stands, without its blanks and line ends. Keywords in any case, no blanks in the
header, carriage returns and an empty line between rows.

  $ printf 'tie between the two new facilities\nbegin {location}\n0 1\n1 0\nend\n' > header.mat
  $ $MERO -a N_l1_sum_v1 -l $L -m header.mat --output=nowindowed | sed -n 1p
  tiebetweenthetwonewfacilitiesbegin {result}
  $ printf 'BEGIN{MATRIX}[2]\r\n0 1\r\n\r\n1 0\r\nEND\r\n' > crlf.mat
  $ solve -a N_l1_sum_v1 -l $L -m crlf.mat
  2|P|.|l1|sum 44 0 0  8 0 

The matrix file's messages, each followed by the exit status in brackets; the matrix is n by n
for the n = 2 weight columns, whatever the file's dimension says, so a file of dimension 1 with
three numbers runs out.

  $ bad() {
  >   printf "$1" > bad.mat
  >   local out; out=$($MERO -a N_l1_sum_v1 -l $L -m bad.mat --output=nowindowed 2>&1); echo "$out [$?]"
  > }
  $ $MERO -a N_l1_sum_v1 -l $L -m no_such.mat --output=nowindowed
  MERO error: Can't open file ! ErrorCode: 1510
  [1]
  $ bad 'begin {matrix} [0]\n0\nend\n'
  MERO error: Dimension too small in matrix file at line 1. ErrorCode: 1511 [1]
  $ bad 'begin {matrix} [x2]\n0 1\n1 0\nend\n'
  MERO error: Dimension expected in matrix file at line 1, found "x2]" instead. ErrorCode: 1511 [1]
  $ bad 'begin {matrix} [\n2]\n0 1\n1 0\nend\n'
  MERO error: Illegal linebreak in location file at line 1. ErrorCode: 1511 [1]
  $ bad 'begin {matrix} [2) 3\n0 1\n1 0\nend\n'
  MERO error: Closing bracket expected in matrix file at line 1, found ") 3" instead. ErrorCode: 1511 [1]
  $ bad 'begin {matrix} [2]\n0 1\n1 0 5\nend\n'
  MERO error: Number of Entries in matrix-file line 3 does not match dimension. ErrorCode: 1511 [1]
  $ bad 'begin {matrix} [2]\n0 1\n1 O // letter O\nend\n'
  MERO error: Entry #2 expected in matrix file at line 3, found "O // letter O" instead. ErrorCode: 1511 [1]
  $ bad 'begin {matrix} [1]\n0\n1\n1\nend\n'
  MERO error: Matrix file holds 3 entries, fewer than the 4 of a 2 by 2 matrix. ErrorCode: 1511 [1]

The maximum-norm centers divide by every weight and every tie, even a tie that does not matter.

  $ printf 'begin {matrix} [2]\n0 0\n0 0\nend\n' > zero_tie.mat
  $ $MERO -a N_linf_max -l $L -m zero_tie.mat --output=nowindowed
  MERO error: facilities::N_linf_max(): The entries of the dependency matrix must be unequal to zero ErrorCode: 1337
  [1]
  $ printf 'begin {location} [2,2]\n0 0 2 1\n8 0 1 0\n0 6 1 1\nend\n' > zero_weight.loc
  $ for a in N_linf_max N_l1_max; do
  >   $MERO -a $a -l zero_weight.loc -m $M --output=nowindowed; echo "status $?"
  > done
  MERO error: facilities::N_linf_max(): Every weight must be unequal to zero ErrorCode: 1336
  status 1
  MERO error: facilities::N_linf_max(): Every weight must be unequal to zero ErrorCode: 1336
  status 1

Facilities 1 and 2 are tied to each other but to nothing else: the normal equations are singular.

  $ printf 'begin {location} [2,3]\n0 0 1 0 0\n4 0 1 0 0\nend\n' > unanchored.loc
  $ printf 'begin {matrix} [3]\n0 0 0\n0 0 1\n0 0 0\nend\n' > unanchored.mat
  $ $MERO -a N_l2sqr_sum -l unanchored.loc -m unanchored.mat --output=nowindowed
  MERO error: facilities::N_l2sqr_sum(): The normal equations are singular: some new facilities have no weight to any location and no link to a new facility that has one. ErrorCode: 1335
  [1]
