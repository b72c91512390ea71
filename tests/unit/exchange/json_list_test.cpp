#include "ferrowind/exchange/json_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/exchange/lists.h"

namespace ferrowind::exchange {
namespace {

using ::testing::ElementsAre;

TEST(JsonList, IsAListOfDatesOrOfObjects) {
  EXPECT_THAT(
      Told(ReadJsonList("[\n\"2027-01-01\",\n{\"name\": \"a\", \"date\": \"2027-12-25\", \"type\": null}]")),
      ElementsAre("2027-01-01 holiday, line 2", "2027-12-25 holiday a, line 3"));
  EXPECT_THAT(Told(ReadJsonList("{\"of\": 1,\n\"holidays\": [\"1 May 2027\"]}")),
              ElementsAre("2027-05-01 holiday, line 2"));
}

TEST(JsonList, TellsOnceWhichMembersItLeavesOut) {
  EXPECT_THAT(ReadJsonList(R"([{"date": "2027-01-01", "global": true}, {"date": "2027-01-02", "global": 1}])")
                  .remarks,
              ElementsAre("The member \"global\" is left out"));
}

TEST(JsonList, IsRefusedWithItsLines) {
  EXPECT_EQ(RefusalOf([] { return ReadJsonList("[\n{\"date\": \"2027-01-01\",}]"); }),
            "line 2: this is no JSON");
  EXPECT_EQ(RefusalOf([] { return ReadJsonList("[\n\"2027-01-01\""); }), "line 2: this is no JSON");
  EXPECT_EQ(RefusalOf([] { return ReadJsonList("{\"list\": []}"); }),
            "line 1: a list of days is expected, or an object with the member \"days\"");
  EXPECT_EQ(RefusalOf([] {
              return ReadJsonList(
                  "[1,\n{\"name\": \"a\"},\n{\"date\": 20270101},\n{\"date\": \"2027-01-01\", "
                  "\"date\": \"2027-01-02\"}, \"01/02/2027\"]");
            }),
            "line 1: a day is expected: a date in quotation marks, or an object with the member \"date\"; "
            "line 2: the "
            "day has no member \"date\"; line 3: the member \"date\" is no text; line 4: the member \"date\" "
            "is there "
            "twice; line 4: \"01/02/2027\" does not begin with a date that can be read in one way only; "
            "YYYY-MM-DD is "
            "expected, DD.MM.YYYY, or a month by its English name, as in 1 January 2027");
}

TEST(JsonList, IsReadAsItWasWritten) {
  const DayList list{{{{2027, 1, 1}, "Say \"hello\"", ListedKind::kHoliday, "EUR", 2},
                      {{2027, 12, 24}, "", ListedKind::kHalfDay, "USD", 3}}};
  EXPECT_EQ(ReadJsonList(WriteJsonList(list)).days, list.days);
  EXPECT_EQ(WriteJsonList({}), "[\n]\n");
}

}  // namespace
}  // namespace ferrowind::exchange
