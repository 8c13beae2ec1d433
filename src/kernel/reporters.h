#pragma once
// The three reporters through which every error and message of the program leaves: an error
// always ends the process, a message may go on, a question asks (on the console it only informs).
// The face (console line or dialog) follows windowed_mode and the call's window flag.

#include <string>

namespace mero {

// True from the start of the program; --output=nowindowed clears it.
extern bool windowed_mode;

struct report {
  enum class kind { error, message, question, end };
  kind what;
  std::string text;
  int code = 0;         // errors only
  int status = 0;       // the exit status if the report ends the process
  bool go_on = false;   // messages and questions: return to the caller
  bool window = false;  // the call asks for the dialog face
};

// Where reports go. The default sink prints the console face and ends the process where the
// report says so; unit tests install one that throws, to assert text and code without forking.
using report_sink = void (*)(const report&);
report_sink set_report_sink(report_sink sink);
void default_report_sink(const report& r);

// The console lines, exactly as the user sees them (without the line end).
std::string console_line(const report& r);

[[noreturn]] void report_error(const std::string& text, int code, int status = 1,
                               bool window = true);

// A text the program reports with the code that names the place raising it. Each subsystem keeps
// its messages in one table of these (src/<subsystem>/<subsystem>_messages.h), so that the code
// that raises a message and the tests that expect it read the same words.
struct message {
  int code;
  const char* text;
};

// Ends the process with status 1 through the error reporter, with the message's text and code;
// the dialog face is shown when the run is windowed.
[[noreturn]] void report_error(const message& m);
void report_message(const std::string& text, bool go_on, bool window);
void report_question(const std::string& text, int status, bool go_on, bool window);

// Ends the process with this status without a report (the usage text ends this way).
[[noreturn]] void end_process(int status);

}  // namespace mero
