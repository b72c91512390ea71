#include "ferrowind/adapters/qt/year/year_layout.h"

#include <QFontMetricsF>
#include <algorithm>

#include "ferrowind/adapters/qt/values/qt_text.h"

namespace ferrowind::qt {

using year_engine::YearDays;

namespace {

constexpr qreal kSmallShare = 0.8;
constexpr qreal kLetterShare = 0.72;
constexpr int kMonths = 12;

QFont Scaled(const QFont& font, qreal share) {
  QFont scaled = font;
  if (font.pointSizeF() > 0) {
    scaled.setPointSizeF(font.pointSizeF() * share);
  } else {
    scaled.setPixelSize(std::max(1, qRound(font.pixelSize() * share)));
  }
  return scaled;
}

year_engine::Size LargestLetter(const YearDays& days, const QFont& font) {
  const QFontMetricsF metrics(font);
  qreal width = 0;
  for (const auto& entry : days.Content().legend)
    width = std::max(width, metrics.horizontalAdvance(ToQt(entry.look.letter)));
  return {width, metrics.capHeight()};
}

}  // namespace

YearMetrics::YearMetrics(const YearDays& days, const QFont& base, const QLocale& locale)
    : number_font(base),
      title_font(base),
      small_font(Scaled(base, kSmallShare)),
      letter_font(Scaled(base, kLetterShare)) {
  title_font.setBold(true);
  const QFontMetricsF number(number_font);
  const QFontMetricsF title(title_font);
  const QFontMetricsF small(small_font);
  const bool has_rows = days.CalendarCount() > 1;
  year_engine::YearFonts fonts;
  fonts.number_height = number.height();
  fonts.number_ascent = number.ascent();
  fonts.number_width = number.horizontalAdvance(QStringLiteral("30"));
  fonts.small_number_width = small.horizontalAdvance(QStringLiteral("30"));
  fonts.small_height = small.height();
  fonts.title_height = title.height();
  fonts.letter = LargestLetter(days, letter_font);
  fonts.blanks = small.horizontalAdvance(QStringLiteral("  "));
  if (has_rows) {
    for (int month = 1; month <= kMonths; ++month) {
      const QString name = locale.standaloneMonthName(month, QLocale::LongFormat);
      fonts.widest_caption = std::max(fonts.widest_caption, title.horizontalAdvance(name));
    }
    for (const auto& calendar : days.Content().calendars) {
      fonts.widest_caption = std::max(fonts.widest_caption, small.horizontalAdvance(ToQt(calendar.caption)));
      for (const auto& month : calendar.months)
        fonts.widest_note = std::max(fonts.widest_note, small.horizontalAdvance(ToQt(month.text)));
    }
  }
  measures = year_engine::YearMeasures(fonts, has_rows);
  line = measures.line;
  frame = measures.frame;
  number_width = measures.number_width;
  number_ascent = measures.number_ascent;
  letter_size = ToQt(measures.letter_size);
  mark_size = measures.mark_size;
  least_cell = ToQt(measures.least_cell);
  gap = measures.gap;
}

}  // namespace ferrowind::qt
