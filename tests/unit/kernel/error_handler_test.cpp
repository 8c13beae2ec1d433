#include "kernel/error_handler.h"

#include "test_support.h"

namespace mero {

// The error block and the reporters' console lines are shown by the command-line tests.
TEST(kernel_error_handler, default_warning_block_returns) {
  ::testing::internal::CaptureStderr();
  default_kernel_error_handler(0, "graph has self-loops");
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "\nORBA WARNING\n\tgraph has self-loops\n\n");
}

}  // namespace mero
