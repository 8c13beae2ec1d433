Numbers that break a reader or a solver end in a message of their own, never in a report of
meaningless values. Each case below is one that the fuzzing harnesses (fuzz/) or the hand-made
extremes of fuzz/RESULTS.md found.

A number beyond the range of a double is refused by every scanner, at its line, under the
reader's code; one that only underflows reads as 0.

  $ printf 'begin {location} [2,1]\n1 2 3\n1e999 2 1\nend\n' > range.loc
  $ $MERO -a l1_sum -l range.loc --output=nowindowed
  MERO error: Number 1e999 at line 3 is beyond the range of a double. ErrorCode: 1504
  [1]
  $ printf 'begin {location} [2,1]\n0 0 1\n4 0 1\nend\n' > two.loc
  $ printf 'begin {matrix} [2]\n0 1\n-2e308 0\nend\n' > range.mat
  $ $MERO -a N_l1_sum_v1 -l two.loc -m range.mat --output=nowindowed
  MERO error: Number -2e308 at line 3 is beyond the range of a double. ErrorCode: 1511
  [1]
  $ printf 'begin {merograph}\nbegin {location} [2,1]\n0 0 1\n1 0 1\nend {location}\nbegin {adjlist}\n1 2 1e999\nend {adjlist}\n' > range.graph
  $ $MERO -a dir_median -g range.graph --output=nowindowed
  MERO error: Number 1e999 at line 7 is beyond the range of a double. ErrorCode: 2112
  [1]
  $ printf 'begin {discrete}\nbegin {demand}\n0 0 1\n1 1 1\nend {demand}\nbegin {costmatrix}\n1 1e400\n1 1\nend {costmatrix}\nend {discrete}\n' > range.dat
  $ $MERO -a UFL_Greedy -d range.dat --output=nowindowed
  MERO error: Number 1e400 at line 7 is beyond the range of a double. ErrorCode: 3107
  [1]
  $ printf 'begin {location} [2,1]\n1e-400 0 2\n4 0 1\nend\n' > tiny.loc
  $ $MERO -a l1_sum -l tiny.loc --output=nowindowed | sed -n '6p;9p'
  4
  0 0 

The scanners take no "inf" or "nan" token for a number: such a token is a syntax error.

  $ printf 'begin {location} [2,1]\ninf 2 1\nend\n' > inf.loc
  $ $MERO -a l1_sum -l inf.loc --output=nowindowed
  MERO error: Coordinate #1 expected in location file at line 2, found "inf 2 1" instead. ErrorCode: 1504
  [1]
  $ printf 'begin {location} [2,1]\n1 2 nan\nend\n' > nan.loc
  $ $MERO -a l1_sum -l nan.loc --output=nowindowed
  MERO error: Weight #1 expected in location file at line 2, found "nan" instead ErrorCode: 1504
  [1]

A -p value beyond the int range is refused instead of converted with undefined behaviour; other
text still reads as atoi reads it.

  $ $MERO --output=nowindowed -a lp_sum -l two.loc -p 2147483648
  MERO error: The value of -p is out of range: 2147483648 ErrorCode: 1014
  [1]
  $ $MERO --output=nowindowed -a lp_sum -l two.loc -p=-99999999999
  MERO error: The value of -p is out of range: -99999999999 ErrorCode: 1014
  [1]

Linear programs without an optimum. Negative dependencies between the new facilities make the
rectilinear sum fall for ever; lp_solve calls such a model optimal with its infinity 1e30 as the
value, which is no result. Negative weights leave the maximum models without a feasible point.

  $ printf 'begin {location} [2,2]\n0 0 1 1\n4 0 1 1\n0 4 1 1\nend\n' > three.loc
  $ printf 'begin {matrix} [2]\n0 -5\n-5 0\nend\n' > negative.mat
  $ $MERO -a N_l1_sum_v1 -l three.loc -m negative.mat --output=nowindowed
  MERO error: The linear program is unbounded: the data give no optimal location. ErrorCode: 1370
  [1]
  $ $MERO -a N_linf_max -l three.loc -m negative.mat --output=nowindowed
  MERO error: The linear program has no feasible solution. ErrorCode: 1371
  [1]

A weighted center with a negative weight has no optimum (its largest weighted distance falls
without bound); weights whose products overflow end in the run's not-finite message instead of
the value 0 that the overflow gave before.

  $ printf 'begin {location} [2,1]\n1 2 -1\n3 4 -2\n5 1 -1\nend\n' > negative.loc
  $ $MERO -a linf_max -l negative.loc --output=nowindowed
  MERO error: facilities::linf_max(): A negative weight leaves the center problem without optimum. ErrorCode: 1352
  [1]
  $ $MERO -a l1_max -l negative.loc --output=nowindowed
  MERO error: facilities::linf_max(): A negative weight leaves the center problem without optimum. ErrorCode: 1352
  [1]
  $ printf 'begin {location} [2,1]\n1 2 1e308\n3 4 1e308\n5 1 1e308\nend\n' > heavy.loc
  $ $MERO -a linf_max -l heavy.loc --output=nowindowed
  MERO error: The result is not finite: coordinates or weights are too large. ErrorCode: 1013
  [1]

The discrete heuristics add costs as they stand: beyond L_INF in size the sums overflow (the
stingy value was 1 for two demand points at cost 1e308 each). UFL_Dualoc keeps its own range.

  $ printf 'begin {discrete}\nbegin {demand}\n0 0 1\n1 1 1\nend {demand}\nbegin {costmatrix}\n1e308 1e308\n1e308 1e308\nend {costmatrix}\nend {discrete}\n' > heavy.dat
  $ for a in UFL_Greedy UFL_Stingy UFL_Interchange UFL_Dualoc; do $MERO -a $a -d heavy.dat --output=nowindowed; done
  MERO error: UFL heuristics need costs and fixed costs between -L_INF and L_INF. ErrorCode: 3111
  MERO error: UFL heuristics need costs and fixed costs between -L_INF and L_INF. ErrorCode: 3111
  MERO error: UFL heuristics need costs and fixed costs between -L_INF and L_INF. ErrorCode: 3111
  MERO error: UFL_Dualoc needs costs and fixed costs between 0 and L_INF. ErrorCode: 3109
  [1]

Counts that multiply beyond int: a weight dimension of 50000 asks the matrix file for 50000 by
50000 entries, a number the message now writes whole (its product overflowed int before).

  $ awk 'BEGIN { print "begin {location} [2,50000]"; for (r = 0; r < 2; r++) { printf "%d 0", r; for (i = 0; i < 50000; i++) printf " 1"; print "" } print "end" }' > wide.loc
  $ printf 'begin {matrix} [2]\n0 1\n1 0\nend\n' > small.mat
  $ $MERO -a N_l2sqr_sum -l wide.loc -m small.mat --output=nowindowed
  MERO error: Matrix file holds 4 entries, fewer than the 2500000000 of a 50000 by 50000 matrix. ErrorCode: 1511
  [1]
