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
// A number is `real`, a sign, digits, an optional point with digits and an optional exponent; it
// cannot start with a point. scan_real converts it with the C rules of atof.
// clang-format on

#include <cstddef>
#include <initializer_list>
#include <iosfwd>
#include <string>
#include <string_view>

namespace mero {

struct scan_state {
  std::istream* in = nullptr;
  int line = 1;  // the line being read; raised for every newline of a token before its action
  bool skip_next_newline = false;  // set by a // comment: the next stray newline is not an error
  int comment_return = 0;          // the state a /* ... */ comment returns to
  std::string message;             // what went wrong, once the scanner returned 1
  std::size_t tail_at = std::string::npos;  // where the rest of the line goes into message

  // Back to the state of a fresh read, with this message as the default.
  void reset(std::istream& input, std::string default_message);
};

// One argument of a message format: %d takes an integer, %s a text.
struct scan_arg {
  std::string text;
  scan_arg(int value) : text(std::to_string(value)) {}
  scan_arg(std::string_view value) : text(value) {}
  scan_arg(const std::string& value) : text(value) {}
  scan_arg(const char* value) : text(value) {}
};

// Formats a message: %d and %s take the arguments in order, "%%" becomes "%". A "%%s" is where
// the rest of the line will go; its position is stored in *tail_at when tail_at is given.
std::string scan_format(std::string_view format, std::initializer_list<scan_arg> args,
                        std::size_t* tail_at = nullptr);

// Stops the scan with a complete message; the scanner returns the 1 that this gives back.
int scan_stop(scan_state& s, std::string_view format, std::initializer_list<scan_arg> args);
// Stores a message that still waits for the rest of the line; the scanner then goes to its
// ERROR_TAIL state, where scan_finish_tail completes it.
void scan_fail(scan_state& s, std::string_view format, std::initializer_list<scan_arg> args);
// Puts the rest of the line into the waiting message; returns 1, the scanner's error return.
int scan_finish_tail(scan_state& s, std::string_view rest);

// The newline rule of the line-break states: a newline right after a // comment is forgiven
// (and the forgiveness used up); otherwise it is illegal.
bool newline_is_illegal(scan_state& s);
// The number of the line that a newline token just ended.
inline int ended_line(const scan_state& s) { return s.line - 1; }

// Raises the line counter for every newline of a matched token.
void count_newlines(scan_state& s, const char* text, std::size_t length);

// The reader side of YY_INPUT: up to max characters from the stream, 0 at its end.
std::size_t scan_read(std::istream& in, char* buffer, std::size_t max);
// Text that a format passes through unchanged (flex's ECHO) goes to standard output.
void scan_echo(const char* text, std::size_t length);

// A number token, with the C rules of atof; an integer token, with those of atoi (clamped to
// the int range instead of overflowing).
double scan_real(const char* text);
int scan_int(const char* text);

}  // namespace mero
