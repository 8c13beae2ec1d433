# a comment line
Creator "someone else"
graph [
  comment "not ours"
  directed 0
  hierarchic 1 foo [ bar [ baz 1.5 ] qux "]" ]
  edge [ source 7 target 3 label "A &amp; B"
    graphics [ arrow "first" width 2 style "dotted_edge" smooth 1
      Line [ point [ x 1 y 2 ] point [ x 5 ] point [ x -1.5e1 y 0.25 ] ] ]
    edgeAnchor [ xSource 0.5 yTarget -1 ]
    LabelGraphics [ type "data_label" anchor "ne" ]
  ]
  node [ id 3 label "three" graphics [ x 10 y -20.5 w 8 h 4 type "rectangle"
         fill "#FF8000" outline "#000010" ] ]
  node [ id 7 parameter "data" labelAnchor "s"
         LabelGraphics [ type "text" fill "#00ff00" ] ]
]
