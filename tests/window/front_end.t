The front end tk/merofront, driven by a script that sources it in a tree of its own (bin/mero
links the program under test, and its algorithm list beside it) and then works the window as a
user would: the algorithm tree, the Examples menu, the Run button and Ctrl+R, the output pane,
the random location file and the editor.

  $ mkdir -p tree/bin tree/tk && ln -s "$MERO" tree/bin/mero
  $ ln -s "$(dirname "$MERO")/mero_algorithms.tcl" tree/bin/
  $ cat > tree/tk/merofront <<'TCL'
  > source $::env(SOURCE)/tk/merofront
  > proc pane {} { return [.pane.right.out.text get 1.0 end-1c] }
  > proc show {} { foreach line [split [string trimright [pane]] \n] { puts "| $line" } }
  > proc run_and_wait {script} {
  >   after 20000 { puts "the run did not end"; exit 1 }
  >   uplevel #0 $script
  >   vwait ::front::last_status
  > }
  > proc menu_entry {menu label} {
  >   for {set i 0} {$i <= [$menu index end]} {incr i} {
  >     if {[$menu type $i] eq "command" && [$menu entrycget $i -label] eq $label} { $menu invoke $i; return }
  >   }
  >   error "no entry $label"
  > }
  > update
  > .pane.left.tree selection set alg:A:l1_max
  > update
  > puts "$::front::chosen_title: $::front::needs_text"
  > foreach {name chain} {N_median_greedy A lp_sum A in_l1_sum R restr_gauge_center RG N_l2sqr_sum N UFL_Greedy A} {
  >   ::front::choose $name $chain
  >   puts "$name: $::front::needs_text [.pane.right.form.ep instate disabled]"
  > }
  > menu_entry .menu.examples "Seven towns: rectilinear median"
  > set ::front::windowed 0
  > run_and_wait { .pane.right.form.run invoke }
  > show
  > puts "status line: $::front::status"
  > set ::front::field(-l) [pwd]/bad.loc
  > run_and_wait { focus -force .; event generate . <Control-r> }
  > set ::front::field(-l) [pwd]/missing.loc
  > ::front::run
  > show
  > set out [open random.loc w]
  > puts -nonewline $out [::front::random_locations 6 0 10 -5 -5 1 3]
  > close $out
  > set ::front::field(-l) [pwd]/random.loc
  > run_and_wait ::front::run
  > puts "random file: [lindex [split [pane] \n] 3] ... status $::front::last_status"
  > file copy random.loc random_kept.loc
  > ::front::editor [pwd]/random.loc
  > .editor.text delete 1.0 end
  > .editor.text insert end "begin {location} \[2,1\]\n1 1 1\n3 1 1\n3 5 2\nend {location}\n"
  > ::front::editor_save
  > run_and_wait ::front::run
  > show
  > set ::front::windowed 1
  > set ::front::field(-l) [pwd]/bad.loc
  > run_and_wait { ::front::run; after 1500 ::front::stop }
  > show
  > proc tk_messageBox {args} { puts "[dict get $args -icon]: [lindex [split [dict get $args -message] \n] 0]" }
  > foreach f {overlap inside broken} { puts "$f:"; ::front::check_restrictions [pwd]/$f.restr }
  > exit 0
  > TCL
  $ printf 'begin {location} [2,1]\n1 2 oops\nend {location}\n' > bad.loc
  $ printf 'begin {restriction}\nbegin {polyhedron} [0]\n0 0\n0 4\n4 4\n4 0\nend {polyhedron}\nbegin {polyhedron} [0]\n2 2\n2 6\n6 6\n6 2\nend {polyhedron}\nend {restriction}\n' > overlap.restr
  $ printf 'begin {restriction}\nbegin {polyhedron} [0]\n0 0\n0 9\n9 9\n9 0\nend {polyhedron}\nbegin {circle}\n4 4 2\nend {circle}\nend {restriction}\n' > inside.restr
  $ printf 'begin {restriction}\nbegin {polyhedron} [5]\n0 0\n1 0\n0 1\nend {polyhedron}\nend {restriction}\n' > broken.restr

