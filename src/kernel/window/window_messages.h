#pragma once
// Every text of the window layer. The window's faults go through the kernel handler with code 1;
// the dialog texts are those of the reporters' windowed faces.

#include "kernel/reporters.h"

namespace mero::window_messages {

// Kernel handler texts (code 1: the run stops).
inline constexpr message illegal_menu{1, "illegal item %s in window::set_menu\n"};
inline constexpr message illegal_text{1, "illegal item in window::set_text\n"};
inline constexpr message nested_buffer{1, "x_set_buffer: nested call."};
inline constexpr message bad_frame{1, "window::init(): xmax must exceed xmin, both finite"};
inline constexpr message bad_pixrect{1, "window::create_pixrect(): size and data do not fit"};
inline constexpr message tk_failed{1, "window: Tk refused a command: "};

// The note on the error stream, given once, when a windowed run cannot show a window.
inline constexpr const char* no_window_note =
    "mero: no window can be shown (%s); going on without windows";
inline constexpr const char* no_display_reason = "DISPLAY is not set";

// The dialog faces of the reporters.
inline constexpr const char* error_title = "MERO-ERROR";
inline constexpr const char* message_title = "MERO-MESSAGE";
inline constexpr const char* blank_line = "    ";
inline constexpr const char* error_code_line = "    Errorcode ";
inline constexpr const char* code_format = "%4i";
inline constexpr const char* ok_upper = "OK";
inline constexpr const char* cancel = "cancel";
inline constexpr const char* ok_lower = "ok";
inline constexpr int question_x = 780;
inline constexpr int question_y = 150;

}  // namespace mero::window_messages
