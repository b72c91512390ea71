#include "ferrowind/platform/values/json_text.h"

#include <gtest/gtest.h>

namespace ferrowind::platform {
namespace {

TEST(JsonText, EscapesWhatCannotStandInJson) {
  EXPECT_EQ(JsonText("Saint \"X\" \\ \n\x01 é"), "\"Saint \\\"X\\\" \\\\ \\n\\u0001 é\"");
  EXPECT_EQ(JsonText(""), "\"\"");
}

}  // namespace
}  // namespace ferrowind::platform
