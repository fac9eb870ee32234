#include "base/diagnostics.h"

#include <gtest/gtest.h>

namespace kalvo::base {
namespace {

TEST(DiagnosticsTest, WhateverTheTextItIsOneLineThatCannotSteerATerminal) {
    testing::internal::CaptureStdout();
    Diagnostics::standardOutput().print("Search error: è\r\nnot\tfound \x1B[2J\u009B2J\u202E");
    Diagnostics::standardOutput().print("");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "Search error: è  not found  [2J 2J \n\n");
}

}  // namespace
}  // namespace kalvo::base
