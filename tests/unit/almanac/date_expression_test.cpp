#include "ferrowind/almanac/date_expression.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/almanac/expression_error.h"

namespace ferrowind::almanac {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::string NormalForm(const std::string& text) { return DateExpression::Parse(text).ToText(); }

template <typename Kind>
Kind AnchorOf(const std::string& text) {
  return std::get<Kind>(DateExpression::Parse(text).anchor);
}

/// Expects `text` to be refused at `place` with the words "`expectation` is expected".
void ExpectRefused(const std::string& text, std::size_t place, const std::string& expectation) {
  try {
    const std::string normal_form = NormalForm(text);
    ADD_FAILURE() << text << " is taken as " << normal_form;
  } catch (const ExpressionError& error) {
    EXPECT_EQ(error.Place(), place) << text;
    EXPECT_EQ(error.Expectation().InEnglish(), expectation) << text;
    EXPECT_EQ(error.Description(), '"' + text + "\" is no date expression: at " + std::to_string(place) +
                                       ", " + expectation + " is expected");
    EXPECT_EQ(error.Number(), platform::failure_number::kInvalidArgument);
  }
}

constexpr const char* kBase = "a date such as 12-25, easter-2 or 1st Monday of 05";
constexpr const char* kAnchor = "a date such as 05-18, easter or 4th Thursday of 11";
constexpr const char* kMonth = "a month 01 to 12";
constexpr const char* kMonthOfADate = "a month 01 to 12 (a date is MM-DD or YYYY-MM-DD)";
constexpr const char* kDay = "a day of the month";
constexpr const char* kYear = "a year 1900 to 2199";
constexpr const char* kDays = "a number of days up to 366";
constexpr const char* kUtcOffset = "a UTC offset -12:00 to +14:00";
constexpr const char* kOrdinal = "one of 1st, 2nd, 3rd, 4th, 5th and last";
constexpr const char* kRelation = "one of on or after, after, on or before and before";
constexpr const char* kAfterBase = "a move, else not observed, from, to, only, not or the end";

TEST(DateExpression, ReadsAFixedDate) { EXPECT_EQ(AnchorOf<FixedDate>("12-25"), (FixedDate{12, 25})); }

TEST(DateExpression, ReadsALeapDay) { EXPECT_EQ(AnchorOf<FixedDate>("02-29"), (FixedDate{2, 29})); }

TEST(DateExpression, ReadsASingleDate) {
  EXPECT_EQ(AnchorOf<SingleDate>("2022-09-19"), SingleDate{platform::Date(2022, 9, 19)});
}

TEST(DateExpression, ReadsTheEastersWithTheirOffsets) {
  EXPECT_EQ(AnchorOf<EasterDate>("easter"), (EasterDate{Church::kWestern, 0}));
  EXPECT_EQ(AnchorOf<EasterDate>("easter-2"), (EasterDate{Church::kWestern, -2}));
  EXPECT_EQ(AnchorOf<EasterDate>("orthodox+366"), (EasterDate{Church::kOrthodox, 366}));
}

TEST(DateExpression, ReadsTheNthWeekdayOfAMonth) {
  EXPECT_EQ(AnchorOf<NthWeekday>("1st Sunday of 01"), (NthWeekday{1, 1, 1}));
  EXPECT_EQ(AnchorOf<NthWeekday>("2nd Monday of 02"), (NthWeekday{2, 2, 2}));
  EXPECT_EQ(AnchorOf<NthWeekday>("3rd Tuesday of 03"), (NthWeekday{3, 3, 3}));
  EXPECT_EQ(AnchorOf<NthWeekday>("4th Wednesday of 11"), (NthWeekday{4, 4, 11}));
  EXPECT_EQ(AnchorOf<NthWeekday>("5th Thursday of 12"), (NthWeekday{5, 5, 12}));
  EXPECT_EQ(AnchorOf<NthWeekday>("last Saturday of 10"), (NthWeekday{NthWeekday::kLast, 7, 10}));
}

TEST(DateExpression, ReadsTheFourRelations) {
  EXPECT_THAT(DateExpression::Parse("Monday on or after 05-18").steps,
              ElementsAre(WeekdayStep{2, Relation::kOnOrAfter}));
  EXPECT_THAT(DateExpression::Parse("Monday after 05-18").steps,
              ElementsAre(WeekdayStep{2, Relation::kAfter}));
  EXPECT_THAT(DateExpression::Parse("Friday on or before 05-18").steps,
              ElementsAre(WeekdayStep{6, Relation::kOnOrBefore}));
  EXPECT_THAT(DateExpression::Parse("Friday before 05-18").steps,
              ElementsAre(WeekdayStep{6, Relation::kBefore}));
}

TEST(DateExpression, ReadsAWeekdayRelatedToAnyOtherBase) {
  for (const std::string anchor : {"2022-09-19", "easter+3", "orthodox", "4th Thursday of 11",
                                   "vernal equinox +09:00", "table x-1", "Tuesday before 05-18"}) {
    EXPECT_EQ(NormalForm("Friday after " + anchor), "Friday after " + anchor);
  }
}

TEST(DateExpression, ReadsTheEquinoxesByAnOffsetFromUtc) {
  EXPECT_EQ(AnchorOf<EquinoxDate>("vernal equinox +09:00"), (EquinoxDate{Equinox::kVernal, 540}));
  EXPECT_EQ(AnchorOf<EquinoxDate>("autumnal equinox -03:30"), (EquinoxDate{Equinox::kAutumnal, -210}));
  EXPECT_EQ(AnchorOf<EquinoxDate>("autumnal equinox +14:00"), (EquinoxDate{Equinox::kAutumnal, 840}));
  EXPECT_EQ(AnchorOf<EquinoxDate>("vernal equinox -12:00"), (EquinoxDate{Equinox::kVernal, -720}));
}

TEST(DateExpression, ReadsATableWithAnOffset) {
  EXPECT_EQ(AnchorOf<TableDate>("table chinese-new-year"), (TableDate{"chinese-new-year", 0}));
  EXPECT_EQ(AnchorOf<TableDate>("table chinese-new-year-1"), (TableDate{"chinese-new-year", -1}));
  EXPECT_EQ(AnchorOf<TableDate>("table Eid2+3"), (TableDate{"eid2", 3}));
}

TEST(DateExpression, ReadsAWeekdayAndADayBetween) {
  EXPECT_EQ(AnchorOf<EveryWeekday>("weekday Saturday"), EveryWeekday{7});
  EXPECT_TRUE(DateExpression::Parse("between").IsBetween());
  EXPECT_TRUE(DateExpression::Parse("Unknown from 2028").IsUnknown());
}

TEST(DateExpression, ReadsTheWeekdaysOnWhichTheBaseCounts) {
  const auto expression = DateExpression::Parse("09-17 if monday, friday to next free day");
  EXPECT_TRUE(expression.only_on.Contains(2));
  EXPECT_TRUE(expression.only_on.Contains(6));
  EXPECT_FALSE(expression.only_on.Contains(3));
  EXPECT_FALSE(expression.moves.at(0).HasConditions());
}

TEST(DateExpression, ReadsMovesWithTheirConditionsAndTargets) {
  const auto moves = DateExpression::Parse(
                         "01-01 saturday, taken to previous free day sunday to next tuesday taken to friday "
                         "to next free day to previous monday")
                         .moves;
  ASSERT_EQ(moves.size(), 5U);
  EXPECT_TRUE(moves[0].weekdays.Contains(7) && moves[0].taken);
  EXPECT_EQ(moves[0].target, (MoveTarget{Direction::kPrevious, MoveTarget::kFreeDay}));
  EXPECT_TRUE(moves[1].weekdays.Contains(1) && !moves[1].taken);
  EXPECT_EQ(moves[1].target, (MoveTarget{Direction::kNext, 3}));
  EXPECT_TRUE(moves[2].weekdays.IsEmpty() && moves[2].taken);
  EXPECT_EQ(moves[2].target, (MoveTarget{Direction::kNearest, 6}));
  EXPECT_FALSE(moves[3].HasConditions());
  EXPECT_EQ(moves[3].target, (MoveTarget{Direction::kNext, MoveTarget::kFreeDay}));
  EXPECT_EQ(moves[4].target, (MoveTarget{Direction::kPrevious, 2}));
}

TEST(DateExpression, TellsTheEndOfTheYearsFromAMove) {
  const auto expression = DateExpression::Parse("01-01 to monday to 2020");
  EXPECT_EQ(expression.moves.size(), 1U);
  EXPECT_EQ(expression.years.to, 2020);
  EXPECT_THAT(DateExpression::Parse("01-01 to 2020").moves, IsEmpty());
}

TEST(DateExpression, ReadsElseNotObserved) {
  EXPECT_TRUE(DateExpression::Parse("12-26 else not observed").else_not_observed);
  EXPECT_FALSE(DateExpression::Parse("12-26").else_not_observed);
}

TEST(DateExpression, ReadsTheYearsItHoldsIn) {
  const auto included = [](const std::string& years) {
    const auto limits = DateExpression::Parse("01-01 " + years).years;
    std::string text;
    for (int year = 2018; year <= 2023; ++year) text += limits.Include(year) ? 'x' : '-';
    return text;
  };
  EXPECT_EQ(included(""), "xxxxxx");
  EXPECT_EQ(included("from 2020"), "--xxxx");
  EXPECT_EQ(included("to 2020"), "xxx---");
  EXPECT_EQ(included("from 2019 to 2021"), "-xxx--");
  EXPECT_EQ(included("only 2019, 2022"), "-x--x-");
  EXPECT_EQ(included("not 2019,2022"), "x-xx-x");
  EXPECT_EQ(included("from 2020 not 2021"), "--x-xx");
}

TEST(DateExpression, ReadsWordsInAnyLetterCaseWithAnyBlanks) {
  EXPECT_EQ(
      NormalForm(
          " \t3RD\nmOnDaY  OF\r\n01 SATURDAY,Sunday TO Next FREE day ELSE NOT observed FROM 2001 TO 2002 "
          "ONLY 2002 , 2001 "),
      "3rd Monday of 01 Saturday, Sunday to next free day else not observed from 2001 to 2002 only 2001, "
      "2002");
  EXPECT_EQ(NormalForm("EASTER  -  2"), "easter-2");
  EXPECT_EQ(NormalForm("Table CHINESE-New-Year + 1"), "table chinese-new-year+1");
}

TEST(DateExpression, HasOneNormalFormForEqualExpressions) {
  EXPECT_EQ(NormalForm("01-01 taken, sunday, monday, sunday to monday"),
            "01-01 Monday, Sunday, taken to Monday");
  EXPECT_EQ(NormalForm("easter+0"), "easter");
  EXPECT_EQ(NormalForm("easter+002"), "easter+2");
  EXPECT_EQ(NormalForm("01-01 not 2021, 2019, 2021"), "01-01 not 2019, 2021");
  EXPECT_EQ(NormalForm("vernal equinox -00:00"), "vernal equinox +00:00");
}

TEST(DateExpression, DiffersFromAnotherInEachOfItsParts) {
  const auto expression = DateExpression::Parse("01-01 if sunday to monday else not observed from 2020");
  for (const char* other :
       {"01-02 if sunday to monday else not observed from 2020",
        "01-01 if monday to monday else not observed from 2020",
        "01-01 if sunday to tuesday else not observed from 2020", "01-01 if sunday to monday from 2020",
        "01-01 if sunday to monday else not observed from 2021",
        "Monday after 01-01 if sunday to monday else not observed from 2020"}) {
    EXPECT_FALSE(expression == DateExpression::Parse(other)) << other;
  }
}

TEST(DateExpressionError, NamesThePlaceInTheBase) {
  ExpectRefused("", 1, kBase);
  ExpectRefused("  ", 3, kBase);
  ExpectRefused("christmas", 1, kBase);
  ExpectRefused("-12-25", 1, kBase);
  ExpectRefused("13-01", 1, kMonthOfADate);
  ExpectRefused("00-01", 1, kMonthOfADate);
  ExpectRefused("1-01", 1, kMonthOfADate);
  ExpectRefused("12", 3, "\"-\"");
  ExpectRefused("12 -25", 3, "\"-\"");
  ExpectRefused("12-32", 4, kDay);
  ExpectRefused("04-31", 4, kDay);
  ExpectRefused("02-30", 4, kDay);
  ExpectRefused("12-5", 4, kDay);
  ExpectRefused("12-255", 4, kDay);
  ExpectRefused("1899-12-31", 1, kYear);
  ExpectRefused("2200-01-01", 1, kYear);
  ExpectRefused("20222-01-01", 1, kYear);
  ExpectRefused("2022-13-01", 6, kMonth);
  ExpectRefused("2022-02-29", 9, kDay);
  ExpectRefused("2022-02", 8, "\"-\"");
}

TEST(DateExpressionError, NamesThePlaceInAnOffset) {
  ExpectRefused("easter+", 8, kDays);
  ExpectRefused("easter+367", 8, kDays);
  ExpectRefused("easter+99999999999999999999", 8, kDays);
  ExpectRefused("table x-", 9, kDays);
  ExpectRefused("easter+2+3", 9, kAfterBase);
  ExpectRefused("table", 6, "the name of a table");
  ExpectRefused("table 9", 7, "the name of a table");
}

TEST(DateExpressionError, NamesThePlaceInAnNthWeekday) {
  ExpectRefused("6th Monday of 01", 1, kOrdinal);
  ExpectRefused("1nd Monday of 01", 1, kOrdinal);
  ExpectRefused("1stMonday of 01", 1, kOrdinal);
  ExpectRefused("2nd of 01", 5, "a weekday");
  ExpectRefused("2nd Mon of 01", 5, "a weekday");
  ExpectRefused("2nd Monday 01", 12, "\"of\"");
  ExpectRefused("2nd Monday of 1", 15, kMonth);
  ExpectRefused("last Monday of May", 16, kMonth);
}

TEST(DateExpressionError, NamesThePlaceInARelation) {
  ExpectRefused("Monday", 7, kRelation);
  ExpectRefused("Monday on 05-18", 11, "\"or\"");
  ExpectRefused("Monday on or 05-18", 14, "after or before");
  ExpectRefused("Monday after", 13, kAnchor);
  ExpectRefused("Monday after weekday Sunday", 14, kAnchor);
  ExpectRefused("Monday after between", 14, kAnchor);
  ExpectRefused("Monday after unknown", 14, kAnchor);
  ExpectRefused("Monday after Monday after Monday after Monday after Monday after 01-01", 60,
                "a date that follows at most 4 weekdays");
}

TEST(DateExpressionError, NamesThePlaceInAnEquinox) {
  ExpectRefused("vernal", 7, "\"equinox\"");
  ExpectRefused("vernal equinox", 15, kUtcOffset);
  ExpectRefused("vernal equinox 09:00", 16, kUtcOffset);
  ExpectRefused("vernal equinox +15:00", 17, kUtcOffset);
  ExpectRefused("vernal equinox +9:00", 17, kUtcOffset);
  ExpectRefused("vernal equinox +0900", 17, kUtcOffset);
  ExpectRefused("vernal equinox +09", 19, "\":\"");
  ExpectRefused("vernal equinox +09:60", 20, "minutes 00 to 59");
  ExpectRefused("vernal equinox +14:01", 16, kUtcOffset);
  ExpectRefused("vernal equinox -12:01", 16, kUtcOffset);
}

TEST(DateExpressionError, NamesThePlaceInAWeekdayRule) {
  ExpectRefused("weekday", 8, "a weekday");
  ExpectRefused("weekday Caturday", 9, "a weekday");
  ExpectRefused("01-01 if", 9, "a weekday");
  ExpectRefused("01-01 if monday,", 17, "a weekday");
}

TEST(DateExpressionError, NamesThePlaceInAMove) {
  ExpectRefused("01-01 saturday", 15, "\"to\"");
  ExpectRefused("01-01 saturday sunday to monday", 16, "\"to\"");
  ExpectRefused("01-01 saturday, to monday", 17, "a weekday or taken");
  ExpectRefused("01-01 to", 9, "a weekday, next or previous");
  ExpectRefused("01-01 to free day", 10, "a weekday, next or previous");
  ExpectRefused("01-01 to next", 14, "a weekday or free day");
  ExpectRefused("01-01 to next free", 19, "\"day\"");
  ExpectRefused(
      "01-01 to monday to monday to monday to monday to monday to monday to monday to monday to monday", 87,
      "the end of at most 8 moves");
}

TEST(DateExpressionError, SaysThatAMoveStandsBeforeTheEnd) {
  const std::string year = std::string(kYear) + " (a move stands before else, from and to)";
  ExpectRefused("01-01 from 2020 to monday", 20, year);
  ExpectRefused("01-01 else not observed to monday", 28, year);
  ExpectRefused("01-01 else not observed to next free day", 28, year);
}

TEST(DateExpressionError, SaysHowADateIsWritten) {
  ExpectRefused("28.02.2026", 1, kMonthOfADate);
  ExpectRefused("26-02-28", 1, kMonthOfADate);
}

TEST(DateExpressionError, SaysWhatTheNameOfATableIsMadeOf) {
  const std::string name = "the name of a table, of letters, digits and single hyphens,";
  ExpectRefused("table Chinese_New_Year", 14, name);
  ExpectRefused("table a--b", 9, "a number of days up to 366");
  ExpectRefused("Monday after table a.b", 21, name);
}

TEST(DateExpressionError, NamesThePlaceInTheEnd) {
  ExpectRefused("01-01 yearly", 7, kAfterBase);
  ExpectRefused("01-01 else", 11, "\"not\"");
  ExpectRefused("01-01 else not", 15, "\"observed\"");
  ExpectRefused("01-01 from", 11, kYear);
  ExpectRefused("01-01 from 1899", 12, kYear);
  ExpectRefused("01-01 from 2020 to 2019", 20, "a year from 2020 on");
  ExpectRefused("01-01 from 2020 from 2021", 17, "to, only, not or the end");
  ExpectRefused("01-01 to 2020 from 2019", 15, "only, not or the end");
  ExpectRefused("01-01 only", 11, kYear);
  ExpectRefused("01-01 not 2200", 11, kYear);
  ExpectRefused("01-01 not 2020,", 16, kYear);
  ExpectRefused("01-01 not 2020 2021", 16, "a comma or the end");
}

TEST(DateExpressionError, RefusesATextOfAnyLength) {
  const std::string text = "01-01" + std::string(DateExpression::kLongestText, ' ');
  try {
    (void)DateExpression::Parse(text);
    ADD_FAILURE() << "a text of " << text.size() << " bytes is taken";
  } catch (const ExpressionError& error) {
    EXPECT_EQ(error.Place(), DateExpression::kLongestText + 1);
    EXPECT_LT(error.Description().size(), 400U);
  }
}

TEST(DateExpressionError, QuotesAnyBytesAsUtf8OnOneLine) {
  EXPECT_STREQ(ExpressionError("a\nb", 1, std::string("x")).what(),
               "\"a b\" is no date expression: at 1, x is expected");
  EXPECT_STREQ(ExpressionError("\xC3(", 1, std::string("x")).what(),
               "\"?(\" is no date expression: at 1, x is expected");
  EXPECT_STREQ(ExpressionError("\xC3\xA4", 1, std::string("x")).what(),
               "\"\xC3\xA4\" is no date expression: at 1, x is expected");
  const std::string cut =
      ExpressionError(std::string(199, 'a') + "\xC3\xA4", 1, std::string("x")).Description();
  EXPECT_EQ(cut, '"' + std::string(199, 'a') + "...\" is no date expression: at 1, x is expected");
}

}  // namespace
}  // namespace ferrowind::almanac
