#include "kernel/number_format.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <locale>

namespace mero {

namespace {

// The powers of ten that a double holds exactly.
constexpr double exact_powers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                   1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                   1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// The decimal exponent of a in [1e-5, 1e15): the x with 10^x <= a < 10^(x+1). Below 1 the bounds
// are the nearest doubles to the powers, so a value next to one may come out one too high; the
// digits below then still round correctly, since the scaled value lands next to 10^(p-1).
int decimal_exponent(double a) {
  if (a >= 1) {
    int x = 0;
    while (x < 15 && a >= exact_powers[x + 1]) ++x;
    return x;
  }
  constexpr double below_one[] = {1e-1, 1e-2, 1e-3, 1e-4, 1e-5};
  int x = -1;
  while (x > -5 && a < below_one[-x - 1]) --x;
  return x;
}

// The %g text of a value of magnitude in [1e-5, 1e15) that prints without an exponent, for a
// precision of at most 15: a times a power of ten is a double with at most one rounding, so its
// integer part rounds as the exact product does unless it lies within a few units in the last
// place of a tie. Returns null where the exponent form or a tie after a division leaves the
// decision to to_chars.
char* scaled_general(double value, int precision, char* text) {
  const double a = std::fabs(value);
  if (!(a >= 1e-5 && a < 1e15) || precision > 15) return nullptr;
  int x = decimal_exponent(a);
  const int scale = precision - 1 - x;  // from -14 to 19: an exact power either way
  const double r = scale >= 0 ? a * exact_powers[scale] : a / exact_powers[-scale];
  const double whole = std::floor(r);
  const double fraction = r - whole;
  bool up = fraction > 0.5;
  if (std::fabs(fraction - 0.5) <= r * 0x1p-51) {
    // Near a tie (a decimal 5 after the last digit, as in 5219.55 at six digits): the rounding
    // error of a product is a double, which a fused multiply-add gives exactly, and the sign of
    // the exact distance from the tie decides; an exact tie goes to the even digit, as printf
    // does. The error of a quotient is not at hand this way.
    if (scale < 0) return nullptr;
    const double error = std::fma(a, exact_powers[scale], -r);
    const double beyond = (fraction - 0.5) + error;  // the sign is exact
    up = beyond > 0 || (beyond == 0 && std::fmod(whole, 2.0) != 0);
  }
  double digits = up ? whole + 1 : whole;
  if (digits >= exact_powers[precision]) {  // rounded up to the next power: 10^p exactly
    digits /= 10;
    ++x;
  }
  if (digits < exact_powers[precision - 1] || digits >= exact_powers[precision]) return nullptr;
  if (x < -4 || x >= precision) return nullptr;  // %g's exponent form

  char d[16];
  auto n = static_cast<std::uint64_t>(digits);
  for (int i = precision - 1; i >= 0; --i, n /= 10) d[i] = static_cast<char>('0' + n % 10);
  int last = precision;  // trailing zeros of the fraction are not written
  const int integer_digits = x >= 0 ? x + 1 : 0;
  while (last > integer_digits && d[last - 1] == '0') --last;

  char* out = text;
  if (value < 0) *out++ = '-';
  if (x >= 0) {
    for (int i = 0; i < integer_digits; ++i) *out++ = d[i];
    if (last > integer_digits) *out++ = '.';
    for (int i = integer_digits; i < last; ++i) *out++ = d[i];
  } else {
    *out++ = '0';
    *out++ = '.';
    for (int i = -1; i > x; --i) *out++ = '0';
    for (int i = 0; i < last; ++i) *out++ = d[i];
  }
  return out;
}

}  // namespace

char* format_general(double value, int precision, char* text) {
  if (value == 0) {  // %g writes a zero's sign
    char* out = text;
    if (std::signbit(value)) *out++ = '-';
    *out++ = '0';
    return out;
  }
  // A whole number below 10^precision is written as its digits (most of a report's numbers).
  if (const double a = std::fabs(value);
      precision <= 15 && a < exact_powers[precision] && a == std::floor(a)) {
    char* out = text;
    if (value < 0) *out++ = '-';
    return std::to_chars(out, text + general_text_size, static_cast<std::uint64_t>(a)).ptr;
  }
  if (char* end = scaled_general(value, precision, text)) return end;
  if (!std::isfinite(value)) {
    const int n = std::snprintf(text, general_text_size, "%.*g", precision, value);
    return text + n;
  }
  return std::to_chars(text, text + general_text_size, value, std::chars_format::general,
                       precision)
      .ptr;
}

bool plain_number_stream(std::ostream& out) {
  return out.flags() == (std::ios_base::dec | std::ios_base::skipws) && out.width() == 0 &&
         out.precision() >= 1 && out.precision() <= 17 && out.getloc() == std::locale::classic();
}

}  // namespace mero
