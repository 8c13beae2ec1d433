Discrete uncapacitated facility location: the four algorithms on a discrete file given with -d,
the report (value block, then the problem in the discrete file's form), and the reader's messages.

The example: six villages, four depots. Opening North and Centre costs 9 + 5 and serves the
villages for 6 + 1 + 8 + 8 + 8 + 3, together 48, the best of all 15 open sets. Greedy starts with
Centre alone (59), adds North (saving 20 - 9) and stops; all four find 48.

  $ $MERO -a UFL_Greedy -d $EXAMPLES/discrete_villages.dat --output=nowindowed
  begin {result}
  begin {classification}
  #|D|.|.|.
  end {classification}
  begin {objective value}
  48
  end {objective value}
  begin {discrete}
  begin {demand}
  0 0  3  [Ash]
  2 1  1  [Birch]
  5 0  2  [Cedar]
  6 3  4  [Dogwood]
  1 5  2  [Elm]
  4 6  1  [Fir]
  end {demand}
  begin {supply}
  1 1  9  [North]
  5 1  12  [East]
  2 5  8  [West]
  4 3  5  [Centre]
  end {supply}
  begin {costmatrix}
  6 18 21 21 
  1 3 4 4 
  10 2 16 8 
  28 12 24 8 
  8 16 2 10 
  8 6 3 3 
  end {costmatrix}
  end {discrete}
  end {result}
  $ $MERO -a UFL_Stingy -d $EXAMPLES/discrete_villages.dat --output=nowindowed | sed -n 6p
  48
  $ $MERO -a UFL_Interchange -d $EXAMPLES/discrete_villages.dat --output=nowindowed | sed -n 6p
  48
  $ $MERO -a UFL_Dualoc -d $EXAMPLES/discrete_villages.dat --output=nowindowed | sed -n 6p
  48

A file on which Greedy is not optimal: it opens s0 and s1 (6 + 2 + 6 + 0 + 4 + 1 = 19), while
s1 and s2 cost 2 + 0 + 6 + 3 + 4 + 3 = 18. Stingy closes s0 and reaches 18, Interchange swaps s0
for s2, Dualoc proves 18 optimal.

  $ for a in UFL_Greedy UFL_Stingy UFL_Interchange UFL_Dualoc; do
  >   $MERO -a $a -d $DATA/discrete_greedy_trap.dat --output=nowindowed | sed -n 6p
  > done
  19
  18
  18
  18

Without a supply block every demand point is a possible supply point and the writer leaves the
block out. Opening q alone costs 3 + 1 + 0 + 2 = 6, the optimum (q with p: 8, all three: 9).

  $ $MERO -a UFL_Dualoc -d $DATA/discrete_no_supply.dat --output=nowindowed
  begin {result}
  begin {classification}
  #|D|.|.|.
  end {classification}
  begin {objective value}
  6
  end {objective value}
  begin {discrete}
  begin {demand}
  0 0  3  [p]
  1 0  3  [q]
  5 0  3  [r]
  end {demand}
  begin {costmatrix}
  0 1 5 
  1 0 5 
  5 2 0 
  end {costmatrix}
  end {discrete}
  end {result}

The report goes to a file when one is named.

  $ $MERO -a UFL_Stingy -d $DATA/discrete_no_supply.dat --output=file=result,nowindowed
  $ head -5 result
  begin {result}
  begin {classification}
  #|D|.|.|.
  end {classification}
  begin {objective value}

With -l the discrete data are not read, and the solver meets an empty problem.

  $ $MERO -a UFL_Greedy -l $DATA/location_comments.loc --output=nowindowed
  MERO error: Discrete problem without demand or supply points: give a discrete file with -d. ErrorCode: 3108
  [1]

Files that cannot be read, and one bad file for each message of the reader.

  $ $MERO -a UFL_Dualoc -d $DATA/discrete_missing.dat --output=nowindowed
  MERO error: Can't open file! ErrorCode: 3106
  [1]
  $ for f in bad_coordinate bad_weight second_name two_weights after_name coordinate_at_line_end \
  >          linebreak blank_line \
  >          after_demand no_dimension dimension_range after_supply line_length too_many_lines \
  >          too_few_lines matrix_text cut_short; do
  >   $MERO -a UFL_Greedy -d $DATA/discrete_$f.dat --output=nowindowed
  >   echo "status $?"
  > done
  MERO error: Coordinate #2 expected in discrete file at line 3, found "x 1 [a]" instead. ErrorCode: 3107
  status 1
  MERO error: Weight #1 expected in discrete file at line 3, found "w [a]" instead ErrorCode: 3107
  status 1
  MERO error: Second name ("b") found in discrete file at line 3. ErrorCode: 3107
  status 1
  MERO error: Name of location expected in discrete file at line 3, found "5 [a]" instead. ErrorCode: 3107
  status 1
  MERO error: End of line expected in discrete file at line 3, found "5" instead. ErrorCode: 3107
  status 1
  MERO error: Coordinate #2 expected in discrete file at line 3, found "1" instead. ErrorCode: 3107
  status 1
  MERO error: Illegal linebreak in discrete file at line 3. ErrorCode: 3107
  status 1
  MERO error: Illegal linebreak in discrete file at line 4. ErrorCode: 3107
  status 1
  MERO error: 'Begin {supply} [x]' or 'Begin {costmatrix}' expected in discrete file at line 5, found "begin {matrix}" instead ErrorCode: 3107
  status 1
  MERO error: Dimension (1 or 2 possible) expected in discrete file at line 7, found "x" instead. ErrorCode: 3107
  status 1
  MERO error: Dimension between 1 or 2 expected in discrete file at line 5, found "3" instead ErrorCode: 3107
  status 1
  MERO error: 'begin {costmatrix}' expected in line 8 ErrorCode: 3107
  status 1
  MERO error: Number of Entries in costmatrix line 8 does not match dimension. ErrorCode: 3107
  status 1
  MERO error: Number of lines in costmatrix  does not match number of demand-points. ErrorCode: 3107
  status 1
  MERO error: Number of lines in costmatrix  does not match dimension. ErrorCode: 3107
  status 1
  MERO error: unexpected text  in line 6: two ErrorCode: 3107
  status 1
  MERO error: Unexpected end of discrete file at line 5. ErrorCode: 3107
  status 1

The OR-Library converter: sites become supply points (the capacity, here also the word
"capacity", is dropped), customers demand points, and the costs one row per customer. Opening
site2 alone costs 4 + 8 + 3 + 2 = 17, site1 alone 10 + 1.5 + 6 + 9 = 26.5, both 20.5.

  $ cat > tiny.txt <<'ORLIB'
  > 2 3
  >  capacity 10.
  >  5000 4
  >  7 1.5 8
  >  2 6 3
  >  4 9
  >  2.
  > ORLIB
  $ $TESTDIR/../../scripts/orlib-ufl-to-mero tiny.txt tiny.dat
  $ cat tiny.dat
  begin {discrete}
  // converted from an OR-Library uncapacitated warehouse location file:
  // 2 sites (supply), 3 customers (demand); positions are a layout only
  begin {demand}
  0 2 7 [customer1]
  1 2 2 [customer2]
  2 2 4 [customer3]
  end {demand}
  begin {supply} 1
  0 0 10. [site1]
  1 0 4 [site2]
  end {supply}
  begin {costmatrix}
  1.5 8
  6 3
  9 2.
  end {costmatrix}
  end {discrete}
  $ $MERO -a UFL_Dualoc -d tiny.dat --output=nowindowed | sed -n 6p
  17
  $ echo "2 3 capacity 10. capacity 4 7 1.5 8 2 6 3 4 9" > short.txt
  $ $TESTDIR/../../scripts/orlib-ufl-to-mero short.txt
  orlib-ufl-to-mero: 15 tokens expected for 2 sites and 3 customers, found 14
  [1]
  $ echo "2 3 capacity 10. capacity 4 7 1.5 8 2 six 3 4 9 2" > word.txt
  $ $TESTDIR/../../scripts/orlib-ufl-to-mero word.txt
  orlib-ufl-to-mero: cost of customer 2 expected, found 'six'
  [1]
