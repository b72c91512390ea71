#include "ferrowind/adapters/content/content_copy.h"

#include <algorithm>

#include <gmock/gmock.h>

#include "ferrowind/adapters/content/content_comparison.h"

#include "tests/support/expect_failure.h"
#include "tests/unit/adapters/content/memory_content.h"

namespace ferrowind::content {
namespace {

using ::testing::ElementsAre;
using testing::FailureOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

const Table& TableNamed(std::string_view name) {
  return *std::find_if(Tables().begin(), Tables().end(),
                       [&](const Table& table) { return table.name == name; });
}

std::optional<std::int64_t> Difference(std::vector<Row> left, std::vector<Row> right) {
  MemorySource left_source("left", {{"CldSetting", std::move(left)}});
  MemorySource right_source("right", {{"CldSetting", std::move(right)}});
  return FirstDifference(left_source, right_source, TableNamed("CldSetting"));
}

TEST(FirstDifference, IsNoneBetweenEqualRows) {
  EXPECT_EQ(Difference({}, {}), std::nullopt);
  EXPECT_EQ(Difference({{1, "a", {}}}, {{1, "a", {}}}), std::nullopt);
}

TEST(FirstDifference, TakesNumbersOfAnyWidthAsTheSame) {
  EXPECT_EQ(Difference({{std::int16_t{-7}, std::int64_t{7}}}, {{std::int64_t{-7}, std::int32_t{7}}}),
            std::nullopt);
  EXPECT_EQ(Difference({{std::int16_t{7}}}, {{std::int64_t{65543}}}), 1);
}

TEST(FirstDifference, CountsTheRowsFromOne) {
  EXPECT_EQ(Difference({{1}, {2}, {3}}, {{1}, {2}, {4}}), 3);
  EXPECT_EQ(Difference({{1}, {2}}, {{1}}), 2);
  EXPECT_EQ(Difference({}, {{1}}), 1);
}

TEST(FirstDifference, IsBetweenNothingAndAnEmptyTextAndBetweenTypes) {
  EXPECT_EQ(Difference({{platform::Value()}}, {{""}}), 1);
  EXPECT_EQ(Difference({{"7"}}, {{7}}), 1);
  EXPECT_EQ(Difference({{1}}, {{1, 2}}), 1);
}

TEST(ContentCopy, WritesATableBehindThoseThatItRefersToAndClearsItBefore) {
  MemorySource source("source", {{"CldSetting", {{7}}}});
  MemoryTarget target("target", {{"CldSetting", {{1}}}}, nullptr);
  CopyContent(source, target);
  EXPECT_EQ(target.tables["CldSetting"], (std::vector<Row>{{7}}));
  const auto place = [&](const std::string& step) {
    return std::find(target.log.begin(), target.log.end(), step) - target.log.begin();
  };
  EXPECT_EQ(target.log.size(), 1 + 2 * Tables().size());
  EXPECT_EQ(place("keep others out"), 0);
  EXPECT_EQ(std::count(target.log.begin(), target.log.end(), "write 1 CldSetting"), 1);
  EXPECT_LT(place("clear CldDay"), place("clear CldCalendar"));
  EXPECT_LT(place("clear CldCalendar"), place("clear DicCcy"));
  EXPECT_LT(place("clear DicCcy"), place("write 0 DicCcy"));
  EXPECT_LT(place("write 0 CldHolidayType"), place("write 0 CldHoliday"));
  EXPECT_LT(place("write 0 CldHoliday"), place("write 0 CldDay"));
}

TEST(ContentCopy, TouchesNothingOfATargetThatHoldsMoreThanADeliveredOne) {
  MemorySource source("source", {{"CldSetting", {{7}}}});
  MemorySource delivered("delivered", {{"CldSetting", {{1}}}, {"DicCcy", {{1}, {2}}}});
  MemoryTarget target("The target", {{"CldSetting", {{1}}}, {"DicCcy", {{1}}}, {"CldDay", {{1}, {2}}}},
                      &delivered);
  EXPECT_THAT(FailureOf([&] { CopyContent(source, target); }).Description(),
              HasSubstr("The target is not empty: it holds changed currencies, 2 days."));
  EXPECT_THAT(target.log, ElementsAre("keep others out"));
}

TEST(ContentCopy, TouchesNothingOfItself) {
  MemorySource source("it");
  MemoryTarget target("it", {}, nullptr);
  EXPECT_THAT(FailureOf([&] { CopyContent(source, target); }).Description(), HasSubstr("to itself"));
  EXPECT_THAT(target.log, IsEmpty());
}

TEST(ContentCopy, SaysWhichRowTheTargetRefused) {
  MemorySource source("source", {{"CldCalendar", {{1, 2026}, {1, 2027}}}});
  MemoryTarget target("target", {}, nullptr);
  target.refused_table = "CldCalendar";
  target.refused_row = 2;
  testing::ExpectFailure([&] { CopyContent(source, target); }, 4711, "CldCalendar, row 1 2027: refused");
  target.refused_row = 0;
  testing::ExpectFailure([&] { CopyContent(source, target); }, 4711, "CldCalendar: refused");
}

TEST(ContentCopy, CountsEachRowTwiceAndTellsNowAndThen) {
  std::vector<Row> years;
  for (int year = 1900; year < 2200; ++year) years.push_back({1, year});
  MemorySource source("source", {{"CldCalendar", years}});
  MemoryTarget target("target", {}, nullptr);
  std::vector<std::int64_t> done;
  CopyContent(source, target, [&](const CopyProgress& progress) {
    EXPECT_EQ(progress.total, 600);
    EXPECT_EQ(progress.rows, "calendars");
    EXPECT_EQ(progress.step == CopyProgress::Step::kComparing, progress.done > 300);
    done.push_back(progress.done);
  });
  EXPECT_THAT(done, ::testing::ElementsAre(128, 256, 384, 512));
}

}  // namespace
}  // namespace ferrowind::content
