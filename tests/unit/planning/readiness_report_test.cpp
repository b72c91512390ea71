#include "ferrowind/planning/readiness_report.h"

#include <gmock/gmock.h>

#include "tests/unit/planning/report_world.h"

namespace ferrowind::planning {
namespace {

using almanac::Readiness;
using almanac::YearReadiness;
using platform::Date;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::RunInFreshThread;

/// With no table and nothing judged before.
ReadinessReport ReportOn(const Date& today) {
  const almanac::DateTables tables;
  return ReadinessReader(tables).Read(today);
}

std::vector<std::string> Codes(const ReadinessReport& report) {
  std::vector<std::string> codes;
  for (const CurrencyReadiness& currency : report.currencies) codes.push_back(currency.currency.code);
  return codes;
}

std::vector<Readiness> StatesOf(const ReadinessReport& report, const std::string& code) {
  std::vector<Readiness> states;
  for (const CurrencyReadiness& currency : report.currencies) {
    if (currency.currency.code != code) continue;
    for (const YearReadiness& year : currency.years) states.push_back(year.readiness);
  }
  return states;
}

TEST(ReadinessReport, ListsCurrenciesWithACalendarOrABookByCodeWithLastYearToTheOneAfterTheNext) {
  RunInFreshThread([] {
    ReportWorld component(kSmallCalendars, kSmallDays);
    const ReadinessReport report = ReportOn(Date(2026, 3, 1));
    EXPECT_THAT(Codes(report), ElementsAre("EUR", "HRK", "USD"));
    EXPECT_EQ(report.currencies[0].currency.name, "Euro");
    EXPECT_EQ(report.FirstYear(), 2025);
    EXPECT_EQ(report.LastYear(), 2028);
    EXPECT_THAT(StatesOf(report, "EUR"), ElementsAre(Readiness::kNotPrepared, Readiness::kPrepared,
                                                     Readiness::kWeekendsOnly, Readiness::kDiffers));
    EXPECT_THAT(StatesOf(report, "HRK"),
                ElementsAre(Readiness::kEnded, Readiness::kEnded, Readiness::kEnded, Readiness::kEnded));
    EXPECT_THAT(StatesOf(report, "USD"), ElementsAre(Readiness::kNotPrepared, Readiness::kNotCompared,
                                                     Readiness::kNotPrepared, Readiness::kNotPrepared));
    EXPECT_TRUE(report.currencies[0].years[0].can_be_planned);
    EXPECT_FALSE(report.currencies[2].years[0].can_be_planned);
  });
}

TEST(ReadinessReport, HoldsTheFindingsOfTheReview) {
  RunInFreshThread([] {
    ReportWorld component(kSmallCalendars, kSmallDays);
    const ReadinessReport report = ReportOn(Date(2026, 3, 1));
    ASSERT_FALSE(report.review.findings.empty());
    EXPECT_EQ(report.review.findings.front().level, almanac::FindingLevel::kError);
    EXPECT_EQ(report.review.calendars, 5U);
  });
}

TEST(ReadinessReport, CallsAnUnpreparedNextYearUrgentFromSeptemberOn) {
  RunInFreshThread([] {
    ReportWorld component(kSmallCalendars, kSmallDays);
    EXPECT_EQ(ReportOn(Date(2026, 8, 31)).CountUrgent(2027), 0);
    const ReadinessReport autumn = ReportOn(Date(2026, 9, 1));
    // EUR has weekends only and USD nothing; HRK is money no longer.
    EXPECT_EQ(autumn.CountUrgent(2027), 2);
    EXPECT_EQ(autumn.CountUrgent(2028), 0);
  });
}

TEST(ReadinessReport, CallsAnUnpreparedRunningYearUrgentAtAnyTime) {
  RunInFreshThread([] {
    ReportWorld component(kSmallCalendars, kSmallDays);
    const ReadinessReport report = ReportOn(Date(2027, 1, 2));
    EXPECT_EQ(report.CountUrgent(2027), 2);
    EXPECT_EQ(report.CountUrgent(2028), 0);
  });
}

TEST(ReadinessReport, PreparesWhatAPlanWouldChangeAndCurrenciesThatHaveOne) {
  RunInFreshThread([] {
    ReportWorld component(kSmallCalendars, kSmallDays);
    const ReadinessReport report = ReportOn(Date(2026, 3, 1));
    EXPECT_THAT(report.ToPrepare(2025), ElementsAre(CalendarKey(kEuro, 2025)));
    EXPECT_THAT(report.ToPrepare(2026), IsEmpty());
    EXPECT_THAT(report.ToPrepare(2027), ElementsAre(CalendarKey(kEuro, 2027)));
    EXPECT_THAT(report.ToPrepare(2028), ElementsAre(CalendarKey(kEuro, 2028)));
  });
}

TEST(ReadinessReader, TellsADayThatHasChangedSinceItLastReadTheDatabase) {
  RunInFreshThread([] {
    ReportWorld component(kSmallCalendars, kSmallDays);
    const almanac::DateTables tables;
    ReadinessReader reader(tables);
    const Date today(2026, 3, 1);
    const auto before = reader.Read(today);
    EXPECT_THAT(StatesOf(before, "EUR").back(), Readiness::kDiffers);
    Rows days = kSmallDays;
    // Christmas Day where it should be.
    days[3][2] = 360;
    component.AnswerMarkedDays(days);
    EXPECT_THAT(StatesOf(reader.Read(today), "EUR").back(), Readiness::kPrepared);
    component.AnswerMarkedDays(kSmallDays);
    const auto again = reader.Read(today);
    EXPECT_THAT(StatesOf(again, "EUR"), StatesOf(before, "EUR"));
    EXPECT_EQ(again.review.findings.size(), before.review.findings.size());
  });
}

TEST(ReadinessReader, JudgesByTheYearsOfTheDayOnWhichItReads) {
  RunInFreshThread([] {
    ReportWorld component(kSmallCalendars, kSmallDays);
    const almanac::DateTables tables;
    ReadinessReader reader(tables);
    EXPECT_EQ(reader.Read(Date(2026, 8, 31)).CountUrgent(2027), 0);
    EXPECT_EQ(reader.Read(Date(2026, 9, 1)).CountUrgent(2027), 2);
    EXPECT_THAT(StatesOf(reader.Read(Date(2027, 1, 1)), "EUR"),
                ElementsAre(Readiness::kPrepared, Readiness::kWeekendsOnly, Readiness::kDiffers,
                            Readiness::kNotPrepared));
    const auto findings_on = [&](const Date& today) { return reader.Read(today).review.findings.size(); };
    EXPECT_GT(findings_on(Date(2026, 9, 1)), findings_on(Date(2026, 8, 31))) << "of years without calendars";
  });
}

TEST(ReadinessReader, ForgetsACurrencyThatHasNothingAnyMore) {
  RunInFreshThread([] {
    ReportWorld component(kSmallCalendars, kSmallDays);
    const almanac::DateTables tables;
    ReadinessReader reader(tables);
    (void)reader.Read(Date(2026, 3, 1));
    component.world.commands.Forget("CldGetContent");
    component.AnswerContent({{kDollar, 2026}}, kSmallDays, {}, {});
    EXPECT_THAT(Codes(reader.Read(Date(2026, 3, 1))), ElementsAre("USD"));
  });
}

TEST(ReadinessReport, ACurrencyThatTheDictionaryLacksIsListedByItsNumber) {
  RunInFreshThread([] {
    ReportWorld component({{4711, 2026}}, {{4711, 2026, 359, 3, 3, {}}}, {});
    EXPECT_THAT(Codes(ReportOn(Date(2026, 3, 1))), ElementsAre("4711"));
  });
}

TEST(ReadinessReport, OfADatabaseWithNothingHasNoCurrencyAndSaysThatThereIsNoCalendar) {
  RunInFreshThread([] {
    ReportWorld component({}, {}, {});
    const ReadinessReport report = ReportOn(Date(2026, 3, 1));
    EXPECT_THAT(Codes(report), IsEmpty());
    EXPECT_EQ(report.review.findings.size(), 1U);
  });
}

TEST(ReadinessReport, OfADatabaseThatDoesNotAnswerIsAFailureThatSaysWhatWasRead) {
  RunInFreshThread([] {
    ReportWorld component(kSmallCalendars, kSmallDays);
    component.world.commands.FailAt(headless::CommandStep::kExecute,
                                    platform::Failure(5, "The disk is full"));
    const platform::Failure failure = testing::FailureOf([] { (void)ReportOn(Date(2026, 3, 1)); });
    EXPECT_THAT(failure.Description(),
                ::testing::HasSubstr("Reading the calendars and the rule books: The disk is full"));
  });
}

}  // namespace
}  // namespace ferrowind::planning
