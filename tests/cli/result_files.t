Results without a screen: --picture=FILE.svg writes the first picture of the viewer of Pareto,
discrete and coordinate-free graph results too, and --results=FILE what "Save Results" writes.
Neither changes the report.

  $ cat > marks.py <<'PY'
  > import sys, xml.etree.ElementTree as ET
  > ns = "{http://www.w3.org/2000/svg}"
  > root = ET.parse(sys.argv[1]).getroot()
  > print(root.find(ns + "title").text)
  > count = {}
  > for e in root:
  >     tag = e.tag[len(ns):]
  >     if tag in ("title", "rect"): continue
  >     stroke = e.get("stroke") if e.get("stroke") not in (None, "none") else ""
  >     key = "%s %s %s" % (tag, e.get("fill"), stroke)
  >     count[key] = count.get(key, 0) + 1
  > for key in sorted(count): print(count[key], key.strip())
  > PY
  $ render() { rsvg-convert -o "$1.png" "$1" && head -c 8 "$1.png" | od -An -c | tr -s ' '; }

Four towns on a ring with two criteria: Aston (0,0) and Dunmore (0,3) and the road between them
are Pareto optimal (see the window test). The frame: x from -0.8 to 4.8, 107.1429 pixels per unit,
y from -0.8, so Aston is at (85.71, 564.29) and Dunmore at (85.71, 242.86). The road is one thick
red line; four roads, four blue node marks with their names, red marks on the two nodes and the
legend with its text.

  $ $MERO -a medPareto -g $EXAMPLES/two_criteria_square.graph --output=nowindowed > plain.txt
  $ $MERO -a medPareto -g $EXAMPLES/two_criteria_square.graph --output=nowindowed --picture=pareto.svg --results=pareto.txt | cmp - plain.txt
  $ python3 marks.py pareto.svg
  MERO VERSION 2.0   View Graphics for Q-criterial problems
  4 polygon #0000e0
  3 polygon #e00000
  4 polyline none #000000
  1 polyline none #e00000
  1 text #000000
  4 text #0000e0
  $ grep -o 'points="[^"]*" fill="none" stroke="#e00000" stroke-width="5"' pareto.svg
  points="85.71,242.86 85.71,564.29" fill="none" stroke="#e00000" stroke-width="5"
  $ render pareto.svg
   211 P N G \r \n 032 \n
  $ sed -n '/begin {results}/,$p' pareto.txt
  begin {results}
  Node[1]
  Node[4]
  Edge[4][1] 0.000000 1.000000
  end {results}
  OBJECTIVE VALUES: 
  Node[1] (        7.000,       20.000)
  Node[4] (       13.000,       11.000)
  Node[4] (       13.000,       11.000)
  Node[4] (        7.000,       20.000)

The lexicographic numbers are shown with their pieces and vectors too. The columns of the ring
by hand (road lengths 4, 3, 4, 3): Aston (7, 20), Berwick (3*4 + 1*3, 3 + 0 + 3*7) = (15, 24),
Carden (3*7, 3 + 3*4) = (21, 15), Dunmore (13, 11). The first criterion first gives Aston, the
second first Dunmore.

  $ $MERO -a loc_medLexi -g $EXAMPLES/two_criteria_square.graph --output=nowindowed --results=lexi.txt > /dev/null
  $ sed -n '/begin {results}/,$p' lexi.txt
  begin {results}
  Node[1]
  Node[4]
  end {results}
  OBJECTIVE VALUES: 
  Node[1] (        7.000,       20.000)
  Node[4] (       13.000,       11.000)

Six villages, four depots, North and Centre open (value 48): six demand discs, four depot squares,
a red ring and "=Opt" at each open depot, and one grey line from each village to its depot.

  $ $MERO -a UFL_Dualoc -d $EXAMPLES/discrete_villages.dat --output=nowindowed > plain.txt
  $ $MERO -a UFL_Dualoc -d $EXAMPLES/discrete_villages.dat --output=nowindowed --picture=villages.svg --results=villages.txt | cmp - plain.txt
  $ python3 marks.py villages.svg
  MERO VERSION 2.0    View Graphics
  6 circle #0000e0
  2 circle none #e00000
  4 polygon #00a000
  6 polyline none #a0a0a0
  10 text #000000
  2 text #e00000
  $ render villages.svg
   211 P N G \r \n 032 \n
  $ cat villages.txt
  begin {results}
  OBJECTIVE VALUE: 
  48
  1 1  9 
  4 3  5 
  end {results}

