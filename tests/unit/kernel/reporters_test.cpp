#include "kernel/reporters.h"

#include "kernel/error_handler.h"
#include "test_support.h"

namespace mero {

TEST(reporters, console_lines_and_endings) {
  EXPECT_EQ(console_line({report::kind::error, "Division by zero.", 1211, 1, false, false}),
            "MERO error: Division by zero. ErrorCode: 1211");
  EXPECT_EQ(console_line({report::kind::message, "hello", 0, 0, true, false}),
            "MERO message: hello");
  EXPECT_REPORT(report_error("Division by zero.", 1211), 1211, "Division by zero.");
  testing::messages().clear();
  report_message("one", true, false);  // goes on: returns
  ASSERT_EQ(testing::messages().size(), 1u);
  EXPECT_EQ(testing::messages()[0].text, "one");
  EXPECT_REPORT(report_message("stop", false, false), 0, "stop");
}

TEST(kernel_error_handler, default_blocks_warn_or_abort) {
  ::testing::internal::CaptureStderr();
  default_kernel_error_handler(0, "graph has self-loops");
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "\nORBA WARNING\n\tgraph has self-loops\n\n");
  EXPECT_DEATH(default_kernel_error_handler(1, "dlist::head(): empty list"),
               "\nORBA ERROR HANDLER\n\tdlist::head\\(\\): empty list\n");
}

}  // namespace mero
