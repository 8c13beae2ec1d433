#pragma once
// What the multifacility solvers (facilities::N_*) share: the checks of the data they are given.
// Facility j is tied to location i by weight column j of that location and to facility k > j by
// entry (j, k) of the dependency matrix V.

#include "kernel/matrix.h"
#include "model/facilities.h"

namespace mero {

// The checks of the exact methods, in this order: V square (1331), V of size n (1332), the head
// location with n weights (1333). An empty location list is the list error.
void check_multifacility_data(const facilities& problem, int n, const matrix& V);

// Result location of new facility j: two coordinates and weight entry 0 = j.
location new_facility(int j, double x, double y);

}  // namespace mero
