#include "ferrowind/adapters/qt/year/year_painter.h"

#include <QFontMetricsF>
#include <QSet>
#include <algorithm>

#include "ferrowind/adapters/qt/look/text_line.h"
#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/adapters/qt/year/day_marks.h"
#include "ferrowind/adapters/qt/year/day_places.h"

namespace ferrowind::qt {

using platform::Date;
using platform::DayLook;
using platform::DayShape;
using platform::DayTint;
using year_engine::YearPlace;

namespace {

/// What is higher than its room stands out of it above and below alike.
constexpr int kCentered = Qt::AlignCenter | Qt::TextSingleLine | Qt::TextDontClip;

int QtWeekday(int weekday) { return weekday == 1 ? 7 : weekday - 1; }

}  // namespace

YearPainter::YearPainter(const year_engine::YearDays& days, const YearMetrics& metrics,
                         const YearLayout& layout, const YearColors& colors, const QLocale& locale)
    : days_(days), metrics_(metrics), layout_(layout), colors_(colors), locale_(locale) {}

void YearPainter::Paint(QPainter& painter, const QRectF& exposed, const Cursor& cursor) const {
  painter.setRenderHint(QPainter::Antialiasing);
  for (int month = 1; month <= 12; ++month) {
    if (layout_.MonthRect(month).intersects(exposed)) PaintMonth(painter, month, exposed, cursor);
  }
}

void YearPainter::PaintMonth(QPainter& painter, int month, const QRectF& exposed,
                             const Cursor& cursor) const {
  PaintTitle(painter, month);
  if (layout_.HasRows()) {
    PaintDayNumbers(painter, month);
    PaintRowTexts(painter, month);
  } else {
    PaintWeekdays(painter, month);
  }
  const auto for_days = [&](const auto& paint) {
    for (int calendar = 0; calendar < days_.CalendarCount(); ++calendar) {
      for (int day = FirstDayOf(month); day <= LastDayOf(month); ++day) {
        const YearPlace place{calendar, day};
        if (layout_.CellRect(place).intersects(exposed)) paint(place);
      }
    }
  };
  for_days([&](const YearPlace& place) {
    PaintGround(painter, place, cursor.days != nullptr && cursor.days->IsSelected(place));
  });
  // Below the texts, which it would cut otherwise.
  const auto& today = days_.Content().today;
  if (cursor.days != nullptr && today) {
    for_days([&](const YearPlace& place) {
      if (place.day == *today) PaintToday(painter, place);
    });
  }
  if (layout_.HasRows()) {
    painter.setFont(metrics_.small_font);
    for_days([&](const YearPlace& place) { PaintInRow(painter, place); });
  } else {
    for_days([&](const YearPlace& place) { PaintDay(painter, place); });
  }
  if (cursor.days == nullptr) return;
  const auto current = cursor.days->Current();
  if (!current || current->day < FirstDayOf(month) || current->day > LastDayOf(month)) return;
  PaintCurrent(painter, *current, cursor.has_focus);
}

// Texts around the days
// ------------------------------------------------------------------------------------------------

void YearPainter::PaintTitle(QPainter& painter, int month) const {
  const QRectF area = layout_.TitleRect(month);
  const QString name = locale_.standaloneMonthName(month, QLocale::LongFormat);
  painter.setFont(metrics_.title_font);
  painter.setPen(colors_.text);
  DrawTextLine(painter, area, Qt::AlignLeading | Qt::AlignVCenter, name);
  if (layout_.HasRows() || days_.CalendarCount() == 0) return;
  const auto& note = Calendar(0).months[static_cast<std::size_t>(month) - 1];
  const QFontMetricsF metrics(metrics_.small_font);
  const qreal free =
      area.width() - QFontMetricsF(metrics_.title_font).horizontalAdvance(name) - metrics_.gap / 2;
  painter.setFont(metrics_.small_font);
  painter.setPen(colors_.muted);
  DrawTextLine(painter, area, Qt::AlignTrailing | Qt::AlignVCenter,
               metrics.elidedText(ToQt(note.text), Qt::ElideRight, free));
}

void YearPainter::PaintWeekdays(QPainter& painter, int month) const {
  painter.setFont(metrics_.small_font);
  painter.setPen(colors_.muted);
  const QStringList names = WeekdayNames();
  for (int column = 0; column < 7; ++column) {
    // Above the numbers, which need not stand in the middle of their cells.
    QRectF area = layout_.HeaderRect(month, column);
    area.moveCenter({DayPlaces(metrics_, area).number.center().x(), area.center().y()});
    painter.drawText(area, kCentered, names[column]);
  }
}

QStringList YearPainter::WeekdayNames() const {
  const QFontMetricsF metrics(metrics_.small_font);
  const qreal room = layout_.HeaderRect(1, 0).width();
  const auto named = [&](QLocale::FormatType format) {
    QStringList names;
    for (int column = 0; column < 7; ++column)
      names.append(locale_.standaloneDayName(QtWeekday(layout_.WeekdayOf(column)), format));
    return names;
  };
  const auto fit = [&](const QStringList& names) {
    return std::all_of(names.begin(), names.end(),
                       [&](const QString& name) { return metrics.horizontalAdvance(name) <= room; });
  };
  const QStringList names = named(QLocale::ShortFormat);
  if (fit(names)) return names;
  // Two letters tell the weekdays apart in many languages, but not in those where all begin with an article.
  QStringList starts;
  for (const QString& name : names) starts.append(name.left(2));
  const bool are_distinct = QSet<QString>(starts.begin(), starts.end()).size() == starts.size();
  return are_distinct && fit(starts) ? starts : named(QLocale::NarrowFormat);
}

void YearPainter::PaintDayNumbers(QPainter& painter, int month) const {
  painter.setFont(metrics_.small_font);
  const int first = FirstDayOf(month);
  for (int day = first; day <= LastDayOf(month); ++day) {
    const int column = day - first;
    painter.setPen(colors_.text);
    painter.drawText(layout_.NumberRect(month, column), Qt::AlignCenter | Qt::TextSingleLine,
                     locale_.toString(column + 1));
    painter.setPen(colors_.muted);
    painter.drawText(
        layout_.HeaderRect(month, column), Qt::AlignCenter | Qt::TextSingleLine,
        locale_.standaloneDayName(QtWeekday(days_.DateOf(day).Weekday()), QLocale::NarrowFormat));
  }
}

void YearPainter::PaintRowTexts(QPainter& painter, int month) const {
  painter.setFont(metrics_.small_font);
  for (int calendar = 0; calendar < days_.CalendarCount(); ++calendar) {
    painter.setPen(colors_.text);
    DrawTextLine(painter, layout_.CaptionRect(month, calendar), Qt::AlignLeading | Qt::AlignVCenter,
                 ToQt(Calendar(calendar).caption));
    painter.setPen(colors_.muted);
    DrawTextLine(painter, layout_.NoteRect(month, calendar), Qt::AlignTrailing | Qt::AlignVCenter,
                 ToQt(Calendar(calendar).months[static_cast<std::size_t>(month) - 1].text));
  }
}

// Days
// ------------------------------------------------------------------------------------------------

void YearPainter::PaintGround(QPainter& painter, const YearPlace& place, bool is_selected) const {
  const DayLook& look = days_.LookOf(place.calendar, place.day);
  const QRectF cell = layout_.CellRect(place);
  const YearColors::Tint& tint = colors_.Of(look.tint);
  if (layout_.HasRows()) {
    // Days of a row touch, so that a row is one line to the eye.
    painter.fillRect(cell, is_selected ? tint.selected_ground : tint.ground);
    painter.setPen(QPen(colors_.line, metrics_.line));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(cell);
  } else if (look.tint != DayTint::kNone || is_selected) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(is_selected ? tint.selected_ground : tint.ground);
    const qreal inset = is_selected ? 0 : metrics_.line / 2;
    painter.drawRect(cell.adjusted(inset, inset, -inset, -inset));
  }
  if (look.shape == DayShape::kHatching) DrawHatching(painter, cell, tint.mark);
  if (!is_selected) return;
  const qreal inset = metrics_.line / 2;
  painter.setPen(QPen(colors_.accent, metrics_.line));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(cell.adjusted(inset, inset, -inset, -inset));
}

