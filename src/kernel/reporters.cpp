#include "kernel/reporters.h"

#include <cstdlib>
#include <iostream>

namespace mero {

bool windowed_mode = true;

namespace {
report_sink current_sink = default_report_sink;

void deliver(const report& r) { current_sink(r); }
}  // namespace

report_sink set_report_sink(report_sink sink) {
  report_sink previous = current_sink;
  current_sink = sink ? sink : default_report_sink;
  return previous;
}

std::string console_line(const report& r) {
  if (r.what == report::kind::error)
    return "MERO error: " + r.text + " ErrorCode: " + std::to_string(r.code);
  return "MERO message: " + r.text;
}

// On the console a question asks nothing: it informs like a message, and the continue flag
// decides whether the run goes on.
void default_report_sink(const report& r) {
  if (r.what == report::kind::end) {
    std::cout.flush();
    std::exit(r.status);
  }
  std::cout << console_line(r) << std::endl;
  if (r.what == report::kind::error) std::exit(r.status);
  if (!r.go_on) std::exit(0);
}

void report_error(const std::string& text, int code, int status, bool window) {
  deliver({report::kind::error, text, code, status, false, window});
  std::exit(status);  // a sink that returns from an error still ends the process
}

void report_error(const message& m, std::initializer_list<message_arg> args) {
  report_error(format_message(m.text, args), m.code, 1, windowed_mode);
}

void report_message(const message& m, bool go_on, std::initializer_list<message_arg> args) {
  report_message(format_message(m.text, args), go_on, windowed_mode);
}

void report_message(const std::string& text, bool go_on, bool window) {
  deliver({report::kind::message, text, 0, 0, go_on, window});
}

void report_question(const std::string& text, int status, bool go_on, bool window) {
  deliver({report::kind::question, text, 0, status, go_on, window});
}

void report_question(const message& m, int status, bool go_on) {
  report_question(m.text, status, go_on, windowed_mode);
}

void end_process(int status) {
  deliver({report::kind::end, "", 0, status, false, false});
  std::exit(status);
}

}  // namespace mero
