// Message formats: integers of any width are written whole, so a count beyond int (the product of
// two counts) reads as what it is.

#include "kernel/message.h"

#include <gtest/gtest.h>

#include <cstddef>

namespace mero {
namespace {

TEST(message, formats_integers_of_any_width) {
  const std::size_t entries = 46341u * 46341u;  // beyond INT_MAX
  EXPECT_EQ(format_message("%d of %d by %d", {entries, 46341, 46341}),
            "2147488281 of 46341 by 46341");
  EXPECT_EQ(format_message("%i %s", {-3000000000LL, "x"}), "-3000000000 x");
  EXPECT_EQ(format_message("100%% %d", {7}), "100% 7");
}

}  // namespace
}  // namespace mero