void YearPainter::PaintDay(QPainter& painter, const YearPlace& place) const {
  const DayLook& look = days_.LookOf(place.calendar, place.day);
  const QRectF cell = layout_.CellRect(place);
  const QColor& mark = colors_.Of(look.tint).mark;
  const DayPlaces places(metrics_, cell);
  painter.setFont(metrics_.number_font);
  painter.setPen(colors_.text);
  painter.drawText(places.number, kCentered, locale_.toString(days_.DateOf(place.day).Day()));
  if (look.shape == DayShape::kBar) {
    DrawDayMark(painter, places.bar, look.shape, mark);
  } else {
    DrawDayMark(painter, places.mark, look.shape, mark);
  }
  if (look.letter.empty()) return;
  painter.setFont(metrics_.letter_font);
  painter.setPen(mark);
  painter.drawText(places.letter, kCentered, ToQt(look.letter));
}

void YearPainter::PaintInRow(QPainter& painter, const YearPlace& place) const {
  const DayLook& look = days_.LookOf(place.calendar, place.day);
  const QRectF cell = layout_.CellRect(place);
  const QColor& mark = colors_.Of(look.tint).mark;
  if (look.letter.empty()) {
    const qreal size = std::min(cell.width(), cell.height()) * (look.shape == DayShape::kBar ? 0.22 : 0.35);
    DrawDayMark(painter, {cell.center().x() - size / 2, cell.center().y() - size / 2, size, size}, look.shape,
                mark);
    return;
  }
  painter.setPen(mark);
  painter.drawText(cell, Qt::AlignCenter | Qt::TextSingleLine, ToQt(look.letter));
}

