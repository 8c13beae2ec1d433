#pragma once
// discrete_problem: the uncapacitated facility location problem on a cost table. Demand points,
// possible supply points with their fixed costs (the first weight of each supply location), the
// cost of serving each demand point entirely from each supply point, and the result of the last
// solver. A cost or fixed cost of 1e50 forbids that link or that opening; the solvers treat it as
// an ordinary large number.

#include <iosfwd>
#include <list>
#include <string>

#include "kernel/matrix.h"
#include "model/location.h"

namespace mero {

class discrete_problem {
 public:
  matrix cost;                          // demand rows by supply columns
  std::list<location> supply;           // weight(0) is the fixed cost
  std::list<location> demand;           // one weight each
  std::list<location> opt;              // result: the open supply points, ascending
  std::list<std::string> demand_names;  // parallel to demand
  std::list<std::string> supply_names;  // parallel to supply
  matrix assignment;                    // result: 1.0 where demand i is served from supply j
  bool supply_is_demand = false;        // the file had no supply block

  // Replaces the whole problem by the discrete file on in and clears the results. A syntax error
  // ends the run with code 3107 and the scanner's message.
  void read(std::istream& in);
  // Writes the problem as a discrete file (see discrete_file.h for the one deliberate asymmetry).
  void write(std::ostream& out) const;

  // The solvers return the objective value and leave the open set in `opt` and `assignment`;
  // the input is not changed. A problem without demand or supply points is reported (3108).

  // Greedy adding: opens the facility with the largest saving while one pays; facilities whose
  // saving turns negative leave the candidates for good. O(n^2 m) for m demand, n supply points.
  double UFL_Greedy();
  // Stingy dropping: starts with all facilities open and closes the one whose closing lowers the
  // value most, while one does. O(n^2 m) per drop in the worst case.
  double UFL_Stingy();
  // Exchange search (one open facility swapped for one closed one, first improving open facility
  // with its best partner) started once from Greedy and once from Stingy; the better end wins,
  // a tie going to the Stingy start. O(n^2 m) per exchange.
  double UFL_Interchange();
  // Exact: dual ascent with dual adjustment (Erlenkotter 1978) for a lower bound and a primal
  // solution, then depth-first branch and bound on the opening variables, closing first; the
  // Interchange solution and the best solution met prune nodes that cannot beat them. Worst
  // case exponential in n; each ascent is O(n m) per round of the customers, an adjustment
  // round visits only the customers its change can free. Costs and fixed costs must lie in
  // [0, 1e50] (3109); "No feasible solution found!" (3101) if no branch yields a solution.
  double UFL_Dualoc();
};

}  // namespace mero
