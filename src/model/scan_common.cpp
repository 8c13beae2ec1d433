#include "model/scan_common.h"

#include <climits>
#include <cstdlib>
#include <iostream>

namespace mero {

void scan_state::reset(std::istream& input, std::string default_message) {
  in = &input;
  line = 1;
  skip_next_newline = false;
  comment_return = 0;
  message = std::move(default_message);
  tail_at = std::string::npos;
}

std::string scan_format(std::string_view format, std::initializer_list<scan_arg> args,
                        std::size_t* tail_at) {
  std::string out;
  auto arg = args.begin();
  for (std::size_t i = 0; i < format.size(); ++i) {
    const char c = format[i];
    const char next = i + 1 < format.size() ? format[i + 1] : '\0';
    if (c != '%' || next == '\0') {
      out += c;
    } else if (next == '%') {
      // "%%s" marks the place of the rest of the line; any other "%%" is a plain percent sign.
      if (i + 2 < format.size() && format[i + 2] == 's' && tail_at) {
        *tail_at = out.size();
        i += 2;
      } else {
        out += '%';
        ++i;
      }
    } else {
      if (arg != args.end()) out += (arg++)->text;
      ++i;
    }
  }
  return out;
}

int scan_stop(scan_state& s, std::string_view format, std::initializer_list<scan_arg> args) {
  s.message = scan_format(format, args);
  s.tail_at = std::string::npos;
  return 1;
}

void scan_fail(scan_state& s, std::string_view format, std::initializer_list<scan_arg> args) {
  s.tail_at = std::string::npos;
  s.message = scan_format(format, args, &s.tail_at);
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

double scan_real(const char* text) { return std::strtod(text, nullptr); }

int scan_int(const char* text) {
  const long long value = std::strtoll(text, nullptr, 10);
  if (value > INT_MAX) return INT_MAX;
  if (value < INT_MIN) return INT_MIN;
  return static_cast<int>(value);
}

}  // namespace mero