A triangle of nodes without coordinates ("NC") is laid out by the viewer: all three sides are one
hop, so the three marks form an equilateral triangle. Node c, with weights (1,1), lies at hop 1
from a (1,2) and b (2,1) and scores (3,3), which a (3,2) and b (2,3) dominate; a and b do not
dominate each other.

  $ cat > triangle.graph <<'G'
  > begin {merograph}
  > begin {location} [2,2]
  > NC 1 2 [a]
  > NC 2 1 [b]
  > NC 1 1 [c]
  > end {location}
  > begin {adjlist}
  > 1 2 1
  > 2 3 1
  > 3 1 1
  > end {adjlist}
  > end {merograph}
  > G
  $ $MERO -a loc_medPareto -g triangle.graph --output=nowindowed --picture=triangle.svg --results=triangle.txt
  begin {result}
  begin {classification}
  1|G|.|d(V,V)|Q-sum-par
  end {classification}
   end {result}
  $ python3 - triangle.svg <<'PY'
  > import sys, math, xml.etree.ElementTree as ET
  > ns = "{http://www.w3.org/2000/svg}"
  > marks = []
  > for p in ET.parse(sys.argv[1]).getroot().iter(ns + "polygon"):
  >     if p.get("fill") != "#0000e0": continue
  >     xs, ys = zip(*[tuple(map(float, q.split(","))) for q in p.get("points").split()])
  >     marks.append(((min(xs) + max(xs)) / 2, (min(ys) + max(ys)) / 2))
  > sides = [math.dist(marks[i], marks[(i + 1) % 3]) for i in range(3)]
  > print(len(marks), "marks, sides equal:", max(sides) / min(sides) < 1.02)
  > PY
  3 marks, sides equal: True
  $ render triangle.svg
   211 P N G \r \n 032 \n
  $ sed -n '/begin {results}/,$p' triangle.txt
  begin {results}
  Node[1]
  Node[2]
  end {results}
  OBJECTIVE VALUES: 
  Node[1] (        3.000,        2.000)
  Node[2] (        2.000,        3.000)

Nodes without coordinates joined by name (the village tree) are laid out as well: five node
marks, red marks on hub and east, the whole road between them in red, and the legend.

  $ $MERO -a abs_tree_median -g $EXAMPLES/village_tree.graph --output=nowindowed --picture=tree.svg > /dev/null
  $ python3 marks.py tree.svg | grep -v text
  MERO VERSION 2.0   View Graphics
  5 polygon #0000e0
  3 polygon #e00000
  4 polyline none #000000
  1 polyline none #e00000

An empty graph has no optimum: the picture holds the legend alone, the results no line.

  $ printf 'begin {merograph}\nbegin {location} [2,1]\nend {location}\nbegin {adjlist}\nend {adjlist}\nend {merograph}\n' > empty.graph
  $ $MERO -a loc_medPareto -g empty.graph --output=nowindowed --picture=empty.svg --results=empty.txt > /dev/null
  $ python3 marks.py empty.svg
  MERO VERSION 2.0   View Graphics for Q-criterial problems
  1 polygon #e00000
  1 text #000000
  $ sed -n '/begin {results}/,$p' empty.txt
  begin {results}
  end {results}
  OBJECTIVE VALUES: 

The planar viewer's "Save Results" form: the locations, the classification and the result.

  $ $MERO -a l1_sum -l $EXAMPLES/cities.loc --output=nowindowed --results=cities.txt > /dev/null
  $ cat cities.txt
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

A gauge problem's optima stand in its situations, which the viewer shows in place of the
results: the saved result holds the same polygon list as the report.

  $ $MERO -a gauge_median -l $EXAMPLES/gauge_sites.loc -d $EXAMPLES/two_gauges.gauge --output=nowindowed --results=gauge.txt > report.txt
  $ sed -n '/^begin {polygonlist}/,/^end {polygonlist}/p' report.txt > report_optima.txt
  $ sed -n '/^begin {result}/,$p' gauge.txt | sed -n '/^begin {polygonlist}/,/^end {polygonlist}/p' | diff - report_optima.txt
  $ grep -c '^begin {polygon}$' gauge.txt
  1

A results file that cannot be written ends the run before its report.

  $ $MERO -a l1_sum -l $EXAMPLES/cities.loc --output=nowindowed --results=no/such/dir/r.txt
  MERO error: Can't write results file "no/such/dir/r.txt" ErrorCode: 1516
  [1]
