# A small road network drawn in a graph tool and saved as GML: four places with their demand,
# roads with their travel time in minutes. `graphedit --convert` turns it into a mero graph file.
graph [
  directed 0
  node [ id 1 label "Alder" demand 1 graphics [ x 0 y 0 ] ]
  node [ id 2 label "Birch" demand 1 graphics [ x 3 y 4 ] ]
  node [ id 3 label "Cedar" demand 5 graphics [ x 3 y 10 ] ]
  node [ id 4 label "Dogwood" demand 2 graphics [ x 7 y 13 ] ]
  edge [ source 1 target 2 minutes 2 ]
  edge [ source 2 target 3 minutes 2 ]
  edge [ source 3 target 4 minutes 10 ]
]
