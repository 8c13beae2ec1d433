#pragma once
// The one shape of every text the program reports: a code that names the place raising it and a
// text. Each subsystem keeps its messages in one table of these (src/<subsystem>/
// <subsystem>_messages.h), so that the code that raises a message and the tests that expect it
// read the same words. A text may be a format: %d (or %i) takes an integer, %s a text, in order.

#include <concepts>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

namespace mero {

struct message {
  int code;
  const char* text;
};

// One argument of a message format.
struct message_arg {
  std::string text;
  // Any integer, so that a count wider than int (a product of two counts, a size) is written
  // as it is.
  template <std::integral T>
  message_arg(T value) : text(std::to_string(value)) {}
  message_arg(std::string_view value) : text(value) {}
  message_arg(const std::string& value) : text(value) {}
  message_arg(const char* value) : text(value) {}
};

// Fills a format: %d, %i and %s take the arguments in order, "%%" becomes "%". The scanners' "%%s"
// marks where the rest of an offending line will go; when tail_at is given, that place is stored
// there instead of writing a percent sign.
std::string format_message(std::string_view format, std::initializer_list<message_arg> args,
                           std::size_t* tail_at = nullptr);

}  // namespace mero
