#!/usr/bin/env bash
# Writes a road-like graph file on standard output: a grid of COLUMNS by ROWS crossings 100 m
# apart, each street between neighbouring crossings with a random length of 100 to 199 m (whole
# metres, or kilometres with three decimals when UNIT is km, whose sums round in double), one
# inhabitant per crossing. The seed is the number of crossings, so a size always gives the same
# file. Usage: bench/road_grid.sh COLUMNS ROWS [m|km] > grid.graph
set -euo pipefail
awk -v cols="$1" -v rows="$2" -v unit="${3:-m}" 'BEGIN {
  srand(cols * rows)
  print "begin {merograph}"
  print "begin {location} [2,1]"
  for (r = 0; r < rows; r++)
    for (c = 0; c < cols; c++) printf "%d %d 1\n", 100 * c, 100 * r
  print "end {location}"
  print "begin {adjlist}"
  for (r = 0; r < rows; r++)
    for (c = 0; c < cols; c++) {
      v = r * cols + c + 1
      if (c + 1 < cols) street(v, v + 1)
      if (r + 1 < rows) street(v, v + cols)
    }
  print "end {adjlist}"
  print "end {merograph}"
}
function street(a, b,   metres) {
  metres = 100 + int(rand() * 100)
  if (unit == "km") printf "%d %d %.3f\n", a, b, metres / 1000
  else printf "%d %d %d\n", a, b, metres
}'
