#include "ferrowind/planning/days_json.h"

#include <algorithm>

#include <gmock/gmock.h>

#include "ferrowind/almanac/planner.h"

#include "tests/unit/almanac/small_calendars.h"

namespace ferrowind::planning {
namespace {

using almanac::BookOf;
using almanac::ExceptionHandling;
using almanac::MarkedDay;

/// What applying the book to a calendar of 2028 with these days sends.
std::string JsonOf(const std::string& book_lines, const std::vector<MarkedDay>& days,
                   const almanac::DayChoice& choice = ExceptionHandling::kOverwrite) {
  const almanac::RuleBook book = BookOf(book_lines);
  const almanac::YearPlan plan = almanac::PlanYear(book, 2028, {});
  const almanac::CalendarContent content{2028, days};
  const almanac::RuleDirectory directory(almanac::SmallRules());
  const almanac::RuleMatches matches(book, directory);
  return DaysJson(almanac::Comparison(plan, content, matches), choice);
}

TEST(DaysJson, GivesRulesTheirDatesAndCommentsAndMakesDaysOrdinary) {
  EXPECT_EQ(JsonOf("celebration | Christmas Day | 12-25 | 25 December\n"
                   "point | Feast \"1\" | easter-2 |\n",
                   {almanac::Marked("2028-01-03", almanac::rule::kFair),
                    almanac::Marked("2028-01-04", almanac::rule::kFair)}),
            R"([{"Name1":"Christmas Day","TID1":3,"Comment":"25 December","Dates":["2028-12-25"]},)"
            R"({"Name1":"Feast \"1\"","TID1":4,"Dates":["2028-04-14"]},)"
            R"({"TID1":1,"Dates":["2028-01-03","2028-01-04"]}])");
}

TEST(DaysJson, NamesRulesInTheOrderOfTheBookWithMovedDaysBehindTheirRule) {
  const std::string json = JsonOf(
      "weekday | Sunday | weekday Sunday |\n"
      "weekday | Saturday | weekday Saturday |\n"
      "celebration | Midsummer | 06-24 to next free day | | Day off\n"
      "celebration | Founding Day | 03-01 |\n",
      {almanac::Marked("2028-01-03", almanac::rule::kFair)});
  std::vector<std::size_t> places;
  for (const char* name : {"Sunday", "Saturday", "Midsummer", "Day off", "Founding Day"}) {
    places.push_back(json.find("{\"Name1\":\"" + std::string(name) + "\""));
  }
  places.push_back(json.find("{\"TID1\":1,"));
  EXPECT_THAT(places, ::testing::Each(::testing::Ne(std::string::npos)));
  EXPECT_TRUE(std::is_sorted(places.begin(), places.end())) << json;
}

TEST(DaysJson, LeavesOutWhatIsAsPlanned) {
  EXPECT_EQ(JsonOf("celebration | Christmas Day | 12-25 | 25 December\n",
                   {almanac::Marked("2028-12-25", almanac::rule::kChristmas)}),
            "[]");
}

TEST(DaysJson, OverwritesExceptionsUnlessTheyAreKept) {
  const char* const book = "celebration | Christmas Day | 12-25 |\n";
  const std::vector<MarkedDay> days = {almanac::Marked("2028-12-25", almanac::kExceptionRule)};
  EXPECT_EQ(JsonOf(book, days), R"([{"Name1":"Christmas Day","TID1":3,"Dates":["2028-12-25"]}])");
  EXPECT_EQ(JsonOf(book, days, ExceptionHandling::kKeep), "[]");
}

TEST(DaysJson, LeavesOutTheDaysThatAreNotChosen) {
  almanac::DayChoice choice = ExceptionHandling::kKeep;
  choice.Decide(2, false);
  choice.Decide(360, true);
  EXPECT_EQ(JsonOf("celebration | Christmas Day | 12-25 |\n"
                   "point | Fair | 2028-01-02 |\n"
                   "point | Good Friday | easter-2 |\n",
                   {almanac::Marked("2028-12-25", almanac::kExceptionRule)}, choice),
            R"([{"Name1":"Christmas Day","TID1":3,"Dates":["2028-12-25"]},)"
            R"({"Name1":"Good Friday","TID1":4,"Dates":["2028-04-14"]}])");
}

TEST(DaysJson, MakesAPlannedWorkingDayAnExceptionWithItsNameAsTheReason) {
  EXPECT_EQ(JsonOf("working day | Working Saturday | 2028-01-01 | Notice\n"
                   "celebration | New Year | 01-01 |\n",
                   {almanac::Marked("2028-01-01", almanac::rule::kSaturday)}),
            R"([{"TID1":1,"DayComment":"Working Saturday","Dates":["2028-01-01"]}])");
}

TEST(DaysJson, NamesARuleOnceAlthoughSeveralRulesOfTheBookHaveItsName) {
  EXPECT_EQ(JsonOf("point | Feast | 03-01 | First\n"
                   "point | Feast | 03-02 | Second\n",
                   {}),
            R"([{"Name1":"Feast","TID1":4,"Comment":"First","Dates":["2028-03-01","2028-03-02"]}])");
}

}  // namespace
}  // namespace ferrowind::planning