void YearPainter::PaintToday(QPainter& painter, const YearPlace& place) const {
  const QRectF cell = layout_.CellRect(place);
  const qreal size = std::min(cell.width(), cell.height());
  QPointF center = cell.center();
  qreal width = std::min(cell.width(), size * 1.35);
  if (!layout_.HasRows()) {
    // Around the number, up to where the letter begins.
    const DayPlaces places(metrics_, cell);
    const qreal letter_left = places.letter.center().x() - metrics_.letter_size.width() / 2;
    center.setX(places.number.center().x());
    width = std::min(width, 2 * (letter_left - center.x() + metrics_.line));
  }
  QRectF ring(0, 0, width, size);
  ring.moveCenter(center);
  const qreal inset = metrics_.line;
  painter.setPen(QPen(colors_.accent, 1.6 * metrics_.line));
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(ring.adjusted(inset, inset, -inset, -inset));
}

void YearPainter::PaintCurrent(QPainter& painter, const YearPlace& place, bool has_focus) const {
  const qreal width = has_focus ? metrics_.frame : metrics_.line;
  const qreal inset = width / 2;
  painter.setPen(QPen(has_focus ? colors_.text : colors_.accent, width));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(layout_.CellRect(place).adjusted(inset, inset, -inset, -inset));
}

// Parts
// ------------------------------------------------------------------------------------------------

const platform::YearCalendar& YearPainter::Calendar(int position) const {
  return days_.Content().calendars[static_cast<std::size_t>(position)];
}

int YearPainter::FirstDayOf(int month) const { return Date(days_.Year(), month, 1).DayOfYear(); }

int YearPainter::LastDayOf(int month) const {
  return month == 12 ? days_.DayCount() : FirstDayOf(month + 1) - 1;
}

}  // namespace ferrowind::qt
