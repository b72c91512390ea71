// How a year is laid out, scrolled and painted.
#include <algorithm>
#include <cmath>

#include "ferrowind/adapters/win32/base/buffered_paint.h"
#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/controls/while_true.h"
#include "ferrowind/adapters/win32/dates/date_words.h"
#include "ferrowind/adapters/win32/year/legend_painter.h"
#include "ferrowind/adapters/win32/year/year_painter.h"
#include "ferrowind/adapters/win32/year/year_texts.h"
#include "ferrowind/adapters/win32/year/year_view.h"

namespace ferrowind::win32 {

using year_engine::Area;
using year_engine::YearPlace;

namespace {

/// Around the legend, a share of the height of a line.
constexpr double kLegendMargin = 0.5;

}  // namespace

SIZE Win32YearView::RoomWithoutBars() const {
  RECT room{};
  GetClientRect(Handle(), &room);
  const LONG_PTR style = GetWindowLongPtrW(Handle(), GWL_STYLE);
  if ((style & WS_VSCROLL) != 0) room.right += GetSystemMetricsForDpi(SM_CXVSCROLL, DotsPerInch());
  if ((style & WS_HSCROLL) != 0) room.bottom += GetSystemMetricsForDpi(SM_CYHSCROLL, DotsPerInch());
  return {room.right, room.bottom};
}

void Win32YearView::Arrange() {
  // Scroll bars that come or go change the room once more.
  if (is_arranging_ || Font() == nullptr) return;
  const WhileTrue arranging(is_arranging_);
  const WindowContext context(Handle());
  const YearType type(context.Get(), Font(), days_);
  const SIZE whole = RoomWithoutBars();
  const LegendPainter legend(context.Get(), Font(), days_.Content().legend);
  const double margin = LineHeight(context.Get(), Font()) * kLegendMargin;
  const double legend_height = legend.HeightFor(static_cast<double>(whole.cx) - 2 * margin);
  room_ = whole;
  if (legend_height > 0)
    room_.cy = std::max<LONG>(0, room_.cy - std::lround(std::ceil(legend_height + margin)));
  const year_engine::YearLayout::Reading reading{FirstWeekday(), false, true};
  const auto lay_out = [&] {
    layout_ = year_engine::YearLayout(days_, type.measures, reading,
                                      {static_cast<double>(room_.cx), static_cast<double>(room_.cy)});
  };
  lay_out();
  // Only one that has to be scrolled loses width to the bar.
  if (std::lround(layout_.WholeSize().height) > room_.cy) {
    room_.cx = std::max<LONG>(0, room_.cx - GetSystemMetricsForDpi(SM_CXVSCROLL, DotsPerInch()));
    lay_out();
  }
  if (std::lround(layout_.WholeSize().width) > room_.cx)
    room_.cy = std::max<LONG>(0, room_.cy - GetSystemMetricsForDpi(SM_CYHSCROLL, DotsPerInch()));
  ShowScrollBars();
  if (follows_current_ && cursor_.Current()) BringIntoSight(*cursor_.Current());
  Repaint();
}

void Win32YearView::ShowScrollBars() {
  const auto show = [this](int bar, LONG length, LONG page, LONG& place) {
    place = std::clamp<LONG>(place, 0, std::max<LONG>(0, length - page));
    const bool is_needed = length > page;
    ::ShowScrollBar(Handle(), bar, is_needed ? TRUE : FALSE);
    if (is_needed)
      SetScrollBar(Handle(), bar, static_cast<int>(length), static_cast<int>(page), static_cast<int>(place));
  };
  show(SB_VERT, std::lround(layout_.WholeSize().height), room_.cy, scrolled_y_);
  show(SB_HORZ, std::lround(layout_.WholeSize().width), room_.cx, scrolled_x_);
}

void Win32YearView::Scroll(int bar, WORD request) {
  const auto line = static_cast<int>(layout_.CellArea({0, 1}).height);
  const auto place = ScrolledTo(Handle(), bar, request, line);
  if (!place) return;
  follows_current_ = false;
  ScrollTo(bar, *place);
}

void Win32YearView::ScrollTo(int bar, LONG place) {
  (bar == SB_VERT ? scrolled_y_ : scrolled_x_) = place;
  const WhileTrue arranging(is_arranging_);
  ShowScrollBars();
  Repaint();
}

RECT Win32YearView::AreaOf(const YearPlace& place) const {
  RECT area = PixelsOf(layout_.CellArea(place));
  OffsetRect(&area, -static_cast<int>(scrolled_x_), -static_cast<int>(scrolled_y_));
  return area;
}

std::optional<YearPlace> Win32YearView::PlaceAt(POINT place) const {
  if (place.y >= room_.cy) return std::nullopt;
  return layout_.PlaceAt(
      {static_cast<double>(place.x + scrolled_x_), static_cast<double>(place.y + scrolled_y_)});
}

void Win32YearView::BringIntoSight(const YearPlace& place) {
  follows_current_ = true;
  const RECT cell = AreaOf(place);
  // With some of what stands around it, such as the names of the weekdays.
  const LONG margin = (cell.bottom - cell.top) * 3 / 2;
  const auto into_sight = [this](int bar, LONG now, LONG from, LONG to, LONG length) {
    // What does not fit as a whole begins where the sight begins.
    if (from < 0 || to - from > length) {
      ScrollTo(bar, now + from);
    } else if (to > length) {
      ScrollTo(bar, now + to - length);
    }
  };
  into_sight(SB_VERT, scrolled_y_, cell.top - margin, cell.bottom + margin, room_.cy);
  into_sight(SB_HORZ, scrolled_x_, cell.left, cell.right, room_.cx);
}

void Win32YearView::Paint() {
  const BufferedPaint paint(Handle());
  const HDC context = paint.Context();
  if (context == nullptr) return;
  const YearColors colors(Colors());
  const auto fill = [&](const RECT& area, COLORREF color) {
    SetDCBrushColor(context, color);
    FillRect(context, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
  };
  fill(paint.Room(), colors.base);
  // Months without a day would look like a year of which all days are gone.
  if (days_.CalendarCount() == 0) return;
  const YearType type(context, Font(), days_);
  YearPainter year(context, {days_, type, layout_, colors},
                   {-static_cast<double>(scrolled_x_), -static_cast<double>(scrolled_y_)});
  year.Paint(0, static_cast<double>(room_.cy), {&cursor_, GetFocus() == Handle()});
  fill({0, room_.cy, paint.Room().right, paint.Room().bottom}, colors.base);
  const LegendPainter legend(context, Font(), days_.Content().legend);
  const double margin = LineHeight(context, Font()) * kLegendMargin;
  const double width = static_cast<double>(RoomWithoutBars().cx) - 2 * margin;
  legend.Paint({margin, static_cast<double>(room_.cy), width, 0}, colors);
}

void Win32YearView::ShowTipAt(POINT place) {
  std::wstring tip;
  if (const auto day = PlaceAt(place)) {
    tip = TextOfDay(days_, *day);
  } else if (const auto month = layout_.MonthAt(
                 {static_cast<double>(place.x + scrolled_x_), static_cast<double>(place.y + scrolled_y_)})) {
    for (const auto& calendar : days_.Content().calendars) {
      const std::wstring text = ToWide(calendar.months[static_cast<std::size_t>(*month) - 1].description);
      if (text.empty()) continue;
      if (!tip.empty()) tip += L"; ";
      tip += days_.CalendarCount() == 1 ? text : ToWide(calendar.caption) + L": " + text;
    }
  }
  const std::string said = FromWide(tip);
  if (said == tip_) return;
  tip_ = said;
  Host().SetTip(Handle(), tip_);
}

}  // namespace ferrowind::win32
