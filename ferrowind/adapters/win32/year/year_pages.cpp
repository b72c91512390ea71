#include "ferrowind/adapters/win32/year/year_pages.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/dates/date_words.h"
#include "ferrowind/adapters/win32/year/legend_painter.h"
#include "ferrowind/adapters/win32/year/year_painter.h"

namespace ferrowind::win32 {

using year_engine::Area;

namespace {

// In 96ths of an inch.
constexpr double kUnitsAnInch = 96;
constexpr double kGap = 12;
constexpr double kHeadingSize = 20;
constexpr double kTextSize = 10;
/// From the largest on, the first with which all months fit on a page; of the last, months go on the next.
constexpr std::array<double, 5> kMonthSizes = {12, 11, 10, 9, 8};
/// What the months take of a page that they share with the notes.
constexpr double kMonthsShare = 0.66;
/// The months of several calendars share theirs only while they can be read as easily.
constexpr double kLeastBesideNotes = 9;
constexpr int kNoteColumns = 2;
constexpr int kMonths = 12;
constexpr UINT kWrapped = DT_LEFT | DT_WORDBREAK | DT_NOPREFIX;

}  // namespace

/// Where the painting is: it goes down the page, and on to the next. Lengths are those of the device.
class YearPages::Flow {
 public:
  /// Without `new_page` there is one page, without an end. `head` stands above further pages, with their
  /// number.
  Flow(Sheet sheet, const std::wstring& head, std::function<Sheet()> new_page)
      : head_(head), new_page_(std::move(new_page)) {
    Begin(sheet);
  }

  [[nodiscard]] HDC Context() const { return sheet_.context; }
  [[nodiscard]] double Width() const { return static_cast<double>(sheet_.size.cx); }
  [[nodiscard]] double Height() const { return static_cast<double>(sheet_.size.cy); }
  [[nodiscard]] double Left() const { return static_cast<double>(sheet_.corner.x); }
  [[nodiscard]] double Top() const { return static_cast<double>(sheet_.corner.y); }
  [[nodiscard]] double Scaled(double units) const { return units * sheet_.dots_per_inch / kUnitsAnInch; }
  [[nodiscard]] UniqueFont Font(double units, bool is_bold = false) const {
    return MessageFont(std::lround(Scaled(units)), is_bold);
  }
  [[nodiscard]] const YearColors& Colors() const { return colors_; }
  /// What is left of the page.
  [[nodiscard]] double Room() const { return new_page_ ? Height() - y : kEndless; }
  /// What was laid out to fill the page may be higher by a rounding.
  [[nodiscard]] bool HasRoomFor(double height) const { return height <= Room() + 0.5; }
  /// Whether nothing stands on the page yet.
  [[nodiscard]] bool IsFresh() const { return y == start_; }

  void TurnPage() {
    Begin(new_page_());
    ++number_;
    const UniqueFont font = Font(kTextSize);
    const double height = LineHeight(Context(), font.get());
    Line({0, 0, Width() - 3 * height, height}, font.get(), head_, DT_LEFT | DT_END_ELLIPSIS);
    Line({0, 0, Width(), height}, font.get(), std::to_wstring(number_), DT_RIGHT);
    start_ = height + Scaled(kGap);
    y = start_;
  }
  /// How high a text is that wraps at that width.
  [[nodiscard]] double HeightOf(HFONT font, const std::wstring& text, double width) const {
    const Selected selected(Context(), font);
    RECT area{0, 0, std::lround(width), 0};
    DrawTextW(Context(), text.c_str(), static_cast<int>(text.size()), &area, kWrapped | DT_CALCRECT);
    return static_cast<double>(area.bottom);
  }
  /// A text that wraps, at a place of the page.
  void Wrapped(const Area& area, HFONT font, COLORREF color, const std::wstring& text) const {
    const Selected selected(Context(), font);
    SetTextColor(Context(), color);
    RECT room = PixelsOf({Left() + area.left, Top() + area.top, area.width, area.height});
    DrawTextW(Context(), text.c_str(), static_cast<int>(text.size()), &room, kWrapped | DT_NOCLIP);
  }

  double y = 0;

 private:
  static constexpr double kEndless = 1e6;

  void Begin(const Sheet& sheet) {
    sheet_ = sheet;
    SetBkMode(Context(), TRANSPARENT);
  }
  void Line(const Area& area, HFONT font, const std::wstring& text, UINT format) const {
    const Selected selected(Context(), font);
    SetTextColor(Context(), colors_.muted);
    RECT room = PixelsOf({Left() + area.left, Top() + area.top, area.width, area.height});
    DrawTextW(Context(), text.c_str(), static_cast<int>(text.size()), &room,
              DT_SINGLELINE | DT_NOPREFIX | format);
  }

