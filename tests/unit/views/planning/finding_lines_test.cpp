#include "ferrowind/views/planning/finding_lines.h"

#include <optional>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/world.h"

namespace ferrowind {
namespace {

using almanac::Finding;
using almanac::FindingLevel;
using almanac::FindingSubject;
using almanac::Readiness;
using planning::ReadinessReport;
using platform::Date;
using platform::Phrase;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// Surroundings without words of another language.
const platform::Platform& English() {
  static headless::World world;
  static const platform::Platform platform = world.Platform();
  return platform;
}

/// On 1 November 2026, over the euro, the lek, the pound and the dollar.
class FindingLinesTest : public ::testing::Test {
 protected:
  FindingLinesTest() {
    report_.currencies = {{{8, "ALL", "Lek", true, {}}, {}},
                          {{978, "EUR", "Euro", true, {}}, {}},
                          {{826, "GBP", "Pound", true, {}}, {}},
                          {{840, "USD", "Dollar", true, {}}, {}}};
  }

  void Find(FindingLevel level, FindingSubject subject, const std::string& currency, std::optional<int> year,
            const std::string& sentence) {
    report_.review.findings.push_back({level, subject, currency, year, {}, Phrase(sentence)});
  }
  void FindMissing(const std::string& currency, int year) {
    Find(year == 2026 ? FindingLevel::kError : FindingLevel::kWarning, FindingSubject::kMissingYear, currency,
         year, currency + " has no calendar for " + std::to_string(year) + ".");
  }
  void SetYear(const std::string& currency, int year, Readiness readiness, int differing_days) {
    for (auto& known : report_.currencies) {
      if (known.currency.code != currency) continue;
      known.years.push_back({.year = year,
                             .readiness = readiness,
                             .has_calendar = true,
                             .can_be_planned = true,
                             .differing_days = differing_days,
                             .unpublished = {}});
    }
  }
  [[nodiscard]] std::vector<FindingLine> Lines() const { return FindingLines(English(), report_); }
  [[nodiscard]] std::vector<std::string> Sentences() const {
    std::vector<std::string> sentences;
    for (const FindingLine& line : Lines()) sentences.push_back(line.sentence);
    return sentences;
  }

