The graph editor on the private display of this test. Menu entries are pressed through
--press (the entry's own Tk command, as a click runs it; the texts of the panels they show are
echoed on standard output) or with the keyboard (F10 opens "&File"); panels are answered with
Return, which presses their last button.

  $ command -v xdotool > /dev/null || exit 80
  $ export HOME=$PWD
  $ panel() { timeout 30 xdotool search --sync --onlyvisible --name "^GraphEdit: $1\$" | head -n 1; }
  $ editor() { timeout 60 xdotool search --sync --onlyvisible --name '^GraphEdit$' | head -n 1; }
  $ answer() {  # presses Return in the panel until it is gone: a key or a lookup can be lost on a busy machine
  >   local found sent= i
  >   for i in $(seq 240); do
  >     found=$(xdotool search --onlyvisible --name "^GraphEdit: $1\$" 2>&1 | head -n 1)
  >     case "$found" in
  >       "") [ -n "$sent" ] && return 0 ;;
  >       *[!0-9]*) ;;
  >       *) xdotool windowfocus --sync $found key Return 2>/dev/null; sent=1 ;;
  >     esac
  >     sleep 0.25
  >   done; return 1
  > }
  $ cat > k5.gml <<'GML'
  > graph [
  >   node [ id 1 graphics [ x 0 y 100 ] ]  node [ id 2 graphics [ x 95 y 31 ] ]
  >   node [ id 3 graphics [ x 59 y -81 ] ] node [ id 4 graphics [ x -59 y -81 ] ]
  >   node [ id 5 graphics [ x -95 y 31 ] ]
  >   edge [ source 1 target 2 ] edge [ source 1 target 3 ] edge [ source 1 target 4 ]
  >   edge [ source 1 target 5 ] edge [ source 2 target 3 ] edge [ source 2 target 4 ]
  >   edge [ source 2 target 5 ] edge [ source 3 target 4 ] edge [ source 3 target 5 ]
  >   edge [ source 4 target 5 ]
  > ]
  > GML

Test > planar on K5 shows its panel; "&done" then ends the editor with 0.

  $ timeout 120 $GRAPHEDIT --press '&Graph>&Test>planar' --press '&done' k5.gml > out.txt &
  $ answer Test; wait $!; echo "[$?]"
  [0]
  $ cat out.txt
  Test: The graph is not planar.

The orthogonal layout refuses K5 with its panel and leaves the graph.

  $ timeout 120 $GRAPHEDIT --press 'Layout>Planar Layouts>Orthogonal' --press done k5.gml > out.txt &
  $ answer Orthogonal; wait $!; cat out.txt
  Orthogonal: The graph is not planar.

Without the edge 4-5 the graph is planar, and "Make biconnected" has nothing to add.

  $ grep -v 'source 4 target 5' k5.gml > k5-e.gml
  $ timeout 120 $GRAPHEDIT --press 'Graph>Test>planar' --press 'Graph>Make>biconnected' --press done k5-e.gml > out.txt &
  $ answer Test
  $ answer 'Make biconnected'; wait $!; cat out.txt
  Test: The graph is planar.
  Make biconnected: 0 edges added.

With the mouse on an empty editor: the world runs from 0 to 100 over the 800 pixels of the
drawing area (8 pixels a unit), y upwards from the bottom of its 600 pixels, which start 50
pixels below the top of the window (the menu bar). Button 1 at (200, 200) and (400, 300) makes
nodes at (25, 56.25) and (50, 43.75); button 1 on the first and then on the second draws the
edge from node 1 to node 2. "&Save GE-Graph ...", the second entry of "&File", writes graph.ge.

  $ timeout 120 $GRAPHEDIT > out.txt 2>&1 &
  $ id=$(editor)
  $ for at in '200 200' '400 300' '200 200' '400 300'; do
  >   xdotool mousemove --window $id $at click 1; sleep 0.3
  > done
  $ xdotool windowfocus --sync $id key F10 Down Return
  $ answer 'Save GE-Graph'; sleep 1
  $ sed -n '1,8p;/^# x y/,$p' graph.ge
  ORBA.GRAPH
  string
  string
  2
  |{}|
  |{}|
  1
  1 2 0 |{}|
  # x y shape bclr bwidth r1 r2 clr ltype lclr lpos lstr
  25 56.25 0 0 1 3 3 16777215 1 0 0 
  50 43.75 0 0 1 3 3 16777215 1 0 0 
  # width clr shape style dir ltype lclr lpos sanch tanch poly lstr
  1 0 0 0 1 0 0 0 0 0 0 0 0 

Button 3 on the second node deletes it with its edge; saved again, one node is left.

  $ xdotool mousemove --window $id 400 300 click 3; sleep 0.3
  $ xdotool windowfocus --sync $id key F10 Down Return
  $ answer 'Save GE-Graph'; sleep 1
  $ sed -n '4p;6p' graph.ge
  1
  0

  $ kill $!

"undo" after "Delete > all edges" brings the ten edges of K5 back (saved as GE), "redo" takes them
away again (saved as GML).

  $ timeout 120 $GRAPHEDIT --press 'Graph>Delete>all edges' --press undo --press 'File>Save GE-Graph ...' \
  >   --press redo --press 'File>Save GML-Graph ...' --press done k5.gml > out.txt 2>&1 &
  $ answer 'Save GE-Graph'
  $ answer 'Save GML-Graph'; wait $!; echo "[$?]"
  [0]
  $ sed -n '4p;10p' graph.ge; grep -c 'edge \[' graph.gml; grep -c 'node \[' graph.gml
  5
  10
  0
  5

Options kept in .grapheditrc: the zoom factor set in "Zooming ..." (Tab selects the entry's text), and a printer command that
does not exist, so that "&Print ..." saves graph.ps and says so.

  $ timeout 120 $GRAPHEDIT --press 'Options>Zooming ...' --press done k5.gml > out.txt 2>&1 &
  $ p=$(panel Zooming) && xdotool windowfocus --sync $p key Tab && xdotool type 2
  $ xdotool key Return; wait $!; grep zoom .grapheditrc
  zoom_factor 2
  $ sed -i 's/^printer .*/printer no-such-printer-here/' .grapheditrc
  $ timeout 120 $GRAPHEDIT --press 'File>Print ...' --press done k5.gml > out.txt &
  $ answer Print; wait $!; cat out.txt
  Print: There is no printer command "no-such-printer-here": the drawing was saved in graph.ps.
  $ sed -n 2p graph.ps; grep -c ORBA_dict graph.ps
  %%Creator: ORBA GraphEdit
  3
