#include "ferrowind/adapters/win32/year/year_fonts.h"

#include <algorithm>
#include <cmath>

#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/dates/date_words.h"

namespace ferrowind::win32 {

using year_engine::YearDays;

namespace {

constexpr double kSmallShare = 0.8;
constexpr double kLetterShare = 0.72;
constexpr int kMonths = 12;

UniqueFont Variant(HFONT base, double share, bool is_bold) {
  LOGFONTW design{};
  GetObjectW(base, sizeof design, &design);
  design.lfHeight = std::lround(static_cast<double>(design.lfHeight) * share);
  if (is_bold) design.lfWeight = FW_BOLD;
  return UniqueFont(CreateFontIndirectW(&design));
}

TEXTMETRICW MetricsOf(HDC context, HFONT font) {
  const Selected selected(context, font);
  TEXTMETRICW metrics{};
  GetTextMetricsW(context, &metrics);
  return metrics;
}

year_engine::YearFonts FontsOf(HDC context, const YearType& type, const YearDays& days) {
  const TEXTMETRICW number = MetricsOf(context, type.number);
  const TEXTMETRICW letter = MetricsOf(context, type.letter.get());
  year_engine::YearFonts fonts;
  fonts.number_height = static_cast<double>(number.tmHeight);
  fonts.number_ascent = static_cast<double>(number.tmAscent);
  fonts.number_width = TextWidth(context, type.number, L"30");
  fonts.small_number_width = TextWidth(context, type.small.get(), L"30");
  fonts.small_height = LineHeight(context, type.small.get());
  fonts.title_height = LineHeight(context, type.title.get());
  fonts.blanks = TextWidth(context, type.small.get(), L"  ");
  fonts.letter.height = static_cast<double>(letter.tmAscent - letter.tmInternalLeading);
  for (const auto& entry : days.Content().legend) {
    const double width = TextWidth(context, type.letter.get(), ToWide(entry.look.letter));
    fonts.letter.width = std::max(fonts.letter.width, width);
  }
  if (days.CalendarCount() <= 1) return fonts;
  const auto widen = [&](double& widest, HFONT font, const std::wstring& text) {
    widest = std::max(widest, TextWidth(context, font, text));
  };
  for (int month = 1; month <= kMonths; ++month)
    widen(fonts.widest_caption, type.title.get(), MonthName(month));
  for (const auto& calendar : days.Content().calendars) {
    widen(fonts.widest_caption, type.small.get(), ToWide(calendar.caption));
    for (const auto& month : calendar.months) widen(fonts.widest_note, type.small.get(), ToWide(month.text));
  }
  return fonts;
}

}  // namespace

YearType::YearType(HDC context, HFONT base, const YearDays& days)
    : number(base),
      title(Variant(base, 1, true)),
      small(Variant(base, kSmallShare, false)),
      letter(Variant(base, kLetterShare, false)),
      measures(FontsOf(context, *this, days), days.CalendarCount() > 1) {}

UniqueFont MessageFont(LONG pixels, bool is_bold) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  metrics.lfMessageFont.lfHeight = -pixels;
  if (is_bold) metrics.lfMessageFont.lfWeight = FW_BOLD;
  return UniqueFont(CreateFontIndirectW(&metrics.lfMessageFont));
}

double TextWidth(HDC context, HFONT font, const std::wstring& text) {
  const Selected selected(context, font);
  SIZE size{};
  GetTextExtentPoint32W(context, text.c_str(), static_cast<int>(text.size()), &size);
  return static_cast<double>(size.cx);
}

double LineHeight(HDC context, HFONT font) { return static_cast<double>(MetricsOf(context, font).tmHeight); }

RECT PixelsOf(const year_engine::Area& area) {
  return {std::lround(area.left), std::lround(area.top), std::lround(area.Right()),
          std::lround(area.Bottom())};
}

}  // namespace ferrowind::win32
