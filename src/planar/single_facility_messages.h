#pragma once
// The texts and codes that the single-facility medians and centers report, in one place so that
// the solvers and their tests read the same words.

namespace mero {

struct single_facility_message {
  int code;
  const char* text;
};

namespace single_facility_messages {

// The v1 methods solve the equal-weight problem only.
inline constexpr single_facility_message unequal_weights{1307, "All weights must be equal!"};
// The Weiszfeld iteration stops on a relative decrease below eps; without a positive eps it
// could run for ever.
inline constexpr single_facility_message l2_eps{1308,
                                                "facilities::l2_sum(): eps must be positive."};
// The lp iteration needs a positive eps unless a positive iteration bound ends it.
inline constexpr single_facility_message lp_stop{
    1309, "facilities::lp_sum(): eps must be positive when max_iterations is not."};
// lp norms are norms for p >= 1 only.
inline constexpr single_facility_message lp_exponent{1310,
                                                     "facilities::lp_sum(): p must be at least 1."};

// A message, not an error: the run ends with status 0.
inline constexpr const char* linf_max_whole_plane =
    "facilities::linf_max: No weight is unequal to zero and the whole plane is optimal";

}  // namespace single_facility_messages

// Ends the process through the error reporter with the message's text and code.
[[noreturn]] void report_single_facility_error(const single_facility_message& m);

}  // namespace mero
