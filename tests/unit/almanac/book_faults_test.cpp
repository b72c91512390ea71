#include "ferrowind/almanac/book_faults.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/almanac/small_book.h"

namespace ferrowind::almanac {
namespace {

using ::ferrowind::testing::BookOf;
using ::ferrowind::testing::BookWithWeekends;
using platform::Date;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::string> InEnglish(const std::vector<platform::Phrase>& phrases) {
  std::vector<std::string> sentences;
  for (const platform::Phrase& phrase : phrases) sentences.push_back(phrase.InEnglish());
  return sentences;
}

std::vector<std::string> Faults(const RuleBook& book) {
  DateTables tables;
  tables.Add({"feast", 2025, 2026, {Date(2025, 5, 5), Date(2026, 5, 6)}});
  tables.Add({"empty", 2025, 2026, {}});
  return InEnglish(FaultsOf(book, tables));
}

std::vector<std::string> FaultsOfRules(const std::string& rules) { return Faults(BookWithWeekends(rules)); }

std::vector<std::string> FaultsBetweenRules(const std::string& euro, const std::string& dollar) {
  return InEnglish(FaultsBetween({{"EUR", BookOf(euro)}, {"USD", BookOf(dollar)}}));
}

TEST(BookFaults, AreNoneInABookOfEveryForm) {
  EXPECT_THAT(
      FaultsOfRules("celebration | A | 12-25 saturday, sunday, taken to next free day else not observed\n"
                    "celebration | B | 02-29 to friday\n"
                    "point | C | easter-2\n"
                    "point | D | 3rd Monday of 01\n"
                    "point | E | Monday on or after 05-18\n"
                    "point | F | vernal equinox +09:00\n"
                    "point | G | table feast+1\n"
                    "point | H | 2022-09-19\n"
                    "point | I | 09-17 tuesday to previous monday\n"
                    "point | J | between\n"
                    "working day | K | 2026-02-14\n"
                    "celebration | L | 09-17 if monday\n"
                    "point | M | unknown from 2028\n"
                    "working day | N | unknown\n"),
      IsEmpty());
}

TEST(BookFaults, TellOfAMissingHead) {
  RuleBook book = BookWithWeekends("");
  book.publisher = " ";
  book.document = "";
  EXPECT_THAT(Faults(book), ElementsAre("The book names no publisher", "The book names no document"));
}

TEST(BookFaults, TellOfAFirstYearThatCannotBePlanned) {
  RuleBook book = BookWithWeekends("celebration | A | 01-01");
  book.since = 2200;
  EXPECT_THAT(Faults(book), ElementsAre("The book holds from 2200 on, which is not a year 1900 to 2199"));
  book.since = 1900;
  EXPECT_THAT(Faults(book), IsEmpty());
}

TEST(BookFaults, TellOfANamelessRule) {
  RuleBook book = BookWithWeekends("celebration | A | 01-01");
  book.rules[2].name = " ";
  EXPECT_THAT(Faults(book), ElementsAre("Rule 3 (01-01) has no name"));
}

TEST(BookFaults, TellOfABookThatWouldMakeWeekendsWorkingDays) {
  const std::string fault =
      "The book closes no weekday: without a rule of the kind weekday each Saturday and Sunday would be a "
      "working day";
  EXPECT_THAT(Faults(BookOf("")), ElementsAre(fault));
  EXPECT_THAT(Faults(BookOf("celebration | A | 01-01")), ElementsAre(fault));
  EXPECT_THAT(Faults(BookOf("weekday | A | weekday Friday")), IsEmpty());
}

TEST(BookFaults, TellOfARuleWithTheNameOfTheBuiltInOne) {
  const std::string fault =
      "Rule 3 (working DAY by exception) has the name of the built-in rule \"Working day by exception\", "
      "which no book can have";
  EXPECT_THAT(FaultsOfRules("point | working DAY by exception | 12-25"), ElementsAre(fault));
  EXPECT_THAT(FaultsOfRules("working day | working DAY by exception | 2026-02-14"), ElementsAre(fault));
  EXPECT_THAT(
      FaultsOfRules("celebration | A | 12-25 to monday | | WORKING day by exception"),
      ElementsAre("Rule 3 (A) has the name of the built-in rule \"Working day by exception\", which no "
                  "book can have"));
}

TEST(BookFaults, TellOfANameOfTwoKinds) {
  EXPECT_THAT(FaultsOfRules("celebration | A day | 01-01\npoint | a DAY | easter\n"),
              ElementsAre("\"a DAY\" is a celebration in rule 3 and a point in rule 4: a name has one kind"));
}

TEST(BookFaults, TellOfAMovedDayWithTheNameOfAnotherKind) {
  EXPECT_THAT(
      FaultsOfRules("celebration | A | 01-01 to monday | | B\ncelebration | B | 02-01\n"),
      ElementsAre("\"B\" is a point in rule 3 (moved day) and a celebration in rule 4: a name has one kind"));
  EXPECT_THAT(
      FaultsOfRules("celebration | A | 01-01 to monday | | A\n"),
      ElementsAre("\"A\" is a celebration in rule 3 and a point in rule 3 (moved day): a name has one kind"));
  EXPECT_THAT(
      FaultsOfRules("celebration | A (observed) | 02-01\ncelebration | A | 01-01 to monday\n"),
      ElementsAre("\"A (observed)\" is a celebration in rule 3 and a point in rule 4 (moved day): a name has "
                  "one kind"));
}

TEST(BookFaults, TellOfACelebrationOfTwoDates) {
  EXPECT_THAT(
      FaultsOfRules("celebration | A | 01-01 to 2020\ncelebration | A | 01-02 from 2021\n"),
      ElementsAre("\"A\" is on 1 January in rule 3 and on 2 January in rule 4: a celebration has one date"));
}

TEST(BookFaults, AreNoneWhenSeveralRulesShareANameAndKind) {
  EXPECT_THAT(
      FaultsOfRules("point | A | 3rd Monday of 07 not 2020\npoint | A | 2020-07-23\n"
                    "celebration | B | 01-01 to monday to 2020 | | S\ncelebration | B | 01-01 from 2021\n"
                    "celebration | C | 01-02 to monday | | S\n"),
      IsEmpty());
}

TEST(BookFaults, TellOfARuleSaidTwice) {
  EXPECT_THAT(FaultsOfRules("point | A | easter\npoint | a | EASTER | another comment\n"),
              ElementsAre("Rule 4 (a) says the same as rule 3"));
}

TEST(BookFaults, TellOfAKindThatDoesNotFitTheExpression) {
  EXPECT_THAT(FaultsOfRules("point | A | weekday Friday\n"),
              ElementsAre("Rule 3 (A) is each week on a weekday, so its kind is weekday"));
  EXPECT_THAT(FaultsOfRules("working day | A | weekday Saturday\n"),
              ElementsAre("Rule 3 (A) is each week on a weekday, so its kind is weekday"));
  EXPECT_THAT(
      FaultsOfRules("weekday | A | 01-01\n"),
      ElementsAre("Rule 3 (A) is of the kind weekday, so its expression is \"weekday\" and a weekday"));
  EXPECT_THAT(FaultsOfRules("celebration | A | between\n"),
              ElementsAre("Rule 3 (A) is a day between holidays, so its kind is point"));
  EXPECT_THAT(FaultsOfRules("celebration | A | easter\n"),
              ElementsAre("Rule 3 (A) is not on the same date each year, so its kind is point"));
  EXPECT_THAT(FaultsOfRules("celebration | A | Monday after 01-01\n"),
              ElementsAre("Rule 3 (A) is not on the same date each year, so its kind is point"));
  EXPECT_THAT(FaultsOfRules("celebration | A | 2026-01-01\n"),
              ElementsAre("Rule 3 (A) is not on the same date each year, so its kind is point"));
}

TEST(BookFaults, TellOfACelebrationThatTakesItsNameAlong) {
  const std::string fault =
      "Rule 3 (A) moves off a Tuesday, a working day, and takes its name along, so its kind is point";
  EXPECT_THAT(FaultsOfRules("celebration | A | 09-17 saturday, tuesday to monday\n"), ElementsAre(fault));
}

TEST(BookFaults, TellOfMovesThatMeanNothing) {
  const std::string fault =
      "Rule 3 (A) neither moves nor is dropped: it is a working day, a weekday, a day between holidays or "
      "unknown";
  EXPECT_THAT(FaultsOfRules("weekday | A | weekday Friday to monday\n"), ElementsAre(fault));
  EXPECT_THAT(FaultsOfRules("point | A | between else not observed\n"), ElementsAre(fault));
  EXPECT_THAT(FaultsOfRules("point | A | unknown to next free day\n"), ElementsAre(fault));
  EXPECT_THAT(FaultsOfRules("working day | A | 2026-02-14 to monday\n"), ElementsAre(fault));
}

TEST(BookFaults, TellOfAMoveToTheDayItself) {
  const std::string fault = "Rule 3 (A) moves off a Saturday to the nearest Saturday, which is the same day";
  EXPECT_THAT(FaultsOfRules("point | A | 12-24 saturday to saturday\n"), ElementsAre(fault));
  EXPECT_THAT(FaultsOfRules("point | A | 12-24 taken to monday saturday, sunday to saturday\n"),
              ElementsAre(fault));
  EXPECT_THAT(FaultsOfRules("point | A | 12-24 saturday to next saturday sunday to previous sunday\n"),
              IsEmpty());
}

TEST(BookFaults, TellOfANameForAMovedDayThatIsNone) {
  EXPECT_THAT(FaultsOfRules("celebration | A | 01-01 | | B\n"),
              ElementsAre("Rule 3 (A) names its moved day, but does not move"));
}

TEST(BookFaults, TellOfAnUnknownTable) {
  EXPECT_THAT(FaultsOfRules("point | A | Monday after table fast\n"),
              ElementsAre("Rule 3 (A) asks for the table fast, and there is none of that name"));
}

TEST(BookFaults, TellOfARuleThatIsOnNoDay) {
  const std::string fault = "Rule 3 (A) is on no day of any year";
  EXPECT_THAT(FaultsOfRules("celebration | A | 01-01 to 2020 only 2021\n"), ElementsAre(fault));
  EXPECT_THAT(FaultsOfRules("point | A | 2020-01-01 from 2021\n"), ElementsAre(fault));
  EXPECT_THAT(FaultsOfRules("point | A | 1st Monday of 05 if tuesday\n"), ElementsAre(fault));
  EXPECT_THAT(FaultsOfRules("point | A | table empty\n"), ElementsAre(fault));
  EXPECT_THAT(FaultsOfRules("point | A | between to 2020 only 2021\n"), ElementsAre(fault));
  EXPECT_THAT(FaultsOfRules("point | A | unknown to 2020 only 2021\n"), ElementsAre(fault));
  EXPECT_THAT(FaultsOfRules("weekday | A | weekday Friday if monday\n"), ElementsAre(fault));
}

TEST(BookFaults, AreFoundAmongTenThousandRules) {
  std::string rules;
  for (int i = 0; i < 10'000; ++i)
    rules += "point | Day " + std::to_string(i) + " | easter to next free day\n";
  EXPECT_THAT(FaultsOfRules(rules + "point | Day 77 | easter to next free day\n"),
              ElementsAre("Rule 10003 (Day 77) says the same as rule 80"));
}

TEST(BookFaultsBetweenBooks, TellOfANameOfTwoKinds) {
  EXPECT_THAT(FaultsBetweenRules("celebration | A | 01-01", "point | A | easter"),
              ElementsAre("\"A\" is a celebration in EUR and a point in USD: a name has one kind"));
  EXPECT_THAT(
      FaultsBetweenRules("celebration | A (observed) | 01-01", "celebration | A | 07-04 to monday"),
      ElementsAre(
          "\"A (observed)\" is a celebration in EUR and a point in USD (moved day): a name has one kind"));
}

TEST(BookFaultsBetweenBooks, TellOfACelebrationOfTwoDates) {
  EXPECT_THAT(
      FaultsBetweenRules("celebration | A | 01-01", "celebration | a | 02-01"),
      ElementsAre("\"A\" is on 1 January in EUR and on 1 February in USD: a celebration has one date"));
}

TEST(BookFaultsBetweenBooks, TellOfAllBooksThatANameClashesWithInOneSentence) {
  const RuleBook twice = BookOf("celebration | A | 01-01 to 2020\ncelebration | A | 01-01 from 2021");
  std::vector<NamedBook> others = {{"AUD", twice}};
  const std::vector<NamedBook> point = {{"THB", BookOf("point | B | easter\npoint | A | easter"), {5, 7}}};
  EXPECT_THAT(InEnglish(FaultsBetween(point, others)),
              ElementsAre("\"A\" is a point in line 7 of THB and a celebration in AUD: a name has one kind"));
  others.push_back({"CAD", twice});
  others.push_back({"CHF", twice});
  EXPECT_THAT(
      InEnglish(FaultsBetween(point, others)),
      ElementsAre("\"A\" is a point in line 7 of THB and a celebration in AUD, CAD and CHF: a name has "
                  "one kind"));
  others.push_back({"DKK", twice});
  EXPECT_THAT(
      InEnglish(FaultsBetween(point, others)),
      ElementsAre("\"A\" is a point in line 7 of THB and a celebration in AUD, CAD and 2 others: a name "
                  "has one kind"));
}

TEST(BookFaultsBetweenBooks, AreNotThoseOfOtherBooksAlone) {
  const std::vector<NamedBook> others = {{"EUR", BookOf("point | A | easter")},
                                         {"USD", BookOf("celebration | A | 01-01")}};
  EXPECT_THAT(FaultsBetween({{"THB", BookOf("point | B | easter")}}, others), IsEmpty());
  EXPECT_THAT(InEnglish(FaultsBetween({{"THB", BookOf("point | A | easter")}}, others)),
              ElementsAre("\"A\" is a point in THB and EUR and a celebration in USD: a name has one kind"));
}

TEST(BookFaults, NameTheLinesOfATextInWhichTheRulesStand) {
  EXPECT_THAT(
      InEnglish(FaultsOf(BookWithWeekends("point | A | table fast\npoint | B | easter\npoint | B | easter\n"
                                          "celebration | B | 01-01\n"),
                         {}, {4, 5, 7, 8, 11, 12})),
      ElementsAre("Line 7 (A) asks for the table fast, and there is none of that name",
                  "Line 11 (B) says the same as line 8",
                  "\"B\" is a point in line 8 and a celebration in line 12: a name has one kind"));
}

TEST(BookFaultsBetweenBooks, AreNoneForSharedNamesOrFaultsWithinABook) {
  EXPECT_THAT(FaultsBetweenRules("celebration | A | 01-01\npoint | B | easter",
                                 "celebration | A | 01-01\npoint | B | 5th Monday of 05"),
              IsEmpty());
  EXPECT_THAT(FaultsBetweenRules("celebration | A | 01-01\npoint | A | easter", "celebration | A | 01-01"),
              IsEmpty());
}

}  // namespace
}  // namespace ferrowind::almanac
