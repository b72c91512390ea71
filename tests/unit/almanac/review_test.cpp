#include "ferrowind/almanac/review.h"

#include <algorithm>

#include <gmock/gmock.h>

#include "tests/support/says.h"
#include "tests/unit/almanac/small_calendars.h"

namespace ferrowind::almanac {
namespace {

using ::ferrowind::testing::Says;
using platform::Date;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr ReviewHorizon kOnly2028{2028, 2028};
constexpr const char* kSmallBook =
    "weekday | Sunday | weekday Sunday | Weekend\n"
    "celebration | Christmas Day | 12-25 | 25 December\n";

/// Every Sunday of the year, and those days.
CalendarContent CalendarOf(int year, std::vector<MarkedDay> days) {
  for (Date day(year, 1, 1); day.Year() == year; day = day.AddDays(1)) {
    const auto number = static_cast<std::int16_t>(day.DayOfYear());
    const bool is_taken = std::any_of(days.begin(), days.end(),
                                      [&](const MarkedDay& marked) { return marked.day_of_year == number; });
    if (day.Weekday() == 1 && !is_taken) days.push_back(Marked(day.ToIso().c_str(), rule::kSunday));
  }
  std::sort(days.begin(), days.end(), [](const MarkedDay& left, const MarkedDay& right) {
    return left.day_of_year < right.day_of_year;
  });
  return {year, std::move(days)};
}

ReviewedCurrency CurrencyWith(std::vector<CalendarContent> calendars, const char* book = kSmallBook) {
  ReviewedCurrency currency;
  currency.code = "EUR";
  if (book != nullptr) currency.book = BookOf(book);
  currency.calendars = std::move(calendars);
  return currency;
}

std::vector<Finding> Review(const ReviewedCurrency& currency, const ReviewHorizon& horizon = kOnly2028,
                            const DateTables& tables = {}) {
  const RuleDirectory rules(SmallRules());
  return ReviewCurrency(currency, rules, tables, horizon);
}

auto Is(FindingLevel level, FindingSubject subject, const char* part_of_sentence) {
  return AllOf(::testing::Field(&Finding::level, level), ::testing::Field(&Finding::subject, subject),
               ::testing::Field(&Finding::sentence, Says(HasSubstr(part_of_sentence))));
}

auto IsOn(const Date& day) { return ::testing::Field(&Finding::day, ::testing::Optional(day)); }

// Years
// -----------------------------------------------------------------------------------------------------------

TEST(ReviewHorizon, IsThisYearAndTheNextAndFromSeptemberTheOneAfter) {
  EXPECT_EQ(ReviewHorizon::Of(Date(2026, 8, 31), {}).last_year, 2027);
  EXPECT_EQ(ReviewHorizon::Of(Date(2026, 9, 1), {}).last_year, 2028);
  EXPECT_EQ(ReviewHorizon::Of(Date(2026, 9, 1), {}).running_year, 2026);
  EXPECT_EQ(ReviewHorizon::Of(Date(2026, 9, 1), 0).last_year, 2026);
  EXPECT_EQ(ReviewHorizon::Of(Date(2026, 1, 1), 5).last_year, 2031);
}

TEST(ReviewHorizon, CallsTheNextYearUrgentFromSeptemberOn) {
  EXPECT_FALSE(ReviewHorizon::NextYearIsUrgent(Date(2026, 8, 31)));
  EXPECT_TRUE(ReviewHorizon::NextYearIsUrgent(Date(2026, 9, 1)));
}

TEST(ReviewOfACurrency, FindsNothingInCalendarsAsPlanned) {
  EXPECT_THAT(Review(CurrencyWith({CalendarOf(2028, {Marked("2028-12-25", rule::kChristmas)})})), IsEmpty());
}

TEST(ReviewOfACurrency, CallsAMissingRunningYearAnErrorAndALaterOneAWarning) {
  EXPECT_THAT(
      Review(CurrencyWith({}), {2028, 2029}),
      ElementsAre(Is(FindingLevel::kError, FindingSubject::kMissingYear, "EUR has no calendar for 2028"),
                  Is(FindingLevel::kWarning, FindingSubject::kMissingYear, "EUR has no calendar for 2029")));
}

TEST(ReviewOfACurrency, MissesNoYearAfterTheLastDayOfTheMoney) {
  ReviewedCurrency currency = CurrencyWith({});
  currency.last_day = Date(2028, 6, 30);
  EXPECT_THAT(Review(currency, {2028, 2030}),
              ElementsAre(Is(FindingLevel::kError, FindingSubject::kMissingYear, "2028")));
}

TEST(ReviewOfACurrency, JudgesNoYearBeforeTheBookByThePlan) {
  const std::string book = std::string("since 2028\n") + kSmallBook;
  // Without a holiday of the book, and with one that it does not have.
  const CalendarContent before = CalendarOf(2026, {Marked("2026-01-02", rule::kFair)});
  EXPECT_THAT(Review(CurrencyWith({before, CalendarOf(2028, {Marked("2028-12-25", rule::kChristmas)})},
                                  book.c_str())),
              ElementsAre(Is(FindingLevel::kNote, FindingSubject::kBeforeBook,
                             "The book of EUR holds from 2028 on, and a calendar of an earlier year is "
                             "compared with no plan.")));
  EXPECT_THAT(
      Review(CurrencyWith({before, CalendarOf(2027, {}), CalendarOf(2028, {})}, book.c_str())),
      ElementsAre(Is(FindingLevel::kNote, FindingSubject::kBeforeBook, "calendars of earlier years are"),
                  Is(FindingLevel::kWarning, FindingSubject::kDiffersFromPlan, "25 December 2028")));
}

TEST(ReviewOfACurrency, JudgesYearsBeforeTheBookByTheOtherYears) {
  const std::string book = std::string("since 2029\n") + kSmallBook;
  EXPECT_THAT(
      Review(CurrencyWith({CalendarOf(2028, {Marked("2028-12-24", rule::kChristmas)})}, book.c_str())),
      ::testing::Contains(Is(FindingLevel::kWarning, FindingSubject::kOtherDate,
                             "is Christmas Day, whose date is 25 December")));
}

// Days that a plan judges
// ------------------------------------------------------------------------------------------------

TEST(ReviewOfACurrency, TellsOfMissingWeekendsOnce) {
  EXPECT_THAT(Review(CurrencyWith({{2028, {Marked("2028-12-25", rule::kChristmas)}}})),
              ElementsAre(Is(FindingLevel::kError, FindingSubject::kNoWeekends, "EUR 2028 has no weekends")));
}

TEST(ReviewOfACurrency, WarnsOfEachDayThatDiffersFromThePlan) {
  const auto findings = Review(CurrencyWith(
      {CalendarOf(2028, {Marked("2028-01-03", rule::kFair), Marked("2028-12-24", rule::kChristmas)})}));
  EXPECT_THAT(
      findings,
      ElementsAre(AllOf(Is(FindingLevel::kWarning, FindingSubject::kDiffersFromPlan,
                           "EUR: Monday 3 January 2028 is Fair and should be a working day."),
                        IsOn(Date(2028, 1, 3))),
                  AllOf(Is(FindingLevel::kWarning, FindingSubject::kDiffersFromPlan,
                           "EUR: Sunday 24 December 2028 is Christmas Day and should be Sunday"),
                        IsOn(Date(2028, 12, 24))),
                  AllOf(Is(FindingLevel::kWarning, FindingSubject::kDiffersFromPlan,
                           "EUR: Monday 25 December 2028 is a working day and should be Christmas Day"),
                        IsOn(Date(2028, 12, 25)))));
}

TEST(ReviewOfACurrency, SaysWhereAHolidayThatStandsOnItsOldDayHasGone) {
  const auto findings =
      Review(CurrencyWith({CalendarOf(2028, {Marked("2028-10-10", rule::kFair)})},
                          "weekday | Sunday | weekday Sunday | Weekend\n"
                          "point | Fair | 10-10 tuesday to previous monday | A Tuesday in 2028\n"));
  EXPECT_THAT(findings, ::testing::Contains(Is(
                            FindingLevel::kWarning, FindingSubject::kDiffersFromPlan,
                            "is Fair and should be a working day; Fair moved from here to 9 October 2028.")));
}

TEST(ReviewOfACurrency, WarnsOfAnExceptedHolidayUnlessItHasAReason) {
  EXPECT_THAT(
      Review(CurrencyWith({CalendarOf(2028, {Marked("2028-12-25", kExceptionRule, "  ")})})),
      ElementsAre(AllOf(Is(FindingLevel::kWarning, FindingSubject::kExceptionWithoutReason,
                           "is a working day by exception, without a reason, and should be Christmas Day"),
                        IsOn(Date(2028, 12, 25)))));
  EXPECT_THAT(
      Review(CurrencyWith({CalendarOf(2028, {Marked("2028-12-25", kExceptionRule, "Stock-taking")})})),
      ElementsAre(Is(FindingLevel::kNote, FindingSubject::kExceptionWithReason,
                     "\"Stock-taking\", where the plan has Christmas Day")));
}

TEST(ReviewOfACurrency, DoesNotMindAnExceptionOnAPlannedWorkingDay) {
  EXPECT_THAT(Review(CurrencyWith({CalendarOf(
                  2028, {Marked("2028-03-01", kExceptionRule), Marked("2028-12-25", rule::kChristmas)})})),
              IsEmpty());
}

// Plans that lack dates
// --------------------------------------------------------------------------------------------------

std::vector<Finding> ReviewWithUnknownFair(std::vector<MarkedDay> days, int running_year) {
  DateTables tables;
  tables.Add({"fairs", 2020, 2027, {}});
  return Review(CurrencyWith({CalendarOf(2028, std::move(days))},
                             "weekday | Sunday | weekday Sunday | Weekend\n"
                             "point | Fair | table fairs | Announced\n"),
                {running_year, 2028}, tables);
}

TEST(ReviewOfACurrency, WarnsOfUnknownDatesOfTheRunningYearAndNotesThoseOfLaterYears) {
  EXPECT_THAT(ReviewWithUnknownFair({}, 2028),
              ElementsAre(Is(FindingLevel::kWarning, FindingSubject::kIncompletePlan, "Fair")));
  const auto later = ReviewWithUnknownFair({}, 2027);
  EXPECT_THAT(later, ::testing::Contains(Is(FindingLevel::kNote, FindingSubject::kIncompletePlan, "Fair")));
}

TEST(ReviewOfACurrency, OnlyNotesUnknownDatesThatSomebodyHasEntered) {
  EXPECT_THAT(ReviewWithUnknownFair({Marked("2028-03-01", rule::kFair)}, 2028),
              ElementsAre(Is(FindingLevel::kNote, FindingSubject::kIncompletePlan, "Fair")));
}

// Books
// -----------------------------------------------------------------------------------------------------------

TEST(ReviewOfACurrency, NotesACurrencyWithoutABook) {
  EXPECT_THAT(Review(CurrencyWith({CalendarOf(2028, {})}, nullptr)),
              ElementsAre(Is(FindingLevel::kNote, FindingSubject::kNoBook, "EUR has no book")));
}

TEST(ReviewOfACurrency, WarnsOfABookThatCannotBeUsed) {
  ReviewedCurrency currency = CurrencyWith({CalendarOf(2028, {})}, nullptr);
  currency.book_faults = {"the first", "the second"};
  EXPECT_THAT(Review(currency),
              ElementsAre(Is(FindingLevel::kWarning, FindingSubject::kFaultyBook,
                             "The book of EUR cannot be used: the first."),
                          Is(FindingLevel::kWarning, FindingSubject::kFaultyBook, "the second")));
}

// Days that no plan judges
// -----------------------------------------------------------------------------------------------

std::vector<Finding> ReviewWithoutBook(std::vector<CalendarContent> calendars) {
  auto findings = Review(CurrencyWith(std::move(calendars), nullptr));
  std::erase_if(findings, [](const Finding& finding) { return finding.subject == FindingSubject::kNoBook; });
  return findings;
}

TEST(ReviewWithoutAPlan, WarnsOfAHolidayOnAWeekdayOnWhichItNeverWas) {
  // Thursdays but for the last, which is a Friday.
  EXPECT_THAT(ReviewWithoutBook({CalendarOf(2026, {Marked("2026-11-26", rule::kFair)}),
                                 CalendarOf(2027, {Marked("2027-11-25", rule::kFair)}),
                                 CalendarOf(2028, {Marked("2028-11-24", rule::kFair)})}),
              ElementsAre(AllOf(
                  Is(FindingLevel::kWarning, FindingSubject::kOtherWeekday,
                     "EUR: Friday 24 November 2028 is Fair, which is on a Thursday in every other year"),
                  IsOn(Date(2028, 11, 24)))));
}

TEST(ReviewWithoutAPlan, NeedsTwoOtherYearsThatAgreeOnTheWeekday) {
  EXPECT_THAT(ReviewWithoutBook({CalendarOf(2027, {Marked("2027-11-25", rule::kFair)}),
                                 CalendarOf(2028, {Marked("2028-11-24", rule::kFair)})}),
              IsEmpty());
  EXPECT_THAT(ReviewWithoutBook({CalendarOf(2026, {Marked("2026-11-25", rule::kFair)}),
                                 CalendarOf(2027, {Marked("2027-11-25", rule::kFair)}),
                                 CalendarOf(2028, {Marked("2028-11-24", rule::kFair)})}),
              IsEmpty());
}

TEST(ReviewWithoutAPlan, WarnsOfACelebrationOnAnotherDateThanItsOwn) {
  EXPECT_THAT(ReviewWithoutBook({CalendarOf(2028, {Marked("2028-11-25", rule::kChristmas)})}),
              ElementsAre(AllOf(Is(FindingLevel::kWarning, FindingSubject::kOtherDate,
                                   "Saturday 25 November 2028 is Christmas Day, whose date is 25 December"),
                                IsOn(Date(2028, 11, 25)))));
}

TEST(ReviewWithoutAPlan, AcceptsTheNeighboursOf29FebruaryInACommonYear) {
  std::vector<KnownRule> rules = SmallRules();
  rules[3].month = 2;
  rules[3].day = 29;
  const auto subjects_of = [&](const char* iso) {
    const Date day = *Date::FromIso(iso);
    std::vector<FindingSubject> subjects;
    for (const Finding& finding :
         ReviewCurrency(CurrencyWith({CalendarOf(day.Year(), {Marked(iso, rule::kChristmas)})}, nullptr),
                        RuleDirectory(rules), {}, {day.Year(), day.Year()})) {
      if (finding.subject != FindingSubject::kNoBook) subjects.push_back(finding.subject);
    }
    return subjects;
  };
  EXPECT_THAT(subjects_of("2027-02-28"), IsEmpty());
  EXPECT_THAT(subjects_of("2027-03-01"), IsEmpty());
  EXPECT_THAT(subjects_of("2028-02-28"), ElementsAre(FindingSubject::kOtherDate));
  EXPECT_THAT(subjects_of("2027-02-27"), ElementsAre(FindingSubject::kOtherDate));
}

TEST(ReviewWithoutAPlan, WarnsOfAnExceptionWithoutAReason) {
  EXPECT_THAT(ReviewWithoutBook({CalendarOf(2028, {Marked("2028-03-01", kExceptionRule),
                                                   Marked("2028-03-02", kExceptionRule, "Fair opens")})}),
              ElementsAre(AllOf(Is(FindingLevel::kWarning, FindingSubject::kExceptionWithoutReason,
                                   "Wednesday 1 March 2028 is a working day by exception, without a reason."),
                                IsOn(Date(2028, 3, 1)))));
}

TEST(ReviewWithoutAPlan, SaysNothingOfTheseWhereThePlanJudges) {
  const auto findings = Review(CurrencyWith(
      {CalendarOf(2026, {Marked("2026-12-25", rule::kChristmas)}),
       CalendarOf(2027, {Marked("2027-12-25", rule::kChristmas)}),
       CalendarOf(2028, {Marked("2028-11-25", rule::kChristmas), Marked("2028-12-25", rule::kChristmas)})}));
  EXPECT_THAT(findings,
              ElementsAre(Is(FindingLevel::kWarning, FindingSubject::kDiffersFromPlan, "25 November")));
}

TEST(ReviewWithoutAPlan, JudgesYearsThatNoPlanReachesByTheOtherYears) {
  EXPECT_THAT(Review(CurrencyWith({CalendarOf(2028, {Marked("2028-12-25", rule::kChristmas)}),
                                   CalendarOf(2200, {Marked("2200-12-24", rule::kChristmas)})})),
              ElementsAre(Is(FindingLevel::kWarning, FindingSubject::kOtherDate, "24 December 2200")));
}

// Numbers
// -----------------------------------------------------------------------------------------------------------

std::vector<MarkedDay> WeekdayFairs(int year, int count) {
  std::vector<MarkedDay> days;
  for (Date day(year, 3, 1); count > 0; day = day.AddDays(1)) {
    if (day.Weekday() == 1) continue;
    days.push_back(Marked(day.ToIso().c_str(), rule::kGoodFriday));
    --count;
  }
  return days;
}

TEST(ReviewOfACurrency, NotesAnUnusualNumberOfHolidays) {
  EXPECT_THAT(
      ReviewWithoutBook({CalendarOf(2026, WeekdayFairs(2026, 9)), CalendarOf(2027, WeekdayFairs(2027, 10)),
                         CalendarOf(2028, WeekdayFairs(2028, 13))}),
      ::testing::Contains(Is(FindingLevel::kNote, FindingSubject::kUnusualNumber,
                             "EUR 2028 has an unusual number of holidays beside its weekends: 13, and 9 to "
                             "10 in the other years.")));
  const auto usual =
      ReviewWithoutBook({CalendarOf(2026, WeekdayFairs(2026, 9)), CalendarOf(2027, WeekdayFairs(2027, 10)),
                         CalendarOf(2028, WeekdayFairs(2028, 12))});
  EXPECT_THAT(usual, ::testing::Not(::testing::Contains(
                         ::testing::Field(&Finding::subject, FindingSubject::kUnusualNumber))));
}

TEST(ReviewOfACurrency, CountsNoHolidayOnAWeekend) {
  const auto findings = ReviewWithoutBook(
      {CalendarOf(2026, {}), CalendarOf(2027, {}),
       CalendarOf(2028, {Marked("2028-03-05", rule::kFair), Marked("2028-03-12", rule::kFair),
                         Marked("2028-03-19", rule::kFair), Marked("2028-03-26", rule::kFair)})});
  EXPECT_THAT(findings, IsEmpty());
}

// Order
// -----------------------------------------------------------------------------------------------------------

TEST(FindingOrder, IsWorstFirstThenByCurrencyYearAndDay) {
  const auto finding = [](FindingLevel level, const char* currency, std::optional<int> year,
                          std::optional<Date> day) {
    return Finding{level, FindingSubject::kNoBook, currency, year, day, {}};
  };
  const std::vector<Finding> sorted = {
      finding(FindingLevel::kError, "USD", 2028, {}),
      finding(FindingLevel::kWarning, "EUR", {}, {}),
      finding(FindingLevel::kWarning, "EUR", 2027, Date(2027, 1, 2)),
      finding(FindingLevel::kWarning, "EUR", 2028, {}),
      finding(FindingLevel::kWarning, "EUR", 2028, Date(2028, 1, 1)),
      finding(FindingLevel::kWarning, "EUR", 2028, Date(2028, 1, 2)),
      finding(FindingLevel::kWarning, "USD", {}, {}),
      finding(FindingLevel::kNote, "AUD", {}, {}),
  };
  for (std::size_t i = 0; i < sorted.size(); ++i) {
    for (std::size_t j = 0; j < sorted.size(); ++j)
      EXPECT_EQ(ComesBefore(sorted[i], sorted[j]), i < j) << i << j;
  }
}

}  // namespace
}  // namespace ferrowind::almanac
