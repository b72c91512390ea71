#include "ferrowind/adapters/qt/year/year_pane.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>
#include <cmath>
#include <utility>

#include "ferrowind/adapters/qt/look/flat_scroll_bar.h"
#include "ferrowind/adapters/qt/look/text_tip.h"
#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/adapters/qt/year/year_accessible.h"
#include "ferrowind/adapters/qt/year/year_colors.h"
#include "ferrowind/adapters/qt/year/year_painter.h"
#include "ferrowind/adapters/qt/year/year_texts.h"

namespace ferrowind::qt {

using year_engine::YearCursor;
using year_engine::YearDays;
using year_engine::YearPlace;

YearPane::YearPane(QWidget* parent) : QAbstractScrollArea(parent) {
  QAccessible::installFactory(YearAccessible::Make);
  setVerticalScrollBar(new FlatScrollBar(Qt::Vertical));
  setHorizontalScrollBar(new FlatScrollBar(Qt::Horizontal));
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setBackgroundRole(QPalette::Base);
  viewport()->setAutoFillBackground(true);
}

void YearPane::SetDays(YearDays days) {
  const YearCursor before = cursor_;
  const YearDays days_before = std::exchange(days_, std::move(days));
  cursor_.Enter(days_before, days_);
  is_arranged_ = false;
  Arrange();
  if (QAccessible::isActive()) {
    QAccessibleTableModelChangeEvent event(this, QAccessibleTableModelChangeEvent::ModelReset);
    QAccessible::updateAccessibility(&event);
  }
  const auto cells_of = [](const YearDays& in, const std::vector<YearPlace>& places) {
    std::vector<platform::YearCell> cells;
    for (const YearPlace& place : places) cells.push_back(in.CellAt(place));
    return cells;
  };
  const auto current_of = [&](const YearDays& in, const YearCursor& cursor) {
    return cursor.Current() ? cells_of(in, {*cursor.Current()}) : std::vector<platform::YearCell>();
  };
  const bool is_other_current = current_of(days_before, before) != current_of(days_, cursor_);
  const bool are_others_selected =
      cells_of(days_before, before.Selected()) != cells_of(days_, cursor_.Selected());
  viewport()->update();
  const QPointer<YearPane> self(this);
  if (is_other_current) {
    ScrollToCurrent();
    emit CurrentChanged();
  }
  if (self && are_others_selected) emit SelectionChanged();
}

void YearPane::GoTo(const YearPlace& place) {
  ChangeCursor([&] { cursor_.GoTo(place); });
}

void YearPane::PointAt(const YearPlace& place) {
  ChangeCursor([&] { cursor_.PointAt(place); });
}

void YearPane::Toggle(const YearPlace& place) {
  ChangeCursor([&] { cursor_.Toggle(place); });
}

void YearPane::Activate() {
  if (cursor_.Current()) emit Activated();
}

void YearPane::AskForMenu() {
  if (!cursor_.Current()) return;
  ScrollToCurrent();
  emit MenuAsked();
}

QRect YearPane::RectOf(const YearPlace& place) const {
  return Layout().CellRect(place).translated(-Scrolled()).toAlignedRect();
}

std::optional<YearPlace> YearPane::PlaceAt(const QPoint& in_viewport) const {
  return Layout().PlaceAt(QPointF(in_viewport) + Scrolled());
}

QSize YearPane::minimumSizeHint() const {
  const QSizeF cell = YearMetrics(days_, font(), locale()).least_cell;
  constexpr int kColumns = 7;
  constexpr int kRows = 9;
  return {static_cast<int>(cell.width()) * kColumns, static_cast<int>(cell.height()) * kRows};
}

QSize YearPane::sizeHint() const { return minimumSizeHint() * 4; }

QVariant YearPane::inputMethodQuery(Qt::InputMethodQuery query) const {
  if (query == Qt::ImCursorRectangle && cursor_.Current()) return RectOf(*cursor_.Current());
  return QAbstractScrollArea::inputMethodQuery(query);
}

// Layout and painting
// ------------------------------------------------------------------------------------------------

void YearPane::Arrange() {
  if (is_arranged_) return;
  is_arranged_ = true;
  const QScopedValueRollback<bool> placing(is_placing_, true);
  const YearMetrics metrics(days_, font(), locale());
  const YearLayout::Reading reading{static_cast<int>(locale().firstDayOfWeek()) % 7 + 1,
                                    layoutDirection() == Qt::RightToLeft};
  const QSize whole = maximumViewportSize();
  layout_ = YearLayout(days_, metrics, reading, whole);
  // Only one that has to be scrolled loses width to the bar.
  if (layout_.Size().height() > whole.height() + 0.5) {
    const int bar = verticalScrollBar()->sizeHint().width();
    layout_ = YearLayout(days_, metrics, reading, QSizeF(whole.width() - bar, whole.height()));
  }
  const QSize size(static_cast<int>(std::ceil(layout_.Size().width() - 0.5)),
                   static_cast<int>(std::ceil(layout_.Size().height() - 0.5)));
  const bool scrolls_down = size.height() > whole.height();
  const int bar = scrolls_down ? verticalScrollBar()->sizeHint().width() : 0;
  const int width = std::max(0, whole.width() - bar);
  horizontalScrollBar()->setRange(0, std::max(0, size.width() - width));
  horizontalScrollBar()->setPageStep(width);
  verticalScrollBar()->setRange(0, std::max(0, size.height() - whole.height()));
  verticalScrollBar()->setPageStep(whole.height());
  const int line = static_cast<int>(metrics.least_cell.height());
  verticalScrollBar()->setSingleStep(line);
  horizontalScrollBar()->setSingleStep(line);
}

const YearLayout& YearPane::Layout() const {
  if (!is_arranged_) const_cast<YearPane*>(this)->Arrange();
  return layout_;
}

QPointF YearPane::Scrolled() const {
  const int x = horizontalScrollBar()->value();
  const bool is_mirrored = layoutDirection() == Qt::RightToLeft;
  return QPointF(is_mirrored ? horizontalScrollBar()->maximum() - x : x, verticalScrollBar()->value());
}

void YearPane::paintEvent(QPaintEvent* event) {
  // Months without a day would look like a year of which all days are gone.
  if (days_.CalendarCount() == 0) return;
  const YearMetrics metrics(days_, font(), locale());
  const YearColors colors(palette());
  const QLocale names = locale();
  const YearPainter year(days_, metrics, Layout(), colors, names);
  QPainter painter(viewport());
  const QPointF scrolled = Scrolled();
  painter.translate(-scrolled);
  year.Paint(painter, QRectF(event->rect()).translated(scrolled), {&cursor_, hasFocus()});
}

void YearPane::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  is_arranged_ = false;
  Arrange();
  // The day may have become the current one before the pane had any size to show it in.
  if (follows_current_) ScrollToCurrent();
}

