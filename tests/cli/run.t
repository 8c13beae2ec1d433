The order of a run: output, load, the one-location message, solve, window, report.

  $ printf 'begin {location} [2,1]\n1 2 3 [a]\n4 6 1 [b]\nend {location}\n' > two.loc

Without a window the report goes to standard output; the weighted median of (1,2) with weight 3
and (4,6) with weight 1 is (1,2), at distance 3 + 4 = 7 from (4,6).

  $ $MERO -a l1_sum -l two.loc --output=nowindowed | sed -n '3p;6p;9p'
  1|P|.|l1|sum
  7
  1 2 

A windowed run announces its window before the report; without a display the viewer says on the
error stream that it cannot be shown and the run goes on. With a file the report goes there and
nothing else is printed.

  $ $MERO -a l1_sum -l two.loc | head -3
  mero: no window can be shown (DISPLAY is not set); going on without windows
  Open Window
  
  begin {result}
  $ $MERO -a l1_sum -l two.loc --output=nowindowed,file=out.txt
  $ sed -n '6p;9p' out.txt
  7
  1 2 
  $ $MERO -a l1_sum -l two.loc --output=nowindowed,no/such/dir/out.txt
  MERO error: Cannot open no/such/dir/out.txt for output ErrorCode: 1001
  [1]

A failed run leaves no report: the output file is opened first and stays empty.

  $ $MERO -a l1_sum -l missing.loc --output=nowindowed,out2.txt
  MERO error: Can't open file! ErrorCode: 1503
  [1]
  $ wc -c < out2.txt
  0

One location: the message, then the solver's result all the same (the location, at cost 0).

  $ printf 'begin {location} [2,1]\n3 4 2\nend {location}\n' > one.loc
  $ $MERO -a l1_sum -l one.loc --output=nowindowed | sed -n '1p;7p;10p'
  MERO message: There is only one location given, so this location is optimal
  0
  3 4 

An empty location list stops in the kernel's list check, abnormally.

  $ printf 'begin {location} [2,1]\nend {location}\n' > none.loc
  $ { $MERO -a l1_sum -l none.loc --output=nowindowed 2>err.txt; } 2>/dev/null
  [134]
  $ cat err.txt
  
  ORBA ERROR HANDLER
  \tdlist::head(): empty list (esc)
  

A number without a solver (the graph medians with -r) runs nothing: empty classification and 0.

  $ $MERO -a dir_median -r x -l two.loc --output=nowindowed | sed -n '3p;6p;8,9p'
  
  0
  begin {polygonlist}
  end {polygonlist}

Coordinates near the largest double overflow inside a solver: the run ends with a message, not
with a report of inf and nan.

  $ printf 'begin {location} [2,1]\n1e308 1e308 1\n-1e308 -1e308 1\nend {location}\n' > huge.loc
  $ $MERO -a l2sqr_sum -l huge.loc --output=nowindowed
  MERO error: The result is not finite: coordinates or weights are too large. ErrorCode: 1013
  [1]

The window layer, the viewers and the front end live in a program of their own beside mero
(mero_window), which a console run never starts: mero links none of Tk, Tcl and X11, and a copy of
it alone in a folder still runs console problems.

  $ ldd "$MERO" 2>/dev/null | grep -cE 'libtk|libtcl|libX11'
  0
  [1]
  $ mkdir alone && cp "$MERO" alone/mero
  $ alone/mero -a l1_sum -l two.loc --output=nowindowed | sed -n 6p
  7

What needs the window program (a window, a picture, a panel for a report, the front end) ends with
the driver's message when it cannot be started, whether it is missing or no program at all. That
happens before the run has read or written anything: no report, no picture.

  $ alone/mero -a l1_sum -l two.loc --output=file=r.txt
  MERO error: Cannot start the window program: */alone/mero_window: No such file or directory ErrorCode: 1015 (glob)
  [1]
  $ alone/mero -a l1_sum -l two.loc --output=nowindowed --picture=p.svg
  MERO error: Cannot start the window program: */alone/mero_window: No such file or directory ErrorCode: 1015 (glob)
  [1]
  $ alone/mero -a l1_sum -l missing.loc
  MERO error: Cannot start the window program: */alone/mero_window: No such file or directory ErrorCode: 1015 (glob)
  [1]
  $ echo 'not a program' > alone/mero_window
  $ alone/mero
  MERO error: Cannot start the window program: */alone/mero_window: Permission denied ErrorCode: 1015 (glob)
  [1]
  $ chmod +x alone/mero_window && alone/mero -a l1_sum -l two.loc --output=nowindowed --results=r.txt
  MERO error: Cannot start the window program: */alone/mero_window: Exec format error ErrorCode: 1015 (glob)
  [1]
  $ ls r.txt
  ls: cannot access 'r.txt': No such file or directory
  [2]
  $ ls p.svg
  ls: cannot access 'p.svg': No such file or directory
  [2]