The tree and the form: each algorithm says what it needs, and the p field is open only where p
is needed (disabled 0).

  $ tree/bin/mero > front.txt 2>&1; echo "[$?]"
  [0]
  $ sed -n '1,7p' front.txt
  l1_max  (number 5): Needs location file (-l).
  N_median_greedy: Needs graph file (-g) and the number N of new facilities (-n). 1
  lp_sum: Needs location file (-l) and the norm p (-p). 0
  in_l1_sum: Needs location file (-l) and restriction file (-r). 1
  restr_gauge_center: Needs location file (-l), restriction file (-r) and gauge file (-d, after the location file). 1
  N_l2sqr_sum: Needs location file (-l) and matrix file (-m). 1
  UFL_Greedy: Needs discrete file (-d). 1

The example of the seven towns, run with the Run button: the weighted medians of the coordinates
are x = 25 (weights up to x = 19 sum to 124, up to 25 to 166, of 277) and y = 31 (102, then
144), at a cost of 85*22 + 18*22 + 27*26 + 63*31 + 12*28 + 30*15 = 5707.

  $ sed -n '8,22p' front.txt
  | $ mero -a l1_sum -l */examples/cities.loc --output=nowindowed (glob)
  | begin {result}
  | begin {classification}
  | 1|P|.|l1|sum
  | end {classification}
  | begin {objective value} 
  | 5707
  | end {objective value}
  | begin {polygonlist}
  | 25 31 
  | end {polygonlist}
  | end {result}
  | 
  | mero ended normally.
  status line: Done.

A bad file, run with Ctrl+R: the reader's error line and the failed status are shown; a missing
file is caught before any run and said below.

  $ sed -n '23,28p' front.txt
  | $ mero -a l1_sum -l */bad.loc --output=nowindowed (glob)
  | MERO error: Weight #1 expected in location file at line 2, found "oops" instead ErrorCode: 1504
  | 
  | mero ended with status 1: the run failed (see the error above).
  | Cannot read */missing.loc. (glob)
  random file: 1|P|.|l1|sum ... status 0

A random file from the generator (six points with x in [0, 10], y = -5, weights in [1, 3]) runs.
The editor's saved file, of total weight 4, then has x = 3 (weight 1 at x = 1, 3 at x = 3) and y
anywhere from 1 to 5 (weight 2 at each end): the segment from (3, 1) to (3, 5), at a cost of
1*2 + 1*0 + 2*4 = 10.

  $ grep -c '^[0-9]* -5 [123] \[P[1-6]\]$' random_kept.loc
  6
  $ sed -n '29,45p' front.txt
  | $ mero -a l1_sum -l */random.loc --output=nowindowed (glob)
  | begin {result}
  | begin {classification}
  | 1|P|.|l1|sum
  | end {classification}
  | begin {objective value} 
  | 10
  | end {objective value}
  | begin {polygonlist}
  | begin {polygon}
  | 3 1 
  | 3 5 
  | end {polygon}
  | end {polygonlist}
  | end {result}
  | 
  | mero ended normally.

A windowed run of the bad file waits on its error panel until the Stop button's command ends it.

  $ sed -n '46,48p' front.txt
  | $ mero -a l1_sum -l */bad.loc --output=windowed (glob)
  | 
  | mero was stopped (killed by SIGTERM).

Restriction files chosen in the form are checked: two crossing squares get the overlap warning,
a circle inside a square without touching gets none, and a file the reader refuses gets the
reader's complaint from a child run instead (the front end itself stays up).

  $ sed -n '49,$p' front.txt
  overlap:
  warning: The figures of this restriction file overlap or touch.
  inside:
  broken:
  error: mero cannot read this restriction file:
