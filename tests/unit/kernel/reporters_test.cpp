#include "kernel/reporters.h"

#include "kernel/error_handler.h"
#include "test_support.h"

namespace mero {
namespace {

TEST(reporters, console_lines_are_exact) {
  EXPECT_EQ(console_line({report::kind::error, "Division by zero.", 1211, 1, false, false}),
            "MERO error: Division by zero. ErrorCode: 1211");
  EXPECT_EQ(console_line({report::kind::message, "hello", 0, 0, true, false}),
            "MERO message: hello");
}

TEST(reporters, error_ends_with_code_and_text) {
  EXPECT_REPORT(report_error("Division by zero.", 1211), 1211, "Division by zero.");
}

TEST(reporters, message_that_goes_on_returns) {
  testing::messages().clear();
  report_message("one", true, false);
  ASSERT_EQ(testing::messages().size(), 1u);
  EXPECT_EQ(testing::messages()[0].text, "one");
  EXPECT_REPORT(report_message("stop", false, false), 0, "stop");
}

TEST(kernel_error_handler, warning_returns_and_error_stops) {
  kernel_error(0, "just a warning");  // returns
  EXPECT_KERNEL_ERROR(kernel_error(1, "dlist::head(): empty list"), "dlist::head(): empty list");
}

TEST(kernel_error_handler, default_warning_block_on_the_error_stream) {
  ::testing::internal::CaptureStderr();
  default_kernel_error_handler(0, "graph has self-loops");
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "\nORBA WARNING\n\tgraph has self-loops\n\n");
}

TEST(kernel_error_handler, default_error_block_aborts) {
  EXPECT_DEATH(default_kernel_error_handler(1, "dlist::head(): empty list"),
               "\nORBA ERROR HANDLER\n\tdlist::head\\(\\): empty list\n");
}

}  // namespace
}  // namespace mero
