#include "kernel/message.h"

namespace mero {

std::string format_message(std::string_view format, std::initializer_list<message_arg> args,
                           std::size_t* tail_at) {
  std::string out;
  auto arg = args.begin();
  for (std::size_t i = 0; i < format.size(); ++i) {
    const char c = format[i];
    const char next = i + 1 < format.size() ? format[i + 1] : '\0';
    if (c != '%' || next == '\0') {
      out += c;
    } else if (next == '%') {
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

}  // namespace mero
