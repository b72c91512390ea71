#include "ferrowind/exchange/text_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/exchange/lists.h"

namespace ferrowind::exchange {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(TextList, IsADayALine) {
  EXPECT_THAT(Told(ReadTextList("# Holidays\r\n\r\n2027-01-01 New Year's Day\r\n2027-03-26\r\n"
                                " Monday, 29 March 2027 \xE2\x80\x93 Easter Monday\nMay 1, 2027: Labour Day\n"
                                "2027-12-24, Christmas Eve, half day\n2027-12-25 - Christmas")),
              ElementsAre("2027-01-01 holiday New Year's Day, line 3", "2027-03-26 holiday, line 4",
                          "2027-03-29 holiday Easter Monday, line 5", "2027-05-01 holiday Labour Day, line 6",
                          "2027-12-24 half day Christmas Eve, half day, line 7",
                          "2027-12-25 holiday Christmas, line 8"));
  EXPECT_THAT(ReadTextList("").days, IsEmpty());
}

TEST(TextList, IsRefusedWithEachOfItsLines) {
  EXPECT_EQ(RefusalOf([] { return ReadTextList("2027-01-01\n31 June 2027 b\n\nSunday 1 January 2027\n"); }),
            "line 2: there is no day \"31 June 2027\"; line 4: \"Sunday 1 January 2027\" contradicts itself: "
            "2027-01-01 is a Friday");
}

TEST(TextList, IsWrittenWithoutOpenDays) {
  EXPECT_EQ(WriteTextList({{Day(2027, 1, 1, "New Year"), Day(2027, 1, 2, "", ListedKind::kWeekend),
                            Day(2027, 2, 6, "Fair", ListedKind::kWorkingDay)}}),
            "2027-01-01 New Year\n2027-01-02\n");
}

}  // namespace
}  // namespace ferrowind::exchange
