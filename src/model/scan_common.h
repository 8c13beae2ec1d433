#pragma once
// What every flex scanner of the program's text formats shares: the reader state that travels in
// yyextra (input stream, line counter, skip_next_newline, comment return state, the message), the
// line counting, the newline rule, and the composition of messages whose last part is the rest of
// the offending line (the ERROR_TAIL state).
//
// clang-format off
// Flex cannot include rules from another file, so each .l repeats these few lines, which are the
// same in every format:
//
//   %option reentrant noyywrap nounput noinput case-insensitive prefix="<format>_yy"
//   %option extra-type="<format state>*"
//   %x COMMENT ERROR_TAIL ...
//   real   [+-]?[0-9]+(\.[0-9]*)?([eE][+-]?[0-9]+)?
//   #define YY_INPUT(buf, result, max) result = mero::scan_read(*yyextra->in, buf, max)
//   #define ECHO mero::scan_echo(yytext, yyleng)
//   #define YY_USER_ACTION mero::count_newlines(*yyextra, yytext, yyleng);
//
//   <states>[ \t\r]             ;
//   <states>"//"[^\n]*          yyextra->skip_next_newline = true;
//   <states>"/*"                { yyextra->comment_return = YY_START; BEGIN(COMMENT); }
//   <COMMENT>"*/"               BEGIN(yyextra->comment_return);
//   <COMMENT>\n|.               ;
//   <line-break states>\n       if (mero::newline_is_illegal(*yyextra)) return mero::scan_stop(...);
//   <ERROR_TAIL>[^\r\n]+        return mero::scan_finish_tail(*yyextra, yytext);
//   <ERROR_TAIL>[\r\n]          return mero::scan_finish_tail(*yyextra, "");
//
// A rule that finds the wrong text fails with SCAN_FAIL(format, {args}): the message waits for
// the rest of the line, which the ERROR_TAIL rules add. Below the rules, the scanner's entry is
// one line: return mero::run_scanner({<format>_yylex_init_extra, <format>_yylex,
// <format>_yylex_destroy}, scan). A reader opens its file with open_scan_input, starts its state
// on the stream and runs the entry through scan_or_report, so that all formats fail alike.
//
// A number is `real`, a sign, digits, an optional point with digits and an optional exponent; it
// cannot start with a point. scan_real converts it with the C rules of atof.
// clang-format on

#include <cstddef>
#include <fstream>
#include <initializer_list>
#include <string>
#include <string_view>

#include "kernel/message.h"
#include "kernel/reporters.h"

namespace mero {

struct scan_state {
  std::istream* in = nullptr;
  int line = 1;  // the line being read; raised for every newline of a token before its action
  bool skip_next_newline = false;  // set by a // comment: the next stray newline is not an error
  int comment_return = 0;          // the state a /* ... */ comment returns to
  std::string message;             // what went wrong, once the scanner returned 1
  std::size_t tail_at = std::string::npos;  // where the rest of the line goes into message
  // The first number token beyond the range of a double, and its line; run_scanner turns it into
  // the scan's error once the scanner has stopped (a rule cannot leave the scanner from a helper).
  std::string out_of_range;
  int out_of_range_line = 0;

  // Back to the state of a fresh read, with this message as the default.
  void reset(std::istream& input, const mero::message& default_message);
};

// The failing action of a rule (a macro, since BEGIN belongs to the generated scanner): stores the
// message that waits for the rest of the line and goes on in the ERROR_TAIL state.
#define SCAN_FAIL(...)                      \
  do {                                      \
    mero::scan_fail(*yyextra, __VA_ARGS__); \
    BEGIN(ERROR_TAIL);                      \
  } while (0)

// Stops the scan with a complete message; the scanner returns the 1 that this gives back.
int scan_stop(scan_state& s, const message& format, std::initializer_list<message_arg> args);
// Stores a message that still waits for the rest of the line; the scanner then goes to its
// ERROR_TAIL state, where scan_finish_tail completes it.
void scan_fail(scan_state& s, const message& format, std::initializer_list<message_arg> args);
// Puts the rest of the line into the waiting message; returns 1, the scanner's error return.
int scan_finish_tail(scan_state& s, std::string_view rest);

// The newline rule of the line-break states: a newline right after a // comment is forgiven
// (and the forgiveness used up); otherwise it is illegal.
bool newline_is_illegal(scan_state& s);
// The number of the line that a newline token just ended.
inline int ended_line(const scan_state& s) { return s.line - 1; }

// Raises the line counter for every newline of a matched token. Runs before every action, so it
// stays inline.
inline void count_newlines(scan_state& s, const char* text, std::size_t length) {
  for (std::size_t i = 0; i < length; ++i) s.line += text[i] == '\n';
}

// The reader side of YY_INPUT: up to max characters from the stream, 0 at its end.
std::size_t scan_read(std::istream& in, char* buffer, std::size_t max);
// Text that a format passes through unchanged (flex's ECHO) goes to standard output.
void scan_echo(const char* text, std::size_t length);

// A number token, with the C rules of atof; an integer token, with those of atoi (clamped to
// the int range instead of overflowing). A number beyond the range of a double (whose value
// would be infinite) is noted in s and fails the scan; one too close to 0 becomes 0 or a
// denormal, as atof makes it.
double scan_real(scan_state& s, const char* text);
int scan_int(const char* text);

// After the scanner stopped: the error for a number noted by scan_real, if there was one (it
// stands before any other error, the scan having stopped at its first). Returns the final result.
int scan_range_result(scan_state& s, int result);

// The three entries that flex generates for a scanner prefix, typed on its state (flex's yyscan_t
// is a void*).
template <class State>
struct scanner_entries {
  int (*init_extra)(State*, void**);
  int (*lex)(void*);
  int (*destroy)(void*);
};

// Runs a scanner over its state to the end: 0 when the input is done, 1 when state.message holds
// an error. A scanner's entry may return more than 1, meaning "call again". The scanner is
// released also when a report leaves the scan by an exception (as the unit tests' reporters do).
template <class State>
int run_scanner(const scanner_entries<State>& entries, State& state) {
  struct guard {
    const scanner_entries<State>& entries;
    void* scanner = nullptr;
    ~guard() { entries.destroy(scanner); }
  } g{entries};
  entries.init_extra(&state, &g.scanner);
  int result;
  do {
    result = entries.lex(g.scanner);
  } while (result > 1);
  return scan_range_result(state, result);
}

// Opens a data file for a scanner; a directory, or a file that cannot be opened, ends the process
// with cannot_open.
std::ifstream open_scan_input(const std::string& path, const message& cannot_open);

// Runs a scanner entry (the one-line function around run_scanner) on a state that its reader has
// started on a stream; a syntax error ends the process with the scanner's message under the
// reader's code.
template <class State>
void scan_or_report(int (*scan)(State&), State& state, int syntax_code) {
  if (scan(state) == 1) report_error(state.message, syntax_code, 1, true);
}

}  // namespace mero
