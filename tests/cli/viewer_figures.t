The figures of the planar picture beside locations and optima (--picture=FILE.svg): the unit
balls of a gauge run, the forbidden regions of a restricted run and the barrier of number 70.
Positions are worked out by hand from the frame rule of the viewer (the box of the locations,
widened by the boxes of the restrictions, then by 0.2 of its extent on each side, the x range
lengthened to the window's shape and by a further 0.1 of its length); colours are the viewer's:
unit balls cyan (#00b0c0), regions forbidden inside orange (#ff8000), outside pink (#ff70b0),
barriers brown (#904000). Each picture is also rendered with rsvg-convert.

  $ cat > figures.py <<'PY'
  > import os, subprocess, sys, xml.etree.ElementTree as ET
  > sys.path.insert(0, os.path.join(os.environ["TESTDIR"], "..", "window"))
  > from check_svg import read_png
  > ns = "{http://www.w3.org/2000/svg}"
  > svg = sys.argv[1]
  > root = ET.parse(svg).getroot()
  > names = {"#00b0c0": "ball", "#ff8000": "inside", "#ff70b0": "outside", "#904000": "barrier"}
  > for e in root:
  >     kind = names.get(e.get("stroke") or e.get("fill"))
  >     if kind and e.tag == ns + "polygon": print(kind, "polygon", e.get("points"))
  >     if kind and e.tag == ns + "circle": print(kind, "circle", e.get("cx"), e.get("cy"), e.get("r"))
  >     if kind and e.tag == ns + "text": print(kind, "text", e.text)
  > png = svg[:-4] + ".png"
  > subprocess.run(["rsvg-convert", "-o", png, svg], check=True)
  > pixel = read_png(png)
  > palette = {"ball": (0, 176, 192), "inside": (255, 128, 0), "outside": (255, 112, 176),
  >            "barrier": (144, 64, 0), "white": (255, 255, 255)}
  > def nearest(c):
  >     return min(palette, key=lambda k: sum((a - b) ** 2 for a, b in zip(palette[k], c)))
  > for at in sys.argv[2:]:
  >     x, y = map(int, at.split(","))
  >     print("pixel", at, nearest(pixel(x, y)))
  > PY

Four gauge sites (0,0), (4,0), (1,3), (3,-2), West and North with the rectilinear ball, East and
South with the triangle (2,0), (-1,1), (-1,-1). Box x [0, 4], y [-2, 3], extent 5; y [-3, 4], x
[-1, 5] lengthened to 7 * 600/650 = 6.4615, i.e. [-1.2308, 5.2308], then to [-1.5538, 5.5538]:
84.4156 pixels per unit, ymin -3. The longest extreme point is (2,0) of the triangle, so the
balls are drawn at 0.1 * 5 / 2 = 0.25 of their size: West's corner (0.25, 0) lies at
(1.8038 * 84.4156, 650 - 3 * 84.4156) = (152.27, 396.75), East's (4.5, 0) at (511.04, 396.75).
The triangle's left side stands at x = 3.75, pixel 447.73: the rendered pixels there come
nearest to cyan (the line is thinner than a pixel), those beside it are white.

  $ $MERO -a gauge_median -l $EXAMPLES/gauge_sites.loc -d $EXAMPLES/two_gauges.gauge --output=nowindowed --picture=gauges.svg > /dev/null
  $ python3 figures.py gauges.svg 447,400 447,380 440,400
  ball polygon 152.27,396.75 131.17,375.65 110.06,396.75 131.17,417.86
  ball polygon 511.04,396.75 447.73,375.65 447.73,417.86
  ball polygon 236.69,143.51 215.58,122.40 194.48,143.51 215.58,164.61
  ball polygon 426.62,565.58 363.31,544.48 363.31,586.69
  pixel 447,400 ball
  pixel 447,380 ball
  pixel 440,400 white

The county's forbidden lake, airfield and nature reserve around the towns of examples/cities.loc.
The reserve, centre (10,30) and radius 5, reaches x = 5 and the airfield's first corner y = 8,
so the box grows from x [8, 40], y [9, 47] to x [5, 40], y [8, 47]: extent 39, x [-2.8, 47.8],
y [0.2, 54.8] (54.6 * 600/650 = 50.4 needs no lengthening), x then [-5.33, 50.33], 10.7797
pixels per unit. The reserve's centre lies at (15.33 * 10.7797, 650 - 29.8 * 10.7797) =
(165.25, 328.76), its radius is 53.90 pixels, and its outline crosses the pixel (111, 329).

  $ $MERO -a in_l2sqr_sum -l $EXAMPLES/cities.loc -r $EXAMPLES/county_forbidden.restr --output=nowindowed --picture=county.svg > /dev/null
  $ python3 figures.py county.svg 111,329 165,300
  inside polygon 283.83,285.64 348.51,264.09 402.41,328.76 359.29,393.44 273.05,371.88
  inside text forbidden region inside
  inside polygon 380.85,565.92 369.69,524.27 473.81,496.37 484.97,538.02
  inside text forbidden region inside
  inside circle 165.25 328.76 53.90
  inside text forbidden region inside
  pixel 111,329 inside
  pixel 165,300 white

A forbidden square below the triangle (-5,0), (5,0), (0,5): box y [-2, 5], extent 10, x
[-7.7, 7.7] after both steps, 38.961 pixels per unit, ymin -4; the corner (-1,-2) lies at
(261.04, 572.08), (1,-1) at (338.96, 533.12). In the "out" run (55) the square is where the
facility must stand; in the barrier run (70) the same square, the first restriction, is the
barrier and is drawn as one.

  $ printf 'begin {location} [2,1]\n-5 0 1\n5 0 1\n0 5 1\nend {location}\n' > tri.loc
  $ printf 'begin {restriction}\nbegin {polyhedron} [0]\n-1 -2\n1 -2\n1 -1\n-1 -1\nend {polyhedron}\nend {restriction}\n' > square.restr
  $ $MERO -a out_l2sqr_sum -l tri.loc -r square.restr --output=nowindowed --picture=out.svg > /dev/null
  $ python3 figures.py out.svg 300,533
  outside polygon 261.04,533.12 338.96,533.12 338.96,572.08 261.04,572.08
  outside text forbidden region outside
  pixel 300,533 outside
  $ $MERO -a barr_l2_sum -l tri.loc -r square.restr --output=nowindowed --picture=barrier.svg > /dev/null
  $ python3 figures.py barrier.svg 300,533
  barrier polygon 261.04,533.12 338.96,533.12 338.96,572.08 261.04,572.08
  barrier text barrier
  pixel 300,533 barrier
