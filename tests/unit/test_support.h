#pragma once
// Shared by every unit test program: reporters and the kernel handler throw instead of ending
// the process, so a test can assert the exact text and code of a failure.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "kernel/reporters.h"

namespace mero::testing {

// Thrown by the test sink for every report that would end the process (and by the test kernel
// handler for codes above 0).
struct reported {
  report what;
};

// Messages that return are collected here, in order.
std::vector<report>& messages();

}  // namespace mero::testing

// Runs stmt and checks that it ends with an error report of this code and text.
#define EXPECT_REPORT(stmt, expected_code, expected_text)                  \
  do {                                                                     \
    try {                                                                  \
      stmt;                                                                \
      ADD_FAILURE() << "no report from " #stmt;                            \
    } catch (const ::mero::testing::reported& r_) {                        \
      EXPECT_EQ(r_.what.code, (expected_code));                            \
      EXPECT_EQ(r_.what.text, std::string(expected_text));                 \
    }                                                                      \
  } while (0)

// Kernel faults are reported with the kernel handler's code (1 for list, matrix and geometry).
#define EXPECT_KERNEL_ERROR(stmt, expected_text) EXPECT_REPORT(stmt, 1, expected_text)
