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
  > exit 0
  > TCL

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
  RestrInt: not built in

The script is looked for beside the program first, then at ../tk/merofront from the current
folder; without either the program says so and ends with status 0.

  $ mkdir -p lone/bin lone/sub && ln -s "$MERO" lone/bin/mero
  $ lone/bin/mero; echo "[$?]"
  Cannot find Tcl-script merofront.
  [0]
  $ mkdir -p tree/sub && cd tree/sub && ../../lone/bin/mero | tail -n 1; cd ../..
  RestrInt: not built in

Without a display Tk cannot start: the two lines on the error stream, and status 1.

  $ env -u DISPLAY tree/bin/mero; echo "[$?]"
  Tk_Init failed: no display name and no $DISPLAY environment variable
  this isn't a Tk application
  [1]
