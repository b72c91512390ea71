#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/platform/values/record_set.h"

#include "tests/support/failure_of.h"

namespace ferrowind::platform {
namespace {

using ::ferrowind::testing::FailureOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr std::int16_t kRemoved = 2;
constexpr std::int16_t kRestored = 4;

/// 1 the built-in type, never removed; 2 a weekday rule; 3 a removed one; 4 a restored one; 5 a removed
/// built-in one.
RecordSet Rules() {
  return {{"ID2", "HolidayType", "Del"},
          {{1, 1, {}}, {2, 2, {}}, {3, 3, kRemoved}, {4, 4, kRestored}, {5, 1, kRemoved}}};
}

std::vector<RecordSet::Bookmark> Visible(const RecordSet& record_set) {
  std::vector<RecordSet::Bookmark> visible;
  for (std::size_t position = 0; position < record_set.RowCount(); ++position) {
    visible.push_back(record_set.BookmarkAt(position));
  }
  return visible;
}

std::vector<RecordSet::Bookmark> Walked(RecordSet& record_set) {
  std::vector<RecordSet::Bookmark> walked;
  for (record_set.MoveFirst(); !record_set.Eof(); record_set.MoveNext()) {
    walked.push_back(record_set.CurrentBookmark());
  }
  return walked;
}

TEST(RecordSetFilter, HidesRemovedRulesAndTheBuiltInType) {
  RecordSet rules = Rules();
  rules.SetFilter("(Del <> 2 and HolidayType <> 1) or (Del = NULL and HolidayType <> 1)");
  EXPECT_THAT(Visible(rules), ElementsAre(2, 4));
}

TEST(RecordSetFilter, HidesTheBuiltInTypeAlone) {
  RecordSet rules = Rules();
  rules.SetFilter("HolidayType <> 1");
  EXPECT_THAT(Visible(rules), ElementsAre(2, 3, 4));
}

TEST(RecordSetFilter, MovesToTheFirstVisibleRow) {
  RecordSet rules = Rules();
  rules.MoveTo(5);
  rules.SetFilter("HolidayType <> 1");
  EXPECT_EQ(rules.CurrentBookmark(), 2);
}

TEST(RecordSetFilter, LetsTheCursorSeeOnlyVisibleRows) {
  RecordSet rules = Rules();
  rules.SetFilter("Del = 2");
  EXPECT_THAT(Walked(rules), ElementsAre(3, 5));
}

TEST(RecordSetFilter, StandsAtBothEndsWhenNoRowPasses) {
  RecordSet rules = Rules();
  rules.SetFilter("ID2 > 5");
  EXPECT_TRUE(rules.Bof());
  EXPECT_TRUE(rules.Eof());
  EXPECT_THAT(Walked(rules), IsEmpty());
  EXPECT_EQ(FailureOf([&] { rules.MoveNext(); }).Number(), failure_number::kNoCurrentRecord);
}

TEST(RecordSetFilter, IsReadBackAsItWasSet) {
  RecordSet rules = Rules();
  EXPECT_EQ(rules.Filter(), "");
  rules.SetFilter(" HolidayType<>1 ");
  EXPECT_EQ(rules.Filter(), " HolidayType<>1 ");
}

TEST(RecordSetFilter, AnEmptyOneShowsAllRowsAndMovesToTheFirst) {
  RecordSet rules = Rules();
  rules.SetFilter("HolidayType = 4");
  rules.SetFilter("");
  EXPECT_EQ(rules.Filter(), "");
  EXPECT_EQ(rules.CurrentBookmark(), 1);
  EXPECT_THAT(Walked(rules), ElementsAre(1, 2, 3, 4, 5));
}

TEST(RecordSetFilter, ReplacesTheOldOneInsteadOfNarrowingIt) {
  RecordSet rules = Rules();
  rules.SetFilter("HolidayType = 4");
  rules.SetFilter("HolidayType = 1");
  EXPECT_THAT(Visible(rules), ElementsAre(1, 5));
}

TEST(RecordSetFilter, StaysOnWithItsRowsAndCursorWhenANewOneFails) {
  RecordSet rules = Rules();
  rules.SetFilter("HolidayType <> 1");
  rules.MoveNext();
  for (const std::string filter :
       {"HolidayType <>", "Unknown = 1", "HolidayType <> 1 and", "(ID2 = 1", " "}) {
    const Failure failure = FailureOf([&] { rules.SetFilter(filter); });
    EXPECT_EQ(failure.Number(), failure_number::kFilterNotUnderstood) << filter;
    EXPECT_THAT(failure.Description(), HasSubstr('"' + filter + '"'));
    EXPECT_EQ(rules.Filter(), "HolidayType <> 1");
    EXPECT_THAT(Visible(rules), ElementsAre(2, 3, 4));
    EXPECT_EQ(rules.CurrentBookmark(), 3);
  }
}

TEST(RecordSetFilter, FailsWithoutRowsToo) {
  RecordSet empty({"ID2"}, {});
  EXPECT_EQ(FailureOf([&] { empty.SetFilter("Unknown = 1"); }).Number(),
            failure_number::kFilterNotUnderstood);
}

TEST(RecordSetFilter, LetsABookmarkReachAHiddenRow) {
  RecordSet rules = Rules();
  rules.SetFilter("HolidayType <> 1");
  rules.MoveTo(5);
  EXPECT_FALSE(rules.Bof());
  EXPECT_FALSE(rules.Eof());
  EXPECT_EQ(rules["ID2"], Value(5));
}

TEST(RecordSetFilter, MovesOnFromAHiddenRowToTheNextVisibleOne) {
  RecordSet rules = Rules();
  rules.SetFilter("HolidayType = 4 or ID2 = 1");
  rules.MoveTo(2);
  rules.MoveNext();
  EXPECT_EQ(rules.CurrentBookmark(), 4);
  rules.MoveTo(5);
  rules.MoveNext();
  EXPECT_TRUE(rules.Eof());
}

TEST(RecordSetFilter, LetsABookmarkReachARowWhenNoneIsVisible) {
  RecordSet rules = Rules();
  rules.SetFilter("ID2 > 5");
  rules.MoveTo(1);
  EXPECT_FALSE(rules.Bof());
  EXPECT_FALSE(rules.Eof());
  rules.MoveNext();
  EXPECT_TRUE(rules.Bof());
  EXPECT_TRUE(rules.Eof());
}

}  // namespace
}  // namespace ferrowind::platform
