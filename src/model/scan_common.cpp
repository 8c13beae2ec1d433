#include "model/scan_common.h"

#include <climits>
#include <cstdlib>
#include <filesystem>
#include <iostream>

namespace mero {

void scan_state::reset(std::istream& input, const mero::message& default_message) {
  in = &input;
  line = 1;
  skip_next_newline = false;
  comment_return = 0;
  message = default_message.text;
  tail_at = std::string::npos;
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

double scan_real(const char* text) { return std::strtod(text, nullptr); }

int scan_int(const char* text) {
  const long long value = std::strtoll(text, nullptr, 10);
  if (value > INT_MAX) return INT_MAX;
  if (value < INT_MIN) return INT_MIN;
  return static_cast<int>(value);
}

}  // namespace mero
