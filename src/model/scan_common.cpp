#include "model/scan_common.h"

#include <algorithm>
#include <climits>
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

void count_newlines(scan_state& s, const char* text, std::size_t length) {
  for (std::size_t i = 0; i < length; ++i)
    if (text[i] == '\n') ++s.line;
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

double scan_real(scan_state& s, const char* text) {
  const double value = std::strtod(text, nullptr);
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
