// The number conversion of the scanners against the C library's strtod, which defines the value
// of a number token: bit for bit on random tokens of every shape the rules let through, and on
// the edges of the short paths (digit counts, signs, exponents, forms only strtod reads).

#include "model/scan_common.h"

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>

#include "test_support.h"

namespace mero {
namespace {

void expect_as_strtod(const std::string& token) {
  scan_state s;
  const double value = scan_real(s, token.c_str());
  const double expected = std::strtod(token.c_str(), nullptr);
  EXPECT_EQ(std::memcmp(&value, &expected, sizeof value), 0)
      << token << ": " << value << " against " << expected;
}

TEST(scan_real, agrees_with_strtod_bit_for_bit) {
  for (const char* token :
       {"0", "-0", "+0", "-0.0", "0.", "1.", "-1.", "+7", "+-1", "-+1", "1e5", "1E-5", "1.e3",
        "2.5e+2", "1e", "0x1A", "0X10", "123456789012345", "1234567890123456", "0.000000000000001",
        "0.0000000000000001", "999999999999999", "9999999999999999", "12345678901234567890123",
        "3.14159265358979323846", "691.294", "4.35 ", "7\n", "5\t1", "1.5]", "2/", "007.50",
        "1.7976931348623157e308", "4.9e-324", "2e-320", "1e-400"})
    expect_as_strtod(token);
  std::mt19937_64 random(20261124);
  std::uniform_int_distribution<int> digit(0, 9), length(1, 20), shape(0, 7);
  for (int round = 0; round < 20000; ++round) {
    std::string token;
    const int kind = shape(random);
    if (kind == 1) token += '-';
    if (kind == 2) token += '+';
    for (int i = length(random); i > 0; --i) token += static_cast<char>('0' + digit(random));
    if (kind != 3) {
      token += '.';
      for (int i = length(random) - 1; i > 0; --i) token += static_cast<char>('0' + digit(random));
    }
    if (kind == 4) token += "e" + std::to_string(digit(random) * 7 - 30);
    if (kind == 5) token += ' ';
    expect_as_strtod(token);
  }
}

// Beyond the range of a double: the first such token and its line are kept for the message.
TEST(scan_real, notes_the_first_number_beyond_the_range) {
  scan_state s;
  s.line = 4;
  EXPECT_TRUE(std::isinf(scan_real(s, "-2e308 x")));
  EXPECT_TRUE(std::isinf(scan_real(s, "1e999")));
  EXPECT_EQ(s.out_of_range, "-2e308");
  EXPECT_EQ(s.out_of_range_line, 4);
}

}  // namespace
}  // namespace mero
