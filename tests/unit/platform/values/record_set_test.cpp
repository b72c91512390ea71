#include "ferrowind/platform/values/record_set.h"

#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/failure_of.h"

namespace ferrowind::platform {
namespace {

using ::ferrowind::testing::FailureOf;
using ::testing::HasSubstr;

RecordSet Currencies() { return {{"CcyID", "Ccy"}, {{978, "EUR"}, {840, "USD"}, {826, "GBP"}}}; }

RecordSet WithoutRows() { return {{"CcyID", "Ccy"}, {}}; }

TEST(RecordSet, StartsOnItsFirstRow) {
  const RecordSet record_set = Currencies();
  EXPECT_FALSE(record_set.Bof());
  EXPECT_FALSE(record_set.Eof());
  EXPECT_EQ(record_set["Ccy"], Value("EUR"));
  EXPECT_EQ(record_set.CurrentBookmark(), 1);
}

TEST(RecordSet, WithoutRowsStandsAtBothEnds) {
  RecordSet record_set = WithoutRows();
  EXPECT_TRUE(record_set.Bof());
  EXPECT_TRUE(record_set.Eof());
  EXPECT_EQ(record_set.RowCount(), 0U);
  record_set.MoveFirst();
  EXPECT_TRUE(record_set.Bof());
  EXPECT_TRUE(record_set.Eof());
}

TEST(RecordSet, MovesThroughItsRowsToBehindTheLastOne) {
  RecordSet record_set = Currencies();
  record_set.MoveNext();
  EXPECT_EQ(record_set["Ccy"], Value("USD"));
  record_set.MoveNext();
  EXPECT_EQ(record_set["Ccy"], Value("GBP"));
  record_set.MoveNext();
  EXPECT_TRUE(record_set.Eof());
  EXPECT_FALSE(record_set.Bof());
}

TEST(RecordSet, FailsToMoveOnFromBehindTheLastRow) {
  RecordSet record_set = WithoutRows();
  EXPECT_EQ(FailureOf([&] { record_set.MoveNext(); }).Number(), failure_number::kNoCurrentRecord);
}

TEST(RecordSet, MovesBackToTheFirstRow) {
  RecordSet record_set = Currencies();
  while (!record_set.Eof()) record_set.MoveNext();
  record_set.MoveFirst();
  EXPECT_EQ(record_set["Ccy"], Value("EUR"));
}

TEST(RecordSet, ReturnsToABookmark) {
  RecordSet record_set = Currencies();
  record_set.MoveNext();
  const RecordSet::Bookmark bookmark = record_set.CurrentBookmark();
  record_set.MoveFirst();
  record_set.MoveTo(bookmark);
  EXPECT_EQ(record_set["Ccy"], Value("USD"));
}

TEST(RecordSet, RefusesABookmarkOfNoRowAndStaysWhereItIs) {
  RecordSet record_set = Currencies();
  record_set.MoveNext();
  for (const RecordSet::Bookmark bookmark : {-1, 0, 4}) {
    const Failure failure = FailureOf([&] { record_set.MoveTo(bookmark); });
    EXPECT_EQ(failure.Number(), failure_number::kNoCurrentRecord);
    EXPECT_THAT(failure.Description(), HasSubstr(std::to_string(bookmark)));
  }
  EXPECT_EQ(record_set.CurrentBookmark(), 2);
}

TEST(RecordSet, HasNeitherBookmarkNorFieldsBehindTheLastRow) {
  const RecordSet record_set = WithoutRows();
  EXPECT_EQ(FailureOf([&] { (void)record_set.CurrentBookmark(); }).Number(),
            failure_number::kNoCurrentRecord);
  EXPECT_EQ(FailureOf([&] { (void)record_set["Ccy"]; }).Number(), failure_number::kNoCurrentRecord);
}

TEST(RecordSet, FindsFieldsWithoutRegardToCase) {
  const RecordSet record_set = Currencies();
  EXPECT_EQ(record_set["ccyid"], Value(978));
  EXPECT_EQ(record_set.FindField("CCY"), 1U);
  EXPECT_EQ(record_set.FieldNamed("cCY"), 1U);
}

TEST(RecordSet, NamesAnUnknownField) {
  const RecordSet record_set = Currencies();
  EXPECT_EQ(record_set.FindField("Name"), std::nullopt);
  const Failure failure = FailureOf([&] { (void)record_set["Name"]; });
  EXPECT_EQ(failure.Number(), failure_number::kUnknownField);
  EXPECT_THAT(failure.Description(), HasSubstr("Name"));
  EXPECT_EQ(FailureOf([&] { (void)record_set.FieldNamed("Name"); }).Number(), failure_number::kUnknownField);
}

TEST(RecordSet, DescribesItsFieldsInTheirOrder) {
  const RecordSet record_set = WithoutRows();
  ASSERT_EQ(record_set.FieldCount(), 2U);
  EXPECT_EQ(record_set.FieldName(0), "CcyID");
  EXPECT_EQ(record_set.FieldName(1), "Ccy");
}

TEST(RecordSet, HandsOutCellsWithoutMoving) {
  const RecordSet record_set = Currencies();
  EXPECT_EQ(record_set.Cell(3, 1), Value("GBP"));
  EXPECT_EQ(record_set.BookmarkAt(2), 3);
  EXPECT_EQ(record_set.CurrentBookmark(), 1);
}

TEST(RecordSet, RefusesRowsThatHaveNotOneValuePerField) {
  EXPECT_EQ(FailureOf([] {
              const RecordSet short_row({"A", "B"}, {{1, 2}, {3}});
            }).Number(),
            failure_number::kInvalidArgument);
  EXPECT_EQ(FailureOf([] {
              const RecordSet long_row({"A"}, {{1, 2}});
            }).Number(),
            failure_number::kInvalidArgument);
}

TEST(RecordSet, MayHaveRowsWithoutFields) {
  RecordSet record_set({}, {{}, {}});
  EXPECT_EQ(record_set.RowCount(), 2U);
  record_set.MoveNext();
  EXPECT_EQ(record_set.CurrentBookmark(), 2);
}

TEST(RecordSetClone, SharesTheRowsThemselves) {
  const RecordSet record_set = Currencies();
  const auto clone = record_set.Clone();
  EXPECT_EQ(&clone->Cell(1, 1), &record_set.Cell(1, 1));
}

TEST(RecordSetClone, StartsOnTheFirstRowWhereverTheOriginalStands) {
  RecordSet record_set = Currencies();
  while (!record_set.Eof()) record_set.MoveNext();
  EXPECT_EQ(record_set.Clone()->CurrentBookmark(), 1);
}

TEST(RecordSetClone, HasACursorOfItsOwn) {
  RecordSet record_set = Currencies();
  const auto clone = record_set.Clone();
  clone->MoveNext();
  EXPECT_EQ(record_set.CurrentBookmark(), 1);
  record_set.MoveTo(3);
  EXPECT_EQ(clone->CurrentBookmark(), 2);
}

TEST(RecordSetClone, HasAFilterOfItsOwn) {
  RecordSet record_set = Currencies();
  record_set.SetFilter("Ccy = 'USD'");
  const auto clone = record_set.Clone();
  EXPECT_EQ(clone->Filter(), "");
  EXPECT_EQ(clone->RowCount(), 3U);
  clone->SetFilter("Ccy <> 'USD'");
  EXPECT_EQ(record_set.Filter(), "Ccy = 'USD'");
  EXPECT_EQ(record_set.RowCount(), 1U);
}

TEST(RecordSetClone, UnderstandsTheBookmarksOfTheOriginal) {
  RecordSet record_set = Currencies();
  record_set.SetFilter("Ccy = 'GBP'");
  const auto clone = record_set.Clone();
  clone->MoveTo(record_set.CurrentBookmark());
  EXPECT_EQ((*clone)["Ccy"], Value("GBP"));
}

TEST(RecordSetClone, OutlivesTheOriginal) {
  auto record_set = std::make_unique<RecordSet>(Currencies());
  const auto clone = record_set->Clone();
  record_set.reset();
  EXPECT_EQ((*clone)["Ccy"], Value("EUR"));
}

TEST(RecordSetComparison, TellsWhetherTheSameRowsAreShown) {
  const std::vector<std::string> fields = {"Number", "Name"};
  const RecordSet one(fields, {{1, "a"}, {2, "b"}});
  EXPECT_TRUE(one.ShowsTheSameAs(*one.Clone()));
  EXPECT_TRUE(one.ShowsTheSameAs(RecordSet(fields, {{1, "a"}, {2, "b"}})));
  EXPECT_FALSE(one.ShowsTheSameAs(RecordSet(fields, {{1, "a"}, {2, "c"}})));
  EXPECT_FALSE(one.ShowsTheSameAs(RecordSet(fields, {{2, "b"}, {1, "a"}})));
  EXPECT_FALSE(one.ShowsTheSameAs(RecordSet(fields, {{1, "a"}})));
  EXPECT_FALSE(one.ShowsTheSameAs(RecordSet({"Number", "Text"}, {{1, "a"}, {2, "b"}})));
  RecordSet longer(fields, {{0, "x"}, {1, "a"}, {2, "b"}});
  EXPECT_FALSE(one.ShowsTheSameAs(longer));
  longer.SetFilter("Number > 0");
  EXPECT_TRUE(one.ShowsTheSameAs(longer)) << "hidden rows are not shown";
}

}  // namespace
}  // namespace ferrowind::platform
