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

Squared Euclidean sum: the normal equations [[5, -1], [-1, 7]] x = (8, 32) and y = (6, 6) give
x = (88, 168) / 34 and y = (48, 36) / 34; the weighted sum of squares there is 6744 / 34.

  $ $MERO -a N_l2sqr_sum -l $L -m $M --output=nowindowed
  begin {result}
  begin {classification}
  2|P|.|l2sqr|sum
  end {classification}
  begin {objective value} 
  198.353
  end {objective value}
  begin {polygonlist}
  2.58824 1.41176 
  4.94118 1.05882 
  end {polygonlist}
  end {result}

Maximum-norm center, label "sum" as the table has it. On the x axis facility 1 needs
max(|x1|, 4|x1 - 8|) = 6.4 at x1 = 6.4, and facility 0 fits within it anywhere in [1.6, 3.2];
the y axis needs only 4.8 (y1 = 1.2, y0 in [1.2, 2.4]). The larger axis is the value.

  $ $MERO -a N_linf_max -l $L -m $M --output=nowindowed
  begin {result}
  begin {classification}
  2|P|.|linf|sum
  end {classification}
  begin {objective value} 
  6.4
  end {objective value}
  begin {polygonlist}
  1.6 1.2 
  6.4 1.2 
  end {polygonlist}
  end {result}

Rectilinear center: facility 1 alone needs 11.2, since d(B) + d(C) >= 14 and 4 d(B) = d(C) at
d(B) = 2.8; (5.8, 0.6) is such a point, and facility 0 at (0.8, 0.8) stays well within it.

  $ $MERO -a N_l1_max -l $L -m $M --output=nowindowed
  begin {result}
  begin {classification}
  2|P|.|l1|max
  end {classification}
  begin {objective value} 
  11.2
  end {objective value}
  begin {polygonlist}
  0.8 0.8 
  5.8 0.6 
  end {polygonlist}
  end {result}

The heuristics locate each new facility alone, by its own weight column, and count the ties
only in the value. Here (1, 1) weighs 5 of 7 in column 0 and (4, 2) weighs 7 of 9 in column 1,
so each pins its facility whatever the norm; the tie is 2. Euclidean: location cost
(sqrt 10 + sqrt 13) + (sqrt 10 + sqrt 37), tie cost 2 sqrt 10, together 22.3374.

  $ P=$DATA/multifacility_pinned.loc
  $ M2=$DATA/multifacility_tie_two.mat
  $ $MERO -a N_l2_sum_v1 -l $P -m $M2 --output=nowindowed
  begin {result}
  begin {classification}
  2|P|.|l2|sum
  end {classification}
  begin {objective value} 
  22.3374
  end {objective value}
  begin {polygonlist}
  1 1 
  4 2 
  end {polygonlist}
  end {result}

Maximum norm: (3 + 3) + (3 + 6) for the locations and 2 * 3 for the tie.

  $ $MERO -a N_linf_sum_v1 -l $P -m $M2 --output=nowindowed
  begin {result}
  begin {classification}
  2|P|.|linf|sum
  end {classification}
  begin {objective value} 
  21
  end {objective value}
  begin {polygonlist}
  1 1 
  4 2 
  end {polygonlist}
  end {result}

N_lp_sum_v1 takes p from lpinfo, which -p writes into the directory $tmp. p = 1:
(4 + 5) + (4 + 7) + 2 * 4 = 28; p = 3: the l3 lengths of (3, 1), (3, 2), (6, 1) are the cube
roots of 28, 35 and 217, and 2 (28^(1/3)) + 35^(1/3) + 217^(1/3) + 2 (28^(1/3)) = 21.4267.

  $ export tmp=$PWD
  $ $MERO -a N_lp_sum_v1 -l $P -m $M2 -p 1 --output=nowindowed | sed -n 3,6p
  2|P|.|l1|sum
  end {classification}
  begin {objective value} 
  28
  $ $MERO -a N_lp_sum_v1 -l $P -m $M2 -p 3 --output=nowindowed
  begin {result}
  begin {classification}
  2|P|.|l3|sum
  end {classification}
  begin {objective value} 
  21.4267
  end {objective value}
  begin {polygonlist}
  1 1 
  4 2 
  end {polygonlist}
  end {result}

A norm that does not exist.

  $ $MERO -a N_lp_sum_v1 -l $P -m $M2 -p 0 --output=nowindowed
  MERO error: Bad p-Norm argument in location::norm(int p). ErrorCode: 1201
  [1]