  ReadinessReport report_{Date(2026, 11, 1), {}, {}};
};

TEST_F(FindingLinesTest, SayOnceWhatIsTheSameOfSeveralCurrenciesInThePlaceOfTheFirst) {
  Find(FindingLevel::kWarning, FindingSubject::kDiffersFromPlan, "ALL", 2027, "Something else.");
  FindMissing("ALL", 2028);
  FindMissing("EUR", 2028);
  Find(FindingLevel::kWarning, FindingSubject::kUnusualNumber, "GBP", 2027, "Something of the pound.");
  FindMissing("GBP", 2028);
  EXPECT_THAT(Sentences(),
              ElementsAre("Something else.", "3 currencies have no calendar for 2028: ALL (Lek), EUR, GBP.",
                          "Something of the pound."));
}

TEST_F(FindingLinesTest, KnowTheCurrenciesAndTheYearOfTheLine) {
  FindMissing("EUR", 2028);
  FindMissing("GBP", 2028);
  ASSERT_THAT(Lines(), SizeIs(1));
  const FindingLine line = Lines().front();
  EXPECT_EQ(line.year, 2028);
  EXPECT_EQ(line.level, FindingLevel::kWarning);
  ASSERT_THAT(line.currencies, SizeIs(2));
  EXPECT_EQ(line.currencies[0].id, 978);
  EXPECT_EQ(line.currencies[1].id, 826);
  EXPECT_EQ(CurrenciesOf(English(), line), "2 currencies");
  EXPECT_EQ(NamesOfSeveral(line), "EUR Euro, GBP Pound");
}

TEST_F(FindingLinesTest, OfOneCurrencySayWhatTheReviewSays) {
  FindMissing("ALL", 2028);
  ASSERT_THAT(Sentences(), ElementsAre("ALL has no calendar for 2028."));
  EXPECT_EQ(CurrenciesOf(English(), Lines().front()), "ALL (Lek)");
  EXPECT_THAT(NamesOfSeveral(Lines().front()), IsEmpty());
}

TEST_F(FindingLinesTest, KeepYearsAndTheRunningYearApart) {
  FindMissing("EUR", 2026);
  FindMissing("GBP", 2026);
  FindMissing("EUR", 2027);
  FindMissing("GBP", 2027);
  EXPECT_THAT(Sentences(), ElementsAre("2 currencies have no calendar for 2026, the running year: EUR, GBP.",
                                       "2 currencies have no calendar for 2027: EUR, GBP."));
}

TEST_F(FindingLinesTest, ACalendarWithoutHolidaysIsOneHoweverManyOfItsDaysAreFound) {
  for (const std::string currency : {"EUR", "GBP"}) {
    SetYear(currency, 2027, Readiness::kWeekendsOnly, 2);
    for (const std::string day : {"Good Friday", "Christmas Day"}) {
      Find(FindingLevel::kWarning, FindingSubject::kDiffersFromPlan, currency, 2027, currency + ": " + day);
    }
  }
  EXPECT_THAT(Sentences(), ElementsAre("2 currencies are closed on weekends only in 2027: EUR, GBP."));
  report_.review.findings.resize(2);
  EXPECT_THAT(Sentences(), ElementsAre("EUR 2027 is closed on weekends only. 2 days are not as planned."));
}

TEST_F(FindingLinesTest, OfOtherCalendarsEachDayIsALine) {
  for (const std::string currency : {"EUR", "GBP"}) {
    SetYear(currency, 2027, Readiness::kDiffers, 1);
    Find(FindingLevel::kWarning, FindingSubject::kDiffersFromPlan, currency, 2027,
         currency + ": Good Friday");
  }
  EXPECT_THAT(Sentences(), ElementsAre("EUR: Good Friday", "GBP: Good Friday"));
}

TEST_F(FindingLinesTest, SayAlikeWhatLacksWeekendsClosedDaysAndBooks) {
  for (const std::string currency : {"EUR", "USD"}) {
    Find(FindingLevel::kError, FindingSubject::kNoWeekends, currency, 2027, "no weekends");
    SetYear(currency, 2027, Readiness::kNotPrepared, 5);
    Find(FindingLevel::kWarning, FindingSubject::kDiffersFromPlan, currency, 2027, "a day");
    Find(FindingLevel::kNote, FindingSubject::kNoBook, currency, {}, "no book");
  }
  EXPECT_THAT(
      Sentences(),
      ElementsAre("2 currencies have no weekends in 2027, for no weekday holiday closes any day: EUR, USD.",
                  "2 currencies have no closed day in 2027: EUR, USD.",
                  "2 currencies have no book, so nothing tells what their calendars should be: EUR, USD."));
}

TEST_F(FindingLinesTest, HaveAKeyEachThatStaysWhenCurrenciesAreMended) {
  FindMissing("EUR", 2028);
  FindMissing("GBP", 2028);
  FindMissing("EUR", 2029);
  Find(FindingLevel::kWarning, FindingSubject::kFaultyBook, "USD", {}, "The same.");
  Find(FindingLevel::kWarning, FindingSubject::kFaultyBook, "USD", {}, "The same.");
  const auto lines = Lines();
  ASSERT_THAT(lines, SizeIs(4));
  std::set<std::string> keys;
  for (const FindingLine& line : lines) keys.insert(line.key);
  EXPECT_THAT(keys, SizeIs(4));
  report_.review.findings.erase(report_.review.findings.begin());
  EXPECT_EQ(Lines().front().key, lines.front().key);
}

TEST_F(FindingLinesTest, AreAboutNoCurrencyWhereTheDatabaseIsMeant) {
  Find(FindingLevel::kError, FindingSubject::kNoCalendar, "", {}, "There is no calendar.");
  ASSERT_THAT(Sentences(), ElementsAre("There is no calendar."));
  EXPECT_THAT(CurrenciesOf(English(), Lines().front()), IsEmpty());
}

TEST_F(FindingLinesTest, AreCountedByLevelAsTheyStand) {
  EXPECT_EQ(FindingsTitle(English(), Lines()), "The review has found nothing");
  Find(FindingLevel::kError, FindingSubject::kNoCalendar, "", {}, "There is no calendar.");
  FindMissing("EUR", 2027);
  FindMissing("GBP", 2027);
  FindMissing("GBP", 2028);
  Find(FindingLevel::kNote, FindingSubject::kBeforeBook, "USD", {}, "A note.");
  EXPECT_EQ(FindingsTitle(English(), Lines()), "Findings of the review: 1 error, 2 warnings, 1 note");
}

}  // namespace
}  // namespace ferrowind
