#pragma once
// Doubles in the text a stream in its default state gives them (printf's "%.*g" at the stream's
// precision), written without the stream's number formatting, which takes most of the time of
// writing a large report.

#include <ostream>

namespace mero {

// Room enough for any text of format_general.
inline constexpr int general_text_size = 32;

// Writes value as printf's "%.*g" writes it with this precision (1 to 17) in the C locale, into
// text (general_text_size chars); returns the end of the text (no terminating zero). Values
// whose digits need no rounding decision near a tie are scaled to an integer directly; the
// others go through std::to_chars, which is exact.
char* format_general(double value, int precision, char* text);

// True when `out << x` for a double x gives format_general(x, out.precision()): default flags,
// no field width, the classic locale and a precision of 1 to 17.
bool plain_number_stream(std::ostream& out);

}  // namespace mero
