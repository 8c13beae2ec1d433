The planar result viewer's first picture written without a screen (--picture=FILE.svg). The
positions below are worked out by hand from the frame rule: the box of the locations widened by
0.2 of the extent on each side, the x range lengthened until it fits the 600 by 650 window at the
y range's height, then by a further 0.1 of its length, half at each end.

  $ cat > marks.py <<'PY'
  > import sys, xml.etree.ElementTree as ET
  > ns = "{http://www.w3.org/2000/svg}"
  > root = ET.parse(sys.argv[1]).getroot()
  > print(root.get("width"), root.get("height"), root.find(ns + "title").text)
  > kinds = {"#0000e0": "location", "#e00000": "optimum"}
  > for c in root.iter(ns + "circle"):
  >     print(kinds.get(c.get("fill"), c.get("fill")), c.get("cx"), c.get("cy"), c.get("r"))
  > for t in root.iter(ns + "text"):
  >     if t.get("fill") != "#000000": print("text", t.text)
  > PY

Three locations (0,0), (2,4), (4,0): extent 4, x and y ranges [-0.8, 4.8] (5.6 long, more than
the 5.6 * 600/650 = 5.17 the shape needs), widened by 0.28 on each side to [-1.08, 5.08]. Scale
600 / 6.16 = 97.4026 pixels per unit, ymin -0.8. So (0,0) is at (1.08 * 97.4026,
650 - 0.8 * 97.4026) = (105.19, 572.08), (2,4) at (300.00, 650 - 4.8 * 97.4026) = (300.00, 182.47),
(4,0) at (494.81, 572.08); a location mark has the radius 0.01 * 4 * 97.4026 = 3.90, an optimum
twice that. The rectilinear median is (2,0) at cost 8.

  $ printf 'begin {location}\n0 0 1\n2 4 1\n4 0 1\nend\n' > tri.loc
  $ $MERO -a l1_sum -l tri.loc --output=nowindowed --picture=tri.svg
  begin {result}
  begin {classification}
  1|P|.|l1|sum
  end {classification}
  begin {objective value} 
  8
  end {objective value}
  begin {polygonlist}
  2 0 
  end {polygonlist}
  end {result}
  $ python3 marks.py tri.svg
  600 650 MERO VERSION 2.0   View Graphics:1|P|.|l1|sum
  optimum 300.00 572.08 7.79
  location 105.19 572.08 3.90
  location 300.00 182.47 3.90
  location 494.81 572.08 3.90

The report does not change with the option.

  $ $MERO -a l1_sum -l tri.loc --output=nowindowed > plain.txt
  $ $MERO -a l1_sum -l tri.loc --output=nowindowed --picture=again.svg | cmp - plain.txt

A windowed run without a display announces the window, opens no viewer, waits for nothing and
writes the same picture and report.

  $ $MERO -a l1_sum -l tri.loc --picture=windowed.svg > windowed.txt; echo "[$?]"
  mero: no window can be shown (DISPLAY is not set); going on without windows
  [0]
  $ head -n 2 windowed.txt; tail -n +3 windowed.txt | cmp - plain.txt
  Open Window
  
  $ cmp windowed.svg tri.svg

A tall set: (0,0) and (0,10) with their names. Extent 10, x range [-2, 2], y range [-2, 12]; the
shape needs 14 * 600/650 = 12.9231 in x, so x becomes [-6.4615, 6.4615], and with the further
0.1 of 12.9231 [-7.1077, 7.1077]. Scale 600 / 14.2154 = 42.2078, so both marks are at x = 300.00,
y = 650 - 2 * 42.2078 = 565.58 and 650 - 12 * 42.2078 = 143.51; radius 0.1 * 42.2078 = 4.22.

  $ printf 'begin {location} [2,1]\n0 0 1 [South]\n0 10 3 [North]\nend {location}\n' > tall.loc
  $ $MERO -a l1_sum -l tall.loc --output=nowindowed --picture=tall.svg > /dev/null
  $ python3 marks.py tall.svg | grep -v optimum
  600 650 MERO VERSION 2.0   View Graphics:1|P|.|l1|sum
  location 300.00 565.58 4.22
  location 300.00 143.51 4.22
  text South
  text North

Weights are shown only after "Show/Hide Weights": the first picture has the names alone.

  $ grep -c '>1.00<\|>3.00<' tall.svg
  0
  [1]

The line entry (numbers from 300 on) draws the line through the pair, not marks. For the
triangle the first least pair is (0,0), (2,4) (each of the two slanted lines leaves the third
point 8 / sqrt(5) = 3.5777 away, the base line 4). In pixels the line has the slope -2 through
(105.19, 572.08), and it is drawn beyond the frame.

  $ $MERO -a L_l2_sum_M3 -l tri.loc --output=nowindowed --picture=line.svg | sed -n 6p
  3.57771
  $ python3 - line.svg <<'PY'
  > import sys, xml.etree.ElementTree as ET
  > ns = "{http://www.w3.org/2000/svg}"
  > root = ET.parse(sys.argv[1]).getroot()
  > lines = [p for p in root.iter(ns + "polyline") if p.get("stroke") == "#e00000"]
  > print(len(lines), "line,", len([c for c in root.iter(ns + "circle") if c.get("fill") == "#e00000"]), "optimum marks")
  > (x1, y1), (x2, y2) = [tuple(map(float, q.split(","))) for q in lines[0].get("points").split()]
  > on = all(abs((y - 572.08) + 2 * (x - 105.19)) < 0.05 for x, y in ((x1, y1), (x2, y2)))
  > print("on the line:", on, "leaves the frame:", min(x1, x2) < 0 and max(y1, y2) > 650)
  > PY
  1 line, 0 optimum marks
  on the line: True leaves the frame: True

A picture file that cannot be written ends the run before its report.

  $ $MERO -a l1_sum -l tri.loc --output=nowindowed --picture=no/such/dir/x.svg; echo "[$?]"
  MERO error: Can't write picture file "no/such/dir/x.svg" ErrorCode: 1515
  [1]

