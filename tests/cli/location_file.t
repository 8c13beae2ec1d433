The location file: header, location lines, comments and every message of its reader. Each bad
file holds one fault; the message joins the offending token and the rest of its line.

A missing file, and a directory in its place:

  $ $MERO -a l1_sum -l $DATA/location_no_such_file.loc --output=nowindowed
  MERO error: Can't open file! ErrorCode: 1503
  [1]
  $ $MERO -a l1_sum -l $DATA --output=nowindowed
  MERO error: Can't open file! ErrorCode: 1503
  [1]

Header faults:

  $ $MERO -a l1_sum -l $DATA/location_dimension_small.loc --output=nowindowed
  MERO error: Dimension too small in location file at line 1. ErrorCode: 1504
  [1]
  $ $MERO -a l1_sum -l $DATA/location_dimension_missing.loc --output=nowindowed
  MERO error: Dimension expected in location file at line 1, found "two,1]" instead. ErrorCode: 1504
  [1]
  $ $MERO -a l1_sum -l $DATA/location_weight_dim_separator.loc --output=nowindowed
  MERO error: Weight dimension expected in location file at line 1, found ";1]" instead. ErrorCode: 1504
  [1]
  $ $MERO -a l1_sum -l $DATA/location_weight_dim_negative.loc --output=nowindowed
  MERO error: Weight dimension expected in location file at line 1, found "-1]" instead. ErrorCode: 1504
  [1]
  $ $MERO -a l1_sum -l $DATA/location_closing_bracket.loc --output=nowindowed
  MERO error: Closing bracket expected in location file at line 1, found "} x" instead. ErrorCode: 1504
  [1]

A coordinate owns the blank behind it, so the last coordinate cannot end its line; and a number
that starts with a point is no number:

  $ $MERO -a l1_sum -l $DATA/location_coordinate_missing.loc --output=nowindowed
  MERO error: Coordinate #2 expected in location file at line 2, found "2" instead. ErrorCode: 1504
  [1]
  $ $MERO -a l1_sum -l $DATA/location_coordinate_point.loc --output=nowindowed
  MERO error: Coordinate #3 expected in location file at line 2, found ".5 7 [a]" instead. ErrorCode: 1504
  [1]

Weight faults (this message has no closing full stop):

  $ $MERO -a l1_sum -l $DATA/location_coordinate_at_line_end.loc --output=nowindowed
  MERO error: Weight #1 expected in location file at line 2, found "[a]" instead ErrorCode: 1504
  [1]
  $ $MERO -a l1_sum -l $DATA/location_weight_word.loc --output=nowindowed
  MERO error: Weight #2 expected in location file at line 2, found "heavy [a]" instead ErrorCode: 1504
  [1]

A weight dimension of 0 still reads one weight, which then has no place to go:

  $ $MERO -a l1_sum -l $DATA/location_weight_dim_zero.loc --output=nowindowed
  MERO error: Index out of range. ErrorCode: 1209
  [1]

Names:

  $ $MERO -a l1_sum -l $DATA/location_second_name.loc --output=nowindowed
  MERO error: Second name ("b") found in location file at line 2. ErrorCode: 1504
  [1]
  $ $MERO -a l1_sum -l $DATA/location_end_of_line.loc --output=nowindowed
  MERO error: End of line expected in location file at line 2, found "4 5" instead. ErrorCode: 1504
  [1]
  $ $MERO -a l1_sum -l $DATA/location_name_missing.loc --output=nowindowed
  MERO error: Name of location expected in location file at line 2, found "a" instead. ErrorCode: 1504
  [1]

A blank line between locations is an error, and so is a line that holds only a block comment:

  $ $MERO -a l1_sum -l $DATA/location_blank_line.loc --output=nowindowed
  MERO error: Illegal linebreak in location file at line 3. ErrorCode: 1504
  [1]
  $ $MERO -a l1_sum -l $DATA/location_block_comment_line.loc --output=nowindowed
  MERO error: Illegal linebreak in location file at line 3. ErrorCode: 1504
  [1]

Comments before the header, on the header, after a location (which lets one blank line slip
through) and between locations; a block comment may span lines. Both files hold (1,2) of weight
3 and (4,6) of weight 1, whose median is (1,2) at cost 3 + 4 = 7:

  $ cat $DATA/location_comments.loc
  // a comment before the header
  /* a block comment
     over two lines */
  begin {location} [2,1] // the header may carry a comment
  1 2 3 [a]  // so may a location line, and then one blank line slips through
  
  4 6 1 [b]
  // a comment line between locations
  end {location}
  $ $MERO -a l1_sum -l $DATA/location_comments.loc --output=nowindowed | sed -n 6,9p
  7
  end {objective value}
  begin {polygonlist}
  1 2 
  $ $MERO -a l1_sum -l $DATA/location_block_comment_span.loc --output=nowindowed | sed -n 6p
  7

Carriage returns are blanks:

  $ $MERO -a l1_sum -l $DATA/location_crlf.loc --output=nowindowed | sed -n 6p
  7

Upper-case keywords, L_inf in any case, and anything after end: two locations of weight 1 at
(0,0) and (2,4) give the rectangle between them, at cost 2 + 4 = 6:

  $ $MERO -a l1_sum -l $DATA/location_upper_case.loc --output=nowindowed
  begin {result}
  begin {classification}
  1|P|.|l1|sum
  end {classification}
  begin {objective value} 
  6
  end {objective value}
  begin {polygonlist}
  begin {polygon}
  0 0 
  2 0 
  2 4 
  0 4 
  end {polygon}
  end {polygonlist}
  end {result}

Text before the header and behind `begin {location}` is passed to standard output (blanks are
skipped). A last line without its line end is lost, here leaving one location:

  $ $MERO -a l1_sum -l $DATA/location_text_before_header.loc --output=nowindowed | head -1
  notesbeforetheheadertrailingwordsMERO message: There is only one location given, so this location is optimal
  $ $MERO -a l1_sum -l $DATA/location_lost_last_line.loc --output=nowindowed
  MERO message: There is only one location given, so this location is optimal
  begin {result}
  begin {classification}
  1|P|.|l1|sum
  end {classification}
  begin {objective value} 
  0
  end {objective value}
  begin {polygonlist}
  1 2 
  end {polygonlist}
  end {result}
