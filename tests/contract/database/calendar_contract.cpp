// What CldIUMain and CldGetMain do.

#include <algorithm>
#include <array>

#include <gmock/gmock.h>

#include "ferrowind/platform/values/failure.h"

#include "tests/contract/database/procedures_contract.h"

namespace ferrowind::contract {
namespace {

using platform::Date;
using platform::Value;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// The fields of CldGetMain by position.
constexpr std::size_t kODate = 0;
constexpr std::size_t kTID1 = 1;
constexpr std::size_t kName1 = 2;
constexpr std::size_t kComment = 4;
constexpr std::size_t kID2 = 5;
constexpr std::size_t kDay1 = 6;

/// The days that carry the rule.
std::vector<int> DaysOfRule(const std::vector<Row>& days, std::int32_t rule) {
  std::vector<int> found;
  for (const auto& day : days) {
    if (day[kID2] == Value(rule)) found.push_back(*day[kDay1].If<std::int32_t>());
  }
  return found;
}

/// The days of `year` on `weekday` (1 Sunday to 7 Saturday).
std::vector<int> DaysOnWeekday(int year, int weekday) {
  std::vector<int> found;
  for (int day = 1; day <= platform::DaysInYear(year); ++day) {
    if (Date(year, 1, 1).AddDays(day - 1).Weekday() == weekday) found.push_back(day);
  }
  return found;
}

TEST_P(ProceduresContract, ANewCalendarHasEveryDayOfItsYearAsAnOrdinaryWorkingDay) {
  for (const int year : {1900, 1999, 2000, 2024, 2026, 2100, 3000}) {
    ASSERT_EQ(CreateCalendar(kEuro, year), 0);
    const auto days = Days(year);
    ASSERT_EQ(days.size(), static_cast<std::size_t>(platform::DaysInYear(year))) << year;
    for (std::size_t i = 0; i < days.size(); ++i) {
      const auto number = static_cast<std::int32_t>(i);
      EXPECT_EQ(days[i],
                (Row{Value(Date(year, 1, 1).AddDays(number)), Value(1), {}, {}, {}, {}, Value(number + 1)}));
    }
  }
}

TEST_P(ProceduresContract, TheDaysHaveTheFieldsOfTheDayGrid) {
  ASSERT_EQ(CreateCalendar(kEuro, 2026), 0);
  const auto outcome = caller().Call("CldGetMain", {{"ID1", kEuro}, {"Year1", 2026}});
  ASSERT_EQ(outcome.record_sets.size(), 1U);
  EXPECT_THAT(FieldsOf(*outcome.record_sets[0]),
              ElementsAre("ODate", "TID1", "Name1", "Comment2", "Comment", "ID2", "Day1"));
}

TEST_P(ProceduresContract, ACalendarThatExistsIsNotCreatedAgain) {
  ASSERT_EQ(CreateCalendar(kEuro, 2026), 0);
  ASSERT_EQ(
      caller().Return("CldIUMain", {{"ID1", kEuro}, {"Year1", 2026}, {"TID1", 1}, {"ID2", 1}, {"Day1", 5}}),
      0);
  EXPECT_EQ(CreateCalendar(kEuro, 2026), 6);
  EXPECT_EQ(Days(2026).at(4)[kID2], Value(1));
}

TEST_P(ProceduresContract, CalendarsOfOtherCurrenciesAndYearsStayAsTheyAre) {
  for (const int year : {2025, 2026, 2027}) ASSERT_EQ(CreateCalendar(kEuro, year), 0);
  ASSERT_EQ(CreateCalendar(kDollar, 2026), 0);
  const auto rule = AddWeekdayRule("Sunday", 1);
  ASSERT_EQ(caller().Return("CldIUMain", {{"ID1", kEuro}, {"Year1", 2026}, {"TID1", 2}, {"ID2", rule}}), 0);
  EXPECT_THAT(DaysOfRule(Days(2025), rule), IsEmpty());
  EXPECT_EQ(DaysOfRule(Days(2026), rule).size(), 52U);
  EXPECT_THAT(DaysOfRule(Days(2027), rule), IsEmpty());
  const auto dollar = caller().Call("CldGetMain", {{"ID1", kDollar}, {"Year1", 2026}});
  EXPECT_THAT(DaysOfRule(RowsOf(*dollar.record_sets.at(0)), rule), IsEmpty());
}

TEST_P(ProceduresContract, AYearOutsideTheRangeIsRefused) {
  for (const int year : {1899, 3001, 0, -1, 2147483647}) {
    EXPECT_EQ(CreateCalendar(kEuro, year), 7) << year;
    EXPECT_EQ(caller().Return("CldGetMain", {{"ID1", kEuro}, {"Year1", year}}), 7) << year;
  }
}

TEST_P(ProceduresContract, ACallWithoutCurrencyOrYearIsRefused) {
  for (const std::string procedure : {"CldIUMain", "CldGetMain"}) {
    EXPECT_EQ(caller().Return(procedure), 7);
    EXPECT_EQ(caller().Return(procedure, {{"ID1", kEuro}}), 7);
    EXPECT_EQ(caller().Return(procedure, {{"Year1", 2026}}), 7);
  }
}

TEST_P(ProceduresContract, AnUnknownCurrencyIsRefused) {
  EXPECT_EQ(CreateCalendar(kNoCurrency, 2026), 3);
  EXPECT_EQ(caller().Return("CldGetMain", {{"ID1", kNoCurrency}, {"Year1", 2026}}), 3);
  EXPECT_EQ(caller().Return("CldIUMain",
                            {{"ID1", kNoCurrency}, {"Year1", 2026}, {"TID1", 1}, {"ID2", 1}, {"Day1", 1}}),
            3);
}

TEST_P(ProceduresContract, ACodeThatIsNoMoneyHasNoCalendars) {
  EXPECT_EQ(CreateCalendar(kGold, 2026), 3);
  EXPECT_THAT(RowsOf(*caller().Call("CldAllInfo").record_sets.at(0)), IsEmpty());
}

TEST_P(ProceduresContract, AnUnknownCalendarIsRefused) {
  ASSERT_EQ(CreateCalendar(kEuro, 2026), 0);
  EXPECT_EQ(caller().Return("CldGetMain", {{"ID1", kEuro}, {"Year1", 2025}}), 5);
  EXPECT_EQ(
      caller().Return("CldIUMain", {{"ID1", kEuro}, {"Year1", 2025}, {"TID1", 1}, {"ID2", 1}, {"Day1", 1}}),
      5);
  EXPECT_EQ(
      caller().Return("CldIUMain", {{"ID1", kDollar}, {"Year1", 2026}, {"TID1", 1}, {"ID2", 1}, {"Day1", 1}}),
      5);
}

TEST_P(ProceduresContract, AnExceptedDayCarriesTheBuiltInRuleAndTheComment) {
  ASSERT_EQ(CreateCalendar(kEuro, 2024), 0);
  ASSERT_EQ(caller().Return("CldIUMain", {{"TID1", 1},
                                          {"ID1", kEuro},
                                          {"ID2", 1},
                                          {"Year1", 2024},
                                          {"Day1", 60},
                                          {"ODate", Date(2024, 2, 29)},
                                          {"Comment", "TARGET is open; it's so"}}),
            0);
  EXPECT_EQ(Days(2024).at(59), (Row{Value(Date(2024, 2, 29)),
                                    Value(1),
                                    Value("Working day by exception"),
                                    {},
                                    Value("TARGET is open; it's so"),
                                    Value(1),
                                    Value(60)}));
  EXPECT_THAT(DaysOfRule(Days(2024), 1), ElementsAre(60));
}

TEST_P(ProceduresContract, ExceptingADayAgainWithoutACommentClearsTheComment) {
  ASSERT_EQ(CreateCalendar(kEuro, 2026), 0);
  Arguments arguments = {{"TID1", 1},     {"ID1", kEuro}, {"ID2", 1},
                         {"Year1", 2026}, {"Day1", 10},   {"Comment", "First"}};
  ASSERT_EQ(caller().Return("CldIUMain", arguments), 0);
  arguments.pop_back();
  ASSERT_EQ(caller().Return("CldIUMain", arguments), 0);
  EXPECT_EQ(Days(2026).at(9)[kComment], Value());
  EXPECT_EQ(Days(2026).at(9)[kID2], Value(1));
}

TEST_P(ProceduresContract, AnEmptyCommentIsKeptAsAText) {
  ASSERT_EQ(CreateCalendar(kEuro, 2026), 0);
  ASSERT_EQ(caller().Return(
                "CldIUMain",
                {{"TID1", 1}, {"ID1", kEuro}, {"ID2", 1}, {"Year1", 2026}, {"Day1", 10}, {"Comment", ""}}),
            0);
  EXPECT_EQ(Days(2026).at(9)[kComment], Value(""));
}

TEST_P(ProceduresContract, TheFirstAndTheLastDayOfTheYearCanBeAssigned) {
  ASSERT_EQ(CreateCalendar(kEuro, 2024), 0);
  ASSERT_EQ(CreateCalendar(kEuro, 2026), 0);
  const auto except = [&](int year, int day) {
    return caller().Return("CldIUMain",
                           {{"TID1", 1}, {"ID1", kEuro}, {"ID2", 1}, {"Year1", year}, {"Day1", day}});
  };
  EXPECT_EQ(except(2024, 1), 0);
  EXPECT_EQ(except(2024, 366), 0);
  EXPECT_EQ(except(2026, 365), 0);
  EXPECT_EQ(except(2026, 366), 7) << "a common year ends with day 365";
  for (const int day : {0, -1, 367, 2147483647}) EXPECT_EQ(except(2024, day), 7) << day;
  EXPECT_THAT(DaysOfRule(Days(2024), 1), ElementsAre(1, 366));
  EXPECT_THAT(DaysOfRule(Days(2026), 1), ElementsAre(365));
}

TEST_P(ProceduresContract, AWeekdayRuleTakesEveryDayOnItsWeekday) {
  ASSERT_EQ(CreateCalendar(kEuro, 2026), 0);
  const auto saturday = AddWeekdayRule("Saturday", 7);
  ASSERT_EQ(caller().Return("CldIUMain", {{"TID1", 2}, {"ID1", kEuro}, {"ID2", saturday}, {"Year1", 2026}}),
            0);
  const auto days = Days(2026);
  EXPECT_EQ(DaysOfRule(days, saturday), DaysOnWeekday(2026, 7));
  EXPECT_EQ(days.at(2)[kName1], Value("Saturday"));
  EXPECT_EQ(days.at(2)[kTID1], Value(2));
}

TEST_P(ProceduresContract, AWeekdayRuleCountsFromTheFirstWeekday) {
  std::array<std::int32_t, 8> rules{};
  for (int weekday = 1; weekday <= 7; ++weekday) {
    rules[static_cast<std::size_t>(weekday)] = AddWeekdayRule("Weekday " + std::to_string(weekday), weekday);
  }
  int year = 1999;
  for (int first_day = 1; first_day <= 7; ++first_day) {
    database().SetFirstDay(first_day);
    for (const int weekday : {1, 4, 7}) {
      ASSERT_EQ(CreateCalendar(kEuro, ++year), 0);
      const auto rule = rules[static_cast<std::size_t>(weekday)];
      ASSERT_EQ(caller().Return("CldIUMain", {{"TID1", 2}, {"ID1", kEuro}, {"ID2", rule}, {"Year1", year}}),
                0);
      EXPECT_EQ(DaysOfRule(Days(year), rule), DaysOnWeekday(year, (first_day + weekday - 2) % 7 + 1))
          << "first weekday " << first_day << ", weekday " << weekday;
    }
  }
}

TEST_P(ProceduresContract, AWeekdayRulePassesOverExceptionsAndDatedRulesAndReplacesWeekdayRules) {
  ASSERT_EQ(CreateCalendar(kEuro, 2026), 0);
  const auto old_sunday = AddWeekdayRule("Old Sunday", 1);
  const auto sunday = AddWeekdayRule("Sunday", 1);
  const auto celebration = AddDatedRule("Fourth of January", 3, Date(1999, 1, 4));
  const auto point = AddDatedRule("Eleventh of January", 4, Date(2026, 1, 11));
  const Arguments calendar = {{"ID1", kEuro}, {"Year1", 2026}};
  const auto assign = [&](Arguments more) {
    more.insert(more.end(), calendar.begin(), calendar.end());
    return caller().Return("CldIUMain", more);
  };
  ASSERT_EQ(assign({{"TID1", 2}, {"ID2", old_sunday}}), 0);
  ASSERT_EQ(assign({{"TID1", 3}, {"ID2", celebration}, {"Day1", 4}, {"ODate", Date(2026, 1, 4)}}), 0);
  ASSERT_EQ(assign({{"TID1", 4}, {"ID2", point}, {"Day1", 11}, {"ODate", Date(2026, 1, 11)}}), 0);
  ASSERT_EQ(assign({{"TID1", 1}, {"ID2", 1}, {"Day1", 18}, {"Comment", "open"}}), 0);
  ASSERT_EQ(assign({{"TID1", 2}, {"ID2", sunday}}), 0);
  const auto days = Days(2026);
  EXPECT_THAT(DaysOfRule(days, old_sunday), IsEmpty());
  EXPECT_THAT(DaysOfRule(days, celebration), ElementsAre(4));
  EXPECT_THAT(DaysOfRule(days, point), ElementsAre(11));
  EXPECT_THAT(DaysOfRule(days, 1), ElementsAre(18));
  EXPECT_EQ(days.at(17)[kComment], Value("open"));
  EXPECT_EQ(DaysOfRule(days, sunday).size(), 49U);
}

TEST_P(ProceduresContract, AWeekdayRuleForOneDayTakesThatDayWhateverItsWeekdayAndWhateverItCarried) {
  ASSERT_EQ(CreateCalendar(kEuro, 2026), 0);
  const auto sunday = AddWeekdayRule("Sunday", 1);
  const Arguments calendar = {{"ID1", kEuro}, {"Year1", 2026}, {"Day1", 6}};
  Arguments except = calendar;
  except.insert(except.end(), {{"TID1", 1}, {"ID2", 1}, {"Comment", "open"}});
  ASSERT_EQ(caller().Return("CldIUMain", except), 0);
  Arguments assign = calendar;
  assign.insert(assign.end(), {{"TID1", 2}, {"ID2", sunday}});
  ASSERT_EQ(caller().Return("CldIUMain", assign), 0);
  EXPECT_THAT(DaysOfRule(Days(2026), sunday), ElementsAre(6));
  EXPECT_EQ(Days(2026).at(5)[kComment], Value()) << "the comment was the exception's";
}

TEST_P(ProceduresContract, ADatedRuleTakesItsDay) {
  ASSERT_EQ(CreateCalendar(kEuro, 2004), 0);
  const auto christmas = AddDatedRule("Christmas Day", 3, Date(1999, 12, 25));
  ASSERT_EQ(caller().Return("CldIUMain", {{"TID1", 3},
                                          {"ID1", kEuro},
                                          {"ID2", christmas},
                                          {"Year1", 2004},
                                          {"ODate", Date(2004, 12, 25)},
                                          {"Day1", 360}}),
            0);
  EXPECT_EQ(Days(2004).at(359), (Row{Value(Date(2004, 12, 25)),
                                     Value(3),
                                     Value("Christmas Day"),
                                     {},
                                     {},
                                     Value(christmas),
                                     Value(360)}));
}

TEST_P(ProceduresContract, ADateThatIsNotTheDayIsRefused) {
  ASSERT_EQ(CreateCalendar(kEuro, 2004), 0);
  const auto rule = AddDatedRule("Rule", 4, Date(2004, 12, 25));
  const auto weekday = AddWeekdayRule("Sunday", 1);
  for (const auto& [day, date] : {std::pair{359, Date(2004, 12, 25)},
                                  {361, Date(2004, 12, 25)},
                                  {359, Date(2003, 12, 25)},
                                  {360, Date(2005, 12, 26)}}) {
    for (const auto& [type, number] : {std::pair{1, 1}, {2, weekday}, {4, rule}}) {
      EXPECT_EQ(caller().Return("CldIUMain", {{"TID1", type},
                                              {"ID1", kEuro},
                                              {"ID2", number},
                                              {"Year1", 2004},
                                              {"Day1", day},
                                              {"ODate", date}}),
                7);
    }
  }
}

TEST_P(ProceduresContract, AMissingDayOrDateIsRefused) {
  ASSERT_EQ(CreateCalendar(kEuro, 2026), 0);
  const auto dated = AddDatedRule("Rule", 3, Date(2026, 5, 1));
  const auto weekday = AddWeekdayRule("Sunday", 1);
  const auto assign = [&](Arguments more) {
    more.insert(more.end(), {{"ID1", kEuro}, {"Year1", 2026}});
    return caller().Return("CldIUMain", more);
  };
  EXPECT_EQ(assign({{"TID1", 1}, {"ID2", 1}}), 7) << "an exception is for one day";
  EXPECT_EQ(assign({{"TID1", 3}, {"ID2", dated}, {"Day1", 121}}), 7);
  EXPECT_EQ(assign({{"TID1", 3}, {"ID2", dated}, {"ODate", Date(2026, 5, 1)}}), 7);
  EXPECT_EQ(assign({{"TID1", 2}, {"ID2", weekday}, {"ODate", Date(2026, 5, 1)}}), 7)
      << "not the whole year by mistake";
  EXPECT_EQ(assign({{"TID1", 2}, {"Day1", 1}}), 7) << "no rule";
  EXPECT_EQ(assign({{"ID2", 1}, {"Day1", 1}}), 7) << "no type";
  EXPECT_EQ(assign({{"TID1", 0}, {"ID2", 1}, {"Day1", 1}}), 7);
  EXPECT_EQ(assign({{"TID1", 5}, {"ID2", 1}, {"Day1", 1}}), 7);
  for (const auto& day : Days(2026)) EXPECT_EQ(day[kID2], Value());
}

TEST_P(ProceduresContract, AValueThatOnlyAnAssignmentTakesDoesNotCreateACalendar) {
  for (const auto& extra :
       Arguments{{"ID2", 1}, {"Day1", 1}, {"ODate", Date(2026, 1, 1)}, {"Comment", "c"}}) {
    EXPECT_EQ(caller().Return("CldIUMain", {{"ID1", kEuro}, {"Year1", 2026}, extra}), 7) << extra.first;
  }
  EXPECT_EQ(caller().Return("CldGetMain", {{"ID1", kEuro}, {"Year1", 2026}}), 5);
}

TEST_P(ProceduresContract, AnUnknownOrRemovedRuleIsNotAssigned) {
  ASSERT_EQ(CreateCalendar(kEuro, 2026), 0);
  const auto rule = AddWeekdayRule("Sunday", 1);
  const auto assign = [&](std::int32_t number) {
    return caller().Return("CldIUMain",
                           {{"TID1", 2}, {"ID1", kEuro}, {"ID2", number}, {"Year1", 2026}, {"Day1", 1}});
  };
  for (const std::int32_t unknown : {0, -1, rule + 1, 2147483647}) EXPECT_EQ(assign(unknown), 4);
  ASSERT_EQ(caller().Return("CldIUCelebrate", {{"ID2", rule}, {"Del", 2}}), 0);
  EXPECT_EQ(assign(rule), 4);
  ASSERT_EQ(caller().Return("CldIUCelebrate", {{"ID2", rule}, {"Del", 4}}), 0);
  EXPECT_EQ(assign(rule), 0);
}

TEST_P(ProceduresContract, ARuleOfAnotherTypeIsNotAssigned) {
  ASSERT_EQ(CreateCalendar(kEuro, 2026), 0);
  const std::array rules = {1, AddWeekdayRule("Sunday", 1), AddDatedRule("Third", 3, Date(2026, 1, 1)),
                            AddDatedRule("Fourth", 4, Date(2026, 1, 1))};
  for (std::size_t rule = 0; rule < rules.size(); ++rule) {
    for (int type = 1; type <= 4; ++type) {
      EXPECT_EQ(caller().Return("CldIUMain", {{"TID1", type},
                                              {"ID1", kEuro},
                                              {"ID2", rules[rule]},
                                              {"Year1", 2026},
                                              {"Day1", 1},
                                              {"ODate", Date(2026, 1, 1)}}),
                type == static_cast<int>(rule) + 1 ? 0 : 7);
    }
  }
}

TEST_P(ProceduresContract, ADaysCommentIsATextOnlyWhateverItHolds) {
  ASSERT_EQ(CreateCalendar(kEuro, 2026), 0);
  for (const std::string text :
       {"'; DROP TABLE CldDay; --", "\" OR 1=1 --", "x'); UPDATE CldDay SET TID1 = 3; --", ":ID1 @ID1 ?1 $x",
        "\u795D\u65E5 \U0001F389"}) {
    ASSERT_EQ(caller().Return(
                  "CldIUMain",
                  {{"TID1", 1}, {"ID1", kEuro}, {"ID2", 1}, {"Year1", 2026}, {"Day1", 3}, {"Comment", text}}),
              0);
    const auto days = Days(2026);
    ASSERT_EQ(days.size(), 365U);
    EXPECT_EQ(days[2][kComment], Value(text));
    EXPECT_THAT(DaysOfRule(days, 1), ElementsAre(3));
    EXPECT_EQ(days[2][kODate], Value(Date(2026, 1, 3)));
  }
}

}  // namespace
}  // namespace ferrowind::contract
