#pragma once
// The messages of the planar solvers, single-facility and multifacility, in one place so that the
// solvers and their tests read the same words.

#include "kernel/reporters.h"

namespace mero {

namespace single_facility_messages {

// The v1 methods solve the equal-weight problem only.
inline constexpr message unequal_weights{1307, "All weights must be equal!"};
// The Weiszfeld iteration stops on a relative decrease below eps; without a positive eps it
// could run for ever.
inline constexpr message l2_eps{1308, "facilities::l2_sum(): eps must be positive."};
// The lp iteration needs a positive eps unless a positive iteration bound ends it.
inline constexpr message lp_stop{
    1309, "facilities::lp_sum(): eps must be positive when max_iterations is not."};
// lp norms are norms for p >= 1 only.
inline constexpr message lp_exponent{1310, "facilities::lp_sum(): p must be at least 1."};

// The largest weighted distance of a negative weight falls without bound away from its location,
// so the weighted center has no optimum (l1_max runs linf_max in the rotated plane).
inline constexpr message negative_center_weight{
    1352, "facilities::linf_max(): A negative weight leaves the center problem without optimum."};

// A message, not an error: the run ends with status 0.
inline constexpr message linf_max_whole_plane{
    0, "facilities::linf_max: No weight is unequal to zero and the whole plane is optimal"};

}  // namespace single_facility_messages

namespace multifacility_messages {
inline constexpr message cannot_compute_more{
    1306, "Cannot compute more optima than there is provided data."};
inline constexpr message unequal_dimensions{1331, "Unequal matrix dimensions."};
inline constexpr message matrix_does_not_fit{
    1332, "Matrix dimensions and number of new locations do not fit."};
inline constexpr message weights_do_not_fit{
    1333, "Weight dimensions and number of new location do not fit."};
inline constexpr message singular_system{
    1335,
    "facilities::N_l2sqr_sum(): The normal equations are singular: some new facilities have "
    "no weight to any location and no link to a new facility that has one."};
inline constexpr message zero_weight{
    1336, "facilities::N_linf_max(): Every weight must be unequal to zero"};
inline constexpr message zero_dependency{
    1337, "facilities::N_linf_max(): The entries of the dependency matrix must be unequal to zero"};
// A notice, not an error: %i is the weight dimension of the head location.
inline constexpr message non_quadratic{
    0,
    "facilities::N_lp_sum_v1(): Matrix of interdependencies is non-quadratic: We are taking the "
    "upperleft submatrix of dimension %i in account"};
}  // namespace multifacility_messages

}  // namespace mero
