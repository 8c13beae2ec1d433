The gauge editor, reached from the planar viewer of a gauge run, on the private display of this
test. xdotool drives it with the keyboard: Tab moves the focus along a button row (shift+Tab
back), the space presses the focused button, and in a panel Return presses its last button. Tk
keeps the focus of each window, so each Tab count below starts from the button pressed last.

  $ command -v xdotool > /dev/null || exit 80
  $ find_window() { timeout 20 xdotool search --sync --onlyvisible --name "^$1\$" | head -n 1; }
  $ gone() { sleep 1; xdotool search --onlyvisible --name "^$1\$" | wc -l; }
  $ answer() { p=$(find_window "$1") && xdotool windowfocus --sync $p key Tab && xdotool type "$2" && xdotool key Return; }

Four sites with two gauges (the rectilinear ball and the triangle (2,0), (-1,1), (-1,-1)); the
median's optima, two situations, give "Crit Situation" too, so "View Gauge" is the fifth button.

  $ timeout 120 $MERO -a gauge_median -l $EXAMPLES/gauge_sites.loc -d $EXAMPLES/two_gauges.gauge --output=file=report.txt > out.txt 2>&1 &
  $ viewer=$(find_window 'MERO VERSION 2.0   View Graphics:1|P|.|gauges|sum') && echo found
  found
  $ xdotool windowfocus --sync $viewer key Tab Tab Tab Tab Tab space

"Number of gauge" asks for an index from 0 to 1; 5 is refused and the panel stays, 1 opens the
triangle in the window "View Gauge". (A panel takes the focus itself: Tab goes to its entry and
selects the text there, which the typed answer replaces.)

  $ answer 'Number of gauge' 5; gone 'View Gauge'; gone 'Number of gauge'
  0
  1
  $ answer 'Number of gauge' 1
  $ view=$(find_window 'View Gauge') && xdotool getwindowname $view
  View Gauge

The drawing, 400 by 400 pixels at the bottom of the window: the triangle's coordinates run from
-1 to 2, its larger extent is 3, so both axes run from -1.3 to 2.3, 111.11 pixels per unit. The
corner (2, 0) is at the pixel (366.67, 255.56) with its red mark, the ray to it runs along the
row 256 in blue (at (250, 256)), the left side x = -1 stands at the column 33.33 in red, and the
point (0.5, 0.2) inside the ball, pixel (200, 233), stays white.

  $ sleep 1; xwd -silent -id $view > view.xwd
  $ python3 - view.xwd <<'PY'
  > import struct, sys
  > data = open(sys.argv[1], "rb").read()
  > h = struct.unpack(">25I", data[:100])
  > size, width, height, order, line, colours = h[0], h[4], h[5], h[7], h[12], h[19]
  > assert h[11] == 32, "32 bits per pixel"
  > base, top, left = size + colours * 12, height - 400, (width - 400) // 2
  > def pixel(x, y):
  >     b = data[base + (top + y) * line + 4 * (left + x):][:4]
  >     return (b[2], b[1], b[0]) if order == 0 else (b[1], b[2], b[3])
  > for x, y in ((366, 255), (250, 256), (33, 300), (200, 233)):
  >     print(x, y, pixel(x, y))
  > PY
  366 255 (224, 0, 0)
  250 256 (0, 0, 224)
  33 300 (224, 0, 0)
  200 233 (255, 255, 255)

"Save Gauge" writes the shown gauge under the name of its file panel.

  $ xdotool windowfocus --sync $view key Tab space && answer 'Save Gauge' triangle.gauge; sleep 1
  $ cat triangle.gauge
  begin {polygauge}
  2 0
  -1 1
  -1 -1
  end {polygauge}

"Create Gauge" asks for winmin and winmax (-2 and 2 stand in the panel) and opens "Create a
Gauge": 600 by 600 pixels over [-2, 2], 150 pixels per unit, so the pixel (450, 300) of the drawing
is the point (1, 0) and (375, 150) is (0.5, 1). The drawing sits at the bottom of the window,
centred.

  $ xdotool windowfocus --sync $view key Tab Tab space
  $ p=$(find_window 'Initialize window:') && xdotool windowfocus --sync $p key Return
  $ create=$(find_window 'Create a Gauge') && echo found
  found
  $ eval "$(xdotool getwindowgeometry --shell $create)"; left=$(( (WIDTH - 600) / 2 )); top=$(( HEIGHT - 600 ))
  $ at() { xdotool mousemove --window $create $((left + $1)) $((top + $2)) click 1; sleep 0.3; }

Keys and clicks reach the program in their order only as fast as it takes them, so a second's
pause lets the buttons act before the next clicks.

