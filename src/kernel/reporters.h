#pragma once
// The three reporters through which every error and message of the program leaves: an error
// always ends the process, a message may go on, a question asks (on the console it only informs).
// The face (console line or dialog) follows windowed_mode and the call's window flag.

#include <string>

#include "kernel/message.h"

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

// Ends the process with status 1 through the error reporter, with the message's code and its
// text (filled with args when it is a format); the dialog face is shown in a windowed run.
[[noreturn]] void report_error(const message& m, std::initializer_list<message_arg> args = {});
// A message that is not an error, with its text filled with args; see report_message.
void report_message(const message& m, bool go_on, std::initializer_list<message_arg> args = {});
void report_message(const std::string& text, bool go_on, bool window);
void report_question(const std::string& text, int status, bool go_on, bool window);
// A question with the message's text; see report_question.
void report_question(const message& m, int status, bool go_on);

// Ends the process with this status without a report (the usage text ends this way).
[[noreturn]] void end_process(int status);

}  // namespace mero