void YearPane::scrollContentsBy(int dx, int dy) {
  if (!is_placing_) follows_current_ = false;
  QAbstractScrollArea::scrollContentsBy(dx, dy);
}

void YearPane::changeEvent(QEvent* event) {
  QAbstractScrollArea::changeEvent(event);
  switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::LayoutDirectionChange:
    case QEvent::LocaleChange:
    case QEvent::StyleChange:
      is_arranged_ = false;
      Arrange();
      viewport()->update();
      break;
    case QEvent::ActivationChange:
    case QEvent::EnabledChange:
    case QEvent::PaletteChange:
      viewport()->update();
      break;
    default:
      break;
  }
}

void YearPane::focusInEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusInEvent(event);
  viewport()->update();
  TellAccessibility();
}

void YearPane::focusOutEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusOutEvent(event);
  viewport()->update();
}

// Changes
// ------------------------------------------------------------------------------------------------

void YearPane::ChangeCursor(const std::function<void()>& change) {
  const YearCursor before = cursor_;
  change();
  TellChanges(before);
}

void YearPane::TellChanges(const YearCursor& before) {
  const bool is_other_current = cursor_.Current() != before.Current();
  const bool are_others_selected = !cursor_.HasSelectionOf(before);
  if (!is_other_current && !are_others_selected) return;
  viewport()->update();
  // Who listens may close the window.
  const QPointer<YearPane> self(this);
  if (is_other_current) {
    ScrollToCurrent();
    TellAccessibility();
    emit CurrentChanged();
  }
  if (self && are_others_selected) emit SelectionChanged();
}

void YearPane::ScrollToCurrent() {
  if (!cursor_.Current()) return;
  follows_current_ = true;
  const QScopedValueRollback<bool> placing(is_placing_, true);
  const QRectF cell = Layout().CellRect(*cursor_.Current());
  const QSize room = viewport()->size();
  const auto into_sight = [](QScrollBar& bar, qreal before, qreal from, qreal to, int length) {
    // What does not fit as a whole begins where the sight begins.
    if (from < before || to - from > length) {
      bar.setValue(bar.value() + static_cast<int>(std::floor(from - before)));
    } else if (to > before + length) {
      bar.setValue(bar.value() + static_cast<int>(std::ceil(to - before - length)));
    }
  };
  const QPointF scrolled = Scrolled();
  // With some of what stands around it, such as the names of the weekdays.
  const qreal margin = cell.height() * 1.5;
  into_sight(*verticalScrollBar(), scrolled.y(), cell.top() - margin, cell.bottom() + margin, room.height());
  if (layoutDirection() == Qt::LeftToRight)
    into_sight(*horizontalScrollBar(), scrolled.x(), cell.left(), cell.right(), room.width());
}

void YearPane::TellAccessibility() {
  if (!QAccessible::isActive() || !hasFocus() || !cursor_.Current()) return;
  QAccessibleEvent event(this, QAccessible::Focus);
  event.setChild(YearAccessible::ChildOf(days_, *cursor_.Current()));
  QAccessible::updateAccessibility(&event);
}

void YearPane::ShowTip(const QHelpEvent& event) {
  if (const auto place = PlaceAt(event.pos())) {
    ShowTextTip(event, *viewport(), RectOf(*place), TextOfDay(days_, *place, locale()));
    return;
  }
  const auto month = Layout().MonthAt(QPointF(event.pos()) + Scrolled());
  QStringList lines;
  if (month) {
    for (const auto& calendar : days_.Content().calendars) {
      const QString text = ToQt(calendar.months[static_cast<std::size_t>(*month) - 1].description);
      if (text.isEmpty()) continue;
      lines.append(days_.CalendarCount() == 1 ? text : ToQt(calendar.caption) + QStringLiteral(": ") + text);
    }
  }
  const QRect area = month ? Layout().MonthRect(*month).translated(-Scrolled()).toAlignedRect() : QRect();
  ShowTextTip(event, *viewport(), area, lines.join(QLatin1Char('\n')));
}

}  // namespace ferrowind::qt
