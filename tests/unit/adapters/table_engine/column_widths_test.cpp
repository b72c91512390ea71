#include "ferrowind/adapters/table_engine/column_widths.h"

#include <gmock/gmock.h>

namespace ferrowind::table_engine {
namespace {

using testing::ElementsAre;

constexpr ColumnWish kDate{100, 40};
constexpr ColumnWish kLongName{300, 40};
constexpr ColumnWish kShortReason{80, 40, true};
constexpr ColumnWish kLongReason{320, 40, true};

TEST(ColumnWidths, AreWhatTheColumnsAskForWhereNoneStretches) {
  EXPECT_THAT(WidthsWithin(1000, {kDate, kLongName}), ElementsAre(100, 300));
  EXPECT_THAT(WidthsWithin(100, {kDate, kLongName}), ElementsAre(100, 300));
}

TEST(ColumnWidths, LetALongNameBeReadWhereThoseThatStretchHaveRoomEnough) {
  EXPECT_THAT(WidthsWithin(500, {kDate, kLongName, kShortReason}), ElementsAre(100, 300, 100));
  EXPECT_THAT(WidthsWithin(720, {kDate, kLongName, kLongReason}), ElementsAre(100, 300, 320));
}

TEST(ColumnWidths, TakeFromALongNameOnlyWhatThoseThatStretchLack) {
  EXPECT_THAT(WidthsWithin(700, {kDate, kLongName, kLongReason}), ElementsAre(100, 280, 320));
  EXPECT_THAT(WidthsWithin(600, {kDate, kLongName, kLongReason}), ElementsAre(100, 240, 260));
  EXPECT_THAT(WidthsWithin(700, {kLongName, {260, 40}, {160, 40, true}}), ElementsAre(285, 255, 160))
      << "from each by what it has to spare";
}

TEST(ColumnWidths, LeaveACaptionWhole) {
  EXPECT_THAT(WidthsWithin(500, {{300, 290}, kLongReason}), ElementsAre(290, 210));
}

TEST(ColumnWidths, KeepWhatTheOperatorGaveAndWhatAColumnNeedsAtLeast) {
  EXPECT_THAT(WidthsWithin(600, {kDate, {300, 40, false, 310}, kLongReason}), ElementsAre(100, 310, 190));
  EXPECT_THAT(WidthsWithin(480, {kDate, kLongName, kLongReason}), ElementsAre(100, 240, 140));
  EXPECT_THAT(WidthsWithin(600, {kDate, {320, 40, true, 50}}), ElementsAre(100, 50));
}

TEST(ColumnWidths, TakeFromTheWidestFirstWhereEachHasWhatItNeedsAtLeastAndThatIsTooMuch) {
  EXPECT_THAT(WidthsWithin(400, {kDate, kLongName, kLongReason}), ElementsAre(100, 160, 140));
  EXPECT_THAT(WidthsWithin(360, {kDate, kLongName, kLongReason}), ElementsAre(100, 130, 130));
  EXPECT_THAT(WidthsWithin(400, {{100, 40}, {300, 190}, kLongReason}), ElementsAre(100, 190, 110))
      << "but a caption stays whole";
  EXPECT_THAT(WidthsWithin(400, {{300, 40, false, 200}, {90, 40}, kLongReason}), ElementsAre(200, 90, 110))
      << "and what the operator gave stays";
  EXPECT_THAT(WidthsWithin(200, {kDate, kLongName, kLongReason}), ElementsAre(92, 92, 92));
}

TEST(ColumnWidths, AreEqualOfThoseThatStretchWhereThatIsEnoughForEach) {
  EXPECT_THAT(WidthsWithin(500, {kDate, kShortReason, {200, 40, true}}), ElementsAre(100, 200, 200));
}

TEST(ColumnWidths, AreMoreForThoseThatStretchAndNeedMore) {
  EXPECT_THAT(WidthsWithin(460, {kDate, kLongReason, kShortReason}), ElementsAre(100, 280, 80));
  EXPECT_THAT(WidthsWithin(380, {{94, 40}, {134, 40, true}, {150, 40, true}}), ElementsAre(94, 134, 152));
}

TEST(ColumnWidths, OfNoColumnsAreNone) { EXPECT_THAT(WidthsWithin(500, {}), ElementsAre()); }

}  // namespace
}  // namespace ferrowind::table_engine
