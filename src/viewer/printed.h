#pragma once
// A printf format filled in, as the viewers' panels and pictures show numbers.

#include <cstdio>
#include <string>

namespace mero {

template <typename... Args>
std::string printed(const char* format, Args... args) {
  char text[256];
  std::snprintf(text, sizeof text, format, args...);
  return text;
}

}  // namespace mero
