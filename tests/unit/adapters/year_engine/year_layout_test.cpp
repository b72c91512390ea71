#include "ferrowind/adapters/year_engine/year_layout.h"

#include <gtest/gtest.h>

#include "tests/unit/adapters/year_engine/small_years.h"

namespace ferrowind::year_engine {
namespace {

/// Of letters as an ordinary screen has them.
YearFonts SmallFonts() {
  YearFonts fonts;
  fonts.number_height = 16;
  fonts.number_ascent = 13;
  fonts.number_width = 14;
  fonts.small_number_width = 11;
  fonts.small_height = 13;
  fonts.title_height = 16;
  fonts.letter = {7, 8};
  fonts.widest_caption = 60;
  fonts.widest_note = 20;
  fonts.blanks = 6;
  return fonts;
}

YearLayout LayoutIn(const YearDays& days, const Size& room, YearLayout::Reading reading = {}) {
  return {days, YearMeasures(SmallFonts(), days.CalendarCount() > 1), reading, room};
}

bool AreApart(const Area& one, const Area& other) {
  return one.Right() <= other.left || other.Right() <= one.left || one.Bottom() <= other.top ||
         other.Bottom() <= one.top;
}

TEST(YearLayoutTest, FindsEveryDayWhereItIs) {
  for (const YearDays& days : {DaysOf(2028, {"EUR"}), DaysOf(2027, {"EUR", "USD"})}) {
    for (const bool is_right_to_left : {false, true}) {
      for (const int first_weekday : {1, 2, 7}) {
        const YearLayout layout = LayoutIn(days, {900, 600}, {first_weekday, is_right_to_left});
        for (int calendar = 0; calendar < days.CalendarCount(); ++calendar) {
          for (int day = 1; day <= days.DayCount(); ++day) {
            const YearPlace place{calendar, day};
            EXPECT_EQ(layout.PlaceAt(layout.CellArea(place).Middle()), place);
          }
        }
      }
    }
  }
}

TEST(YearLayoutTest, FindsNothingBesideTheDays) {
  const YearDays days = DaysOf(2028, {"EUR"});
  const YearLayout layout = LayoutIn(days, {900, 600});
  EXPECT_EQ(layout.PlaceAt({0, 0}), std::nullopt);
  EXPECT_EQ(layout.PlaceAt(layout.TitleArea(1).Middle()), std::nullopt);
  EXPECT_EQ(layout.MonthAt(layout.TitleArea(12).Middle()), 12);
}

TEST(YearLayoutTest, PutsTheFirstDayUnderItsWeekday) {
  // 1 January 2028 is a Saturday.
  const YearDays days = DaysOf(2028, {"EUR"});
  const YearLayout monday_first = LayoutIn(days, {900, 600}, {2, false});
  EXPECT_EQ(monday_first.WeekdayOf(0), 2);
  EXPECT_EQ(monday_first.CellArea({0, 1}).left, monday_first.HeaderArea(1, 5).left);
  const YearLayout sunday_first = LayoutIn(days, {900, 600}, {1, false});
  EXPECT_EQ(sunday_first.CellArea({0, 1}).left, sunday_first.HeaderArea(1, 6).left);
}

TEST(YearLayoutTest, KeepsMonthsApartAndInItsWidth) {
  for (const YearDays& days : {DaysOf(2028, {"EUR"}), DaysOf(2028, {"EUR", "USD"})}) {
    for (const Size& room : {Size{780, 450}, Size{1400, 900}, Size{500, 2000}}) {
      const YearLayout layout = LayoutIn(days, room);
      EXPECT_LE(layout.WholeSize().width, std::max(room.width, 560.0));
      for (int month = 1; month <= 12; ++month) {
        for (int other = month + 1; other <= 12; ++other)
          EXPECT_TRUE(AreApart(layout.MonthArea(month), layout.MonthArea(other)));
      }
    }
  }
}

TEST(YearLayoutTest, SaysWhetherAllOfItHasRoom) {
  const YearDays days = DaysOf(2028, {"EUR"});
  EXPECT_TRUE(LayoutIn(days, {1200, 900}).FitsHeight());
  EXPECT_FALSE(LayoutIn(days, {300, 200}).FitsHeight());
}

TEST(YearLayoutTest, KnowsTheDaysOfItsMonths) {
  const YearDays days = DaysOf(2028, {"EUR"});
  const YearLayout layout = LayoutIn(days, {900, 600});
  EXPECT_EQ(layout.FirstDayOf(3), 61);
  EXPECT_EQ(layout.LastDayOf(2), 60);
  EXPECT_EQ(layout.LastDayOf(12), 366);
}

TEST(DayPlacesTest, KeepNumberLetterMarkAndFrameApart) {
  const YearMeasures measures(SmallFonts(), false);
  for (const double width : {measures.least_cell.width, measures.widest_cell.width}) {
    for (const double height : {measures.least_cell.height, measures.widest_cell.height}) {
      const Area cell{10, 20, width, height};
      const DayPlaces places(measures, cell);
      EXPECT_TRUE(AreApart(places.number, places.letter));
      EXPECT_TRUE(AreApart(places.letter, places.mark));
      for (const Area& part : {places.number, places.letter, places.mark}) {
        EXPECT_GE(part.left, cell.left + measures.frame);
        EXPECT_GE(part.top, cell.top + measures.frame);
        EXPECT_LE(part.Bottom(), cell.Bottom() - measures.frame + 0.001);
      }
    }
  }
}

}  // namespace
}  // namespace ferrowind::year_engine
