The viewer of a result with two criteria, driven like the other viewers through xdotool.

  $ command -v xdotool > /dev/null || exit 80
  $ viewer() { timeout 20 xdotool search --sync --onlyvisible --name '^MERO VERSION 2.0' | head -n 1; }
  $ panel() { timeout 20 xdotool search --sync --onlyvisible --name "^$1\$" | head -n 1; }

Four towns on a ring (Aston, Berwick, Carden, Dunmore; roads of 4, 3, 4, 3), weights (3,0),
(0,1), (1,1), (0,3). By hand: F(Aston) = (0*3 + 7*1, 4*1 + 7*1 + 3*3) = (7, 20) and F(Dunmore) =
(3*3 + 4*1, 7*1 + 4*1 + 0) = (13, 11). On the road from Dunmore (t = 0) to Aston (t = 1) the
vector is (13 - 6t, 11 + 9t): one objective falls while the other rises, so the whole road is
Pareto optimal, with the vectors of Dunmore and Aston at its ends.

  $ $MERO -a medPareto -g $EXAMPLES/two_criteria_square.graph --output=file=report.txt > out.txt 2>&1 &
  $ id=$(viewer) && xdotool getwindowname $id
  MERO VERSION 2.0   View Graphics for Q-criterial problems
  $ sleep 1; kill -0 $! && test ! -s report.txt && echo waiting
  waiting

  $ xdotool windowfocus --sync $id key Tab space
  $ p=$(panel 'Save results') && xdotool windowfocus --sync $p key Return
The saved pieces (their vectors are checked in the cram test of --results, which writes the same
file, compared at the end):

  $ sleep 1; sed -n '/begin {results}/,/end {results}/p' results
  begin {results}
  Node[1]
  Node[4]
  Edge[4][1] 0.000000 1.000000
  end {results}

  $ xdotool windowfocus --sync $id key Tab space
  $ p=$(panel 'Results of computation') && xdotool windowfocus --sync $p key Return

"Close" (four Tabs on from "View Results") lets the run write its report, which for a Pareto set holds no value and no points.

  $ xdotool windowfocus --sync $id key Tab Tab Tab Tab space; wait $!; echo "[$?]"
  [0]
  $ cat out.txt report.txt
  Open Window
  
  begin {result}
  begin {classification}
  1|G|.|d(V,G)|2-sum-par
  end {classification}
   end {result}

  $ $MERO -a medPareto -g $EXAMPLES/two_criteria_square.graph --output=nowindowed --results=again > /dev/null
  $ cmp again results