An empty list cannot be saved: the message panel comes and the window stays.

  $ xdotool windowfocus --sync $create key Tab Tab Tab Tab Tab space
  $ p=$(find_window MERO-MESSAGE) && xdotool windowfocus --sync $p key Return; gone MERO-MESSAGE
  0

Two symmetric clicks give the parallelogram (1,0), (0.5,1), (-1,0), (-0.5,-1); "Append to
Gauge-List" keeps it. Then without symmetry ("Symmetr/Unsymmetr"), after "Clear", three clicks
give the triangle (0,1), (-1,0), (1,-1) (pixels (300,150), (150,300), (450,450)), which "Create
Gauge" saves in the order of the hull from the corner of least angle.

  $ sleep 1; at 450 300; at 375 150
  $ xdotool windowfocus --sync $create key shift+Tab space
  $ xdotool windowfocus --sync $create key Tab Tab Tab space shift+Tab shift+Tab shift+Tab shift+Tab space
  $ sleep 1; at 450 450; at 300 150; at 150 300
  $ xdotool windowfocus --sync $create key shift+Tab shift+Tab space && answer 'Save Gauge' made.gauge; sleep 1
  $ cat made.gauge
  begin {polygauge}
  0 1
  -1 0
  1 -1
  end {polygauge}

"Append to Gauge-List" and "Save Gauge-List" write both gauges as a list.

  $ xdotool windowfocus --sync $create key Tab Tab Tab space Tab space && answer 'Save Gauge-List' list.gauge; sleep 1
  $ cat list.gauge
  begin {polygaugelist}
  begin {polygauge}
  1 0
  0.5 1
  -1 0
  -0.5 -1
  end {polygauge}
  begin {polygauge}
  0 1
  -1 0
  1 -1
  end {polygauge}
  end {polygaugelist}

Two points make no gauge: "Create Gauge" shows the message, and the window stays.

  $ xdotool windowfocus --sync $create key shift+Tab shift+Tab space
  $ sleep 1; at 450 300; at 300 150
  $ xdotool windowfocus --sync $create key shift+Tab shift+Tab space
  $ p=$(find_window MERO-MESSAGE) && xdotool windowfocus --sync $p key Return; gone MERO-MESSAGE; gone 'Create a Gauge'
  0
  1

"Close" (the ninth button) ends the creation; back in "View Gauge", "Load Gauge" reads the list
and shows its first gauge, which "Save Gauge" then writes.

  $ xdotool windowfocus --sync $create key Tab Tab Tab Tab Tab Tab Tab Tab space; gone 'Create a Gauge'
  0
  $ xdotool windowfocus --sync $view key shift+Tab space && answer 'Load Gauge' list.gauge
  $ xdotool windowfocus --sync $view key shift+Tab space && answer 'Save Gauge' first.gauge; sleep 1
  $ cat first.gauge
  begin {polygauge}
  1 0
  0.5 1
  -1 0
  -0.5 -1
  end {polygauge}

"Close" of "View Gauge" returns to the viewer, whose "Close" (four Tabs on) lets the run write its
report and end with 0.

  $ xdotool windowfocus --sync $view key Tab Tab Tab Tab space; gone 'View Gauge'
  0
  $ xdotool windowfocus --sync $viewer key Tab Tab Tab Tab space; wait $!; echo "[$?]"
  [0]
  $ head -n 1 out.txt; sed -n 3p report.txt
  Open Window
  1|P|.|gauges|sum

With one gauge there is no "View Gauge": the same sites all measured with the rectilinear ball
have one optimum, (3, 0), so neither "View Gauge" nor "Crit Situation" stands in the row. The
fifth button is then "Show/Hide Optima", which opens no panel, and "Close" is the seventh.

  $ printf 'begin {polygaugelist}\nbegin {polygauge}\n1 0\n0 1\n-1 0\n0 -1\nend {polygauge}\nend {polygaugelist}\n' > one.gauge
  $ sed 's/{1}/{0}/' $EXAMPLES/gauge_sites.loc > one.loc
  $ timeout 60 $MERO -a gauge_median -l one.loc -d one.gauge --output=file=one.txt > out.txt 2>&1 &
  $ viewer=$(find_window 'MERO VERSION 2.0   View Graphics:1|P|.|gauges|sum') && echo found
  found
  $ xdotool windowfocus --sync $viewer key Tab Tab Tab Tab Tab space; gone 'Number of gauge'
  0
  $ xdotool windowfocus --sync $viewer key Tab Tab space; wait $!; echo "[$?]"
  [0]
  $ sed -n 9p one.txt
  3 0 
