The picture of a result on a graph written without a screen (--picture=FILE.svg), for the five
stops of the bus line (x = 0 to 4 on y = 0). The frame: the box widened by a fifth of its larger
side (4) on the left, the right and below, so x runs from -0.8 to 4.8 (5.6 long) and y starts at
-0.8; the window's 600 pixels over 5.6 units make 107.1429 pixels per unit. A stop at x is at
pixel ((x + 0.8) * 107.1429, 650 - 0.8 * 107.1429) = (.., 564.29); its mark is a square of
half-size 0.02 * 5.6 * 107.1429 = 12 pixels. The 1-median of five equal stops is the middle one,
Church (x = 2, pixel x 300), marked by a red square of half-size 18.

  $ cat > squares.py <<'PY'
  > import sys, xml.etree.ElementTree as ET
  > ns = "{http://www.w3.org/2000/svg}"
  > root = ET.parse(sys.argv[1]).getroot()
  > print(root.find(ns + "title").text)
  > kinds = {"#0000e0": "node", "#e00000": "optimum"}
  > for p in root.iter(ns + "polygon"):
  >     if p.get("fill") not in kinds: continue
  >     xs, ys = zip(*[tuple(map(float, q.split(","))) for q in p.get("points").split()])
  >     print(kinds[p.get("fill")], "%.2f %.2f %.2f" % ((min(xs) + max(xs)) / 2, (min(ys) + max(ys)) / 2, (max(xs) - min(xs)) / 2))
  > print(len([l for l in root.iter(ns + "polyline") if l.get("stroke") == "#000000"]), "black lines")
  > PY
  $ $MERO -a undir_median -g $EXAMPLES/bus_line.graph --output=nowindowed --picture=bus.svg > plain.txt
  $ $MERO -a undir_median -g $EXAMPLES/bus_line.graph --output=nowindowed | cmp - plain.txt
  $ python3 squares.py bus.svg
  MERO VERSION 2.0   View Graphics
  node 85.71 564.29 12.00
  node 192.86 564.29 12.00
  node 300.00 564.29 12.00
  node 407.14 564.29 12.00
  node 514.29 564.29 12.00
  optimum 300.00 564.29 18.00
  optimum 30.00 30.00 12.00
  4 black lines

The last red square is the legend's mark, 0.05 of the span (30 pixels) in from the top left
corner, beside the label and "=Opt".

  $ grep -o '>[^<]*=Opt<' bus.svg
  >1|G|.|d(V,V)|sum=Opt<
