The rectilinear median (l1_sum) end to end. Every expected set and value below is worked out by
hand from the weighted medians of the x and of the y values.

(0,0) and (2,4): both axes tie, and the rectangle is written corner by corner, at cost 6.

  $ printf 'begin {location}\n0 0 1\n2 4 1\nend\n' > rectangle.loc
  $ $MERO -a l1_sum -l rectangle.loc --output=nowindowed
  begin {result}
  begin {classification}
  1|P|.|l1|sum
  end {classification}
  begin {objective value} 
  6
  end {objective value}
  begin {polygonlist}
  begin {polygon}
  0 0 
  2 0 
  2 4 
  0 4 
  end {polygon}
  end {polygonlist}
  end {result}

From here on each run shows the value and points of its report on one line (a polygon after its
"begin {polygon}"); `points` runs the location lines it is given as a location file.

  $ set -o pipefail
  $ solve() {
  >   $MERO -a l1_sum -l "$1" --output=nowindowed | sed -e '1,5d;7,8d' -e '/^end {/d' | paste -sd' '
  > }
  $ points() { printf "begin {location}\n$1end\n" > in.loc; solve in.loc; }

Three locations of weight 1 at (0,0), (5,1), (2,7): the coordinate-wise median (2,1), at cost
(2+1) + (3+0) + (0+6) = 12.

  $ points '0 0 1 [a]\n5 1 1 [b]\n2 7 1 [c]\n'
  12 2 1 

(1,0) and (1,2): both x values merge, so x = 1 is the median, while y ties at the half-sum: the
vertical segment between them, at cost 2. (3,7) and (-1,7): the horizontal segment, left end
first, at cost 4.

  $ points '1 0 1\n1 2 1\n'
  2 begin {polygon} 1 0  1 2 
  $ points '3 7 1\n-1 7 1\n'
  4 begin {polygon} -1 7  3 7 

Two locations at (1,1) of weight 1 merge into weight 2, which ties with (3,5) of weight 2: the
rectangle between them, at cost 2 * (2 + 4) = 12.

  $ points '1 1 1 [twin]\n1 1 1 [twin]\n3 5 2 [far]\n'
  12 begin {polygon} 1 1  3 1  3 5  1 5 

(0,0) and (3,0) of weight 1 with (1,5) of weight 0 between them on the x axis: the zero weight is
stepped over, so the segment runs from x = 0 to x = 3, at cost 3.

  $ points '0 0 1\n1 5 0 [closed]\n3 0 1\n'
  3 begin {polygon} 0 0  3 0 

All weights zero: the message ends the run with status 0 and no report. Negative weights are not
checked; when their running sum never reaches half the total there is no median to report.

  $ printf 'begin {location}\n0 0 0\n4 2 0\n1 1 0\nend\n' > zero.loc
  $ $MERO -a l1_sum -l zero.loc --output=nowindowed
  MERO message: facilities::l1_sum(): All weights are equal zero:The whole plane is optimal
  $ printf 'begin {location}\n0 0 -1\n2 2 0\nend\n' > negative.loc
  $ $MERO -a l1_sum -l negative.loc --output=nowindowed
  MERO error: facilities::l1_sum(): The weights give no median. ErrorCode: 1350
  [1]

The examples. The county towns: total weight 277; the x values 8, 12, 19, 25 gather 166 > 138.5
and the y values 9, 15, 22, 31 gather 144, so Bramley at (25,31) is the office, at cost
85*22 + 18*22 + 27*26 + 63*31 + 12*28 + 30*15 = 5707.

  $ solve $EXAMPLES/cities.loc
  5707 25 31 

Column 0 of the delivery weights (12, 5, 8, 4, 7; half 18): x = 3 gathers 20 and y = 4 gathers 24,
at cost 12*7 + 5*5 + 8*3 + 4*11 + 7*2 = 191.

  $ solve $EXAMPLES/depots_two_weights.loc
  191 3 4 

The docks (half 20): x = 120 gathers all 40; y = 40 gathers exactly 20, so the segment runs up to
y = 60, the next dock of non-zero weight (the closed dock at y = 95 weighs nothing), at cost
9*55 + 11*120 + 6*75 = 2265.

  $ solve $EXAMPLES/warehouse_commented.loc
  2265 begin {polygon} 120 40  120 60 
