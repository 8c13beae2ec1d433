The viewer of a result on a graph, in a windowed run on the private display of this test, driven
with the keyboard through xdotool: Tab walks the button row from "Save Results" on, the space
presses the button that has the focus, and in a panel Return presses its last button.

  $ command -v xdotool > /dev/null || exit 80
  $ viewer() { timeout 20 xdotool search --sync --onlyvisible --name '^MERO VERSION 2.0' | head -n 1; }
  $ panel() { timeout 20 xdotool search --sync --onlyvisible --name "^$1\$" | head -n 1; }

Five stops of a bus line one kilometre apart with one passenger each: the median is the middle
stop, Church (node 3), at a cost of 2 + 1 + 0 + 1 + 2 = 6. The window has its title and the run
waits for it.

  $ $MERO -a undir_median -g $EXAMPLES/bus_line.graph --output=file=report.txt > out.txt 2>&1 &
  $ id=$(viewer) && xdotool getwindowname $id
  MERO VERSION 2.0   View Graphics
  $ sleep 1; kill -0 $! && test ! -s report.txt && echo waiting
  waiting

"Save Results" offers the file "results"; it holds the graph, the optimum counted from 1 and the
value in "%13.3lf".

  $ xdotool windowfocus --sync $id key Tab space
  $ p=$(panel 'Save results') && xdotool windowfocus --sync $p key Return
  $ sleep 1; cat results
  begin {merograph} 
  begin {location} [2,1]
  0 0  1  [Mill]
  1 0  1  [Market]
  2 0  1  [Church]
  3 0  1  [School]
  4 0  1  [Station]
  end {location}
  begin {adjlist}
  1 2 1
  2 3 1
  3 4 1
  4 5 1
  end {adjlist}
  end {merograph}
  begin {results}
  Node[3]
  end {results}
  OBJECTIVE VALUE: 
          6.000

"View Results" opens "Results of computation"; Return closes it.

  $ xdotool windowfocus --sync $id key Tab space
  $ p=$(panel 'Results of computation') && xdotool windowfocus --sync $p key Return

"Close" (four Tabs on from "View Results", which keeps the focus) lets the run write its report and end with 0; the
points stand on standard output.

  $ xdotool windowfocus --sync $id key Tab Tab Tab Tab space; wait $!; echo "[$?]"
  [0]
  $ cat out.txt; sed -n '6p' report.txt
  Open Window
  
  begin {graphpointset}
  Node [3]
  end {graphpointset}
  6

Without a window, --results writes the same file.

  $ $MERO -a undir_median -g $EXAMPLES/bus_line.graph --output=nowindowed --results=again > /dev/null
  $ cmp again results
