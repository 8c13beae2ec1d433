#pragma once
// The texts and codes that line location reports, in one place so that the solvers and their
// tests read the same words.

#include "kernel/message.h"

namespace mero::line_messages {

// The distance to a line is measured in the dual norm of lp; p must name a norm (p >= 1, or -1
// for the maximum norm), as the lp solvers of single points ask.
inline constexpr message lp_sum_exponent{
    1360, "facilities::L_lp_sum_M3(): p must be at least 1, or -1 for the maximum norm."};
inline constexpr message lp_max_exponent{
    1361, "facilities::L_lp_max_M4(): p must be at least 1, or -1 for the maximum norm."};

// Infinite or undefined coordinates (a number too large for a double in the file) leave the
// angles and sides of the candidate lines undefined.
inline constexpr message not_finite{
    1362, "Line location: every coordinate and weight must be a finite number."};

// The block-norm lines measure with one gauge, the one that the first gauge number names.
inline constexpr message block_gauge_number{1363, "Line location: False gauge-number."};

}  // namespace mero::line_messages
