#include "kernel/error_handler.h"

#include <cstdlib>
#include <iostream>

namespace mero {

namespace {
kernel_error_handler current_handler = default_kernel_error_handler;
}

void default_kernel_error_handler(int code, const std::string& text) {
  std::cerr << '\n' << (code == 0 ? "ORBA WARNING" : "ORBA ERROR HANDLER") << '\n';
  std::cerr << '\t' << text << '\n' << std::endl;
  if (code > 0) {
    std::cout.flush();
    std::abort();
  }
}

void kernel_error(int code, const std::string& text) { current_handler(code, text); }

kernel_error_handler set_kernel_error_handler(kernel_error_handler handler) {
  kernel_error_handler previous = current_handler;
  current_handler = handler ? handler : default_kernel_error_handler;
  return previous;
}

void empty_list_error(const char* text) {
  kernel_error(1, text);
  std::abort();  // a handler must not return from a code above 0
}

}  // namespace mero
