The discrete result viewer, driven like the other viewers through xdotool.

  $ command -v xdotool > /dev/null || exit 80
  $ viewer() { timeout 20 xdotool search --sync --onlyvisible --name '^MERO VERSION 2.0' | head -n 1; }
  $ panel() { timeout 20 xdotool search --sync --onlyvisible --name "^$1\$" | head -n 1; }

Six villages and four depots. With North (fixed cost 9) and Centre (5) open, each village goes to
the cheaper of the two: Ash 6, Birch 1, Cedar 8, Dogwood 8, Elm 8, Fir 3, so 14 + 34 = 48.

  $ $MERO -a UFL_Dualoc -d $EXAMPLES/discrete_villages.dat --output=file=report.txt > out.txt 2>&1 &
  $ id=$(viewer) && xdotool getwindowname $id
  MERO VERSION 2.0    View Graphics
  $ sleep 1; kill -0 $! && test ! -s report.txt && echo waiting
  waiting

  $ xdotool windowfocus --sync $id key Tab space
  $ p=$(panel 'Save results') && xdotool windowfocus --sync $p key Return
  $ sleep 1; cat results
  begin {results}
  OBJECTIVE VALUE: 
  48
  1 1  9 
  4 3  5 
  end {results}

"View Results" and "View Cost Matrix" open their panels; the focus stays on the button pressed.

  $ xdotool windowfocus --sync $id key Tab space
  $ p=$(panel 'Results of computation') && xdotool windowfocus --sync $p key Return
  $ xdotool windowfocus --sync $id key Tab space
  $ p=$(panel 'Cost matrix') && xdotool windowfocus --sync $p key Return

"Close" (four Tabs on from "View Cost Matrix", which keeps the focus) lets the run write its report and end with 0.

  $ xdotool windowfocus --sync $id key Tab Tab Tab Tab space; wait $!; echo "[$?]"
  [0]
  $ cat out.txt; sed -n '6p' report.txt
  Open Window
  
  48

  $ $MERO -a UFL_Dualoc -d $EXAMPLES/discrete_villages.dat --output=nowindowed --results=again > /dev/null
  $ cmp again results
