#pragma once
// What the multifacility solvers (facilities::N_*) share: their messages and the checks of the
// data they are given. Facility j is tied to location i by weight column j of that location and
// to facility k > j by entry (j, k) of the dependency matrix V.

#include "kernel/matrix.h"
#include "model/facilities.h"

namespace mero {

struct multifacility_message {
  int code;
  const char* text;
};

namespace multifacility_messages {
inline constexpr multifacility_message cannot_compute_more{
    1306, "Cannot compute more optima than there is provided data."};
inline constexpr multifacility_message unequal_dimensions{1331, "Unequal matrix dimensions."};
inline constexpr multifacility_message matrix_does_not_fit{
    1332, "Matrix dimensions and number of new locations do not fit."};
inline constexpr multifacility_message weights_do_not_fit{
    1333, "Weight dimensions and number of new location do not fit."};
inline constexpr multifacility_message singular_system{
    1335,
    "facilities::N_l2sqr_sum(): The normal equations are singular: some new facilities have "
    "no weight to any location and no link to a new facility that has one."};
inline constexpr multifacility_message zero_weight{
    1336, "facilities::N_linf_max(): Every weight must be unequal to zero"};
inline constexpr multifacility_message zero_dependency{
    1337, "facilities::N_linf_max(): The entries of the dependency matrix must be unequal to zero"};
// A notice, not an error: %i is the weight dimension of the head location.
inline constexpr const char* non_quadratic =
    "facilities::N_lp_sum_v1(): Matrix of interdependencies is non-quadratic: We are taking the "
    "upperleft submatrix of dimension %i in account";
}  // namespace multifacility_messages

// Ends the run through the error reporter with the message's text and code.
[[noreturn]] void report_multifacility_error(const multifacility_message& m);

// The checks of the exact methods, in this order: V square (1331), V of size n (1332), the head
// location with n weights (1333). An empty location list is the list error.
void check_multifacility_data(const facilities& problem, int n, const matrix& V);

// Result location of new facility j: two coordinates and weight entry 0 = j.
location new_facility(int j, double x, double y);

}  // namespace mero