  Sheet sheet_;
  YearColors colors_{Theme::OnPaper()};
  const std::wstring& head_;
  std::function<Sheet()> new_page_;
  int number_ = 1;
  /// Where the page begins below its head.
  double start_ = 0;
};

YearPages::YearPages(const year_engine::YearDays& days, std::wstring heading)
    : days_(days), heading_(std::move(heading)) {}

void YearPages::PaintOnPages(const Sheet& first, const std::function<Sheet()>& new_page) const {
  Flow flow(first, heading_, new_page);
  Paint(flow);
}

LONG YearPages::PaintOnRoll(const Sheet& sheet) const {
  Flow flow(sheet, heading_, {});
  Paint(flow);
  return std::lround(std::ceil(flow.y));
}

void YearPages::Paint(Flow& flow) const {
  const auto lines = [&](HFONT font, const std::wstring& text) {
    if (text.empty()) return;
    const double height = flow.HeightOf(font, text, flow.Width());
    flow.Wrapped({0, flow.y, flow.Width(), height}, font, flow.Colors().text, text);
    flow.y += height;
  };
  lines(flow.Font(kHeadingSize, true).get(), heading_);
  lines(flow.Font(kTextSize).get(), ToWide(days_.Content().summary));
  flow.y += flow.Scaled(kGap / 2);
  PaintMonths(flow);
  PaintNotes(flow);
}

void YearPages::PaintMonths(Flow& flow) const {
  const UniqueFont text_font = flow.Font(kTextSize);
  const auto legend_of = [&] {
    return LegendPainter(flow.Context(), text_font.get(), days_.Content().legend);
  };
  const double legend_height = legend_of().HeightFor(flow.Width()) + flow.Scaled(kGap);
  const bool has_rows = days_.CalendarCount() > 1;
  const year_engine::YearLayout::Reading reading{FirstWeekday(), false, false};
  UniqueFont font;
  std::optional<YearType> type;
  year_engine::YearLayout layout;
  const auto fits_share = [&](double share, double least_size) {
    const year_engine::Size room{flow.Width(), flow.Height() * share - flow.y - legend_height};
    for (const double size : kMonthSizes) {
      if (size < least_size) break;
      font = flow.Font(size);
      type.emplace(flow.Context(), font.get(), days_);
      layout = year_engine::YearLayout(days_, type->measures, reading, room);
      if (layout.FitsHeight()) return true;
    }
    return false;
  };
  const bool leaves_room = fits_share(kMonthsShare, has_rows ? kLeastBesideNotes : kMonthSizes.back());
  if (has_rows && !leaves_room) (void)fits_share(1, kMonthSizes.back());
  // Months stand in rows; a row goes onto the next page as a whole.
  double top = 0;
  double bottom = 0;
  const auto paint_part = [&] {
    const double y = flow.Top() + flow.y;
    YearPainter year(flow.Context(), {days_, *type, layout, flow.Colors()}, {flow.Left(), y - top});
    year.Paint(y + 1, y + bottom - top - 1, {});
    flow.y += bottom - top;
  };
  for (int month = 1; month <= kMonths; ++month) {
    const double month_bottom = layout.MonthArea(month).Bottom() + type->measures.gap;
    if (month_bottom > bottom && bottom > top && !flow.HasRoomFor(month_bottom - top)) {
      paint_part();
      flow.TurnPage();
      top = layout.MonthArea(month).top - type->measures.gap;
    }
    bottom = std::max(bottom, month_bottom);
  }
  paint_part();
  if (!flow.HasRoomFor(legend_height)) flow.TurnPage();
  legend_of().Paint({flow.Left(), flow.Top() + flow.y, flow.Width(), legend_height}, flow.Colors());
  flow.y += legend_height;
}

void YearPages::PaintNotes(Flow& flow) const {
  const auto& notes = days_.Content().notes;
  if (notes.empty()) return;
  const UniqueFont font = flow.Font(kTextSize);
  const double line = LineHeight(flow.Context(), font.get());
  const double gap = flow.Scaled(kGap);
  const double width = (flow.Width() - (kNoteColumns - 1) * 2 * gap) / kNoteColumns;
  double date_width = 0;
  for (int day = 1; day <= days_.DayCount(); ++day)
    date_width = std::max(date_width, TextWidth(flow.Context(), font.get(), LongDate(days_.DateOf(day))));
  date_width += gap;
  const auto height_of = [&](const platform::YearNote& note) {
    return flow.HeightOf(font.get(), ToWide(note.text), width - date_width) + line * 0.15;
  };
  double left_height = 0;
  for (const auto& note : notes) left_height += height_of(note);

  auto note = notes.begin();
  while (note != notes.end()) {
    // As long columns as needed for what is left, and as short as possible.
    const double top = flow.y;
    const bool is_fresh = flow.IsFresh();
    const double bottom = top + std::min(flow.Room(), left_height / kNoteColumns + line * 2);
    double lowest = top;
    for (int column = 0; column < kNoteColumns && note != notes.end(); ++column) {
      const double x = column * (width + 2 * gap);
      double y = top;
      while (note != notes.end() && (y + height_of(*note) <= bottom || (y == top && is_fresh))) {
        const double height = height_of(*note);
        flow.Wrapped({x, y, date_width, line}, font.get(), flow.Colors().muted,
                     LongDate(days_.DateOf(note->day_of_year)));
        flow.Wrapped({x + date_width, y, width - date_width, height}, font.get(), flow.Colors().text,
                     ToWide(note->text));
        y += height;
        left_height -= height;
        ++note;
      }
      lowest = std::max(lowest, y);
    }
    flow.y = lowest;
    if (note == notes.end()) break;
    flow.TurnPage();
  }
}

}  // namespace ferrowind::win32
