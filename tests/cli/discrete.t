Discrete uncapacitated facility location: the four algorithms on a discrete file given with -d,
the report (value block, then the problem in the discrete file's form), and the reader's messages
as a run shows them (each message is checked on its own bad file in the unit tests).

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
  $ for a in UFL_Stingy UFL_Interchange UFL_Dualoc; do
  >   $MERO -a $a -d $EXAMPLES/discrete_villages.dat --output=nowindowed | sed -n 6p
  > done
  48
  48
  48

Without a supply block every demand point is a possible supply point and the writer leaves the
block out. Opening q alone costs 3 + 1 + 0 + 2 = 6, the optimum (q with p: 8, all three: 9). The
report goes to a file when one is named.

  $ printf 'begin {discrete}\nbegin {demand}\n0 0 3 [p]\n1 0 3 [q]\n5 0 3 [r]\nend {demand}\n' > p.dat
  $ printf 'begin {costmatrix}\n0 1 5\n1 0 5\n5 2 0\nend {costmatrix}\nend {discrete}\n' >> p.dat
  $ $MERO -a UFL_Dualoc -d p.dat --output=nowindowed | sed -n '6p;13,14p'
  6
  end {demand}
  begin {costmatrix}
  $ $MERO -a UFL_Stingy -d p.dat --output=file=result,nowindowed
  $ sed -n 6p result
  6

With -l the discrete data are not read, and the solver meets an empty problem.

  $ $MERO -a UFL_Greedy -l $DATA/location_comments.loc --output=nowindowed
  MERO error: Discrete problem without demand or supply points: give a discrete file with -d. ErrorCode: 3108
  [1]

A file that cannot be read, and a bad one.

  $ $MERO -a UFL_Dualoc -d $DATA/discrete_missing.dat --output=nowindowed
  MERO error: Can't open file! ErrorCode: 3106
  [1]
  $ printf 'begin {discrete}\nbegin {demand}\n0 1 2\nend {demand}\nbegin {supply} 3\n' > bad.dat
  $ $MERO -a UFL_Greedy -d bad.dat --output=nowindowed
  MERO error: Dimension between 1 or 2 expected in discrete file at line 5, found "3" instead ErrorCode: 3107
  [1]

The OR-Library converter: sites become supply points (the capacity, here also the word
"capacity", is dropped), customers demand points, and the costs one row per customer. Opening
site2 alone costs 4 + 8 + 3 + 2 = 17, site1 alone 10 + 1.5 + 6 + 9 = 26.5, both 20.5.

  $ printf '2 3\n capacity 10.\n 5000 4\n 7 1.5 8\n 2 6 3\n 4 9\n 2.\n' > tiny.txt
  $ $TESTDIR/../../scripts/orlib-ufl-to-mero tiny.txt tiny.dat
  $ grep -v -e '^//' -e '^end' -e '^begin {[dc]' tiny.dat
  0 2 7 [customer1]
  1 2 2 [customer2]
  2 2 4 [customer3]
  begin {supply} 1
  0 0 10. [site1]
  1 0 4 [site2]
  1.5 8
  6 3
  9 2.
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
