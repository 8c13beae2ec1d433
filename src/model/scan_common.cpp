#include "model/scan_common.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <cstdint>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <iostream>

#include "model/model_messages.h"

namespace mero {

void scan_state::reset(std::istream& input, const mero::message& default_message) {
  in = &input;
  line = 1;
  skip_next_newline = false;
  comment_return = 0;
  message = default_message.text;
  tail_at = std::string::npos;
  out_of_range.clear();
  out_of_range_line = 0;
}

int scan_stop(scan_state& s, const message& format, std::initializer_list<message_arg> args) {
  s.message = format_message(format.text, args);
  s.tail_at = std::string::npos;
  return 1;
}

void scan_fail(scan_state& s, const message& format, std::initializer_list<message_arg> args) {
  s.tail_at = std::string::npos;
  s.message = format_message(format.text, args, &s.tail_at);
}

int scan_finish_tail(scan_state& s, std::string_view rest) {
  if (s.tail_at != std::string::npos) s.message.insert(s.tail_at, rest);
  s.tail_at = std::string::npos;
  return 1;
}

bool newline_is_illegal(scan_state& s) {
  if (!s.skip_next_newline) return true;
  s.skip_next_newline = false;
  return false;
}

std::size_t scan_read(std::istream& in, char* buffer, std::size_t max) {
  in.read(buffer, static_cast<std::streamsize>(max));
  return static_cast<std::size_t>(in.gcount());
}

void scan_echo(const char* text, std::size_t length) {
  std::cout.write(text, static_cast<std::streamsize>(length));
}

std::ifstream open_scan_input(const std::string& path, const message& cannot_open) {
  std::ifstream in;
  std::error_code ignored;
  if (!std::filesystem::is_directory(path, ignored)) in.open(path);
  if (!in.is_open()) report_error(cannot_open);
  return in;
}

namespace {

// A plain decimal ("691.294", "-12", "0.5") of at most 15 digits: its digits make an integer
// below 2^53 and its fraction a power 10^f with f <= 15, both exact doubles, so their quotient is
// the correctly rounded value, the one strtod gives. False for anything else (an exponent, more
// digits, no digit before the point).
bool plain_decimal(const char* text, double& value) {
  static constexpr double powers[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                      1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
  const char* at = text;
  const bool negative = *at == '-';
  if (*at == '-' || *at == '+') ++at;
  std::uint64_t digits = 0;
  int count = 0;
  int fraction = 0;
  const auto take = [&] {
    for (; *at >= '0' && *at <= '9'; ++at, ++count)
      if (count < 15) digits = digits * 10 + static_cast<std::uint64_t>(*at - '0');
  };
  take();
  if (count == 0) return false;
  if (*at == '.') {
    const int before = count;
    ++at;
    take();
    fraction = count - before;
  }
  if (count > 15 || *at == 'e' || *at == 'E' || *at == 'x' || *at == 'X') return false;
  value = static_cast<double>(digits) / powers[fraction];
  if (negative) value = -value;
  return true;
}

// The value of a number token by std::from_chars, which needs neither the locale nor errno and
// rounds correctly, as strtod does: true when it could decide alone. It leaves to strtod what
// only strtod reads (a leading '+' before a sign, a hexadecimal "0x" form, leading blanks) and a
// value beyond the range of a double, where strtod's infinity, 0 or denormal is what atof gives.
bool fast_real(const char* text, double& value) {
  const char* first = text[0] == '+' ? text + 1 : text;
  const char* digits = first == text && text[0] == '-' ? text + 1 : first;
  if (*digits < '0' || *digits > '9') return false;
  const char* last = first;
  while (*last != '\0' && *last != ' ' && *last != '\t' && *last != '\r' && *last != '\n') ++last;
  const auto [end, error] = std::from_chars(first, last, value);
  return error == std::errc() && *end != 'x' && *end != 'X';
}

}  // namespace

double scan_real(scan_state& s, const char* text) {
  double value;
  if (plain_decimal(text, value) || fast_real(text, value)) return value;
  value = std::strtod(text, nullptr);
  if (std::isinf(value) && s.out_of_range.empty()) {
    std::string_view token(text);
    const std::size_t end = token.find_first_of(" \t\r\n");
    s.out_of_range = token.substr(0, end);
    // The token may end with its line's newline, which the line counter has already passed.
    s.out_of_range_line = s.line - static_cast<int>(std::count(token.begin(), token.end(), '\n'));
  }
  return value;
}

int scan_range_result(scan_state& s, int result) {
  // The scan reads in file order and stops at its first error, so a noted number always stands
  // before whatever else went wrong.
  if (s.out_of_range.empty()) return result;
  s.message = format_message(scan_messages::number_out_of_range.text,
                             {s.out_of_range, s.out_of_range_line});
  return 1;
}

int scan_int(const char* text) {
  const long long value = std::strtoll(text, nullptr, 10);
  if (value > INT_MAX) return INT_MAX;
  if (value < INT_MIN) return INT_MIN;
  return static_cast<int>(value);
}

}  // namespace mero
