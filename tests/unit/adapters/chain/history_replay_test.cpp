// The days that the row of a new calendar tells of.

#include "ferrowind/adapters/chain/history_replay.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/chain/recorded_table.h"

namespace ferrowind::chain {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

TEST(DaysOfANewCalendar, AreReadAsTheyAreWritten) {
  NewCalendarText text;
  EXPECT_EQ(text.Text(), "{}");
  EXPECT_THAT(*DaysIn(text.Text()), IsEmpty());
  const std::string first = R"({"TID1" : 1, "Comment" : "}\"{ \\"})";
  text.Add(1, first);
  text.Add(365, R"({"TID1" : 2})");
  EXPECT_EQ(text.Text(), R"({"1" : )" + first + R"(, "365" : {"TID1" : 2}})");
  EXPECT_THAT(*DaysIn(text.Text()), ElementsAre(Pair(1, first), Pair(365, R"({"TID1" : 2})")));
}

TEST(DaysOfANewCalendar, AreNotReadFromAnyOtherText) {
  for (const char* const text :
       {"", "{", "[]", R"({"1" : {"TID1" : 2})", R"({"x" : {}})", R"({"1":{}})", R"({"1" : {}} )",
        R"({"1" : {}"2" : {}})", R"({"99999999999999999999" : {}})"}) {
    EXPECT_FALSE(DaysIn(text)) << text;
  }
}

}  // namespace
}  // namespace ferrowind::chain
