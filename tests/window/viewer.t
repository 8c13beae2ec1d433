The planar result viewer of a windowed run, on the private display of this test, driven with
the keyboard through xdotool: Tab walks the button row from "Save Results" on, the space presses
the button that has the focus, and in a panel Return presses its last button.

  $ command -v xdotool > /dev/null || exit 80
  $ viewer() { timeout 20 xdotool search --sync --onlyvisible --name '^MERO VERSION 2.0' | head -n 1; }
  $ panel() { timeout 20 xdotool search --sync --onlyvisible --name "^$1\$" | head -n 1; }

Seven towns; their rectilinear median is (25, 31): the weighted medians of x (8, 12, 19, 25 ...
with weights 27, 85, 12, 42: 166 of 277 at 25) and of y (9, 15, 22, 31 with 12, 63, 27, 42: 144 of
277 at 31). The window opens at (650, 150) with its title, and the run waits for it.

  $ $MERO -a l1_sum -l $EXAMPLES/cities.loc --output=file=report.txt > out.txt 2>&1 &
  $ id=$(viewer) && xdotool getwindowname $id
  MERO VERSION 2.0   View Graphics:1|P|.|l1|sum
  $ xdotool getwindowgeometry $id | grep Position
    Position: 650,150 (screen: 0)
  $ sleep 1; kill -0 $! && test ! -s report.txt && echo waiting
  waiting

"Save Results" asks for a file in the panel "Save results"; the file holds the locations as a
location file, the classification and the result.

  $ xdotool windowfocus --sync $id key Tab space
  $ p=$(panel 'Save results') && xdotool windowfocus --sync $p key Tab && xdotool type saved.txt && xdotool key Return
  $ sleep 1; cat saved.txt
  begin {location} [2,1]
  12 40  85  [Aldford]
  25 31  42  [Bramley]
  31 47  18  [Carrow]
  8 22  27  [Dunmore]
  40 15  63  [Eastwick]
  19 9  12  [Fenby]
  35 36  30  [Granton]
  end {location}
  begin {classification}
  1|P|.|l1|sum
  end {classification}
  begin {result}
  begin {polygonlist}
  25 31 
  end {polygonlist}
  end {result}

A save into a folder that does not exist shows "Can't open file ..." and the viewer stays.

  $ xdotool windowfocus --sync $id key space
  $ p=$(panel 'Save results') && xdotool windowfocus --sync $p key Tab && xdotool type no/such/x.txt && xdotool key Return
  $ sleep 1; p=$(panel 'Save results') && xdotool windowfocus --sync $p key Return
  $ sleep 1; xdotool search --onlyvisible --name '^MERO VERSION 2.0' | wc -l
  1

"Close" (six Tabs on from "Save Results") lets the run write its report and end with 0.

  $ xdotool windowfocus --sync $id key Tab Tab Tab Tab Tab Tab space; wait $!; echo "[$?]"
  [0]
  $ cat out.txt; sed -n '6p;9p' report.txt
  Open Window
  
  5707
  25 31 
