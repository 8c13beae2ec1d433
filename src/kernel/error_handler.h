#pragma once
// The kernel's error handler: kernel classes report their own faults through it.
// Code 0 is a warning and returns; any code above 0 stops the process abnormally.

#include <string>

namespace mero {

using kernel_error_handler = void (*)(int code, const std::string& text);

// Calls the current handler. For code > 0 it does not return (the default handler aborts; a
// test handler throws).
void kernel_error(int code, const std::string& text);

// Writes the ORBA WARNING / ORBA ERROR HANDLER block on the error stream; aborts for code > 0.
void default_kernel_error_handler(int code, const std::string& text);

// Installs a handler and returns the one it replaces. The program itself keeps the default;
// unit tests install one that throws.
kernel_error_handler set_kernel_error_handler(kernel_error_handler handler);

// The expanded-in-place check of a list's head or tail, with the list's own text.
[[noreturn]] void empty_list_error(const char* text);

}  // namespace mero
