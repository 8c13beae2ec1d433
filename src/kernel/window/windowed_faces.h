#pragma once
// The windowed faces of the reporters: the error, message and question panels. The
// window program installs them at its start, and so does the graph editor; the kernel itself
// knows only the replaceable sink, so nothing that does not link the window layer pulls in Tk.

#include <string>

#include "kernel/reporters.h"
#include "kernel/window/window.h"

namespace mero {

// Puts the sink below in place of the current one.
void install_windowed_faces();

// Shows a panel when the report asks for a window, windowed_mode is on and a display can be
// opened; otherwise the console face of the default sink. Errors end the process with their
// status after "OK"; a message ends it with 0 after "OK" unless it goes on; a question ends it
// with its status on "cancel" (or a close from the frame) and on "ok" like a message.
void windowed_report_sink(const report& r);

// The items of the three panels, in their order; the panels get their titles from the caller.
void add_error_items(window& panel, const std::string& text, int code);
void add_message_items(window& panel, const std::string& text);
// Returns the number of the "ok" button ("cancel" comes first).
int add_question_items(window& panel, const std::string& text);

}  // namespace mero
