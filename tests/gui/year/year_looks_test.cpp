// What people see of a year: nothing cut, everything read, in any theme.
#include <QApplication>
#include <QHelpEvent>
#include <QScrollBar>
#include <QTest>
#include <QToolTip>
#include <set>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/qt/look/contrast.h"
#include "ferrowind/adapters/qt/look/theme.h"
#include "ferrowind/adapters/qt/year/day_places.h"
#include "ferrowind/adapters/qt/year/year_colors.h"
#include "ferrowind/adapters/qt/year/year_layout.h"
#include "ferrowind/adapters/qt/year/year_pane.h"
#include "ferrowind/adapters/qt/year/year_widget.h"

#include "tests/gui/year/small_year.h"

namespace ferrowind::qt {
namespace {

using gui::SmallYear;
using platform::DayTint;
using year_engine::YearDays;
using year_engine::YearPlace;

const std::vector<std::string> kTen = {"AUD", "CAD", "CHF", "CNY", "EUR", "GBP", "JPY", "NOK", "SEK", "USD"};

YearLayout LayoutIn(const YearDays& days, const QSizeF& room, YearLayout::Reading reading = {}) {
  const YearMetrics metrics(days, QApplication::font(), QLocale::c());
  return {days, metrics, reading, room};
}

class YearLookTest : public ::testing::TestWithParam<Theme> {
 protected:
  YearLookTest() { ApplyTheme(*qApp, GetParam()); }
  ~YearLookTest() override { ApplyTheme(*qApp, Theme::kLight); }
};

INSTANTIATE_TEST_SUITE_P(Themes, YearLookTest, ::testing::Values(Theme::kLight, Theme::kDark));

TEST_P(YearLookTest, TextsAndMarksAreReadOnEveryGround) {
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    QPalette palette = QApplication::palette();
    palette.setCurrentColorGroup(group);
    for (const YearColors& colors : {YearColors(palette), YearColors::OnPaper()}) {
      EXPECT_GE(Contrast(colors.muted, colors.base), kTextContrast);
      for (const auto tint : {DayTint::kNone, DayTint::kGrey, DayTint::kRed, DayTint::kViolet,
                              DayTint::kGreen, DayTint::kAmber}) {
        const YearColors::Tint& of_tint = colors.Of(tint);
        for (const QColor& ground : {of_tint.ground, of_tint.selected_ground}) {
          EXPECT_GE(Contrast(colors.text, ground), kTextContrast) << static_cast<int>(tint);
          EXPECT_GE(Contrast(of_tint.mark, ground), kTextContrast) << static_cast<int>(tint);
          EXPECT_GE(Contrast(colors.accent, ground), kMarkContrast) << static_cast<int>(tint);
        }
      }
    }
  }
}

/// The colours of the day's cell, without its outermost pixels.
std::vector<QRgb> ColorsOf(YearWidget& widget, const YearPlace& place) {
  const QImage picture =
      widget.Pane().viewport()->grab(widget.Pane().RectOf(place).adjusted(1, 1, -1, -1)).toImage();
  std::vector<QRgb> colors;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) colors.push_back(picture.pixel(x, y));
  }
  return colors;
}

/// The strongest contrast of any two pixels of the cell.
double StrongestContrast(YearWidget& widget, const YearPlace& place) {
  const std::vector<QRgb> colors = ColorsOf(widget, place);
  const auto [darkest, lightest] = std::minmax_element(
      colors.begin(), colors.end(),
      [](QRgb left, QRgb right) { return Luminance(QColor(left)) < Luminance(QColor(right)); });
  return Contrast(QColor(*darkest), QColor(*lightest));
}

TEST_P(YearLookTest, EveryKindOfDayCanBeReadOnTheScreen) {
  YearWidget widget;
  widget.resize(1000, 760);
  widget.Pane().SetDays(YearDays(SmallYear({"EUR"})));
  widget.show();
  for (const int day : {3, 8, 9, 105, 360}) {
    EXPECT_GE(StrongestContrast(widget, {0, day}), kTextContrast) << day;
    widget.Pane().GoTo({0, day});
    EXPECT_GE(StrongestContrast(widget, {0, day}), kTextContrast) << day << " selected";
  }
}

