The windowed faces of the reporters, on the private display of this test: a windowed run shows
its panels, which xdotool answers with the keyboard (Return presses the last button, Escape the
first). Nothing is printed on the console while a panel is shown.

  $ command -v xdotool > /dev/null || exit 80
  $ panel() { timeout 20 xdotool search --sync --onlyvisible --name "^$1\$" | head -n 1; }

A failing windowed run shows "MERO-ERROR"; after "OK" the process ends with status 1.

  $ $MERO -a l1_sum -l missing.loc > out.txt 2>&1 &
  $ id=$(panel MERO-ERROR) && xdotool getwindowname $id
  MERO-ERROR
  $ xdotool key Return; wait $!; echo "[$?]"
  [1]
  $ cat out.txt

An option error uses the same panel; this time "OK" is clicked with the mouse, in the middle of
the button row at the bottom of the panel.

  $ $MERO -x > out.txt 2>&1 &
  $ eval "$(xdotool getwindowgeometry --shell "$(panel MERO-ERROR)")"
  $ xdotool mousemove $((X + WIDTH / 2)) $((Y + HEIGHT - 18)) click 1; wait $!; echo "[$?]"
  [1]
  $ cat out.txt

A message that goes on (one location) shows "MERO-MESSAGE"; after "OK" the run goes on to its
report, after the result viewer is closed (seven Tabs reach its "Close", the space presses it).

  $ printf 'begin {location} [2,1]\n3 4 2\nend {location}\n' > one.loc
  $ $MERO -a l1_sum -l one.loc --output=file=one.txt > out.txt 2>&1 &
  $ id=$(panel MERO-MESSAGE) && xdotool getwindowname $id
  MERO-MESSAGE
  $ xdotool key Return
  $ id=$(timeout 20 xdotool search --sync --onlyvisible --name '^MERO VERSION 2.0' | head -n 1)
  $ xdotool windowfocus --sync $id key Tab Tab Tab Tab Tab Tab Tab space; wait $!; echo "[$?]"
  [0]
  $ cat out.txt; sed -n '6p;9p' one.txt
  Open Window
  
  0
  3 4 

A message that ends the run (all weights zero) ends it with status 0 after "OK", without a report.

  $ printf 'begin {location} [2,1]\n1 1 0\n2 2 0\nend {location}\n' > zero.loc
  $ $MERO -a l1_sum -l zero.loc > out.txt 2>&1 &
  $ panel MERO-MESSAGE > /dev/null && xdotool key Return; wait $!; echo "[$?]"
  [0]
  $ cat out.txt

The question of a disconnected graph opens at (780, 150) with "cancel" and "ok": "ok" goes on
(to the graph viewer, closed here with its "Close", the sixth button), "cancel" ends the run with
status 1.

  $ printf 'begin {merograph}\nbegin {location} [2,1]\n0 0 1 [a]\n1 0 1 [b]\n5 0 1 [c]\n6 0 1 [d]\n' > two.graph
  $ printf 'end {location}\nbegin {adjlist}\n1 2 1\n3 4 1\nend {adjlist}\nend {merograph}\n' >> two.graph
  $ $MERO -a undir_median -g two.graph --output=file=graph.txt > out.txt 2>&1 &
  $ id=$(panel MERO-MESSAGE) && xdotool getwindowgeometry $id | grep Position
    Position: 780,150 (screen: 0)
  $ xdotool key Return
  $ v=$(timeout 20 xdotool search --sync --onlyvisible --name '^MERO VERSION 2.0' | head -n 1) && xdotool windowfocus --sync $v key Tab Tab Tab Tab Tab Tab space; wait $!; echo "[$?]"
  [0]
  $ grep -c 'begin {result}' graph.txt
  1
  $ $MERO -a undir_median -g two.graph --output=file=cancel.txt > out.txt 2>&1 &
  $ panel MERO-MESSAGE > /dev/null && xdotool key Escape; wait $!; echo "[$?]"
  [1]
  $ cat out.txt; wc -c < cancel.txt
  0

Without a display, or when Tk cannot start on it, a windowed run says once on the error stream
that no window can be shown and goes on with the console faces; nothing waits.

  $ env -u DISPLAY $MERO -a l1_sum -l one.loc 2>&1 | head -n 3
  mero: no window can be shown (DISPLAY is not set); going on without windows
  MERO message: There is only one location given, so this location is optimal
  Open Window
  $ DISPLAY=:9999 $MERO -x 2>&1
  mero: no window can be shown (Tk: couldn't connect to display ":9999"); going on without windows
  MERO error: Unrecognized option -x ErrorCode: 1005
  [1]
