The Euclidean median around one barrier (number 70). The triangle (-5,0), (5,0), (0,5) has its
free median at the Fermat point (0, 5/sqrt(3)) = (0, 2.88675), of value 2 sqrt(25 + 25/3) + 5 - 5/sqrt(3) =
13.6603; the barrier run computes it with accuracy 0.001 and lands within a thousandth of that.

  $ export tmp=$PWD
  $ source $TESTDIR/planar_report.sh
  $ printf 'begin {location} [2,1]\n-5 0 1\n5 0 1\n0 5 1\nend {location}\n' > tri.loc

A barrier far away blocks nobody: the free median stands.

  $ printf 'begin {restriction}\nbegin {circle} [inf]\n40 40 2\nend {circle}\nend {restriction}\n' > far.restr
  $ solve -a barr_l2_sum -l tri.loc -r far.restr
  1|P|barr|l2|sum 13.6642 0 2.71465 

A circle around the free median: three locations give six shadow segments and fewer than ten
crossings, so a tenth of them is no candidate at all and nothing is searched: the result is the
start point (0, 0) with the value 1e10.

  $ printf 'begin {restriction}\nbegin {circle} [inf]\n0 2.7 0.5\nend {circle}\nend {restriction}\n' > mid.restr
  $ solve -a barr_l2_sum -l tri.loc -r mid.restr
  1|P|barr|l2|sum 1e+10 0 0 

More than two figures: a warning, and the first is the barrier. Two pass silently.

  $ printf 'begin {restriction}\nbegin {circle} [inf]\n40 40 2\nend {circle}\nbegin {circle} [inf]\n50 40 2\nend {circle}\nbegin {circle} [inf]\n60 40 2\nend {circle}\nend {restriction}\n' > three.restr
  $ solve -a barr_l2_sum -l tri.loc -r three.restr
  MERO message: This algorithm can only handle one barrier. 1|P|barr|l2|sum 13.6642 0 2.71465 
  $ head -7 three.restr > two.restr && echo 'end {restriction}' >> two.restr
  $ solve -a barr_l2_sum -l tri.loc -r two.restr
  1|P|barr|l2|sum 13.6642 0 2.71465 

A forbidden square is taken as the barrier of the same figure; here it holds the free median
but no location, and the search runs on the candidates of sixteen locations on a circle.

  $ python3 -c "
  > import math
  > print('begin {location} [2,1]')
  > for k in range(16):
  >     t = 2 * math.pi * k / 16 + 0.1
  >     print(round(5 + 9 * math.cos(t), 3), round(9 * math.sin(t), 3), 1 + k % 3)
  > print('end {location}')" > ring.loc
  $ printf 'begin {restriction}\nbegin {polyhedron}\n4 -2\n4 2\n7 2\n7 -2\nend {polyhedron}\nend {restriction}\n' > square.restr
  $ $MERO -a barr_l2_sum -l ring.loc -r square.restr --output=nowindowed | sed -n 3p
  1|P|barr|l2|sum

A location inside the barrier is an error; a file without figures warns, then stops at the
kernel's list check.

  $ printf 'begin {restriction}\nbegin {circle} [inf]\n5 0 1\nend {circle}\nend {restriction}\n' > onloc.restr
  $ $MERO -a barr_l2_sum -l tri.loc -r onloc.restr --output=nowindowed
  MERO error: No locations allowed inside of barriers. ErrorCode: 1802
  [1]
  $ printf 'begin {restriction}\nend {restriction}\n' > empty.restr
  $ { $MERO -a barr_l2_sum -l tri.loc -r empty.restr --output=nowindowed 2>err.txt; } 2>/dev/null
  MERO message: No restrictions given. Executing standard algorithm.
  [134]
  $ cat err.txt
  
  ORBA ERROR HANDLER
  \tdlist::head(): empty list (esc)
  