TEST_P(YearLookTest, KindsOfDaysDifferWithoutColour) {
  YearWidget widget;
  widget.resize(1000, 760);
  widget.Pane().SetDays(YearDays(SmallYear({"EUR"})));
  widget.show();
  widget.Pane().GoTo({0, 300});
  // Of the same number on the same ground, in greys, each has other pixels.
  const auto greys_of = [&](const platform::DayLook& look) {
    auto content = SmallYear({"EUR"});
    content.calendars[0].days = {{8, look, ""}};
    widget.Pane().SetDays(YearDays(content));
    std::vector<int> greys;
    for (const QRgb color : ColorsOf(widget, {0, 8})) greys.push_back(Luminance(QColor(color)) < 0.3 ? 0 : 1);
    return greys;
  };
  const auto content = SmallYear({"EUR"});
  std::set<std::vector<int>> seen = {greys_of({})};
  for (const auto& entry : content.legend) {
    platform::DayLook without_tint = entry.look;
    without_tint.tint = DayTint::kNone;
    EXPECT_TRUE(seen.insert(greys_of(without_tint)).second) << entry.text;
  }
}

TEST_P(YearLookTest, TodayAndTheCurrentDayStandOut) {
  YearWidget widget;
  widget.resize(1000, 760);
  widget.show();
  const auto picture_of = [&](std::optional<std::int16_t> today, int current) {
    auto content = SmallYear({"EUR"});
    content.today = today;
    widget.Pane().SetDays(YearDays(content));
    widget.Pane().GoTo({0, current});
    return ColorsOf(widget, {0, 20});
  };
  const auto plain = picture_of(std::nullopt, 30);
  const auto as_today = picture_of(20, 30);
  const auto as_current = picture_of(std::nullopt, 20);
  EXPECT_NE(plain, as_today);
  EXPECT_NE(plain, as_current);
  EXPECT_NE(as_today, as_current);
}

/// The places of the pixels that the pictures have otherwise, by at least that contrast.
std::set<std::pair<int, int>> InkOf(const QImage& before, const QImage& after, double contrast) {
  std::set<std::pair<int, int>> ink;
  for (int y = 0; y < before.height(); ++y) {
    for (int x = 0; x < before.width(); ++x) {
      if (Contrast(QColor(before.pixel(x, y)), QColor(after.pixel(x, y))) >= contrast) ink.insert({x, y});
    }
  }
  return ink;
}

TEST_P(YearLookTest, LettersAreWholeInTheFrameOfTheCurrentDayAndTheRingOfToday) {
  // As wide as on a screen of 800 x 600, and in rooms where days are wider.
  for (const QSize size : {QSize(780, 450), QSize(780, 520), QSize(960, 620), QSize(1300, 650)}) {
    YearWidget widget;
    widget.resize(size);
    widget.show();
    const int day = platform::Date(2028, 12, 26).DayOfYear();
    // The days around it, too, since a letter that stands out of its cell is cut as well.
    const auto picture_of = [&](const char* letter, bool is_current, bool is_today) {
      auto content = SmallYear({"EUR"});
      content.legend = {{{DayTint::kRed, platform::DayShape::kSquare, "C"}, ""}};
      content.calendars[0].days = {
          {static_cast<std::int16_t>(day), {DayTint::kRed, platform::DayShape::kSquare, letter}, ""}};
      if (is_today) content.today = static_cast<std::int16_t>(day);
      widget.Pane().SetDays(YearDays(content));
      widget.Pane().GoTo({0, is_current ? day : 20});
      widget.Pane().setFocus();
      const QRect cell = widget.Pane().RectOf({0, day});
      return widget.Pane().viewport()->grab(cell.adjusted(-6, -6, 6, 6)).toImage();
    };
    const QRect cell(QPoint(6, 6), widget.Pane().RectOf({0, day}).size());
    const auto letter = InkOf(picture_of("", false, false), picture_of("C", false, false), 2);
    ASSERT_FALSE(letter.empty());
    // Grounds differ, and shades at the edges of the letter with them.
    const auto as_current = InkOf(picture_of("", true, false), picture_of("C", true, false), 1.2);
    const auto as_today = InkOf(picture_of("", false, true), picture_of("C", false, true), 1.2);
    for (const auto& place : letter) {
      const std::string at = std::to_string(place.first) + ", " + std::to_string(place.second) + " at " +
                             std::to_string(size.width());
      EXPECT_TRUE(cell.contains(place.first, place.second)) << at;
      EXPECT_TRUE(as_current.contains(place)) << at;
      EXPECT_TRUE(as_today.contains(place)) << at;
    }
  }
}

