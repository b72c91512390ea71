#include "ferrowind/exchange/list_difference.h"

#include <cstdint>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/exchange/lists.h"

namespace ferrowind::exchange {
namespace {

using almanac::CalendarContent;
using almanac::RuleKind;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const almanac::RuleDirectory& Rules() {
  static const almanac::RuleDirectory kRules({{1, "Exception", RuleKind::kWorkingDay},
                                              {2, "Saturday", RuleKind::kWeekday},
                                              {3, "Good Friday", RuleKind::kPoint}});
  return kRules;
}

almanac::MarkedDay Marked(int month, int day, RuleKind kind, std::int32_t rule) {
  return {static_cast<std::int16_t>(platform::Date(2027, month, day).DayOfYear()), kind, rule, {}};
}

std::vector<std::string> Differences(const YearList& list, const CalendarContent& calendar) {
  std::vector<std::string> told;
  for (const ListDifference& difference : DifferencesOf(list, calendar, Rules())) {
    told.push_back(difference.date.ToIso() + ": " + difference.calendar.value_or("-") + ", " +
                   difference.listed.value_or("-") + (difference.is_missing ? ", missing" : ", too much"));
  }
  return told;
}

TEST(ListDifference, IsADayThatIsClosedOnOneSideOnly) {
  const CalendarContent calendar{
      2027,
      {Marked(1, 2, RuleKind::kWeekday, 2), Marked(3, 26, RuleKind::kPoint, 3),
       Marked(5, 3, RuleKind::kPoint, 3), Marked(12, 24, RuleKind::kWorkingDay, 1)}};
  EXPECT_THAT(
      Differences({2027, {Day(2027, 3, 26, "Karfreitag"), Day(2027, 12, 24, "Eve"), Day(2027, 12, 27)}},
                  calendar),
      ElementsAre("2027-05-03: Good Friday, -, too much", "2027-12-24: Exception, Eve, missing",
                  "2027-12-27: -, , missing"));
}

TEST(ListDifference, IsNoHalfDayAndNoWorkingDayThatIsOpen) {
  const CalendarContent calendar{2027, {Marked(3, 26, RuleKind::kPoint, 3)}};
  EXPECT_THAT(
      Differences({2027,
                   {Day(2027, 3, 26, "", ListedKind::kHalfDay), Day(2027, 4, 1, "", ListedKind::kHalfDay),
                    Day(2027, 4, 2, "", ListedKind::kWorkingDay)}},
                  calendar),
      IsEmpty());
  EXPECT_THAT(Differences({2027, {Day(2027, 3, 26, "Fair", ListedKind::kWorkingDay)}}, calendar),
              ElementsAre("2027-03-26: Good Friday, Fair, too much"));
}

TEST(ListDifference, CountsWeekendsOfAListThatNamesThem) {
  YearList list{2027, DaysOfWeek(2027, 7)};
  CalendarContent calendar{2027, {}};
  for (const ListedDay& day : list.days) {
    calendar.days.push_back(Marked(day.date.Month(), day.date.Day(), RuleKind::kWeekday, 2));
  }
  EXPECT_THAT(Differences(list, calendar), IsEmpty());
  list.days.erase(list.days.begin());
  EXPECT_THAT(Differences(list, calendar), ElementsAre("2027-01-02: Saturday, -, too much"));
  // A holiday on a weekend is left out with it.
  calendar.days.front() = Marked(1, 2, RuleKind::kPoint, 3);
  EXPECT_THAT(Differences(list, calendar), ElementsAre("2027-01-02: Good Friday, -, too much"));
  list.days.clear();
  EXPECT_THAT(Differences(list, calendar), IsEmpty());
  list.days.push_back(Day(2027, 1, 2, "New Year holiday"));
  EXPECT_THAT(Differences(list, calendar), IsEmpty());
}

}  // namespace
}  // namespace ferrowind::exchange
