#pragma once
// The messages of the command line and of the problem run, in one place so that the code that
// raises them and the tests that expect them read the same words.

#include "kernel/reporters.h"

namespace mero::driver_messages {

inline constexpr message output_unwritable{1001, "Cannot open %s for output"};
inline constexpr message missing_value{1002, "Missing value for option %s"};
inline constexpr message missing_output_value{1003, "Missing value for option --output."};
inline constexpr message bad_output_option{1004, "Option %s is not a valid --output option."};
inline constexpr message unrecognized_option{1005, "Unrecognized option %s"};
inline constexpr message missing_algorithm{1006,
                                           "You have to specify an algorithm and a location file."};
// One code for each chain the name was looked up in: A, N, R, G.
inline constexpr message illegal_algorithm_a{1007, "Illegal algorithm or missing data."};
inline constexpr message illegal_algorithm_n{1008, "Illegal algorithm or missing data."};
inline constexpr message illegal_algorithm_r{1009, "Illegal algorithm or missing data."};
inline constexpr message illegal_algorithm_g{1010, "Illegal algorithm or missing data."};
inline constexpr message missing_p{1011, "Missing p-value for lp-algorithm."};
inline constexpr message missing_n{1012,
                                   "Missing number of new facilities for algorithms on graphs."};
// Coordinates or weights near the largest double overflow inside the solvers; such a run ends
// with this message rather than a report of inf and nan.
inline constexpr message result_not_finite{
    1013, "The result is not finite: coordinates or weights are too large."};
// -p is read as atoi reads it (text that is no number gives 0), but a value beyond the int range,
// which atoi would convert with undefined behaviour, is refused.
inline constexpr message p_out_of_range{1014, "The value of -p is out of range: %s"};
// The window program beside mero (window layer, viewers, front end) cannot be started when a run
// needs it; %s names the file and the system's reason.
inline constexpr message window_program_unstartable{1015, "Cannot start the window program: %s"};

// --picture names a file that cannot be written; the run ends before its report.
inline constexpr message picture_unwritable{1515, "Can't write picture file \"%s\""};
// --results names a file that cannot be written; the run ends before its report.
inline constexpr message results_unwritable{1516, "Can't write results file \"%s\""};

// A message, not an error: the run goes on.
inline constexpr message one_location{
    0, "There is only one location given, so this location is optimal"};

}  // namespace mero::driver_messages