TEST(DayPlacesTest, KeepNumberLetterMarkAndFrameApart) {
  const YearDays days(SmallYear({"EUR"}));
  for (const double points : {7.0, 9.0, 12.0, 18.0}) {
    QFont font = QApplication::font();
    font.setPointSizeF(points);
    const YearMetrics metrics(days, font, QLocale::c());
    EXPECT_GT(metrics.letter_size.width(), 0);
    for (double width = 1; width < 2; width += 0.05) {
      const QRectF cell(QPointF(3, 5),
                        QSizeF(metrics.least_cell.width() * width, metrics.least_cell.height()));
      const DayPlaces places(metrics, cell);
      const QRectF inside = cell.adjusted(metrics.frame, metrics.frame, -metrics.frame, -metrics.frame)
                                .adjusted(-0.01, -0.01, 0.01, 0.01);
      QRectF number(0, 0, metrics.number_width, metrics.number_ascent * 0.8);
      number.moveCenter(places.number.center());
      QRectF letter(QPointF(0, 0), metrics.letter_size);
      letter.moveCenter(places.letter.center());
      for (const QRectF& part : {number, letter, places.mark}) EXPECT_TRUE(inside.contains(part)) << width;
      const auto apart = [](const QRectF& one, const QRectF& other) {
        return !one.intersects(other.adjusted(0.01, 0.01, -0.01, -0.01));
      };
      EXPECT_TRUE(apart(number, letter)) << width;
      EXPECT_TRUE(apart(number, places.mark)) << width;
      EXPECT_TRUE(apart(letter, places.mark)) << width;
    }
  }
}

TEST(YearLayoutTest, FindsEveryDayWhereItIs) {
  const std::vector<std::vector<std::string>> shapes = {{"EUR"}, kTen};
  for (const auto& keys : shapes) {
    const YearDays days(SmallYear(keys));
    for (const bool is_right_to_left : {false, true}) {
      for (int first_weekday = 1; first_weekday <= 7; ++first_weekday) {
        const YearLayout layout = LayoutIn(days, {900, 600}, {first_weekday, is_right_to_left});
        for (int calendar = 0; calendar < days.CalendarCount(); ++calendar) {
          for (int day = 1; day <= 366; ++day) {
            const YearPlace place{calendar, day};
            ASSERT_EQ(layout.PlaceAt(layout.CellRect(place).center()), place) << day;
          }
        }
      }
    }
  }
}

TEST(YearLayoutTest, PutsTheWeekdaysAsTheLocaleSays) {
  const YearDays days(SmallYear({"EUR"}));
  const YearLayout monday_first = LayoutIn(days, {900, 600}, {2, false});
  EXPECT_EQ(monday_first.WeekdayOf(0), 2);
  EXPECT_EQ(monday_first.WeekdayOf(6), 1);
  // 1 January 2028 is a Saturday.
  EXPECT_EQ(monday_first.CellRect({0, 1}).left(), monday_first.HeaderRect(1, 5).left());
  const YearLayout sunday_first = LayoutIn(days, {900, 600}, {1, false});
  EXPECT_EQ(sunday_first.CellRect({0, 1}).left(), sunday_first.HeaderRect(1, 6).left());
}

TEST(YearLayoutTest, GivesDaysOfOneCalendarRoomEnoughOnSmallScreens) {
  const YearDays days(SmallYear({"EUR"}));
  // What 800x600 leaves of a window without its bars.
  const YearLayout layout = LayoutIn(days, {780, 450});
  EXPECT_TRUE(layout.FitsHeight());
  EXPECT_LE(layout.Size().width(), 780.5);
}

TEST(YearLayoutTest, NeverGoesBeyondTheWidthOfSmallScreens) {
  const YearDays days(SmallYear(kTen));
  EXPECT_LE(LayoutIn(days, {770, 450}).Size().width(), 770.5);
}

TEST(YearLayoutTest, KeepsMonthsApart) {
  for (const QSizeF room : {QSizeF(780, 450), QSizeF(1300, 650), QSizeF(300, 200), QSizeF(2500, 1300)}) {
    const YearDays days(SmallYear({"EUR"}));
    const YearLayout layout = LayoutIn(days, room);
    for (int one = 1; one <= 12; ++one) {
      EXPECT_TRUE(
          QRectF(QPointF(0, 0), layout.Size()).adjusted(-1, -1, 1, 1).contains(layout.MonthRect(one)));
      for (int other = one + 1; other <= 12; ++other)
        EXPECT_FALSE(layout.MonthRect(one).intersects(layout.MonthRect(other)));
    }
  }
}

