#include "ferrowind/views/planning/readiness_words.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/world.h"

namespace ferrowind {
namespace {

using almanac::FindingLevel;
using almanac::Readiness;
using almanac::YearReadiness;
using planning::CurrencyReadiness;
using planning::ReadinessReport;
using platform::CellMark;
using platform::CellTone;
using platform::Date;
using platform::TableCell;
using ::testing::IsEmpty;

/// Surroundings without words of another language.
const platform::Platform& English() {
  static headless::World world;
  static const platform::Platform platform = world.Platform();
  return platform;
}

CurrencyReadiness Euro(std::vector<YearReadiness> years = {}) {
  return {{978, "EUR", "Euro", true, {}}, std::move(years)};
}

ReadinessReport ReportOn(const Date& today, std::vector<CurrencyReadiness> currencies = {}) {
  return {today, std::move(currencies), {}};
}

YearReadiness Year(int year, Readiness readiness) {
  YearReadiness of;
  of.year = year;
  of.readiness = readiness;
  of.has_calendar = readiness != Readiness::kNotPrepared;
  return of;
}

TableCell CellOf(const YearReadiness& year, const Date& today = Date(2026, 3, 1)) {
  const ReadinessReport report = ReportOn(today);
  return ReadinessWords(English(), report).Cell(Euro(), year);
}

TEST(ReadinessWords, EachStateHasAWordAndAShapeOfItsOwn) {
  const auto is = [](Readiness readiness, const char* word, CellMark mark) {
    YearReadiness year = Year(2028, readiness);
    year.differing_days = 3;
    const TableCell cell = CellOf(year);
    EXPECT_EQ(cell.text, word);
    EXPECT_EQ(cell.mark, mark) << word;
  };
  is(Readiness::kPrepared, "Prepared", CellMark::kPrepared);
  is(Readiness::kDiffers, "Differs by 3 days", CellMark::kDiffers);
  is(Readiness::kWeekendsOnly, "Weekends only", CellMark::kPartly);
  is(Readiness::kNotPrepared, "Not prepared", CellMark::kMissing);
  is(Readiness::kNotCompared, "Not compared", CellMark::kNote);
  is(Readiness::kEnded, "No money then", CellMark::kNone);
}

TEST(ReadinessWords, OneDayIsCountedAsOne) {
  YearReadiness year = Year(2028, Readiness::kDiffers);
  year.differing_days = 1;
  EXPECT_EQ(CellOf(year).text, "Differs by 1 day");
  EXPECT_EQ(CellOf(year).description, "EUR 2028: 1 day is not as planned.");
}

TEST(ReadinessWords, SayHowMuchOfAPreparedYearIsPublished) {
  YearReadiness year = Year(2028, Readiness::kPrepared);
  year.unpublished = {platform::Phrase::Of("The date of Fair in 2028 is not known")};
  const TableCell cell = CellOf(year);
  EXPECT_EQ(cell.text, "Prepared as published");
  EXPECT_EQ(cell.description, "EUR 2028 is as planned. The date of Fair in 2028 is not known.");
}

TEST(ReadinessWords, TellOfExceptionsWithAReason) {
  YearReadiness year = Year(2028, Readiness::kPrepared);
  year.excepted_days = 2;
  EXPECT_EQ(CellOf(year).description, "EUR 2028 is as planned. 2 working days by exception have a reason.");
}

TEST(ReadinessWords, TellACalendarThatIsMissingFromOneThatIsOpenEveryDay) {
  YearReadiness year = Year(2028, Readiness::kNotPrepared);
  EXPECT_EQ(CellOf(year).description, "EUR 2028 has no calendar.");
  year.has_calendar = true;
  EXPECT_EQ(CellOf(year).description, "EUR 2028 has no closed day.");
}

TEST(ReadinessWords, SayWhenAMoneyEnded) {
  const ReadinessReport report = ReportOn(Date(2026, 3, 1));
  CurrencyReadiness kuna = {{191, "HRK", "Kuna", true, Date(2022, 12, 31)}, {}};
  const TableCell cell = ReadinessWords(English(), report).Cell(kuna, Year(2026, Readiness::kEnded));
  EXPECT_EQ(cell.description, "HRK is money until 2022-12-31.");
  EXPECT_EQ(cell.tone, CellTone::kQuiet);
}

TEST(ReadinessWords, AnUnpreparedNextYearIsLoudFromSeptemberOn) {
  for (const Readiness readiness : {Readiness::kNotPrepared, Readiness::kWeekendsOnly}) {
    const YearReadiness year = Year(2027, readiness);
    EXPECT_EQ(CellOf(year, Date(2026, 8, 31)).tone, CellTone::kNormal);
    EXPECT_EQ(CellOf(year, Date(2026, 9, 1)).tone, CellTone::kLoud);
  }
  EXPECT_EQ(CellOf(Year(2027, Readiness::kPrepared), Date(2026, 9, 1)).tone, CellTone::kNormal);
  EXPECT_EQ(CellOf(Year(2026, Readiness::kNotPrepared), Date(2026, 2, 1)).tone, CellTone::kLoud);
}

TEST(ReadinessWords, NameTheRunningAndTheNextYearInTheirColumns) {
  const ReadinessReport report = ReportOn(Date(2026, 3, 1));
  const ReadinessWords words(English(), report);
  EXPECT_EQ(words.YearCaption(2025), "2025");
  EXPECT_EQ(words.YearCaption(2026), "2026, this year");
  EXPECT_EQ(words.YearCaption(2027), "2027, next year");
  EXPECT_EQ(words.YearCaption(2028), "2028");
}

std::string UrgentOn(const Date& today) {
  const ReadinessReport report =
      ReportOn(today, {Euro({Year(2026, Readiness::kPrepared), Year(2027, Readiness::kWeekendsOnly)}),
                       Euro({Year(2026, Readiness::kPrepared), Year(2027, Readiness::kNotPrepared)}),
                       Euro({Year(2026, Readiness::kPrepared), Year(2027, Readiness::kDiffers)})});
  return ReadinessWords(English(), report).Urgent();
}

TEST(ReadinessWords, CountWhatIsUrgentAndTheDaysThatAreLeft) {
  EXPECT_THAT(UrgentOn(Date(2026, 8, 31)), IsEmpty());
  EXPECT_EQ(UrgentOn(Date(2026, 11, 22)), "2 currencies have no holidays in 2027, which begins in 40 days.");
  EXPECT_EQ(UrgentOn(Date(2026, 12, 31)), "2 currencies have no holidays in 2027, which begins tomorrow.");
  EXPECT_EQ(UrgentOn(Date(2027, 1, 1)), "2 currencies have no holidays in 2027, the running year.");
}

TEST(ReadinessWords, SumUpThisYearAndTheNextWithoutMoneyThatHasEnded) {
  const ReadinessReport report =
      ReportOn(Date(2026, 3, 1), {Euro({Year(2026, Readiness::kPrepared), Year(2027, Readiness::kPrepared)}),
                                  Euro({Year(2026, Readiness::kDiffers), Year(2027, Readiness::kEnded)})});
  EXPECT_EQ(ReadinessWords(English(), report).Summary(),
            "Prepared: 1 of 2 currencies for 2026, 1 of 1 currencies for 2027.");
  const ReadinessReport empty = ReportOn(Date(2026, 3, 1));
  EXPECT_EQ(ReadinessWords(English(), empty).Summary(), "There is no calendar and no rule book.");
}

TEST(ReadinessWords, NameTheCurrencyWhoseCodeMeansAll) {
  const ReadinessReport report = ReportOn(Date(2026, 3, 1));
  const CurrencyReadiness lek = {{8, "ALL", "Lek", true, {}}, {}};
  const TableCell cell = ReadinessWords(English(), report).Cell(lek, Year(2028, Readiness::kPrepared));
  EXPECT_EQ(cell.description, "ALL (Lek) 2028 is as planned.");
}

ReadinessWords AnyWords() {
  static const ReadinessReport report = ReportOn(Date(2026, 3, 1));
  return {English(), report};
}

TEST(ReadinessWords, EachLevelHasAWordAndAShapeAndErrorsAreLoud) {
  EXPECT_EQ(AnyWords().LevelCell(FindingLevel::kError).text, "Error");
  EXPECT_EQ(AnyWords().LevelCell(FindingLevel::kError).mark, CellMark::kError);
  EXPECT_EQ(AnyWords().LevelCell(FindingLevel::kError).tone, CellTone::kLoud);
  EXPECT_EQ(AnyWords().LevelCell(FindingLevel::kWarning).mark, CellMark::kWarning);
  EXPECT_EQ(AnyWords().LevelCell(FindingLevel::kNote).mark, CellMark::kNote);
}

}  // namespace
}  // namespace ferrowind
