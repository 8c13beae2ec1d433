Creator "ORBA GraphEdit"
Version 1
graph [
  label ""
  directed 0
  node [
    id 0
    label "three"
    parameter ""
    graphics [
      x 10
      y -20.5
      w 8
      h 4
      type "rectangle"
      width 1
      fill "#ff8000"
      outline "#000010"
    ]
    LabelGraphics [
      type "index_label"
      fill "#000000"
      anchor "c"
    ]
  ]
  node [
    id 1
    label ""
    parameter "data"
    graphics [
      x 0
      y 0
      w 20
      h 20
      type "oval"
      width 1
      fill "#ffffff"
      outline "#000000"
    ]
    LabelGraphics [
      type "text"
      fill "#00ff00"
      anchor "s"
    ]
  ]
  edge [
    source 1
    target 0
    parameter ""
    label "A &amp; B"
    graphics [
      type "line"
      arrow "first"
      width 2
      fill "#000000"
      style "dotted_edge"
      smooth 1
      shape "bezier_edge"
      Line [
        point [
          x 1
          y 2
        ]
        point [
          x -15
          y 0.25
        ]
      ]
    ]
    LabelGraphics [
      type "data_label"
      fill "#000000"
      anchor "ne"
    ]
    edgeAnchor [
      xSource 0.5
      ySource 0
      xTarget 0
      yTarget -1
    ]
  ]
]
