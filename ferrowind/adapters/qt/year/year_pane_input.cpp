// The operator's keys and mouse.
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include "ferrowind/adapters/qt/year/year_pane.h"

namespace ferrowind::qt {

using year_engine::YearPlace;
using year_engine::YearStep;

bool YearPane::event(QEvent* event) {
  // A shortcut of the window does not take the keys that this needs itself.
  if (event->type() == QEvent::ShortcutOverride && StepOf(*static_cast<QKeyEvent*>(event))) {
    event->accept();
    return true;
  }
  return QAbstractScrollArea::event(event);
}

bool YearPane::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    ShowTip(*static_cast<QHelpEvent*>(event));
    return true;
  }
  return QAbstractScrollArea::viewportEvent(event);
}

std::optional<YearStep> YearPane::StepOf(const QKeyEvent& event) const {
  const bool is_mirrored = layoutDirection() == Qt::RightToLeft;
  const bool has_ctrl = event.modifiers().testFlag(Qt::ControlModifier);
  if (event.modifiers().testFlag(Qt::AltModifier)) return std::nullopt;
  switch (event.key()) {
    case Qt::Key_Left:
      return is_mirrored ? YearStep::kDayAfter : YearStep::kDayBefore;
    case Qt::Key_Right:
      return is_mirrored ? YearStep::kDayBefore : YearStep::kDayAfter;
    case Qt::Key_Up:
      return YearStep::kUp;
    case Qt::Key_Down:
      return YearStep::kDown;
    case Qt::Key_PageUp:
      return YearStep::kMonthBefore;
    case Qt::Key_PageDown:
      return YearStep::kMonthAfter;
    case Qt::Key_Home:
      return has_ctrl ? YearStep::kYearStart : YearStep::kMonthStart;
    case Qt::Key_End:
      return has_ctrl ? YearStep::kYearEnd : YearStep::kMonthEnd;
    default:
      return std::nullopt;
  }
}

void YearPane::keyPressEvent(QKeyEvent* event) {
  if (!cursor_.Current() || !HandleKey(*event)) event->ignore();
}

bool YearPane::HandleKey(const QKeyEvent& event) {
  if (const auto step = StepOf(event)) {
    const YearPlace place = cursor_.After(*step);
    if (event.modifiers().testFlag(Qt::ShiftModifier)) {
      ChangeCursor([&] { cursor_.ExtendTo(place); });
    } else {
      GoTo(place);
    }
    return true;
  }
  switch (event.key()) {
    case Qt::Key_Space:
      Toggle(*cursor_.Current());
      return true;
    case Qt::Key_Enter:
    case Qt::Key_Return:
      Activate();
      return true;
    case Qt::Key_F10:
      // For keyboards without a menu key.
      if (event.modifiers() != Qt::ShiftModifier) return false;
      AskForMenu();
      return true;
    default:
      return false;
  }
}

void YearPane::mousePressEvent(QMouseEvent* event) {
  const auto place = PlaceAt(event->pos());
  if (!place) return;
  if (event->button() == Qt::RightButton) {
    ChangeCursor([&] { cursor_.PointAt(*place); });
  } else if (event->button() == Qt::LeftButton) {
    is_dragging_ = true;
    const bool has_ctrl = event->modifiers().testFlag(Qt::ControlModifier);
    ChangeCursor([&] {
      if (event->modifiers().testFlag(Qt::ShiftModifier)) {
        cursor_.ExtendTo(*place, has_ctrl);
      } else if (has_ctrl) {
        cursor_.Toggle(*place);
      } else {
        cursor_.GoTo(*place);
      }
    });
  }
}

void YearPane::mouseMoveEvent(QMouseEvent* event) {
  if (!is_dragging_ || !event->buttons().testFlag(Qt::LeftButton)) return;
  const auto place = PlaceAt(event->pos());
  if (!place || place == cursor_.Current()) return;
  ChangeCursor([&] { cursor_.ExtendTo(*place, event->modifiers().testFlag(Qt::ControlModifier)); });
}

void YearPane::mouseReleaseEvent(QMouseEvent* event) {
  is_dragging_ = false;
  // Last, since who listens may open a menu and close the window from it.
  if (event->button() == Qt::RightButton && PlaceAt(event->pos())) AskForMenu();
}

void YearPane::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && PlaceAt(event->pos())) Activate();
}

void YearPane::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
  if (event->reason() == QContextMenuEvent::Keyboard) AskForMenu();
}

}  // namespace ferrowind::qt
