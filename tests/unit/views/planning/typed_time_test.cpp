#include "ferrowind/views/planning/typed_time.h"

#include <gtest/gtest.h>

namespace ferrowind {
namespace {

/// "14:05:-" of a time without seconds; "none" of a text that is no time.
std::string Read(const std::string& text) {
  const auto time = ReadTime(text);
  if (!time) return "none";
  return std::to_string(time->hour) + ":" + std::to_string(time->minute) + ":" +
         (time->second ? std::to_string(*time->second) : "-");
}

TEST(TypedTime, HasHoursAndMinutesAndMayHaveSeconds) {
  EXPECT_EQ(Read("14:05"), "14:5:-");
  EXPECT_EQ(Read("14:05:31"), "14:5:31");
  EXPECT_EQ(Read(" 9.05 "), "9:5:-");
  EXPECT_EQ(Read("00:00:00"), "0:0:0");
  EXPECT_EQ(Read("23:59:59"), "23:59:59");
}

TEST(TypedTime, IsNoTextThatIsNoTimeOrMayBeMeantOtherwise) {
  for (const char* text :
       {"", " ", "14", "14:", ":05", "14:5", "1405", "24:00", "12:60", "12:00:60", "12:00:", "12:00:00:00",
        "012:00", "12:000", "-1:00", "2:05 pm", "noon", "12 05", "12:05x"}) {
    EXPECT_EQ(Read(text), "none") << text;
  }
}

}  // namespace
}  // namespace ferrowind
