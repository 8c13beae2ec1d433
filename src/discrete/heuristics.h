#pragma once
// The three heuristics for the uncapacitated facility location problem on the working data of a
// discrete problem. Each returns the open set it found and the value it computed along the way;
// the members UFL_Greedy, UFL_Stingy and UFL_Interchange of discrete_problem publish them.

#include "discrete/cost_table.h"

namespace mero {

open_solution greedy_solution(const cost_table& t);

// supply_is_demand: the start value leaves out the service costs, on the assumption that every
// point serves itself at cost 0 when all supply points are open.
open_solution stingy_solution(const cost_table& t, bool supply_is_demand);

open_solution interchange_solution(const cost_table& t, bool supply_is_demand);

}  // namespace mero
