Problems with several criteria on networks, on the ring of four towns with two and with three
demands per town. Worked out by hand from the distances of the ring (Aston-Berwick 4,
Berwick-Carden 3, Carden-Dunmore 4, Dunmore-Aston 3): the sums of the two-criteria towns are
Aston (7, 20), Berwick (15, 24), Carden (21, 15), Dunmore (13, 11), so Aston and Dunmore are
the Pareto and the lexicographic towns; the largest weighted distances (7, 9), (12, 21),
(21, 12), (9, 7) give the same two. One way round the ring every round trip is 14, and again
Aston (least first sum) and Dunmore (least second sum) are the lexicographic towns. The third
demand, at Berwick only, makes Berwick the best for it, undirected and directed.

  $ source $TESTDIR/graph_report.sh
  $ names="medLexi loc_medLexi loc_cenLexi dir_medLexi dir_loc_medLexi dir_loc_cenLexi"
  $ for a in $names; do solve $a -g $EXAMPLES/two_criteria_square.graph; done
  medLexi: 1|G|.|d(V,G)|Q-sum-lex 0 Node [1] Node [4]
  loc_medLexi: 1|G|.|d(V,V)|Q-sum-lex 0 Node [1] Node [4]
  loc_cenLexi: 1|G|.|d(V,V)|Q-max-lex 0 Node [1] Node [4]
  dir_medLexi: 1|G_D|.|d(V,G)|Q-sum-lex 0 Node [1] Node [4]
  dir_loc_medLexi: 1|G_D|.|d(V,V)|Q-sum-lex 0 Node [1] Node [4]
  dir_loc_cenLexi: 1|G_D|.|d(V,V)|Q-max-lex 0 Node [1] Node [4]
  $ for a in $names; do solve $a -g $EXAMPLES/three_criteria_square.graph; done
  medLexi: 1|G|.|d(V,G)|Q-sum-lex 0 Node [1] Node [2] Node [4]
  loc_medLexi: 1|G|.|d(V,V)|Q-sum-lex 0 Node [1] Node [2] Node [4]
  loc_cenLexi: 1|G|.|d(V,V)|Q-max-lex 0 Node [1] Node [2] Node [4]
  dir_medLexi: 1|G_D|.|d(V,G)|Q-sum-lex 0 Node [1] Node [2] Node [4]
  dir_loc_medLexi: 1|G_D|.|d(V,V)|Q-sum-lex 0 Node [1] Node [2] Node [4]
  dir_loc_cenLexi: 1|G_D|.|d(V,V)|Q-max-lex 0 Node [1] Node [2] Node [4]

A Pareto set has no single value and its pieces are for the viewer: the report holds the
classification, one blank for the value and no points. The median with two criteria has its
own label; with three it is the general one. Each name runs on both rings; equal reports are
counted.

  $ $MERO -a medPareto -g $EXAMPLES/two_criteria_square.graph --output=nowindowed
  begin {result}
  begin {classification}
  1|G|.|d(V,G)|2-sum-par
  end {classification}
   end {result}
  $ for a in medPareto loc_medPareto loc_cenPareto dir_medPareto dir_loc_medPareto \
  >          dir_loc_cenPareto dir_cenPareto; do
  >   for f in two three; do solve $a -g $EXAMPLES/${f}_criteria_square.graph; done | uniq -c
  > done
        1 medPareto: 1|G|.|d(V,G)|2-sum-par  end {result}
        1 medPareto: 1|G|.|d(V,G)|Q-sum-par  end {result}
        2 loc_medPareto: 1|G|.|d(V,V)|Q-sum-par  end {result}
        2 loc_cenPareto: 1|G|.|d(V,V)|Q-max-par  end {result}
        2 dir_medPareto: 1|G_D|.|d(V,G)|Q-sum-par  end {result}
        2 dir_loc_medPareto: 1|G_D|.|d(V,V)|Q-sum-par  end {result}
        2 dir_loc_cenPareto: 1|G_D|.|d(V,V)|Q-max-par  end {result}
        2 dir_cenPareto: 1|G_D|.|d(V,G)|Q-max-par  end {result}

A report file of a Pareto problem holds the same frame.

  $ $MERO -a loc_medPareto -g $EXAMPLES/three_criteria_square.graph --output=file=pareto.txt,nowindowed
  $ cat pareto.txt
  begin {result}
  begin {classification}
  1|G|.|d(V,V)|Q-sum-par
  end {classification}
   end {result}

A disconnected graph is joined by a road of length 0 after the message of these problems;
towns a and c then tie with (2, 1) and both are lexicographic.

  $ printf 'begin {merograph}\nbegin {location} [2,2]\n0 0 1 2 [a]\n1 0 2 1 [b]\n5 5 1 1 [c]\n' > apart.graph
  $ printf 'end {location}\nbegin {adjlist}\n1 2 1\nend {adjlist}\nend {merograph}\n' >> apart.graph
  $ solve loc_medLexi -g apart.graph
  loc_medLexi: MERO message: Graph is not connected: MERO is could connect it 1|G|.|d(V,V)|Q-sum-lex 0 Node [1] Node [3]
  $ solve medPareto -g apart.graph
  medPareto: MERO message: Graph is not connected: MERO is could connect it 1|G|.|d(V,G)|2-sum-par  end {result}