When lpinfo cannot be written or read, the p of -p stands in: the same l3 result as above.

  $ tmp=/nonexistent $MERO -a N_lp_sum_v1 -l $P -m $M2 -p 3 --output=nowindowed
  begin {result}
  begin {classification}
  2|P|.|l3|sum
  end {classification}
  begin {objective value} 
  21.4267
  end {objective value}
  begin {polygonlist}
  1 1 
  4 2 
  end {polygonlist}
  end {result}

A location header is read as a matrix with rows of two; text before the header goes to the
console as it stands, without its blanks and line ends.

  $ $MERO -a N_l1_sum_v1 -l $L -m $DATA/multifacility_location_header.mat --output=nowindowed | head -2
  tiebetweenthetwonewfacilitiesbegin {result}
  begin {classification}

Keywords in any case, no blanks in the header, carriage returns and an empty line between rows.

  $ printf 'BEGIN{MATRIX}[2]\r\n0 1\r\n\r\n1 0\r\nEND\r\n' > crlf.mat
  $ $MERO -a N_l1_sum_v1 -l $L -m crlf.mat --output=nowindowed | sed -n 6p
  44

The matrix file's messages.

  $ $MERO -a N_l1_sum_v1 -l $L -m no_such.mat --output=nowindowed
  MERO error: Can't open file ! ErrorCode: 1510
  [1]
  $ $MERO -a N_l1_sum_v1 -l $L -m $DATA/multifacility_dimension_small.mat --output=nowindowed
  MERO error: Dimension too small in matrix file at line 1. ErrorCode: 1511
  [1]
  $ $MERO -a N_l1_sum_v1 -l $L -m $DATA/multifacility_dimension_missing.mat --output=nowindowed
  MERO error: Dimension expected in matrix file at line 1, found "x2]" instead. ErrorCode: 1511
  [1]
  $ $MERO -a N_l1_sum_v1 -l $L -m $DATA/multifacility_header_linebreak.mat --output=nowindowed
  MERO error: Illegal linebreak in location file at line 1. ErrorCode: 1511
  [1]
  $ $MERO -a N_l1_sum_v1 -l $L -m $DATA/multifacility_bracket_missing.mat --output=nowindowed
  MERO error: Closing bracket expected in matrix file at line 1, found ") 3" instead. ErrorCode: 1511
  [1]
  $ $MERO -a N_l1_sum_v1 -l $L -m $DATA/multifacility_row_length.mat --output=nowindowed
  MERO error: Number of Entries in matrix-file line 3 does not match dimension. ErrorCode: 1511
  [1]
  $ $MERO -a N_l1_sum_v1 -l $L -m $DATA/multifacility_entry_bad.mat --output=nowindowed
  MERO error: Entry #2 expected in matrix file at line 3, found "O // letter O" instead. ErrorCode: 1511
  [1]

The matrix is n by n for the n = 2 weight columns, whatever the file's dimension says; a file of
dimension 1 with three numbers runs out.

  $ $MERO -a N_l1_sum_v1 -l $L -m $DATA/multifacility_too_few.mat --output=nowindowed
  MERO error: Matrix file holds 3 entries, fewer than the 4 of a 2 by 2 matrix. ErrorCode: 1511
  [1]

The maximum-norm centers divide by every weight and every tie, even a tie that does not matter.

  $ $MERO -a N_linf_max -l $L -m $DATA/multifacility_zero_tie.mat --output=nowindowed
  MERO error: facilities::N_linf_max(): The entries of the dependency matrix must be unequal to zero ErrorCode: 1337
  [1]
  $ $MERO -a N_linf_max -l $DATA/multifacility_zero_weight.loc -m $M --output=nowindowed
  MERO error: facilities::N_linf_max(): Every weight must be unequal to zero ErrorCode: 1336
  [1]
  $ $MERO -a N_l1_max -l $DATA/multifacility_zero_weight.loc -m $M --output=nowindowed
  MERO error: facilities::N_linf_max(): Every weight must be unequal to zero ErrorCode: 1336
  [1]

Facilities 1 and 2 are tied to each other but to nothing else: the normal equations are singular.

  $ $MERO -a N_l2sqr_sum -l $DATA/multifacility_unanchored.loc -m $DATA/multifacility_unanchored.mat --output=nowindowed
  MERO error: facilities::N_l2sqr_sum(): The normal equations are singular: some new facilities have no weight to any location and no link to a new facility that has one. ErrorCode: 1335
  [1]