TEST(YearLayoutTest, MirrorsAYearThatIsReadFromRightToLeft) {
  const YearDays days(SmallYear({"EUR"}));
  const YearLayout layout = LayoutIn(days, {900, 600}, {2, true});
  EXPECT_GT(layout.MonthRect(1).left(), layout.MonthRect(2).left());
  EXPECT_GT(layout.CellRect({0, 3}).left(), layout.CellRect({0, 4}).left());
}

TEST(YearPaneTest, GoesToTheNextDayByTheLeftKeyWhereItStandsThere) {
  YearWidget widget;
  widget.setLayoutDirection(Qt::RightToLeft);
  widget.resize(900, 600);
  widget.Pane().SetDays(YearDays(SmallYear({"EUR"})));
  widget.show();
  QTest::keyClick(&widget.Pane(), Qt::Key_Left);
  EXPECT_EQ(widget.Pane().Cursor().Current()->day, 2);
}

TEST(YearPaneTest, ScrollsTheCurrentDayIntoSight) {
  YearWidget widget;
  widget.resize(420, 260);
  widget.Pane().SetDays(YearDays(SmallYear({"EUR"})));
  widget.show();
  for (const int day : {366, 1, 180}) {
    widget.Pane().GoTo({0, day});
    EXPECT_TRUE(widget.Pane().viewport()->rect().contains(widget.Pane().RectOf({0, day}))) << day;
  }
}

TEST(YearPaneTest, NamesWeekdaysSoThatTheyDifferInEveryLanguage) {
  for (const char* name : {"C", "de_DE", "ar_EG"}) {
    YearWidget widget;
    const QLocale locale{QString::fromLatin1(name)};
    widget.setLocale(locale);
    widget.setLayoutDirection(locale.textDirection());
    widget.resize(784, 460);
    widget.Pane().SetDays(YearDays(SmallYear({"EUR"})));
    widget.show();
    // What stands above the days of the first week of May, whose cells tell where the columns are.
    const int first = platform::Date(2028, 5, 8).DayOfYear();
    std::set<std::vector<QRgb>> headers;
    for (int day = first; day < first + 7; ++day) {
      const QRect column = widget.Pane().RectOf({0, day});
      const QRect top = widget.Pane().RectOf({0, platform::Date(2028, 5, 1).DayOfYear()});
      const QRect header(column.left(), top.top() - column.height() * 2 / 3, column.width(),
                         column.height() * 2 / 3);
      const QImage picture =
          widget.Pane().viewport()->grab(header).toImage().convertToFormat(QImage::Format_RGB32);
      std::vector<QRgb> pixels;
      for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) pixels.push_back(picture.pixel(x, y));
      }
      headers.insert(pixels);
    }
    // In English two weekdays begin with T and two with S, but not with the same two letters.
    EXPECT_EQ(headers.size(), 7U) << name;
  }
}

TEST(YearPaneTest, ShowsNoMonthsWithoutACalendar) {
  YearWidget widget;
  widget.resize(784, 460);
  widget.show();
  const QImage picture = widget.Pane().viewport()->grab().toImage();
  for (int y = 0; y < picture.height(); y += 3) {
    for (int x = 0; x < picture.width(); x += 3) ASSERT_EQ(picture.pixel(x, y), picture.pixel(0, 0));
  }
}

TEST(YearPaneTest, ExplainsDaysAndMonthsByTooltips) {
  YearWidget widget;
  widget.setLocale(QLocale::c());
  widget.resize(1000, 700);
  widget.Pane().SetDays(YearDays(SmallYear({"EUR"})));
  widget.show();
  const auto tip_at = [&](const QPoint& point) {
    QHelpEvent event(QEvent::ToolTip, point, widget.Pane().viewport()->mapToGlobal(point));
    QCoreApplication::sendEvent(widget.Pane().viewport(), &event);
    return QToolTip::text().toStdString();
  };
  EXPECT_THAT(tip_at(widget.Pane().RectOf({0, 105}).center()),
              ::testing::HasSubstr("Friday 14 April 2028, Good Friday, closed"));
  const QRect first = widget.Pane().RectOf({0, 1});
  EXPECT_THAT(tip_at({first.center().x(), first.top() - first.height() / 4}),
              ::testing::HasSubstr("21 working days"));
  QToolTip::hideText();
}

}  // namespace
}  // namespace ferrowind::qt
