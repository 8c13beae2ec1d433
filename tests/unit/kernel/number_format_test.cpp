#include "kernel/number_format.h"

#include <cmath>
#include <cstdio>
#include <limits>
#include <locale>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "test_support.h"

namespace mero {

namespace {

std::string printf_g(double value, int precision) {
  char text[64];
  std::snprintf(text, sizeof text, "%.*g", precision, value);
  return text;
}

std::string general(double value, int precision) {
  char text[general_text_size];
  return std::string(text, format_general(value, precision, text));
}

// Values of every kind a report meets, and those where a scaled digit string could go wrong:
// the neighbours of powers of ten, of ties at every precision, tiny and huge values, zeros of
// both signs and the values that are not finite.
std::vector<double> hard_values() {
  std::vector<double> v{0.0, -0.0, 1e50, -1e50, std::numeric_limits<double>::infinity(),
                        -std::numeric_limits<double>::infinity(),
                        std::numeric_limits<double>::quiet_NaN(),
                        std::numeric_limits<double>::denorm_min(),
                        std::numeric_limits<double>::max(), 0.5, 2.5, 0.125, 1e-5, 9.5e-5};
  for (int e = -8; e <= 18; ++e) {
    const double p = std::pow(10.0, e);
    for (double x : {p, std::nextafter(p, 0.0), std::nextafter(p, 1e300)}) {
      v.push_back(x);
      v.push_back(-x);
    }
    // Ties: m + 1/2 units of the last of 1 to 16 digits, exact in binary or not.
    for (int digits = 1; digits <= 16; ++digits) {
      const double tie = (std::pow(10.0, digits) - 0.5) * p / std::pow(10.0, digits);
      v.push_back(tie);
      v.push_back(std::nextafter(tie, 0.0));
      v.push_back(std::nextafter(tie, 1e300));
    }
  }
  return v;
}

}  // namespace

TEST(number_format, every_precision_gives_the_text_of_printf) {
  std::vector<double> values = hard_values();
  std::mt19937_64 random(20);
  std::uniform_int_distribution<long long> integer(-2000000000LL, 2000000000LL);
  std::uniform_int_distribution<int> decimals(0, 9);
  std::uniform_real_distribution<double> exponent(-7.0, 17.0);
  for (int i = 0; i < 40000; ++i) {
    // Numbers as data files write them (digits with a few decimals), and arbitrary doubles.
    values.push_back(static_cast<double>(integer(random)) / std::pow(10.0, decimals(random)));
    values.push_back((i % 2 ? -1 : 1) * std::pow(10.0, exponent(random)));
    // A tie after some digit: m + 1/2 times a power of ten.
    values.push_back((static_cast<double>(integer(random) % 1000000) + 0.5) *
                     std::pow(10.0, decimals(random) - 6));
  }
  int mismatches = 0;
  for (int precision = 1; precision <= 17; ++precision)
    for (double x : values)
      if (general(x, precision) != printf_g(x, precision) && ++mismatches <= 5)
        ADD_FAILURE() << "precision " << precision << ": " << general(x, precision)
                      << " where printf writes " << printf_g(x, precision);
  EXPECT_EQ(mismatches, 0);
}

TEST(number_format, known_texts_and_plain_streams) {
  EXPECT_EQ(general(6739.73, 6), "6739.73");
  EXPECT_EQ(general(999999.5, 6), "1e+06");    // rounds up into the exponent form
  EXPECT_EQ(general(0.000123456789, 6), "0.000123457");
  EXPECT_EQ(general(-0.0, 6), "-0");
  EXPECT_EQ(general(1234567.0, 6), "1.23457e+06");
  EXPECT_EQ(general(100.0, 6), "100");

  std::ostringstream out;
  EXPECT_TRUE(plain_number_stream(out));
  out.precision(0);  // the stream writes %.0g, which is not %.1g's width of the call
  EXPECT_FALSE(plain_number_stream(out));
  out.precision(6);
  out << std::fixed;
  EXPECT_FALSE(plain_number_stream(out));
  out.flags(std::ios_base::dec | std::ios_base::skipws);
  out.width(8);
  EXPECT_FALSE(plain_number_stream(out));
  out.width(0);
  out.imbue(std::locale(std::locale::classic(), new std::numpunct<char>));
  EXPECT_FALSE(plain_number_stream(out));
}

}  // namespace mero
