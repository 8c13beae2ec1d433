The location file through the whole program: comments, line ends and keywords, what the reader
passes to standard output, and one syntax error with its status. The reader's other messages are
checked one bad file each in the unit tests of the model.

  $ printf 'begin {location} [3,1]\n1 2 .5 7 [a]\nend\n' > point.loc
  $ $MERO -a l1_sum -l point.loc --output=nowindowed
  MERO error: Coordinate #3 expected in location file at line 2, found ".5 7 [a]" instead. ErrorCode: 1504
  [1]

Comments before the header, on the header, after a location (which lets one blank line slip
through) and between locations; a block comment may span lines; carriage returns are blanks.
Each file holds (1,2) of weight 3 and (4,6) of weight 1, whose median is (1,2) at cost 3 + 4 = 7:

  $ printf 'begin {location} [2,1]\n1 2 3 [a] /* a block comment\nmay run over lines */\n4 6 1 [b]\nend\n' > span.loc
  $ printf 'begin {location} [2,1]\r\n1 2 3 [a]\r\n4 6 1 [b]\r\nend\r\n' > crlf.loc
  $ for f in $DATA/location_comments.loc span.loc crlf.loc; do
  >   $MERO -a l1_sum -l $f --output=nowindowed | sed -n 6p
  > done
  7
  7
  7

Upper-case keywords, L_inf in any case, and anything after end: two locations of weight 1 at
(0,0) and (2,4) give the rectangle between them, at cost 2 + 4 = 6:

  $ printf 'BEGIN {LOCATION} [2,2]\n0 0 1 L_INF [fixed]\n2 4 1 l_inf [free]\nEND {location} and whatever follows\n1 2 x\n' > upper.loc
  $ $MERO -a l1_sum -l upper.loc --output=nowindowed | sed -n '6p;10,13p'
  6
  0 0 
  2 0 
  2 4 
  0 4 

Text before the header and behind `begin {location}` is passed to standard output (blanks are
skipped). A last line without its line end is lost, here leaving one location:

  $ printf 'notes before the header\nbegin {location}  trailing words\n1 2 3\nend\n' > text.loc
  $ $MERO -a l1_sum -l text.loc --output=nowindowed | head -1
  notesbeforetheheadertrailingwordsMERO message: There is only one location given, so this location is optimal
  $ printf 'begin {location}\n1 2 3 [a]\n4 6 1 [b]' > lost.loc
  $ $MERO -a l1_sum -l lost.loc --output=nowindowed | sed -n '1p;7p;10p'
  MERO message: There is only one location given, so this location is optimal
  0
  1 2 
