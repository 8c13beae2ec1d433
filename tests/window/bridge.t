The front-end bridge, in a tree of its own: bin/mero (a link to the program under test) and a
tk/merofront that calls the bridge's commands and prints what they leave.

  $ mkdir -p tree/bin tree/tk && ln -s "$MERO" tree/bin/mero
  $ cat > tree/tk/merofront <<'TCL'
  > proc try {script} {
  >   if {[catch {uplevel #0 $script} result]} { puts "error: $result" } else { puts "ok" }
  > }
  > try {random 5}
  > try {random 1 2 3}
  > try {random 1 1}
  > try {random 0 40000}
  > try {random 30000 -10000}
  > set low 100; set high -100
  > for {set i 0} {$i < 100000} {incr i} {
  >   random -3 3
  >   if {$ranint < $low} { set low $ranint }
  >   if {$ranint > $high} { set high $ranint }
  > }
  > puts "random -3 3: from $low to $high"
  > proc local {} { random 7 8; return [info exists ranint] }
  > set ::ranint before; puts "ranint local in a procedure: [local], global still [set ::ranint]"
  > puts "RestrInt: [expr {[llength [info commands RestrInt]] ? {built in} : {not built in}}]"
  > foreach file {crossing touching nested rectangles apart single} {
  >   set inters unset
  >   try [list RestrInt [file join [file dirname [info script]] .. .. $file.restr]]
  >   puts "$file: inters $inters"
  > }
  > set inters unset; try {RestrInt a b}; puts "two arguments: inters $inters"
  > set inters unset; try {RestrInt}; puts "no argument: inters $inters"
  > exit 0
  > TCL

Restriction files for RestrInt: two crossing polygons; two circles that touch in one point
(centres 2 apart, radii 1); a circle well inside a polygon and a polygon inside a circle, not
touching; two rectangles sharing a corner region; figures far apart; a single figure. Only the
crossing, touching and overlapping figures set inters to 1.

  $ figure() { printf 'begin {restriction}\n%b\nend {restriction}\n' "$2" > $1.restr; }
  $ square() { printf 'begin {polyhedron} [0]\n%s %s\n%s %s\n%s %s\n%s %s\nend {polyhedron}' $1 $2 $1 $4 $3 $4 $3 $2; }
  $ circ() { printf 'begin {circle}\n%s %s %s\nend {circle}' $1 $2 $3; }
  $ figure crossing "$(square 0 0 4 4)\n$(square 2 2 6 6)"
  $ figure touching "$(circ 0 0 1)\n$(circ 2 0 1)"
  $ figure nested "$(square 0 0 10 10)\n$(circ 5 5 2)\n$(circ 30 30 20)\n$(square 25 25 35 35)"
  $ figure rectangles 'begin {rectangle} [0]\n0 0 4 3 0\nend {rectangle}\nbegin {rectangle} [0]\n3 2 4 3 0\nend {rectangle}'
  $ figure apart "$(square 0 0 1 1)\n$(circ 10 10 2)\n$(square 20 0 21 1)"
  $ figure single "$(circ 0 0 1)"
  $ cat touching.restr
  begin {restriction}
  begin {circle}
  0 0 1
  end {circle}
  begin {circle}
  2 0 1
  end {circle}
  end {restriction}

Errors keep the process alive and come back as Tcl errors; -3..3 meets both ends (the divisor
is 32767 / 6 = 5461, and 32767 / 5461 = 6); a procedure's random sets its own ranint.

  $ tree/bin/mero
  error: wrong # args
  error: wrong # args
  error: random a b: b - a must lie between -32767 and 32767 and must not be 0
  error: random a b: b - a must lie between -32767 and 32767 and must not be 0
  error: random a b: b - a must lie between -32767 and 32767 and must not be 0
  random -3 3: from -3 to 3
  ranint local in a procedure: 1, global still before
  RestrInt: built in
  ok
  crossing: inters 1
  ok
  touching: inters 1
  ok
  nested: inters 0
  ok
  rectangles: inters 1
  ok
  apart: inters 0
  ok
  single: inters 0
  error: wrong # args
  two arguments: inters 0
  error: RestrInt file: the restriction file is missing
  no argument: inters 0

The script is looked for beside the program first, then at ../tk/merofront from the current
folder; without either the program says so and ends with status 0.

  $ mkdir -p lone/bin lone/sub && ln -s "$MERO" lone/bin/mero
  $ lone/bin/mero; echo "[$?]"
  Cannot find Tcl-script merofront.
  [0]
  $ mkdir -p tree/sub && cd tree/sub && ../../lone/bin/mero | grep nested; cd ../..
  nested: inters 0

Without a display Tk cannot start: the two lines on the error stream, and status 1.

  $ env -u DISPLAY tree/bin/mero; echo "[$?]"
  Tk_Init failed: no display name and no $DISPLAY environment variable
  this isn't a Tk application
  [1]
