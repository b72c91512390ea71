#include "ferrowind/adapters/qt/year/year_painter.h"

#include <QFontMetricsF>
#include <QSet>
#include <algorithm>

#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/adapters/qt/year/day_marks.h"

namespace ferrowind::qt {

using platform::Date;
using platform::DayLook;
using platform::DayShape;
using platform::DayTint;
using year_engine::YearPlace;

namespace {

/// The share of a number's height that a mark beside it has.
constexpr qreal kMarkShare = 0.36;

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
  if (layout_.HasRows()) {
    painter.setFont(metrics_.small_font);
    for_days([&](const YearPlace& place) { PaintInRow(painter, place); });
  } else {
    for_days([&](const YearPlace& place) { PaintDay(painter, place); });
  }
  // Rings and frames last, since they reach over the neighbours.
  const auto& today = days_.Content().today;
  if (cursor.days == nullptr) return;
  if (today) {
    for_days([&](const YearPlace& place) {
      if (place.day == *today) PaintToday(painter, place);
    });
  }
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
  painter.drawText(area, Qt::AlignLeading | Qt::AlignVCenter | Qt::TextSingleLine, name);
  if (layout_.HasRows() || days_.CalendarCount() == 0) return;
  const auto& note = Calendar(0).months[static_cast<std::size_t>(month) - 1];
  const QFontMetricsF metrics(metrics_.small_font);
  const qreal free =
      area.width() - QFontMetricsF(metrics_.title_font).horizontalAdvance(name) - metrics_.gap / 2;
  painter.setFont(metrics_.small_font);
  painter.setPen(colors_.muted);
  painter.drawText(area, Qt::AlignTrailing | Qt::AlignVCenter | Qt::TextSingleLine,
                   metrics.elidedText(ToQt(note.text), Qt::ElideRight, free));
}

void YearPainter::PaintWeekdays(QPainter& painter, int month) const {
  painter.setFont(metrics_.small_font);
  painter.setPen(colors_.muted);
  const QStringList names = WeekdayNames();
  for (int column = 0; column < 7; ++column) {
    painter.drawText(layout_.HeaderRect(month, column), Qt::AlignCenter | Qt::TextSingleLine, names[column]);
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
    painter.drawText(layout_.CaptionRect(month, calendar),
                     Qt::AlignLeading | Qt::AlignVCenter | Qt::TextSingleLine,
                     ToQt(Calendar(calendar).caption));
    painter.setPen(colors_.muted);
    painter.drawText(layout_.NoteRect(month, calendar),
                     Qt::AlignTrailing | Qt::AlignVCenter | Qt::TextSingleLine,
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
    painter.setPen(QPen(colors_.line, Line()));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(cell);
  } else if (look.tint != DayTint::kNone || is_selected) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(is_selected ? tint.selected_ground : tint.ground);
    const qreal inset = is_selected ? 0 : Line() / 2;
    painter.drawRect(cell.adjusted(inset, inset, -inset, -inset));
  }
  if (look.shape == DayShape::kHatching) DrawHatching(painter, cell, tint.mark);
  if (!is_selected) return;
  const qreal inset = Line() / 2;
  painter.setPen(QPen(colors_.accent, Line()));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(cell.adjusted(inset, inset, -inset, -inset));
}

void YearPainter::PaintDay(QPainter& painter, const YearPlace& place) const {
  const DayLook& look = days_.LookOf(place.calendar, place.day);
  const QRectF cell = layout_.CellRect(place);
  const QColor& mark = colors_.Of(look.tint).mark;
  const QFontMetricsF number(metrics_.number_font);
  painter.setFont(metrics_.number_font);
  painter.setPen(colors_.text);
  painter.drawText(cell, Qt::AlignCenter | Qt::TextSingleLine,
                   locale_.toString(days_.DateOf(place.day).Day()));
  const qreal size = number.ascent() * kMarkShare;
  const qreal side = (cell.width() - number.horizontalAdvance(QStringLiteral("30"))) / 2;
  if (look.shape == DayShape::kBar) {
    // Below the number, as far as there is room.
    const qreal bottom = std::min(cell.center().y() + number.ascent() * 0.72, cell.bottom() - Line() / 2);
    DrawDayMark(painter, {cell.center().x() - size / 2, bottom - size, size, size}, look.shape, mark);
  } else {
    DrawDayMark(painter,
                {cell.left() + (side - size) / 2, cell.top() + cell.height() * 0.5 - size / 2, size, size},
                look.shape, mark);
  }
  if (look.letter.empty()) return;
  painter.setFont(metrics_.letter_font);
  painter.setPen(mark);
  painter.drawText(QRectF(cell.right() - side, cell.top(), side, cell.height()),
                   Qt::AlignCenter | Qt::TextSingleLine | Qt::TextDontClip, ToQt(look.letter));
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
  QRectF ring(0, 0, std::min(cell.width(), size * 1.35), size);
  ring.moveCenter(cell.center());
  const qreal inset = Line();
  painter.setPen(QPen(colors_.accent, 1.6 * Line()));
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(ring.adjusted(inset, inset, -inset, -inset));
}

void YearPainter::PaintCurrent(QPainter& painter, const YearPlace& place, bool has_focus) const {
  const qreal width = (has_focus ? 2 : 1) * Line();
  const qreal inset = width / 2;
  painter.setPen(QPen(has_focus ? colors_.text : colors_.accent, width));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(layout_.CellRect(place).adjusted(inset, inset, -inset, -inset));
}

// Parts
// ------------------------------------------------------------------------------------------------

qreal YearPainter::Line() const { return QFontMetricsF(metrics_.number_font).height() / 16; }

const platform::YearCalendar& YearPainter::Calendar(int position) const {
  return days_.Content().calendars[static_cast<std::size_t>(position)];
}

int YearPainter::FirstDayOf(int month) const { return Date(days_.Year(), month, 1).DayOfYear(); }

int YearPainter::LastDayOf(int month) const {
  return month == 12 ? days_.DayCount() : FirstDayOf(month + 1) - 1;
}

}  // namespace ferrowind::qt
