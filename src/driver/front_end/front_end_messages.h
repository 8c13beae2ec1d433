#pragma once
// The texts of the front-end bridge. They are plain lines on the error stream or results of Tcl
// commands: no window of the program exists while the front end starts.

namespace mero::front_end_messages {

inline constexpr const char* script = "../tk/merofront";
inline constexpr const char* tcl_init_failed = "Tcl_Init failed: %s\n";
inline constexpr const char* tk_init_failed = "Tk_Init failed: %s\n";
inline constexpr const char* no_script = "Cannot find Tcl-script merofront.\n";
inline constexpr const char* wrong_args = "wrong # args";
inline constexpr const char* random_range =
    "random a b: b - a must lie between -32767 and 32767 and must not be 0";
inline constexpr const char* restrint_no_file = "RestrInt file: the restriction file is missing";

}  // namespace mero::front_end_messages
