#include "ferrowind/adapters/win32/year/year_painter.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/dates/date_words.h"

namespace ferrowind::win32 {

using platform::DayLook;
using platform::DayShape;
using platform::DayTint;
using year_engine::Area;
using year_engine::DayPlaces;
using year_engine::YearPlace;

namespace {

constexpr int kMonths = 12;
constexpr int kWeek = 7;
/// As strong as leaves the number above it readable.
constexpr double kHatchingShare = 0.4;
/// What is higher than its room stands out of it above and below alike.
constexpr UINT kOneLine = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX;
constexpr UINT kCentered = kOneLine | DT_CENTER | DT_NOCLIP;

/// The names of weekdays that fit above the days and tell them apart.
std::array<std::wstring, 7> WeekdaysWithin(HDC context, HFONT font, const year_engine::YearLayout& layout) {
  const double room = layout.HeaderArea(1, 0).width;
  std::array<std::wstring, 7> names;
  std::array<std::wstring, 7> starts;
  bool fits = true;
  bool starts_fit = true;
  for (std::size_t column = 0; column < names.size(); ++column) {
    names[column] = WeekdayName(layout.WeekdayOf(static_cast<int>(column)), false);
    starts[column] = names[column].substr(0, 2);
    fits = fits && TextWidth(context, font, names[column]) <= room;
    starts_fit = starts_fit && TextWidth(context, font, starts[column]) <= room;
  }
  if (fits) return names;
  // Two letters tell the weekdays apart in many languages, but not in those where all begin with an article.
  if (starts_fit && std::set(starts.begin(), starts.end()).size() == starts.size()) return starts;
  for (std::size_t column = 0; column < names.size(); ++column)
    names[column] = WeekdayName(layout.WeekdayOf(static_cast<int>(column)), true);
  return names;
}

}  // namespace

YearPainter::YearPainter(HDC context, const Subject& subject, const year_engine::Spot& corner)
    : context_(context),
      days_(subject.days),
      type_(subject.type),
      layout_(subject.layout),
      colors_(subject.colors),
      corner_(corner),
      shapes_(context),
      weekdays_(WeekdaysWithin(context, subject.type.small.get(), subject.layout)) {
  SetBkMode(context_, TRANSPARENT);
}

void YearPainter::Paint(double top, double bottom, const Cursor& cursor) {
  for (int month = 1; month <= kMonths; ++month) {
    const Area area = Moved(layout_.MonthArea(month));
    if (area.Bottom() >= top && area.top <= bottom) PaintMonth(month, cursor);
  }
}

void YearPainter::PaintMonth(int month, const Cursor& cursor) {
  PaintTitle(month);
  if (layout_.HasRows()) {
    PaintDayNumbers(month);
    PaintRowTexts(month);
  } else {
    PaintWeekdays(month);
  }
  const auto for_days = [&](const auto& paint) {
    for (int calendar = 0; calendar < days_.CalendarCount(); ++calendar) {
      for (int day = layout_.FirstDayOf(month); day <= layout_.LastDayOf(month); ++day)
        paint(YearPlace{calendar, day});
    }
  };
  const auto is_selected = [&](const YearPlace& place) {
    return cursor.days != nullptr && cursor.days->IsSelected(place);
  };
  for_days([&](const YearPlace& place) { PaintGround(place, is_selected(place)); });
  // Below the texts, which it would cut otherwise.
  const auto& today = days_.Content().today;
  if (cursor.days != nullptr && today) {
    for_days([&](const YearPlace& place) {
      if (place.day == *today) PaintToday(place);
    });
  }
  for_days([&](const YearPlace& place) {
    if (layout_.HasRows()) {
      PaintInRow(place, is_selected(place));
    } else {
      PaintDay(place, is_selected(place));
    }
  });
  const auto current = cursor.days != nullptr ? cursor.days->Current() : std::nullopt;
  if (!current || current->day < layout_.FirstDayOf(month) || current->day > layout_.LastDayOf(month)) return;
  PaintCurrent(*current, cursor.has_focus);
}

// Texts around the days
// ------------------------------------------------------------------------------------------------

void YearPainter::PaintTitle(int month) {
  const Area area = Moved(layout_.TitleArea(month));
  const std::wstring name = MonthName(month);
  Text(area, type_.title.get(), colors_.text, name, kOneLine | DT_LEFT);
  if (layout_.HasRows() || days_.CalendarCount() == 0) return;
  const auto& note = days_.Content().calendars[0].months[static_cast<std::size_t>(month) - 1];
  Area beside = area;
  const double taken = TextWidth(context_, type_.title.get(), name) + type_.measures.gap / 2;
  beside.left += taken;
  beside.width -= taken;
  Text(beside, type_.small.get(), colors_.muted, ToWide(note.text), kOneLine | DT_RIGHT | DT_END_ELLIPSIS);
}

void YearPainter::PaintWeekdays(int month) {
  for (int column = 0; column < kWeek; ++column) {
    // Above the numbers, which need not stand in the middle of their cells.
    Area area = Moved(layout_.HeaderArea(month, column));
    area.left += DayPlaces(type_.measures, area).number.Middle().x - area.Middle().x;
    Text(area, type_.small.get(), colors_.muted, weekdays_[static_cast<std::size_t>(column)], kCentered);
  }
}

void YearPainter::PaintDayNumbers(int month) {
  const int first = layout_.FirstDayOf(month);
  for (int day = first; day <= layout_.LastDayOf(month); ++day) {
    const int column = day - first;
    Text(Moved(layout_.NumberArea(month, column)), type_.small.get(), colors_.text,
         std::to_wstring(column + 1), kCentered);
    Text(Moved(layout_.HeaderArea(month, column)), type_.small.get(), colors_.muted,
         WeekdayName(days_.DateOf(day).Weekday(), true).substr(0, 1), kCentered);
  }
}

void YearPainter::PaintRowTexts(int month) {
  for (int calendar = 0; calendar < days_.CalendarCount(); ++calendar) {
    const auto& shown = days_.Content().calendars[static_cast<std::size_t>(calendar)];
    Text(Moved(layout_.CaptionArea(month, calendar)), type_.small.get(), colors_.text, ToWide(shown.caption),
         kOneLine | DT_LEFT | DT_END_ELLIPSIS);
    Text(Moved(layout_.NoteArea(month, calendar)), type_.small.get(), colors_.muted,
         ToWide(shown.months[static_cast<std::size_t>(month) - 1].text), kOneLine | DT_RIGHT);
  }
}

// Days
// ------------------------------------------------------------------------------------------------

void YearPainter::PaintGround(const YearPlace& place, bool is_selected) {
  const DayLook& look = days_.LookOf(place.calendar, place.day);
  const RECT cell = PixelsOf(Moved(layout_.CellArea(place)));
  const YearColors::Tint& tint = colors_.Of(look.tint);
  const LONG line = std::max(1L, std::lround(type_.measures.line));
  const COLORREF ground = is_selected ? tint.selected_ground : tint.ground;
  // Days of a row touch, so that a row is one line to the eye.
  if (layout_.HasRows()) {
    Fill(cell, ground);
    Frame({cell.left, cell.top, cell.right + line, cell.bottom + line}, line, colors_.line);
  } else if (look.tint != DayTint::kNone || is_selected) {
    Fill(cell, ground);
  }
  if (look.shape == DayShape::kHatching)
    DrawHatching(shapes_, cell, Blend(ground, is_selected ? tint.selected_mark : tint.mark, kHatchingShare));
  if (is_selected) Frame(cell, line, colors_.accent);
}

void YearPainter::PaintDay(const YearPlace& place, bool is_selected) {
  const DayLook& look = days_.LookOf(place.calendar, place.day);
  const YearColors::Tint& tint = colors_.Of(look.tint);
  const COLORREF mark = is_selected ? tint.selected_mark : tint.mark;
  const DayPlaces places(type_.measures, Moved(layout_.CellArea(place)));
  Text(places.number, type_.number, is_selected ? colors_.selected_text : colors_.text,
       std::to_wstring(days_.DateOf(place.day).Day()), kCentered);
  DrawDayMark(shapes_, look.shape == DayShape::kBar ? places.bar : places.mark, look.shape, mark);
  if (!look.letter.empty()) Text(places.letter, type_.letter.get(), mark, ToWide(look.letter), kCentered);
}

void YearPainter::PaintInRow(const YearPlace& place, bool is_selected) {
  const DayLook& look = days_.LookOf(place.calendar, place.day);
  const YearColors::Tint& tint = colors_.Of(look.tint);
  const COLORREF mark = is_selected ? tint.selected_mark : tint.mark;
  const Area cell = Moved(layout_.CellArea(place));
  if (!look.letter.empty()) {
    Text(cell, type_.small.get(), mark, ToWide(look.letter), kCentered);
    return;
  }
  const double size = std::min(cell.width, cell.height) * (look.shape == DayShape::kBar ? 0.22 : 0.35);
  DrawDayMark(shapes_, {cell.Middle().x - size / 2, cell.Middle().y - size / 2, size, size}, look.shape,
              mark);
}

void YearPainter::PaintToday(const YearPlace& place) {
  const Area cell = Moved(layout_.CellArea(place));
  const double size = std::min(cell.width, cell.height);
  double x = cell.Middle().x;
  double width = std::min(cell.width, size * 1.35);
  if (!layout_.HasRows()) {
    // Around the number, up to where the letter begins.
    const DayPlaces places(type_.measures, cell);
    const double letter_left = places.letter.Middle().x - type_.measures.letter_size.width / 2;
    x = places.number.Middle().x;
    width = std::min(width, 2 * (letter_left - x + type_.measures.line));
  }
  const double inset = type_.measures.line;
  shapes_.Ring({x, cell.Middle().y}, width / 2 - inset, size / 2 - inset, 1.6 * type_.measures.line,
               colors_.accent);
}

void YearPainter::PaintCurrent(const YearPlace& place, bool has_focus) {
  const LONG width = std::max(1L, std::lround(has_focus ? type_.measures.frame : type_.measures.line));
  Frame(PixelsOf(Moved(layout_.CellArea(place))), width, has_focus ? colors_.text : colors_.accent);
}

// Parts
// ------------------------------------------------------------------------------------------------

Area YearPainter::Moved(const Area& area) const {
  return {area.left + corner_.x, area.top + corner_.y, area.width, area.height};
}

void YearPainter::Text(const Area& area, HFONT font, COLORREF color, const std::wstring& text,
                       UINT format) const {
  const Selected selected(context_, font);
  SetTextColor(context_, color);
  RECT room = PixelsOf(area);
  DrawTextW(context_, text.c_str(), static_cast<int>(text.size()), &room, format);
}

void YearPainter::Fill(const RECT& area, COLORREF color) const {
  SetDCBrushColor(context_, color);
  FillRect(context_, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

void YearPainter::Frame(const RECT& area, LONG width, COLORREF color) const {
  Fill({area.left, area.top, area.right, area.top + width}, color);
  Fill({area.left, area.bottom - width, area.right, area.bottom}, color);
  Fill({area.left, area.top, area.left + width, area.bottom}, color);
  Fill({area.right - width, area.top, area.right, area.bottom}, color);
}

}  // namespace ferrowind::win32
